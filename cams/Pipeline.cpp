#include "cams/Pipeline.h"

#include "cams/ResultatsFinis.h"

ZonesEnPoints::ZonesEnPoints() {
    for (const Zone& zone : etude.donnees.Zones) degres_.push_back(zone.AngleCame);
}

ZonesEnPoints::~ZonesEnPoints() {
    std::size_t z = 0;
    for (Zone& zone : etude.donnees.Zones)
        if (z < degres_.size()) zone.AngleCame = degres_[z++];
}

void ZonesEnPoints::Passe() {
    etude.resultats.NombrePoints = 0;
    for (int z = 1; z <= etude.donnees.NombreZones; ++z) {
        Zone& zone = etude.donnees.Zones[z];
        zone.AngleCame = zone.AngleCame * etude.donnees.PointsParDegre;
        etude.resultats.NombrePoints = Entier16(etude.resultats.NombrePoints + Arrondi(zone.AngleCame));
    }
}

namespace {

/// Takes the tables of a calculation that a run-time failure stopped out of reach: nobody is to read them as results.
void OublieResultats() {
    etude.resultats.Points = {};
    etude.resultats.Mouvement = {};
    etude.resultats.Profil = {};
    etude.resultats.NombrePoints = 0;
    etude.resultats.ResultatsPrets = Faux;
    etude.resultats.Erreur = Vrai;
}

} // namespace

void DerouleEtapes(const NatureCame& nature, std::initializer_list<Etape> etapes) {
    ZonesEnPoints zones;
    etude.resultats.Perimes = true; // until it has come to its end
    try {
        zones.Passe();
        etude.resultats.Points.Redimensionne(etude.resultats.NombrePoints);
        etude.resultats.Mouvement.Redimensionne(nature.bras ? etude.resultats.NombrePoints : -1);
        etude.resultats.Profil.Redimensionne(etude.resultats.NombrePoints);
        etude.resultats.Developpee = nature.developpee;
        etude.resultats.ProfilExterieur = nature.profilExterieur;
        etude.resultats.Erreur = Faux;
        for (const Etape& etape : etapes) {
            etape();
            if (!SansErreur()) break;
        }
        // The tables of a study that was refused are written too.
        ExigeResultatsFinis();
        if (SansErreur()) etude.resultats.Perimes = false;
    } catch (...) {
        OublieResultats();
        throw;
    }
}
