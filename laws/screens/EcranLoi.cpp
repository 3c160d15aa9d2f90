#include "laws/screens/EcranLoi.h"

#include "core/Lignes.h"
#include "data/Textes.h"
#include "laws/CalculLois.h"
#include "laws/ChoixLois.h"
#include "laws/DessinLoi.h"
#include "laws/EnregistreLoi.h"
#include "laws/NotesLoi.h"
#include "laws/TablePoints.h"
#include "platform/Dialogues.h"
#include "widgets/CesseEcoute.h"
#include "widgets/Chaines.h"
#include "widgets/ChampNombre.h"
#include "widgets/Etiquettes.h"
#include "widgets/Grille.h"
#include "widgets/Legendes.h"
#include "widgets/Nomme.h"
#include "widgets/PanneauChamps.h"
#include "widgets/ReprendSaisie.h"
#include "widgets/ZoneDefilante.h"
#include "widgets/ZoneDessin.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include <algorithm>
#include <utility>

namespace {

constexpr Legende legendes[] = {
    {"Frame1", 0, 215}, {"Frame2", 0, 328},  {"Frame3", 0, 330},     {"EtiquetteCombo1", 0, 174}, {"SSTab1", 0, 335},
    {"SSTab1", 1, 336}, {"Calculer", 0, 11}, {"Enregistrer", 0, 15}, {"Imprimer", 0, 56},         {"Retour", 0, 340},
};

constexpr QSize TailleCourbes(640, 600);
constexpr long PasApercu = 360;

QString NomUnite(Grandeur grandeur) {
    const int unite = UniteLoi(grandeur);
    return unite == 0 ? QString() : QTexte(unite);
}

/// The unit law that the study is about, before it has any numbers.
Tableau<PointLoi> TableApercu(const EtudeLoi& loi) {
    for (const ChoixLoi& choix : LesChoixLois())
        if (loi.ecran == std::string_view(choix.ecran) && (choix.loi == nullptr || etude.lois.LoiChoisie == choix.loi))
            return TableChoix(choix, choix.loi == nullptr ? Tableau<Loi>() : LitLois(), PasApercu);
    return {};
}

} // namespace

EcranLoi::EcranLoi(const EtudeLoi& loi, QWidget* parent)
    : FenetreEnfant(loi.ecran, parent, loi.active), loi_(loi), apercu_(TableApercu(loi)) {
    etude.donnees.TypeLoi = loi.typeLoi;
    etude.donnees.SortieEnDegres = loi.degresDabord ? Vrai : Faux;

    auto* gauche = new QWidget;
    auto* colonne = new QVBoxLayout(gauche);
    colonne->setContentsMargins({});
    colonne->addWidget(FaitDonnees());
    colonne->addWidget(FaitUnites());
    colonne->addWidget(FaitResultats());
    colonne->addStretch();
    auto* contenu = new QWidget;
    auto* rangee = new QHBoxLayout(contenu);
    rangee->setContentsMargins({});
    rangee->addWidget(gauche);
    rangee->addWidget(FaitOnglets(), 1);
    auto* disposition = new QVBoxLayout(this);
    disposition->addWidget(new ZoneDefilante(contenu), 1);
    disposition->addLayout(FaitBoutons());
    AppliqueLegendes(*this, legendes);
    setWindowTitle(Q(Rapport().titre));

    RelieChamps();
    MiseJourUnites();
    MontreResultats();
    champs_.front().zone->setFocus();
}

EcranLoi::~EcranLoi() {
    CesseEcoute(*this);
}

bool EcranLoi::Active() const {
    return FenetreEnfant::Active() && etude.donnees.TypeLoi == loi_.typeLoi;
}

void EcranLoi::Imprime(Imprimante& imprimante) const {
    ImprimeEtudeLoi(imprimante, Rapport());
}

/// The unit, the points per degree, and what stands in the fields, a line each.
std::string EcranLoi::Travail() const {
    std::string contenu = (option1_->isChecked() ? option1_ : option2_)->objectName().toStdString() + FinDeLigne;
    contenu += S(pointsParDegre_->currentText()) + FinDeLigne;
    for (const Ligne& ligne : champs_) contenu += S(ligne.zone->text()) + FinDeLigne;
    return contenu;
}

void EcranLoi::Reprend(const std::string& contenu) {
    Lignes lignes(contenu);
    (lignes.Suivante() == "Option1" ? option1_ : option2_)->setChecked(true);
    pointsParDegre_->setCurrentText(Q(std::string(lignes.Suivante())));
    for (const Ligne& ligne : champs_) ligne.zone->setText(Q(std::string(lignes.Suivante())));
}

void EcranLoi::Ferme() {
    FenetreEnfant::Ferme();
    etude.donnees.TypeLoi.clear();
}

