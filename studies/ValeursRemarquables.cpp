#include "studies/ValeursRemarquables.h"

#include "cams/Pente.h"
#include "cylindrical/DonneesCyl.h"
#include "cylindrical/GeometrieCyl.h"
#include "data/Unites.h"
#include "studies/NotesEtude.h"

namespace {

template <auto membre> double De() {
    return ValeurDe(membre);
}

template <auto membre> std::int16_t Repere() {
    return ValeurDe(membre);
}

template <int texte> int Toutes(const TypeEtude&) {
    return texte;
}
/// Several cams have no thickness: nothing is known of their mass.
template <int texte> int SiPesee(const TypeEtude& type) {
    return type.passes.empty() ? texte : 0;
}
template <int texte> int SiDeveloppee(const TypeEtude& type) {
    return type.developpee ? texte : 0;
}
/// The slope of the table follows the arc of a whole degree, which is not that of a point everywhere.
int LibellePenteVraie(const TypeEtude& type) {
    return type.developpee && etude.donnees.PointsParDegre > 1 ? TextePenteVraie : 0;
}
template <int texte> int SiBras(const TypeEtude& type) {
    return type.Bras() ? texte : 0;
}
template <int texte> int SiRayonsBras(const TypeEtude& type) {
    return type.zones->rayonsBras ? texte : 0;
}
int LibelleMini(const TypeEtude& type) {
    return type.developpee ? TexteHauteurMini : 220;
}
/// Under an oscillating arm the largest radius is the thickness of the cylinder.
int LibelleMaxi(const TypeEtude& type) {
    if (!type.developpee) return 221;
    return type.Bras() ? 161 : TexteHauteurMaxi;
}

constexpr const char* M3 = "###.###";
constexpr const char* M2 = "###.##";
constexpr const char* M2Court = "##.##";
constexpr const char* M2Force = "####.##";
constexpr const char* MInertie = "##.#####";

const ValeurRemarquable valeurs[] = {
    {GroupeCame, "RayonMin", LibelleMini, De<&ResultatsEtude::RayonMin>, M3, UniteMm, M3, "(mm) : "},
    {GroupeCame, "RayonMax", LibelleMaxi, De<&ResultatsEtude::RayonMax>, M3, UniteMm, M3, "(mm) : "},
    {GroupeCame, "RayonCourbureMin", Toutes<222>, De<&ResultatsEtude::RayonCourbureMin>, M2Court, UniteMm, M2Court,
     "(mm) : "},
    {GroupeCame, "AngleTangentMax", Toutes<223>, PenteMaxi, M2Court, UniteDegres, M2Court, nullptr},
    {GroupeCame, "PenteVraie", LibellePenteVraie, PenteVraieMaxi, M2Court, UniteDegres, M2Court, nullptr},
    {GroupeCame, "CoupleMax", Toutes<232>, De<&ResultatsEtude::CoupleMax>, M2, UniteNm, M2,
     "(Nm) : ", Repere<&ResultatsEtude::CoupleMaxAngle>},
    {GroupeCame, "CoupleDemarrage", SiDeveloppee<241>, De<&ResultatsEtude::CoupleDemarrage>, M2, UniteNm, M2,
     "(Nm) : ", nullptr, 705, " 0.25 sec"},
    {GroupeCame, "AngleDemarrage", SiDeveloppee<243>, De<&ResultatsEtude::AngleDemarrage>, M2, UniteDegres, M2,
     nullptr},
    {GroupeCame, "MasseCame", SiPesee<234>, De<&ResultatsEtude::MasseCame>, M2Court, UniteKg, M2Court, "(Kg) : "},
    {GroupeCame, "InertieCame", SiPesee<233>, De<&ResultatsEtude::InertieCame>, M2Court, UniteKgM2, MInertie,
     "(Kgm²) : "},
    {GroupeGalet, "VitesseRayonMax", Toutes<225>, De<&ResultatsEtude::VitesseRayonMax>, M2Court, UniteMS, M2,
     "(m/sec) : ", Repere<&ResultatsEtude::VitesseRayonMaxAngle>},
    {GroupeGalet, "AccelRayonMax", Toutes<226>, De<&ResultatsEtude::AccelRayonMax>, M2Court, UniteMS2, M2,
     "(m/sec²) : ", Repere<&ResultatsEtude::AccelRayonMaxAngle>},
    {GroupeGalet, "VitesseGaletMoyenne", Toutes<229>, De<&ResultatsEtude::VitesseGaletMoyenne>, M2, UniteTours, M2,
     nullptr},
    {GroupeGalet, "VitesseGaletMax", Toutes<230>, De<&DurablesEtude::VitesseGaletMax>, M2, UniteTours, M2, nullptr},
    {GroupeGalet, "ForceGaletMax", Toutes<231>, De<&ResultatsEtude::ForceGaletMax>, M2Force, UniteN, M2Force,
     "(N) : ", Repere<&ResultatsEtude::ForceGaletMaxAngle>},
    {GroupeBras, "LoiCourseMax", SiRayonsBras<237>, De<&DurablesEtude::LoiCourseMax>, M2, UniteDegres, M2, nullptr},
    {GroupeBras, "LoiVitesseMax", SiBras<225>, De<&DurablesEtude::LoiVitesseMax>, M2Court, UniteRadS, M2,
     "(rad/sec) : ", Repere<&DurablesEtude::LoiVitesseMaxAngle>},
    {GroupeBras, "LoiAccelMax", SiBras<226>, De<&DurablesEtude::LoiAccelMax>, M2Court, UniteRadS2, M2,
     "(rad/sec²): ", Repere<&DurablesEtude::LoiAccelMaxAngle>},
    {GroupeBras, "InertieBras", SiRayonsBras<235>, De<&ResultatsEtude::InertieBras>, MInertie, UniteKgM2, MInertie,
     "(Kgm²) : "},
    {GroupeBras, "InertieMasseA", SiRayonsBras<236>, De<&DonneesEtude::InertieMasseA>, MInertie, UniteKgM2, MInertie,
     "(Kgm²) : "},
};

} // namespace

std::span<const ValeurRemarquable> LesValeursRemarquables() {
    return valeurs;
}

std::string EcritValeur(const ValeurRemarquable& valeur, const char* masque) {
    constexpr double sansCourbure = 1e99; // what the smallest radius starts from
    const double v = valeur.valeur();
    return v >= sansCourbure ? "-" : Format(v, masque);
}
