#include "planecams/ListeZones.h"

#include "core/Etude.h"
#include "data/Textes.h"

namespace {

struct ColonneZone {
    int entete; ///< text number
    bool texte;
    bool brasSeul; ///< only where the zones are those of an arm
    std::string (*valeur)(const Zone&);
};

constexpr const char* MasqueRayon = "###.#";

const ColonneZone colonnes[] = {
    {180, true, false, nullptr},
    {181, false, true, [](const Zone& z) { return StrTrim(z.AngleDepart); }},
    {182, false, true, [](const Zone& z) { return StrTrim(z.AngleFinal); }},
    {177, false, false, [](const Zone& z) { return StrTrim(z.AngleCame); }},
    {183, false, false, [](const Zone& z) { return Format(z.RayonDepart, MasqueRayon); }},
    {184, false, false, [](const Zone& z) { return Format(z.RayonFinal, MasqueRayon); }},
    {105, true, false, [](const Zone& z) { return z.NomLoi; }},
    {185, false, false, [](const Zone& z) { return StrTrim(z.CoefSymetrie); }},
};

std::vector<const ColonneZone*> ColonnesZones(bool bras) {
    std::vector<const ColonneZone*> choisies;
    for (const auto& colonne : colonnes)
        if (bras || !colonne.brasSeul) choisies.push_back(&colonne);
    return choisies;
}

} // namespace

std::vector<std::string> EntetesZones(bool bras) {
    std::vector<std::string> entetes;
    for (const auto* colonne : ColonnesZones(bras)) entetes.push_back(Texte(colonne->entete));
    return entetes;
}

std::vector<bool> ColonnesTexteZones(bool bras) {
    std::vector<bool> textes;
    for (const auto* colonne : ColonnesZones(bras)) textes.push_back(colonne->texte);
    return textes;
}

std::string CelluleZone(bool bras, int ligne, int colonne, std::int16_t entrees) {
    if (colonne == 0) return Texte(187) + std::to_string(ligne + 1);
    if (ligne >= entrees || ligne + 1 > etude.Zones.BorneHaute()) return {};
    return ColonnesZones(bras)[static_cast<std::size_t>(colonne)]->valeur(etude.Zones[ligne + 1]);
}
