// What keeps a globoidal cam from being calculated: the checks in their order, the first fault stops them.
#include "globoidal/CapaciteIndexeur.h"
#include "globoidal/CapaciteOscillateur.h"

#include "data/Textes.h"
#include "globoidal/LoisGlobiques.h"
#include "globoidal/TextesGlobiques.h"

#include <cmath>
#include <utility>

namespace {

constexpr double GaletsMinIndexeur = 5, GaletsMinOscillateur = 2;
constexpr double AngleSortieMax = 180, AngleTour = 360, AngleFlancMax = 68;
constexpr double SymetrieMin = 0.1, SymetrieMax = 0.9;
constexpr double ArrondiTour = 1e-9;

using Faute = std::optional<FauteSaisie>;

FauteSaisie Signale(const char* champ, int texte, int suite = 0) {
    return {champ, Texte(texte) + (suite == 0 ? "" : " " + Texte(suite))};
}

Faute TourelleTropGrande(const MecanismeGlobique& d) {
    if (d.RayonTourelle / 2.0 > d.Entraxe) return Signale("Entraxe", 535, 536);
    return {};
}

Faute GaletsInsuffisants(const MecanismeGlobique& d, double minimum, int texte) {
    if (Int(d.NombreGalets) != d.NombreGalets || d.NombreGalets < minimum) return Signale("NombreGalets", texte);
    return {};
}

Faute BoitierNul(const MecanismeGlobique& d) {
    if (d.RayonTourelle * d.Entraxe != 0.0) return {};
    return d.Entraxe == 0.0 ? Signale("Entraxe", 547) : Signale("RayonTourelle", 548);
}

Faute LoiAbsente(const std::string& nomLoi, const char* champ) {
    if (Trim(nomLoi).empty()) return Signale(champ, 538);
    return {};
}

Faute SymetrieHorsLimites(double symetrie, const char* champ) {
    if (symetrie < SymetrieMin || symetrie > SymetrieMax) return Signale(champ, 512, 513);
    return {};
}

/// The first fault of a row of checks.
template <class... Controles> Faute Premiere(const Controles&... controles) {
    Faute faute;
    (void)((faute = controles()).has_value() || ...);
    return faute;
}

/// Angles of the output and of the rollers: whole degrees for the calculation, and for its checks.
Faute AngleHorsLimites(double angle, const char* champ, int texte) {
    const double entier = Arrondi(angle);
    if (!(entier > 0.0) || entier > AngleSortieMax) return Signale(champ, texte);
    return {};
}

Faute TourOuvert(const DonneesOscillateur& d) {
    const double tour = d.AngleZoneA + d.AngleZoneB + d.AngleZoneC + d.AngleZoneD;
    if (!LoiParFichier(d) && !(std::abs(tour - AngleTour) <= ArrondiTour)) return Signale("AngleZoneA", 573);
    return {};
}

/// Sizes that the checks in their order let through, and that no cam can be made with.
Faute MecanismeImpossible(const MecanismeGlobique& d) {
    const struct {
        const char* champ;
        double valeur;
        int texte;
    } grandeurs[] = {{"Entraxe", d.Entraxe, 547},
                     {"RayonTourelle", d.RayonTourelle, 548},
                     {"DiametreGalet", d.DiametreGalet, 542},
                     {"HauteurGalet", d.HauteurGalet, 543}};
    for (const auto& g : grandeurs)
        if (NulOuNegatif(g.valeur)) return Signale(g.champ, g.texte);
    return {};
}

Faute IndexeurImpossible(const DonneesIndexeur& d) {
    if (auto faute = MecanismeImpossible(d)) return faute;
    if (NulOuNegatif(d.NombreStops)) return Signale("NombreStops", 681);
    if (NulOuNegatif(d.AngleIndexage)) return Signale("AngleIndexage", 623);
    return {};
}

/// A motion takes some angle; a dwell may take none.
Faute OscillateurImpossible(const DonneesOscillateur& d) {
    if (auto faute = MecanismeImpossible(d)) return faute;
    if (LoiParFichier(d)) return {};
    for (const auto& [champ, angle] : {std::pair{"AngleZoneA", d.AngleZoneA}, {"AngleZoneC", d.AngleZoneC}})
        if (NulOuNegatif(angle)) return Signale(champ, 196);
    for (const auto& [champ, angle] : {std::pair{"AngleZoneB", d.AngleZoneB}, {"AngleZoneD", d.AngleZoneD}})
        if (angle < 0.0) return Signale(champ, TexteValeurNegative);
    return {};
}

Faute FlancsTropOuverts(const DonneesOscillateur& d) {
    const AnglesFlancs angles = CalculeAnglesFlancs(d);
    for (const double angle : {angles.flanc1, angles.flanc2, angles.travail})
        if (angle > AngleFlancMax) return Signale("AngleEntreGalets", 564);
    return {};
}

} // namespace

