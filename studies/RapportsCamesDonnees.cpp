// The report of the data: geometry and speed, masses, forces, then a block a zone, in the order of the data screens.
#include "data/Textes.h"
#include "data/Unites.h"
#include "reports/CadrePages.h"
#include "studies/RapportsCames.h"
#include "studies/RapportsCamesLignes.h"
#include "studies/TypesEtude.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace {

constexpr const char* MasqueDonnee = "###.##";
constexpr const char* MasqueInertie = "##.#####";

/// Fields of the groups behind the first, in the order of the data screens.
constexpr std::string_view masses[] = {"MasseBrasO1A", "MasseBrasO1P", "EpaisseurCame", "InertieMasseA", "InertieO1"};
constexpr std::string_view forces[] = {"MasseA", "ForceX", "ForceY", "AnglePesanteur", "CoupleConstantO1"};

/// A group of the data screen: its caption and its fields.
struct Groupe {
    int titre;
    std::vector<const ChampFichier*> champs;
};

std::vector<const ChampFichier*> Choisit(const TypeEtude& type, std::span<const std::string_view> noms) {
    std::vector<const ChampFichier*> choisis;
    for (const std::string_view nom : noms)
        for (const ChampFichier& champ : type.champs)
            if (nom == champ.nom) choisis.push_back(&champ);
    return choisis;
}

/// The thickness of the cam stands alone with the geometry where nothing else has a mass of its own.
std::vector<Groupe> GroupesDonnees(const TypeEtude& type) {
    Groupe geometrie{151, {}}, masse{158, Choisit(type, masses)}, force{162, Choisit(type, forces)};
    if (masse.champs.size() == 1 && masse.champs.front()->nom == std::string_view("EpaisseurCame"))
        masse.champs.clear();
    for (const ChampFichier& champ : type.champs) {
        const auto tient = [&](const Groupe& g) {
            return std::find(g.champs.begin(), g.champs.end(), &champ) != g.champs.end();
        };
        if (!tient(masse) && !tient(force)) geometrie.champs.push_back(&champ);
    }
    return {geometrie, masse, force};
}

void AjouteGroupe(std::vector<LigneRapport>& lignes, const TypeEtude& type, const Groupe& groupe) {
    if (groupe.champs.empty()) return;
    bool titreForces = false;
    lignes.push_back({Texte(groupe.titre), true});
    for (const ChampFichier* champ : groupe.champs) {
        // "x" and "y" alone would not say what they are.
        if (champ->unite == UniteN && !titreForces) {
            lignes.push_back({Espaces(RetraitLigne) + Texte(type.Bras() ? 165 : 392)});
            titreForces = true;
        }
        const char* masque = champ->unite == UniteKgM2 ? MasqueInertie : MasqueDonnee;
        lignes.push_back(
            {LigneValeur(Texte(champ->texte), UniteTexte(champ->unite), Format(etude.*champ->membre, masque))});
    }
    lignes.push_back({});
}

void AjouteZone(std::vector<LigneRapport>& lignes, const TypeEtude& type, std::int16_t z) {
    const Zone& zone = etude.Zones[z];
    const DescriptionZones& zones = *type.zones;
    const auto ligne = [&](int texte, int unite, const std::string& valeur) {
        lignes.push_back({LigneValeur(Texte(texte), unite == 0 ? SansUnite : UniteTexte(unite), valeur)});
    };
    lignes.push_back({Texte(187) + std::to_string(z), true});
    ligne(zones.texteDepart, zones.unite, Format(zone.*zones.valeurDepart, MasqueDonnee));
    ligne(zones.texteFinale, zones.unite, Format(zone.*zones.valeurFinale, MasqueDonnee));
    ligne(zones.texteCame, UniteDegres, Format(zone.AngleCame, MasqueDonnee));
    ligne(105, 0, zone.NomLoi == NomLoiFichier ? Texte(186) : zone.NomLoi);
    ligne(178, 0, Format(zone.CoefSymetrie, MasqueDonnee));
    ligne(704, 0, Format(zone.Temps, MasqueDonnee) + " S.");
    lignes.push_back({});
}

void ImprimeDonnees() {
    const TypeEtude* type = TrouveType(etude.TypeCame);
    if (type == nullptr) throw ErreurExecution(NumeroErreur::AppelIncorrect, etude.TypeCame);
    std::vector<LigneRapport> lignes;
    for (const Groupe& groupe : GroupesDonnees(*type)) AjouteGroupe(lignes, *type, groupe);
    lignes.push_back({LigneValeur(Texte(172), SansUnite, std::to_string(etude.NombreZones))});
    lignes.push_back({LigneValeur(Texte(174), SansUnite, std::to_string(etude.PointsParDegre))});
    lignes.push_back({});
    for (std::int16_t z = 1; z <= etude.NombreZones; ++z) AjouteZone(lignes, *type, z);
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
