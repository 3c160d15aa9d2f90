// The command line, the printed form of numbers, and a few runs of the real executable.
#include "Passe.h"
#include "batch/DialoguesCollecte.h"
#include "batch/JsonEtude.h"
#include "data/Demarrage.h"
#include "outils/DossierTemporaire.h"

#include <sys/wait.h>

#include <cstdio>
#include <limits>

namespace fs = std::filesystem;

namespace {

const std::string exemple = VELORIN_DOSSIER "/Profils/Exemple.Ang";

struct PasseReelle {
    int statut = -1;
    std::string sortie;
};

/// Runs the executable through the shell; the standard error goes where `commande` says.
PasseReelle LanceReelle(const std::string& commande) {
    std::FILE* tube = ::popen(("timeout 60 " VELORIN_DOSSIER "/velorin-batch " + commande).c_str(), "r");
    PasseReelle passe;
    char bloc[4096];
    while (const std::size_t lus = std::fread(bloc, 1, sizeof bloc, tube)) passe.sortie.append(bloc, lus);
    passe.statut = WEXITSTATUS(::pclose(tube));
    return passe;
}

} // namespace

TEST(Commandes, WrongUsageIsOneErrorLineAndNothingElse) {
    const std::vector<std::vector<std::string>> fausses = {
        {},
        {"calcule", exemple},
        {"etude", exemple, "--inconnue"},
        {"loi", "CYC", "MS", "--points", "10"},
        {"loi", "CYC", "--points", "0"},
        {"loi", "MSH", "--points", "10", "--symetrie", "0.3"},
        {"loi", "CYC", "--points", "10", "--resume"},
    };
    for (const auto& mots : fausses) {
        const auto passe = LancePasse(mots);
        EXPECT_EQ(passe.statut, 2) << testing::PrintToString(mots);
        EXPECT_EQ(passe.LignesErreur(), 1) << passe.erreurs;
    }
}

TEST(Commandes, QuestionsAreRefusedUnlessToldOtherwise) {
    for (const bool oui : {false, true}) {
        DialoguesCollecte dialogues(oui);
        EXPECT_EQ(LesDialogues().Question("remplacer ?"), oui);
        EXPECT_EQ(LesDialogues().Saisie("titre", "pourcentage", "50").has_value(), oui);
        EXPECT_FALSE(LesDialogues().FichierASauver({}).has_value());
    }
}

TEST(Commandes, NumbersAreShortAndReadBack) {
    const auto ecrit = [](const Json& json) {
        std::ostringstream flux;
        EcritJson(flux, json);
        return flux.str();
    };
    EXPECT_EQ(ecrit(Json::array({0.1, 100.0, -2.5, 1e18, 7})), "[0.1,100,-2.5,1e+18,7]");
    const double infini = std::numeric_limits<double>::infinity();
    EXPECT_EQ(ecrit({{"a", std::nan("")}, {"b", {infini, -infini}}}), R"({"a":null,"b":[null,null]})");
    EXPECT_EQ(ecrit("é\xff\n"), "\"é\xEF\xBF\xBD\\n\"");
    for (const double x : {M_PI, 1.0 / 3.0, 5e-324, 1.7976931348623157e308, 9007199254740993.0, 123456.789e-30})
        EXPECT_EQ(Json::parse(ecrit(x)).get<double>(), x);
}

TEST(Executable, FindsItsCatalogueAndLanguageBesideItself) {
    const auto calculee = LanceReelle("etude '" + exemple + "' --resume");
    EXPECT_EQ(calculee.statut, 0);
    EXPECT_EQ(nlohmann::json::parse(calculee.sortie)["resume"]["NombrePoints"], 720);

    const auto refusee = LanceReelle("loi NON --points 3");
    EXPECT_EQ(refusee.statut, 1);
    EXPECT_NE(refusee.sortie.find("n'existe pas"), std::string::npos);

    EXPECT_EQ(LanceReelle("loi CYC --points 0 2>&1 >/dev/null").sortie.substr(0, 15), "velorin-batch: ");
    EXPECT_EQ(LanceReelle("etude '" + exemple + "' 2>&1 >/dev/full").statut, 1) << "a result that cannot be written";
}

TEST(Executable, WritesWhatTheSaveAndPrintCommandsWrite) {
    const DossierTemporaire dossier;
    const std::string base = (dossier / "came").string();
    const auto passe = LanceReelle("etude '" + exemple + "' --resume --points '" + base + ".Pnt' --scripts '" + base +
                                   "' --rapport '" + base + ".pdf'");
    EXPECT_EQ(passe.statut, 0);
    EXPECT_EQ(LitBrut(base + ".Pnt").substr(0, 17), "Rayon du galet ,1");
    EXPECT_EQ(LitBrut(base + "_Ext.Scr").substr(0, 16), "LIGNE -5,0 5,0\r\n");
    EXPECT_NE(LitBrut(base + "_Int.Scr").find("CERCLE "), std::string::npos);
    EXPECT_EQ(LitBrut(base + ".pdf").substr(0, 5), "%PDF-");
    EXPECT_EQ(dossier.NombreFichiers(), 4);

    const auto refusee = LanceReelle("etude '" + exemple + "' --resume --points '" + base + "/absent/came.Pnt'");
    EXPECT_EQ(refusee.statut, 1);
    EXPECT_NE(refusee.sortie.find("\"echec\""), std::string::npos);
}

