// Unit laws: lift s from 0 to 1 over the normalised cam angle x from 0 to 1, with its first two derivatives. All usual
// laws are one family of four segments of the acceleration (sine rise, constant, cosine fall, none), told apart by four
// shares of the interval; the law is built on 0 to 0.5 and mirrored. Asymmetry is a re-mapping of x around that family.
//
// The evaluation works on the study record and on module variables, and is not re-entrant.
#pragma once

#include "core/Etude.h"

/// The rows of the table `Lois`, from 1, in the order of the table.
/// @throws ErreurExecution unreadable database.
Tableau<Loi> LitLois();

/// Fills `ListeLois` and `NombreLois` of the study record from the table `Lois`, in the order of the table.
/// @throws ErreurExecution unreadable database.
void ChargeLois();

/// Evaluates the law of a zone into `LoiUnite`, with as many steps as the zone's `AngleCame` says.
/// A custom percentage ("MS_Spe_ 5") overwrites the catalogue row whose number is that of the zone, and that row stays
/// so.
/// @param numeroZone 1..`NombreZones`
/// @throws ErreurExecution subscript out of range for an unknown law; division by zero for no step, or a symmetry
///         coefficient of 0; incorrect call for a custom name that cannot be cut.
void AppliqueLoi(std::int16_t numeroZone);

/// Key of the catalogue row that the custom laws come from: a zone's percentage, or the shares typed for a calculator.
inline constexpr const char* NomLoiSpe = "MS_Spe";

/// True for the name of a custom percentage: "Spe" at the second position or later.
bool EstLoiSpe(const std::string& nomLoi);

/// The percentage at the end of a custom law's name. With p the position (from 1) of "Spe_", the last p - 2 characters
/// are the number: two of them behind "MS_Spe_", so that a one-digit percentage bears a blank in front.
/// @throws ErreurExecution incorrect call for a name that cannot be cut.
double PourcentageLoiSpe(const std::string& nomLoi);

/// Subscript of the row of `ListeLois` whose name is exactly `nomLoi`, among 1..`NombreLois`; 0 when there is none.
std::int16_t ChercheLoi(const std::string& nomLoi);

/// Names of the laws that may be given to a zone, in the order of the table `Lois`: all but the MSH family. A law file
/// takes the laws from the record, not their names from the lists.
std::vector<std::string> NomsLoisZones();

/// The coefficients of the modified sine with a share of constant speed.
/// @param pourcentage of the interval at constant speed, 0 to less than 100
void CalculeCoefs(Loi& loi, double pourcentage);

/// `Ca` and `Cv` of a law by its four shares, so that the lift ends at 1.
/// @throws ErreurExecution division by zero for shares that give no motion.
void CalculeMaxima(Loi& loi);

/// Evaluates any row into a table of subscripts 0..n, as `AppliqueLoi` does.
/// @param n steps; @param symetrie 0..1
/// @throws ErreurExecution division by zero for no step, or a symmetry coefficient of 0; overflow.
void RemplitTable(Loi& loi, double symetrie, double n, Tableau<PointLoi>& table);

/// Fills the working fields of a row, or of a row of `ListeLois`: the copies of its shares and the constants K1 to K7,
/// which make s and v continuous from one segment to the next.
void PrepareLoi(std::int16_t numeroLoi);
void PrepareLoi(Loi& loi);

/// The law at x, stretched over the zone's symmetry coefficient. `x` is overwritten with the re-mapped value.
void EvalueLoiSymetrie(double& x);

/// The symmetric law at x. `x` is overwritten with 1 - x in the second half.
void EvalueLoi(double& x);

/// Results of the last point evaluated, and the symmetry coefficient in use with its complement.
extern double LoiCourse, LoiVitesse, LoiAccel;
extern double CoefSym, CoefSymCompl;
