// A printer that notes what is printed: lines with their looks, page by page, and what is drawn in millimetres of the
// page.
#pragma once

#include "core/ErreurExecution.h"
#include "platform/Imprimante.h"
#include "reports/CadrePages.h"

#include <algorithm>
#include <vector>

class ImprimanteNotee : public Imprimante {
public:
    struct Morceau {
        std::string texte;
        bool gras, souligne;
        double taille;
    };
    struct Ligne {
        std::vector<Morceau> morceaux;
        std::string Texte() const {
            std::string texte;
            for (const Morceau& morceau : morceaux) texte += morceau.texte;
            return texte;
        }
    };
    struct Trace {
        std::vector<PointDessin> points;
        Couleur couleur;
    };
    struct Etiquette {
        PointDessin place;
        std::string texte;
    };
    struct Feuillet {
        std::vector<Ligne> lignes{1}; ///< the last one is the one that the head stands on
        std::vector<Trace> traces;
        std::vector<Etiquette> etiquettes;

        bool Vide() const {
            return traces.empty() && std::all_of(lignes.begin(), lignes.end(), [](const Ligne& ligne) {
                       return ligne.Texte().find_first_not_of(' ') == std::string::npos;
                   });
        }
        /// The lines that were ended.
        std::vector<std::string> Textes() const {
            std::vector<std::string> textes;
            for (std::size_t i = 0; i + 1 < lignes.size(); ++i) textes.push_back(lignes[i].Texte());
            return textes;
        }
    };

    std::vector<Feuillet> pages{1};
    bool fini = false;
    int pannePage = 0; ///< the page at whose end the device fails; none when 0

    void Police(const std::string& nom, double taille) override {
        police = nom;
        taille_ = taille;
    }
    void Taille(double points) override { taille_ = points; }
    void Gras(bool gras) override { gras_ = gras; }
    void Souligne(bool souligne) override { souligne_ = souligne; }
    void Oriente(OrientationPage orientation) override { portrait = orientation == OrientationPage::Portrait; }
    void CadreTexte(int lignes, int) override { interligne_ = Hauteur() / lignes; }
    void Ecrit(const std::string& texte) override {
        pages.back().lignes.back().morceaux.push_back({texte, gras_, souligne_, taille_});
    }
    void TermineLigne() override {
        pages.back().lignes.emplace_back();
        tete_ += interligne_;
    }
    double Tete() const override { return tete_; }
    void PlaceTete(double y) override { tete_ = y; }
    double LargeurTexte(const std::string& texte) const override {
        return NombreCaracteres(texte) * 0.6 * taille_ * 25.4 / 72;
    }
    double Largeur() const override { return largeur; }
    double Hauteur() const override { return hauteur; }
    std::unique_ptr<Dessin> Feuille(PointDessin coin, double largeur, double hauteur, double unite = 1) override;
    double largeur = 185, hauteur = 277; ///< A4 with a filing margin, mm
    int Page() const override { return static_cast<int>(pages.size()); }
    void NouvellePage() override {
        tete_ = 0;
        if (Page() == pannePage) throw ErreurExecution(NumeroErreur::EntreeSortie);
        if (!pages.back().Vide()) pages.emplace_back();
    }
    void FinDocument() override {
        if (pages.back().Vide()) pages.pop_back();
        fini = true;
    }

    std::string police;
    bool portrait = false;

private:
    double taille_ = 0, tete_ = 0, interligne_ = 4;
    bool gras_ = false, souligne_ = false;
};

/// A surface of the page; positions are noted in millimetres of the page.
class FeuilleNotee : public Dessin {
public:
    FeuilleNotee(ImprimanteNotee::Feuillet& page, PointDessin coin, double largeur, double hauteur, double unite)
        : page_(page), coin_(coin), largeur_(largeur), hauteur_(hauteur), unite_(unite) {}
    double Largeur() const override { return largeur_ / unite_; }
    double Hauteur() const override { return hauteur_ / unite_; }
    void Ligne(PointDessin de, PointDessin a, const Trait& trait) override {
        const PointDessin points[] = {de, a};
        Polyligne(points, trait);
    }
    void Polyligne(std::span<const PointDessin> points, const Trait& trait) override {
        std::vector<PointDessin> surPage;
        for (const PointDessin& p : points) surPage.push_back(SurPage(p));
        page_.traces.push_back({surPage, trait.couleur});
    }
    void Surface(std::span<const PointDessin> points, const Trait& trait) override { Polyligne(points, trait); }
    void Cercle(PointDessin centre, double rayon, const Trait& trait) override {
        Ligne({centre.x - rayon, centre.y}, {centre.x + rayon, centre.y}, trait);
    }
    void Disque(PointDessin centre, double rayon, const Trait& trait) override { Cercle(centre, rayon, trait); }
    void Texte(PointDessin p, const std::string& texte, Ancrage ancrage, double hauteur, Couleur) override {
        const double longueur = LargeurTexte(texte, hauteur);
        const double recul = ancrage == Ancrage::Gauche ? 0 : ancrage == Ancrage::Centre ? longueur / 2 : longueur;
        page_.etiquettes.push_back({SurPage({p.x - recul, p.y}), texte});
    }
    double LargeurTexte(const std::string& texte, double hauteur) const override {
        return NombreCaracteres(texte) * 0.6 * hauteur;
    }

private:
    PointDessin SurPage(PointDessin p) const { return {coin_.x + p.x * unite_, coin_.y + p.y * unite_}; }

    ImprimanteNotee::Feuillet& page_;
    PointDessin coin_;
    double largeur_, hauteur_, unite_;
};

inline std::unique_ptr<Dessin> ImprimanteNotee::Feuille(PointDessin coin, double l, double h, double unite) {
    return std::make_unique<FeuilleNotee>(pages.back(), coin, l, h, unite);
}
