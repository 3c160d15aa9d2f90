#include "languages/screens/Persona.h"

#include "core/ErreurExecution.h"
#include "core/FichierEntier.h"
#include "core/Nombres.h"
#include "core/Utf8.h"
#include "data/Demarrage.h"
#include "data/Textes.h"
#include "languages/FichierLangue.h"
#include "languages/TextesLangues.h"
#include "languages/screens/AutresLangues.h"
#include "languages/screens/ChampTraduction.h"
#include "platform/Dialogues.h"
#include "widgets/BarreNombre.h"
#include "widgets/CesseEcoute.h"
#include "widgets/Chaines.h"
#include "widgets/Legendes.h"
#include "widgets/Nomme.h"
#include "widgets/Remarques.h"
#include "widgets/ReprendSaisie.h"
#include "widgets/ZoneDefilante.h"

#include <QBoxLayout>
#include <QFocusEvent>
#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QToolButton>

namespace {

constexpr Legende legendes[] = {
    {"Persona", 0, TexteTitreLangues},
    {"EtiquetteList2", 0, TexteLangues},
    {"EtiquetteText3", 0, TexteNomLangue},
    {"SupprimeLangue", 0, TexteSupprimerLangue},
    {"Importer", 0, TexteImporter},
    {"Exporter", 0, TexteExporter},
    {"EtiquetteHScroll1", 0, TexteNumero},
    {"EtiquetteCherche", 0, TexteChercher},
    {"GroupeTraduction", 0, TexteTraduction},
    {"Prochain", 0, TexteProchain},
    {"Sauver", 0, TexteEnregistrerTraduction},
    {"GroupeAutres", 0, TexteAutresLangues},
    {"Retour", 0, TexteRetourLangues},
};

constexpr QSize TailleEcran(1040, 590);
constexpr int LargeurLangues = 230; ///< pixels, at which the names of most languages stand whole
constexpr int PasPage = 10;         ///< texts

/// A file of another kind has a fault on every line; a box with these says enough.
constexpr std::size_t FautesMontrees = 200;

QPushButton* FaitBouton(const char* nom) {
    auto* bouton = Nomme(new QPushButton, nom);
    bouton->setAutoDefault(true);
    return bouton;
}

DemandeFichier DemandeLangue(const std::string& nom) {
    return {Texte(TexteTitreLangues), CheminEtudes, nom, {{Texte(TexteFiltreLangue), "*.tsv"}}};
}

} // namespace

Persona::Persona(QWidget* parent) : FenetreEnfant("Persona", parent), textes_(LaBase.OuvreTable(TableTextes)) {
    auto* droite = new QVBoxLayout;
    droite->addLayout(FaitNumero());
    droite->addLayout(FaitRecherche());
    droite->addWidget(FaitTraduction());
    droite->addWidget(FaitAutres(), 1);
    auto* contenu = new QWidget;
    auto* rangee = new QHBoxLayout(contenu);
    rangee->setContentsMargins({});
    rangee->addWidget(FaitLangues());
    rangee->addLayout(droite, 1);
    retour_ = FaitBouton("Retour");
    auto* boutons = new QHBoxLayout;
    boutons->addWidget(retour_);
    boutons->addStretch();
    auto* disposition = new QVBoxLayout(this);
    disposition->addWidget(new ZoneDefilante(contenu), 1);
    disposition->addLayout(boutons);
    AppliqueLegendes(*this, legendes);
    Relie();
    Ouverture();
    liste_->setFocus();
}

Persona::~Persona() {
    CesseEcoute(*this);
}

/// The other languages take what height is left; they do not ask for more.
QSize Persona::sizeHint() const {
    return FenetreEnfant::sizeHint().expandedTo(TailleEcran);
}

// ---- layout

