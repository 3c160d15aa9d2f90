#include "planecams/CamesPlates.h"

#include "core/Etude.h"
#include "planecams/ForcesCame.h"
#include "planecams/GeometrieCame.h"
#include "planecams/MouvementCame.h"

namespace {

/// Takes the tables of a calculation that a run-time failure stopped out of reach: nobody is to read them as results.
void OublieResultats() {
    etude.Points = {};
    etude.Mouvement = {};
    etude.Profil = {};
    etude.NombrePoints = 0;
    etude.ResultatsPrets = Faux;
    etude.Erreur = Vrai;
}

/// The stages that tell one plane cam from the other.
struct Etapes {
    bool bras; ///< an arm: `Mouvement` is filled, and the arm must not cross the cam centre
    void (*mouvement)();
    void (*forces)();
};

void CalculeCamePlate(const Etapes& etapes) {
    ZonesEnPoints zones;
    try {
        zones.Passe();
        etude.Points.Redimensionne(etude.NombrePoints);
        etude.Mouvement.Redimensionne(etapes.bras ? etude.NombrePoints : -1);
        etude.Profil.Redimensionne(etude.NombrePoints);
        etude.Erreur = Faux;
        etapes.mouvement();
        if (SansErreur()) {
            CalculeProfil();
            etude.Erreur = Faux;
            if (etapes.bras) ControleBrasCentre();
        }
        if (SansErreur()) ControleCourbure();
        if (SansErreur()) etapes.forces();
    } catch (...) {
        OublieResultats();
        throw;
    }
}

} // namespace

void CalculeCameAngulaire() {
    CalculeCamePlate({true, CalculeMouvementBras, CalculeForcesBras});
}

void CalculeCameLineaire() {
    CalculeCamePlate({false, CalculeMouvementLineaire, CalculeForcesLineaire});
}
