#include "laws/RapportLoi.h"

#include "data/Textes.h"
#include "outils/Catalogue.h"
#include "outils/ImprimanteNotee.h"

namespace {

class RapportsLois : public AvecCatalogue {
protected:
    /// Prints a study of so many degrees, one point each.
    static ImprimanteNotee Imprime(double angle) {
        etude.donnees.PointsParDegre = 1;
        etude.donnees.AngleIndexage = angle;
        etude.donnees.ValeurFin = 30;
        etude.donnees.VitesseEntree = 60;
        const EtudeLoi& loi = *TrouveEtudeLoi("LoiHes");
        ImprimanteNotee imprimante;
        ImprimeEtudeLoi(imprimante, {&loi, "Hesser", CalculeEtudeLoi(loi)});
        return imprimante;
    }
};

} // namespace

TEST_F(RapportsLois, TheExtremesOfTheGraphsAreMarked) {
    const ImprimanteNotee imprimante = Imprime(90);
    // Half way the speed is Cv h / T, 30 mm in a quarter of a second.
    for (const std::string& texte :
         {std::string("30.00  (90°)"), Format(1.577761 * 0.030 / 0.25, "0.0000") + "  (45°)"})
        EXPECT_TRUE(std::ranges::any_of(imprimante.pages.front().etiquettes, [&](const auto& e) {
            return e.texte.starts_with(texte);
        })) << texte;
}
