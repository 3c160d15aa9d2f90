#include "app/PageAccueil.h"

#include "app/CameType.h"
#include "app/Ecrans.h"
#include "app/TextesApp.h"
#include "data/Demarrage.h"
#include "studies/TypesEtude.h"
#include "widgets/BoutonImage.h"
#include "widgets/Chaines.h"
#include "widgets/Nomme.h"
#include "widgets/Polices.h"
#include "widgets/TravailFond.h"

#include <QAction>
#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>
#include <functional>

namespace {

constexpr QSize TailleImage(172, 116);
constexpr int MargeTitre = 4; // pixels
constexpr int Colonnes = 4;
constexpr int EcartColonnes = 32; // pixels
constexpr int TexteNouvelleEtude = 80;

/// A heading, set off by a line below it. (A bold face would be one more font for every start to load.)
class Titre : public QLabel {
public:
    Titre() { setContentsMargins(0, 0, 0, MargeTitre); }

protected:
    void paintEvent(QPaintEvent* evenement) override {
        QLabel::paintEvent(evenement);
        QPainter peintre(this);
        peintre.setPen(palette().color(QPalette::Mid));
        peintre.drawLine(rect().bottomLeft(), rect().bottomRight());
    }
};

/// A line that is a button, its text on the left. (A style sheet would do the same at three times the cost.)
class Lien : public QPushButton {
public:
    Lien(const QString& texte, const QString& indication) : QPushButton(texte) {
        setFlat(true);
        setAutoDefault(true);
        setToolTip(indication);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QStyleOptionButton option;
        initStyleOption(&option);
        QStylePainter peintre(this);
        peintre.drawControl(QStyle::CE_PushButtonBevel, option);
        if (option.state & QStyle::State_HasFocus) {
            QStyleOptionFocusRect cadre;
            cadre.QStyleOption::operator=(option);
            cadre.rect = style()->subElementRect(QStyle::SE_PushButtonFocusRect, &option, this);
            peintre.drawPrimitive(QStyle::PE_FrameFocusRect, cadre);
        }
        const QRect texte = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
        peintre.drawItemText(texte, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, option.palette,
                             isEnabled(), option.text, QPalette::ButtonText);
    }
};

} // namespace

PageAccueil::PageAccueil(QWidget* parent) : QScrollArea(parent) {
    setObjectName(QStringLiteral("Accueil"));
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    ConstruitEtudes();
}

void PageAccueil::ConstruitEtudes() {
    auto* contenu = new QWidget;
    auto* etudes = new QWidget;
    auto* grille = new QGridLayout(etudes);
    grille->setContentsMargins({});
    grille->addWidget(titre_ = new Titre, 0, 0, 1, Colonnes);
    int place = 0;
    std::vector<std::function<void()>> dessins;
    for (const ChoixEtude& choix : LesChoixEtude()) {
        auto* image = new BoutonImage(choix.dessine, TailleImage);
        image->setObjectName(QStringLiteral("Accueil") + QString::fromLatin1(choix.image));
        dessins.push_back(image->Prepare());
        connect(image, &BoutonImage::clicked, this, [this, &choix] { emit EtudeChoisie(choix); });
        grille->addWidget(image, 1 + place / Colonnes, place % Colonnes);
        etudes_.push_back(image);
        ++place;
    }
    // The pictures are drawn while the rest of the window is built.
    FaitAuFond([dessins] {
        for (const auto& dessine : dessins) dessine();
    });
    AttendPolices();
    rangee_->setSpacing(EcartColonnes);
    rangee_->addStretch();
    rangee_->addWidget(etudes, 0, Qt::AlignTop);
    rangee_->addStretch();
    auto* disposition = new QVBoxLayout(contenu);
    disposition->addStretch();
    disposition->addLayout(rangee_);
    disposition->addStretch();
    setWidget(contenu);
}

void PageAccueil::Remplit(const std::vector<std::filesystem::path>& exemples,
                          const std::vector<std::filesystem::path>& recents, const std::vector<QAction*>& actions) {
    titre_->setText(QTexte(TexteNouvelleEtude));
    for (std::size_t i = 0; i < etudes_.size(); ++i) {
        const ChoixEtude& choix = LesChoixEtude()[i];
        etudes_[i]->setText(QTexte(choix.Texte()));
        etudes_[i]->setEnabled(choix.Disponible());
    }
    // What is replaced may be where the request comes from.
    if (fichiers_ != nullptr) {
        fichiers_->hide();
        rangee_->removeWidget(fichiers_);
        fichiers_->deleteLater();
    }
    fichiers_ = FaitFichiers(exemples, recents, actions);
    rangee_->insertWidget(rangee_->count() - 1, fichiers_, 0, Qt::AlignTop);
}

QWidget* PageAccueil::FaitFichiers(const std::vector<std::filesystem::path>& exemples,
                                   const std::vector<std::filesystem::path>& recents,
                                   const std::vector<QAction*>& actions) {
    auto* fichiers = new QWidget;
    auto* colonne = new QVBoxLayout(fichiers);
    colonne->setContentsMargins({});
    colonne->setSpacing(0);
    for (QAction* action : actions) {
        if (!action->isEnabled()) continue;
        auto* lien = new Lien(action->text(), action->shortcut().toString(QKeySequence::NativeText));
        lien->setObjectName(QStringLiteral("Accueil") + action->objectName());
        connect(lien, &QPushButton::clicked, action, &QAction::trigger);
        colonne->addWidget(lien);
    }
    AjouteFichiers(*colonne, "Recent", TexteFichiersRecents, recents);
    AjouteFichiers(*colonne, "Exemple", TexteExemples, exemples);
    return fichiers;
}

void PageAccueil::AjouteFichiers(QVBoxLayout& colonne, const char* nom, int titre,
                                 const std::vector<std::filesystem::path>& fichiers) {
    if (fichiers.empty()) return;
    if (colonne.count() > 0) colonne.addSpacing(fontMetrics().height());
    auto* ligne = new Titre;
    ligne->setText(QTexte(titre).remove('&'));
    colonne.addWidget(ligne);
    for (const std::filesystem::path& chemin : fichiers) {
        auto* lien = new Lien(QChemin(chemin.filename()).replace('&', QLatin1String("&&")), QChemin(chemin));
        lien->setObjectName(QString::fromLatin1(nom));
        connect(lien, &QPushButton::clicked, this, [this, chemin] { emit FichierChoisi(chemin); });
        colonne.addWidget(lien);
    }
}

std::vector<std::filesystem::path> LesExemples() {
    std::vector<std::filesystem::path> exemples;
    std::error_code sansImportance; // a folder that is gone has no examples
    std::filesystem::directory_iterator entree(CheminAppli / NomDossierEtudes, sansImportance);
    for (; entree != std::filesystem::directory_iterator(); entree.increment(sansImportance)) {
        const TypeEtude* type = TrouveTypeFichier(entree->path());
        const bool calculable = type != nullptr && type->Disponible();
        if (calculable || TrouveEcranFichier(entree->path()) != nullptr) exemples.push_back(entree->path());
    }
    std::sort(exemples.begin(), exemples.end());
    return exemples;
}
