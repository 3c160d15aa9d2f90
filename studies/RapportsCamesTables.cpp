// The point-to-point tables. Their units are the same in every language.
#include "core/Etude.h"
#include "cylindrical/DonneesCyl.h"
#include "data/Textes.h"
#include "reports/TableRapport.h"
#include "studies/RapportsCames.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace {

constexpr const char* MasqueMouvement = "###.00";

struct TableRapport {
    std::string_view type; ///< `TypeCame`
    std::span<const ColonneRapport> colonnes;
};

template <double Point::*membre> double DuPoint(long i) {
    return etude.resultats.Points[i].*membre;
}
template <double PointLoi::*membre> double DuMouvement(long i) {
    return etude.resultats.Mouvement[i].*membre;
}

constexpr int Angle = 706, Rayon = 247, Vitesse = 790, Accel = 707, Bras = 217, Force = 251, Couple = 252;

constexpr ColonneRapport colonneAngle{Angle, "", DuPoint<&Point::Angle>, MasqueMouvement, 6};
constexpr ColonneRapport colonneRayon{Rayon, "mm", DuPoint<&Point::Rayon>, MasqueMouvement, 7};
constexpr ColonneRapport colonneVitesse{Vitesse, "m/sec", DuPoint<&Point::VitesseRayon>, MasqueMouvement, 9};
constexpr ColonneRapport colonneAccel{Accel, "m/sec²", DuPoint<&Point::AccelRayon>, MasqueMouvement, 9};

constexpr ColonneRapport colonnesAngulaire[] = {
    colonneAngle,
    colonneRayon,
    colonneVitesse,
    colonneAccel,
    {Bras, "", DuMouvement<&PointLoi::Course>, MasqueMouvement, 8},
    {Vitesse, "rad/sec", DuMouvement<&PointLoi::Vitesse>, MasqueMouvement, 8},
    {Accel, "rad/sec²", DuMouvement<&PointLoi::Accel>, MasqueMouvement, 10},
};
constexpr ColonneRapport colonnesLineaire[] = {
    colonneAngle,
    colonneRayon,
    {Vitesse, "m/sec", DuPoint<&Point::VitesseRayon>, MasqueMouvement, 11},
    {Accel, "m/sec²", DuPoint<&Point::AccelRayon>, MasqueMouvement, 11},
};
constexpr ColonneRapport colonneHauteur{TexteHauteurCourte, "mm", DuPoint<&Point::Rayon>, MasqueMouvement, 7};
constexpr ColonneRapport colonnesCylindrique[] = {colonneAngle, colonneHauteur, colonneVitesse, colonneAccel};
// Kept on purpose: the heading names the arm, the rows end before it.
constexpr ColonneRapport colonnesOscillation[] = {
    colonneAngle,
    colonneHauteur,
    colonneVitesse,
    colonneAccel,
    {Bras, "", nullptr, "", 8},
    {Vitesse, "rad/sec", nullptr, "", 8},
    {Accel, "rad/sec²", nullptr, "", 10},
};
constexpr ColonneRapport colonnesForces[] = {
    colonneAngle,
    {Force, "N", DuPoint<&Point::ForceGalet>, "#####.00", 10},
    {Couple, "Nm", DuPoint<&Point::Couple>, "####.00", 11},
};

constexpr TableRapport tablesMouvement[] = {
    {"Angulaire", colonnesAngulaire},
    {"Lineaire", colonnesLineaire},
    {"Cylindrique", colonnesCylindrique},
    {"Oscillation", colonnesOscillation},
};

const TableRapport& TableMouvement() {
    const auto table = std::find_if(std::begin(tablesMouvement), std::end(tablesMouvement),
                                    [](const TableRapport& t) { return t.type == etude.donnees.TypeCame; });
    if (table == std::end(tablesMouvement)) throw ErreurExecution(NumeroErreur::AppelIncorrect, etude.donnees.TypeCame);
    return *table;
}

/// Kept on purpose: a plain truncation, so that the last page may bear a number above the total.
std::int16_t PagesAnnoncees() {
    return Entier16(Int((etude.resultats.NombrePoints + 8) / 61.0));
}

} // namespace

void EnTeteMouvement() {
    ImprimeEnTete(TableMouvement().colonnes);
}

void EnTeteForces() {
    ImprimeEnTete(colonnesForces);
}

void ImprimePointsMouvement() {
    ImprimeTable(TableMouvement().colonnes, EnTeteDuMouvement, etude.donnees.NomFichier, Texte(TitrePointsMouvement),
                 PagesAnnoncees());
}

void ImprimePointsForces() {
    ImprimeTable(colonnesForces, EnTeteDesForces, etude.donnees.NomFichier, Texte(TitrePointsForces), PagesAnnoncees());
}
