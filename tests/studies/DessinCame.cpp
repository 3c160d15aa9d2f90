// The drawing of a plane cam as it turns.
#include "studies/DessinCame.h"

#include "outils/Catalogue.h"
#include "outils/ImprimanteNotee.h"
#include "studies/FichierEtude.h"

namespace {

class DessinCames : public AvecCatalogue {
protected:
    ImprimanteNotee imprimante;

    /// The first stroke of that colour; a circle is its diameter.
    const std::vector<PointDessin>& Trace(Couleur couleur) const {
        const auto& traces = imprimante.pages.back().traces;
        return std::find_if(traces.begin(), traces.end(), [&](const auto& t) { return t.couleur == couleur; })->points;
    }
};

} // namespace

TEST_F(DessinCames, TheRollerRidesOnThePitchCurveAtEveryAngle) {
    for (const char* exemple : {"Exemple.Ang", "Translation.Lin"}) {
        ASSERT_TRUE(LitFichierEtude(CheminAppli / NomDossierEtudes / exemple));
        CalculeEtude();
        for (const int angle : {0, 37, 200, 359}) {
            imprimante = ImprimanteNotee();
            DessineCamePlate(*imprimante.Feuille({0, 0}, 600, 400), angle);
            const auto& galet = Trace(Couleur::Galet);
            const PointDessin primitif =
                Trace(Couleur::Primitif).at(static_cast<std::size_t>(angle * etude.donnees.PointsParDegre));
            EXPECT_NEAR((galet.front().x + galet.back().x) / 2, primitif.x, 1e-6) << exemple << angle;
            EXPECT_NEAR(galet.front().y, primitif.y, 1e-6) << exemple << angle;
        }
    }
}
