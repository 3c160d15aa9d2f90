#include "batch/CommandeIndexeurCylindrique.h"

#include "batch/Calculateurs.h"
#include "cylindrical/IndexeurCylindrique.h"

namespace {

Json JsonResultat(const ResultatIndexeurCylindrique& r) {
    Json objet = Json::object();
    objet["PasGalets"] = r.PasGalets;
    objet["AngleStop"] = r.AngleStop;
    objet["NombreEntrees"] = r.NombreEntrees;
    objet["GaletsUtilises"] = r.GaletsUtilises;
    objet["LargeurCameAffichee"] = r.LargeurCameAffichee;
    objet["LargeurCame"] = r.LargeurCame;
    objet["EpaisseurStationnaire"] = r.EpaisseurStationnaire;
    objet["MaxX"] = r.MaxX;
    objet["MaxY"] = r.MaxY;
    objet["LoiUnitaire"] = Json::array();
    for (const double course : r.LoiUnitaire) objet["LoiUnitaire"].push_back(course);
    objet["Grille"] = Json::array();
    for (long i = 1; i <= r.Grille.BorneHaute(); ++i) objet["Grille"].push_back(r.Grille[i]);
    if (!r.notes.empty()) objet["notes"] = r.notes;
    return objet;
}

void Calcule(const Donnees& donnees, const std::filesystem::path& fichier, IssueCalculateur& issue) {
    issue.resultats = SansValeurs(JsonResultat({}));
    IndexeurCylindrique saisie;
    LitDonneesCalculateur(donnees, LieChamps(ChampsIndexeurCylindrique(), saisie));
    if (saisie.Sens != -1.0) saisie.Sens = 1.0;
    saisie.FichierLoi = TrouveFichierLoi(saisie.FichierLoi, fichier);
    if (const auto faute = ChercheFauteIndexeurCylindrique(saisie)) return RefuseSaisie(*faute, issue);
    issue.resultats = JsonResultat(CalculeIndexeurCylindrique(saisie, etude.lois.ListeLois));
}

} // namespace

int CommandeIndexeurCylindrique(const LigneCommande& ligne, std::ostream& sortie, std::ostream& erreurs) {
    Calculateur calculateur{"indexeur-cylindrique", {}, Calcule};
    for (const auto& champ : ChampsIndexeurCylindrique()) calculateur.membres.emplace_back(champ.nom);
    return DerouleCalculateur(calculateur, ligne, sortie, erreurs);
}
