#include "batch/CommandeLoiSpeciale.h"

#include "batch/JsonEtude.h"
#include "core/FichierEntier.h"
#include "data/Textes.h"
#include "laws/CalculLois.h"
#include "laws/EtudesLois.h"

#include <algorithm>
#include <filesystem>
#include <ostream>

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

double LitNombre(const Json& donnees, const char* nom) {
    const auto valeur = donnees.find(nom);
    if (valeur == donnees.end()) throw UsageIncorrect(std::string("no member ") + nom);
    if (!valeur->is_number()) throw UsageIncorrect(std::string(nom) + " is not a number");
    return valeur->get<double>();
}

void LitUnites(const Json& donnees, const EtudeLoi& loi) {
    const std::string unites = donnees.value(Unites, loi.degresDabord ? "degres" : "mm");
    if (unites != "mm" && unites != "degres") throw UsageIncorrect(R"(Unites is "mm" or "degres")");
    etude.donnees.SortieEnDegres = unites == "degres" ? Vrai : Faux;
}

void LitPointsParDegre(const Json& donnees) {
    const double points = donnees.contains(PointsParDegre) ? LitNombre(donnees, PointsParDegre) : 1.0;
    if (points < 1.0 || points > 32767.0 || points != Int(points))
        throw UsageIncorrect("PointsParDegre is a whole number from 1 to 32767");
    etude.donnees.PointsParDegre = Entier16(points);
}

/// The inputs of a study out of its data: every one of them, and nothing that is none.
void LitDonnees(const std::string& fichier, const EtudeLoi& loi) {
    const Json donnees = Json::parse(LitFichierEntier(fichier));
    if (!donnees.is_object()) throw UsageIncorrect("not a JSON object");
    for (const auto& [nom, valeur] : donnees.items()) {
        const bool connu = nom == Unites || nom == PointsParDegre || TrouveChamp(loi.champs, nom) != nullptr;
        if (!connu) throw UsageIncorrect("unknown member " + nom);
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

Json JsonEtudeLoi(const ResultatLoi& resultat, const std::string& echec, const DialoguesCollecte& dialogues) {
    const auto valeur = [&](double v) { return echec.empty() ? Json(v) : Json(); };
    Json objet = Json::object();
    objet["Erreur"] = etude.resultats.Erreur;
    objet["messages"] = JsonMessages(dialogues);
    if (!echec.empty()) objet["echec"] = echec;
    objet["CoefAccel"] = valeur(resultat.CoefAccel);
    objet["CoefVitesse"] = valeur(resultat.CoefVitesse);
    objet["VitesseMaxi"] = valeur(resultat.VitesseMaxi);
    objet["AccelerationMaxi"] = valeur(resultat.AccelerationMaxi);
    objet["LoiUnite"] = JsonLoi(etude.lois.LoiUnite);
    objet["Points"] = JsonPointsLoi();
    return objet;
}

/// Calculates what was read. @return the object to print; `statut` is 1 when there is no result
Json CalculeObjet(const EtudeLoi& loi, bool oui, int& statut) {
    DialoguesCollecte dialogues(oui);
    ResultatLoi resultat;
    std::string echec;
    try {
        if (const auto faute = ChercheFauteLoi(loi)) {
            LesDialogues().Message(Icone::Avertissement, faute->texte);
            echec = faute->texte.substr(faute->texte.find_first_not_of('\n'));
        } else {
            resultat = CalculeEtudeLoi(loi);
        }
    } catch (const ErreurExecution& erreur) {
        etude.lois.LoiUnite = {};
        echec = SensErreur(erreur);
    }
    if (!echec.empty()) statut = std::max(statut, 1);
    return JsonEtudeLoi(resultat, echec, dialogues);
}

} // namespace

int CommandeLoiSpeciale(const LigneCommande& ligne, std::ostream& sortie, std::ostream& erreurs) {
    if (ligne.arguments.size() < 2) throw UsageIncorrect("loi-speciale: a kind and a data file are needed");
    const EtudeLoi& loi = TrouveGenre(ligne.arguments.front());
    int statut = 0;
    for (auto fichier = ligne.arguments.begin() + 1; fichier != ligne.arguments.end(); ++fichier) {
        etude = Etude{};
        ChargeLois();
        try {
            LitDonnees(*fichier, loi);
        } catch (const std::exception& erreur) {
            erreurs << "velorin-batch: " << *fichier << ": " << erreur.what() << "\n";
            statut = 2;
            continue;
        }
        EcritJson(sortie, CalculeObjet(loi, ligne.oui, statut));
        sortie << "\n";
    }
    return statut;
}
