// The report of the data: geometry and speed, masses, forces, then a block a zone, in the order of the data screens.
#include "data/Textes.h"
#include "data/Unites.h"
#include "reports/CadrePages.h"
#include "studies/RapportsCames.h"
#include "studies/RapportsCamesLignes.h"
#include "studies/TypesEtude.h"

#include <vector>

namespace {

constexpr const char* MasqueInertie = "##.#####";

/// A group of the data screen.
void AjouteGroupe(std::vector<LigneRapport>& lignes, const TypeEtude& type, const GroupeDonnees& groupe) {
    if (!groupe.suite) {
        if (!lignes.empty()) lignes.push_back({});
        lignes.push_back({Texte(groupe.titre) + groupe.suiteTitre, true});
    } else if (!groupe.pesanteur) {
        // "x" and "y" alone would not say what they are.
        lignes.push_back({Espaces(RetraitLigne) + Texte(groupe.titre)});
    }
    for (const char* nom : groupe.Champs()) {
        const ChampEtude& champ = ChampNomme(type.champs, nom);
        const char* masque = champ.unite == UniteKgM2 ? MasqueInertie : champ.masque;
        lignes.push_back(
            {LigneValeur(Texte(champ.texte), UniteTexte(champ.unite), Format(champ.Nombre(etude.donnees), masque))});
    }
}

void AjouteZone(std::vector<LigneRapport>& lignes, const TypeEtude& type, int z) {
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
    for (const GroupeDonnees& groupe : type->groupes) AjouteGroupe(lignes, *type, groupe);
    lignes.push_back({});
    lignes.push_back({LigneValeur(Texte(172), SansUnite, std::to_string(etude.donnees.NombreZones))});
    lignes.push_back({LigneValeur(Texte(174), SansUnite, std::to_string(etude.donnees.PointsParDegre))});
    lignes.push_back({});
    for (int z = 1; z <= etude.donnees.NombreZones; ++z) AjouteZone(lignes, *type, z);
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
void ImprimeDonneesConjuguees() {
    ImprimeDonnees();
}
