// The folders that the program works in, and the database and configuration that it makes for a user.
#include "data/DossierUtilisateur.h"

#include "core/ErreurExecution.h"
#include "core/FichierEntier.h"
#include "data/Configuration.h"
#include "data/Demarrage.h"
#include "data/EchecDemarrage.h"
#include "data/FabriqueBase.h"
#include "outils/DossierTemporaire.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <sstream>
#include <thread>

namespace fs = std::filesystem;

namespace {

const fs::path tables = fs::path(VELORIN_SOURCES) / "data" / "catalogue";

/// What a table holds: a line a record, the headings first, every value with the name of its field.
std::vector<std::string> Contenu(BaseDonnees& base, const std::string& table) {
    std::vector<std::string> lignes(1);
    JeuEnregistrements jeu = base.OuvreTable(table);
    for (long c = 0; c < jeu.NombreChamps(); ++c) lignes[0] += jeu.NomChamp(c) + "\t";
    for (; !jeu.FinFichier(); jeu.VaAuSuivant()) {
        lignes.emplace_back();
        for (long c = 0; c < jeu.NombreChamps(); ++c) lignes.back() += EnTexte(jeu.Champ(c)) + "\t";
    }
    return lignes;
}

std::vector<std::vector<std::string>> Contenu(const fs::path& chemin) {
    BaseDonnees base = BaseDonnees::Ouvre(chemin, MotDePasseBase, BaseDonnees::Usage::Lecture);
    std::vector<std::vector<std::string>> contenu;
    for (const std::string& table : base.NomsTables()) contenu.push_back(Contenu(base, table));
    return contenu;
}

/// An installed program and the folders of a user, who has not started it yet.
class DossierUtilisateur : public testing::Test {
protected:
    DossierTemporaire dossier_;
    fs::path partage_ = dossier_ / "usr/share/velorin";
    fs::path livree_ = partage_ / NomBase;
    fs::path sienne_ = dossier_ / "donnees/velorin/BaseDatos.Mdb";
    DossiersSysteme systeme_{dossier_ / "donnees", dossier_ / "documents"};

    DossierUtilisateur() {
        static const std::string base = [] { // it takes a while to make
            const DossierTemporaire provisoire;
            FabriqueBase(tables, provisoire / NomBase);
            return LitFichierEntier(provisoire / NomBase);
        }();
        fs::create_directories(dossier_ / "usr/bin");
        fs::create_directories(partage_);
        EcritFichierEntier(livree_, base);
        fs::copy(fs::path(VELORIN_SOURCES) / NomConfiguration, partage_);
        PrendDossiers(dossier_ / "usr/bin", systeme_);
    }
    ~DossierUtilisateur() override {
        CheminAppli = anciens_[0];
        CheminUtilisateur = anciens_[1];
        CheminEtudes = anciens_[2];
    }

    /// Makes the database that an earlier version delivered and its user worked with: two texts and a roller less, one
    /// text in another wording, a language and a roller of his own, and another height for a delivered roller.
    void FaitAncienneBase() {
        const fs::path anciennes = dossier_ / "anciennes";
        fs::copy(tables, anciennes);
        std::istringstream lignes(LitFichierEntier(anciennes / "Idiomas.tsv"));
        std::string contenu, ligne;
        for (int numero = 0; std::getline(lignes, ligne) && numero < NombreAnciens + 1; ++numero) {
            if (numero == 7) ligne = "7\t70\tAncien\tAnterior\tFormer";
            contenu += ligne + (numero == 0 ? "\tItaliano\n" : "\ttesto " + std::to_string(numero) + "\n");
        }
        EcritFichierEntier(anciennes / "Idiomas.tsv", contenu);
        std::string galets = LitFichierEntier(anciennes / "Table Galets.tsv");
        galets.erase(galets.rfind('\n', galets.size() - 2) + 1);
        const auto premier = galets.find('\n') + 1;
        const auto hauteur = galets.find('\t', galets.find('\t', premier) + 1) + 1;
        galets.replace(hauteur, galets.find('\t', hauteur) - hauteur, "99.5");
        EcritFichierEntier(anciennes / "Table Galets.tsv", galets + "MIEN 12\t12\t10\t5000\t6000\t3\n");
        fs::create_directories(sienne_.parent_path());
        FabriqueBase(anciennes, sienne_);
    }

