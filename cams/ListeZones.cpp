#include "cams/ListeZones.h"

#include "core/Etude.h"
#include "data/Textes.h"

namespace {

struct ColonneZone {
    int (*entete)(const DescriptionZones&); ///< text number; 0 where this kind of cam does not have the column
    bool texte;
    std::string (*valeur)(const DescriptionZones&, long zone); ///< zone from 1
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

std::vector<const ColonneZone*> ColonnesZones(const DescriptionZones& zones) {
    std::vector<const ColonneZone*> choisies;
    for (const auto& colonne : colonnes)
        if (colonne.entete(zones) != 0) choisies.push_back(&colonne);
    return choisies;
}

} // namespace

std::vector<std::string> EntetesZones(const DescriptionZones& zones) {
    std::vector<std::string> entetes;
    for (const auto* colonne : ColonnesZones(zones)) entetes.push_back(Texte(colonne->entete(zones)));
    return entetes;
}

std::vector<bool> ColonnesTexteZones(const DescriptionZones& zones) {
    std::vector<bool> textes;
    for (const auto* colonne : ColonnesZones(zones)) textes.push_back(colonne->texte);
    return textes;
}

std::string CelluleZone(const DescriptionZones& zones, int ligne, int colonne, std::int16_t entrees) {
    if (colonne == 0) return Texte(187) + std::to_string(ligne + 1);
    if (ligne >= entrees || ligne + 1 > etude.donnees.Zones.BorneHaute()) return {};
    return ColonnesZones(zones)[static_cast<std::size_t>(colonne)]->valeur(zones, ligne + 1);
}
