#include "cams/Pipeline.h"

ZonesEnPoints::ZonesEnPoints() {
    for (const Zone& zone : etude.Zones) degres_.push_back(zone.AngleCame);
}

ZonesEnPoints::~ZonesEnPoints() {
    std::size_t z = 0;
    for (Zone& zone : etude.Zones)
        if (z < degres_.size()) zone.AngleCame = degres_[z++];
}

void ZonesEnPoints::Passe() {
    etude.NombrePoints = 0;
    for (std::int16_t z = 1; z <= etude.NombreZones; ++z) {
        Zone& zone = etude.Zones[z];
        zone.AngleCame = zone.AngleCame * etude.PointsParDegre;
        etude.NombrePoints = Entier16(etude.NombrePoints + Arrondi(zone.AngleCame));
    }
}

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

void DerouleEtapes(const NatureCame& nature, std::initializer_list<Etape> etapes) {
    ZonesEnPoints zones;
    try {
        zones.Passe();
        etude.Points.Redimensionne(etude.NombrePoints);
        etude.Mouvement.Redimensionne(nature.bras ? etude.NombrePoints : -1);
        etude.Profil.Redimensionne(etude.NombrePoints);
        etude.Developpee = nature.developpee;
        etude.ProfilExterieur = nature.profilExterieur;
        etude.Erreur = Faux;
        for (const Etape etape : etapes) {
            etape();
            if (!SansErreur()) return;
        }
    } catch (...) {
        OublieResultats();
        throw;
    }
}
