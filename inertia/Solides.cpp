#include "inertia/Solides.h"

#include "core/Etude.h"
#include "core/Nombres.h"
#include "data/Textes.h"
#include "data/Unites.h"
#include "inertia/TextesInertie.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double Gravite = 9.81;             // m/s²
constexpr const char* DensiteAcier = "7850"; // kg/m³

// ---- fields

using S = SaisieSolide;
constexpr ChampSolide ChampR{"Text5", "Text5", TexteR, UniteMm, &S::Text5, nullptr, Nul};
constexpr ChampSolide ChampD{"Text6", "Text6", TexteD, UniteMm, &S::Text6, nullptr, Nul};
constexpr ChampSolide ChampPetitD{"Text7", "Text7", TextePetitD, UniteMm, &S::Text7, nullptr, Nul};
constexpr ChampSolide ChampH{"Text8", "Text8", TexteH, UniteMm, &S::Text8, nullptr, Nul};

constexpr ChampSolide D[] = {ChampD};
constexpr ChampSolide DH[] = {ChampD, ChampH};
constexpr ChampSolide Dd[] = {ChampD, ChampPetitD};
constexpr ChampSolide DdH[] = {ChampD, ChampPetitD, ChampH};
constexpr ChampSolide R[] = {ChampR};
constexpr ChampSolide RD[] = {ChampR, ChampD};
constexpr ChampSolide RDH[] = {ChampR, ChampD, ChampH};
constexpr ChampSolide RDdH[] = {ChampR, ChampD, ChampPetitD, ChampH};
constexpr ChampSolide Polygone[] = {{"Text5", "Text5", TexteNombreCotes, 0, &S::Text5, nullptr, Nul}, ChampD, ChampH};
constexpr ChampSolide Donnees[] = {{"Text5", "Text5", TexteInertie, TexteKgM2, &S::Text5},
                                   {"Text6", "Text6", TexteCoupleTravail, UniteNm, &S::Text6},
                                   {"Text7", "Text7", TexteFriction, UniteNm, &S::Text7}};
constexpr ChampSolide Convoyeur[] = {ChampD,
                                     {"Text7", "Text7", TexteMasseRotation, TexteKg, &S::Text7},
                                     {"Text8", "Text8", TexteCoefFriction, 0, &S::Text8}};
constexpr ChampSolide Desequilibre[] = {ChampR, {"Text8", "Text8", TexteAngleBeta, UniteDegres, &S::Text8}};

// ---- volumes, m³

double Cylindre(const Cotes& c) {
    const double r = c.D / 2;
    return Pi * c.H * r * r;
}
double Tube(const Cotes& c) {
    return Pi * c.H * (c.D * c.D - c.d * c.d) / 4;
}
double TroncDeCone(const Cotes& c) {
    const double r = c.D / 2, s = c.d / 2;
    return Pi * c.H / 3 * (r * r + r * s + s * s);
}
double Bloc(const Cotes& c) {
    return c.H * c.d * c.D;
}
double Sphere(const Cotes& c) {
    return Pi / 6 * c.D * c.D * c.D;
}
double Tore(const Cotes& c) {
    const double r = c.D / 2, s = c.d / 2;
    return 2 * Pi * Pi * s * s * r;
}
/// A prism over a regular polygon of N sides whose corners lie on the diameter D.
double Prisme(const Cotes& c) {
    const double N = c.R, r = c.D / 2, sn = std::sin(Pi / N), cs = std::cos(Pi / N);
    const double cote = 2 * r * sn;
    return N * 0.5 * cote * r * cs * c.H;
}

// ---- inertias about the solid's own axis, and the torques that some kinds cause there

