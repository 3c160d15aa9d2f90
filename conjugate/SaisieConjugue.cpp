#include "conjugate/SaisieConjugue.h"

#include "conjugate/TextesConjugue.h"
#include "core/Etude.h"
#include "core/Nombres.h"
#include "data/Textes.h"
#include "data/Unites.h"

namespace {

constexpr int TexteDiametre = 218, TexteHauteur = 244;

/// Oil lets a roller turn faster than grease.
constexpr double FacteurHuile = 1.3;

/// Points on all tracks together: more than any index has, and few enough not to make anyone wait.
constexpr double PointsMaxi = 4e6;

bool Un(double valeur) {
    return valeur == 1.0;
}
bool ArrondiNul(double valeur) {
    return Arrondi(valeur) == 0.0;
}

using Entree = Champ<SaisieConjugue>;
const Entree champs[] = {
    {"Q", "Text1", TexteEntreAxes, UniteMm, &SaisieConjugue::Q, nullptr, Nul, TexteDonneeNulle},
    {"R", "Text2", TexteRayonAxeGalet, UniteMm, &SaisieConjugue::R},
    {"M", "Text5", TexteNombreGalets, 0, &SaisieConjugue::M, nullptr, ArrondiNul, TexteDonneeNulle},
    {"N", "Text3", TexteNombreStops, 0, &SaisieConjugue::N, nullptr, Nul, TexteDonneeNulle},
    {"A", "Text4", TexteAngleIndexage, UniteDegres, &SaisieConjugue::A, nullptr, Nul, TexteDonneeNulle},
    {"W", "Text11", TextePartConstante, TexteBornesPart, &SaisieConjugue::W, nullptr, Un, TexteSansFlanc},
    {"Loi", "Combo2", TexteLoiMouvement, 0, &SaisieConjugue::Loi},
    {"Ipm", "Text12", TexteIndexagesMinute, 0, &SaisieConjugue::Ipm, nullptr, Nul, TexteDonneeNulle},
    {"ReferenceGalet", "Combo1", TexteSelectionGalet, 0, &SaisieConjugue::ReferenceGalet},
    {"D", "Text6", TexteDiametre, UniteMm, &SaisieConjugue::D, nullptr, Nul, TexteDonneeNulle},
    {"F", "Text7", TexteHauteur, UniteMm, &SaisieConjugue::F},
    {"B10", "Text8", TexteCapaciteB10, UniteN, &SaisieConjugue::B10},
    {"CLim", "Text9", TexteCapaciteLimite, UniteN, &SaisieConjugue::CLim},
    {"VitesseGraisse", "Text10", TexteVitesseGraisse, UniteTours, &SaisieConjugue::VitesseGraisse},
};

} // namespace

std::span<const Entree> ChampsConjugue() {
    return champs;
}

std::optional<FauteSaisie> ChercheFauteConjugue(const SaisieConjugue& saisie) {
    const Entree* faute = ChercheInterdit(ChampsConjugue(), saisie);
    if (faute == nullptr) return {};
    return FauteSaisie{faute->nom, Texte(faute->texte) + " : " + Texte(faute->texteFaute)};
}

double VitesseArbre(double N, double Ipm) {
    return N > 5 ? Ipm / 2 : Ipm;
}

DonneesConjugue PrepareDonnees(const SaisieConjugue& saisie) {
    DonneesConjugue d{};
    d.Q = saisie.Q;
    d.R = saisie.R;
    d.M = Entier16(saisie.M);
    d.N = saisie.N;
    d.Ipm = saisie.Ipm;
    d.D = saisie.D;
    d.F = saisie.F;
    d.B10 = saisie.B10;
    d.CLim = saisie.CLim;
    d.VMax = FacteurHuile * saisie.VitesseGraisse;
    d.loi = RemplitConstantes(saisie.N, saisie.A, saisie.W, saisie.Loi == "MS" ? 1.76 : 2.0);
    d.Pistes = Divise(d.M, d.N);
    d.h = Divise(Pi, d.M);
    d.VitesseArbre = VitesseArbre(d.N, d.Ipm);
    if (d.Pistes >= 1 && saisie.A >= 0 && d.Pistes * (saisie.A + 1) > PointsMaxi)
        throw ErreurExecution(NumeroErreur::Depassement);
    return d;
}
