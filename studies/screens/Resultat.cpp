#include "studies/screens/Resultat.h"

#include "cams/CompleteZones.h"
#include "cams/LimitesSaisie.h"
#include "cams/ListeZones.h"
#include "cams/RemarquesZones.h"
#include "cams/screens/PanneauRotation.h"
#include "core/Etude.h"
#include "data/Textes.h"
#include "data/TextesSaisie.h"
#include "data/Unites.h"
#include "platform/Dialogues.h"
#include "studies/Exports.h"
#include "studies/Graphique.h"
#include "studies/Listages.h"
#include "studies/NotesEtude.h"
#include "studies/ValeursRemarquables.h"
#include "widgets/Application.h"
#include "widgets/Chaines.h"
#include "widgets/ChampNombre.h"
#include "widgets/Etiquettes.h"
#include "widgets/Grille.h"
#include "widgets/Legendes.h"
#include "widgets/Nomme.h"
#include "widgets/PanneauChamps.h"
#include "widgets/Remarques.h"
#include "widgets/ReprendSaisie.h"
#include "widgets/ZoneDefilante.h"
#include "widgets/ZoneDessin.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

#include <utility>

namespace {

constexpr int OngletRotation = 4;

/// What may be changed here and calculated again.
constexpr struct {
    const char* nom;
    const char* controle;
    int texteBras = 0; ///< text number of its caption where an arm has a point A for the mass to stand at
} champsRecalcul[] = {
    {"MasseA", "Text2", 164}, {"ForceX", "Text3"},        {"ForceY", "Text4"},           {"RayonGalet", "Text5"},
    {"VitesseCame", "Text6"}, {"InertieMasseA", "Text7"}, {"CoupleConstantO1", "Text8"},
};

/// The groups of remarkable values and their places on the sheet.
constexpr struct {
    GroupeValeurs groupe;
    const char* controle;
    int rang, colonne;
} groupes[] = {{GroupeCame, "GroupeCame", 0, 1}, {GroupeGalet, "GroupeGalet", 0, 2}, {GroupeBras, "GroupeBras", 1, 2}};

/// The files that the results can be written to without the study being saved.
constexpr std::pair<const char*, void (*)()> exports[] = {{"Points", FichiersPoints}, {"Scripts", FichiersScripts}};

constexpr Legende legendes[] = {
    {"SSTab1", 0, 209},
    {"SSTab1", 1, 210},
    {"SSTab1", 2, 776},
    {"SSTab1", 3, 214},
    {"SSTab1", 4, 147},
    {"Listages", 0, 211},
    {"Listages", 1, 212},
    {"Listages", 2, 214},
    {"Listages", 3, 147},
    {"Donnees", 0, 215},
    {"GroupeCame", 0, 147},
    {"GroupeGalet", 0, 289},
    {"GroupeBras", 0, 217},
    {"GroupeRecalcul", 0, 219},
    {"TitreGrille", 0, 179},
    {"TitrePicture1", 0, 274},
    {"TitrePicture5", 0, 275},
    {"TitrePicture4", 0, 276},
    {"TitrePicture2", 0, 277},
    {"Recalcul", 0, 11},
    {"Quitter", 0, 12},
    {"Points", 0, TexteBoutonPoints},
    {"Scripts", 0, TexteBoutonScripts},
};

// All values stand without a scroll bar on a display of 1280 x 720, with room for four zones.
constexpr int EcartLignes = 2;
constexpr int HauteurZones = 58;

/// Room for the widest of the values.
constexpr const char* Gabarit = "-00000.00";

/// Shows or hides the row of a grid that holds a control.
void MontreRang(QWidget& controle, bool montre) {
    auto* grille = qobject_cast<QGridLayout*>(controle.parentWidget()->layout());
    int rang = 0, colonne = 0, etendueRang = 0, etendueColonne = 0;
    grille->getItemPosition(grille->indexOf(&controle), &rang, &colonne, &etendueRang, &etendueColonne);
    for (int c = 0; c < grille->columnCount(); ++c)
        if (auto* element = grille->itemAtPosition(rang, c)) element->widget()->setVisible(montre);
}

bool EstRecalculable(std::string_view nom) {
    return TrouveChamp(champsRecalcul, nom) != nullptr;
}

} // namespace

