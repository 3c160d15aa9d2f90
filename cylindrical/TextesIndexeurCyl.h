// Text numbers that the drum cam adds to the catalogue, in one place.
#pragma once

enum TextesIndexeurCyl {
    TexteEpaisseurArret = 844,  ///< in the dwell the rib counts rollers that have left the cam
    TexteEpaisseurGauche = 845, ///< on a cam to the left the rib is no mirror of that to the right
};