Faute VerifiePartsLoi(double a, double b, double c, const char* champ) {
    const std::string faute = TexteFauteD(CompleteParts(a, b, c).d, PartVitesseMax);
    if (faute.empty()) return {};
    return FauteSaisie{champ, faute};
}

Faute ChercheFauteIndexeur(const DonneesIndexeur& d) {
    return Premiere(
        [&] { return TourelleTropGrande(d); },
        [&]() -> Faute {
            if (d.AngleIndexage * d.NombreGalets * d.NombreStops == 0.0) return Signale("NombreStops", 69);
            return {};
        },
        [&] { return GaletsInsuffisants(d, GaletsMinIndexeur, 537); }, //
        [&] { return BoitierNul(d); },                                 //
        [&] { return LoiAbsente(d.NomLoi, "NomLoi"); },
        [&] { return d.NomLoi == NomLoiSpe ? VerifiePartsLoi(d.CoefA, d.CoefB, d.CoefC, "CoefA") : Faute{}; },
        [&]() -> Faute {
            // The number of stops is an integer here, and must fit one; the calculation reads it as typed.
            Entier16(d.NombreStops);
            const double angle = Arrondi(d.AngleIndexage);
            if (angle < 0.0 || angle > AngleTour) return Signale("AngleIndexage", 623);
            return {};
        },
        [&] { return SymetrieHorsLimites(d.CoefSymetrie, "CoefSymetrie"); }, //
        [&] { return IndexeurImpossible(d); });
}

Faute ChercheFauteOscillateur(const DonneesOscillateur& d) {
    const bool fichier = LoiParFichier(d);
    const auto spe = [&](const std::string& nom, double a, double b, double c, const char* champ) {
        return !fichier && nom == NomLoiSpe ? VerifiePartsLoi(a, b, c, champ) : Faute{};
    };
    return Premiere([&] { return TourelleTropGrande(d); },
                    [&]() -> Faute {
                        if (d.AngleZoneA * d.NombreGalets * d.AngleSortie == 0.0) return Signale("AngleSortie", 69);
                        return {};
                    },
                    [&] { return GaletsInsuffisants(d, GaletsMinOscillateur, 567); }, //
                    [&] { return BoitierNul(d); },
                    [&] { return fichier ? Faute{} : LoiAbsente(d.LoiZoneA, "LoiZoneA"); },
                    [&] { return fichier ? Faute{} : LoiAbsente(d.LoiZoneC, "LoiZoneC"); },
                    [&] { return spe(d.LoiZoneA, d.CoefA1, d.CoefB1, d.CoefC1, "CoefA1"); },
                    [&] { return spe(d.LoiZoneC, d.CoefA2, d.CoefB2, d.CoefC2, "CoefA2"); },
                    [&] { return AngleHorsLimites(d.AngleEntreGalets, "AngleEntreGalets", 571); },
                    [&] { return AngleHorsLimites(d.AngleSortie, "AngleSortie", 572); }, //
                    [&] { return TourOuvert(d); }, [&] { return SymetrieHorsLimites(d.SymetrieA, "SymetrieA"); },
                    [&] { return SymetrieHorsLimites(d.SymetrieC, "SymetrieC"); }, //
                    [&] { return OscillateurImpossible(d); },                      //
                    [&] { return FlancsTropOuverts(d); });
}