TEST(Executable, AnOutputReplacesNeitherTheStudyNorAnotherOutput) {
    const DossierTemporaire dossier;
    const std::string fichierEtude = dossier.Ecrit("etude.Ang", LitBrut(exemple));
    fs::create_symlink("etude.Ang", dossier / "lien.Pnt");
    fs::create_hard_link(fichierEtude, dossier / "double.pdf");
    const std::string ici = dossier.Chemin().string();
    for (const std::string& sorties :
         {"--points '" + fichierEtude + "'", "--points '" + ici + "/lien.Pnt'", "--rapport '" + ici + "/double.pdf'",
          "--points '" + ici + "/x' --rapport '" + ici + "/../" + dossier.Chemin().filename().string() + "/x'",
          "--points '" + ici + "/b_Int.Scr' --scripts '" + ici + "/b'", std::string("--points - --rapport -"),
          std::string("--points '" VELORIN_DOSSIER "/BaseDatos.Mdb'"),
          std::string("--rapport '" VELORIN_DOSSIER "/CameAng.cfg'")}) {
        const auto passe = LanceReelle("etude '" + fichierEtude + "' --resume " + sorties + " 2>/dev/null");
        EXPECT_EQ(passe.statut, 2) << sorties;
        EXPECT_EQ(passe.sortie, "") << sorties;
        EXPECT_EQ(dossier.NombreFichiers(), 3) << sorties;
    }
    EXPECT_EQ(LitBrut(fichierEtude), LitBrut(exemple));
}

TEST(Executable, StandardOutputPipesAndDevicesAreWrittenThrough) {
    const DossierTemporaire dossier;
    const std::string entete = "Rayon du galet ,", fichierEtude = "etude '" + exemple + "' --resume ";
    for (const char* sortie : {"-", "/dev/stdout"}) {
        const auto passe = LanceReelle(fichierEtude + "--points " + sortie);
        EXPECT_NE(passe.sortie.find(entete), std::string::npos) << sortie;
        EXPECT_NE(passe.sortie.find("\"resume\":"), std::string::npos) << sortie;
    }
    // Into a file that the shell holds open, both follow one another.
    const std::string fichier = (dossier / "sortie").string();
    EXPECT_EQ(LanceReelle(fichierEtude + "--points /dev/stdout >'" + fichier + "'").statut, 0);
    EXPECT_NE(LitBrut(fichier).find(entete), std::string::npos);
    EXPECT_NE(LitBrut(fichier).find("\"resume\":"), std::string::npos);
    const auto tube = LanceReelle("--aide >/dev/null; mkfifo '" + fichier + ".tube'; cat '" + fichier + ".tube' & " +
                                  VELORIN_DOSSIER "/velorin-batch " + fichierEtude + "--points '" + fichier +
                                  ".tube' >/dev/null; wait; test -p '" + fichier + ".tube'");
    EXPECT_EQ(tube.statut, 0);
    EXPECT_EQ(tube.sortie.substr(0, entete.size()), entete);
    EXPECT_EQ(LanceReelle(fichierEtude + "--rapport '" + fichier + ".pdf' 2>&1 >/dev/null").sortie, "")
        << "the toolkit says nothing";
    // A study that is no regular file is refused, and not waited for.
    EXPECT_EQ(LanceReelle("etude '" + fichier + ".tube' /dev/zero 2>/dev/null").statut, 2);
}

TEST(Executable, WorksBesideTheOpenDesktopAndWaitsForAWriteInFlight) {
    const DossierTemporaire dossier;
    const fs::path base = dossier.Ecrit("Base.Mdb", LitBrut(fs::path(VELORIN_DOSSIER) / "BaseDatos.Mdb"));
    const std::string commande = "loi CYC --points 1 --langue English --base '" + base.string() + "' 2>&1";
    BaseDonnees bureau = BaseDonnees::Ouvre(base, MotDePasseBase, BaseDonnees::Usage::Exclusif);
    EXPECT_EQ(LanceReelle(commande).statut, 0) << "the desktop holds the base";
    // What a write in flight leaves beside the base: a journal that begins with its mark.
    const fs::path journal = dossier.Ecrit("Base.Mdb-journal", "\xd9\xd5\x05\xf9\x20\xa1\x63\xd7");
    const auto attente = LanceReelle(commande);
    EXPECT_EQ(attente.statut, 2) << "a write is in flight and does not end";
    EXPECT_NE(attente.sortie.find("File in use by another program : "), std::string::npos) << attente.sortie;
    EXPECT_NE(attente.sortie.find("2 s"), std::string::npos) << attente.sortie;
    fs::remove(journal);
    EXPECT_EQ(LanceReelle(commande).statut, 0);
}

TEST(Executable, FailedStartsAreToldInTheWorkingLanguageWithTheFile) {
    const DossierTemporaire dossier;
    const std::string absente = (dossier / "Absente.Mdb").string();
    const auto erreur = [](const std::string& base, const std::string& langue) {
        return LanceReelle("loi CYC --points 1 --base '" + base + "' --langue " + langue + " 2>&1").sortie;
    };
    EXPECT_EQ(erreur(absente, "English"), "velorin-batch: File not found : " + absente + "\n");
    EXPECT_EQ(LanceReelle("loi CYC --points 1 --base '" + absente + "' 2>&1").sortie,
              "velorin-batch: Fichier introuvable : " + absente + "\n")
        << "the language of the configuration";
    EXPECT_NE(erreur(absente, "Deutsch").find("Fichier introuvable / Archivo no encontrado / File not found"),
              std::string::npos);
}
