#include "data/Configuration.h"

#include "core/ErreurExecution.h"
#include "core/FichierEntier.h"
#include "outils/DossierTemporaire.h"

#include <gtest/gtest.h>

namespace {

const std::string Sept = "#TRUE#\n#FALSE#\n#TRUE#\n#TRUE#\n#FALSE#\n#TRUE#\n#FALSE#\n";

} // namespace

TEST(FichierConfiguration, MarksAndLanguageComeBack) {
    const DossierTemporaire dossier;
    const Configuration configuration{{true, false, true, true, false, false, true}, "Español"};
    EcritConfiguration(dossier / "c", configuration);
    EXPECT_EQ(LitConfiguration(dossier / "c").imprime, configuration.imprime);
    EXPECT_EQ(LitConfiguration(dossier / "c").langue, "Español");
    const std::string autreSysteme = "#TRUE#\r\n#FALSE#\r\n#TRUE#\r\n#TRUE#\r\n#FALSE#\r\n#FALSE#\r\n#TRUE#\r\nEnglish";
    EXPECT_EQ(LitConfiguration(dossier.Ecrit("d", autreSysteme)).imprime, configuration.imprime);
    EXPECT_EQ(LitConfiguration(dossier / "d").langue, "English");
    EXPECT_EQ(LitConfiguration(std::filesystem::path(VELORIN_SOURCES) / NomConfiguration).langue, "Français");
}

TEST(FichierConfiguration, ADamagedFileIsRefused) {
    const DossierTemporaire dossier;
    for (const std::string& contenu : {std::string(), Sept, Sept + "\n", Sept + "Français\nEncore\n",
                                       "Oui\n" + Sept + "Français\n", "#true#\n" + Sept})
        EXPECT_THROW(LitConfiguration(dossier.Ecrit("c", contenu)), ErreurExecution) << contenu;
    EXPECT_THROW(LitConfiguration(dossier / "absent"), ErreurExecution);
}
