#include "laws/EtudesLois.h"

#include "core/Finis.h"
#include "data/Textes.h"
#include "data/Unites.h"
#include "laws/CalculLois.h"
#include "laws/FichierLoi.h"
#include "laws/LoiMSH.h"
#include "laws/LoisSpeciales.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int TexteDonneesIncompletes = 69;
constexpr int TexteFreinage = 801;
constexpr double TolerancePas = 1e-9;

constexpr const char* MasqueCoefficient = "##.####";
constexpr const char* MasqueValeur = "0.00000";
constexpr const char* MasqueDuree = "0.0000";

bool SansMSH() {
    return !LoiChoisieMSH();
}

// What the tables of inputs and results have in common.
constexpr ChampLoi ChampVitesse(const char* controle) {
    return {{"VitesseEntree", controle, 327, 0, &DonneesEtude::VitesseEntree}, Grandeur::Tours};
}
constexpr ChampLoi champAngle{{"AngleIndexage", "Text1", 270, 0, &DonneesEtude::AngleIndexage}, Grandeur::AngleEntree};
constexpr ChampLoi champSortie{{"AngleSortie", "Text2", 364, 0, &DonneesEtude::ValeurFin}, Grandeur::Sortie, 365};

constexpr ValeurLoi coefAccel{"CoefAccel", 320, Grandeur::Nombre, &ResultatLoi::CoefAccel, MasqueCoefficient};
constexpr ValeurLoi coefVitesse{"CoefVitesse", 321, Grandeur::Nombre, &ResultatLoi::CoefVitesse, MasqueCoefficient};
constexpr ValeurLoi vitesseMaxi{"VitesseMaxi", 332, Grandeur::Vitesse, &ResultatLoi::VitesseMaxi, MasqueValeur};
constexpr ValeurLoi accelMaxi{"AccelerationMaxi", 333, Grandeur::Accel, &ResultatLoi::AccelerationMaxi, MasqueValeur};
constexpr ValeurLoi duree{"Duree", 334, Grandeur::Duree, &ResultatLoi::Duree, MasqueDuree};

constexpr double DonneesEtude::*angleEntier[] = {&DonneesEtude::AngleIndexage};

/// The study lacks a number: the text names the field at fault where there is one, the focus goes to the first.
FauteLoi DonneesIncompletes(std::span<const ChampLoi> champs, double DonneesEtude::*premier,
                            double DonneesEtude::*faute) {
    const auto champ = std::find_if(champs.begin(), champs.end(),
                                    [faute](const ChampLoi& c) { return c.membre == ChampLoi::Membre(faute); });
    const std::string nom = champ == champs.end() ? "" : Texte(champ->Libelle()) + " : ";
    return {nom + Texte(TexteDonneesIncompletes), premier};
}

/// The inputs whose product may not be 0, the first field first.
std::optional<FauteLoi> ChercheIncomplet(std::span<const ChampLoi> champs,
                                         std::initializer_list<double DonneesEtude::*> facteurs) {
    double produit = 1;
    double DonneesEtude::*nul = nullptr;
    for (const auto facteur : facteurs) {
        produit *= etude.donnees.*facteur;
        if (nul == nullptr && etude.donnees.*facteur == 0.0) nul = facteur;
    }
    if (produit != 0.0) return {};
    return DonneesIncompletes(champs, *facteurs.begin(), nul);
}

/// Steps of the angles' motion, not rounded but for what arithmetic leaves beside a whole number.
double NombrePas(std::span<double DonneesEtude::*const> angles) {
    double pas = 0;
    for (const auto angle : angles) pas += etude.donnees.*angle * etude.donnees.PointsParDegre;
    const double entier = Arrondi(pas);
    return std::abs(pas - entier) <= TolerancePas ? entier : pas;
}

/// `LoiUnite` from a law of x, 0..1, at every step of the motion and at its end.
template <class Evalue> void RemplitLoiUnite(const Evalue& evalue) {
    const double n = NombrePas(angleEntier);
    etude.lois.LoiUnite.Redimensionne(etude.resultats.NombrePoints);
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i)
        etude.lois.LoiUnite[i] = evalue(std::min(static_cast<double>(i) / n, 1.0));
}

// ---- laws of the catalogue

