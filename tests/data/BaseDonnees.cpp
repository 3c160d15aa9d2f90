// Records that are changed, fields that are appended and deleted.
#include "data/BaseDonnees.h"

#include "data/Demarrage.h"
#include "outils/DossierTemporaire.h"
#include "outils/Echec.h"

#include <gtest/gtest.h>

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
    EXPECT_EQ(EchecDe([&] { jeu.Ecrit("D", 2.0); }).numero, NumeroErreur::AppelIncorrect);
    EXPECT_EQ(Contenu(), "Note Ref D - b 1.5 |un \"côté\" aa - |- c 1.5 |");
}
