#include "conjugate/GraphesConjugue.h"

#include "conjugate/TextesConjugue.h"
#include "core/Etude.h"
#include "core/Nombres.h"
#include "data/Textes.h"
#include "data/Unites.h"
#include "drawing/Graduations.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr Couleur couleurs[] = {Couleur::Courbe1, Couleur::Courbe2, Couleur::Courbe3};

/// Points over the index or the range of speeds.
constexpr int Pas = 240;

/// More tracks than these are not told apart.
constexpr std::size_t PistesMaxi = 12, NomsMaxi = 6;

std::string AvecUnite(int texte, int unite) {
    return Texte(texte) + " (" + Texte(unite) + ")";
}

Graphe GrapheSurIndex(const DonneesConjugue& d, const std::string& titre) {
    Graphe graphe;
    graphe.titre = titre;
    graphe.horizontal = AxeAngles(d.loi.A);
    graphe.horizontal.legende = AvecUnite(TexteAngleIndexage, UniteDegres);
    return graphe;
}

/// A round axis that holds both values and 0.
AxeGraphe AxeEntre(double mini, double maxi) {
    const PointDessin bouts[] = {{0, 0}, {0, mini}, {0, maxi}};
    return AxeAutour(bouts);
}

/// A curve drawn in pieces, of which only the first bears the name.
class CourbeCoupee {
public:
    CourbeCoupee(Graphe& graphe, const std::string& nom, Couleur couleur) : graphe_(graphe) {
        courbe_.nom = nom;
        courbe_.couleur = couleur;
    }
    ~CourbeCoupee() { Coupe(); }
    CourbeCoupee(const CourbeCoupee&) = delete;
    CourbeCoupee& operator=(const CourbeCoupee&) = delete;

    bool Vide() const { return courbe_.points.empty(); }
    void Ajoute(PointDessin p) { courbe_.points.push_back(p); }
    void Coupe() {
        if (courbe_.points.size() > 1) {
            graphe_.courbes.push_back(courbe_);
            courbe_.nom.clear();
        }
        courbe_.points.clear();
    }

private:
    Graphe& graphe_;
    CourbeGraphe courbe_;
};

/// The parts of a track between two heights, cut where it leaves them.
void AjoutePiste(CourbeCoupee& courbe, const std::vector<PointPiste>& piste, double mini, double maxi) {
    const auto bord = [&](const PointPiste& dehors, const PointPiste& dedans) {
        const double rho = std::clamp(dehors.rho, mini, maxi);
        return PointDessin{dedans.T + (dehors.T - dedans.T) * (rho - dedans.rho) / (dehors.rho - dedans.rho), rho};
    };
    for (std::size_t i = 0; i < piste.size(); ++i) {
        if (piste[i].rho >= mini && piste[i].rho <= maxi) {
            if (courbe.Vide() && i > 0) courbe.Ajoute(bord(piste[i - 1], piste[i]));
            courbe.Ajoute({piste[i].T, piste[i].rho});
        } else if (!courbe.Vide()) {
            courbe.Ajoute(bord(piste[i], piste[i - 1]));
            courbe.Coupe();
        }
    }
}

/// Input angles over the index, that of extreme acceleration among them.
std::vector<double> AnglesIndex(const DonneesConjugue& d) {
    std::vector<double> angles{AngleAccelerationExtreme(d)};
    for (int i = 0; i <= Pas; ++i) angles.push_back(d.loi.A * i / Pas);
    std::sort(angles.begin(), angles.end());
    return angles;
}

/// The pressure angle of a contact; it starts anew where the roller passes the line of the shafts.
void AjouteContact(CourbeCoupee&& courbe, const DonneesConjugue& d, int sens) {
    std::vector<std::string> ecran;
    double precedent = 0;
    for (const double T : AnglesIndex(d)) {
        const MouvementIndex m = Fqq(d.loi, T, 1, ecran);
        const double phi = d.h + sens * m.theta;
        if (phi * precedent <= 0) courbe.Coupe();
        precedent = phi;
        if (d.Q * std::sin(phi) == 0) continue;
        courbe.Ajoute({T, Sss(d.Q, d.R, m.omega * d.loi.C[32], phi).PA});
    }
}

/// The speed at which the rollers turn as fast as they may, indexes a minute.
double VitesseLimite(const DonneesConjugue& d, const ReposConjugue& repos) {
    return d.VMax / repos.SR * (d.N > 5 ? 2 : 1);
}

AxeGraphe AxeVitesses(double maxi) {
    AxeGraphe axe{0, maxi, {}, Texte(TexteIndexagesMinute), {}};
    const double pas = PasGraduation(maxi, 12);
    for (double v = 0; v <= maxi * (1 + 1e-9); v += pas) axe.graduations.push_back({v, TexteCourt(v)});
    return axe;
}

void AjouteVerticale(Graphe& graphe, double x, const std::string& nom, Couleur couleur) {
    const AxeGraphe& axe = graphe.verticaux.front();
    graphe.courbes.push_back({nom, couleur, {{x, axe.mini}, {x, axe.maxi}}, 0, Extremes::Aucun});
}

} // namespace

