#include "conjugate/GraphesConjugue.h"

#include "conjugate/ExempleConjugue.h"
#include "conjugate/ImpressionConjugue.h"
#include "outils/Catalogue.h"
#include "outils/ImprimanteNotee.h"

#include <algorithm>
#include <cmath>

namespace {

class GraphesConjugues : public AvecCatalogue {
protected:
    SaisieConjugue saisie = ExempleConjugue();
    ResultatConjugue r;

    std::vector<Graphe> Trace() {
        CalculeIndexeurConjugue(saisie, r);
        return GraphesConjugue(r);
    }

    /// The value of a curve at x, between its points.
    static double Valeur(const CourbeGraphe& courbe, double x) {
        const auto apres = std::find_if(courbe.points.begin() + 1, courbe.points.end(),
                                        [&](const PointDessin& p) { return p.x >= x; });
        const PointDessin a = *(apres - 1), b = *apres;
        return a.y + (b.y - a.y) * (x - a.x) / (b.x - a.x);
    }

    static void VerifieDansLeCadre(const Graphe& graphe) {
        for (const auto& courbe : graphe.courbes)
            for (const PointDessin& p : courbe.points) {
                ASSERT_GE(p.x, graphe.horizontal.mini);
                ASSERT_LE(p.x, graphe.horizontal.maxi);
                ASSERT_GE(p.y, graphe.verticaux[0].mini) << courbe.nom;
                ASSERT_LE(p.y, graphe.verticaux[0].maxi) << courbe.nom;
            }
    }
};

} // namespace

TEST_F(GraphesConjugues, CurvesPassThroughTheFiguresOfTheReport) {
    for (const char* loi : {"MS", "MT"}) {
        saisie.Loi = loi;
        const auto graphes = Trace();
        ASSERT_EQ(graphes.size(), 3U);
        for (const Graphe& graphe : graphes) VerifieDansLeCadre(graphe);
        const CapaciteConjugue& c = *r.capacite;
        EXPECT_NEAR(Valeur(graphes[0].courbes[0], c.Tx), c.premier.contact.PA, 1e-9);
        EXPECT_EQ(graphes[0].limites[0].valeur, c.PA0);
        double mini = 1e9;
        for (const PointDessin& p : graphes[1].courbes[0].points) mini = std::min(mini, p.y);
        EXPECT_EQ(mini, r.courbures->RayonMini);
        EXPECT_NEAR(graphes[1].limites[0].valeur, 13.127, 1e-12) << "roller and cutter";
        for (const LigneVitesse& ligne : r.tableau) {
            EXPECT_NEAR(Valeur(graphes[2].courbes[0], ligne.Ipm), ligne.DynB10, 0.01 * ligne.DynB10);
            EXPECT_NEAR(Valeur(graphes[2].courbes[2], ligne.Ipm), ligne.Catalogue - ligne.Propre, 1);
        }
        EXPECT_EQ(graphes[2].limites[0].valeur, c.premier.C60);
    }
}

TEST_F(GraphesConjugues, ShowWhereItStops) {
    saisie.VitesseGraisse = 500;
    const auto vite = Trace();
    ASSERT_EQ(vite.size(), 3U);
    const CourbeGraphe& limite = vite[2].courbes.back();
    EXPECT_NEAR(limite.points[0].x * r.repos->SR / 2, 650, 1e-9) << "eight stops: the shaft turns half as fast";
    EXPECT_EQ(limite.points[0].x, limite.points[1].x);

    saisie.D = 110;
    const auto surusine = Trace();
    ASSERT_EQ(surusine.size(), 2U) << "no capacity of a cam that cannot be cut";
    EXPECT_LE(surusine[1].courbes[0].points.back().y, surusine[1].limites[0].valeur);
    VerifieDansLeCadre(surusine[1]);
}

TEST_F(GraphesConjugues, ReportIsPrintedAsItStandsWithItsNotesBelow) {
    const auto graphes = Trace();
    ImprimanteNotee imprimante;
    ImprimeConjugue(imprimante, r);
    EXPECT_EQ(imprimante.police, "Courier New");
    EXPECT_TRUE(imprimante.fini);
    ASSERT_EQ(imprimante.pages.size(), 3U);
    std::vector<std::string> imprimees;
    for (const auto& page : imprimante.pages)
        for (const auto& ligne : page.Textes()) {
            EXPECT_LE(NombreCaracteres(ligne), 78) << ligne;
            imprimees.push_back(ligne);
        }
    EXPECT_TRUE(std::equal(r.lignes.begin(), r.lignes.end(), imprimees.begin()));
    std::string dessous;
    for (std::size_t i = r.lignes.size(); i < imprimees.size(); ++i) dessous += imprimees[i] + " ";
    for (const std::string& note : {r.notes.front(), r.notes[1]})
        EXPECT_NE(dessous.find(note), std::string::npos) << note;
    const auto& dessins = imprimante.pages.back();
    for (const Graphe& graphe : graphes)
        EXPECT_TRUE(std::any_of(dessins.etiquettes.begin(), dessins.etiquettes.end(),
                                [&](const auto& e) { return e.texte == graphe.titre; }));
}
