#include "outils/Catalogue.h"

#include "core/FichierEntier.h"
#include "core/Utf8.h"
#include "data/FabriqueBase.h"
#include "outils/DossierTemporaire.h"
#include "outils/Echec.h"

#include <algorithm>

namespace {

const std::filesystem::path tables = std::filesystem::path(VELORIN_SOURCES) / "data" / "catalogue";

NumeroErreur NumeroOuverture(const std::filesystem::path& chemin, const char* motDePasse, BaseDonnees::Usage usage) {
    return EchecDe([&] { BaseDonnees::Ouvre(chemin, motDePasse, usage); }).numero;
}

} // namespace

TEST(Catalogue, OpensWithItsPasswordAndForOneProgramAlone) {
    const DossierTemporaire dossier;
    const auto chemin = dossier / NomBase;
    FabriqueBase(tables, chemin);
    using enum BaseDonnees::Usage;
    EXPECT_EQ(NumeroOuverture(chemin, "autre", Exclusif), NumeroErreur::BaseIllisible);
    EXPECT_EQ(NumeroOuverture(dossier / "absent", MotDePasseBase, Exclusif), NumeroErreur::FichierIntrouvable);
    {
        const BaseDonnees ouverte = BaseDonnees::Ouvre(chemin, MotDePasseBase, Exclusif);
        EXPECT_EQ(NumeroOuverture(chemin, MotDePasseBase, Exclusif), NumeroErreur::BaseOccupee);
    }
    EXPECT_EQ(NumeroOuverture(chemin, MotDePasseBase, Exclusif), NumeroErreur{}) << "free again";

    std::string contenu = LitFichierEntier(chemin);
    EXPECT_EQ(contenu.find("Sinus"), std::string::npos) << "not to be read without the password";
    std::fill(contenu.begin() + 512, contenu.begin() + 2048, 'x');
    EcritFichierEntier(chemin, contenu);
    EXPECT_EQ(NumeroOuverture(chemin, MotDePasseBase, Exclusif), NumeroErreur::BaseIllisible);
    EcritFichierEntier(chemin, "");
    EXPECT_EQ(NumeroOuverture(chemin, MotDePasseBase, Exclusif), NumeroErreur::BaseIllisible);
}

TEST(Catalogue, EveryTextIsThereInThreeLanguagesAndWithinItsLength) {
    const DossierTemporaire dossier;
    FabriqueBase(tables, dossier / NomBase);
    BaseDonnees base = BaseDonnees::Ouvre(dossier / NomBase, MotDePasseBase, BaseDonnees::Usage::Lecture);
    ChargeTextes(base);
    EXPECT_EQ(LanguesCompletes(), (std::vector<std::string>{"Français", "Español", "English"}));
    JeuEnregistrements idiomas = base.OuvreTable("Idiomas");
    for (long numero = 1; !idiomas.FinFichier(); idiomas.VaAuSuivant(), ++numero) {
        ASSERT_EQ(EnNombre(idiomas.Champ("Numero")), numero) << "no number is left out";
        for (long langue = PremiereLangue; langue < idiomas.NombreChamps(); ++langue) {
            const std::string texte = EnTexte(idiomas.Champ(langue));
            EXPECT_FALSE(texte.empty()) << numero;
            EXPECT_LE(static_cast<double>(Caracteres(texte)), EnNombre(idiomas.Champ("Longueur"))) << numero;
        }
        EXPECT_GE(EnNombre(idiomas.Champ("Longueur")),
                  1.3 * static_cast<double>(Caracteres(EnTexte(idiomas.Champ(PremiereLangue)))))
            << numero << " leaves no room for a language with longer words";
    }
    // A language that the catalogue does not have gives way to the second one.
    LangueTravail = "Esperanto";
    ChargeTextes(base);
    EXPECT_EQ(LangueTravail, "Español");
}

TEST(Catalogue, AFaultyTableIsRefusedWithItsPlace) {
    const DossierTemporaire dossier;
    std::filesystem::copy(tables, dossier / "tables");
    const auto lois = dossier / "tables/Lois.tsv";
    const std::string bonnes = LitFichierEntier(lois);
    const std::pair<const char*, const char*> fautes[] = {
        {"\t0.5\n", "\tdemi\n"}, {"\t0.5\n", "\n"}, {"\nSHM\t", "\nCYC\t"}};
    for (const auto& [de, par] : fautes) {
        std::string fautives = bonnes;
        fautives.replace(fautives.find(de), std::string(de).size(), par);
        EcritFichierEntier(lois, fautives);
        EXPECT_THROW(FabriqueBase(dossier / "tables", dossier / NomBase), ErreurExecution) << par;
    }
}