    /// Kills a child that brings the user's database up to date, at moments spread over the time that this takes.
    /// @param commence puts the folder where each child begins
    /// @return how often the child was killed before it was done
    template <class Commence, class Verifie> int TueEnRoute(Commence commence, Verifie verifie) {
        commence();
        const auto debut = std::chrono::steady_clock::now();
        PrepareDossierUtilisateur();
        const auto duree = std::chrono::steady_clock::now() - debut;
        int interrompus = 0;
        for (int tour = 0; tour < Tours; ++tour) {
            commence();
            const pid_t enfant = ::fork();
            if (enfant == 0) {
                PrepareDossierUtilisateur();
                ::_exit(0);
            }
            std::this_thread::sleep_for(duree * tour / Tours);
            ::kill(enfant, SIGKILL);
            int statut = 0;
            ::waitpid(enfant, &statut, 0);
            if (WIFSIGNALED(statut)) ++interrompus;
            verifie(tour);
        }
        return interrompus;
    }

    static constexpr int Tours = 25;
    const int NombreAnciens = static_cast<int>(std::ranges::count(LitFichierEntier(tables / "Idiomas.tsv"), '\n')) - 3;

private:
    fs::path anciens_[3] = {CheminAppli, CheminUtilisateur, CheminEtudes};
};

} // namespace

TEST_F(DossierUtilisateur, ACopyThatCanBeMovedWorksInItsOwnFolder) {
    const fs::path copie = dossier_ / "copie";
    fs::create_directory(copie);
    fs::copy(livree_, copie);
    PrendDossiers(copie, systeme_);
    EXPECT_EQ(CheminAppli, copie);
    EXPECT_EQ(CheminUtilisateur, copie);
    EXPECT_EQ(CheminEtudes, copie / "Profils");
    PrepareDossierUtilisateur();
    EXPECT_FALSE(fs::exists(systeme_.donnees));
}

TEST_F(DossierUtilisateur, AnInstalledProgramFillsTheUsersFolderAtItsFirstStart) {
    EXPECT_EQ(CheminAppli, partage_);
    EXPECT_EQ(CheminUtilisateur, sienne_.parent_path());
    EXPECT_EQ(CheminEtudes, dossier_ / "documents");
    EXPECT_EQ(BaseALire(), livree_);
    EXPECT_FALSE(fs::exists(sienne_)) << "reading makes nothing";

    PrepareDossierUtilisateur();
    EXPECT_EQ(Contenu(sienne_), Contenu(livree_));
    EXPECT_EQ(BaseALire(), sienne_);
    EXPECT_EQ(LitConfiguration(ConfigurationALire()).langue, "Français");

    EcritConfiguration(ConfigurationALire(), {{}, "English"});
    const std::string avant = LitBrut(sienne_);
    const BaseDonnees ouverte = BaseDonnees::Ouvre(sienne_, MotDePasseBase, BaseDonnees::Usage::Exclusif);
    PrepareDossierUtilisateur(); // needs nothing of a database that another program holds
    EXPECT_EQ(LitBrut(sienne_), avant);
    EXPECT_EQ(LitConfiguration(ConfigurationALire()).langue, "English");
}

