#include "inertia/ImprimeInerties.h"

#include "core/Nombres.h"
#include "inertia/FichierInerties.h"
#include "outils/Catalogue.h"
#include "outils/ImprimanteNotee.h"
#include "reports/Cadrage.h"

namespace {

class RapportInerties : public AvecCatalogue {
protected:
    ImprimanteNotee papier;
    std::vector<std::string> lignes; ///< of all pages, without the blanks at both ends

    /// @param solides lines of a list file
    void Imprime(const std::string& solides) {
        const std::string enTete = "TypeSolide;Text1;Text2;MasseTotal;Text3;Text5;Text6;Text7;Text8\n";
        ImprimeInerties(papier, AnalyseInerties(enTete + solides));
        for (const auto& page : papier.pages)
            for (const std::string& ligne : page.Textes())
                if (!Trim(ligne).empty()) lignes.push_back(Trim(ligne));
        EXPECT_TRUE(papier.fini);
    }
    /// The line behind the first that begins so.
    std::string Suivante(const std::string& debut, int rang = 1) const {
        for (std::size_t i = 0; i + static_cast<std::size_t>(rang) < lignes.size(); ++i)
            if (lignes[i].starts_with(debut)) return lignes[i + static_cast<std::size_t>(rang)];
        return {};
    }
};

const std::string Plateau = "1;1;1;False;7850;;500;;20\n", Couronne = "2;2;1;False;7850;;500;120;20\n";

} // namespace

TEST_F(RapportInerties, OneSolidIsOneFigureOneTableAndItsTotals) {
    Imprime(Plateau);
    EXPECT_EQ(lignes[0].rfind("Calcul d'Inerties", 0), 0U);
    EXPECT_EQ(Suivante("Figure A"), "Qté  Ap/In  Masse D      H      Inertie");
    EXPECT_EQ(Suivante("Figure A", 2), "kg    mm     mm     kgm²");
    EXPECT_EQ(Suivante("Figure A", 3), "1    1      31.   500    20     .96");
    EXPECT_EQ(Suivante("Totaux"), "Masse                =  31.00 kg");
    EXPECT_EQ(Suivante("Totaux", 2), "Inertie              =  .96 kgm²");
    // torques of zero are not printed; the exact values come last
    EXPECT_EQ(Suivante("Totaux", 3), lignes.back());
    EXPECT_EQ(lignes.back().substr(0, 17), "Exact :  30.82687");
}

TEST_F(RapportInerties, SolidsOfAKindShareFigureAndTable) {
    Imprime(Couronne + Plateau + Couronne + "18;1;1;True;40;;160;6;0.25\n");
    // kind 2 stands under the heading of kind 1; the bore is said behind the row
    EXPECT_EQ(Suivante("Figure A", 3), Suivante("Figure A", 4));
    EXPECT_NE(Suivante("Figure A", 3).find("d = 120"), std::string::npos);
    EXPECT_EQ(Suivante("Figure C"), "Qté  Ap/In  M.Trans   M.Rot   f      D       Inertie");
    EXPECT_EQ(Suivante("Figure C", 3), "1    1      40        6       0.25   160     .28");
    EXPECT_EQ(Suivante("Totaux", 3), "Couple de travail    =  7.85 Nm");
}

TEST_F(RapportInerties, TheTotalsStayOnAPageThatHasRoomForThem) {
    ImprimeInerties(papier, LitInerties(VELORIN_SOURCES "/Profils/Plateau.Ine"));
    EXPECT_EQ(papier.pages.size(), 1U);
}

TEST_F(RapportInerties, ADimensionWithoutAColumnStandsBehindItsRow) {
    Imprime(Couronne + "11;1;1;True;4.5;210;62.5;40.5;30\n13;1;1;True;4.5;210;62.5;40.5;30\n1;1;1;True;2;;80;;10\n");
    const auto fin = [](const std::string& ligne) { return Trim(ligne.substr(ligne.rfind("  ", ligne.find(" = ")))); };
    EXPECT_EQ(fin(Suivante("Figure A", 3)), "d = 120");
    EXPECT_EQ(fin(Suivante("Figure B", 3)), "d = 40.5");
    EXPECT_NE(Suivante("Figure C", 3).find("d = 40.5  H = 30"), std::string::npos) << Suivante("Figure C", 3);
    EXPECT_EQ(Suivante("Figure D", 3).find('='), std::string::npos);
}

TEST_F(RapportInerties, TheAngleThatIsNotCountedIsSaidBelowTheTotals) {
    Imprime("19;2;1.5;True;4;150;;;37.5\n");
    EXPECT_EQ(Suivante("Totaux", 3), "Couple de friction   =  7.85 Nm"); // 2 · 4 · 9.81 · 0.15 / 1.5
    EXPECT_EQ(
        Suivante("Totaux", 4) + " " + Suivante("Totaux", 5),
        "L'angle ß ne compte pas : le couple de friction est celui du bras R horizontal. Avec l'angle ß : 6.23 Nm");
    papier = {};
    lignes.clear();
    Imprime("19;2;1.5;True;4;150;;;0\n");
    EXPECT_EQ(Suivante("Totaux", 4), lignes.back());
}