QWidget* Persona::FaitLangues() {
    auto* langues = new QWidget;
    langues->setMinimumWidth(LargeurLangues);
    auto* colonne = new QVBoxLayout(langues);
    colonne->setContentsMargins({});
    liste_ = Nomme(new QListWidget, "List2");
    nom_ = Nomme(new QLineEdit, "Text3");
    supprime_ = FaitBouton("SupprimeLangue");
    importer_ = FaitBouton("Importer");
    exporter_ = FaitBouton("Exporter");
    colonne->addWidget(FaitEtiquette("EtiquetteList2", liste_));
    colonne->addWidget(liste_, 1);
    colonne->addWidget(FaitEtiquette("EtiquetteText3", nom_));
    colonne->addWidget(nom_);
    for (QPushButton* bouton : {supprime_, importer_, exporter_}) colonne->addWidget(bouton);
    return langues;
}

QLayout* Persona::FaitNumero() {
    barre_ = Nomme(new BarreNombre, "HScroll1");
    barre_->setPageStep(PasPage);
    position_ = Nomme(new QLabel, "Label7");
    position_->setAlignment(Qt::AlignRight);
    position_->setMinimumWidth(position_->fontMetrics().horizontalAdvance(QStringLiteral("0000/0000")));
    auto* rangee = new QHBoxLayout;
    rangee->addWidget(FaitEtiquette("EtiquetteHScroll1", barre_));
    rangee->addWidget(barre_, 1);
    rangee->addWidget(position_);
    return rangee;
}

QLayout* Persona::FaitRecherche() {
    cherche_ = Nomme(new QLineEdit, "Cherche");
    cherche_->setClearButtonEnabled(true);
    precedent_ = Nomme(new QToolButton, "Precedent");
    suivant_ = Nomme(new QToolButton, "Suivant");
    precedent_->setArrowType(Qt::UpArrow);
    suivant_->setArrowType(Qt::DownArrow);
    precedent_->setToolTip(QTexte(TexteTrouvePrecedent));
    suivant_->setToolTip(QTexte(TexteTrouveSuivant));
    nombreTrouves_ = Nomme(new QLabel, "Trouves");
    auto* rangee = new QHBoxLayout;
    rangee->addWidget(FaitEtiquette("EtiquetteCherche", cherche_));
    rangee->addWidget(cherche_, 1);
    for (QWidget* controle : std::initializer_list<QWidget*>{precedent_, suivant_, nombreTrouves_})
        rangee->addWidget(controle);
    return rangee;
}

QWidget* Persona::FaitTraduction() {
    auto* cadre = Nomme(new QGroupBox, "GroupeTraduction");
    traduction_ = Nomme(new ChampTraduction, "Text4");
    traduction_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    longueur_ = Nomme(new QLabel, "Longueur");
    longueur_->setAlignment(Qt::AlignRight);
    longueur_->setMinimumWidth(longueur_->fontMetrics().horizontalAdvance(QStringLiteral("000/000")));
    remarques_ = Nomme(new Remarques, "Remarques");
    aTraduire_ = Nomme(new QLabel, "ATraduire");
    aTraduire_->setWordWrap(true);
    prochain_ = FaitBouton("Prochain");
    sauver_ = FaitBouton("Sauver");
    auto* pied = new QHBoxLayout;
    pied->addWidget(aTraduire_, 1);
    pied->addWidget(prochain_);
    pied->addWidget(sauver_);
    auto* colonne = new QVBoxLayout(cadre);
    auto* texte = new QHBoxLayout;
    texte->addWidget(traduction_, 1);
    texte->addWidget(longueur_, 0, Qt::AlignTop);
    colonne->addLayout(texte);
    colonne->addWidget(remarques_);
    colonne->addLayout(pied);
    return cadre;
}

QWidget* Persona::FaitAutres() {
    auto* cadre = Nomme(new QGroupBox, "GroupeAutres");
    autres_ = new AutresLangues;
    (new QVBoxLayout(cadre))->addWidget(autres_);
    return cadre;
}

