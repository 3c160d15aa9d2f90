// Numbers of the texts that only the globoidal cams use, as they stand one after the other in the catalogue of texts.
#pragma once

enum TexteGlobique : int {
    TexteEntrezArbre = 678,

    PremierTexteGlobique = 878,
    TexteSansLigneFin = PremierTexteGlobique,
    TexteSansCharge,
    TexteNervureMince,
    TexteCourbureInsuffisante,
    TextePressionForte,
    TexteBoitierDepasse,
    TexteRayonPrimitifNul,
    TexteRayonPrimitifReel,
    TexteContact,
    TexteFlancs,
    TexteFlanc1,
    TexteFlanc2,
    TexteFlancTravail,
    TexteArbreNul,
    TexteNervureCentre,
    TexteChargeGalet,
    TexteAngleCame,
    TextePassage,
    TexteProfondeur,
    TexteAnglePression,
    TexteSection,
    TexteParcours,
    TexteBarres,
    TexteZones,
    TexteRetourArbre,
    TexteSymetrieCouple,
    TexteAutreNom = 905,
    TextePartMontree,
    TexteProfondeurNonPrise = 989,
    TexteLoiSansSigne = 992, ///< a law file is read without signs
    TexteMshSansRetour,      ///< what an indexer makes of a law of rise and return
    TexteSauts,              ///< followed by the joints of zones
    TexteCodeBoitier,        ///< followed by the code in use of a casing that is typed
    TexteCodeGalet,          ///< the same of a roller
    TexteValeurNegative = 1005,
};
