#include "core/TableTexte.h"

#include "core/Nombres.h"

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
