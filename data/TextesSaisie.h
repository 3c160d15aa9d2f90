// Numbers of the texts that a study tells while it is typed in.
#pragma once

enum TextesSaisie {
    TexteZoneCommence = 802,        ///< "Zone n° 2" this, its start
    TexteZonePrecedenteFinit = 803, ///< and this, the end of the zone before
    TexteCameOuverte = 804,         ///< followed by the start of the motion
    TexteMouvementFinit = 805,      ///< and by its end
    TextePasUnTour = 806,           ///< followed by the sum of the cam angles
    TexteZonesManquantes = 807,
    TexteNombreTropGrand = 808,
    TexteLoiDeFichierLue = 809, ///< followed by the name of the law file
    TexteLoisAuDemarrage = 810, ///< the catalogue that a law file replaced
    TexteBoutonPoints = 811,
    TexteBoutonScripts = 812,
};
