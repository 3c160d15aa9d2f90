// Numbers of the texts that a study tells while it is typed in.
#pragma once

enum TextesSaisie {
    TexteZoneCommence = 816,        ///< "Zone n° 2" this, its start
    TexteZonePrecedenteFinit = 817, ///< and this, the end of the zone before
    TexteCameOuverte = 818,         ///< followed by the start of the motion
    TexteMouvementFinit = 819,      ///< and by its end
    TextePasUnTour = 820,           ///< followed by the sum of the cam angles
    TexteZonesManquantes = 821,
    TexteNombreTropGrand = 822,
    TexteLoiDeFichierLue = 823, ///< followed by the name of the law file
    TexteLoisAuDemarrage = 824, ///< the catalogue that a law file replaced
    TexteBoutonPoints = 825,
    TexteBoutonScripts = 826,
    TexteProduitSeul = 1000, ///< where only the product of some data is checked, and some are negative
};
