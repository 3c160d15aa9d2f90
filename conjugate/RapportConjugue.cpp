#include "conjugate/RapportConjugue.h"

#include "core/Nombres.h"

#include <initializer_list>

namespace {

constexpr const char* LigneVide = "  ";

std::string Blancs(std::size_t nombre) {
    return std::string(nombre, ' ');
}

void Ecrit(std::vector<std::string>& lignes, std::initializer_list<const char*> textes) {
    lignes.insert(lignes.end(), textes.begin(), textes.end());
}

/// A value and the column that it begins at.
struct Colonne {
    std::size_t debut;
    std::string texte;
};

/// Values below their headings; a value too long moves those behind it, one blank apart.
std::string Aligne(const std::vector<Colonne>& colonnes) {
    std::string ligne;
    for (const auto& colonne : colonnes) {
        const std::size_t manque = colonne.debut > ligne.size() ? colonne.debut - ligne.size() : 1;
        ligne += Blancs(manque) + colonne.texte;
    }
    return ligne;
}

void EcritAngles(const DonneesConjugue& d, const ReposConjugue& repos, const CapaciteConjugue& c,
                 std::vector<std::string>& lignes) {
    const std::string tete =
        "  PAD     RDS     PA   @ T = " + TexteArrondi(c.Tx, 2) + " deg  RCF      SR     FU      BLR";
    lignes.push_back(tete);
    const auto sous = [&](const char* titre, std::string valeur) {
        return Colonne{tete.find(titre), std::move(valeur)};
    };
    lignes.push_back(Aligne({sous("PAD", TexteArrondi(repos.PAD, 2)), sous("RDS", TexteArrondi(repos.RSD, 1)),
                             sous("PA ", TexteArrondi(c.premier.contact.PA, 2)),
                             sous("RCF", TexteArrondi(c.premier.contact.RCF, 1)), sous("SR", TexteArrondi(repos.SR, 3)),
                             sous("FU", TexteArrondi(c.Fu, 3)), sous("BLR", TexteCourt(d.B10))}));
    if (c.phi2 <= 0)
        lignes.push_back(Blancs(16) + TexteArrondi(c.second.contact.PA, 2) + Blancs(18) +
                         TexteArrondi(c.second.contact.RCF, 1));
}

void EcritSurface(const CapaciteConjugue& c, std::vector<std::string>& lignes) {
    const std::string extreme = "     AT POSITION OF EXTR. ACCELERATION : ";
    lignes.push_back("CAM SURFACE LIMIT @ RC55 :   AT DWELL  : " + TexteArrondi(c.C55d, 1));
    lignes.push_back(extreme + TexteArrondi(c.premier.C55, 1));
    lignes.push_back(LigneVide);
    lignes.push_back("CAM SURFACE LIMIT @ RC60 :   AT DWELL  : " + TexteCourt(c.C60d) + " Nm");
    lignes.push_back(extreme + TexteCourt(c.premier.C60) + " Nm");
    if (c.phi2 >= 0) return;
    lignes.push_back(Blancs(38) + TexteArrondi(c.second.C55, 1) + " Nm");
    lignes.push_back(Blancs(38) + TexteArrondi(c.second.C60, 1) + " Nm");
}

/// The two ratings of the bearing. The unit of the last second contact stands without a blank, as it always did.
void EcritLimitesDynamiques(const DonneesConjugue& d, const CapaciteConjugue& c, std::vector<std::string>& lignes) {
    const std::string duree = " FOR  " + TexteArrondi(DureeVie, 1);
    lignes.push_back(LigneVide);
    lignes.push_back("DYNAMIC LIMIT :  " + TexteArrondi(c.premier.DynB10, 1) + " Nm");
    if (c.phi2 < 0) lignes.push_back(Blancs(16) + TexteCourt(c.second.DynB10) + " Nm");
    lignes.push_back(duree + " HRB B10 BEARING LIFE @" + TexteArrondi(d.Ipm, 1) + " INDEXES PER MINUTE");
    lignes.push_back(LigneVide);
    lignes.push_back("DYNAMIC LIMIT : " + TexteArrondi(c.premier.DynB50, 1) + " Nm");
    if (c.phi2 < 0) lignes.push_back(Blancs(16) + TexteCourt(c.second.DynB50) + "Nm");
    lignes.push_back(duree + " HRB B50 = " + TexteArrondi(DureeVie / 4, 1) + " HRB B10 BEARING LIFE");
}

} // namespace

