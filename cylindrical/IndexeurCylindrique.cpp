#include "cylindrical/IndexeurCylindrique.h"

#include "cylindrical/TextesIndexeurCyl.h"
#include "data/Textes.h"
#include "data/TextesSaisie.h"
#include "data/Unites.h"
#include "indexers/TextesIndexeurs.h"

#include <algorithm>
#include <cmath>

namespace {

using Fiche = IndexeurCylindrique;

const Champ<Fiche> champs[] = {
    {"Modele", "DerouleModeles", 554, 0, &Fiche::Modele},
    {"Entraxe", "Text1", 171, UniteMm, &Fiche::Entraxe, nullptr, NulOuNegatif, 547},
    {"RayonTourelle", "Text2", 555, UniteMm, &Fiche::RayonTourelle, nullptr, NulOuNegatif, 548},
    {"InertieTourelle", "Text3", 557, UniteKgM2, &Fiche::InertieTourelle, nullptr, NulOuNegatif, 549},
    {"CapaciteArbre", "Text12", 560, UniteNm, &Fiche::CapaciteArbre, nullptr, NulOuNegatif, 678},
    {"CameDiam", "Text20", 401, UniteMm, &Fiche::CameDiam, nullptr, NulOuNegatif, 679},
    {"CameMaxLarg", "Text21", 402, UniteMm, &Fiche::CameMaxLarg, nullptr, NulOuNegatif, 680},
    {"Boitier", nullptr, 593, 0, &Fiche::Boitier},
    {"NombreStops", "Text5", 269, 0, &Fiche::NombreStops, nullptr, NulOuNegatif, 681},
    {"NombreGalets", "Text6", 596, 0, &Fiche::NombreGalets},
    {"AngleIndexage", "Text7", 270, UniteDegresMajuscule, &Fiche::AngleIndexage},
    {"NomLoi", "DerouleLois", 105, 0, &Fiche::NomLoi},
    {"CoefSymetrie", "Text13", 522, 0, &Fiche::CoefSymetrie},
    {"FichierLoi", nullptr, 279, 0, &Fiche::FichierLoi},
    {"CoefA", "Text14", 568, 0, &Fiche::CoefA},
    {"CoefB", "Text15", 569, 0, &Fiche::CoefB},
    {"CoefC", "Text16", 570, 0, &Fiche::CoefC},
    {"Sens", nullptr, 403, 0, &Fiche::Sens},
    {"ReferenceGalet", "DerouleGalets", 595, 0, &Fiche::ReferenceGalet},
    {"DiametreGalet", "Text8", 218, UniteMm, &Fiche::DiametreGalet},
    {"HauteurGalet", "Text9", 244, UniteMm, &Fiche::HauteurGalet},
    {"CapaciteB10", "Text10", 565, UniteN, &Fiche::CapaciteB10},
    {"CapaciteLimite", "Text11", 566, UniteN, &Fiche::CapaciteLimite},
    {"codemi", nullptr, 289, 0, &Fiche::codemi},
};

const ChampCatalogue champsMecanismes[] = {
    {"Entraxe", "Entraxe", false, true, 547},
    {"RayonTourelle", "RayonTourelle"},
    {"InertieTourelle", "InertieTourelle", true, true, 549},
    {"CapaciteArbre", "CapacitéArbreEntree", true},
    {"CameDiam", "CameDiam", true},
    {"CameMaxLarg", "CameMaxLarg", true},
    {"Boitier", "Boitier"},
};
const ChampCatalogue champsGalets[] = {
    {"DiametreGalet", "DiametreGalet", false, true, 542},
    {"HauteurGalet", "HauteurGalet", false, true, 543},
    {"CapaciteB10", "CapaciteB10", false, true, 544},
    {"CapaciteLimite", "CapaciteLimite", false, true, 545},
    {"codemi", "codemi", false, false}, // a new roller has no code
};

constexpr double GaletsMini = 5;
constexpr double SymetrieMini = 0.1, SymetrieMaxi = 0.9;

/// Within this of a whole number the quotient of stops and rollers is one.
constexpr double EcartEntrees = 1e-9;

FauteSaisie Faute(const char* champ, int texte) {
    return {champ, Texte(texte)};
}

/// Starts of the track: stops over rollers, or the inverse where that is below 1.
double NombreEntrees(const Fiche& d) {
    double entrees = d.NombreStops / Entier16(d.NombreGalets);
    if (entrees < 1.0) entrees = 1.0 / entrees;
    const double entier = Arrondi(entrees);
    return std::abs(entrees - entier) <= EcartEntrees ? entier : entrees;
}

std::optional<FauteSaisie> ChercheFauteGalet(const Fiche& d) {
    if (d.ReferenceGalet.empty()) return Faute("ReferenceGalet", 682);
    // The product decides, on purpose: two negative numbers make up for each other.
    if (d.DiametreGalet * d.HauteurGalet * d.CapaciteB10 * d.CapaciteLimite > 0.0) return {};
    for (const auto& [nom, valeur] : {std::pair{"DiametreGalet", d.DiametreGalet},
                                      {"HauteurGalet", d.HauteurGalet},
                                      {"CapaciteB10", d.CapaciteB10}})
        if (NulOuNegatif(valeur)) return Faute(nom, 683);
    return Faute("CapaciteLimite", 683);
}

bool GaletNegatif(const Fiche& d) {
    return std::min({d.DiametreGalet, d.HauteurGalet, d.CapaciteB10, d.CapaciteLimite}) < 0.0;
}

std::optional<FauteSaisie> ChercheFauteMecanisme(const Fiche& d) {
    const double galets = Entier16(d.NombreGalets);
    if (d.Modele.empty()) return Faute("Modele", 546);
    if (const auto* champ = ChercheInterdit(champs, d)) return Faute(champ->nom, champ->texteFaute);
    if (galets < GaletsMini) return Faute("NombreGalets", 539);
    if (d.AngleIndexage <= 0.0 || d.AngleIndexage > 360.0) return Faute("AngleIndexage", 623);
    if (d.CoefSymetrie < SymetrieMini || d.CoefSymetrie > SymetrieMaxi)
        return FauteSaisie{"CoefSymetrie", Texte(676) + "\n0.1 & 0.9"};
    const double entrees = NombreEntrees(d);
    if (entrees != Int(entrees)) return FauteSaisie{"NombreStops", Texte(677) + "\n" + Texte(509)};
    return {};
}

/// Sizes of the cam, from the half pitch in radians.
ResultatIndexeurCylindrique Dimensions(const Fiche& d) {
    ResultatIndexeurCylindrique r;
    r.PasGalets = 360.0 / Entier16(d.NombreGalets);
    r.AngleStop = 360.0 / d.NombreStops;
    r.AngleIndexage = d.AngleIndexage;
    const double a = r.PasGalets * Pi / 180.0 / 2.0;
    r.LargeurCame = 2.0 * d.RayonTourelle * std::sin(a) + d.DiametreGalet;
    r.LargeurCameAffichee = Val(TexteArrondi(r.LargeurCame, 3));
    r.NombreEntrees = NombreEntrees(d);
    r.GaletsUtilises = Entier16(r.NombreEntrees + 2.0);
    r.EpaisseurStationnaire = 2.0 * d.RayonTourelle * std::sin(a) - d.DiametreGalet;
    return r;
}

/// The motion of a law file: two lines a degree, and as many degrees as they make. Degree 0 stays 0.
void PrepareLoiFichier(const Fiche& d, ResultatIndexeurCylindrique& r) {
    const LoiDeFichier loi = LitFichierLoiCalculateur(d.FichierLoi);
    r.AngleIndexage = static_cast<double>(loi.nombre) / 2.0;
    r.LoiUnitaire.Redimensionne(Entier16(r.AngleIndexage));
    for (long k = 1; static_cast<double>(k) <= r.AngleIndexage; ++k) r.LoiUnitaire[k] = loi.lignes[2 * k].Course;
    if (!loi.finie) r.notes.push_back(Texte(TexteLoiSansFin));
}

/// Row of the table for a cam degree that need not be whole.
long LigneGrille(double degre) {
    return Entier16(degre + 1.0);
}

class Positions {
public:
    Positions(const Fiche& d, ResultatIndexeurCylindrique& r) : d_(d), r_(r) {
        r_.Grille.Redimensionne(DegresGrille);
        const auto colonnes = static_cast<std::size_t>(r_.GaletsUtilises) + 2;
        for (auto& ligne : r_.Grille) ligne.assign(colonnes, {});
        auto& titres = r_.Grille[0];
        titres.front() = Texte(411);
        for (int j = 1; j <= r_.GaletsUtilises; ++j)
            titres[static_cast<std::size_t>(j)] = Texte(289) + " " + std::to_string(j);
        titres.back() = Texte(412) + " (mm)";
    }