double DisqueJ(double M, const Cotes& c) {
    return M * c.D * c.D / 8;
}
double CouronneJ(double M, const Cotes& c) {
    return M * (c.D * c.D + c.d * c.d) / 8;
}
double CylindreCoucheJ(double M, const Cotes& c) {
    return M * (c.H * c.H / 3 + c.D * c.D / 4) / 4;
}
double TubeCoucheJ(double M, const Cotes& c) {
    return M * (c.H * c.H / 3 + (c.D * c.D + c.d * c.d) / 4) / 4;
}
double TroncDeConeJ(double M, const Cotes& c) {
    const double r = c.D / 2, s = c.d / 2;
    // (r⁵ - s⁵) / (r³ - s³), both divided by r - s: nothing is lost where the radii nearly meet.
    return 3.0 / 10 * M * (std::pow(r, 4) + r * s * (r * r + r * s + s * s) + std::pow(s, 4)) / (r * r + r * s + s * s);
}
double BlocJ(double M, const Cotes& c) {
    return M * (c.d * c.d + c.D * c.D) / 12;
}
double SphereJ(double M, const Cotes& c) {
    return M * c.D * c.D / 10;
}
double ToreJ(double M, const Cotes& c) {
    const double r = c.D / 2, s = c.d / 2;
    return M * (r * r + 3 * s * s / 4);
}
double PrismeJ(double M, const Cotes& c) {
    const double N = c.R, r = c.D / 2, cs = std::cos(Pi / N);
    return M / 6 * (1 + 2 * cs * cs) * r * r;
}

using InertiePropre = double (*)(double M, const Cotes& c);

template <InertiePropre J> Effets Centre(double M, const Cotes& c) {
    return {J(M, c)};
}
/// A body whose own axis is R away from the one it turns about.
template <InertiePropre J> Effets Excentre(double M, const Cotes& c) {
    return {J(M, c) + M * c.R * c.R};
}
/// A thin rod that turns about its end; D is its length.
Effets EffetsBras(double M, const Cotes& c) {
    return {M * c.D * c.D / 3};
}
Effets EffetsMasse(double M, const Cotes& c) {
    return {M * c.R * c.R};
}
/// The typed values themselves.
Effets EffetsDonnees(double, const Cotes& c) {
    return {c.R, c.D, c.d};
}
/// A belt that carries M over drums of diameter D: their turning mass is `Text7`, the friction coefficient `Text8`.
Effets EffetsConvoyeur(double M, const Cotes& c) {
    const double B = c.d, f = c.H;
    return {M * c.D * c.D / 4 + B * c.D * c.D / 8, M * Gravite * f * c.D / 2, 0, B};
}
/// The weight at full arm, whatever the angle: kept on purpose.
Effets EffetsDesequilibre(double M, const Cotes& c) {
    return {M * c.R * c.R, 0, c.R * M * Gravite};
}

/// The arm of the weight gets shorter as R rises off the horizontal.
double FrictionDesequilibre(double F, const Cotes& c) {
    return F * std::cos(c.H / RadDeg);
}

// ---- checks

std::optional<FauteSolide> ControleDiametres(const SaisieSolide& saisie, const Cotes& c) {
    if (c.d < c.D) return {};
    const std::string message = "Ø " + Texte(TexteInterieur) + " > Ø " + Texte(TexteExterieur);
    return FauteSolide{"Text7", message, message, true, &S::Text7, StrTrim(ValVirgule(saisie.Text7)), "Text6"};
}

std::optional<FauteSolide> ControlePolygone(const SaisieSolide&, const Cotes& c) {
    constexpr double CotesMin = 3;
    if (c.R >= CotesMin) return {};
    return FauteSolide{"Text5", Texte(TexteTroisCotes), Texte(TexteTroisCotes), false, &S::Text5, "3", "Text5"};
}

std::optional<FauteSolide> ControleTore(const SaisieSolide& saisie, const Cotes& c) {
    if (c.D >= c.d) return {};
    const std::string debut = Texte(TexteToreD) + " " + saisie.Text6 + " " + Texte(TexteToreInferieur);
    const std::string fin = Texte(TexteTorePetitD) + " " + saisie.Text7;
    // One digit less than what was typed, kept on purpose.
    return FauteSolide{"Text6", debut + " " + fin, debut + "\n" + fin,
                       false,   &S::Text6,         saisie.Text6.substr(0, saisie.Text6.size() - 1),
                       "Text6"};
}

std::optional<FauteSolide> ControleAngle(const SaisieSolide&, const Cotes& c) {
    if (c.R * c.H >= 0) return {};
    return FauteSolide{"Text8", Texte(TexteSignesRBeta)};
}

// ---- the table

constexpr auto Centres = GroupeSolides::Centres, Excentres = GroupeSolides::Excentres, Divers = GroupeSolides::Divers;

