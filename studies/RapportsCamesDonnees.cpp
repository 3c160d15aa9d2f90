// The report of the data: geometry and speed, masses, forces, then a block a zone, in the order of the data screens.
#include "data/Textes.h"
#include "reports/CadrePages.h"
#include "studies/RapportsCames.h"
#include "studies/RapportsCamesLignes.h"
#include "studies/TypesEtude.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace {

constexpr const char* MasqueDonnee = "###.##";
constexpr const char* MasqueInertie = "##.#####";
constexpr int UniteMm = 18, UniteDegres = 19, UniteN = 25, UniteKgM2 = 31;

constexpr std::string_view masses[] = {"MasseBrasO1A", "MasseBrasO1P", "EpaisseurCame", "InertieMasseA", "InertieO1"};
constexpr std::string_view forces[] = {"MasseA", "ForceX", "ForceY", "AnglePesanteur", "CoupleConstantO1"};

template <std::size_t N> bool Parmi(const ChampFichier& champ, const std::string_view (&noms)[N]) {
    return std::find(std::begin(noms), std::end(noms), champ.nom) != std::end(noms);
}

/// A group of the data screen: its caption, and which fields stand in it.
struct Groupe {
    int titre;
    bool (*contient)(const ChampFichier&);
};

constexpr Groupe groupes[] = {
    {151, [](const ChampFichier& c) { return !Parmi(c, masses) && !Parmi(c, forces); }},
    {158, [](const ChampFichier& c) { return Parmi(c, masses); }},
    {162, [](const ChampFichier& c) { return Parmi(c, forces); }},
};

/// What start and end value of a zone are called, and their unit.
struct LegendeZone {
    int depart, final, unite;
};

LegendeZone LegendesZone(const TypeEtude& type) {
    if (type.valeurDepart == &Zone::AngleDepart) return {175, 176, UniteDegres};
    return AChamp(type, "DiametreCame") ? LegendeZone{397, 398, UniteMm} : LegendeZone{183, 184, UniteMm};
}

void AjouteGroupe(std::vector<LigneRapport>& lignes, const TypeEtude& type, const Groupe& groupe) {
    bool titre = false, titreForces = false;
    for (const ChampFichier& champ : type.champs) {
        if (!groupe.contient(champ)) continue;
        if (!titre) lignes.push_back({Texte(groupe.titre), true});
        titre = true;
        // "x" and "y" alone would not say what they are.
        if (champ.unite == UniteN && !titreForces) {
            lignes.push_back({Espaces(RetraitLigne) + Texte(type.bras ? 165 : 392)});
            titreForces = true;
        }
        const char* masque = champ.unite == UniteKgM2 ? MasqueInertie : MasqueDonnee;
        lignes.push_back(
            {LigneValeur(Texte(champ.texte), UniteTexte(champ.unite), Format(etude.*champ.membre, masque))});
    }
    if (titre) lignes.push_back({});
}

void AjouteZone(std::vector<LigneRapport>& lignes, const TypeEtude& type, std::int16_t z) {
    const Zone& zone = etude.Zones[z];
    const LegendeZone legendes = LegendesZone(type);
    const auto ligne = [&](int texte, int unite, const std::string& valeur) {
        lignes.push_back({LigneValeur(Texte(texte), unite == 0 ? SansUnite : UniteTexte(unite), valeur)});
    };
    lignes.push_back({Texte(187) + std::to_string(z), true});
    ligne(legendes.depart, legendes.unite, Format(zone.*type.valeurDepart, MasqueDonnee));
    ligne(legendes.final, legendes.unite, Format(zone.*type.valeurFinale, MasqueDonnee));
    ligne(177, UniteDegres, Format(zone.AngleCame, MasqueDonnee));
    ligne(105, 0, zone.NomLoi == NomLoiFichier ? Texte(186) : zone.NomLoi);
    ligne(178, 0, Format(zone.CoefSymetrie, MasqueDonnee));
    ligne(704, 0, Format(zone.Temps, MasqueDonnee) + " S.");
    lignes.push_back({});
}

void ImprimeDonnees() {
    const TypeEtude* type = TrouveType(etude.TypeCame);
    if (type == nullptr) throw ErreurExecution(NumeroErreur::AppelIncorrect, etude.TypeCame);
    std::vector<LigneRapport> lignes;
    for (const Groupe& groupe : groupes) AjouteGroupe(lignes, *type, groupe);
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
