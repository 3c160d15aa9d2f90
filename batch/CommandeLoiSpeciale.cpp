#include "batch/CommandeLoiSpeciale.h"

#include "batch/DonneesJson.h"
#include "batch/Passage.h"
#include "batch/TextesBatch.h"
#include "data/Textes.h"
#include "laws/EtudesLois.h"

namespace {

constexpr const char* Unites = "Unites";
constexpr const char* PointsParDegre = "PointsParDegre";

const EtudeLoi& TrouveGenre(const std::string& genre) {
    if (const EtudeLoi* loi = TrouveGenreLoi(genre)) return *loi;
    std::string genres;
    for (const EtudeLoi& loi : LesEtudesLois())
        if (loi.genre != nullptr) genres += std::string(" ") + loi.genre;
    throw UsageIncorrect("loi-speciale: unknown kind '" + genre + "'; there are" + genres);
}

void LitUnites(const Donnees& donnees, const EtudeLoi& loi) {
    const auto valeur = donnees.find(Unites);
    const std::string defaut = loi.degresDabord ? "degres" : "mm";
    const Donnees lue = valeur == donnees.end() ? Donnees(defaut) : *valeur;
    if (lue != "mm" && lue != "degres") throw MembreIncorrect(Unites, "\"mm\" " + Texte(TexteOu) + " \"degres\"", lue);
    etude.donnees.SortieEnDegres = lue == "degres" ? Vrai : Faux;
}

void LitPointsParDegre(const Donnees& donnees) {
    const double points = donnees.contains(PointsParDegre) ? LitNombre(donnees, PointsParDegre) : 1.0;
    if (points < 1.0 || points > 32767.0 || points != Int(points))
        throw MembreIncorrect(PointsParDegre, Texte(TexteNombreEntier) + " 1 " + Texte(TexteJusqua) + " 32767",
                              donnees[PointsParDegre]);
    etude.donnees.PointsParDegre = Entier16(points);
}

/// The inputs of a study out of its data: every one of them, and nothing that is none.
void LitDonnees(const std::string& fichier, const EtudeLoi& loi) {
    const Donnees donnees = LitDonneesJson(fichier);
    for (const auto& [nom, valeur] : donnees.items()) {
        const bool connu = nom == Unites || nom == PointsParDegre || TrouveChamp(loi.champs, nom) != nullptr;
        if (!connu) throw DonneesIncorrectes(Texte(TexteMembreInconnu) + " " + nom);
    }
    LitUnites(donnees, loi);
    LitPointsParDegre(donnees);
    for (const ChampLoi& champ : loi.champs) champ.Nombre(etude.donnees) = LitNombre(donnees, champ.nom);
}

Json JsonPointsLoi() {
    Json points = Json::object();
    points["Angle"] = Json::array();
    for (const Point& point : etude.resultats.Points) points["Angle"].push_back(point.Angle);
    points.update(JsonLoi(etude.resultats.Mouvement));
    return points;
}

Json JsonResultat(const ResultatLoi& resultat, bool reussi) {
    const auto valeur = [&](double v) { return reussi ? Json(v) : Json(); };
    Json objet = Json::object();
    objet["CoefAccel"] = valeur(resultat.CoefAccel);
    objet["CoefVitesse"] = valeur(resultat.CoefVitesse);
    objet["VitesseMaxi"] = valeur(resultat.VitesseMaxi);
    objet["AccelerationMaxi"] = valeur(resultat.AccelerationMaxi);
    objet["LoiUnite"] = JsonLoi(reussi ? etude.lois.LoiUnite : Tableau<PointLoi>{});
    objet["Points"] = JsonPointsLoi();
    return objet;
}

} // namespace

int CommandeLoiSpeciale(const LigneCommande& ligne, std::ostream& sortie, std::ostream& erreurs) {
    if (ligne.arguments.size() < 2) throw UsageIncorrect("loi-speciale: a kind and a data file are needed");
    const EtudeLoi& loi = TrouveGenre(ligne.arguments.front());
    return ParcourtFichiers(std::span(ligne.arguments).subspan(1), erreurs, [&](const std::string& fichier) {
        LitDonnees(fichier, loi);
        ResultatLoi resultat;
        Calcul calcul;
        calcul.execute = [&](const DialoguesCollecte&) {
            if (const auto faute = ChercheFauteLoi(loi)) {
                LesDialogues().Message(Icone::Avertissement, faute->texte);
                return faute->texte.substr(faute->texte.find_first_not_of('\n'));
            }
            resultat = CalculeEtudeLoi(loi);
            return std::string();
        };
        calcul.resultats = [&](bool reussi) { return JsonResultat(resultat, reussi); };
        return LanceCalcul(calcul, ligne, sortie);
    });
}