void EcritDonnees(const DonneesConjugue& d, const Courbures& courbures, std::vector<std::string>& lignes) {
    const auto ligne = [&](const char* libelle, const std::string& valeur, const char* unite = "") {
        lignes.push_back(libelle + valeur + unite);
    };
    ligne("Entre axes                   (Q) =", TexteArrondi(d.Q, 2), " mm");
    ligne("Rayon axe galet              (R) =", TexteArrondi(d.R, 2), " mm");
    ligne("Nombre de galets             (M) =", TexteCourt(d.M));
    ligne("Nombre de stops              (N) =", TexteCourt(d.N));
    ligne("Angle d'indexage             (A) =", TexteCourt(d.loi.A), " Degrés");
    ligne("Diamètre du galet            (D) =", TexteCourt(d.D), " mm");
    ligne("Hauteur du galet             (F) =", TexteCourt(d.F), " mm");
    ligne("Partie à vitesse constante   (W) =", TexteCourt(d.loi.W));
    ligne("Coefficient de vitesse       (Cvu) =", TexteArrondi(d.loi.Cvu, 3));
    ligne("Indexages par minute         (Ipm) =", TexteCourt(d.Ipm));
    lignes.push_back("Rayon de courbure maxi :" + TexteArrondi(courbures.RayonMaxi, 2) +
                     " , Rayon de courbure mini :" + TexteArrondi(courbures.RayonMini, 2));
}

void EcritExplications(std::vector<std::string>& lignes) {
    Ecrit(lignes, {LigneVide, LigneVide, "Explanation of values belows", LigneVide,
                   " T   = Input angle of max acceleration (FI, FII : T = 0.125*A), in degrees",
                   " PAD = Pressure angle of dwell, in degrees", " RSD = Radius to the cam surface at dwell, in mm",
                   " PA  = Pressure angle at T, in degrees",
                   " RCF = Radius fron center of the cam to center of follower, at T, in mm",
                   " SR  = Diameter ratio of the two contacting \"rollers\", at dwell SR = 2*RSD/D",
                   " FU  = Usage factor of rollers",
                   " BLR = Basic dynamic load rating of the follower bearing, in Newton", "   ", LigneVide});
}

void EcritCapacite(const DonneesConjugue& d, const Courbures& courbures, const ReposConjugue& repos,
                   const CapaciteConjugue& capacite, std::vector<std::string>& lignes) {
    EcritAngles(d, repos, capacite, lignes);
    lignes.push_back(LigneVide);
    lignes.push_back("For undercutting");
    lignes.push_back(" PMIN = " + TexteArrondi(courbures.PMin, 1));
    lignes.push_back(LigneVide);
    EcritSurface(capacite, lignes);
    lignes.push_back(LigneVide);
    lignes.push_back(
        "STATIC LIMIT, DUE TO MAX; STATIC FOLLOWER CAP, AT DWELL : " + TexteCourt(capacite.LimiteStatique) + " Nm");
    EcritLimitesDynamiques(d, capacite, lignes);
}

void EcritTeteTableau(std::vector<std::string>& lignes) {
    Ecrit(lignes,
          {LigneVide, LigneVide, LigneVide, "              Cam surface         Dynamic             Output - Torque",
           "   Indexes      Capacity          Limit for         Catalogue",
           "   per min     at T,RC60   8000 H B10  8000 H B50 (old)    (new)    (own)",
           "                  [Nm]        [Nm]        [Nm]    [Nm]     [Nm]     [Nm]"});
}

void EcritLigneTableau(const LigneVitesse& ligne, std::vector<std::string>& lignes) {
    const auto entier = [](double valeur) { return Str(Int(valeur)); };
    // Nothing fills the last column, as always.
    lignes.push_back(Blancs(4) + entier(ligne.Ipm) + Blancs(7) + entier(ligne.C60x) + Blancs(6) + entier(ligne.DynB10) +
                     Blancs(6) + entier(ligne.DynB50) + Blancs(4) + entier(ligne.Catalogue) + Blancs(4) +
                     entier(ligne.Catalogue - ligne.Propre) + Blancs(2));
}
