#include "studies/RapportsCames.h"

#include "core/Etude.h"
#include "reports/CadrePages.h"
#include "studies/TypesEtude.h"

namespace {

using Procedure = void (*)();

/// A report of the print run, and which procedure prints it for a kind of study; none where the kind does not have it.
struct Rapport {
    MarqueImpression marque;
    Procedure (*procedure)(const TypeEtude& type);
};

template <Procedure procedure> Procedure Toujours(const TypeEtude&) {
    return procedure;
}
template <Procedure RapportsEtude::*membre> Procedure DuType(const TypeEtude& type) {
    return type.rapports.*membre;
}
Procedure GraphiqueGalet(const TypeEtude& type) {
    return type.conjuguees ? nullptr : ImprimeGraphiqueLineaire;
}
Procedure GraphiqueBras(const TypeEtude& type) {
    return type.Bras() ? ImprimeGraphiqueBras : nullptr;
}

/// The print run, in its order.
constexpr Rapport rapports[] = {
    {MarqueImpression::Donnees, DuType<&RapportsEtude::donnees>},
    {MarqueImpression::PointsRemarquables, Toujours<ImprimePointsRemarquables>},
    {MarqueImpression::Profil, DuType<&RapportsEtude::profil>},
    {MarqueImpression::GraphiqueMouvement, GraphiqueGalet},
    {MarqueImpression::GraphiqueMouvement, GraphiqueBras},
    {MarqueImpression::GraphiqueForces, Toujours<ImprimeGraphiqueForces>},
    {MarqueImpression::PointsMouvement, DuType<&RapportsEtude::mouvement>},
    {MarqueImpression::PointsForces, Toujours<ImprimePointsForces>},
};

} // namespace

void ImprimeRapportsCames(Imprimante& imprimante, const MarquesImpression& marques) {
    const TirageCames tirage(imprimante, {nullptr, EnTeteMouvement, EnTeteForces});
    const TypeEtude* type = TrouveType(etude.donnees.TypeCame);
    for (const Rapport& rapport : rapports) {
        impression.NumeroLigne = 0;
        const Procedure imprime = type == nullptr ? nullptr : rapport.procedure(*type);
        if (imprime != nullptr && marques.at(static_cast<std::size_t>(rapport.marque))) imprime();
    }
    imprimante.FinDocument();
}
