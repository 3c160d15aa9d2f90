#include "drawing/Barres.h"

#include "core/Nombres.h"
#include "drawing/Graduations.h"
#include "drawing/LegendeDessin.h"

#include <algorithm>

namespace {

constexpr double Graduations = 5;
constexpr double PartBarres = 0.82; ///< of a group's width, the rest keeps it from its neighbour

/// One picture on a strip of the surface.
class TraceurBarres {
public:
    TraceurBarres(Dessin& dessin, const GrapheBarres& graphe, double haut, double bas, double texte)
        : dessin_(dessin), g_(graphe), haut_(haut + 4.2 * texte), bas_(bas - 3.0 * texte), gauche_(5.5 * texte),
          droite_(dessin.Largeur() - 1.5 * texte), texte_(texte) {
        double maximum = 0;
        for (const auto& serie : graphe.series)
            for (const Barre& barre : serie.barres) maximum = std::max(maximum, barre.valeur);
        pas_ = PasGraduation(maximum > 0 ? maximum : 1, Graduations);
        maximum_ = maximum > 0 ? maximum : 1;
    }

    void Trace() const {
        Axe();
        Titre();
        for (std::size_t groupe = 0; groupe < g_.groupes.size(); ++groupe) Groupe(groupe);
    }

private:
    double Y(double valeur) const { return bas_ - (bas_ - haut_) * valeur / maximum_; }

    void Axe() const {
        for (const double valeur : ValeursGraduees(0, maximum_, pas_)) {
            dessin_.Ligne({gauche_, Y(valeur)}, {droite_, Y(valeur)},
                          {valeur == 0 ? Couleur::Axe : Couleur::Graduation, 0.09 * texte_});
            dessin_.Texte({gauche_ - 0.6 * texte_, Y(valeur)}, TexteArrondi(valeur, 6), Ancrage::Droite, 0.9 * texte_,
                          Couleur::TexteDiscret);
        }
        dessin_.Texte({(gauche_ + droite_) / 2, bas_ + 2.3 * texte_}, g_.legende, Ancrage::Centre, texte_);
    }

    void Titre() const {
        const double y = haut_ - 3.4 * texte_;
        const std::string titre = g_.titre + " (" + g_.unite + ")";
        dessin_.Texte({gauche_, y}, titre, Ancrage::Gauche, 1.1 * texte_);
        std::vector<EntreeLegende> entrees;
        for (const auto& serie : g_.series) entrees.push_back({{serie.couleur, 0.5 * texte_}, serie.nom});
        DessineLegende(dessin_, {gauche_ + dessin_.LargeurTexte(titre, 1.1 * texte_) + 2.5 * texte_, y}, texte_,
                       entrees);
    }

    void Groupe(std::size_t groupe) const {
        const double largeur = (droite_ - gauche_) / static_cast<double>(g_.groupes.size());
        const double debut = gauche_ + largeur * (static_cast<double>(groupe) + (1 - PartBarres) / 2);
        const double barre = largeur * PartBarres / static_cast<double>(g_.series.size());
        for (std::size_t serie = 0; serie < g_.series.size(); ++serie)
            UneBarre(g_.series[serie].barres[groupe], debut + barre * static_cast<double>(serie), barre * 0.92,
                     g_.series[serie].couleur);
        dessin_.Texte({debut + largeur * PartBarres / 2, bas_ + 0.9 * texte_}, g_.groupes[groupe], Ancrage::Centre,
                      texte_);
    }

    void UneBarre(const Barre& barre, double x, double largeur, Couleur couleur) const {
        const double y = Y(barre.valeur);
        if (barre.valeur > 0) {
            const PointDessin contour[] = {{x, bas_}, {x, y}, {x + largeur, y}, {x + largeur, bas_}, {x, bas_}};
            dessin_.Surface(contour, {couleur, 0.14 * texte_});
        }
        const double milieu = x + largeur / 2;
        Mot({milieu, y - (barre.remarque.empty() ? 0.7 : 1.7) * texte_}, barre.chiffre, largeur, Couleur::Texte);
        Mot({milieu, y - 0.65 * texte_}, barre.remarque, largeur, Couleur::TexteDiscret);
    }

    /// A word no wider than its bar.
    void Mot(PointDessin p, const std::string& mot, double largeur, Couleur couleur) const {
        if (mot.empty()) return;
        const double reduction = std::min(1.0, 1.05 * largeur / dessin_.LargeurTexte(mot, 0.9 * texte_));
        dessin_.Texte(p, mot, Ancrage::Centre, 0.9 * texte_ * reduction, couleur);
    }

    Dessin& dessin_;
    const GrapheBarres& g_;
    double haut_, bas_, gauche_, droite_, texte_;
    double pas_ = 1, maximum_ = 1;
};

} // namespace

void DessineBarres(Dessin& dessin, const std::vector<GrapheBarres>& graphes) {
    const double texte = std::min(dessin.Largeur() / 62, dessin.Hauteur() / 46);
    const double hauteur = dessin.Hauteur() / static_cast<double>(graphes.size());
    for (std::size_t rang = 0; rang < graphes.size(); ++rang)
        TraceurBarres(dessin, graphes[rang], hauteur * static_cast<double>(rang),
                      hauteur * static_cast<double>(rang + 1), texte)
            .Trace();
}
