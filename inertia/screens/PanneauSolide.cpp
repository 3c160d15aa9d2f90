#include "inertia/screens/PanneauSolide.h"

#include "data/Unites.h"
#include "inertia/TextesInertie.h"
#include "widgets/Chaines.h"
#include "widgets/ChampNombre.h"
#include "widgets/Nomme.h"
#include "widgets/PanneauChamps.h"

#include <QBoxLayout>
#include <QEvent>
#include <QGridLayout>
#include <QRadioButton>

#include <algorithm>

namespace {

using Saisi = SaisieSolide; // S() is a text of the toolkit here

/// Every field, its label and its unit, top to bottom.
struct LigneFixe {
    std::string Saisi::*membre;
    const char* controle;
    const char* etiquette;
    const char* unite;
    int texte; ///< text number of the caption; 0 when the kind gives it
};
constexpr LigneFixe lignesFixes[] = {
    {&Saisi::Text1, "Text1", "Label2", "UniteText1", TexteQuantite},
    {&Saisi::Text2, "Text2", "Label3", "UniteText2", TexteRapport},
    {&Saisi::Text3, "Text3", "Label1", "Label6", 0},
    {&Saisi::Text5, "Text5", "Label7", "UniteText5", 0},
    {&Saisi::Text6, "Text6", "Label8", "UniteText6", 0},
    {&Saisi::Text7, "Text7", "Label9", "UniteText7", 0},
    {&Saisi::Text8, "Text8", "Label10", "UniteText8", 0},
};
constexpr std::size_t RangMasse = 2;
constexpr int LigneOptions = 3; ///< row of the grid between ratio and mass

const ChampSolide* CoteDe(const GenreSolide& genre, std::string Saisi::*membre) {
    for (const ChampSolide& champ : genre.champs)
        if (std::get<std::string Saisi::*>(champ.membre) == membre) return &champ;
    return nullptr;
}

/// The letter that the figure has for a dimension; empty for a field without one.
QString LettreDe(const ChampSolide& cote) {
    if (cote.texte == TexteNombreCotes) return QStringLiteral("N");
    if (cote.texte == TexteAngleBeta) return QStringLiteral("ß");
    return cote.unite == UniteMm ? QTexte(cote.texte) : QString();
}

} // namespace

PanneauSolide::PanneauSolide(QWidget* parent) : QGroupBox(parent), genre_(&LesSolides().front()) {
    setObjectName("Frame1");
    AjouteLignes();
    AjouteOptions();
    for (const Ligne& ligne : lignes_) {
        ChampNombre* champ = ligne.champ;
        connect(champ, &QLineEdit::textEdited, this, [this, champ] { emit Modifie(champ->objectName()); });
        connect(champ, &ChampNombre::Suivant, this, [this, champ] { emit Valide(champ->objectName()); });
        champ->installEventFilter(this);
    }
    AppliqueTextes();
}

void PanneauSolide::AjouteLignes() {
    auto* grille = new QGridLayout(this);
    for (const LigneFixe& fixe : lignesFixes) {
        const int rang = grille->rowCount() + (grille->rowCount() == LigneOptions ? 1 : 0);
        auto* champ = AjouteLigneChamp(*grille, rang, fixe.controle, TexteQuantite, 0);
        auto* etiquette = findChild<QLabel*>("Etiquette" + champ->objectName());
        auto* unite = findChild<QLabel*>("Unite" + champ->objectName());
        etiquette->setObjectName(QString::fromLatin1(fixe.etiquette));
        unite->setObjectName(QString::fromLatin1(fixe.unite));
        lignes_.push_back({fixe.membre, champ, etiquette, unite, nullptr});
    }
    grille->setRowStretch(grille->rowCount(), 1);
}

void PanneauSolide::AjouteOptions() {
    masseTotal_ = Nomme(new QRadioButton, "MasseTotal");
    masseSpecifique_ = Nomme(new QRadioButton, "MasseSpecifique");
    auto* rangee = new QHBoxLayout;
    rangee->addWidget(masseTotal_);
    rangee->addWidget(masseSpecifique_);
    rangee->addStretch();
    qobject_cast<QGridLayout*>(layout())->addLayout(rangee, LigneOptions, 0, 1, 3);
    masseTotal_->setChecked(true);
    setTabOrder(lignes_[RangMasse - 1].champ, masseTotal_);
    setTabOrder(masseTotal_, masseSpecifique_);
    // `clicked` is a user's choice alone; a choice made by the program has its own consequences.
    connect(masseTotal_, &QRadioButton::clicked, this, &PanneauSolide::ChoisitOption);
    connect(masseSpecifique_, &QRadioButton::clicked, this, &PanneauSolide::ChoisitOption);
}

void PanneauSolide::Choisit(const GenreSolide& genre) {
    genre_ = &genre;
    for (Ligne& ligne : lignes_) MontreLigne(ligne);
    masseSpecifique_->setVisible(genre.volume != nullptr);
    Reprend(SaisieInitiale(genre));
    AppliqueTextes();
}

