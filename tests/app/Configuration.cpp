#include "data/Configuration.h"

#include "core/ErreurExecution.h"
#include "core/FichierEntier.h"
#include "widgets/Chaines.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class FichierConfiguration : public testing::Test {
protected:
    QTemporaryDir dossier_;
    std::filesystem::path chemin_ = Chemin(dossier_.path()) / NomConfiguration;

    NumeroErreur ErreurDe(const std::string& contenu) {
        EcritFichierEntier(chemin_, contenu);
        try {
            LitConfiguration(chemin_);
        } catch (const ErreurExecution& erreur) {
            return erreur.numero;
        }
        ADD_FAILURE() << "accepted: " << contenu;
        return {};
    }
};

const std::string Sept = "#TRUE#\n#FALSE#\n#TRUE#\n#TRUE#\n#FALSE#\n#TRUE#\n#FALSE#\n";

} // namespace

TEST_F(FichierConfiguration, AllerEtRetour) {
    Configuration configuration;
    configuration.imprime = {true, false, true, true, false, false, true};
    configuration.langue = "Español";
    EcritConfiguration(chemin_, configuration);
    const Configuration relue = LitConfiguration(chemin_);
    EXPECT_EQ(relue.imprime, configuration.imprime);
    EXPECT_EQ(relue.langue, "Español");
}

TEST_F(FichierConfiguration, FinsDeLigne) {
    EcritFichierEntier(chemin_, "#TRUE#\r\n#FALSE#\r\n#TRUE#\r\n#TRUE#\r\n#TRUE#\r\n#TRUE#\r\n#FALSE#\r\nEnglish");
    const Configuration configuration = LitConfiguration(chemin_);
    EXPECT_EQ(configuration.langue, "English");
    EXPECT_FALSE(configuration.imprime[1]);
    EXPECT_FALSE(configuration.imprime[6]);
}

TEST_F(FichierConfiguration, FichiersAbimes) {
    EXPECT_EQ(ErreurDe(""), NumeroErreur::FinDeFichier);
    EXPECT_EQ(ErreurDe(Sept), NumeroErreur::FinDeFichier);
    EXPECT_EQ(ErreurDe(Sept + "\n"), NumeroErreur::ContenuInvalide);
    EXPECT_EQ(ErreurDe(Sept + "Français\nEncore\n"), NumeroErreur::ContenuInvalide);
    EXPECT_EQ(ErreurDe("Oui\n" + Sept + "Français\n"), NumeroErreur::ContenuInvalide);
    EXPECT_EQ(ErreurDe("#true#\n" + Sept), NumeroErreur::ContenuInvalide);
    std::filesystem::remove(chemin_);
    EXPECT_THROW(LitConfiguration(chemin_), ErreurExecution);
}

TEST_F(FichierConfiguration, CelleQuiEstLivree) {
    const Configuration livree = LitConfiguration(std::filesystem::path(VELORIN_SOURCES) / NomConfiguration);
    for (const bool marque : livree.imprime) EXPECT_TRUE(marque);
    EXPECT_EQ(livree.langue, "Français");
}
