// The study record: one plain struct with one instance. A data screen or a file reader fills it, a pipeline turns it
// into the point tables, and the results, the reports and the exports read those tables. Nothing owns it: the order of
// the calls keeps it consistent.
//
// Units: lengths mm, masses kg, forces N, angles degrees, cam speed Tr/min; the point tables hold metres, seconds and
// radians where their comment says so.
#pragma once

#include "core/Nombres.h"
#include "core/Tableau.h"

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

inline const double Pi = 4.0 * std::atan(1.0);
inline const double RadDeg = 180.0 / Pi;

/// Upper bound of a table read from a law file.
inline constexpr long PointsLoiFichier = 720;

/// Name that stands for a law read from a file.
inline constexpr const char* NomLoiFichier = "Fichier";

/// One stretch of cam angle over which the follower goes from one value to another under one law.
struct Zone {
    double AngleDepart = 0;  ///< value at the start, degrees of the arm
    double AngleFinal = 0;   ///< value at the end, degrees of the arm
    double AngleCame = 0;    ///< cam angle, degrees; in points while a pipeline runs
    double Temps = 0;        ///< duration, s
    double RayonDepart = 0;  ///< roller centre radius at the start, or its height on a cylindrical cam, mm
    double RayonFinal = 0;   ///< the same at the end, mm
    std::string NomLoi;      ///< key of the law, "Fichier", or a key with "_" and a percentage
    double CoefSymetrie = 0; ///< 0 to 1; 0.5 is symmetric
};

/// A zone that stands typed.
struct SaisieZone {
    std::int16_t numero = 0; ///< from 1
    Zone zone;
};

/// A row of the law catalogue: four segments of the unit acceleration, each a share of the whole interval.
struct Loi {
    std::string NomLoi;
    double Ca = 0;    ///< maximum of the unit acceleration
    double Cv = 0;    ///< maximum of the unit speed
    double CoefA = 0; ///< share of the sine rise of the acceleration
    double CoefB = 0; ///< share at constant acceleration
    double CoefC = 0; ///< share of the cosine fall of the acceleration
    double CoefD = 0; ///< share at constant speed
    double CoefS = 0; ///< symmetry coefficient that the data screens propose

    double SegA = 0, SegB = 0, SegC = 0, SegD = 0;                 ///< working copies of the shares
    double K1 = 0, K2 = 0, K3 = 0, K4 = 0, K5 = 0, K6 = 0, K7 = 0; ///< integration constants
};

/// A row of a unit law (pure numbers) or of the motion table (degrees, rad/s, rad/s² for an arm).
struct PointLoi {
    double Course = 0;
    double Vitesse = 0;
    double Accel = 0;
};

/// What is known of one point of the cam.
struct Point {
    double Angle = 0;     ///< cam angle, degrees
    double AngleBras = 0; ///< arm angle, degrees
    double Rayon = 0;     ///< cam centre to roller centre, or height of the roller centre along a cylinder's axis, mm
    double VitesseRayon = 0;         ///< m/s
    double AccelRayon = 0;           ///< m/s²
    double XA = 0, YA = 0;           ///< point on the arm, mm
    double VxA = 0, VyA = 0, VA = 0; ///< its speed, m/s
    double AxA = 0, AyA = 0, AA = 0; ///< its acceleration, m/s²
    double VitesseGalet = 0;         ///< roller speed, Tr/min, rounded down
    double ForceGalet = 0;           ///< roller force, N
    double Couple = 0;               ///< cam torque, N m
};

/// The curves at one point of the cam. X and Y in mm; 1 and 2 mark first and second differences. On a cylindrical cam
/// they are the flanks of the groove on the developed surface.
struct PointProfil {
    /// From the radius to the tangent of the pitch curve, radians; Pi / 2 means no pressure. On a cylindrical cam the
    /// slope of the track.
    double AngleTangent = 0;
    double DeriveeRayon = 0, Derivee2Rayon = 0;
    double RayonCourbure = 0; ///< of the pitch curve, mm; 0 where it is straight
    double XInterieur = 0, XInterieur1 = 0, XInterieur2 = 0;
    double YInterieur = 0, YInterieur1 = 0, YInterieur2 = 0;
    double RayonCourbureInterieur = 0;
    double XExterieur = 0, XExterieur1 = 0, XExterieur2 = 0;
    double YExterieur = 0, YExterieur1 = 0, YExterieur2 = 0;
    double RayonCourbureExterieur = 0;
};

