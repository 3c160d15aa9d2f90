#include "studies/RapportsCames.h"

#include "core/Etude.h"
#include "reports/CadrePages.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace {

constexpr std::string_view Angulaire[] = {"Angulaire"}, Lineaire[] = {"Lineaire"}, Cylindrique[] = {"Cylindrique"},
                           Oscillation[] = {"Oscillation"};
constexpr std::string_view Plates[] = {"Angulaire", "Lineaire"}, Cylindres[] = {"Cylindrique", "Oscillation"};
constexpr std::string_view Simples[] = {"Angulaire", "Lineaire", "Cylindrique", "Oscillation"};
constexpr std::string_view ABras[] = {"Angulaire", "Oscillation", "ConjuguesOscillation"};
constexpr std::string_view Toutes[] = {"Angulaire", "Lineaire", "Cylindrique", "Oscillation", "ConjuguesOscillation"};

struct Rapport {
    MarqueImpression marque;
    std::span<const std::string_view> types; ///< the `TypeCame` that have it
    void (*imprime)();
};

/// The print run, in its order.
constexpr Rapport rapports[] = {
    {MarqueImpression::Donnees, Angulaire, ImprimeDonneesAngulaire},
    {MarqueImpression::Donnees, Lineaire, ImprimeDonneesLineaire},
    {MarqueImpression::Donnees, Cylindrique, ImprimeDonneesCylindrique},
    {MarqueImpression::Donnees, Oscillation, ImprimeDonneesOscillation},
    {MarqueImpression::PointsRemarquables, Toutes, ImprimePointsRemarquables},
    {MarqueImpression::Profil, Plates, ImprimeProfilPlat},
    {MarqueImpression::Profil, Cylindres, ImprimeProfilCylindre},
    {MarqueImpression::GraphiqueMouvement, Simples, ImprimeGraphiqueLineaire},
    {MarqueImpression::GraphiqueMouvement, ABras, ImprimeGraphiqueBras},
    {MarqueImpression::GraphiqueForces, Toutes, ImprimeGraphiqueForces},
    {MarqueImpression::PointsMouvement, Simples, ImprimePointsMouvement},
    {MarqueImpression::PointsForces, Toutes, ImprimePointsForces},
};

} // namespace

void ImprimeRapportsCames(Imprimante& imprimante, const MarquesImpression& marques) {
    const TirageCames tirage(imprimante, {nullptr, EnTeteMouvement, EnTeteForces});
    for (const Rapport& rapport : rapports) {
        impression.NumeroLigne = 0;
        const bool pourCeType =
            std::find(rapport.types.begin(), rapport.types.end(), etude.donnees.TypeCame) != rapport.types.end();
        if (pourCeType && marques.at(static_cast<std::size_t>(rapport.marque))) rapport.imprime();
    }
    imprimante.FinDocument();
}
