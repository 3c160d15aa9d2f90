#include "globoidal/CataloguesGlobiques.h"

#include "globoidal/TextesGlobiques.h"

namespace {

constexpr int TexteSuiteImpossible = 509;

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

// A roller is kept with any number but 0, on purpose: the drum, which shares the table, wants them above it.
constexpr ChampCatalogue champsGalets[] = {
    {"DiametreGalet", "DiametreGalet", false, true, 542, Nul},
    {"HauteurGalet", "HauteurGalet", false, true, 543, Nul},
    {"CapaciteB10", "CapaciteB10", false, true, 544, Nul},
    {"CapaciteLimite", "CapaciteLimite", false, true, 545, Nul},
    {"codemi", "codemi", false, false},
};

} // namespace

const Catalogue CatalogueBoitiers{.table = "Table Mécanismes Globique",
                                  .champCle = "Modele",
                                  .membreCle = "Modele",
                                  .champs = champsBoitiers,
                                  .texteCleVide = 546,
                                  .texteCleExiste = {550, TexteAutreNom},
                                  .titreCleExiste = TexteSuiteImpossible};
const Catalogue CatalogueGalets{.table = "Table Galets",
                                .champCle = "ReferenceGalet",
                                .membreCle = "ReferenceGalet",
                                .champs = champsGalets,
                                .texteCleVide = 541,
                                .texteCleExiste = {673, TexteAutreNom},
                                .titreCleExiste = TexteSuiteImpossible};
