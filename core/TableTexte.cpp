#include "core/TableTexte.h"

#include "core/Nombres.h"

#include <algorithm>
#include <utility>

std::string TableTexte::Cellule(int ligne, int colonne) const {
    if (ligne < 0 || ligne >= lignes || colonne < 0 || colonne >= static_cast<int>(colonnes.size())) return {};
    const ColonneTexte& c = colonnes[static_cast<std::size_t>(colonne)];
    return c.cellule ? c.cellule(ligne) : std::string();
}

std::string TableTexte::EnTete(int colonne) const {
    const ColonneTexte& c = colonnes.at(static_cast<std::size_t>(colonne));
    return c.unite.empty() ? c.titre : c.titre + "\n" + c.unite;
}

ColonneTexte ColonneNombres(std::string titre, std::string unite, std::function<double(int ligne)> valeur,
                            std::string masque, int largeur) {
    ColonneTexte colonne{std::move(titre), std::move(unite), nullptr, Cote::Droite, largeur};
    if (valeur)
        colonne.cellule = [valeur = std::move(valeur), masque = std::move(masque)](int ligne) {
            return Format(valeur(ligne), masque);
        };
    return colonne;
}

namespace {

/// What stands in several lines on a heading, in one.
std::string EnUneLigne(std::string texte) {
    std::replace(texte.begin(), texte.end(), '\n', ' ');
    return texte;
}

std::string EntreGuillemets(const std::string& texte, char separateur) {
    if (texte.find(separateur) == std::string::npos && texte.find_first_of("\"\n") == std::string::npos) return texte;
    std::string cite = "\"";
    for (const char c : texte) cite += c == '"' ? "\"\"" : std::string(1, c);
    return cite + "\"";
}

/// A cell under a mask as a number of a spreadsheet; any other text as it is.
std::string NombreCsv(std::string texte, char decimale) {
    const auto point = texte.find('.');
    const bool masque = !texte.empty() && texte.find_first_not_of("0123456789.-") == std::string::npos;
    if (!masque || point == std::string::npos) return texte;
    if (point + 1 == texte.size()) texte.pop_back();
    if (point == 0 || texte[point - 1] == '-') texte.insert(point, "0");
    std::replace(texte.begin(), texte.end(), '.', decimale);
    return texte;
}

} // namespace

void AjouteEnTetes(std::string& sortie, const TableTexte& table, const PlageTable& plage, char separateur,
                   std::string_view finDeLigne) {
    for (int c = 0; c < plage.colonnes; ++c) {
        if (c > 0) sortie += separateur;
        sortie += EnUneLigne(table.EnTete(plage.premiereColonne + c));
    }
    sortie += finDeLigne;
}

std::string ComposeCsv(const TableTexte& table, char separateur, char decimale) {
    std::string csv;
    for (int ligne = -1; ligne < table.lignes; ++ligne) {
        for (int c = 0; c < static_cast<int>(table.colonnes.size()); ++c) {
            if (c > 0) csv += separateur;
            const bool nombre = table.colonnes[static_cast<std::size_t>(c)].cote == Cote::Droite;
            std::string texte = ligne < 0 ? EnUneLigne(table.EnTete(c)) : table.Cellule(ligne, c);
            if (ligne >= 0 && nombre) texte = NombreCsv(std::move(texte), decimale);
            csv += EntreGuillemets(texte, separateur);
        }
        csv += "\r\n";
    }
    return csv;
}

void AjouteCellules(std::string& sortie, const TableTexte& table, const PlageTable& plage, char separateur,
                    std::string_view finDeLigne) {
    for (int ligne = plage.premiereLigne; ligne < plage.premiereLigne + plage.lignes; ++ligne) {
        for (int c = 0; c < plage.colonnes; ++c) {
            if (c > 0) sortie += separateur;
            sortie += table.Cellule(ligne, plage.premiereColonne + c);
        }
        sortie += finDeLigne;
    }
}
