#include "app/PageAccueil.h"

#include "app/CameType.h"
#include "app/TextesApp.h"
#include "data/Demarrage.h"
#include "studies/TypesEtude.h"
#include "widgets/BoutonImage.h"
#include "widgets/Chaines.h"
#include "widgets/Nomme.h"

#include <QAction>
#include <QBoxLayout>
#include <QGridLayout>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr QSize TailleImage(172, 116);
constexpr int Colonnes = 4;
constexpr int EcartColonnes = 32; // pixels
constexpr int TexteNouvelleEtude = 80;

QLabel* FaitTitre(const QString& texte) {
    auto* titre = new QLabel(texte);
    QFont gras = titre->font();
    gras.setBold(true);
    titre->setFont(gras);
    return titre;
}

/// A line that is a button.
QPushButton* FaitLien(const QString& texte, const QString& indication) {
    auto* lien = new QPushButton(texte);
    lien->setFlat(true);
    lien->setAutoDefault(true);
    lien->setStyleSheet(QStringLiteral("QPushButton { text-align: left; }"));
    lien->setToolTip(indication);
    return lien;
}

} // namespace

PageAccueil::PageAccueil(QWidget* parent) : QScrollArea(parent) {
    setObjectName(QStringLiteral("Accueil"));
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
}

void PageAccueil::Remplit(const std::vector<std::filesystem::path>& exemples,
                          const std::vector<std::filesystem::path>& recents, const std::vector<QAction*>& actions) {
    auto* contenu = new QWidget;
    auto* rangee = new QHBoxLayout;
    rangee->setSpacing(EcartColonnes);
    rangee->addStretch();
    rangee->addWidget(FaitEtudes(), 0, Qt::AlignTop);
    rangee->addWidget(FaitFichiers(exemples, recents, actions), 0, Qt::AlignTop);
    rangee->addStretch();
    auto* disposition = new QVBoxLayout(contenu);
    disposition->addStretch();
    disposition->addLayout(rangee);
    disposition->addStretch();
    // What is replaced may be where the request comes from.
    if (QWidget* ancien = takeWidget()) ancien->deleteLater();
    setWidget(contenu);
}

QWidget* PageAccueil::FaitEtudes() {
    auto* etudes = new QWidget;
    auto* grille = new QGridLayout(etudes);
    grille->setContentsMargins({});
    grille->addWidget(FaitTitre(QTexte(TexteNouvelleEtude)), 0, 0, 1, Colonnes);
    int place = 0;
    for (const ChoixEtude& choix : LesChoixEtude()) {
        auto* image = new BoutonImage(choix.dessine, TailleImage);
        image->setObjectName(QStringLiteral("Accueil") + QString::fromLatin1(choix.image));
        image->setText(QTexte(choix.Texte()));
        image->setEnabled(choix.Disponible());
        connect(image, &BoutonImage::clicked, this, [this, &choix] { emit EtudeChoisie(choix); });
        grille->addWidget(image, 1 + place / Colonnes, place % Colonnes);
        ++place;
    }
    return etudes;
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
        auto* lien = FaitLien(action->text(), action->shortcut().toString(QKeySequence::NativeText));
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
    colonne.addWidget(FaitTitre(QTexte(titre).remove('&')));
    for (const std::filesystem::path& chemin : fichiers) {
        auto* lien = FaitLien(QChemin(chemin.filename()).replace('&', QLatin1String("&&")), QChemin(chemin));
        lien->setObjectName(QString::fromLatin1(nom));
        connect(lien, &QPushButton::clicked, this, [this, chemin] { emit FichierChoisi(chemin); });
        colonne.addWidget(lien);
    }
}

std::vector<std::filesystem::path> LesExemples() {
    std::vector<std::filesystem::path> exemples;
    std::error_code sansImportance; // a folder that is gone has no examples
    for (const auto& entree : std::filesystem::directory_iterator(CheminAppli / NomDossierEtudes, sansImportance)) {
        const TypeEtude* type = TrouveTypeFichier(entree.path());
        if (type != nullptr && type->Disponible()) exemples.push_back(entree.path());
    }
    std::sort(exemples.begin(), exemples.end());
    return exemples;
}
