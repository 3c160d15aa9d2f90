// Numbers of the texts that only the batch companion shows.
#pragma once

enum TextesBatch {
    TexteJsonIllisible = 802,
    TexteColonneJson,
    TexteObjetAttendu,
    TexteMembreDouble,
    TexteMembreInconnu,
    TexteMembreAbsent,
    TexteAttendu,
    TexteTrouve,
    TexteUnNombre,
    TexteNombreEntier, ///< "a whole number from"
    TexteJusqua,
    TexteOu,
    TexteFichierIllisible,
    TexteSortieDouble,
    TexteNombreDemesure = 1004,
};
