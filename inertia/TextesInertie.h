// Text numbers of the inertia calculator.
#pragma once

enum NumeroTexteInertie {
    TexteMasse = 192,
    TexteCalculInerties = 437,
    TexteDensite = 338,
    TexteInertie = 343,
    TexteCoupleTravail = 267,
    TexteFriction = 268,
    TexteTravailCourt = 344,
    TexteFrictionCourt = 345,
    TexteTotauxNegatifs = 346,
    TexteSolideRefuse = 347,
    TexteInterieur = 348,
    TexteExterieur = 349,
    TexteTroisCotes = 350,
    TexteToreD = 351,
    TexteToreInferieur = 352,
    TexteTorePetitD = 353,
    TexteMasseTransportee = 354,
    TexteMasseRotation = 355,
    TexteCoefFriction = 356,
    TexteListeVide = 360,
    TexteNombreCotes = 386,
    TexteAngleBeta = 188,
    TexteFigure = 493,
    TexteQte = 494,
    TexteR = 654,
    TexteD = 655,
    TextePetitD = 656,
    TexteH = 658,
    TexteQuantite = 651,
    TexteRapport = 652,
    TexteMasseTotaleOption = 653,
    TexteAjouter = 659,
    TexteEnlever = 660,
    TexteListeSolides = 661,
    TexteMasseTotaleColonne = 662,
    TexteMasseTotaleChoisie = 663,
    TexteRapportColonne = 664,
    TexteMasseUnitaire = 665,
    TexteMu = 666,
    TexteTotaux = 667,
    TexteChoisissezListe = 669,
    TexteFig = 671,

    TexteGenre = 25, ///< N
    TexteKg = 22,
    TexteKgM2 = 32,
    TexteUniteDensite = 33, ///< kg/m³
    TexteValeurEntiere = 777,

    TexteManque = 907,    ///< in front of the caption of a field that is needed
    TexteQuantiteRapport, ///< quantity times ratio is not above zero
    TexteSignesRBeta,     ///< R and the angle differ in sign
    TexteExact,           ///< in front of full-precision values
    TexteTotauxArrondis,  ///< the totals of the list are far from the exact ones
    TexteSolideTropPetit, ///< all four labels of the solid round to zero
    TexteFiltreListe = 914,
    TexteFiltreCsv,
    TexteMenuListe,
    TexteOuvrirListe,
    TexteEnregistrerListe,
    TexteCopierListe,
    TexteEnregistrerCsv,
    TexteTransmettre,
    TexteReprendreListe,
    TexteListeCopiee,
    TexteListeLue,
    TexteAucunChampInertie,
    TexteInertieTransmise,
    TexteResultatsAnciens, ///< the labels still show the last result

    TexteAngleCompte = 991, ///< in front of the friction that counts the angle
};