constexpr ChampLoi champsMouv[] = {
    {{"CoefSymetrie", "Text0", 178, 0, &DonneesEtude::SymetrieLoi}, Grandeur::Nombre, 0, true, SansMSH},
    {{"AngleIndexage", "Text1", 324, 0, &DonneesEtude::AngleIndexage}, Grandeur::AngleEntree},
    {{"ValeurDepart", "Text2", 325, 0, &DonneesEtude::ValeurDepart}, Grandeur::Sortie, 0, true},
    {{"ValeurFin", "Text3", 326, 0, &DonneesEtude::ValeurFin}, Grandeur::Sortie, 0, true},
    ChampVitesse("Text4"),
    {{"Pourcentage", "Text5", 73, 0, &DonneesEtude::PourcentageLoi}, Grandeur::Pourcentage, 0, false, LoiChoisieSpe},
};
constexpr ValeurLoi valeursMouv[] = {
    {"CoefA", 568, Grandeur::Nombre, &ResultatLoi::CoefA, MasqueCoefficient},
    {"CoefB", 569, Grandeur::Nombre, &ResultatLoi::CoefB, MasqueCoefficient},
    {"CoefC", 570, Grandeur::Nombre, &ResultatLoi::CoefC, MasqueCoefficient},
    {"CoefD", 331, Grandeur::Nombre, &ResultatLoi::CoefD, MasqueCoefficient},
    coefAccel,
    coefVitesse,
    vitesseMaxi,
    accelMaxi,
    duree,
};

/// The law chosen: the custom one from its percentage, any other as the catalogue has it by now.
Loi LigneChoisie() {
    if (!LoiChoisieSpe()) return etude.lois.ListeLois[ChercheLoi(etude.lois.LoiChoisie)];
    Loi loi;
    loi.NomLoi = etude.lois.LoiChoisie + "_" + StrTrim(etude.donnees.PourcentageLoi);
    CalculeCoefs(loi, etude.donnees.PourcentageLoi);
    return loi;
}

std::optional<FauteLoi> ChercheFauteMouv() {
    // A law file that was read leaves no other law in the catalogue.
    if (!LoiChoisieSpe() && ChercheLoi(etude.lois.LoiChoisie) == 0)
        return FauteLoi{AvecLoisRemplacees(Texte(521) + " " + etude.lois.LoiChoisie + " " + Texte(103)),
                        &DonneesEtude::AngleIndexage};
    const double S = etude.donnees.SymetrieLoi;
    if (S < 0.0 || S > 1.0) return FauteLoi{Texte(522) + " 0 <= C <=1", &DonneesEtude::SymetrieLoi};
    if (etude.donnees.ValeurDepart <= 0.0 && etude.donnees.ValeurFin <= 0.0)
        return FauteLoi{Texte(101) + " " + Texte(102), &DonneesEtude::ValeurDepart};
    auto incomplet = LoiChoisieSpe()
                         ? ChercheIncomplet(champsMouv, {&DonneesEtude::AngleIndexage, &DonneesEtude::VitesseEntree,
                                                         &DonneesEtude::PourcentageLoi})
                         : ChercheIncomplet(champsMouv, {&DonneesEtude::AngleIndexage, &DonneesEtude::VitesseEntree});
    if (incomplet) return incomplet;
    if (LoiChoisieSpe() && etude.donnees.PourcentageLoi >= 100.0)
        return DonneesIncompletes(champsMouv, &DonneesEtude::AngleIndexage, &DonneesEtude::PourcentageLoi);
    if (S == 0.0 && !LoiChoisieMSH())
        return FauteLoi{Texte(197), &DonneesEtude::SymetrieLoi}; // the rise would take no time
    return {};
}

