// The report of the data: geometry and speed, masses, forces, then a block a zone, in the order of the data screens.
#include "data/Textes.h"
#include "data/Unites.h"
#include "reports/CadrePages.h"
#include "studies/RapportsCames.h"
#include "studies/RapportsCamesLignes.h"
#include "studies/TypesEtude.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace {

constexpr const char* MasqueDonnee = "###.##";
constexpr const char* MasqueInertie = "##.#####";

/// A group of the data screen: text number of its caption, and its fields.
struct Groupe {
    int titre;
    std::vector<std::string_view> champs;
};

/// The groups of each data screen, in their order.
struct OrdreDonnees {
    std::string_view type; ///< `TypeCame`
    std::vector<Groupe> groupes;
};

constexpr int Geometrie = 151, Inerties = 158, Forces = 162;

const OrdreDonnees ordres[] = {
    {"Angulaire",
     {{Geometrie, {"CoteA", "CoteB", "RayonO1A", "RayonO1P", "AnglePO1A", "RayonGalet", "VitesseCame"}},
      {Inerties, {"MasseBrasO1A", "MasseBrasO1P", "EpaisseurCame"}},
      {Forces, {"MasseA", "ForceX", "ForceY", "AnglePesanteur"}}}},
    {"Lineaire",
     {{Geometrie, {"RayonGalet", "VitesseCame", "EpaisseurCame"}}, {Forces, {"MasseA", "ForceY", "AnglePesanteur"}}}},
    {"Cylindrique",
     {{Geometrie, {"VitesseCame", "RayonGalet", "DiametreCame"}}, {Forces, {"MasseA", "ForceY", "AnglePesanteur"}}}},
    {"Oscillation",
     {{Geometrie, {"CoteA", "RayonO1P", "DiametreCame", "RayonGalet", "VitesseCame"}},
      {Inerties, {"InertieMasseA", "CoupleConstantO1"}}}},
};

const std::vector<Groupe>& GroupesDonnees(const TypeEtude& type) {
    const auto ordre =
        std::find_if(std::begin(ordres), std::end(ordres), [&](const OrdreDonnees& o) { return o.type == type.nom; });
    if (ordre == std::end(ordres)) throw ErreurExecution(NumeroErreur::AppelIncorrect, type.nom);
    return ordre->groupes;
}

const ChampFichier& TrouveChamp(const TypeEtude& type, std::string_view nom) {
    const auto champ =
        std::find_if(type.champs.begin(), type.champs.end(), [&](const ChampFichier& c) { return nom == c.nom; });
    if (champ == type.champs.end()) throw ErreurExecution(NumeroErreur::AppelIncorrect, std::string(nom));
    return *champ;
}

void AjouteGroupe(std::vector<LigneRapport>& lignes, const TypeEtude& type, const Groupe& groupe) {
    bool titreForces = false;
    lignes.push_back({Texte(groupe.titre), true});
    for (const std::string_view nom : groupe.champs) {
        const ChampFichier& champ = TrouveChamp(type, nom);
        // "x" and "y" alone would not say what they are.
        if (champ.unite == UniteN && !titreForces) {
            lignes.push_back({Espaces(RetraitLigne) + Texte(type.Bras() ? 165 : 392)});
            titreForces = true;
        }
        const char* masque = champ.unite == UniteKgM2 ? MasqueInertie : MasqueDonnee;
        lignes.push_back(
            {LigneValeur(Texte(champ.texte), UniteTexte(champ.unite), Format(etude.donnees.*champ.membre, masque))});
    }
    lignes.push_back({});
}

void AjouteZone(std::vector<LigneRapport>& lignes, const TypeEtude& type, std::int16_t z) {
    const Zone& zone = etude.donnees.Zones[z];
    const DescriptionZones& zones = *type.zones;
    const auto ligne = [&](int texte, int unite, const std::string& valeur) {
        lignes.push_back({LigneValeur(Texte(texte), unite == 0 ? SansUnite : UniteTexte(unite), valeur)});
    };
    lignes.push_back({Texte(187) + std::to_string(z), true});
    ligne(zones.texteDepart, zones.unite, Format(zones.Depart(z), MasqueDonnee));
    ligne(zones.texteFinale, zones.unite, Format(zone.*zones.valeurFinale, MasqueDonnee));
    ligne(zones.texteCame, UniteDegres, Format(zone.AngleCame, MasqueDonnee));
    ligne(105, 0, zone.NomLoi == NomLoiFichier ? Texte(186) : zone.NomLoi);
    ligne(178, 0, Format(zone.CoefSymetrie, MasqueDonnee));
    ligne(704, 0, Format(zone.Temps, MasqueDonnee) + " S.");
    lignes.push_back({});
}

void ImprimeDonnees() {
    const TypeEtude* type = TrouveType(etude.donnees.TypeCame);
    if (type == nullptr) throw ErreurExecution(NumeroErreur::AppelIncorrect, etude.donnees.TypeCame);
    std::vector<LigneRapport> lignes;
    for (const Groupe& groupe : GroupesDonnees(*type)) AjouteGroupe(lignes, *type, groupe);
    lignes.push_back({LigneValeur(Texte(172), SansUnite, std::to_string(etude.donnees.NombreZones))});
    lignes.push_back({LigneValeur(Texte(174), SansUnite, std::to_string(etude.donnees.PointsParDegre))});
    lignes.push_back({});
    for (std::int16_t z = 1; z <= etude.donnees.NombreZones; ++z) AjouteZone(lignes, *type, z);
    lignes.pop_back(); // the empty line behind the last block
    ImprimeRapportLignes(Texte(TitreDonnees), lignes);
}

} // namespace

void ImprimeDonneesAngulaire() {
    ImprimeDonnees();
}
void ImprimeDonneesLineaire() {
    ImprimeDonnees();
}
void ImprimeDonneesCylindrique() {
    ImprimeDonnees();
}
void ImprimeDonneesOscillation() {
    ImprimeDonnees();
}