RapportLoi EcranLoi::Rapport() const {
    return {&loi_, loi_.titre == 0 ? TitreLoiChoisie() : Trim(Texte(loi_.titre)), resultat_};
}

// ---- layout

QWidget* EcranLoi::FaitDonnees() {
    auto* cadre = Nomme(new QGroupBox, "Frame1");
    auto* grille = new QGridLayout(cadre);
    for (const ChampLoi& champ : loi_.champs) {
        if (!champ.Employe()) continue;
        auto* zone = AjouteLigneChamp(*grille, grille->rowCount(), champ.controle, champ.texte, 0);
        zone->RefuseSigne(!champ.signe);
        if (const double valeur = champ.Nombre(etude.donnees); valeur != 0.0) zone->Montre(valeur);
        champs_.push_back({&champ, zone});
    }
    pointsParDegre_ = Nomme(new QComboBox, "Combo1");
    for (const auto points : PointsParDegreLoi) pointsParDegre_->addItem(QString::number(points));
    const int ligne = grille->rowCount();
    grille->addWidget(FaitEtiquette("EtiquetteCombo1", pointsParDegre_), ligne, 0);
    grille->addWidget(pointsParDegre_, ligne, 1);
    return cadre;
}

QWidget* EcranLoi::FaitUnites() {
    constexpr int millimetres = 329, degres = 20;
    auto* cadre = Nomme(new QGroupBox, "Frame2");
    auto* rangee = new QHBoxLayout(cadre);
    option1_ = Nomme(new QRadioButton(QTexte(loi_.degresDabord ? degres : millimetres)), "Option1");
    option2_ = Nomme(new QRadioButton(QTexte(loi_.degresDabord ? millimetres : degres)), "Option2");
    option1_->setChecked(true);
    rangee->addWidget(option1_);
    rangee->addWidget(option2_);
    rangee->addStretch();
    return cadre;
}

QWidget* EcranLoi::FaitResultats() {
    auto* cadre = Nomme(new QGroupBox, "Frame3");
    auto* grille = new QGridLayout(cadre);
    for (const ValeurLoi& ligne : loi_.valeurs) {
        auto* valeur = FaitValeur(ligne.controle, "-00000.0000");
        auto* unite = FaitUnite();
        unite->setObjectName("Unite" + valeur->objectName());
        valeurs_.push_back(valeur);
        const int rang = grille->rowCount();
        libelles_.push_back(new QLabel(QTexte(ligne.texte)));
        grille->addWidget(libelles_.back(), rang, 0);
        grille->addWidget(valeur, rang, 1);
        grille->addWidget(unite, rang, 2);
    }
    notes_ = FaitNotes();
    grille->addWidget(notes_, grille->rowCount(), 0, 1, 3);
    grille->setColumnStretch(0, 1);
    return cadre;
}

QWidget* EcranLoi::FaitOnglets() {
    auto* onglets = Nomme(new QTabWidget, "SSTab1");
    courbes_ = Nomme(new ZoneDessin, "Courbes");
    courbes_->Prefere(TailleCourbes);
    grille_ = Nomme(new Grille, "Grille");
    // The layout of a page tells the sheet's least size on; a bare sheet would be asked for its usual one.
    auto* page = new QWidget;
    auto* disposition = new QVBoxLayout(page);
    disposition->setContentsMargins({});
    disposition->addWidget(courbes_);
    onglets->addTab(page, {});
    onglets->addTab(grille_, {});
    return onglets;
}

QLayout* EcranLoi::FaitBoutons() {
    retour_ = Nomme(new QPushButton, "Retour");
    imprimer_ = Nomme(new QPushButton, "Imprimer");
    enregistrer_ = Nomme(new QPushButton, "Enregistrer");
    calculer_ = Nomme(new QPushButton, "Calculer");
    calculer_->setDefault(true);
    calculer_->setAutoDefault(true);
    auto* boutons = new QHBoxLayout;
    boutons->addWidget(retour_);
    boutons->addStretch();
    for (auto* bouton : {imprimer_, enregistrer_, calculer_}) boutons->addWidget(bouton);
    return boutons;
}

void EcranLoi::RelieChamps() {
    for (std::size_t i = 0; i < champs_.size(); ++i) {
        QWidget* suivant =
            i + 1 < champs_.size() ? static_cast<QWidget*>(champs_[i + 1].zone) : static_cast<QWidget*>(calculer_);
        connect(champs_[i].zone, &ChampNombre::Suivant, suivant, [suivant] { suivant->setFocus(Qt::TabFocusReason); });
        connect(champs_[i].zone, &QLineEdit::textChanged, this, &EcranLoi::PerimeResultats);
    }
    connect(pointsParDegre_, &QComboBox::currentIndexChanged, this, &EcranLoi::PerimeResultats);
    connect(option1_, &QRadioButton::toggled, this, &EcranLoi::ChoisitUnites);
    connect(calculer_, &QPushButton::clicked, this, &EcranLoi::Calculer);
    connect(enregistrer_, &QPushButton::clicked, this, &EcranLoi::Enregistrer);
    connect(imprimer_, &QPushButton::clicked, this, &EcranLoi::ImpressionDemandee);
    connect(retour_, &QPushButton::clicked, this, &EcranLoi::Retour);
    RevientPar(*retour_);
}

