#include "conjugate/FermeturePaire.h"

#include "conjugate/DonneesPaire.h"
#include "conjugate/TextesPaire.h"
#include "core/Nombres.h"
#include "data/Textes.h"

#include <cmath>
#include <complex>

namespace {

using Place = std::complex<double>;

/// One cam of the pair with what does not change from point to point.
struct Came {
    const PasseEtude& passe;
    double directionDepart;

    explicit Came(const PasseEtude& p) : passe(p), directionDepart(DirectionGalet(p, 0)) {}

    double AngleCame(long i) const { return passe.resultats.Points[i].Angle / RadDeg; }
    Place Galet(long i) const {
        const PositionGalet p = CentreGaletPaire(passe, i);
        return {p.x, p.y};
    }
    /// The point of the pitch curve, on a shaft that stands at its start.
    Place Primitif(long i) const { return std::polar(passe.resultats.Points[i].Rayon, AngleCame(i) + directionDepart); }
    /// Where the profile touches the roller, the shaft standing so that point `i` lies under it.
    Place Contact(long i) const {
        const PointProfil& p = passe.resultats.Profil[i];
        return Place(p.XInterieur, p.YInterieur) * std::polar(1.0, DirectionGalet(passe, i) - AngleCame(i));
    }
};

/// Adds a point to the last range, or begins another.
void Ajoute(std::vector<PlageCame>& plages, double angle, double pas) {
    if (!plages.empty() && angle - plages.back().fin < 1.5 * pas)
        plages.back().fin = angle;
    else
        plages.push_back({angle, angle});
}

std::string EcritPlages(const std::vector<PlageCame>& plages) {
    constexpr std::size_t affichees = 4; // more would not fit on a line of paper
    std::string texte;
    for (std::size_t i = 0; i < plages.size() && i < affichees; ++i) {
        if (i > 0) texte += ", ";
        texte += Format(plages[i].debut, "##0.0");
        if (plages[i].fin > plages[i].debut) texte += "-" + Format(plages[i].fin, "##0.0");
        texte += "°";
    }
    return plages.size() > affichees ? texte + " ..." : texte;
}

std::string EcritValeur(const ValeurCame& v) {
    return Format(v.valeur, "##0.000") + "   " + Texte(227) + " " + Format(v.angle, "##0.0") + "°";
}

} // namespace

PositionGalet CentreGaletPaire(const PasseEtude& passe, long i) {
    const double phi = passe.resultats.Points[i].AngleBras / RadDeg;
    return {passe.RayonO1P * std::cos(phi) - etude.donnees.CoteA, passe.RayonO1P * std::sin(phi) - etude.donnees.CoteB};
}

double DirectionGalet(const PasseEtude& passe, long i) {
    const PositionGalet p = CentreGaletPaire(passe, i);
    return std::atan2(p.y, p.x);
}

FermeturePaire CalculeFermeture() {
    FermeturePaire f;
    if (etude.passes.size() < 2) return f;
    const Came cames[] = {Came(etude.passes[CameGuide]), Came(etude.passes[CameSuiveuse])};
    const double galets[] = {etude.passes[CameGuide].RayonGalet, etude.passes[CameSuiveuse].RayonGalet};
    const double pas = 1.0 / etude.donnees.PointsParDegre;
    const long N = etude.passes.front().resultats.NombrePoints;
    f.entraxe = std::abs(cames[0].Galet(0) - cames[1].Galet(0));
    for (auto& jeu : f.jeux) jeu.valeur = HUGE_VAL;
    for (long i = 0; i <= N; ++i) {
        const double angle = cames[0].passe.resultats.Points[i].Angle;
        const double ecart = std::abs(cames[0].Primitif(i) - cames[1].Primitif(i)) - f.entraxe;
        f.ecarts.push_back(ecart);
        if (std::abs(ecart) > std::abs(f.ecartMax.valeur)) f.ecartMax = {ecart, angle};
        if (std::abs(ecart) > ToleranceFermeture) Ajoute(f.ouvertes, angle, pas);
        for (int c = 0; c < 2; ++c) {
            const double jeu = std::abs(cames[c].Contact(i) - cames[1 - c].Galet(i)) - galets[1 - c];
            if (jeu < f.jeux[c].valeur) f.jeux[c] = {jeu, angle};
            if (jeu < 0 && (f.heurtees.empty() || f.heurtees.back().fin < angle)) Ajoute(f.heurtees, angle, pas);
        }
    }
    return f;
}

std::vector<LigneControle> LignesFermeture() {
    const FermeturePaire f = CalculeFermeture();
    if (f.ecarts.empty()) return {};
    const std::string mm = Texte(UniteMm);
    std::vector<LigneControle> lignes = {
        {Texte(TexteEntraxeGalets), mm, Format(f.entraxe, "##0.000")},
        {Texte(TexteEcartEntraxe), mm, EcritValeur(f.ecartMax)},
        {Texte(TexteJeuGuide), mm, EcritValeur(f.jeux[CameGuide])},
        {Texte(TexteJeuSuiveuse), mm, EcritValeur(f.jeux[CameSuiveuse])},
        {Texte(TexteOuvertes), Texte(UniteDegres),
         f.ouvertes.empty() ? Texte(TexteNullePart) : EcritPlages(f.ouvertes)},
        {Texte(TexteHeurtees), Texte(UniteDegres),
         f.heurtees.empty() ? Texte(TexteNullePart) : EcritPlages(f.heurtees)},
    };
    return lignes;
}

std::vector<double> EcartsFermeture() {
    return CalculeFermeture().ecarts;
}
