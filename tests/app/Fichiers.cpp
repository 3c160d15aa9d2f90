// The files that a desktop opens with the program: what the package tells of them is what the program does.
#include "app/Ecrans.h"
#include "app/MdiCamA.h"
#include "app/Version.h"
#include "core/FichierEntier.h"
#include "data/Demarrage.h"
#include "outils/DialoguesScript.h"
#include "outils/DossierTemporaire.h"
#include "outils/Ecrans.h"
#include "studies/FichierEtude.h"
#include "studies/TypesEtude.h"
#include "widgets/Chaines.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

#include <set>
#include <utility>

namespace {

/// All that the only group of a pattern matches in a file of the package.
std::set<std::string> Trouve(const char* fichier, const char* motif) {
    const QString contenu = Q(LitFichierEntier(std::filesystem::path(VELORIN_SOURCES) / "paquet" / fichier));
    std::set<std::string> trouves;
    auto suite = QRegularExpression(QString::fromLatin1(motif)).globalMatch(contenu);
    while (suite.hasNext()) trouves.insert(S(suite.next().captured(1)));
    return trouves;
}

} // namespace

TEST(Fichiers, ThePackageAssociatesExactlyWhatTheProgramOpens) {
    std::set<std::string> motifs;
    for (const TypeEtude& type : LesTypesEtude()) motifs.insert(std::string("*.") + type.extension);
    for (const EcranEnfant& ecran : LesEcrans())
        if (ecran.extension != nullptr) motifs.insert(std::string("*") + ecran.extension);
    EXPECT_EQ(Trouve("velorin.xml", "<glob pattern=\"([^\"]+)\""), motifs);

    const auto types = Trouve("velorin.xml", "mime-type type=\"([^\"]+)\"");
    EXPECT_EQ(types.size(), motifs.size());
    EXPECT_EQ(Trouve("velorin.desktop", "(application/x-[^;]+);"), types);
    EXPECT_EQ(Trouve("org.velorin.Velorin.metainfo.xml", "<mediatype>([^<]+)<"), types);
    for (const std::string& icone : Trouve("velorin.xml", "<icon name=\"([^\"]+)\""))
        EXPECT_TRUE(
            std::filesystem::exists(std::filesystem::path(VELORIN_SOURCES) / "paquet/icones" / (icone + ".svg")))
            << icone;
    EXPECT_TRUE(Trouve("org.velorin.Velorin.metainfo.xml", "release version=\"([^\"]+)\"").contains(VersionProgramme));
    EXPECT_TRUE(Trouve("../CMakeLists.txt", "VERSION ([0-9.]+) ").contains(VersionProgramme));
}

TEST(Fichiers, AnExampleThatIsOpenedIsSavedInTheFolderOfTheStudies) {
    struct : DialoguesScript {
        std::filesystem::path dossier;
        std::optional<std::filesystem::path> FichierASauver(const DemandeFichier& demande) override {
            dossier = demande.dossier;
            return demande.dossier / demande.nom;
        }
    } dialogues;
    const DossierTemporaire etudes;
    const std::filesystem::path ancien = std::exchange(CheminEtudes, etudes.Chemin());
    MdiCamA mdi{Configuration{{}, LangueTravail}};
    mdi.OuvreAutre(CheminAppli / NomDossierEtudes / "Exemple.Ang");
    EXPECT_EQ(DonneesDepart(), etudes / "Exemple.Ang");
    CheminEtudes = ancien;
    EXPECT_EQ(dialogues.dossier, etudes.Chemin());
    EXPECT_TRUE(LitFichierEtude(etudes / "Exemple.Ang"));
}
