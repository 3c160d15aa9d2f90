// A picture of bars in groups: a few values side by side for each of several cases, with a word over each bar.
#pragma once

#include "platform/Dessin.h"

#include <string>
#include <vector>

struct Barre {
    double valeur = 0;    ///< 0 or above; a bar of 0 has its words only
    std::string chiffre;  ///< the value as it is written
    std::string remarque; ///< what is said of it, below the value; may be empty
};

/// Bars of one kind, one for each group.
struct SerieBarres {
    std::string nom; ///< for the legend
    Couleur couleur = Couleur::Courbe1;
    std::vector<Barre> barres;
};

struct GrapheBarres {
    std::string titre;
    std::string unite;                ///< above the vertical axis
    std::vector<std::string> groupes; ///< written below their bars
    std::string legende;              ///< what the groups are
    std::vector<SerieBarres> series;
};

/// Draws pictures of bars one below the other on the whole surface.
void DessineBarres(Dessin& dessin, const std::vector<GrapheBarres>& graphes);
