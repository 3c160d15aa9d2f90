#include "studies/RapportsCames.h"

#include "studies/TypesEtude.h"

namespace {

struct Rapport {
    MarqueImpression marque;
    bool (*pour)(const TypeEtude&); ///< the kinds of study that have it
    void (*imprime)();
};

bool Toutes(const TypeEtude&) {
    return true;
}
bool Plates(const TypeEtude& type) {
    return !type.developpee && !type.conjuguees;
}
bool Developpees(const TypeEtude& type) {
    return type.developpee;
}
bool Seules(const TypeEtude& type) {
    return !type.conjuguees;
}
bool ABras(const TypeEtude& type) {
    return type.Bras();
}
bool ADonnees(const TypeEtude& type) {
    return type.imprimeDonnees != nullptr;
}
bool APointsMouvement(const TypeEtude& type) {
    return type.pointsMouvement != nullptr;
}

void ImprimeDonnees() {
    LeTypeEtude().imprimeDonnees();
}

/// The print run, in its order.
constexpr Rapport rapports[] = {
    {MarqueImpression::Donnees, ADonnees, ImprimeDonnees},
    {MarqueImpression::PointsRemarquables, Toutes, ImprimePointsRemarquables},
    {MarqueImpression::Profil, Plates, ImprimeProfilPlat},
    {MarqueImpression::Profil, Developpees, ImprimeProfilCylindre},
    {MarqueImpression::GraphiqueMouvement, Seules, ImprimeGraphiqueLineaire},
    {MarqueImpression::GraphiqueMouvement, ABras, ImprimeGraphiqueBras},
    {MarqueImpression::GraphiqueForces, Toutes, ImprimeGraphiqueForces},
    {MarqueImpression::PointsMouvement, APointsMouvement, ImprimePointsMouvement},
    {MarqueImpression::PointsForces, Toutes, ImprimePointsForces},
};

Tirage* enCours = nullptr;

/// A run is under way for the life of this object.
class TirageEnCours {
public:
    explicit TirageEnCours(Tirage& tirage) { enCours = &tirage; }
    ~TirageEnCours() { enCours = nullptr; }
    TirageEnCours(const TirageEnCours&) = delete;
    TirageEnCours& operator=(const TirageEnCours&) = delete;
};

} // namespace

Tirage& TirageCames() {
    if (enCours == nullptr) throw ErreurExecution(NumeroErreur::AppelIncorrect);
    return *enCours;
}

void DebutPageCames(const std::string& titre) {
    TirageCames().DebutRapport();
    TirageCames().Titre(etude.donnees.NomFichier, titre);
}

void ImprimeRapportLignes(const std::string& titre, std::span<const LigneRapport> lignes) {
    ImprimeRapportLignes(TirageCames(), etude.donnees.NomFichier, titre, lignes);
}

void ImprimeRapportsCames(Imprimante& imprimante, const MarquesImpression& marques) {
    Tirage tirage(imprimante);
    const TirageEnCours marque(tirage);
    const TypeEtude* type = TrouveType(etude.donnees.TypeCame);
    for (const Rapport& rapport : rapports)
        if (type != nullptr && rapport.pour(*type) && marques.at(static_cast<std::size_t>(rapport.marque)))
            rapport.imprime();
    tirage.FinDocument();
}