/// The row is studied in `LoiEtude`, so that the percentage is taken whole and no row of the catalogue changes.
void RemplitMouv(ResultatLoi& resultat) {
    const Loi ligne = LigneChoisie();
    Loi& loi = etude.lois.LoiEtude;
    loi = ligne;
    resultat.CoefA = loi.CoefA;
    resultat.CoefB = loi.CoefB;
    resultat.CoefC = loi.CoefC;
    resultat.CoefD = loi.CoefD;

    etude.donnees.NombreZones = 1;
    etude.donnees.Zones.Redimensionne(1);
    Zone& zone = etude.donnees.Zones[1];
    zone.NomLoi = loi.NomLoi;
    zone.CoefSymetrie = etude.donnees.SymetrieLoi;
    zone.AngleCame = etude.resultats.NombrePoints;
    zone.Temps = resultat.Duree;
    if (LoiChoisieMSH()) {
        // Speed and acceleration are per unit of the rise's share of the angle, and are scaled as if they were per unit
        // of the whole: kept on purpose.
        PrepareLoiMSH(ligne);
        CalculeLoiMSH();
        zone.CoefSymetrie = 0.5;
    } else {
        RemplitTable(loi, zone.CoefSymetrie, zone.AngleCame, etude.lois.LoiUnite);
    }
    const double S = zone.CoefSymetrie;
    resultat.CoefAccel = S == 0.5 ? loi.Ca : loi.Ca * 0.5 / S;
    resultat.CoefVitesse = S == 0.5 ? loi.Cv : loi.Cv * 0.5 / S;
}

// ---- Hesser

constexpr ChampLoi champsHesser[] = {champAngle, champSortie, ChampVitesse("Text3")};
constexpr ValeurLoi valeursHesser[] = {
    coefAccel,   coefVitesse, {"CoefFixe", 366, Grandeur::Nombre, &ResultatLoi::CoefFixe, MasqueCoefficient},
    vitesseMaxi, accelMaxi,   duree,
};

std::optional<FauteLoi> ChercheFauteHesser() {
    return ChercheIncomplet(champsHesser,
                            {&DonneesEtude::AngleIndexage, &DonneesEtude::ValeurFin, &DonneesEtude::VitesseEntree});
}

void RemplitHesser(ResultatLoi& resultat) {
    RemplitLoiUnite(EvalueHesser);
    resultat.CoefAccel = HesserCa;
    resultat.CoefVitesse = HesserCv;
    resultat.CoefFixe = HesserCoefFixe;
}

// ---- fast advance, slow approach

constexpr ChampLoi champsRapide[] = {
    {{"AngleTotal", "Text1", 367, 0, &DonneesEtude::AngleIndexage}, Grandeur::AngleEntree},
    {{"AngleAvanceRapide", "Text2", 368, 0, &DonneesEtude::AngleAvanceRapide}, Grandeur::AngleEntree},
    {{"SortieTotale", "Text3", 369, 0, &DonneesEtude::ValeurFin}, Grandeur::Sortie, 371},
    {{"SortieAvanceRapide", "Text4", 370, 0, &DonneesEtude::SortieAvanceRapide}, Grandeur::Sortie, 372},
    ChampVitesse("Text5"),
};
constexpr ValeurLoi valeursRapide[] = {
    coefAccel,
    coefVitesse,
    {"VitesseRapide", 373, Grandeur::Vitesse, &ResultatLoi::VitesseRapide, MasqueValeur},
    {"VitesseLente", 374, Grandeur::Vitesse, &ResultatLoi::VitesseLente, MasqueValeur},
    {"AccelRapide", 375, Grandeur::Accel, &ResultatLoi::AccelRapide, MasqueValeur},
    {"AccelFreinage", TexteFreinage, Grandeur::Accel, &ResultatLoi::AccelFreinage, MasqueValeur},
    {"AccelLente", 376, Grandeur::Accel, &ResultatLoi::AccelLente, MasqueValeur},
    vitesseMaxi,
    accelMaxi,
    duree,
};

AvanceRapide AvanceDemandee() {
    return PrepareAvanceRapide(etude.donnees.AngleAvanceRapide / etude.donnees.AngleIndexage,
                               etude.donnees.SortieAvanceRapide / etude.donnees.ValeurFin);
}

std::optional<FauteLoi> ChercheFauteRapide() {
    auto incomplet = ChercheIncomplet(champsRapide, {&DonneesEtude::AngleIndexage, &DonneesEtude::AngleAvanceRapide,
                                                     &DonneesEtude::ValeurFin, &DonneesEtude::SortieAvanceRapide,
                                                     &DonneesEtude::VitesseEntree});
    if (incomplet) return incomplet;
    if (!(etude.donnees.AngleAvanceRapide < etude.donnees.AngleIndexage))
        return DonneesIncompletes(champsRapide, &DonneesEtude::AngleIndexage, &DonneesEtude::AngleAvanceRapide);
    if (!(etude.donnees.SortieAvanceRapide < etude.donnees.ValeurFin))
        return DonneesIncompletes(champsRapide, &DonneesEtude::AngleIndexage, &DonneesEtude::SortieAvanceRapide);
    if (!AvanceDemandee().place) return FauteLoi{"\n" + Texte(622), &DonneesEtude::AngleAvanceRapide};
    return {};
}

