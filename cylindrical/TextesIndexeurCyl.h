// Text numbers that the drum cam adds to the catalogue, in one place.
#pragma once

enum TextesIndexeurCyl {
    TexteEpaisseurArret = 803,  ///< in the dwell the rib counts rollers that have left the cam
    TexteEpaisseurGauche = 804, ///< on a cam to the left the rib is no mirror of that to the right
    TexteScriptCourt = 805,     ///< the script ends with its first row
    TexteLargeurCentres = 806,  ///< the width that the roller centres use
    TexteTropLarge = 807,       ///< wider than the casing takes
    TexteSansNervure = 808,     ///< rollers that leave no rib between them
    TexteDeveloppee = 809,
};