    /// The turret turns by one stop. Rollers within a quarter turn of the plane of the cam and within its width are in
    /// engagement.
    void Mouvement() {
        const double demiLargeur = r_.LargeurCame / 2.0;
        for (long i = 0; static_cast<double>(i) <= r_.AngleIndexage; ++i) {
            Degre(static_cast<double>(i));
            for (int j = 1; j <= r_.GaletsUtilises; ++j) {
                const double alpha = (r_.AngleStop * r_.LoiUnitaire[i] + h_ - (j - 1) * r_.PasGalets) * Pi / 180.0;
                if (alpha < -Pi / 2.0 || alpha > Pi / 2.0) continue;
                const PointDessin p = Centre(alpha);
                if (std::abs(p.y) > demiLargeur) continue;
                r_.MaxX = std::max(r_.MaxX, std::abs(p.x));
                r_.MaxY = std::max(r_.MaxY, std::abs(p.y));
                Pose(j, p);
            }
        }
        r_.LargeurCame = 2.0 * r_.MaxY;
    }

    /// The turret stands one stop further. One roller fewer is written, and none is tested for engagement; the first
    /// row is the last one of the motion.
    void Repos() {
        for (double i = r_.AngleIndexage; i <= 360.0; i += 1.0) {
            Degre(i);
            for (int j = 1; j <= r_.GaletsUtilises - 1; ++j) {
                const double alpha = (h_ - (j - 1) * r_.PasGalets) * Pi / 180.0;
                Pose(j, Centre(alpha + r_.AngleStop * Pi / 180.0));
            }
        }
    }

private:
    /// Goes to the row of a cam degree, and to its place on the circumference.
    void Degre(double i) {
        ligne_ = &r_.Grille[LigneGrille(i)];
        ligne_->front() = TexteCourt(i);
        arc_ = (Pi / 180.0 * i * d_.CameDiam) / 2.0;
    }
    PointDessin Centre(double alpha) const {
        const double R = d_.RayonTourelle;
        return {R * std::cos(alpha) + arc_ - R * std::cos(h_ * Pi / 180.0), sens_ * R * std::sin(alpha)};
    }
    void Pose(int j, PointDessin p) const {
        (*ligne_)[static_cast<std::size_t>(j)] = Format(p.x, "000.000") + " , " + Format(p.y, "000.000");
    }

