#include "cylindrical/screens/CylindriqueIndexeur.h"

#include "core/FichierEntier.h"
#include "core/TableTexte.h"
#include "cylindrical/DessinIndexeurCyl.h"
#include "cylindrical/FichiersIndexeurCyl.h"
#include "cylindrical/RapportIndexeurCyl.h"
#include "cylindrical/TextesIndexeurCyl.h"
#include "data/Demarrage.h"
#include "data/Textes.h"
#include "indexers/screens/PanneauLoi.h"
#include "indexers/screens/PanneauResultats.h"
#include "indexers/screens/PanneauSaisie.h"
#include "platform/Dialogues.h"
#include "widgets/Chaines.h"
#include "widgets/Grille.h"
#include "widgets/Nomme.h"
#include "widgets/ZoneDessin.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGroupBox>
#include <QRadioButton>

namespace {

constexpr int TexteTitre = 148, TexteTable = 336;
constexpr double SymetriePropose = 0.5;
constexpr double HauteurTexte = 12, TraitFin = 1.0; ///< of the drawing, pixels

/// What the file dialogues call a drum cam.
constexpr const char* NomFichiers = "Came Cylindrique Indexeur";
constexpr int TexteSauvegarde = 120, TexteExport = 124;

/// The rows of those inputs, bound to the record of the screen.
std::vector<ChampLie> Lies(IndexeurCylindrique& donnees, std::initializer_list<const char*> noms) {
    std::vector<ChampLie> lies;
    for (const char* nom : noms) lies.push_back(LieChamp(ChampNomme(ChampsIndexeurCylindrique(), nom), donnees));
    return lies;
}

} // namespace

CylindriqueIndexeur::CylindriqueIndexeur(QWidget* parent)
    : EcranCalculateur("CylindriqueIndexeur", TexteTitre, &DonneesEtude::CylindriqueIndexeurActif, parent) {
    auto* boitier = new PanneauSaisie("Frame1", 593,
                                      Lies(donnees_, {"Modele", "Entraxe", "RayonTourelle", "InertieTourelle",
                                                      "CapaciteArbre", "CameDiam", "CameMaxLarg", "Boitier"}),
                                      CatalogueMecanismesCylindriques(), {"GardeModele", 414});
    auto* mouvement =
        new PanneauSaisie("Frame2", 776, Lies(donnees_, {"NombreStops", "NombreGalets", "AngleIndexage"}));
    const auto loi = Lies(donnees_, {"NomLoi", "CoefSymetrie", "CoefA", "CoefB", "CoefC"});
    auto* lois = new PanneauLoi("Frame5", 105, {loi[0], loi[1], loi[2], loi[3], loi[4]}, NomsLoisCalculateur());
    auto* galet = new PanneauSaisie(
        "Frame4", 289,
        Lies(donnees_, {"ReferenceGalet", "DiametreGalet", "HauteurGalet", "CapaciteB10", "CapaciteLimite", "codemi"}),
        CatalogueGalets(), {"GardeGalets", 415});
    QWidget* sens = FaitSens();
    points_ = Nomme(new QCheckBox(QTexte(210)), "Check2");
    script_ = Nomme(new QCheckBox(QTexte(308)), "Check3");

    Composition composition;
    composition.colonnes = {{boitier}, {mouvement, lois}, {galet, sens}};
    composition.panneaux = {boitier, mouvement, galet};
    composition.lois = {lois};
    composition.bloques = {boitier, galet};
    for (const auto& controles : {boitier->Controles(), mouvement->Controles(), lois->Controles(), galet->Controles()})
        composition.ordre.insert(composition.ordre.end(), controles.begin(), controles.end());
    composition.resultats = {{FaitDeveloppee(), TexteDeveloppee}, {FaitTable(), TexteTable}};
    composition.sorties = {points_, script_};
    Compose(composition);
    MontreSansPerimer("CoefSymetrie", SymetriePropose);
}

QWidget* CylindriqueIndexeur::FaitSens() {
    auto* cadre = Nomme(new QGroupBox(QTexte(403)), "Frame3");
    droite_ = Nomme(new QRadioButton(QTexte(404)), "CameDroite");
    gauche_ = Nomme(new QRadioButton(QTexte(405)), "CameGauche");
    droite_->setChecked(true);
    auto* pile = new QVBoxLayout(cadre);
    pile->addWidget(droite_);
    pile->addWidget(gauche_);
    connect(droite_, &QRadioButton::toggled, this, &CylindriqueIndexeur::Perime);
    return cadre;
}

