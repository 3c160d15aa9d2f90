// The catalogues of casings and rollers of the globoidal cams.
#pragma once

#include "indexers/Catalogue.h"

extern const Catalogue CatalogueBoitiers;
extern const Catalogue CatalogueGalets;
