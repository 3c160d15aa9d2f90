// The twenty kinds of solid and the calculation of one: mass, moment of inertia about the reference axis, working
// torque and friction torque of Q equal solids whose own axis turns A times slower or faster than the reference axis.
//
// Lengths are typed in mm and calculated in metres; masses kg, densities kg/m³, inertias kg m², torques N m. The
// inertias are the closed forms of homogeneous bodies, with the parallel axis theorem for those off the axis.
#pragma once

#include "core/Champ.h"

#include <array>
#include <optional>
#include <span>
#include <string>

/// What stands in the fields of one solid, as typed.
struct SaisieSolide {
    int TypeSolide = 0;       ///< 1..20
    std::string Text1 = "1";  ///< quantity
    std::string Text2 = "1";  ///< ratio: turns of the reference axis for one of the solid's axis
    bool MasseTotal = true;   ///< `Text3` is the mass of one solid, otherwise its density
    std::string Text3;        ///< kg or kg/m³
    std::string Text5, Text6; ///< dimensions, mm unless the field has another unit
    std::string Text7, Text8;
};

/// The four quantities of a solid or of an assembly, in the order of `LesGrandeurs()`.
using Grandeurs = std::array<double, 4>;
using Etiquettes = std::array<std::string, 4>;

struct GrandeurInertie {
    const char* nom;         ///< in JSON
    const char* controle;    ///< name of its result label
    int texte;               ///< text number of its name
    int colonne;             ///< text number of its heading in the list
    int unite;               ///< text number
    const char* masque;      ///< of the result label
    const char* masqueListe; ///< in the list
};
std::span<const GrandeurInertie, 4> LesGrandeurs();

/// The dimensions by the letters of the figures. Lengths are in metres, other numbers as they stand.
struct Cotes {
    double R = 0; ///< `Text5`
    double D = 0; ///< `Text6`
    double d = 0; ///< `Text7`
    double H = 0; ///< `Text8`
};

/// What one solid of mass M does at its own axis.
struct Effets {
    double inertie = 0;
    double travail = 0, friction = 0;
    double masseEnPlus = 0; ///< turning mass besides M
};

/// Why a solid is not calculated.
struct FauteSolide {
    std::string controle;                         ///< the field at fault, which the focus goes to
    std::string sens;                             ///< for the status line
    std::string message{};                        ///< what a box says; empty for a stop without a word
    bool videResultats = false;                   ///< the result labels are blanked
    std::string SaisieSolide::*corrige = nullptr; ///< the field that is put right, and what then stands in it
    std::string correction{};
    const char* grandit = ""; ///< the field whose number, with more digits, would mend the fault
};

enum class GroupeSolides { Centres, Excentres, Divers };

/// A field of a kind. It must not be 0 where `interdit` is set; its number is a length where its unit is mm.
using ChampSolide = Champ<SaisieSolide>;

struct GenreSolide {
    int TypeSolide;
    GroupeSolides groupe;
    const char* menu; ///< name of its menu entry
    int texte;        ///< text number of that entry
    const char* cle;  ///< of its tool button
    std::span<const ChampSolide> champs;
    double (*volume)(const Cotes& c); ///< m³; none for a kind whose mass is always typed
    Effets (*effets)(double M, const Cotes& c);
    std::optional<FauteSolide> (*controle)(const SaisieSolide& saisie, const Cotes& c) = nullptr;
    bool parDensite = false; ///< its density is asked for at first
    int texteMasse = 0;      ///< text number of the caption of `Text3` where it is not the usual one
    double (*frictionVraie)(double F, const Cotes& c) = nullptr; ///< where the calculation leaves a dimension out
};

/// All kinds, group by group.
std::span<const GenreSolide> LesSolides();

/// @return none for a code outside 1..20
const GenreSolide* TrouveSolide(int TypeSolide);

/// Name of a kind in the working language.
std::string NomSolide(const GenreSolide& genre);

/// The fields of a kind as its choice leaves them.
SaisieSolide SaisieInitiale(const GenreSolide& genre);
/// As `Text3` stands after a choice between mass and density.
std::string Text3Initial(const GenreSolide& genre, bool masseTotal);

/// Whether `Text3` is a mass: by the choice made, and always for a kind that knows no density.
bool MasseEstTapee(const GenreSolide& genre, const SaisieSolide& saisie);

/// The first reason why a solid is not calculated; none when it can be.
/// @throws ErreurExecution overflow for a number beyond a double.
std::optional<FauteSolide> ChercheFaute(const SaisieSolide& saisie);

/// The four quantities of a solid without a fault.
/// @throws ErreurExecution overflow; a result that is no finite number.
Grandeurs CalculeSolide(const SaisieSolide& saisie);

/// The friction torque of a solid with every dimension counted, N m.
/// @param valeurs its four quantities
double FrictionVraie(const SaisieSolide& saisie, const Grandeurs& valeurs);

/// What is said beside a friction torque that leaves an angle out; empty when both
/// read alike. @param vraie N m, with the angle counted
std::string NoteFriction(double friction, double vraie);

/// The texts of the four result labels: whole kilograms, the others to two decimals. A small solid reads "" and ".".
Etiquettes EtiquettesDe(const Grandeurs& grandeurs);