QWidget* CylindriqueIndexeur::FaitDeveloppee() {
    dimensions_ = new PanneauResultats;
    dimensions_->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    dessin_ = Nomme(new ZoneDessin, "Graphe");
    auto* page = new QWidget;
    auto* rangee = new QHBoxLayout(page);
    rangee->addWidget(dimensions_);
    rangee->addWidget(dessin_, 1);
    return page;
}

QWidget* CylindriqueIndexeur::FaitTable() {
    grille_ = Nomme(new Grille, "Grille");
    notes_ = new PanneauResultats;
    auto* page = new QWidget;
    auto* pile = new QVBoxLayout(page);
    pile->addWidget(grille_, 1);
    pile->addWidget(notes_);
    return page;
}

// ---- calculation

void CylindriqueIndexeur::LitAutres() {
    donnees_.Sens = gauche_->isChecked() ? -1.0 : 1.0;
}

bool CylindriqueIndexeur::Demande() {
    donnees_.FichierLoi.clear();
    if (donnees_.DeFichier()) donnees_.FichierLoi = DemandeFichierLoi();
    return true;
}

std::optional<FauteSaisie> CylindriqueIndexeur::ChercheFaute() {
    return ChercheFauteIndexeurCylindrique(donnees_);
}

void CylindriqueIndexeur::CalculeResultats() {
    resultat_ = CalculeIndexeurCylindrique(donnees_, etude.lois.ListeLois);
}

void CylindriqueIndexeur::MontreResultats() {
    if (donnees_.DeFichier()) MontreSansPerimer("AngleIndexage", resultat_.AngleIndexage);
    dimensions_->Montre({DimensionsIndexeurCylindrique(donnees_, resultat_)}, {}, resultat_.notes);
    notes_->Montre({}, {}, resultat_.notes);
    // The record is read anew before the next calculation: the drawing keeps what it shows.
    dessin_->Peint([donnees = donnees_, this](Dessin& dessin) {
        DessineDeveloppee(dessin, donnees, resultat_, HauteurTexte, TraitFin);
    });
    TableTexte table;
    table.lignes = static_cast<int>(DegresGrille);
    for (std::size_t c = 0; c < resultat_.Grille[0].size(); ++c)
        table.colonnes.push_back(
            {resultat_.Grille[0][c], {}, [this, c](int ligne) { return resultat_.Grille[ligne + 1][c]; }});
    grille_->Remplit(std::move(table));
}

// ---- files

bool CylindriqueIndexeur::EcritFichier(const std::string& libelle, const char* extension, const std::string& titre,
                                       const std::string& contenu) {
    const std::string motif = std::string("*.") + extension;
    const auto chemin = LesDialogues().FichierASauver(
        {titre, CheminEtudes, nom_.empty() ? "" : nom_ + "." + extension, {{libelle + " (" + motif + ")", motif}}});
    if (!chemin) return false;
    EcritFichierEntier(*chemin, contenu);
    nom_ = S(QChemin(chemin->stem()));
    emit FichierEnregistre(QChemin(chemin->filename()));
    return true;
}

void CylindriqueIndexeur::SauveResultats() {
    const std::string tam =
        ComposeTam([this](const char* champ) { return Saisi(champ); }, donnees_.Sens, DateEnChiffres());
    if (!EcritFichier(NomFichiers, "Tam", std::string(NomFichiers) + " " + Texte(TexteSauvegarde), tam)) return;
    const std::string& exporte = Texte(TexteExport);
    if (points_->isChecked() && !EcritFichier(exporte, "Pnt", exporte, ComposePntIndexeur(resultat_))) return;
    if (!script_->isChecked()) return;
    if (EcritFichier(exporte, "Scr", exporte, ComposeScrIndexeur(donnees_, resultat_)))
        emit Annonce(QTexte(TexteScriptCourt) + " " + Q(nom_) + ".Scr");
}

// ---- printing

bool CylindriqueIndexeur::PrepareImpression() {
    constexpr int texteInvite = 418, texteDefaut = 420, texteVide = 674, texteRien = 675, texteAvecTable = 684;
    designation_ =
        Trim(LesDialogues().Saisie(windowTitle().toStdString(), Texte(texteInvite), Texte(texteDefaut)).value_or(""));
    if (designation_.empty()) {
        LesDialogues().Message(Icone::Information, Texte(texteVide) + "\n" + Texte(texteRien));
        return false;
    }
    avecTable_ = LesDialogues().Question(Texte(texteAvecTable));
    return true;
}

void CylindriqueIndexeur::Imprime(Imprimante& imprimante) const {
    ImprimeIndexeurCylindrique(imprimante, donnees_, resultat_, designation_, avecTable_);
}
