// What the zones of a kind of cam give, what it is called and in which unit. Data screens, results, files and reports
// read it here.
#pragma once

#include "core/Etude.h"
#include "data/Unites.h"

struct DescriptionZones {
    double Zone::*valeurDepart; ///< what is entered for the start and the end of a zone
    double Zone::*valeurFinale;
    int texteDepart, texteFinale, texteCame; ///< text numbers of the captions
    int unite;                               ///< text number of the unit of both values
    bool rayonsBras;                         ///< the values are angles of an arm, which give radii
    bool loiDeFichier;                       ///< a one-zone study may take its law from a file
    bool departsSuivis = false;              ///< a zone begins where the one before ends, whatever stands as its start
    bool plusieursTours = false;             ///< the track may run round the cam more than once

    /// Value that zone `z`, from 1, begins with.
    double Depart(long z) const {
        return departsSuivis && z > 1 ? etude.donnees.Zones[z - 1].*valeurFinale : etude.donnees.Zones[z].*valeurDepart;
    }

    /// True where the zones are those of an arm, and the motion table holds its angles.
    constexpr bool Bras() const { return valeurDepart == &Zone::AngleDepart; }
};
