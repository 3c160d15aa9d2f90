// The laws of rise and return without a dwell at the top. The rise has a quarter wave of rising acceleration, a quarter
// wave of falling acceleration, a part at constant speed, and a quarter wave of deceleration that ends at the top with
// its full value, from which the return takes over.
#pragma once

#include "core/Etude.h"

/// A catalogue row of the MSH family with its shares arranged the way the evaluation reads them.
Loi PartsMSH(const Loi& ligne);

/// Puts a catalogue row, so arranged, into `LoiEtude`.
void PrepareLoiMSH(const Loi& ligne);

/// The rise-and-return law whose return is the mirror image of its rise: rise over the first half of the points.
/// Reads `LoiEtude` (whose shares `PrepareLoiMSH` has arranged) and `NombrePoints`, fills `LoiUnite`. Speed and
/// acceleration are per unit of the rise's share of the angle.
/// @throws ErreurExecution division by zero for no point.
void CalculeLoiMSH();

/// A point of the rise. @param loi arranged shares; @param x 0..1 over the rise
PointLoi EvalueMonteeMSH(const Loi& loi, double x);

/// The asymmetric law: a rise of the MSH shape, and a return that takes another angle.
struct LoiMSHDissyme {
    Loi montee;          ///< Ca, Cv and the arranged shares of the rise
    double e = 0;        ///< angle of the return over that of the rise
    double k = 0;        ///< amplitude of the return, per unit of its own angle squared
    double r = 0;        ///< share of the return: its parts are 2 r, 1 - 4 r, 3 r / 2 and r / 2
    bool existe = false; ///< no law exists for a return faster than the rise
};

/// @param e angle of the return over that of the rise, above 0
LoiMSHDissyme PrepareMSHDissyme(double e);

/// A point of the return, speed and acceleration per unit of the rise's angle like those of the rise.
/// @param z 0..1 over the return
PointLoi EvalueDescente(const LoiMSHDissyme& loi, double z);