void RemplitRapide(ResultatLoi& resultat) {
    const AvanceRapide loi = AvanceDemandee();
    RemplitLoiUnite([&](double x) { return EvalueAvanceRapide(loi, x); });
    resultat.CoefAccel = std::max({std::abs(loi.A1), std::abs(loi.A2), std::abs(loi.A3)});
    resultat.CoefVitesse = std::max(loi.V1, loi.V2);
    resultat.VitesseRapide = loi.V1;
    resultat.VitesseLente = loi.V2;
    resultat.AccelRapide = loi.A1;
    resultat.AccelFreinage = loi.A2;
    resultat.AccelLente = loi.A3;
}

// ---- liquids

constexpr ChampLoi champsLiquide[] = {
    champAngle,
    champSortie,
    ChampVitesse("Text3"),
    {{"ExcentriciteLiq", "Text4", 380, 0, &DonneesEtude::ExcentriciteLiq}, Grandeur::Nombre},
};
constexpr ValeurLoi valeursLiquide[] = {
    coefAccel,   coefVitesse, {"DecelerationMaxi", 381, Grandeur::Accel, &ResultatLoi::DecelerationMaxi, MasqueValeur},
    vitesseMaxi, accelMaxi,   duree,
};

std::optional<FauteLoi> ChercheFauteLiquide() {
    auto incomplet = ChercheIncomplet(champsLiquide, {&DonneesEtude::AngleIndexage, &DonneesEtude::ValeurFin,
                                                      &DonneesEtude::VitesseEntree, &DonneesEtude::ExcentriciteLiq});
    if (incomplet) return incomplet;
    // At 0.5 nothing is left for the deceleration.
    if (!(etude.donnees.ExcentriciteLiq < 0.5)) return FauteLoi{Texte(382), &DonneesEtude::ExcentriciteLiq};
    return {};
}

void RemplitLiquide(ResultatLoi& resultat) {
    const LoiLiquide loi = PrepareLiquide(etude.donnees.ExcentriciteLiq);
    RemplitLoiUnite([&](double x) { return EvalueLiquide(loi, x); });
    resultat.CoefAccel = std::max(loi.Ca, loi.Cd);
    resultat.CoefVitesse = loi.Cv;
    resultat.DecelerationMaxi = loi.Cd;
}

// ---- asymmetric rise and return

constexpr ChampLoi champsDissyme[] = {
    {{"AngleMontee", "Text1", 385, 0, &DonneesEtude::AngleMontee}, Grandeur::AngleEntree},
    {{"AngleDescente", "Text2", 388, 0, &DonneesEtude::AngleDescente}, Grandeur::AngleEntree},
    {{"Course", "Text3", 250, 0, &DonneesEtude::ValeurFin}, Grandeur::Sortie},
    ChampVitesse("Text4"),
};
constexpr ValeurLoi valeursDissyme[] = {coefAccel, coefVitesse, vitesseMaxi, accelMaxi, duree};
constexpr double DonneesEtude::*deuxAngles[] = {&DonneesEtude::AngleMontee, &DonneesEtude::AngleDescente};

std::optional<FauteLoi> ChercheFauteDissyme() {
    auto incomplet = ChercheIncomplet(champsDissyme, {&DonneesEtude::AngleMontee, &DonneesEtude::AngleDescente,
                                                      &DonneesEtude::ValeurFin, &DonneesEtude::VitesseEntree});
    if (incomplet) return incomplet;
    if (!PrepareMSHDissyme(etude.donnees.AngleDescente / etude.donnees.AngleMontee).existe)
        return FauteLoi{Texte(389), &DonneesEtude::AngleDescente};
    return {};
}

