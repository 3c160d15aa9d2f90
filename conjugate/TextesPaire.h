// The texts that only the pair of conjugate cams has.
#pragma once

enum TextesPaire {
    TexteEntraxeGalets = 940, ///< distance of the roller centres
    TexteEcartEntraxe,        ///< largest difference of what the profiles offer from it
    TexteJeuGuide,            ///< contact of the guide cam to the roller G2
    TexteJeuSuiveuse,         ///< contact of the follower cam to the roller G1
    TexteOuvertes,            ///< where the pair does not close
    TexteHeurtees,            ///< where a contact lies inside the other roller
    TexteNullePart,
    TexteFermeture,     ///< caption of all these
    TexteNoteFermeture, ///< why a pair may gape although it is calculated by the rule
    TexteNoteDistances, ///< what the headings "O1 - G1" and "O1 - G2" stand for
    TexteEcart,         ///< heading of the column of the differences
};
