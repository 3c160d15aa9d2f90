// Text numbers of the units.
#pragma once

enum NumeroUnite {
    UniteMm = 18,
    UniteDegres = 19,
    UniteDegresMajuscule = 20, ///< as the indexers write it
    UniteTours = 21,           ///< turns a minute
    UniteKg = 24,
    UniteN = 25,
    UniteNm = 26,
    UniteMS = 27,
    UniteMS2 = 28,
    UniteRadS = 29,
    UniteRadS2 = 30,
    UniteKgM2 = 31,
    UniteSecondes = 34,
    UnitePourcent = 36,
};