/// Speed and acceleration of both halves are per unit of the rise's angle, and are scaled by the duration of the whole
/// motion like those of the other MSH laws: kept on purpose.
void RemplitDissyme(ResultatLoi& resultat) {
    const LoiMSHDissyme loi = PrepareMSHDissyme(etude.donnees.AngleDescente / etude.donnees.AngleMontee);
    const double montee = etude.donnees.AngleMontee * etude.donnees.PointsParDegre, n = NombrePas(deuxAngles);
    etude.lois.LoiUnite.Redimensionne(etude.resultats.NombrePoints);
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i) {
        const double pas = std::min(static_cast<double>(i), n);
        etude.lois.LoiUnite[i] = pas <= montee ? EvalueMonteeMSH(loi.montee, pas / montee)
                                               : EvalueDescente(loi, (pas - montee) / (n - montee));
    }
    resultat.CoefAccel = loi.montee.Ca;
    resultat.CoefVitesse = loi.montee.Cv;
}

// ----

constexpr EtudeLoi etudes[] = {
    {"LoiMouv", "LoiMouv", nullptr, 0, &DonneesEtude::LoiMouvActive, false, champsMouv, valeursMouv, ChercheFauteMouv,
     angleEntier, RemplitMouv, true},
    {"LoiHes", "LoiHesser", "hesser", 363, &DonneesEtude::LoiHesActive, true, champsHesser, valeursHesser,
     ChercheFauteHesser, angleEntier, RemplitHesser},
    {"LoiSpe", "LoiSpecial", "avance-rapide", 116, &DonneesEtude::LoiSpeActive, true, champsRapide, valeursRapide,
     ChercheFauteRapide, angleEntier, RemplitRapide},
    {"LoisLiq", "LoiLiquide", "liquides", 379, &DonneesEtude::LoisLiqActive, true, champsLiquide, valeursLiquide,
     ChercheFauteLiquide, angleEntier, RemplitLiquide},
    {"LoiMSHDis", "LoiMSHDis", "msh-dissymetrique", 114, &DonneesEtude::LoiMSHDisActive, true, champsDissyme,
     valeursDissyme, ChercheFauteDissyme, deuxAngles, RemplitDissyme},
};

/// A value below 0 where the screen lets none be typed.
std::optional<FauteLoi> ChercheFauteCommune(const EtudeLoi& loi) {
    for (const ChampLoi& champ : loi.champs)
        if (!champ.signe && champ.Nombre(etude.donnees) < 0.0)
            return FauteLoi{Texte(champ.Libelle()) + " : " + Texte(196), champ.membre};
    return {};
}

/// Last subscript of the tables. A motion of a special law ends at its own angle, whatever the step: where its steps
/// are not whole, one last row stands there.
double DernierPoint(const EtudeLoi& loi) {
    if (!loi.pasEntiers) return std::ceil(NombrePas(loi.angles));
    double points = 0;
    for (const auto angle : loi.angles) points += Arrondi(etude.donnees.*angle * etude.donnees.PointsParDegre);
    return points;
}

/// An angle that makes no point, or points that no 16-bit subscript reaches.
std::optional<FauteLoi> ChercheFautePoints(const EtudeLoi& loi) {
    for (const auto angle : loi.angles)
        if (Arrondi(etude.donnees.*angle * etude.donnees.PointsParDegre) < 1.0) return FauteLoi{Texte(794), angle};
    if (DernierPoint(loi) > 32767.0) return FauteLoi{Texte(205), loi.angles.front()};
    return {};
}

/// The motion of the output: the unit law over the stroke and the duration.
/// @param fin cam angle that it ends at, degrees
void DerouleMouvement(ResultatLoi& resultat, double fin) {
    const double depart = etude.donnees.ValeurDepart, course = etude.donnees.ValeurFin - depart;
    const double courseSI = etude.donnees.SortieEnDegres ? course * Pi / 180.0 : course / 1000.0; // rad or m
    const double T = resultat.Duree;
    const double parVitesse = Divise(courseSI, T), parAccel = Divise(courseSI, T * T);
    const long n = etude.resultats.NombrePoints;
    etude.resultats.Mouvement.Redimensionne(n);
    etude.resultats.Points.Redimensionne(n);
    for (long i = 0; i <= n; ++i) {
        const PointLoi& unite = etude.lois.LoiUnite[i];
        PointLoi& point = etude.resultats.Mouvement[i];
        point = {depart + course * unite.Course, parVitesse * unite.Vitesse, parAccel * unite.Accel};
        etude.resultats.Points[i].Angle = std::min(static_cast<double>(i) / etude.donnees.PointsParDegre, fin);
        resultat.VitesseMaxi = std::max(resultat.VitesseMaxi, std::abs(point.Vitesse));
        resultat.AccelerationMaxi = std::max(resultat.AccelerationMaxi, std::abs(point.Accel));
    }
    for (const auto vitesse : {&ResultatLoi::VitesseRapide, &ResultatLoi::VitesseLente})
        resultat.*vitesse *= parVitesse;
    for (const auto accel : {&ResultatLoi::AccelRapide, &ResultatLoi::AccelFreinage, &ResultatLoi::AccelLente,
                             &ResultatLoi::DecelerationMaxi})
        resultat.*accel *= parAccel;
}

