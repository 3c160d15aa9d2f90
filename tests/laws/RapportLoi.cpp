#include "laws/RapportLoi.h"

#include "data/Textes.h"
#include "outils/Catalogue.h"
#include "outils/ImprimanteNotee.h"

namespace {

class RapportsLois : public AvecCatalogue {
protected:
    /// Prints a study of so many degrees, one point each.
    static ImprimanteNotee Imprime(double angle, const char* ecran = "LoiHes", double fin = 30) {
        etude.donnees.PointsParDegre = 1;
        etude.donnees.AngleIndexage = angle;
        etude.donnees.ValeurFin = fin;
        etude.donnees.VitesseEntree = 60;
        const EtudeLoi& loi = *TrouveEtudeLoi(ecran);
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
    for (const double angle : {20.0, 54.0, 55.0, 56.0, 117.0, 360.0}) {
        const ImprimanteNotee imprimante = Imprime(angle);
        ASSERT_TRUE(imprimante.fini);
        std::size_t points = 0;
        for (std::size_t p = 1; p < imprimante.pages.size(); ++p) points += LignesDePoints(imprimante.pages[p]);
        EXPECT_EQ(points, static_cast<std::size_t>(angle) + 1);
        const std::string total = std::to_string(imprimante.pages.size() - 1);
        const auto textes = imprimante.pages.back().Textes();
        EXPECT_NE(textes.back().find(Texte(413) + total + " / " + total), std::string::npos)
            << angle << ": " << textes.back();
        EXPECT_EQ(imprimante.pages[1].Textes().front().find("Hesser"), std::string::npos);
        EXPECT_NE(imprimante.pages[1].Textes()[1].find("Hesser"), std::string::npos);
    }
}

TEST_F(RapportsLois, GraphsStandBelowTheDataWithTheirExtremesMarked) {
    const ImprimanteNotee imprimante = Imprime(90);
    const auto& page = imprimante.pages.front();
    const double bas = 4.0 * static_cast<double>(page.lignes.size() - 1);
    for (const auto& trace : page.traces)
        for (const PointDessin& p : trace.points) {
            EXPECT_GE(p.x, 0);
            EXPECT_LE(p.x, imprimante.largeur);
            EXPECT_GE(p.y, bas - 8);
            EXPECT_LE(p.y, imprimante.hauteur);
        }
    const auto a = [&](const std::string& texte) {
        return std::any_of(page.etiquettes.begin(), page.etiquettes.end(),
                           [&](const auto& e) { return e.texte.starts_with(texte); });
    };
    EXPECT_TRUE(a("30.00  (90°)"));
    // Half way the speed is Cv h / T, 30 mm in a quarter of a second.
    EXPECT_TRUE(a(Format(1.577761 * 0.030 / 0.25, "0.0000") + "  (45°)"));
    const auto textes = page.Textes();
    EXPECT_TRUE(std::any_of(textes.begin(), textes.end(),
                            [](const std::string& t) { return t.find("158.3195") != std::string::npos; }));
}

TEST_F(RapportsLois, AxesStayReadableWhereverTheStrokeLies) {
    const struct {
        double depart, fin;
        const char* marque;
    } courses[] = {{1000, 1010, "1010  "}, {100, 20, "20.00  "}, {-5, 0.004, "0.004000  "}};
    for (const auto& c : courses) {
        etude = Etude{};
        ChargeLois();
        etude.lois.LoiChoisie = "CYC";
        etude.donnees.ValeurDepart = c.depart;
        const auto etiquettes = Imprime(90, "LoiMouv", c.fin).pages.front().etiquettes;
        EXPECT_LE(etiquettes.size(), 40U) << c.fin;
        EXPECT_GE(etiquettes.size(), 20U) << c.fin;
        const auto a = [&](const char* texte) {
            return std::ranges::any_of(etiquettes, [&](const auto& e) { return e.texte.starts_with(texte); });
        };
        EXPECT_TRUE(a(c.marque)) << c.fin;
        EXPECT_FALSE(a("0.000000  ")) << "no zero is an extreme";
    }
}
