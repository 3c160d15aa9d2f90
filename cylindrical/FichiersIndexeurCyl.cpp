#include "cylindrical/FichiersIndexeurCyl.h"

#include "core/Lignes.h"
#include "data/Textes.h"

#include <chrono>
#include <cmath>
#include <ctime>

namespace {

/// A line of the record: its label out of a text and fixed pieces, and the input behind it.
struct LigneTam {
    std::string libelle;
    const char* champ;
};

std::vector<LigneTam> LignesTam() {
    const std::string galet = " (" + Texte(289) + ")";
    return {
        {Texte(554), "Modele"},
        {Texte(171), "Entraxe"},
        {Texte(555), "RayonTourelle"},
        {Texte(557) + Texte(558), "InertieTourelle"},
        {Texte(560), "CapaciteArbre"},
        {Texte(575), "CameDiam"},
        {Texte(576) + "(Maxi)", "CameMaxLarg"},
        {Texte(269), "NombreStops"},
        {Texte(596), "NombreGalets"},
        {Texte(270), "AngleIndexage"},
        {Texte(595), "ReferenceGalet"},
        {Texte(218), "DiametreGalet"},
        {"Hauteur du galet", "HauteurGalet"},
        {Texte(565) + galet, "CapaciteB10"},
        {Texte(566) + galet, "CapaciteLimite"},
        {Texte(105), "NomLoi"},
        {Texte(522), "CoefSymetrie"},
    };
}

/// A command of the drawing system and the empty line that ends it.
std::string Commande(const std::string& texte) {
    return texte + FinDeLigne + FinDeLigne;
}

std::string Couple(double x, double y) {
    return StrTrim(x) + "," + StrTrim(y);
}

std::string Cercle(const std::string& centre, double diametre) {
    return "_cercle " + centre + " d " + StrTrim(diametre) + FinDeLigne;
}

double ATroisDecimales(double valeur) {
    return Val(TexteArrondi(valeur, 3));
}

/// The developed cam: axis, edges, and a mark at the start.
std::string TraceDeveloppee(double perimetre, double largeur) {
    std::string script = Commande("LIGNE 0,0 " + Couple(perimetre, 0));
    for (const double y : {-largeur / 2.0, largeur / 2.0})
        script += Commande("LIGNE " + Couple(0, y) + " " + Couple(perimetre, y));
    return script + Commande("LIGNE 0,-10 0,10");
}

/// The turret with the radii of its first two rollers.
std::string TraceTourelle(const IndexeurCylindrique& donnees, double pasGalets) {
    const double a = pasGalets * Pi / 180.0 / 2.0, R = donnees.RayonTourelle;
    const double p = ATroisDecimales(R * std::cos(a)), q = ATroisDecimales(R * std::sin(a));
    std::string script = Commande("LIGNE 0,0 " + Couple(p, q)) + Commande("LIGNE 0,0 " + Couple(p, -q));
    script += Cercle("0,0", 2.0 * R);
    for (const double y : {q, -q}) script += Cercle(Couple(p, y), donnees.DiametreGalet);
    return script;
}

} // namespace

std::string DateEnChiffres() {
    const std::time_t maintenant = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    const std::tm* date = std::localtime(&maintenant);
    return Format(date->tm_mday, "00") + " " + Format(date->tm_mon + 1, "00") + " " +
           Format(date->tm_year + 1900, "0000");
}

std::string ComposeTam(const TexteSaisi& saisi, double sens, const std::string& date) {
    std::string contenu = std::string("Came tambour indexée") + FinDeLigne;
    const auto ligne = [&](const std::string& libelle, const std::string& valeur) {
        contenu += libelle + " : " + valeur + FinDeLigne;
    };
    ligne(Texte(387), date);
    for (const LigneTam& l : LignesTam()) ligne(l.libelle, saisi(l.champ));
    ligne("Type de came", sens < 0.0 ? "à gauche" : "à droite");
    return contenu;
}

std::string ComposePntIndexeur(const ResultatIndexeurCylindrique& resultat) {
    std::string contenu = std::string("Position centre des galets sur developpée came (x , y)") + FinDeLigne;
    for (long i = 1; static_cast<double>(i) <= resultat.AngleIndexage + 1.0; ++i) {
        const auto& cellules = resultat.Grille[i];
        for (std::size_t c = 0; c < cellules.size(); ++c) contenu += (c == 0 ? "" : ";") + cellules[c];
        contenu += FinDeLigne;
    }
    return contenu;
}

std::string ComposeScrIndexeur(const IndexeurCylindrique& donnees, const ResultatIndexeurCylindrique& resultat) {
    std::string script = TraceDeveloppee(Pi * donnees.CameDiam, resultat.LargeurCame);
    script += TraceTourelle(donnees, resultat.PasGalets);
    const std::string separateur = " , ";
    for (const std::string& cellule : resultat.Grille[1]) {
        if (&cellule == &resultat.Grille[1].front() || cellule.empty()) continue;
        const auto virgule = cellule.find(separateur);
        if (virgule == std::string::npos) break;
        script += Cercle(cellule.substr(0, virgule) + "," + cellule.substr(virgule + separateur.size()),
                         donnees.DiametreGalet);
    }
    return script;
}
