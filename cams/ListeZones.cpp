#include "cams/ListeZones.h"

#include "core/Etude.h"
#include "data/Textes.h"

#include <utility>

namespace {

struct ColonneZone {
    int (*entete)(const DescriptionZones&); ///< text number; 0 where this kind of cam does not have the column
    bool texte;
    std::string (*valeur)(const DescriptionZones&, long zone); ///< zone from 1; none for the column of their names
};

template <int texte> int Toujours(const DescriptionZones&) {
    return texte;
}
template <int texte> int SiBras(const DescriptionZones& zones) {
    return zones.Bras() ? texte : 0;
}
int EnteteCame(const DescriptionZones& zones) {
    return zones.texteCame;
}
/// Radii or heights: what was entered, or what the angles of the arm gave.
template <int DescriptionZones::*entre, int donne> int EnteteRayon(const DescriptionZones& zones) {
    if (zones.Bras()) return zones.rayonsBras ? donne : 0;
    return zones.*entre;
}

template <double Zone::*membre> std::string Entre(const DescriptionZones&, long z) {
    return StrTrim(etude.donnees.Zones[z].*membre);
}

/// What was entered stands as it is; a radius that the arm gave is rounded.
std::string EcritRayon(const DescriptionZones& zones, double rayon) {
    return zones.Bras() ? Format(rayon, "###.#") : StrTrim(rayon);
}

const ColonneZone colonnes[] = {
    {Toujours<180>, true, nullptr},
    {SiBras<181>, false, [](const DescriptionZones& d, long z) { return StrTrim(d.Depart(z)); }},
    {SiBras<182>, false, Entre<&Zone::AngleFinal>},
    {EnteteCame, false, Entre<&Zone::AngleCame>},
    {EnteteRayon<&DescriptionZones::texteDepart, 183>, false,
     [](const DescriptionZones& d, long z) {
         return EcritRayon(d, d.Bras() ? etude.donnees.Zones[z].RayonDepart : d.Depart(z));
     }},
    {EnteteRayon<&DescriptionZones::texteFinale, 184>, false,
     [](const DescriptionZones& d, long z) { return EcritRayon(d, etude.donnees.Zones[z].RayonFinal); }},
    {Toujours<105>, true, [](const DescriptionZones&, long z) { return etude.donnees.Zones[z].NomLoi; }},
    {Toujours<185>, false, Entre<&Zone::CoefSymetrie>},
};

/// What a zone is called, then what was entered or calculated for it.
std::string Cellule(const ColonneZone& colonne, const DescriptionZones& zones, long z, std::int16_t entrees) {
    if (colonne.valeur == nullptr) return Texte(187) + std::to_string(z);
    if (z > entrees || z > etude.donnees.Zones.BorneHaute()) return {};
    return colonne.valeur(zones, z);
}

} // namespace

TableTexte TableZones(const DescriptionZones& zones, std::int16_t entrees) {
    TableTexte table;
    table.lignes = etude.donnees.NombreZones;
    for (const auto& colonne : colonnes) {
        const int entete = colonne.entete(zones);
        if (entete == 0) continue;
        // Written now: while a calculation runs, behind a box of it too, the zones of the record are in points.
        std::vector<std::string> cellules;
        for (long z = 1; z <= table.lignes; ++z) cellules.push_back(Cellule(colonne, zones, z, entrees));
        table.colonnes.push_back(
            {Texte(entete), "",
             [cellules = std::move(cellules)](int ligne) { return cellules[static_cast<std::size_t>(ligne)]; },
             colonne.texte ? Cote::Gauche : Cote::Droite});
    }
    return table;
}
