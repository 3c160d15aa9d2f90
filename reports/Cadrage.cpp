#include "reports/Cadrage.h"

#include "core/Utf8.h"

#include <algorithm>

namespace {

/// Byte at which character number `rang` of a text begins.
std::size_t DebutCaractere(const std::string& texte, int rang) {
    std::size_t octet = 0;
    for (int vus = 0; octet < texte.size(); ++octet)
        if ((texte[octet] & 0xC0) != 0x80 && vus++ == rang) break;
    return octet;
}

} // namespace

int NombreCaracteres(const std::string& texte) {
    return static_cast<int>(Caracteres(texte));
}

std::string CadreADroite(const std::string& texte, int largeur) {
    const int manque = largeur - NombreCaracteres(texte);
    return manque >= 0 ? Espaces(manque) + texte : texte.substr(DebutCaractere(texte, -manque));
}

std::string CadreAGauche(const std::string& texte, int largeur) {
    return DebutTexte(texte, largeur) + Espaces(largeur - NombreCaracteres(texte));
}

std::string DebutTexte(const std::string& texte, int caracteres) {
    return texte.substr(0, DebutCaractere(texte, std::max(caracteres, 0)));
}

std::string NomCoupe(const std::string& nom, int caracteres) {
    const int longueur = NombreCaracteres(nom);
    if (longueur <= caracteres) return nom;
    const int fin = std::min(4, caracteres / 2);
    return DebutTexte(nom, caracteres - fin - 1) + "…" + nom.substr(DebutCaractere(nom, longueur - fin));
}
