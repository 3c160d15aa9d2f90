#include "globoidal/CataloguesGlobiques.h"

#include "globoidal/TextesGlobiques.h"

namespace {

// A value that the table does not have shows as 0.
constexpr ChampCatalogue champsBoitiers[] = {
    {"Entraxe", "Entraxe", false, true, 547},
    {"RayonTourelle", "RayonTourelle", false, true, 548},
    {"InertieTourelle", "InertieTourelle"},
    {"CapaciteArbreEntree", "CapacitéArbreEntree", false, true, TexteEntrezArbre},
    {"CameMaxDiam", "CameMaxDiam"},
    {"CameMaxLong", "CameMaxLong"},
    {"Boitier", "Boitier"},
};

constexpr ChampCatalogue champsGalets[] = {
    {"DiametreGalet", "DiametreGalet", false, true, 542},
    {"HauteurGalet", "HauteurGalet", false, true, 543},
    {"CapaciteB10", "CapaciteB10", false, true, 544},
    {"CapaciteLimite", "CapaciteLimite", false, true, 545},
    {"codemi", "codemi", false, false},
};

} // namespace

const Catalogue CatalogueBoitiers{"Table Mécanismes Globique", "Modele", "Modele", champsBoitiers, 546,
                                  {550, TexteAutreNom}};
const Catalogue CatalogueGalets{"Table Galets",      "ReferenceGalet", "ReferenceGalet", champsGalets, 541,
                                {673, TexteAutreNom}};