Graphe GraphePression(const DonneesConjugue& d, const std::optional<CapaciteConjugue>& capacite) {
    Graphe graphe = GrapheSurIndex(d, AvecUnite(TexteAnglePression, UniteDegres));
    AxeGraphe axe{-90, 90, {}, {}, {}};
    for (int angle = -90; angle <= 90; angle += 30) axe.graduations.push_back({angle * 1.0, std::to_string(angle)});
    graphe.verticaux = {axe};
    AjouteContact({graphe, Texte(TextePremierContact), couleurs[0]}, d, 1);
    AjouteContact({graphe, Texte(TexteSecondContact), couleurs[1]}, d, -1);
    if (capacite) {
        graphe.limites.push_back({capacite->PA0, "PAD"});
        AjouteVerticale(graphe, capacite->Tx, "T", Couleur::Repere);
    }
    return graphe;
}

Graphe GrapheCourbure(const DonneesConjugue& d, const Courbures& courbures) {
    Graphe graphe = GrapheSurIndex(d, AvecUnite(TexteRayonCourbure, UniteMm));
    const double galet = d.D / 2 + JeuUsinage, fin = d.Q + d.R;
    graphe.verticaux = {
        AxeEntre(courbures.RayonMini < 0 ? -fin / 4 : 0, std::max(galet, std::min(courbures.RayonMaxi, fin)))};
    const AxeGraphe& axe = graphe.verticaux.front();
    for (std::size_t k = 0; k < std::min(courbures.pistes.size(), PistesMaxi); ++k) {
        const std::string nom = k < NomsMaxi ? Texte(TextePiste) + " " + std::to_string(k + 1) : "";
        CourbeCoupee courbe(graphe, nom, couleurs[k % std::size(couleurs)]);
        AjoutePiste(courbe, courbures.pistes[k], axe.mini, axe.maxi);
    }
    graphe.limites.push_back({galet, Texte(TexteLimiteSurusinage)});
    if (fin <= axe.maxi) graphe.limites.push_back({fin, "Q + R", 0, Couleur::TexteDiscret});
    return graphe;
}

Graphe GrapheCapacite(const DonneesConjugue& d, const ReposConjugue& repos, const CapaciteConjugue& capacite) {
    Graphe graphe;
    graphe.titre = AvecUnite(TexteCapacite, UniteNm);
    const std::vector<double> vitesses = VitessesTable(d.Q);
    const double lente = std::min(vitesses.front(), d.Ipm), rapide = std::max(vitesses.back(), d.Ipm);
    struct Serie {
        int texte;
        double (*valeur)(const CapaciteParVitesse&);
    };
    static constexpr Serie series[] = {
        {TexteDynamiqueB10, [](const CapaciteParVitesse& l) { return l.DynB10; }},
        {TexteDynamiqueB50, [](const CapaciteParVitesse& l) { return l.DynB50; }},
        {TexteCoupleUtile, [](const CapaciteParVitesse& l) { return l.Catalogue - l.Propre; }},
    };
    double mini = 0, maxi = std::max(capacite.premier.C60, capacite.LimiteStatique);
    for (std::size_t s = 0; s < std::size(series); ++s) {
        CourbeGraphe courbe{Texte(series[s].texte), couleurs[s], {}, 0, Extremes::Aucun};
        for (int i = 0; i <= Pas; ++i) {
            const double Ipm = lente + (rapide - lente) * i / Pas;
            courbe.points.push_back({Ipm, series[s].valeur(CalculeLigne(d, repos, capacite, Ipm))});
            mini = std::min(mini, courbe.points.back().y);
            maxi = std::max(maxi, courbe.points.back().y);
        }
        graphe.courbes.push_back(std::move(courbe));
    }
    graphe.horizontal = AxeVitesses(rapide);
    graphe.verticaux = {AxeEntre(mini, maxi)};
    graphe.limites.push_back({capacite.premier.C60, Texte(TexteLimiteSurface)});
    graphe.limites.push_back({capacite.LimiteStatique, Texte(TexteLimiteStatique)});
    AjouteVerticale(graphe, d.Ipm, "Ipm", Couleur::TexteDiscret);
    const double limite = VitesseLimite(d, repos);
    if (limite > 0 && limite <= rapide)
        AjouteVerticale(graphe, limite, Texte(TexteVitesseLimiteGalets), Couleur::Repere);
    return graphe;
}

std::vector<Graphe> GraphesConjugue(const ResultatConjugue& resultat) {
    std::vector<Graphe> graphes;
    if (!resultat.courbures || resultat.donnees->loi.A <= 0) return graphes;
    graphes.push_back(GraphePression(*resultat.donnees, resultat.capacite));
    graphes.push_back(GrapheCourbure(*resultat.donnees, *resultat.courbures));
    if (!resultat.tableau.empty())
        graphes.push_back(GrapheCapacite(*resultat.donnees, *resultat.repos, *resultat.capacite));
    return graphes;
}
