// Where a capacity calculator takes its motion law from: a row of the catalogue, the shares of the custom law "MS_Spe"
// typed into the panel of coefficients, or a law file.
#pragma once

#include "indexers/FauteSaisie.h"
#include "laws/CalculLois.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

/// The inputs of a law. A record of inputs derives from it, or fills one for each of its laws.
struct SourceLoi {
    std::string NomLoi;          ///< key of the catalogue, "MS_Spe" or "Fichier"
    std::string FichierLoi;      ///< path of the law file
    double CoefA = 0, CoefB = 0; ///< shares of "MS_Spe", 0 to 1
    double CoefC = 0;            ///< its share of the cosine fall; 0 is a division by zero
    double CoefSymetrie = 0;     ///< 0.1 to 0.9; 0.5 is symmetric

    bool DeFichier() const { return NomLoi == NomLoiFichier; }
    bool Speciale() const { return NomLoi == NomLoiSpe; }
};

/// The share at constant speed that the three typed ones leave. Within 1e-9 of 0 or 1 it is that value: tenths do not
/// add up exactly.
double CoefD(const SourceLoi& source);

/// What is said of a share d at constant speed that is not from 0 to `maximum`, empty for one that is. The box names 0
/// and 1; a bound below 1 is told where it is the reason.
std::string TexteFauteD(double d, double maximum);

/// Shares that leave no share at constant speed from 0 to `maximum`; none for a law whose shares are not typed.
std::optional<FauteSaisie> ChercheFauteCoefs(const SourceLoi& source, double maximum = 1.0);

/// The law of a source that is no file, with its closed-form maxima where the shares are typed. The rows of `lois`
/// stay as they are.
/// @param lois rows 1.. of the catalogue
/// @throws ErreurExecution subscript out of range for an unknown name; division by zero for a share c of 0.
Loi LoiDeSource(const SourceLoi& source, const Tableau<Loi>& lois);

/// Lifts s of a source that is no file at i / `pas` for i from 0 while i <= `pas`. Rows 0..`pas` rounded half to even;
/// a row that no i reaches is 0.
/// @param pas steps; not whole for an angle that is not
/// @throws ErreurExecution as `LoiDeSource`.
Tableau<double> CoursesDeSource(const SourceLoi& source, const Tableau<Loi>& lois, double pas);

/// A law file as a calculator reads it: two lines a degree of cam angle.
struct LoiDeFichier {
    Tableau<PointLoi>
        lignes;         ///< 0..`PlacesLoiFichier` - 1; what was not read is 0. Speeds and accelerations without sign
    long nombre = 0;    ///< lines before the one that ends the law
    bool finie = false; ///< a line with a lift of exactly 1 ends the law; it is stored, and not counted
};

/// Lines that a calculator has room for.
inline constexpr long PlacesLoiFichier = 723;

/// @throws ErreurExecution subscript out of range for a file that is too long.
LoiDeFichier LitLoiCalculateur(std::string_view contenu);

/// @throws ErreurExecution as `LitLoiCalculateur`; file not found; access refused; input/output.
LoiDeFichier LitFichierLoiCalculateur(const std::filesystem::path& chemin);
