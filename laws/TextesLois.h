// The text numbers that only this room uses.
#pragma once

enum TextesLois {
    TexteRelu = 802, ///< what a reader makes of a law file: a motion of so many
    TexteReluPas = 803,
    TexteReluFin = 804,
    TexteParMontee = 805,
    TexteEchelleMontee = 806,
};
