#include "cams/Courbure.h"

#include "core/Etude.h"
#include "data/Textes.h"
#include "platform/Dialogues.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace {

double PuissanceTroisDemis(double x) {
    return x * std::sqrt(x);
}

/// Radius of curvature of a curve given by its first and second differences; 0 where it is straight.
double RayonDeCourbure(double x1, double y1, double x2, double y2) {
    const double numerateur = y2 * x1 - x2 * y1;
    return numerateur == 0.0 ? 0.0 : PuissanceTroisDemis(y1 * y1 + x1 * x1) / numerateur;
}

/// Radius of curvature of the pitch curve, in polar coordinates, or on the developed cam where the motion is a height.
double RayonCourburePrimitif(const Point& point, const PointProfil& profil, bool developpee) {
    const double R = point.Rayon, R1 = profil.DeriveeRayon, R2 = profil.Derivee2Rayon;
    const double numerateur = developpee ? R2 : R * R + 2.0 * R1 * R1 - R2 * R;
    if (numerateur == 0.0) return 0.0;
    return PuissanceTroisDemis((developpee ? 1.0 : R * R) + R1 * R1) / numerateur;
}

void CalculeRayonsCourbure() {
    const bool developpee = etude.resultats.Developpee;
    const long N = etude.resultats.NombrePoints, p = etude.donnees.PointsParDegre;
    etude.resultats.RayonCourbureMin = 1e99;
    for (long i = 0; i < N; i += p) {
        const double rho = RayonCourburePrimitif(etude.resultats.Points[i], etude.resultats.Profil[i], developpee);
        etude.resultats.Profil[i].RayonCourbure = rho;
        if (rho != 0.0 && std::abs(rho) < etude.resultats.RayonCourbureMin)
            etude.resultats.RayonCourbureMin = std::abs(rho);
    }
    for (long i = 0; i <= N && etude.resultats.ProfilExterieur; i += p) {
        PointProfil& c = etude.resultats.Profil[i];
        c.RayonCourbureExterieur = RayonDeCourbure(c.XExterieur1, c.YExterieur1, c.XExterieur2, c.YExterieur2);
    }
    for (long i = 0; i <= N; ++i) {
        PointProfil& c = etude.resultats.Profil[i];
        c.RayonCourbureInterieur = RayonDeCourbure(c.XInterieur1, c.YInterieur1, c.XInterieur2, c.YInterieur2);
    }
}

/// An offset curve that is straight keeps the radius 0 and counts as too small: kept on purpose.
bool TropPetit(double rayonCourbure) {
    return std::abs(rayonCourbure) < etude.donnees.RayonGalet;
}

/// A point where the roller cannot follow, and the text number of why.
struct FauteCourbure {
    long point;
    int texte;
};
constexpr int FautePrimitif = 631, FauteInterieur = 632, FauteExterieur = 633;

/// One point a degree, by the radii that stand in the table.
std::vector<FauteCourbure> ChercheFautes() {
    std::vector<FauteCourbure> fautes;
    for (long i = 0; i <= etude.resultats.NombrePoints; i += etude.donnees.PointsParDegre) {
        const PointProfil& c = etude.resultats.Profil[i];
        if (c.RayonCourbure < 0.0) {
            if (TropPetit(c.RayonCourbureInterieur)) fautes.push_back({i, FauteInterieur});
            if (etude.resultats.ProfilExterieur && TropPetit(c.RayonCourbureExterieur))
                fautes.push_back({i, FauteExterieur});
        } else if (c.RayonCourbure > 0.0 && TropPetit(c.RayonCourbure)) {
            fautes.push_back({i, FautePrimitif});
        }
    }
    return fautes;
}

/// The faults of the outer profile do not count.
long NombreCompte(std::span<const FauteCourbure> fautes) {
    return std::count_if(fautes.begin(), fautes.end(), [](const auto& f) { return f.texte != FauteExterieur; });
}

/// One single point is tolerated.
bool Tolerees(std::span<const FauteCourbure> fautes) {
    return NombreCompte(fautes) <= 1;
}

/// A line a fault, those of the outer profile behind the others.
std::string ListeFautes(std::span<const FauteCourbure> fautes) {
    std::string listes[2];
    for (const auto& faute : fautes)
        listes[faute.texte == FauteExterieur ? 1 : 0] +=
            Texte(439) + " : " + std::to_string(faute.point) + " => " + Texte(faute.texte) + "\n";
    return listes[0] + listes[1];
}

/// The cam angles of the faults that `choisie` takes, neighbours put together.
template <class Choisie> std::vector<PlageAngles> Plages(Choisie choisie) {
    std::vector<PlageAngles> plages;
    if (etude.resultats.Profil.Vide() || etude.donnees.PointsParDegre <= 0) return plages;
    const std::vector<FauteCourbure> fautes = ChercheFautes();
    if (Tolerees(fautes)) return plages;
    for (const auto& faute : fautes) {
        if (!choisie(faute)) continue;
        const int angle = static_cast<int>(faute.point / etude.donnees.PointsParDegre);
        if (!plages.empty() && angle <= plages.back().fin + 1)
            plages.back().fin = angle;
        else
            plages.push_back({angle, angle});
    }
    return plages;
}

} // namespace

void ControleCourbure() {
    CalculeRayonsCourbure();
    const std::vector<FauteCourbure> fautes = ChercheFautes();
    if (Tolerees(fautes)) return;
    LesDialogues().Message(Icone::Critique, "\n" + Texte(126) + " " + std::to_string(NombreCompte(fautes)) + " " +
                                                Texte(428) + "\n\n" + Texte(429) + ListeFautes(fautes));
}

std::vector<PlageAngles> PlagesTropCourbees() {
    return Plages([](const FauteCourbure&) { return true; });
}

std::vector<std::span<const PointDessin>> PartiesTropCourbees(std::span<const PointDessin> interieur,
                                                              std::span<const PointDessin> exterieur, long premier) {
    std::vector<std::span<const PointDessin>> parties;
    const auto ajoute = [&](std::span<const PointDessin> courbe, const PlageAngles& plage) {
        // Half a degree more at either end, so that a single angle is seen.
        const long p = etude.donnees.PointsParDegre, demi = (p + 1) / 2;
        const long de = std::max(plage.debut * p - demi - premier, 0L);
        const long a = std::min(plage.fin * p + demi - premier, static_cast<long>(courbe.size()) - 1);
        if (de < a)
            parties.push_back(courbe.subspan(static_cast<std::size_t>(de), static_cast<std::size_t>(a - de) + 1));
    };
    // A hollow of the pitch curve of a developed cam narrows its upper flank; a bulge of a plane cam its inner profile.
    const auto exterieure = [](const FauteCourbure& f) {
        return f.texte == FauteExterieur || (f.texte == FautePrimitif && etude.resultats.Developpee);
    };
    for (const PlageAngles& plage : Plages(exterieure)) ajoute(exterieur, plage);
    for (const PlageAngles& plage : Plages([&](const auto& f) { return !exterieure(f); })) ajoute(interieur, plage);
    return parties;
}
