#include "studies/RapportsCames.h"

#include "data/Textes.h"
#include "studies/TypesEtude.h"

namespace {

using Procedure = void (*)();

/// For which cams of a study of several a report is printed.
enum class Portee {
    Ensemble,     ///< once, for all of them
    PremiereCame, ///< for the first: the others have the same
    ChaqueCame,
};

/// A report of the print run, and which procedure prints it for a kind of study; none where the kind does not have it.
struct Rapport {
    MarqueImpression marque;
    Procedure (*procedure)(const TypeEtude& type);
    Portee portee = Portee::Ensemble;
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
Procedure PointsMouvement(const TypeEtude& type) {
    return type.rapports.pointsMouvement == nullptr ? nullptr : ImprimePointsMouvement;
}

/// The print run, in its order.
constexpr Rapport rapports[] = {
    {MarqueImpression::Donnees, DuType<&RapportsEtude::donnees>},
    {MarqueImpression::PointsRemarquables, Toujours<ImprimePointsRemarquables>},
    {MarqueImpression::Profil, DuType<&RapportsEtude::profil>},
    {MarqueImpression::GraphiqueMouvement, GraphiqueGalet},
    {MarqueImpression::GraphiqueMouvement, GraphiqueBras, Portee::PremiereCame},
    {MarqueImpression::GraphiqueForces, Toujours<ImprimeGraphiqueForces>, Portee::ChaqueCame},
    {MarqueImpression::PointsMouvement, PointsMouvement},
    {MarqueImpression::PointsForces, Toujours<ImprimePointsForces>, Portee::ChaqueCame},
};

Tirage* enCours = nullptr;
const DescriptionPasse* cameEnCours = nullptr; ///< the cam that a report is printed for; none for the whole study

void ImprimeSelonPortee(const TypeEtude& type, Procedure imprime, Portee portee) {
    if (portee == Portee::Ensemble) return imprime();
    bool premiere = true;
    PourChaqueCame(type, [&](const DescriptionPasse* came) {
        if (portee == Portee::ChaqueCame) cameEnCours = came;
        if (portee == Portee::ChaqueCame || premiere) imprime();
        cameEnCours = nullptr;
        premiere = false;
    });
}

/// A run is under way for the life of this object.
class TirageEnCours {
public:
    explicit TirageEnCours(Tirage& tirage) { enCours = &tirage; }
    ~TirageEnCours() {
        enCours = nullptr;
        cameEnCours = nullptr;
    }
    TirageEnCours(const TirageEnCours&) = delete;
    TirageEnCours& operator=(const TirageEnCours&) = delete;
};

} // namespace

Tirage& TirageCames() {
    if (enCours == nullptr) throw ErreurExecution(NumeroErreur::AppelIncorrect);
    return *enCours;
}

std::string TitreCame(int titre) {
    return cameEnCours == nullptr ? Texte(titre) : Texte(titre) + " : " + Texte(cameEnCours->titre);
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
    for (const Rapport& rapport : rapports) {
        const Procedure imprime = type == nullptr ? nullptr : rapport.procedure(*type);
        if (imprime != nullptr && marques.at(static_cast<std::size_t>(rapport.marque)))
            ImprimeSelonPortee(*type, imprime, rapport.portee);
    }
    tirage.FinDocument();
}