Resultat::Resultat(QWidget* parent) : FenetreEnfant("Resultat", parent) {
    onglets_ = Nomme(new QTabWidget, "SSTab1");
    onglets_->addTab(new ZoneDefilante(FaitValeurs()), {});
    onglets_->addTab(FaitListages(), {});
    onglets_->addTab(FaitGraphiques("Picture1", &graphiqueGalet_, "Picture5", &graphiqueBras_), {});
    onglets_->addTab(FaitGraphiques("Picture4", &graphiqueForce_, "Picture2", &graphiqueCouple_), {});
    came_ = new PanneauRotation;
    onglets_->addTab(came_, {});

    quitter_ = Nomme(new QPushButton, "Quitter");
    auto* boutons = new QHBoxLayout;
    boutons->addWidget(quitter_);
    boutons->addStretch();
    for (const auto& [nom, ecrit] : exports) {
        auto* bouton = Nomme(new QPushButton, nom);
        boutons->addWidget(bouton);
        connect(bouton, &QPushButton::clicked, this, [this, ecrit] { Exporte(ecrit); });
    }
    auto* disposition = new QVBoxLayout(this);
    disposition->addWidget(onglets_, 1);
    disposition->addLayout(boutons);
    AppliqueLegendes(*this, legendes);

    connect(quitter_, &QPushButton::clicked, this, &Resultat::Quitter);
    PoseLimites(*this, LimiteNombre);
    RevientPar(*quitter_);
    RevientAussiParEchappement();
    connect(recalcul_, &QPushButton::clicked, this, [this] { Recalcul(); });
    Resultat::Montre();
}

QWidget* Resultat::FaitValeurs() {
    auto* feuille = new QWidget;
    auto* disposition = new QGridLayout(feuille);
    donnees_ = Nomme(new QGroupBox, "Donnees");
    dispositionDonnees_ = new QGridLayout(donnees_);
    dispositionDonnees_->setVerticalSpacing(EcartLignes);
    disposition->addWidget(donnees_, 0, 0, 2, 1);

    for (const auto& place : groupes)
        disposition->addWidget(FaitGroupe(place.controle, place.groupe), place.rang, place.colonne);
    disposition->addWidget(FaitRecalcul(), 1, 1);
    zones_ = Nomme(new Grille, "Grille");
    zones_->setMinimumHeight(HauteurZones);
    disposition->addWidget(Nomme(new QLabel, "TitreGrille"), 2, 0, 1, 3);
    remarques_ = Nomme(new Remarques, "RemarquesZones");
    disposition->addWidget(remarques_, 3, 0, 1, 3);
    notes_ = FaitNotes();
    disposition->addWidget(notes_, 5, 0, 1, 3);
    disposition->addWidget(zones_, 4, 0, 1, 3);
    disposition->setRowStretch(4, 1);
    return feuille;
}

QWidget* Resultat::FaitGroupe(const char* nom, int groupe) {
    auto* cadre = Nomme(new QGroupBox, nom);
    auto* grille = new QGridLayout(cadre);
    grille->setVerticalSpacing(EcartLignes);
    for (const auto& valeur : LesValeursRemarquables()) {
        if (valeur.groupe != groupe) continue;
        const int rang = grille->rowCount();
        const LigneValeur ligne{&valeur, new QLabel, FaitValeur(valeur.nom, Gabarit), FaitUnite()};
        ligne.angle->setObjectName(QString::fromLatin1(valeur.nom) + "Angle");
        grille->addWidget(ligne.libelle, rang, 0);
        grille->addWidget(ligne.valeur, rang, 1);
        grille->addWidget(FaitUnite(QTexte(valeur.unite)), rang, 2);
        grille->addWidget(ligne.angle, rang, 3);
        valeurs_.push_back(ligne);
    }
    grille->setColumnStretch(0, 1);
    grille->setRowStretch(grille->rowCount(), 1);
    return cadre;
}

QWidget* Resultat::FaitRecalcul() {
    auto* groupe = Nomme(new QGroupBox, "GroupeRecalcul");
    auto* grille = new QGridLayout(groupe);
    grille->setVerticalSpacing(EcartLignes);
    for (const auto& champ : champsRecalcul)
        champs_.push_back(AjouteLigneChamp(*grille, grille->rowCount(), champ.controle, 0, 0));
    recalcul_ = Nomme(new QPushButton, "Recalcul");
    recalcul_->setDefault(true);
    grille->setRowStretch(grille->rowCount(), 1);
    grille->addWidget(recalcul_, grille->rowCount(), 0, 1, 3, Qt::AlignRight);
    for (std::size_t i = 0; i < champs_.size(); ++i) {
        QWidget* suivant = i + 1 < champs_.size() ? static_cast<QWidget*>(champs_[i + 1]) : recalcul_;
        connect(champs_[i], &ChampNombre::Suivant, suivant, [suivant] { suivant->setFocus(Qt::TabFocusReason); });
    }
    return groupe;
}