void Persona::Relie() {
    nom_->installEventFilter(this);
    connect(liste_, &QListWidget::itemSelectionChanged, this, [this] {
        const QList<QListWidgetItem*> choisies = liste_->selectedItems();
        if (!choisies.isEmpty()) ChoisitLangue(S(choisies.front()->text()));
    });
    connect(nom_, &QLineEdit::returnPressed, this, [this] {
        if (EntreNom() && Modifiable()) traduction_->setFocus(Qt::TabFocusReason);
    });
    connect(barre_, &QScrollBar::valueChanged, this, [this](int numero) { Va(numero); });
    connect(cherche_, &QLineEdit::textChanged, this, &Persona::Cherche);
    connect(cherche_, &QLineEdit::returnPressed, this, [this] { VaAuTrouve(1); });
    connect(suivant_, &QToolButton::clicked, this, [this] { VaAuTrouve(1); });
    connect(precedent_, &QToolButton::clicked, this, [this] { VaAuTrouve(-1); });
    connect(new QShortcut(QKeySequence::FindNext, this), &QShortcut::activated, suivant_, &QToolButton::click);
    connect(new QShortcut(QKeySequence::FindPrevious, this), &QShortcut::activated, precedent_, &QToolButton::click);
    connect(traduction_, &QPlainTextEdit::textChanged, this, &Persona::MontreFautes);
    connect(traduction_, &ChampTraduction::Valide, this, &Persona::Sauver);
    connect(sauver_, &QPushButton::clicked, this, &Persona::Sauver);
    connect(prochain_, &QPushButton::clicked, this, &Persona::VaAuProchain);
    connect(supprime_, &QPushButton::clicked, this, &Persona::Supprime);
    connect(importer_, &QPushButton::clicked, this, &Persona::Importe);
    connect(exporter_, &QPushButton::clicked, this, &Persona::Exporte);
    connect(retour_, &QPushButton::clicked, this, &Persona::Quitte);
    RevientPar(*retour_);
}

/// Leaving the name for another window, a menu or the way back is always free.
bool Persona::eventFilter(QObject* objet, QEvent* evenement) {
    if (objet == nom_ && evenement->type() == QEvent::FocusOut) {
        const auto raison = static_cast<QFocusEvent*>(evenement)->reason();
        const bool ailleurs = raison == Qt::ActiveWindowFocusReason || raison == Qt::PopupFocusReason ||
                              raison == Qt::MenuBarFocusReason || retour_->hasFocus();
        if (!ailleurs && isVisible())
            QMetaObject::invokeMethod(
                this, [this] { EntreNom(); }, Qt::QueuedConnection);
    }
    return FenetreEnfant::eventFilter(objet, evenement);
}

// ---- languages

void Persona::Ouverture() {
    langue_.clear();
    barre_->setRange(1, static_cast<int>(textes_.NombreEnregistrements()));
    autres_->Montre({});
    const QSignalBlocker muette(liste_);
    liste_->clear();
    for (const std::string& langue : NomsLangues(textes_)) liste_->addItem(Q(langue));
    nom_->clear();
    traduction_->Montre({});
    Cherche();
    MontreEtat();
}

bool Persona::Modifiable() const {
    return !langue_.empty() && !EstLivree(langue_);
}

/// @param langue empty for none
void Persona::ChoisitLangue(const std::string& langue) {
    QuitteTexte();
    langue_ = langue;
    nom_->setText(Q(langue));
    const QSignalBlocker muette(liste_);
    liste_->clearSelection();
    liste_->setCurrentItem(liste_->findItems(Q(langue), Qt::MatchExactly).value(0));
    barre_->setValue(barre_->minimum());
    MontreTexte();
}

/// Takes the name in the field: a language of the list is worked on, any other is made after a question.
/// @return false when it was refused
bool Persona::EntreNom() {
    // The field may have been left by the very click that asks already.
    if (enQuestion_) return false;
    const QScopedValueRollback question(enQuestion_, true);
    const std::string nom = S(nom_->text().simplified());
    if (nom == langue_) return true;
    if (nom.empty()) {
        ChoisitLangue({});
        return true;
    }
    if (ExisteLangue(textes_, nom)) {
        ChoisitLangue(nom);
        return true;
    }
    if (const auto faute = FauteNomLangue(textes_, nom)) {
        LesDialogues().Message(Icone::Avertissement, *faute);
        ReprendSaisie(*nom_);
        return false;
    }
    if (LesDialogues().Question(Texte(TexteCreerLaLangue) + "\n" + nom)) {
        CreeLangue(nom);
        return false; // it stands in the list and is not chosen yet
    }
    ChoisitLangue({});
    nom_->setFocus(Qt::TabFocusReason);
    return false;
}

