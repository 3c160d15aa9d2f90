#include "globoidal/screens/PanneauxGlobiques.h"

#include "globoidal/CataloguesGlobiques.h"
#include "globoidal/DonneesGlobiques.h"
#include "indexers/screens/PanneauLoi.h"
#include "indexers/screens/PanneauSaisie.h"
#include "laws/CalculLois.h"

#include <stdexcept>

namespace {

constexpr int TexteBoitier = 593, TexteMouvement = 776, TexteGalets = 289;

} // namespace

std::vector<ChampLie> PanneauxGlobiques::Choisis(std::span<const char* const> membres) const {
    std::vector<ChampLie> choisis;
    for (const std::string_view membre : membres)
        for (const ChampLie& champ : champs_)
            if (membre == champ.nom) choisis.push_back(champ);
    if (choisis.size() != membres.size()) throw std::logic_error("a member of no row");
    return choisis;
}

PanneauSaisie* PanneauxGlobiques::FaitBoitier() const {
    static constexpr const char* membres[] = {"Modele",        "Boitier",         "Entraxe",
                                              "RayonTourelle", "InertieTourelle", "CapaciteArbreEntree",
                                              "CameMaxDiam",   "CameMaxLong"};
    return new PanneauSaisie("Frame1", TexteBoitier, Choisis(membres), CatalogueBoitiers, {"GardeModele", 414});
}

PanneauSaisie* PanneauxGlobiques::FaitMouvement(std::span<const char* const> membres) const {
    return new PanneauSaisie("FrameMouvement", TexteMouvement, Choisis(membres));
}

PanneauSaisie* PanneauxGlobiques::FaitGalet() const {
    static constexpr const char* membres[] = {"ReferenceGalet", "codemi",      "DiametreGalet",
                                              "HauteurGalet",   "CapaciteB10", "CapaciteLimite"};
    return new PanneauSaisie("Frame4", TexteGalets, Choisis(membres), CatalogueGalets, {"GardeGalets", 415});
}

PanneauLoi* PanneauxGlobiques::FaitLoi(const char* nom, int titre, const std::array<const char*, 5>& membres,
                                       const char* panneau, const char* ok,
                                       std::initializer_list<const char*> retour) const {
    const std::vector<ChampLie> c = Choisis(membres);
    std::vector<std::string> lois = NomsLoisZones();
    std::erase(lois, NomLoiFichier);
    lois.insert(lois.end(), retour.begin(), retour.end());
    lois.emplace_back(NomLoiFichier);
    return new PanneauLoi(nom, titre, {c[0], c[1], c[2], c[3], c[4], panneau, ok, PartVitesseMax, Icone::Avertissement},
                          lois);
}