/// Numbers beyond all measure end the study, with the first quantity and point that they have reached.
void ExigeEtudeFinie(const EtudeLoi& loi, const ResultatLoi& resultat) {
    if (const long i = PremierNonFini(etude.resultats.Mouvement); i >= 0) {
        const PointLoi& point = etude.resultats.Mouvement[i];
        const int texte = !std::isfinite(point.Course) ? 250 : !std::isfinite(point.Vitesse) ? 225 : 226;
        throw ErreurExecution(NumeroErreur::ResultatNonFini,
                              Texte(texte) + ", " + Texte(439) + " " + std::to_string(i));
    }
    for (const ValeurLoi& valeur : loi.valeurs)
        if (!std::isfinite(resultat.*valeur.membre))
            throw ErreurExecution(NumeroErreur::ResultatNonFini, Texte(valeur.texte));
}

} // namespace

bool LoiChoisieSpe() {
    return EstLoiSpe(etude.lois.LoiChoisie);
}

bool LoiChoisieMSH() {
    return etude.lois.LoiChoisie.starts_with("MSH");
}

int UniteLoi(Grandeur grandeur) {
    const bool degres = etude.donnees.SortieEnDegres != Faux;
    switch (grandeur) {
    case Grandeur::Nombre:
        return 0;
    case Grandeur::AngleEntree:
        return UniteDegres;
    case Grandeur::Pourcentage:
        return UnitePourcent;
    case Grandeur::Tours:
        return UniteTours;
    case Grandeur::Duree:
        return UniteSecondes;
    case Grandeur::Sortie:
        return degres ? UniteDegres : UniteMm;
    case Grandeur::Vitesse:
        return degres ? UniteRadS : UniteMS;
    case Grandeur::Accel:
        return degres ? UniteRadS2 : UniteMS2;
    }
    return 0;
}

std::span<const EtudeLoi> LesEtudesLois() {
    return etudes;
}

const EtudeLoi* TrouveEtudeLoi(std::string_view ecran) {
    const auto loi =
        std::find_if(std::begin(etudes), std::end(etudes), [&](const EtudeLoi& l) { return ecran == l.ecran; });
    return loi == std::end(etudes) ? nullptr : loi;
}

const EtudeLoi* TrouveGenreLoi(std::string_view genre) {
    const auto loi = std::find_if(std::begin(etudes), std::end(etudes),
                                  [&](const EtudeLoi& l) { return l.genre != nullptr && genre == l.genre; });
    return loi == std::end(etudes) ? nullptr : loi;
}

std::optional<FauteLoi> ChercheFauteLoi(const EtudeLoi& loi) {
    etude.resultats.Erreur = Faux;
    auto faute = ChercheFauteCommune(loi);
    if (!faute) faute = loi.chercheFaute();
    if (!faute) faute = ChercheFautePoints(loi);
    if (faute) etude.resultats.Erreur = Vrai;
    return faute;
}

ResultatLoi CalculeEtudeLoi(const EtudeLoi& loi) {
    etude.resultats.NombrePoints = Entier16(DernierPoint(loi));
    ResultatLoi resultat;
    // The motion lasts the steps of its table, so that lift and speeds agree.
    const double pas = loi.pasEntiers ? etude.resultats.NombrePoints : NombrePas(loi.angles);
    resultat.Duree = pas / etude.donnees.PointsParDegre / 6.0 / etude.donnees.VitesseEntree;
    loi.remplit(resultat);
    DerouleMouvement(resultat, pas / etude.donnees.PointsParDegre);
    ExigeEtudeFinie(loi, resultat);
    return resultat;
}