void Persona::CreeLangue(const std::string& nom) {
    QuitteTexte();
    AjouteLangue(LaBase, textes_, nom);
    Ouverture();
    liste_->setCurrentRow(liste_->count() - 1, QItemSelectionModel::NoUpdate);
    liste_->setFocus(Qt::TabFocusReason);
    emit Annonce(QTexte(TexteLangueCreee) + " " + Q(nom));
}

void Persona::Supprime() {
    const std::string langue = langue_;
    if (!EntreNom() || langue != langue_) return;
    if (!LesDialogues().Question(Texte(TexteSupprimerLaLangue) + "\n" + langue)) return;
    SupprimeLangue(LaBase, textes_, langue);
    Ouverture();
    liste_->setFocus(Qt::TabFocusReason);
    emit Annonce(QTexte(TexteLangueSupprimee) + " " + Q(langue));
}

// ---- one text

void Persona::Va(long numero) {
    if (numero == numero_) return;
    try {
        QuitteTexte();
    } catch (...) {
        barre_->setValue(static_cast<int>(numero_)); // the wording stays in sight
        throw;
    }
    numero_ = numero;
    MontreTexte();
}

void Persona::MontreTexte() {
    traduction_->PoseLongueur(LongueurPermise(textes_, numero_));
    std::vector<AutresLangues::Paire> paires;
    for (const std::string& langue : NomsLangues(textes_))
        if (langue != langue_) paires.push_back({langue, TexteDeLangue(textes_, langue, numero_)});
    autres_->Montre(paires);
    traduction_->Montre(langue_.empty() ? std::string() : TexteDeLangue(textes_, langue_, numero_));
    MontreEtat();
}

/// What can be done now, and how far the language is.
void Persona::MontreEtat() {
    position_->setText(QStringLiteral("%1/%2").arg(barre_->value()).arg(barre_->maximum()));
    for (QWidget* controle : std::initializer_list<QWidget*>{traduction_, sauver_, supprime_, importer_, prochain_})
        controle->setEnabled(Modifiable());
    exporter_->setEnabled(!langue_.empty());
    const long manquants = Modifiable() ? NombreATraduire(textes_, langue_) : 0;
    prochain_->setEnabled(manquants > 0);
    if (langue_.empty())
        aTraduire_->clear();
    else if (!Modifiable())
        aTraduire_->setText(QTexte(TexteLangueLivree));
    else if (manquants == 0)
        aTraduire_->setText(QTexte(TexteToutTraduit));
    else
        aTraduire_->setText(QTexte(TexteATraduire) + " " + QString::number(manquants) + "\n" +
                            QTexte(TexteLangueOfferte));
    MontreFautes();
}

/// What is typed is checked as it grows; an untouched gap is no fault.
void Persona::MontreFautes() {
    const std::string traduction = traduction_->Traduction();
    longueur_->setText(
        langue_.empty() ? QString()
                        : QStringLiteral("%1/%2").arg(Caracteres(traduction)).arg(LongueurPermise(textes_, numero_)));
    remarques_->Montre(Modifiable() && !traduction.empty() ? FautesTraduction(textes_, numero_, traduction)
                                                           : std::vector<std::string>{});
}

/// Asks what is to become of a wording that was typed and not stored, before another one takes its place.
void Persona::QuitteTexte() {
    const std::string traduction = traduction_->Traduction();
    if (!Modifiable() || !traduction_->Modifie() || traduction.empty()) return;
    const QScopedValueRollback question(enQuestion_, true);
    barre_->setEnabled(false); // a button of it that is held down would run on under the question
    const bool garde = LesDialogues().Question(Texte(TexteGarderTraduction) + "\n" + traduction);
    barre_->setEnabled(true);
    if (garde) EcritTexte(textes_, langue_, numero_, traduction);
    traduction_->document()->setModified(false);
}