/// What is entered for a study, on a data screen or from a file. The same names serve every kind of cam that has them.
struct DonneesEtude {
    std::string TypeCame;   ///< "Angulaire", "Lineaire", "Cylindrique", "Oscillation" or "ConjuguesOscillation"
    std::string NomFichier; ///< file name of the study without its directory

    double CoteA = 0, CoteB = 0;               ///< the arm pivot O1 relative to the cam centre or axis, mm
    double RayonO1A = 0;                       ///< O1 to the force point A, mm
    double RayonO1P = 0;                       ///< O1 to the roller centre P, mm
    double AnglePO1A = 0;                      ///< between the two arms, degrees
    double RayonGalet = 0;                     ///< mm
    double VitesseCame = 0;                    ///< Tr/min
    double AnglePesanteur = 0;                 ///< direction of gravity, degrees
    double MasseBrasO1A = 0, MasseBrasO1P = 0; ///< kg
    double MasseA = 0;                         ///< mass at A, kg
    double ForceX = 0, ForceY = 0;             ///< outer forces at A, N
    double EpaisseurCame = 0;                  ///< mm
    double DiametreCame = 0;                   ///< of a cylindrical cam, mm
    double InertieMasseA = 0;    ///< driven by a cylindrical cam's arm; the plane arm cam's stage works it out
    double CoupleConstantO1 = 0; ///< constant torques about O1, N m
    double RayonBrasR1 = 0, RayonGaletG1 = 0; ///< arm and roller of the guide cam of a conjugate pair, mm
    double RayonBrasR2 = 0, RayonGaletG2 = 0; ///< arm and roller of the follower cam, mm
    double AngleBras = 0;                     ///< between the two arms of a conjugate pair, degrees
    double InertieO1 = 0;                     ///< inertia driven at O1, kg m²

    std::int16_t NombreZones = 0;
    std::int16_t PointsParDegre = 0;      ///< 1, 2, 4, 5, 8 or 10
    std::int16_t ZoneCourante = 0;        ///< zone shown on the data screen
    Tableau<Zone> Zones;                  ///< 0..NombreZones; element 0 holds only the value that zone 1 starts from
    std::optional<SaisieZone> ZoneSaisie; ///< what stands typed on the data screen and is not accepted yet
    Tableau<Zone> ZonesConjuguees;

    // Of a law study.
    double AngleIndexage = 0;               ///< cam angle of the motion, degrees
    double AngleAvanceRapide = 0;           ///< its part in fast advance
    double AngleMontee = 0;                 ///< cam angle of the rise, degrees
    double AngleDescente = 0;               ///< cam angle of the return, degrees
    double ValeurDepart = 0, ValeurFin = 0; ///< of the output, mm or degrees
    double SortieAvanceRapide = 0;          ///< output reached in fast advance, mm or degrees
    double VitesseEntree = 0;               ///< Tr/min
    double SymetrieLoi = 0.5;               ///< 0 to 1; 0.5 is symmetric
    double PourcentageLoi = 0;              ///< share at constant speed of a custom law, %
    double ExcentriciteLiq = 0;             ///< coefficient A of the first rise of the law for liquids
    Booleen16 SortieEnDegres = Faux;        ///< the output is an angle
    std::string TypeLoi; ///< law screen in use: "LoiMouv", "LoiHesser", "LoiLiquide", "LoiSpecial", "LoiMSHDis"

    // Which calculator or law screen is open: the print command goes to it.
    Booleen16 GlobiqueIndexeurActif = Faux, GlobiqueOscillateurActif = Faux, CylindriqueIndexeurActif = Faux;
    Booleen16 LoiMouvActive = Faux, LoisLiqActive = Faux, LoiSpeActive = Faux, LoiMSHDisActive = Faux,
              LoiHesActive = Faux;
};

/// Maxima that go on growing from one calculation to the next while the program runs.
struct DurablesEtude {
    double LoiCourseMax = 0, LoiVitesseMax = 0, LoiAccelMax = 0;
    std::int16_t LoiVitesseMaxAngle = 0, LoiAccelMaxAngle = 0;
    double VitesseGaletMax = 0; ///< Tr/min
};