    const Fiche& d_;
    ResultatIndexeurCylindrique& r_;
    const double h_ = r_.PasGalets / 2.0;
    const double sens_ = d_.Sens < 0.0 ? -1.0 : 1.0;
    std::vector<std::string>* ligne_ = nullptr;
    double arc_ = 0;
};

/// Height that a cell tells; 0 for one that tells none.
double LitY(const std::string& cellule) {
    const auto virgule = cellule.find(',');
    return virgule == std::string::npos ? 0.0 : Val(std::string_view(cellule).substr(virgule + 1));
}

/// Between the first roller that stands off the middle and the one beside it. The first height is taken with its sign,
/// a roller alone in engagement and one that has left the cam count, too, all on purpose; notes say so.
void EpaisseurProfil(const Fiche& d, ResultatIndexeurCylindrique& r) {
    for (long i = 1; i < DegresGrille; ++i) {
        auto& ligne = r.Grille[i];
        double y = 0.0, y2 = 0.0;
        for (std::size_t j = 1; y == 0.0 && j + 2 < ligne.size(); ++j) {
            y = LitY(ligne[j]);
            y2 = LitY(ligne[j + 1]);
        }
        if (y == 0.0) y2 = 0.0;
        ligne.back() = Format(std::abs(y2) + y - d.DiametreGalet, "000.000");
    }
    r.notes.push_back(Texte(TexteEpaisseurProfil));
    if (GaletNegatif(d)) r.notes.push_back(Texte(TexteProduitSeul));
    if (d.Sens < 0.0) r.notes.push_back(Texte(TexteEpaisseurGauche));
}

} // namespace