QWidget* Resultat::FaitListages() {
    listages_ = Nomme(new QTabWidget, "Listages");
    for (const auto& [nom, grille] : {std::pair{"Grille1", &grilleGalet_},
                                      {"Grille2", &grilleBras_},
                                      {"Grille3", &grilleEfforts_},
                                      {"Grille5", &grilleCame_}}) {
        *grille = Nomme(new Grille, nom);
        listages_->addTab(*grille, {});
    }
    return listages_;
}

QWidget* Resultat::FaitGraphiques(const char* titre1, ZoneDessin** zone1, const char* titre2, ZoneDessin** zone2) {
    auto* feuille = new QWidget;
    auto* disposition = new QVBoxLayout(feuille);
    for (const auto& [nom, zone] : {std::pair{titre1, zone1}, {titre2, zone2}}) {
        auto* titre = Nomme(new QLabel, "");
        titre->setObjectName("Titre" + QString::fromLatin1(nom));
        *zone = Nomme(new ZoneDessin, nom);
        disposition->addWidget(titre);
        disposition->addWidget(*zone, 1);
    }
    return feuille;
}

void Resultat::Montre() {
    MontreNomFichier();
    const TypeEtude* type = TrouveType(etude.donnees.TypeCame);
    if (type == nullptr) return;
    RemplitValeurs(*type);
    RemplitRecalcul(*type);
    RemplitGrilles(*type);
    RemplitGraphiques();
    MontreSelonType(*type);
    came_->Montre({type->dessine, DernierAngleDessin(*type), type->developpee});
}

void Resultat::MontreNomFichier() {
    setWindowTitle((etude.donnees.NomFichier.empty() ? QString() : Q(etude.donnees.NomFichier) + " ") + QTexte(118));
}

void Resultat::MontreRotation() {
    onglets_->setCurrentIndex(OngletRotation);
}

void Resultat::RemplitValeurs(const TypeEtude& type) {
    const Notes notes = NotesEnVigueur(type);
    MontreNotes(*notes_, notes);
    for (const auto& ligne : valeurs_) {
        const ValeurRemarquable& valeur = *ligne.description;
        const int texte = valeur.texte(type);
        MontreRang(*ligne.valeur, texte != 0);
        if (texte == 0) continue;
        ligne.libelle->setText(QTexte(texte) + Q(notes.Renvoi(valeur.nom)));
        ligne.libelle->setToolTip(Q(notes.Textes(valeur.nom)));
        ligne.valeur->setText(Q(EcritValeur(valeur, valeur.masque)));
        // The mask may cut a number: all its digits stand in the tip.
        ligne.valeur->setToolTip(QTexte(777) + " " + Q(StrTrim(valeur.valeur())));
        if (valeur.repere != nullptr)
            ligne.angle->setText(QTexte(227) + " " + Q(Format(AngleExtreme(valeur.repere()), "##0")) + "°");
    }
    while (QLayoutItem* ancien = dispositionDonnees_->takeAt(0)) {
        delete ancien->widget();
        delete ancien;
    }
    int ligne = 0;
    for (const auto& champ : type.champs) {
        if (EstRecalculable(champ.nom)) continue;
        auto* valeur = FaitValeur("", Gabarit);
        valeur->setObjectName(QString("Donnee") + champ.nom);
        valeur->setText(Q(StrTrim(champ.Nombre(etude.donnees))));
        dispositionDonnees_->addWidget(new QLabel(QTexte(champ.texte)), ligne, 0);
        dispositionDonnees_->addWidget(valeur, ligne, 1);
        dispositionDonnees_->addWidget(FaitUnite(QTexte(champ.unite)), ligne++, 2);
    }
    dispositionDonnees_->setColumnStretch(0, 1);
    dispositionDonnees_->setRowStretch(ligne, 1);
}

void Resultat::RemplitGrilles(const TypeEtude& type) {
    zones_->Remplit(TableZones(*type.zones, etude.donnees.NombreZones));
    remarques_->Montre(RemarquesZones(*type.zones, etude.donnees.NombreZones));
    grilleGalet_->Remplit(TableGalet());
    grilleBras_->Remplit(TableBras(type.zones->rayonsBras));
    grilleEfforts_->Remplit(TableEfforts());
    grilleCame_->Remplit(TableCame());
}

void Resultat::RemplitGraphiques() {
    graphiqueGalet_->Peint([](Dessin& dessin) { DessineGraphique(dessin, CourbesGalet()); });
    graphiqueBras_->Peint([](Dessin& dessin) { DessineGraphique(dessin, CourbesBras()); });
    graphiqueForce_->Peint([](Dessin& dessin) { DessineGraphique(dessin, CourbesForce()); });
    graphiqueCouple_->Peint([](Dessin& dessin) { DessineGraphique(dessin, CourbesCouple()); });
}