/// What is known of a calculation, whatever its results are.
struct DrapeauxEtude {
    Booleen16 Erreur = Faux;          ///< a pipeline stage runs only while it is clear
    Booleen16 EtudeModifiee = Faux;   ///< calculated from a data screen; saving needs it
    Booleen16 ResultatsPrets = Faux;  ///< results exist; printing needs it
    bool Perimes = false;             ///< the data are others by now: calculated before they are printed or exported
    Booleen16 RotationEnCours = Faux; ///< the drawing of the cam is turning
    double AngleRotation = 0;         ///< angle that the drawing is turned to, radians
};

/// What a calculation makes of them. A copy is a whole set of results.
struct ResultatsEtude : DrapeauxEtude {
    std::int16_t NombrePoints = 0; ///< last subscript of the point tables
    Tableau<PointLoi> Mouvement;
    Tableau<Point> Points;
    Tableau<PointProfil> Profil;
    bool Developpee = false;     ///< the curves are those of a developed cylinder
    bool ProfilExterieur = true; ///< `Profil` has an outer profile

    // The angle of a maximum is a cam angle in whole degrees; on a cylindrical cam it is the subscript of its point.
    double RayonMax = 0, RayonMin = 0; ///< mm
    double VitesseRayonMax = 0, AccelRayonMax = 0;
    std::int16_t VitesseRayonMaxAngle = 0, AccelRayonMaxAngle = 0;
    double VitesseGaletMoyenne = 0; ///< Tr/min
    double ForceGaletMax = 0, CoupleMax = 0;
    std::int16_t ForceGaletMaxAngle = 0, CoupleMaxAngle = 0;
    double AngleTangentMax = 0;              ///< of largest magnitude, signed, radians
    double RayonCourbureMin = 0;             ///< smallest magnitude, mm
    double InertieBras = 0, InertieCame = 0; ///< kg m²
    double MasseCame = 0;                    ///< kg
    DurablesEtude MaximaPropres;             ///< of a plane cam: the growing maxima, of this calculation alone
    double CoupleDemarrage = 0;              ///< torque to start in 0.25 s, N m
    double AngleDemarrage = 0;               ///< cam angle run through meanwhile, degrees
};

/// The catalogue of laws as it is by now, and the law at work.
struct LoisEtude {
    Tableau<Loi> ListeLois; ///< 0..NombreLois, row 0 empty
    std::int16_t NombreLois = 0;
    bool DeFichier = false;     ///< a law file has filled `LoiUnite` and left the catalogue with its one row
    std::string LoiChoisie;     ///< key of the law picked in a chooser
    Loi LoiEtude;               ///< the row that a law study works on
    Tableau<PointLoi> LoiUnite; ///< unit law of one zone: course 0 to 1 and its two derivatives
};

/// One cam of a study that calculates several from one motion: what differs from cam to cam of the data, and the
/// results.
struct PasseEtude {
    double RayonO1P = 0, RayonGalet = 0; ///< its arm and its roller, mm
    Tableau<Zone> Zones;                 ///< the motion of its arm
    ResultatsEtude resultats;
    DurablesEtude durables; ///< maxima of this calculation alone
};

/// The record, its parts named by their life: the first three go with the study, the others stay until the program
/// ends.
struct Etude {
    DonneesEtude donnees;
    ResultatsEtude resultats;
    std::vector<PasseEtude>
        passes; ///< the cams of a calculated study of several, `resultats` then being without tables
    LoisEtude lois;
    DurablesEtude durables;
};

/// The one study of the running process.
extern Etude etude;

/// True while the flag of the running calculation is clear.
inline bool SansErreur() {
    return static_cast<std::uint16_t>(etude.resultats.Erreur) < 65535;
}

/// The value of a member, whatever part of the record it stands in.
template <class T> T& ValeurDe(T DonneesEtude::*membre) {
    return etude.donnees.*membre;
}
template <class T> T& ValeurDe(T ResultatsEtude::*membre) {
    return etude.resultats.*membre;
}
template <class T> T& ValeurDe(T DurablesEtude::*membre) {
    return etude.durables.*membre;
}

/// Empties the study record for another study: its data and its results. The laws stay as they are by now, and so do
/// the maxima that go on growing.
void VideEtude();
