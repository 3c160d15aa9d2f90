// Records that are changed, fields that are appended and deleted.
#include "data/BaseDonnees.h"

#include "core/ErreurExecution.h"
#include "data/Demarrage.h"
#include "outils/DossierTemporaire.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

class Base : public testing::Test {
protected:
    DossierTemporaire dossier_;
    BaseDonnees base_ = BaseDonnees::Cree(dossier_ / NomBase, MotDePasseBase);

    Base() {
        base_.CreeTable("Galets", {{"Note"}, {"Ref"}, {"D", true}}, "Ref");
        JeuEnregistrements jeu = base_.OuvreTable("Galets");
        for (const char* ref : {"b", "a", "c"}) {
            jeu.AddNew();
            jeu.Ecrit("Ref", std::string(ref));
            jeu.Ecrit("D", 1.5);
            jeu.Update();
        }
    }
    /// The whole table as it is on the disk: names, then the records.
    std::string Contenu(BaseDonnees::Usage usage = BaseDonnees::Usage::Exclusif) {
        base_ = {};
        base_ = BaseDonnees::Ouvre(dossier_ / NomBase, MotDePasseBase, usage);
        JeuEnregistrements jeu = base_.OuvreTable("Galets");
        std::string contenu;
        for (long c = 0; c < jeu.NombreChamps(); ++c) contenu += jeu.NomChamp(c) + " ";
        for (; !jeu.FinFichier(); jeu.VaAuSuivant(), contenu += "|")
            for (long c = 0; c < jeu.NombreChamps(); ++c)
                contenu += (EstNul(jeu.Champ(c)) ? "-" : EnTexte(jeu.Champ(c))) + " ";
        return contenu;
    }
    void Refuse(NumeroErreur numero, const std::function<void()>& fait) {
        try {
            fait();
            ADD_FAILURE() << "accepted";
        } catch (const ErreurExecution& erreur) {
            EXPECT_EQ(erreur.numero, numero);
        }
    }
};

} // namespace

TEST_F(Base, EditChangesThePresentRecordAndNoOther) {
    JeuEnregistrements jeu = base_.OuvreTable("Galets");
    jeu.Seek(std::string("a"));
    jeu.Edit();
    jeu.Ecrit("Note", std::string("un \"côté\""));
    jeu.Ecrit("D", Valeur{});
    jeu.Ecrit("Ref", std::string("aa"));
    EXPECT_EQ(EnTexte(jeu.Champ("Ref")), "a") << "nothing before Update";
    jeu.Update();
    jeu.Seek(std::string("aa"));
    EXPECT_FALSE(jeu.NoMatch());
    Refuse(NumeroErreur::AppelIncorrect, [&] { jeu.Ecrit("D", 2.0); });
    EXPECT_EQ(Contenu(), "Note Ref D - b 1.5 |un \"côté\" aa - |- c 1.5 |");
}

TEST_F(Base, AFieldComesEmptyAndGoesWithItsValuesAlone) {
    base_.AjouteChamp("Galets", {"Été \"x\"", false, 60});
    base_.SupprimeChamp("Galets", "Note");
    const std::string avant = "Ref D Été \"x\" b 1.5 - |a 1.5 - |c 1.5 - |";
    EXPECT_EQ(Contenu(), avant);
    JeuEnregistrements jeu = base_.OuvreTable("Galets");
    jeu.Seek(std::string("c"));
    EXPECT_EQ(EnNombre(jeu.Champ("D")), 1.5) << "found by its index, and a number still";
    jeu.AddNew();
    jeu.Ecrit("Ref", std::string("a"));
    Refuse(NumeroErreur::AccesFichier, [&] { jeu.Update(); });
    Refuse(NumeroErreur::AccesFichier, [&] { base_.AjouteChamp("Galets", {"rEF"}); });
    Refuse(NumeroErreur::AccesFichier, [&] { base_.SupprimeChamp("Galets", "Ref"); });
    Refuse(NumeroErreur::IndiceHorsLimites, [&] { base_.SupprimeChamp("Galets", "Note"); });
    EXPECT_EQ(Contenu(BaseDonnees::Usage::Lecture), avant);
    Refuse(NumeroErreur::AccesFichier, [&] { base_.SupprimeChamp("Galets", "D"); });
}
