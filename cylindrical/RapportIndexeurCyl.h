// The printed report of a drum cam: the developed cam over a page, and the table of the roller centres.
#pragma once

#include "cylindrical/IndexeurCylindrique.h"
#include "platform/Imprimante.h"

#include <string>

/// Prints the drawing and, where it is wanted, the rows of the motion; ends the document.
/// @param designation of the cam, at the head of every page
void ImprimeIndexeurCylindrique(Imprimante& imprimante, const IndexeurCylindrique& donnees,
                                const ResultatIndexeurCylindrique& resultat, const std::string& designation,
                                bool avecTable);
