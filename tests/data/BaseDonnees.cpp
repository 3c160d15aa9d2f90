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
    std::filesystem::path chemin_ = dossier_ / NomBase;
    BaseDonnees base_;

    Base() {
        BaseDonnees nouvelle = BaseDonnees::Cree(chemin_, MotDePasseBase);
        nouvelle.CreeTable("Galets", {{"Note"}, {"Ref"}, {"D", true}}, "Ref");
        JeuEnregistrements jeu = nouvelle.OuvreTable("Galets");
        for (const char* ref : {"b", "a", "c"}) {
            jeu.AddNew();
            jeu.Ecrit("Ref", std::string(ref));
            jeu.Ecrit("D", 1.5);
            jeu.Update();
        }
        nouvelle.Ferme();
        Ouvre(BaseDonnees::Usage::Exclusif);
    }
    void Ouvre(BaseDonnees::Usage usage) {
        base_ = {};
        base_ = BaseDonnees::Ouvre(chemin_, MotDePasseBase, usage);
    }
    /// The whole table as it is on the disk: names, then a line a record.
    std::string Contenu() {
        Ouvre(BaseDonnees::Usage::Exclusif);
        JeuEnregistrements jeu = base_.OuvreTable("Galets");
        std::string contenu;
        for (long c = 0; c < jeu.NombreChamps(); ++c) contenu += jeu.NomChamp(c) + " ";
        for (; !jeu.FinFichier(); jeu.VaAuSuivant()) {
            contenu += "|";
            for (long c = 0; c < jeu.NombreChamps(); ++c)
                contenu += (EstNul(jeu.Champ(c)) ? "-" : EnTexte(jeu.Champ(c))) + " ";
        }
        return contenu;
    }
    static NumeroErreur Faute(const std::function<void()>& fait) {
        try {
            fait();
        } catch (const ErreurExecution& erreur) {
            return erreur.numero;
        }
        return {};
    }
};

} // namespace

TEST_F(Base, EditChangesThePresentRecordAndNoOther) {
    JeuEnregistrements jeu = base_.OuvreTable("Galets");
    jeu.Seek(std::string("a"));
    jeu.Edit();
    jeu.Ecrit("Note", std::string("usé d'un \"côté\""));
    jeu.Ecrit("Ref", std::string("aa"));
    EXPECT_EQ(EnTexte(jeu.Champ("Ref")), "a") << "nothing before Update";
    jeu.Update();
    EXPECT_EQ(EnTexte(jeu.Champ("Ref")), "aa");
    jeu.Seek(std::string("a"));
    EXPECT_TRUE(jeu.NoMatch());
    jeu.Seek(std::string("aa"));
    ASSERT_FALSE(jeu.NoMatch());
    jeu.Edit();
    jeu.Ecrit("D", Valeur{});
    jeu.Update();
    EXPECT_EQ(Contenu(), "Note Ref D |- b 1.5 |usé d'un \"côté\" aa - |- c 1.5 ");

    JeuEnregistrements autre = base_.OuvreTable("Galets");
    autre.Edit();
    autre.Ecrit("Ref", std::string("c"));
    EXPECT_EQ(Faute([&] { autre.Update(); }), NumeroErreur::AccesFichier) << "the key of another one";
    autre.Ecrit("Ref", std::string("d"));
    autre.Update();
    EXPECT_EQ(Faute([&] { autre.Update(); }), NumeroErreur::AppelIncorrect);
    EXPECT_EQ(Faute([&] { autre.Ecrit("D", 2.0); }), NumeroErreur::AppelIncorrect);
    while (!autre.FinFichier()) autre.VaAuSuivant();
    EXPECT_EQ(Faute([&] { autre.Edit(); }), NumeroErreur::IndiceHorsLimites);
    EXPECT_EQ(Contenu(), "Note Ref D |- d 1.5 |usé d'un \"côté\" aa - |- c 1.5 ");
}

TEST_F(Base, AFieldComesEmptyAndGoesWithItsValuesAlone) {
    base_.AjouteChamp("Galets", {"Été \"x\"", false, 60});
    JeuEnregistrements jeu = base_.OuvreTable("Galets");
    jeu.Edit();
    jeu.Ecrit("Été \"x\"", std::string("oui"));
    jeu.Update();
    EXPECT_EQ(Contenu(), "Note Ref D Été \"x\" |- b 1.5 oui |- a 1.5 - |- c 1.5 - ");
    base_.SupprimeChamp("Galets", "Note");
    EXPECT_EQ(Contenu(), "Ref D Été \"x\" |b 1.5 oui |a 1.5 - |c 1.5 - ");
    base_.SupprimeChamp("Galets", "Été \"x\"");
    EXPECT_EQ(Contenu(), "Ref D |b 1.5 |a 1.5 |c 1.5 ");
    // The index is that of before: it finds, and keeps a key from standing twice. Numbers are numbers still.
    jeu = base_.OuvreTable("Galets");
    jeu.Seek(std::string("c"));
    EXPECT_EQ(EnNombre(jeu.Champ("D")), 1.5);
    jeu.AddNew();
    jeu.Ecrit("Ref", std::string("a"));
    EXPECT_EQ(Faute([&] { jeu.Update(); }), NumeroErreur::AccesFichier);
}

TEST_F(Base, FieldsThatCannotBeAreRefusedAndNothingChanges) {
    const std::string avant = Contenu();
    EXPECT_EQ(Faute([&] { base_.AjouteChamp("Galets", {"nOTE"}); }), NumeroErreur::AccesFichier);
    EXPECT_EQ(Faute([&] { base_.SupprimeChamp("Galets", "Ref"); }), NumeroErreur::AccesFichier) << "its index";
    EXPECT_EQ(Faute([&] { base_.SupprimeChamp("Galets", "note"); }), NumeroErreur::IndiceHorsLimites);
    Ouvre(BaseDonnees::Usage::Lecture);
    EXPECT_EQ(Faute([&] { base_.AjouteChamp("Galets", {"Neuf"}); }), NumeroErreur::AccesFichier);
    EXPECT_EQ(Faute([&] { base_.SupprimeChamp("Galets", "Note"); }), NumeroErreur::AccesFichier);
    EXPECT_EQ(Contenu(), avant);
    {
        const Transaction transaction(base_);
        JeuEnregistrements jeu = base_.OuvreTable("Galets");
        jeu.Edit();
        jeu.Ecrit("D", 9.0);
        jeu.Update();
        base_.AjouteChamp("Galets", {"Neuf"});
    }
    EXPECT_EQ(Contenu(), avant) << "a transaction that was not validated";
}
