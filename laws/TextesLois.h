// The text numbers that only this room uses.
#pragma once

enum TextesLois {
    TexteRelu = 827, ///< what a reader makes of a law file: a motion of so many
    TexteReluPas = 828,
    TexteReluFin = 829,
    TexteParMontee = 830,
    TexteEchelleMontee = 831,
    TexteSymetrieVitesse = 1002,
    TexteSymetrieAccel,
};
