#include "cams/ResultatsFinis.h"

#include "core/Etude.h"
#include "core/Finis.h"
#include "data/Textes.h"

#include <cmath>
#include <iterator>

namespace {

/// A member of a record and the text number of what it measures. Of several that are not finite the first is named.
template <class Fiche> struct Grandeur {
    double Fiche::*membre;
    int texte;
};

constexpr Grandeur<PointLoi> grandeursMouvement[] = {
    {&PointLoi::Course, 246}, {&PointLoi::Vitesse, 248}, {&PointLoi::Accel, 249}};

constexpr Grandeur<Point> grandeursPoint[] = {
    {&Point::Angle, 245},      {&Point::AngleBras, 246},    {&Point::Rayon, 247},      {&Point::VitesseRayon, 225},
    {&Point::AccelRayon, 226}, {&Point::XA, 262},           {&Point::YA, 263},         {&Point::VxA, 264},
    {&Point::VyA, 265},        {&Point::VA, 266},           {&Point::AxA, 271},        {&Point::AyA, 272},
    {&Point::AA, 273},         {&Point::VitesseGalet, 261}, {&Point::ForceGalet, 251}, {&Point::Couple, 252}};

constexpr Grandeur<PointProfil> grandeursProfil[] = {{&PointProfil::AngleTangent, 253},
                                                     {&PointProfil::DeriveeRayon, 247},
                                                     {&PointProfil::Derivee2Rayon, 247},
                                                     {&PointProfil::XInterieur, 259},
                                                     {&PointProfil::YInterieur, 260},
                                                     {&PointProfil::XExterieur, 257},
                                                     {&PointProfil::YExterieur, 258},
                                                     {&PointProfil::XInterieur1, 259},
                                                     {&PointProfil::XInterieur2, 259},
                                                     {&PointProfil::YInterieur1, 260},
                                                     {&PointProfil::YInterieur2, 260},
                                                     {&PointProfil::XExterieur1, 257},
                                                     {&PointProfil::XExterieur2, 257},
                                                     {&PointProfil::YExterieur1, 258},
                                                     {&PointProfil::YExterieur2, 258},
                                                     {&PointProfil::RayonCourbure, 254},
                                                     {&PointProfil::RayonCourbureInterieur, 255},
                                                     {&PointProfil::RayonCourbureExterieur, 256}};

static_assert(std::size(grandeursMouvement) == sizeof(PointLoi) / sizeof(double));
static_assert(std::size(grandeursPoint) == sizeof(Point) / sizeof(double));
static_assert(std::size(grandeursProfil) == sizeof(PointProfil) / sizeof(double));

/// What a calculation gives besides its points, but for their largest values.
constexpr struct {
    int texte;
    double (*valeur)();
} grandeursEtude[] = {
    {235, [] { return etude.resultats.InertieBras; }},     {236, [] { return etude.donnees.InertieMasseA; }},
    {234, [] { return etude.resultats.MasseCame; }},       {233, [] { return etude.resultats.InertieCame; }},
    {241, [] { return etude.resultats.CoupleDemarrage; }}, {242, [] { return etude.resultats.AngleDemarrage; }},
    {161, [] { return etude.donnees.EpaisseurCame; }},     {229, [] { return etude.resultats.VitesseGaletMoyenne; }},
};

template <class Fiche, std::size_t nombre>
void ExigeFini(const Fiche& fiche, long point, const Grandeur<Fiche> (&grandeurs)[nombre]) {
    for (const auto& grandeur : grandeurs)
        if (!std::isfinite(fiche.*grandeur.membre))
            throw ErreurExecution(NumeroErreur::ResultatNonFini,
                                  Texte(grandeur.texte) + ", " + Texte(439) + " " + std::to_string(point));
}

template <class Fiche, std::size_t nombre>
void ExigeFinie(const Tableau<Fiche>& table, const Grandeur<Fiche> (&grandeurs)[nombre]) {
    const long point = PremierNonFini(table);
    if (point >= 0) ExigeFini(table[point], point, grandeurs);
}

} // namespace

void ExigeResultatsFinis() {
    ExigeFinie(etude.resultats.Mouvement, grandeursMouvement);
    // Masses and inertias before the forces that they make.
    for (const auto& grandeur : grandeursEtude)
        if (!std::isfinite(grandeur.valeur()))
            throw ErreurExecution(NumeroErreur::ResultatNonFini, Texte(grandeur.texte));
    ExigeFinie(etude.resultats.Points, grandeursPoint);
    ExigeFinie(etude.resultats.Profil, grandeursProfil);
    for (const Zone& zone : etude.donnees.Zones)
        if (!std::isfinite(zone.Temps)) throw ErreurExecution(NumeroErreur::ResultatNonFini, Texte(704));
}

void ExigePointFini(long k) {
    if (!etude.resultats.Mouvement.Vide()) ExigeFini(etude.resultats.Mouvement[k], k, grandeursMouvement);
    ExigeFini(etude.resultats.Points[k], k, grandeursPoint);
}
