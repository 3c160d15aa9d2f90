#include "globoidal/DessinsGlobiques.h"

#include "core/Nombres.h"
#include "data/Textes.h"
#include "data/Unites.h"
#include "drawing/Barres.h"
#include "drawing/Graphe.h"
#include "globoidal/LignesGlobiques.h"
#include "globoidal/TextesGlobiques.h"
#include "globoidal/UnitesGlobiques.h"

#include <algorithm>

namespace {

/// A legend of more runs than this would not fit.
constexpr int MaximumLegende = 6;

constexpr Couleur couleurs[] = {Couleur::Courbe1, Couleur::Courbe2, Couleur::Courbe3};

/// The load is shown for this output torque, Nm.
constexpr double CoupleMontre = 100;
constexpr double NewtonPourCoupleMontre = CoupleMontre / (CoupleReference * NmParLivrePouce);

struct Montre {
    int titre;
    double (*valeur)(const PointParcours& point, std::size_t part);
    bool (*connue)(const PointParcours& point);
};

const Montre montres[] = {
    {TexteAnglePression, [](const PointParcours& p, std::size_t) { return p.anglePression; },
     [](const PointParcours&) { return true; }},
    {TexteNervureCentre, [](const PointParcours& p, std::size_t) { return p.epaisseur; },
     [](const PointParcours& p) { return p.epaisseur != 0.0; }},
    {TexteChargeGalet, [](const PointParcours& p, std::size_t part) { return p.force[part] * NewtonPourCoupleMontre; },
     [](const PointParcours&) { return true; }},
};

/// A curve for each stretch in which a roller is in contact, in the colour of its run; the first one bears the name.
std::vector<CourbeGraphe> CourbesDe(const Montre& montre, const ResultatGlobique& resultat, std::size_t part,
                                    const std::string& nom) {
    std::vector<CourbeGraphe> courbes;
    const PointParcours* avant = nullptr;
    for (const PointParcours& p : resultat.Parcours) {
        const bool autreGalet = avant == nullptr || p.galet != avant->galet;
        if (autreGalet || p.position != avant->position + 1 || !montre.connue(*avant)) {
            courbes.push_back({});
            courbes.back().couleur = couleurs[static_cast<std::size_t>(p.galet - 1) % std::size(couleurs)];
            if (autreGalet && !nom.empty() && p.galet <= MaximumLegende)
                courbes.back().nom = nom + " " + std::to_string(p.galet);
        }
        avant = &p;
        if (montre.connue(p)) courbes.back().points.push_back({p.angleCame, montre.valeur(p, part)});
    }
    std::erase_if(courbes, [](const CourbeGraphe& courbe) { return courbe.points.empty(); });
    return courbes;
}

AxeGraphe AxeDesAngles(const ResultatGlobique& resultat) {
    double fin = 1;
    for (const PointParcours& p : resultat.Parcours) fin = std::max(fin, p.angleCame);
    AxeGraphe axe = AxeAngles(fin);
    axe.legende = Texte(TexteAngleCame);
    return axe;
}

/// The axis around the curves, and around their limit where it lies near.
AxeGraphe AxeDesValeurs(const std::vector<CourbeGraphe>& courbes, const std::vector<LimiteGraphe>& limites) {
    std::vector<PointDessin> tous{{0, 0}};
    for (const CourbeGraphe& courbe : courbes) tous.insert(tous.end(), courbe.points.begin(), courbe.points.end());
    for (const LimiteGraphe& limite : limites) tous.push_back({0, limite.valeur});
    return AxeAutour(tous);
}

std::vector<LimiteGraphe> LimitesDe(const Montre& montre, const MecanismeGlobique& donnees) {
    if (montre.titre == TexteAnglePression) return {{AnglePressionLimite, TexteCourt(AnglePressionLimite) + "°"}};
    if (montre.titre != TexteNervureCentre) return {};
    const double limite = std::max(NervureMinCentre * MmParPouce, donnees.DiametreGalet * PartGaletNervure);
    return {{limite, TexteArrondi(limite, 3) + " " + Texte(UniteMm)}};
}

std::string NomLimite(RangCapacite ligne) {
    switch (ligne) {
    case B10Galet:
    case LimiteGalet:
        return Texte(289);
    case LimiteArbre:
        return Texte(588);
    case LimiteProfondeur:
        return Texte(TexteProfondeur);
    default:
        return Texte(147);
    }
}

SerieBarres Serie(const ResultatGlobique& resultat, int nom, Couleur couleur, RangCapacite ligne) {
    SerieBarres serie{Texte(nom), couleur, {}};
    for (std::size_t k = 0; k < NombreParts; ++k) {
        if (SansCharge(resultat, ligne, k)) {
            serie.barres.push_back({0, Tiret, {}});
            continue;
        }
        const double couple = resultat.Resultats[ligne][k] * NmParLivrePouce;
        serie.barres.push_back({couple, TexteArrondi(couple, couple < 100 ? 1 : 0),
                                NomLimite(LigneQuiLimite(resultat.Resultats, ligne, k))});
    }
    return serie;
}

} // namespace

void DessineParcours(Dessin& dessin, const MecanismeGlobique& donnees, const ResultatGlobique& resultat,
                     std::size_t part) {
    const bool indexeur = resultat.EpaisseurRepos.has_value();
    std::vector<Graphe> graphes;
    for (const Montre& montre : montres) {
        Graphe graphe;
        graphe.titre = Texte(montre.titre);
        graphe.courbes = CourbesDe(montre, resultat, part, graphes.empty() ? Texte(indexeur ? TextePassage : 289) : "");
        graphe.limites = LimitesDe(montre, donnees);
        if (montre.titre == TexteChargeGalet)
            graphe.titre += " (" + Texte(UniteN) + "), " + TexteCourt(PartInertie(part)) + " %";
        graphe.horizontal = AxeDesAngles(resultat);
        graphe.verticaux = {AxeDesValeurs(graphe.courbes, graphe.limites)};
        graphes.push_back(graphe);
    }
    DessineGraphesEmpiles(dessin, graphes);
}

void DessineCapacites(Dessin& dessin, const ResultatGlobique& resultat) {
    const bool indexeur = resultat.EpaisseurRepos.has_value();
    const int trempee = indexeur ? 589 : 556;
    std::vector<std::string> parts;
    for (std::size_t k = 0; k < NombreParts; ++k) parts.push_back(TexteCourt(PartInertie(k)) + " %");
    const auto graphe = [&](int titre, RangCapacite dure, RangCapacite nitruree) {
        return GrapheBarres{
            Texte(titre),
            Texte(UniteNm),
            parts,
            Texte(586),
            {Serie(resultat, trempee, Couleur::Courbe1, dure), Serie(resultat, 599, Couleur::Courbe2, nitruree)}};
    };
    DessineBarres(dessin,
                  {graphe(587, LimiteCameTrempee, LimiteCameNitruree), graphe(565, B10CameTrempee, B10CameNitruree)});
}