void PanneauSolide::MontreLigne(Ligne& ligne) {
    ligne.cote = CoteDe(*genre_, ligne.membre);
    const bool commune =
        ligne.membre == &Saisi::Text1 || ligne.membre == &Saisi::Text2 || ligne.membre == &Saisi::Text3;
    for (QWidget* widget : {static_cast<QWidget*>(ligne.champ), static_cast<QWidget*>(ligne.etiquette),
                            static_cast<QWidget*>(ligne.unite)})
        widget->setVisible(commune || ligne.cote != nullptr);
}

void PanneauSolide::Reprend(const SaisieSolide& saisie) {
    (saisie.MasseTotal ? masseTotal_ : masseSpecifique_)->setChecked(true);
    for (const Ligne& ligne : lignes_) ligne.champ->setText(Q(saisie.*ligne.membre));
    AppliqueMasse();
}

SaisieSolide PanneauSolide::Saisie() const {
    SaisieSolide saisie;
    saisie.TypeSolide = genre_->TypeSolide;
    saisie.MasseTotal = masseTotal_->isChecked();
    for (const Ligne& ligne : lignes_) saisie.*ligne.membre = S(ligne.champ->text());
    return saisie;
}

void PanneauSolide::ChoisitOption() {
    lignes_[RangMasse].champ->setText(Q(Text3Initial(*genre_, masseTotal_->isChecked())));
    AppliqueMasse();
    emit OptionChoisie();
}

void PanneauSolide::AppliqueMasse() {
    const bool masse = MasseEstTapee(*genre_, Saisie());
    const int texte = !masse ? TexteDensite : genre_->texteMasse != 0 ? genre_->texteMasse : TexteMasse;
    lignes_[RangMasse].etiquette->setText(QTexte(texte));
    lignes_[RangMasse].unite->setText(QTexte(masse ? TexteKg : TexteUniteDensite));
}

void PanneauSolide::AppliqueTextes() {
    setTitle(Q(NomSolide(*genre_)));
    masseTotal_->setText(QTexte(TexteMasseTotaleOption));
    masseSpecifique_->setText(QTexte(TexteDensite));
    for (std::size_t i = 0; i < lignes_.size(); ++i) {
        const Ligne& ligne = lignes_[i];
        if (lignesFixes[i].texte != 0) ligne.etiquette->setText(QTexte(lignesFixes[i].texte));
        if (ligne.cote == nullptr) continue;
        ligne.etiquette->setText(QTexte(ligne.cote->texte));
        ligne.unite->setText(ligne.cote->unite == 0 ? QString() : QTexte(ligne.cote->unite));
    }
    AppliqueMasse();
    ReserveLargeurs();
}

/// The panel does not change its width from one kind to the next.
void PanneauSolide::ReserveLargeurs() {
    std::vector<int> textes{TexteQuantite, TexteRapport, TexteDensite, TexteMasseTransportee};
    for (const GenreSolide& genre : LesSolides())
        for (const ChampSolide& champ : genre.champs) textes.push_back(champ.texte);
    int largeur = 0;
    for (const int texte : textes) largeur = std::max(largeur, fontMetrics().horizontalAdvance(QTexte(texte)));
    auto* grille = qobject_cast<QGridLayout*>(layout());
    grille->setColumnMinimumWidth(0, largeur);
    grille->setColumnMinimumWidth(2, fontMetrics().horizontalAdvance(QTexte(TexteUniteDensite)));
}

void PanneauSolide::Corrige(std::string SaisieSolide::*membre, const std::string& texte) {
    for (const Ligne& ligne : lignes_)
        if (ligne.membre == membre) ligne.champ->setText(Q(texte));
}

void PanneauSolide::Marque(const std::string& controle, const std::string& raison) {
    for (const Ligne& ligne : lignes_)
        ligne.champ->MarqueFaute(ligne.champ->objectName() == Q(controle) ? Q(raison) : QString());
}

ChampNombre* PanneauSolide::Champ(const std::string& controle) const {
    for (const Ligne& ligne : lignes_)
        if (ligne.champ->objectName() == Q(controle)) return ligne.champ;
    throw std::logic_error("no field " + controle);
}

QString PanneauSolide::NomMasse() const {
    return lignes_[RangMasse].etiquette->text();
}

bool PanneauSolide::PasseAuSuivant(const QString& controle) {
    bool derriere = false;
    for (const Ligne& ligne : lignes_) {
        if (derriere && ligne.champ->isVisibleTo(this) && ligne.champ->isEnabled()) {
            ligne.champ->setFocus(Qt::TabFocusReason);
            return true;
        }
        derriere = derriere || ligne.champ->objectName() == controle;
    }
    return false;
}

bool PanneauSolide::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() == QEvent::FocusIn)
        for (const Ligne& ligne : lignes_)
            if (ligne.champ == objet) emit CoteVisee(ligne.cote == nullptr ? QString() : LettreDe(*ligne.cote));
    return QGroupBox::eventFilter(objet, evenement);
}
