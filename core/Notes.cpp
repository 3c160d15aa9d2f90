#include "core/Notes.h"

#include "core/Utf8.h"

#include <algorithm>

namespace {

std::string Numero(std::size_t rang) {
    return "(" + std::to_string(rang + 1) + ") ";
}

/// Appends a note cut into lines between its words, which all begin behind its number.
void AjouteCoupe(std::vector<std::string>& lignes, const std::string& numero, const std::string& texte, int largeur) {
    std::string debut = numero;
    for (const std::string& ligne : CoupeEnLignes(texte, largeur - Caracteres(numero))) {
        lignes.push_back(debut + ligne);
        debut.assign(numero.size(), ' ');
    }
}

} // namespace

void Notes::Ajoute(std::string_view valeur, const std::string& texte) {
    const auto place = std::find(textes_.begin(), textes_.end(), texte);
    const std::pair renvoi(std::string(valeur), static_cast<std::size_t>(place - textes_.begin()));
    if (std::find(renvois_.begin(), renvois_.end(), renvoi) == renvois_.end()) renvois_.push_back(renvoi);
    if (place == textes_.end()) textes_.push_back(texte);
}

std::string Notes::Renvoi(std::string_view valeur) const {
    std::string renvoi;
    for (const auto& [nom, rang] : renvois_)
        if (nom == valeur) renvoi += (renvoi.empty() ? " (" : ",") + std::to_string(rang + 1);
    return renvoi.empty() ? renvoi : renvoi + ")";
}

std::string Notes::Textes(std::string_view valeur) const {
    std::string textes;
    for (const auto& [nom, rang] : renvois_)
        if (nom == valeur) textes += (textes.empty() ? "" : "\n") + Numero(rang) + textes_[rang];
    return textes;
}

std::vector<std::string> Notes::Lignes(int largeur) const {
    std::vector<std::string> lignes;
    for (std::size_t rang = 0; rang < textes_.size(); ++rang)
        if (largeur > 0)
            AjouteCoupe(lignes, Numero(rang), textes_[rang], largeur);
        else
            lignes.push_back(Numero(rang) + textes_[rang]);
    return lignes;
}
