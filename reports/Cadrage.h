// Texts laid out by counting characters, for pages in a fixed-pitch font.
#pragma once

#include "core/Utf8.h" // CoupeEnLignes, too

#include <string>

/// `nombre` blanks.
inline std::string Espaces(int nombre) {
    return std::string(static_cast<std::size_t>(nombre > 0 ? nombre : 0), ' ');
}

/// Characters of a text, which may take several bytes each.
int NombreCaracteres(const std::string& texte);

/// `largeur` characters from the right of a field of blanks that ends in `texte`: what is longer loses its head.
std::string CadreADroite(const std::string& texte, int largeur);

/// `largeur` characters from the left of a text and the blanks behind it: what is longer loses its end.
std::string CadreAGauche(const std::string& texte, int largeur);

/// The first `caracteres` characters of a text.
std::string DebutTexte(const std::string& texte, int caracteres);

/// A name cut in its middle to so many characters; its end tells the kind of study.
std::string NomCoupe(const std::string& nom, int caracteres);