// ---- units

void EcranLoi::MiseJourUnites() {
    for (const Ligne& ligne : champs_) {
        const QString nom = ligne.zone->objectName();
        findChild<QLabel*>("Etiquette" + nom)->setText(QTexte(ligne.champ->Libelle()));
        findChild<QLabel*>("Unite" + nom)->setText(NomUnite(ligne.champ->grandeur));
    }
    for (const ValeurLoi& ligne : loi_.valeurs)
        findChild<QLabel*>(QStringLiteral("Unite") + ligne.controle)->setText(NomUnite(ligne.grandeur));
}

/// Results that are shown are calculated again in the other unit.
void EcranLoi::ChoisitUnites() {
    etude.donnees.SortieEnDegres = option1_->isChecked() == loi_.degresDabord ? Vrai : Faux;
    MiseJourUnites();
    if (Calculee()) Calculer();
}

// ---- study

bool EcranLoi::Calculee() const {
    return etude.resultats.ResultatsPrets != Faux;
}

/// Results of other data are neither shown nor printed nor saved.
void EcranLoi::PerimeResultats() {
    if (!Calculee()) return;
    etude.resultats.ResultatsPrets = Faux;
    etude.resultats.EtudeModifiee = Faux;
    MontreResultats();
}

void EcranLoi::LitDonnees() {
    for (const Ligne& ligne : champs_) ligne.champ->Nombre(etude.donnees) = ligne.zone->Valeur();
    etude.donnees.PointsParDegre = Entier16(Val(S(pointsParDegre_->currentText())));
    if (etude.donnees.PointsParDegre == 0) etude.donnees.PointsParDegre = 1;
}

void EcranLoi::MontreFaute(const FauteLoi& faute) {
    LesDialogues().Message(Icone::Avertissement, faute.texte);
    const auto ligne =
        std::find_if(champs_.begin(), champs_.end(), [&](const Ligne& l) { return l.champ->membre == faute.membre; });
    if (ligne != champs_.end()) ReprendSaisie(*ligne->zone);
}

void EcranLoi::Calculer() {
    LitDonnees();
    etude.resultats.ResultatsPrets = Faux;
    etude.resultats.EtudeModifiee = Faux;
    MontreResultats(); // a calculation that fails leaves none on the screen
    if (const auto faute = ChercheFauteLoi(loi_)) return MontreFaute(*faute);
    resultat_ = CalculeEtudeLoi(loi_);
    etude.resultats.ResultatsPrets = Vrai;
    etude.resultats.EtudeModifiee = Vrai;
    MontreResultats();
    emit EtudeRecalculee();
}

void EcranLoi::MontreResultats() {
    const bool calculee = Calculee();
    const Notes notes = calculee ? NotesEtudeLoi(loi_, resultat_) : Notes();
    MontreNotes(*notes_, notes);
    for (std::size_t i = 0; i < valeurs_.size(); ++i) {
        const double valeur = resultat_.*loi_.valeurs[i].membre;
        libelles_[i]->setText(QTexte(loi_.valeurs[i].texte) + Q(notes.Renvoi(loi_.valeurs[i].controle)));
        valeurs_[i]->setText(calculee ? Q(Format(valeur, loi_.valeurs[i].masque)) : QString());
        valeurs_[i]->setToolTip(calculee ? QTexte(777) + " " + Q(StrTrim(valeur)) : QString());
    }
    enregistrer_->setEnabled(calculee);
    imprimer_->setEnabled(calculee);
    if (calculee)
        courbes_->Peint(DessineCourbes);
    else
        courbes_->Peint([this](Dessin& dessin) { DessineLoiNommee(dessin, apercu_); });
    RemplitGrille();
}

void EcranLoi::RemplitGrille() {
    TableTexte table = TablePointsLoi();
    if (!Calculee()) table.lignes = 0;
    grille_->Remplit(std::move(table));
}

void EcranLoi::Enregistrer() {
    if (!Calculee()) {
        LesDialogues().Message(Icone::Information, Texte(359));
        return;
    }
    const std::string nom = loi_.genre == nullptr ? etude.lois.LoiEtude.NomLoi : loi_.typeLoi;
    if (const auto fichier = EnregistreLoi(nom)) emit FichierEnregistre(Q(*fichier));
}

void EcranLoi::Retour() {
    etude.resultats.EtudeModifiee = Faux;
    etude.resultats.ResultatsPrets = Faux;
    emit Quitte();
}