void Resultat::RemplitRecalcul(const TypeEtude& type) {
    for (std::size_t i = 0; i < champs_.size(); ++i)
        if (const auto* champ = TrouveChamp(type.champs, champsRecalcul[i].nom))
            champs_[i]->Montre(champ->Nombre(etude.donnees));
}

void Resultat::MontreSelonType(const TypeEtude& type) {
    onglets_->setUpdatesEnabled(false);
    for (QWidget* widget : {findChild<QWidget*>("GroupeBras"), findChild<QWidget*>("TitrePicture5"),
                            static_cast<QWidget*>(graphiqueBras_)})
        widget->setVisible(type.Bras());
    listages_->setTabVisible(listages_->indexOf(grilleBras_), type.Bras());
    for (std::size_t i = 0; i < champs_.size(); ++i) {
        const auto& recalcul = champsRecalcul[i];
        const auto* champ = TrouveChamp(type.champs, recalcul.nom);
        MontreRang(*champs_[i], champ != nullptr);
        if (champ == nullptr) continue;
        const int texte = type.Bras() && recalcul.texteBras != 0 ? recalcul.texteBras : champ->texte;
        findChild<QLabel*>(QStringLiteral("Etiquette") + recalcul.controle)->setText(QTexte(texte));
        findChild<QLabel*>(QStringLiteral("Unite") + recalcul.controle)->setText(QTexte(champ->unite));
    }
    onglets_->setUpdatesEnabled(true);
}

bool Resultat::RefuseSiRotation() {
    if (!came_->RotationEnCours()) return false;
    LesDialogues().Message(Icone::Information, Texte(435));
    MontreRotation();
    return true;
}

bool Resultat::FauteDeDonnee(const TypeEtude& type) {
    const auto* faute = type.ChercheFaute();
    if (faute == nullptr) return false;
    LesDialogues().Message(Icone::Avertissement, Texte(faute->texteFaute));
    for (std::size_t i = 0; i < champs_.size(); ++i)
        if (faute->nom == std::string_view(champsRecalcul[i].nom)) ReprendSaisie(*champs_[i]);
    return true;
}

/// True when the fields to calculate again with hold other numbers than the study.
bool Resultat::RecalculModifie(const TypeEtude& type) const {
    for (std::size_t i = 0; i < champs_.size(); ++i)
        if (const auto* champ = TrouveChamp(type.champs, champsRecalcul[i].nom))
            if (champ->Nombre(etude.donnees) != champs_[i]->Valeur()) return true;
    return false;
}

bool Resultat::PrendSaisie() {
    const TypeEtude* type = TrouveType(etude.donnees.TypeCame);
    return type == nullptr || !RecalculModifie(*type) || Recalcul();
}

void Resultat::Exporte(void (*ecrit)()) {
    if (RefuseSiRotation() || !PrendSaisie()) return;
    // The names of the files are made from that of the study.
    std::string& nom = etude.donnees.NomFichier;
    if (nom.empty()) nom = Trim(LesDialogues().Saisie(Texte(7), Texte(133), {}).value_or(""));
    if (nom.empty()) return;
    MontreNomFichier();
    ecrit();
}

bool Resultat::Recalcul() {
    const TypeEtude* type = TrouveType(etude.donnees.TypeCame);
    if (type == nullptr || RefuseSiRotation() || RefuseHorsLimite(*this)) return false;
    // A calculation that fails leaves data and tables as they are shown.
    const Etude gardee = etude;
    try {
        for (std::size_t i = 0; i < champs_.size(); ++i)
            if (const auto* champ = TrouveChamp(type->champs, champsRecalcul[i].nom))
                champ->Nombre(etude.donnees) = champs_[i]->Valeur();
        if (FauteDeDonnee(*type)) {
            etude = gardee;
            return false;
        }
        CompleteZones(false); // the speed gives new durations; no radius changes
        const Sablier sablier;
        CalculeEtude();
    } catch (...) {
        etude = gardee;
        RemplitRecalcul(*type);
        throw;
    }
    if (!SansErreur()) {
        LesDialogues().Message(Icone::Critique, Texte(75) + "\n\n" + Texte(509));
        etude = gardee;
        RemplitRecalcul(*type);
        return false;
    }
    etude.resultats.EtudeModifiee = Vrai;
    Montre();
    emit EtudeRecalculee();
    return true;
}

void Resultat::Quitter() {
    came_->Arrete();
    if (SansErreur()) emit Quitte();
}
