#include "conjugate/GraphesConjugue.h"

#include "conjugate/ExempleConjugue.h"
#include "outils/Catalogue.h"

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
};

} // namespace

TEST_F(GraphesConjugues, CurvesPassThroughTheFiguresOfTheReport) {
    for (const char* loi : {"MS", "MT"}) {
        saisie.Loi = loi;
        const auto graphes = Trace();
        ASSERT_EQ(graphes.size(), 3U);
        for (const Graphe& graphe : graphes)
            for (const auto& courbe : graphe.courbes)
                for (const PointDessin& p : courbe.points) {
                    ASSERT_TRUE(p.x >= graphe.horizontal.mini && p.x <= graphe.horizontal.maxi) << courbe.nom;
                    ASSERT_TRUE(p.y >= graphe.verticaux[0].mini && p.y <= graphe.verticaux[0].maxi) << courbe.nom;
                }
        const CapaciteConjugue& c = *r.capacite;
        EXPECT_NEAR(Valeur(graphes[0].courbes[0], c.Tx), c.premier.contact.PA, 1e-9);
        EXPECT_EQ(graphes[0].limites[0].valeur, c.PA0);
        double mini = 1e9;
        for (const PointDessin& p : graphes[1].courbes[0].points) mini = std::min(mini, p.y);
        EXPECT_EQ(mini, r.courbures->RayonMini);
        EXPECT_NEAR(graphes[1].limites[0].valeur, 13.127, 1e-12) << "roller and cutter";
        for (const CapaciteParVitesse& ligne : r.tableau) {
            EXPECT_NEAR(Valeur(graphes[2].courbes[0], ligne.Ipm), ligne.DynB10, 0.01 * ligne.DynB10);
            EXPECT_NEAR(Valeur(graphes[2].courbes[2], ligne.Ipm), ligne.Catalogue - ligne.Propre, 1);
        }
        EXPECT_EQ(graphes[2].limites[0].valeur, c.premier.C60);
    }
}

TEST_F(GraphesConjugues, AnUndercutLeavesNoCurveOfCapacities) {
    saisie.D = 110;
    const auto graphes = Trace();
    ASSERT_EQ(graphes.size(), 2U);
    EXPECT_LE(graphes[1].courbes[0].points.back().y, graphes[1].limites[0].valeur);
}