void Persona::Sauver() {
    if (!EntreNom() || !Modifiable()) return;
    const std::string traduction = traduction_->Traduction();
    if (traduction.empty()) {
        traduction_->setFocus(Qt::TabFocusReason);
        return;
    }
    EcritTexte(textes_, langue_, numero_, traduction);
    traduction_->document()->setModified(false);
    MontreEtat();
    emit Annonce(QTexte(TexteTraductionGardee) + " " + QString::number(numero_));
}

void Persona::VaAuProchain() {
    if (const auto numero = ProchainATraduire(textes_, langue_, numero_)) barre_->setValue(static_cast<int>(*numero));
    traduction_->setFocus(Qt::TabFocusReason);
}

std::string Persona::Travail() const {
    if (!Modifiable() || !traduction_->Modifie()) return {};
    return langue_ + "\t" + std::to_string(numero_) + "\t" + traduction_->Traduction();
}

void Persona::Reprend(const std::string& contenu) {
    const auto tab = contenu.find('\t'), autre = contenu.find('\t', tab + 1);
    const std::string langue = contenu.substr(0, tab);
    if (autre == std::string::npos || EstLivree(langue) || !ExisteLangue(textes_, langue))
        throw ErreurExecution(NumeroErreur::ContenuInvalide, langue);
    ChoisitLangue(langue);
    barre_->setValue(Entier16(Val(contenu.substr(tab + 1, autre - tab - 1))));
    traduction_->Montre(contenu.substr(autre + 1));
    traduction_->document()->setModified(true);
    MontreFautes();
}

// ---- search

void Persona::Cherche() {
    trouves_ = ChercheTextes(textes_, S(cherche_->text()));
    rangTrouve_ = -1;
    MontreTrouves();
}

void Persona::VaAuTrouve(int pas) {
    const int nombre = static_cast<int>(trouves_.size());
    if (nombre == 0) return;
    rangTrouve_ = rangTrouve_ < 0 ? (pas > 0 ? 0 : nombre - 1) : (rangTrouve_ + pas + nombre) % nombre;
    const long numero = trouves_[static_cast<std::size_t>(rangTrouve_)];
    if (numero == numero_ && !traduction_->Modifie()) MontreTexte(); // it may not have been shown yet
    barre_->setValue(static_cast<int>(numero));
    MontreTrouves();
}

void Persona::MontreTrouves() {
    const QString rang = rangTrouve_ < 0 ? QString() : QString::number(rangTrouve_ + 1) + "/";
    nombreTrouves_->setText(QTexte(TexteTrouves) + " " + rang + QString::number(trouves_.size()));
    precedent_->setEnabled(!trouves_.empty());
    suivant_->setEnabled(!trouves_.empty());
}

// ---- files

void Persona::Importe() {
    if (!EntreNom() || !Modifiable()) return;
    QuitteTexte();
    const auto chemin = LesDialogues().FichierAOuvrir(DemandeLangue({}));
    if (!chemin || chemin->empty()) return;
    ImportLangue import = AnalyseFichierLangue(textes_, LitFichierEntier(*chemin));
    if (!import.fautes.empty()) {
        std::string liste = Texte(TexteImportRefuse) + "\n";
        const bool trop = import.fautes.size() > FautesMontrees;
        if (trop) import.fautes.resize(FautesMontrees);
        for (const std::string& faute : import.fautes) liste += "\n" + faute;
        LesDialogues().Message(Icone::Avertissement, liste + (trop ? "\n..." : ""));
        return;
    }
    const long remplaces = NombreRemplaces(textes_, langue_, import.textes);
    if (remplaces > 0 && !LesDialogues().Question(Texte(TexteRemplacerTextes) + " " + std::to_string(remplaces)))
        return;
    EcritTextes(LaBase, textes_, langue_, import.textes);
    MontreTexte();
    emit Annonce(QTexte(TexteTextesImportes) + " " + QString::number(import.textes.size()));
}

void Persona::Exporte() {
    if (!EntreNom() || langue_.empty()) return;
    QuitteTexte();
    const auto chemin = LesDialogues().FichierASauver(DemandeLangue(langue_ + ".tsv"));
    if (!chemin || chemin->empty()) return;
    EcritFichierEntier(*chemin, ComposeFichierLangue(textes_, langue_));
    emit FichierEnregistre(QChemin(chemin->filename()));
}