// clang-format off
constexpr GenreSolide solides[] = {
    {1, Centres, "M_ObjetCentrePlateau", 604, "Plateau", DH, Cylindre, Centre<DisqueJ>},
    {2, Centres, "M_ObjetCentreCouronne", 605, "Couronne", DdH, Tube, Centre<CouronneJ>, ControleDiametres},
    {3, Centres, "M_ObjetCentreCylCouche", 606, "CylHor", DH, Cylindre, Centre<CylindreCoucheJ>},
    {4, Centres, "M_ObjetCentreTubeCouche", 607, "TubeHor", DdH, Tube, Centre<TubeCoucheJ>, ControleDiametres},
    {5, Centres, "M_ObjetCentreTroncone", 608, "TroncCone", DdH, TroncDeCone, Centre<TroncDeConeJ>, ControleDiametres},
    {6, Centres, "M_ObjetCentreBras", 609, "Bras", D, nullptr, EffetsBras},
    {7, Centres, "M_ObjetCentreRectangle", 610, "Rectangle", DdH, Bloc, Centre<BlocJ>},
    {8, Centres, "M_ObjetCentrePolygone", 611, "Polygone", Polygone, Prisme, Centre<PrismeJ>, ControlePolygone, true},
    {9, Centres, "M_ObjetCentreSphere", 612, "Bille", D, Sphere, Centre<SphereJ>},
    {20, Centres, "M_ObjetCentreTore", 613, "Tore", Dd, Tore, Centre<ToreJ>, ControleTore},
    {10, Excentres, "M_ObjetExcentrePlateau", 614, "CylVerExc", RDH, Cylindre, Excentre<DisqueJ>},
    {11, Excentres, "M_ObjetExcentreCouronne", 615, "TubeVerExc", RDdH, Tube, Excentre<CouronneJ>, ControleDiametres},
    {12, Excentres, "M_ObjetExcentreCylCouche", 616, "CylHorExc", RDH, Cylindre, Excentre<CylindreCoucheJ>},
    {13, Excentres, "M_ObjetExcentreTubeCouche", 617, "TubeHorExc", RDdH, Tube, Excentre<TubeCoucheJ>, ControleDiametres},
    {14, Excentres, "M_ObjetExcentreSphere", 612, "BilleExc", RD, Sphere, Excentre<SphereJ>},
    {15, Excentres, "M_ObjetExcentreRectangle", 610, "RectExc", RDdH, Bloc, Excentre<BlocJ>},
    {16, Excentres, "M_ObjetExcentreMasse", 618, "MasseExc", R, nullptr, EffetsMasse},
    {17, Divers, "M_ObjetDiversDivers", 619, "ValeursDonnees", Donnees, nullptr, EffetsDonnees},
    {18, Divers, "M_ObjetDiversConvoyeur", 620, "Convoyeur", Convoyeur, nullptr, EffetsConvoyeur, nullptr, false, TexteMasseTransportee},
    {19, Divers, "M_ObjetDiversDesequilibre", 621, "Desequilibre", Desequilibre, nullptr, EffetsDesequilibre, ControleAngle, false, 0, FrictionDesequilibre},
};

constexpr GrandeurInertie grandeurs[4] = {
    {"Masse", "Label14", TexteMasse, TexteMasseTotaleColonne, TexteKg, "#####", "#####.###"},
    {"Inertie", "Label17", TexteInertie, TexteInertie, TexteKgM2, "####.##", "#####.###"},
    {"CoupleTravail", "Label21", TexteCoupleTravail, TexteTravailCourt, UniteNm, "####.##", "#####.##"},
    {"Friction", "Label22", TexteFriction, TexteFrictionCourt, UniteNm, "####.##", "#####.##"},
};
// clang-format on

double Lit(const ChampSolide& champ, const SaisieSolide& saisie) {
    return ValVirgule(saisie.*std::get<std::string S::*>(champ.membre));
}

/// The dimensions of a kind; what it does not ask for is 0, whatever its field holds.
Cotes LitCotes(const GenreSolide& genre, const SaisieSolide& saisie) {
    Cotes cotes;
    const std::pair<std::string S::*, double Cotes::*> places[] = {
        {&S::Text5, &Cotes::R}, {&S::Text6, &Cotes::D}, {&S::Text7, &Cotes::d}, {&S::Text8, &Cotes::H}};
    for (const ChampSolide& champ : genre.champs)
        for (const auto& [texte, cote] : places)
            if (std::get<std::string S::*>(champ.membre) == texte)
                cotes.*cote = Lit(champ, saisie) / (champ.unite == UniteMm ? 1000 : 1);
    return cotes;
}

