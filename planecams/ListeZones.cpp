#include "planecams/ListeZones.h"

#include "core/Etude.h"
#include "data/Textes.h"

namespace {

struct ColonneZone {
    int entete; ///< text number
    bool texte;
    std::string (*valeur)(const Zone&);
};

constexpr const char* MasqueRayon = "###.#";

const ColonneZone colonnes[] = {
    {180, true, nullptr},
    {181, false, [](const Zone& z) { return StrTrim(z.AngleDepart); }},
    {182, false, [](const Zone& z) { return StrTrim(z.AngleFinal); }},
    {177, false, [](const Zone& z) { return StrTrim(z.AngleCame); }},
    {183, false, [](const Zone& z) { return Format(z.RayonDepart, MasqueRayon); }},
    {184, false, [](const Zone& z) { return Format(z.RayonFinal, MasqueRayon); }},
    {105, true, [](const Zone& z) { return z.NomLoi; }},
    {185, false, [](const Zone& z) { return StrTrim(z.CoefSymetrie); }},
};

} // namespace

std::vector<std::string> EntetesZones() {
    std::vector<std::string> entetes;
    for (const auto& colonne : colonnes) entetes.push_back(Texte(colonne.entete));
    return entetes;
}

std::vector<bool> ColonnesTexteZones() {
    std::vector<bool> textes;
    for (const auto& colonne : colonnes) textes.push_back(colonne.texte);
    return textes;
}

std::string CelluleZone(int ligne, int colonne, std::int16_t entrees) {
    if (colonne == 0) return Texte(187) + std::to_string(ligne + 1);
    if (ligne >= entrees || ligne + 1 > etude.Zones.BorneHaute()) return {};
    return colonnes[colonne].valeur(etude.Zones[ligne + 1]);
}
