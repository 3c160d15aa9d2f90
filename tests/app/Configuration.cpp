#include "data/Configuration.h"

#include "core/ErreurExecution.h"
#include "outils/DossierTemporaire.h"

#include <gtest/gtest.h>

TEST(FichierConfiguration, MarksAndLanguageComeBackAndADamagedFileIsRefused) {
    const DossierTemporaire dossier;
    const Configuration configuration{{true, false, true, true, false, false, true}, "Español"};
    EcritConfiguration(dossier / "c", configuration);
    EXPECT_EQ(LitConfiguration(dossier / "c").imprime, configuration.imprime);
    EXPECT_EQ(LitConfiguration(dossier / "c").langue, "Español");
    const std::string sept = "#TRUE#\r\n#FALSE#\r\n#TRUE#\r\n#TRUE#\r\n#FALSE#\r\n#FALSE#\r\n#TRUE#\r\n";
    const Configuration autreSysteme = LitConfiguration(dossier.Ecrit("d", sept + "English"));
    EXPECT_EQ(autreSysteme.imprime, configuration.imprime);
    EXPECT_EQ(autreSysteme.langue, "English");
    for (const std::string& contenu : {std::string(), sept, sept + "\r\n", "Oui\n" + sept + "Français\n"})
        EXPECT_THROW(LitConfiguration(dossier.Ecrit("c", contenu)), ErreurExecution) << contenu;
    EXPECT_THROW(LitConfiguration(dossier / "absent"), ErreurExecution);
}