std::span<const Champ<IndexeurCylindrique>> ChampsIndexeurCylindrique() {
    return champs;
}

const Catalogue& CatalogueMecanismesCylindriques() {
    static const Catalogue catalogue{"Table Mecanismes Cylindriques", "Modele", "Modele", champsMecanismes, 546, {550}};
    return catalogue;
}

const Catalogue& CatalogueGalets() {
    static const Catalogue catalogue{
        "Table Galets", "ReferenceGalet", "ReferenceGalet", champsGalets, 541, {673, 509}, true};
    return catalogue;
}

std::optional<FauteSaisie> ChercheFauteIndexeurCylindrique(const IndexeurCylindrique& donnees) {
    if (auto faute = ChercheFauteCoefs(donnees)) return faute;
    if (donnees.NomLoi.empty()) return Faute("NomLoi", 538);
    if (donnees.DeFichier() && donnees.FichierLoi.empty()) return FauteSaisie{"NomLoi", {}};
    if (auto faute = ChercheFauteGalet(donnees)) return faute;
    return ChercheFauteMecanisme(donnees);
}

ResultatIndexeurCylindrique CalculeIndexeurCylindrique(const IndexeurCylindrique& donnees, const Tableau<Loi>& lois) {
    ResultatIndexeurCylindrique resultat = Dimensions(donnees);
    if (donnees.DeFichier()) {
        PrepareLoiFichier(donnees, resultat);
    } else {
        resultat.LoiUnitaire = CoursesDeSource(donnees, lois, donnees.AngleIndexage);
    }
    Positions positions(donnees, resultat);
    positions.Mouvement();
    positions.Repos();
    EpaisseurProfil(donnees, resultat);
    return resultat;
}

GroupeResultats DimensionsIndexeurCylindrique(const IndexeurCylindrique& d, const ResultatIndexeurCylindrique& r) {
    const auto mm = [](const char* controle, int texte, double valeur) {
        return LigneResultat{controle, Texte(texte), TexteArrondi(valeur, 3), Texte(UniteMm)};
    };
    LigneResultat largeur = mm("Label15", 407, r.LargeurCameAffichee);
    largeur.rouge = r.LargeurCameAffichee > d.CameMaxLarg;
    if (largeur.rouge) largeur.note = Texte(TexteTropLarge);
    LigneResultat epaisseur = mm("Label21", 410, r.EpaisseurStationnaire);
    epaisseur.rouge = r.EpaisseurStationnaire <= 0.0;
    if (epaisseur.rouge) epaisseur.note = Texte(TexteSansNervure);
    return {Texte(574),
            {largeur,
             mm("LargeurCentres", TexteLargeurCentres, r.LargeurCame),
             {"Label16", Texte(408), std::to_string(r.GaletsUtilises), {}},
             {"Label20", Texte(409), TexteCourt(r.NombreEntrees), {}},
             epaisseur}};
}

std::optional<PointDessin> LitPosition(const std::string& cellule) {
    const auto virgule = cellule.find(" , ");
    if (virgule == std::string::npos) return {};
    return PointDessin{Val(std::string_view(cellule).substr(0, virgule)), LitY(cellule)};
}