TEST_F(DossierUtilisateur, AFolderThatCannotBeMadeOrADamagedBaseIsTold) {
    EcritFichierEntier(dossier_ / "donnees", "a file where the folder should be");
    EXPECT_THROW(PrepareDossierUtilisateur(), ErreurExecution);
    fs::remove(dossier_ / "donnees");
    fs::create_directories(sienne_.parent_path());
    const std::string abime(9000, 'x');
    EcritFichierEntier(sienne_, abime);
    EXPECT_THROW(PrepareDossierUtilisateur(), ErreurExecution);
    EXPECT_EQ(LitBrut(sienne_), abime) << "what cannot be read is not written over";
}

TEST_F(DossierUtilisateur, AnUpdateBringsTextsAndKeepsWhatTheUserAdded) {
    FaitAncienneBase();
    EXPECT_EQ(BaseALire(), sienne_) << "a reader, too, reads it brought up to date";
    BaseDonnees base = BaseDonnees::Ouvre(sienne_, MotDePasseBase, BaseDonnees::Usage::Lecture);
    BaseDonnees livree = BaseDonnees::Ouvre(livree_, MotDePasseBase, BaseDonnees::Usage::Lecture);
    EXPECT_EQ(Contenu(base, "Lois"), Contenu(livree, "Lois")) << "their order counts";

    JeuEnregistrements siens = base.OuvreTable("Idiomas"), livres = livree.OuvreTable("Idiomas");
    ASSERT_EQ(siens.NombreEnregistrements(), NombreAnciens + 2);
    for (; !livres.FinFichier(); livres.VaAuSuivant()) {
        const double numero = EnNombre(livres.Champ(0));
        siens.Seek(numero);
        ASSERT_FALSE(siens.NoMatch()) << numero;
        for (long c = 0; c < livres.NombreChamps(); ++c) EXPECT_EQ(siens.Champ(c), livres.Champ(c)) << numero;
        EXPECT_EQ(EnTexte(siens.Champ("Italiano")),
                  numero <= NombreAnciens ? "testo " + std::to_string(static_cast<int>(numero)) : "");
    }

    JeuEnregistrements galets = base.OuvreTable("Table Galets"), galetsLivres = livree.OuvreTable("Table Galets");
    galets.Seek(std::string("MIEN 12"));
    ASSERT_FALSE(galets.NoMatch());
    EXPECT_EQ(EnNombre(galets.Champ("CapaciteB10")), 5000);
    galets.Seek(galetsLivres.Champ("ReferenceGalet"));
    EXPECT_EQ(EnNombre(galets.Champ("HauteurGalet")), 99.5) << "what stands in a catalogue stays";
}

TEST_F(DossierUtilisateur, AKillDuringAnUpdateLeavesTheOldBaseOrTheNewOne) {
    FaitAncienneBase();
    const std::string ancienne = LitFichierEntier(sienne_);
    const auto avant = Contenu(sienne_);
    PrepareDossierUtilisateur();
    const auto apres = Contenu(sienne_);
    ASSERT_NE(avant, apres);
    const int interrompus = TueEnRoute(
        [&] {
            fs::remove(sienne_.string() + "-journal");
            EcritFichierEntier(sienne_, ancienne);
        },
        [&](int tour) {
            const auto present = Contenu(sienne_);
            ASSERT_TRUE(present == avant || present == apres) << tour;
        });
    EXPECT_GT(interrompus, Tours / 4);
}

TEST_F(DossierUtilisateur, AStartThatFailsSaysWhy) {
    for (const NumeroErreur numero :
         {NumeroErreur::AccesFichier, NumeroErreur::DossierIntrouvable, NumeroErreur::DisquePlein,
          NumeroErreur::EntreeSortie, NumeroErreur::BaseIllisible, NumeroErreur::BaseOccupee})
        for (const char* langue : {"Français", "Español", "English", "Italiano"}) {
            const std::string texte = TexteEchecDemarrage(ErreurExecution(numero, "/a/b"), langue);
            EXPECT_EQ(texte.find("Velorin"), std::string::npos) << texte; // it would only say once more that it failed
            EXPECT_TRUE(texte.ends_with("/a/b")) << texte;
        }
}
