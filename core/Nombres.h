// Numbers to text and back, and the roundings of the program. No other file formats or reads a number. Nothing here
// depends on the locale of the process: the decimal separator is the point unless a function says otherwise.
#pragma once

#include "core/ErreurExecution.h"

#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

/// A 16-bit boolean of the study record: -1 true, 0 false.
using Booleen16 = std::int16_t;
inline constexpr Booleen16 Vrai = -1;
inline constexpr Booleen16 Faux = 0;

/// The number at the head of a text: blanks are skipped, reading stops at the first character that cannot belong to a
/// number. A text without one gives 0. Only the point separates decimals ("12,5" gives 12).
/// @throws ErreurExecution overflow when the number exceeds a double.
double Val(std::string_view texte);

/// As `Val`, taking the point and the comma alike as the decimal separator ("12,5" gives 12.5).
double ValVirgule(std::string_view texte);

/// True when the whole of `texte`, blanks apart, is one number as `Val` reads it.
bool EstNombre(std::string_view texte);

/// The shortest decimal digits that read back to the same double, with a leading blank for zero and above, no zero
/// before the point (".5", "-.25"), and no exponent from 1E-15 to 1E15.
std::string Str(double valeur);

/// `Str` without its leading blank.
std::string StrTrim(double valeur);

/// As `StrTrim`, with the zero before the point: "0.5".
std::string TexteCourt(double valeur);

/// `valeur` rounded half to even, on its shortest decimal digits, to so many digits behind the point; written as
/// `TexteCourt`, so without zeros at its end: 8000, 7.5, 52.3.
std::string TexteArrondi(double valeur, int decimales);

/// Appends `StrTrim` of a value, or `Format` of it, for texts of many numbers.
void AjouteStr(std::string& sortie, double valeur);
void AjouteFormat(std::string& sortie, double valeur, std::string_view masque);

/// `valeur` by a mask of '0' (a digit always shown) and '#' (a digit shown where there is one) around one '.'. The
/// value is rounded half away from zero on its shortest decimal digits. The point of the mask always shows: "###.##"
/// writes 5 as "5." and 0 as ".".
std::string Format(double valeur, std::string_view masque);

inline double Carre(double x) {
    return x * x;
}

/// Largest integer not above `valeur`.
inline double Int(double valeur) {
    return std::floor(valeur);
}

/// Nearest integer, halves to even.
inline double Arrondi(double valeur) {
    return std::nearbyint(valeur);
}

/// Nearest 16-bit integer, halves to even.
/// @throws ErreurExecution overflow outside -32768..32767, and for a NaN.
inline std::int16_t Entier16(double valeur) {
    const double arrondi = Arrondi(valeur);
    if (!(arrondi >= -32768.0 && arrondi <= 32767.0)) throw ErreurExecution(NumeroErreur::Depassement);
    return static_cast<std::int16_t>(arrondi);
}

/// `numerateur` over `diviseur`; a divisor of 0 is a run-time failure.
inline double Divise(double numerateur, double diviseur) {
    if (diviseur == 0.0) throw ErreurExecution(NumeroErreur::DivisionParZero);
    return numerateur / diviseur;
}

/// `base` to the power `exposant`.
/// @throws ErreurExecution 0 to a negative power is a division by zero; a power without a real value is an incorrect
/// argument.
double Puissance(double base, double exposant);

/// Square root. @throws ErreurExecution incorrect argument below 0.
double Racine(double valeur);

/// `texte` without the blanks at both ends.
std::string Trim(std::string_view texte);
