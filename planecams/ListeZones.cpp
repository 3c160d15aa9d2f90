#include "planecams/ListeZones.h"

#include "core/Etude.h"
#include "data/Textes.h"

namespace {

struct ColonneZone {
    int (*entete)(const DescriptionZones&); ///< text number; 0 where this kind of cam does not have the column
    bool texte;
    std::string (*valeur)(const Zone&);
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

constexpr const char* MasqueRayon = "###.#";

const ColonneZone colonnes[] = {
    {Toujours<180>, true, nullptr},
    {SiBras<181>, false, [](const Zone& z) { return StrTrim(z.AngleDepart); }},
    {SiBras<182>, false, [](const Zone& z) { return StrTrim(z.AngleFinal); }},
    {EnteteCame, false, [](const Zone& z) { return StrTrim(z.AngleCame); }},
    {EnteteRayon<&DescriptionZones::texteDepart, 183>, false,
     [](const Zone& z) { return Format(z.RayonDepart, MasqueRayon); }},
    {EnteteRayon<&DescriptionZones::texteFinale, 184>, false,
     [](const Zone& z) { return Format(z.RayonFinal, MasqueRayon); }},
    {Toujours<105>, true, [](const Zone& z) { return z.NomLoi; }},
    {Toujours<185>, false, [](const Zone& z) { return StrTrim(z.CoefSymetrie); }},
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
    if (ligne >= entrees || ligne + 1 > etude.Zones.BorneHaute()) return {};
    return ColonnesZones(zones)[static_cast<std::size_t>(colonne)]->valeur(etude.Zones[ligne + 1]);
}
