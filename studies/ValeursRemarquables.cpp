#include "studies/ValeursRemarquables.h"

#include "cams/Pente.h"
#include "cylindrical/DonneesCyl.h"
#include "data/Unites.h"

namespace {

template <double Etude::*membre> double De() {
    return etude.*membre;
}

template <int texte> int Toutes(const TypeEtude&) {
    return texte;
}
template <int texte> int SiDeveloppee(const TypeEtude& type) {
    return type.developpee ? texte : 0;
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
    {GroupeCame, "RayonMin", LibelleMini, De<&Etude::RayonMin>, M3, UniteMm, M3, "(mm) : "},
    {GroupeCame, "RayonMax", LibelleMaxi, De<&Etude::RayonMax>, M3, UniteMm, M3, "(mm) : "},
    {GroupeCame, "RayonCourbureMin", Toutes<222>, De<&Etude::RayonCourbureMin>, M2Court, UniteMm, M2Court, "(mm) : "},
    {GroupeCame, "AngleTangentMax", Toutes<223>, PenteMaxi, M2Court, UniteDegres, M2Court, nullptr},
    {GroupeCame, "CoupleMax", Toutes<232>, De<&Etude::CoupleMax>, M2, UniteNm, M2, "(Nm) : ", &Etude::CoupleMaxAngle},
    {GroupeCame, "CoupleDemarrage", SiDeveloppee<241>, De<&Etude::CoupleDemarrage>, M2, UniteNm, M2, "(Nm) : ", nullptr,
     705, " 0.25 sec"},
    {GroupeCame, "AngleDemarrage", SiDeveloppee<243>, De<&Etude::AngleDemarrage>, M2, UniteDegres, M2, nullptr},
    {GroupeCame, "MasseCame", Toutes<234>, De<&Etude::MasseCame>, M2Court, UniteKg, M2Court, "(Kg) : "},
    {GroupeCame, "InertieCame", Toutes<233>, De<&Etude::InertieCame>, M2Court, UniteKgM2, MInertie, "(Kgm²) : "},
    {GroupeGalet, "VitesseRayonMax", Toutes<225>, De<&Etude::VitesseRayonMax>, M2Court, UniteMS, M2,
     "(m/sec) : ", &Etude::VitesseRayonMaxAngle},
    {GroupeGalet, "AccelRayonMax", Toutes<226>, De<&Etude::AccelRayonMax>, M2Court, UniteMS2, M2,
     "(m/sec²) : ", &Etude::AccelRayonMaxAngle},
    {GroupeGalet, "VitesseGaletMoyenne", Toutes<229>, De<&Etude::VitesseGaletMoyenne>, M2, UniteTours, M2, nullptr},
    {GroupeGalet, "VitesseGaletMax", Toutes<230>, De<&Etude::VitesseGaletMax>, M2, UniteTours, M2, nullptr},
    {GroupeGalet, "ForceGaletMax", Toutes<231>, De<&Etude::ForceGaletMax>, M2Force, UniteN, M2Force,
     "(N) : ", &Etude::ForceGaletMaxAngle},
    {GroupeBras, "LoiCourseMax", SiRayonsBras<237>, De<&Etude::LoiCourseMax>, M2, UniteDegres, M2, nullptr},
    {GroupeBras, "LoiVitesseMax", SiBras<225>, De<&Etude::LoiVitesseMax>, M2Court, UniteRadS, M2,
     "(rad/sec) : ", &Etude::LoiVitesseMaxAngle},
    {GroupeBras, "LoiAccelMax", SiBras<226>, De<&Etude::LoiAccelMax>, M2Court, UniteRadS2, M2,
     "(rad/sec²): ", &Etude::LoiAccelMaxAngle},
    {GroupeBras, "InertieBras", SiRayonsBras<235>, De<&Etude::InertieBras>, MInertie, UniteKgM2, MInertie, "(Kgm²) : "},
    {GroupeBras, "InertieMasseA", SiRayonsBras<236>, De<&Etude::InertieMasseA>, MInertie, UniteKgM2, MInertie,
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
