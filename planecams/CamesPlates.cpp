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

} // namespace

void CalculeCameAngulaire() {
    ZonesEnPoints zones;
    try {
        zones.Passe();
        etude.Points.Redimensionne(etude.NombrePoints);
        etude.Mouvement.Redimensionne(etude.NombrePoints);
        etude.Profil.Redimensionne(etude.NombrePoints);
        etude.Erreur = Faux;
        CalculeMouvementBras();
        if (SansErreur()) {
            CalculeProfil();
            etude.Erreur = Faux;
            ControleBrasCentre();
        }
        if (SansErreur()) {
            etude.Erreur = Faux;
            ControleCourbure();
        }
        if (SansErreur()) CalculeForcesBras();
    } catch (...) {
        OublieResultats();
        throw;
    }
}
