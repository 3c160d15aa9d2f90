#include "indexers/Catalogue.h"

#include "outils/BaseAEcrire.h"
#include "outils/Catalogue.h"

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const ChampCatalogue champs[] = {{"DiametreGalet", "DiametreGalet", false, true, 542},
                                 {"HauteurGalet", "HauteurGalet", false, true, 543},
                                 {"CapaciteB10", "CapaciteB10"},
                                 {"CapaciteLimite", "CapaciteLimite", true},
                                 {"codemi", "codemi", false, false}};
const Catalogue galets{"Table Galets", "ReferenceGalet", "ReferenceGalet", champs, 541, {673, 509}, true};

class CalculatorCatalogue : public AvecCatalogue {
protected:
    BaseAEcrire base;
};

/// Adds rollers "K0", "K1" ... until it is killed; each one that is stored is told.
[[noreturn]] void AjouteSansFin(const std::filesystem::path& chemin, int sortie) {
    LaBase = BaseDonnees::Ouvre(chemin, MotDePasseBase, BaseDonnees::Usage::Exclusif);
    for (int i = 0;; ++i) {
        AjouteLigne(galets, "K" + std::to_string(i), {{"DiametreGalet", i + 0.5}, {"HauteurGalet", 1.0 + i}});
        if (::write(sortie, &i, sizeof i) != sizeof i) ::_exit(1);
    }
}

} // namespace

TEST_F(CalculatorCatalogue, ANewRowIsFoundByItsKeyBehindTheOthers) {
    const auto avant = ClesCatalogue(galets);
    EXPECT_EQ(ChercheLigne(galets, "G-035")->at("CapaciteB10"), 11850);
    EXPECT_FALSE(ChercheLigne(galets, "g-035"));
    AjouteLigne(galets, "G-036", {{"DiametreGalet", 36.5}, {"HauteurGalet", 20.0}, {"codemi", 7.0}});
    base.Ouvre(BaseDonnees::Usage::Exclusif);
    const auto apres = ClesCatalogue(galets);
    EXPECT_EQ(apres.size(), avant.size() + 1);
    EXPECT_EQ(apres.back(), "G-036");
    const auto ligne = ChercheLigne(galets, "G-036");
    EXPECT_EQ(ligne->at("DiametreGalet"), 36.5);
    EXPECT_EQ(ligne->at("CapaciteB10"), 0.0) << "nothing stands for 0 there";
    EXPECT_FALSE(ligne->at("CapaciteLimite")) << "and for itself here";
    EXPECT_EQ(ligne->at("codemi"), 0.0) << "not stored";
}

TEST_F(CalculatorCatalogue, ARowThatWasStoredSurvivesAKill) {
    LaBase = {};
    int dernier = -1;
    for (int tour = 0; tour < 6; ++tour) {
        int tube[2];
        ASSERT_EQ(::pipe(tube), 0);
        const auto copie = base.Dossier() / ("copie" + std::to_string(tour));
        std::filesystem::copy_file(base.Chemin(), copie);
        const pid_t enfant = ::fork();
        if (enfant == 0) AjouteSansFin(copie, tube[1]);
        ::close(tube[1]);
        dernier = -1;
        // Killed some rows on, each time at another moment of a row.
        while (dernier < 2 + tour && ::read(tube[0], &dernier, sizeof dernier) == sizeof dernier) {
        }
        ::usleep(static_cast<useconds_t>(373 * tour));
        ::kill(enfant, SIGKILL);
        ::waitpid(enfant, nullptr, 0);
        for (int i; ::read(tube[0], &i, sizeof i) == sizeof i;) dernier = i;
        ::close(tube[0]);

        LaBase = BaseDonnees::Ouvre(copie, MotDePasseBase, BaseDonnees::Usage::Lecture);
        const auto cles = ClesCatalogue(galets);
        const auto ajoutees = static_cast<int>(cles.size()) - 21;
        ASSERT_GE(ajoutees, dernier + 1) << "every row that was told is there";
        ASSERT_LE(ajoutees, dernier + 2) << "and at most the one being stored";
        for (int i = 0; i < ajoutees; ++i) {
            const auto ligne = ChercheLigne(galets, "K" + std::to_string(i));
            ASSERT_TRUE(ligne);
            EXPECT_EQ(ligne->at("DiametreGalet"), i + 0.5);
            EXPECT_EQ(ligne->at("HauteurGalet"), 1.0 + i);
        }
        LaBase = {};
    }
}