const GenreSolide& GenreDe(const SaisieSolide& saisie) {
    if (const GenreSolide* genre = TrouveSolide(saisie.TypeSolide)) return *genre;
    throw ErreurExecution(NumeroErreur::IndiceHorsLimites, "TypeSolide " + std::to_string(saisie.TypeSolide));
}

} // namespace

std::span<const GenreSolide> LesSolides() {
    return solides;
}

std::span<const GrandeurInertie, 4> LesGrandeurs() {
    return grandeurs;
}

const GenreSolide* TrouveSolide(int TypeSolide) {
    const auto* genre = std::find_if(std::begin(solides), std::end(solides),
                                     [=](const GenreSolide& g) { return g.TypeSolide == TypeSolide; });
    return genre == std::end(solides) ? nullptr : genre;
}

std::string NomSolide(const GenreSolide& genre) {
    std::string nom = Texte(genre.texte);
    std::erase(nom, '&');
    return nom;
}

SaisieSolide SaisieInitiale(const GenreSolide& genre) {
    SaisieSolide saisie;
    saisie.TypeSolide = genre.TypeSolide;
    saisie.MasseTotal = !genre.parDensite;
    saisie.Text3 = Text3Initial(genre, saisie.MasseTotal);
    return saisie;
}

std::string Text3Initial(const GenreSolide& genre, bool masseTotal) {
    return masseTotal || genre.volume == nullptr ? "" : DensiteAcier;
}

bool MasseEstTapee(const GenreSolide& genre, const SaisieSolide& saisie) {
    return saisie.MasseTotal || genre.volume == nullptr;
}

std::optional<FauteSolide> ChercheFaute(const SaisieSolide& saisie) {
    const GenreSolide& genre = GenreDe(saisie);
    const double Q = ValVirgule(saisie.Text1), A = ValVirgule(saisie.Text2);
    if (Q * A <= 0) {
        const bool quantite = Q == 0 || (Q < 0 && A != 0);
        return FauteSolide{quantite ? "Text1" : "Text2", Texte(TexteQuantiteRapport)};
    }
    for (const ChampSolide& champ : genre.champs)
        if (champ.interdit != nullptr && champ.interdit(Lit(champ, saisie)))
            return FauteSolide{champ.controle, Texte(TexteManque) + " " + Texte(champ.texte)};
    return genre.controle == nullptr ? std::nullopt : genre.controle(saisie, LitCotes(genre, saisie));
}

Grandeurs CalculeSolide(const SaisieSolide& saisie) {
    const GenreSolide& genre = GenreDe(saisie);
    const Cotes cotes = LitCotes(genre, saisie);
    const double Q = ValVirgule(saisie.Text1), A = ValVirgule(saisie.Text2);
    double M = ValVirgule(saisie.Text3);
    if (!MasseEstTapee(genre, saisie)) M *= genre.volume(cotes);
    const Effets effets = genre.effets(M, cotes);
    Grandeurs resultat{(M + effets.masseEnPlus) * Q, effets.inertie * Q / (A * A), effets.travail * Q / A,
                       effets.friction * Q / A};
    for (std::size_t i = 0; i < resultat.size(); ++i) {
        resultat[i] += 0.0; // a zero has no sign, whatever that of the quantity
        if (!std::isfinite(resultat[i]))
            throw ErreurExecution(NumeroErreur::ResultatNonFini, Texte(grandeurs[i].texte));
    }
    return resultat;
}

double FrictionVraie(const SaisieSolide& saisie, const Grandeurs& valeurs) {
    const GenreSolide& genre = GenreDe(saisie);
    return genre.frictionVraie == nullptr ? valeurs[3] : genre.frictionVraie(valeurs[3], LitCotes(genre, saisie));
}

std::string NoteFriction(double friction, double vraie) {
    constexpr const char* masque = "0.00";
    const std::string valeur = Format(vraie, masque);
    return valeur == Format(friction, masque) ? "" : Texte(TexteAngleCompte) + " " + valeur + " " + Texte(UniteNm);
}

Etiquettes EtiquettesDe(const Grandeurs& valeurs) {
    Etiquettes textes;
    for (std::size_t i = 0; i < valeurs.size(); ++i) textes[i] = Format(valeurs[i], grandeurs[i].masque);
    return textes;
}
