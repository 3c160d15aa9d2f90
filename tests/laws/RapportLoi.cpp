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

/// The lines of a page that are neither blank nor heading: those that begin with a number.
std::size_t LignesDePoints(const ImprimanteNotee::Feuillet& page) {
    std::size_t lignes = 0;
    for (const std::string& texte : page.Textes()) lignes += EstNombre(Trim(texte).substr(0, Trim(texte).find(' ')));
    return lignes;
}

} // namespace

TEST_F(RapportsLois, EveryPointIsPrintedAndThePagesAreCounted) {
    for (const double angle : {20.0, 54.0, 55.0, 56.0, 360.0}) {
        const ImprimanteNotee imprimante = Imprime(angle);
        std::size_t points = 0;
        for (std::size_t p = 1; p < imprimante.pages.size(); ++p) points += LignesDePoints(imprimante.pages[p]);
        EXPECT_EQ(points, static_cast<std::size_t>(angle) + 1);
        const std::string total = std::to_string(imprimante.pages.size() - 1);
        EXPECT_TRUE(imprimante.pages.back().Textes().back().ends_with(total + " / " + total)) << angle;
    }
}

TEST_F(RapportsLois, TheExtremesOfTheGraphsAreMarked) {
    const ImprimanteNotee imprimante = Imprime(90);
    // Half way the speed is Cv h / T, 30 mm in a quarter of a second.
    for (const std::string& texte :
         {std::string("30.00  (90°)"), Format(1.577761 * 0.030 / 0.25, "0.0000") + "  (45°)"})
        EXPECT_TRUE(std::ranges::any_of(imprimante.pages.front().etiquettes, [&](const auto& e) {
            return e.texte.starts_with(texte);
        })) << texte;
}
