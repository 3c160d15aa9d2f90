#include "outils/Ecrans.h"

#include "data/Demarrage.h"
#include "studies/FichierEtude.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QTabBar>

#include <sstream>

QObject* ControleNomme(QObject& racine, const QString& nom, const QMetaObject& classe) {
    QList<QObject*> tous = racine.findChildren<QObject*>();
    tous.prepend(&racine);
    QStringList noms;
    for (QObject* objet : tous) {
        if (objet->objectName() == nom && classe.cast(objet)) return objet;
        if (!objet->objectName().isEmpty() && !objet->objectName().startsWith(QLatin1String("qt_")))
            noms << objet->objectName();
    }
    noms.removeDuplicates();
    noms.sort();
    throw std::logic_error("no " + std::string(classe.className()) + " named " + S(nom) +
                           " among: " + S(noms.join(' ')));
}

void LaisseFaire() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void TapeDans(QWidget& ecran, const char* champ, const char* texte) {
    auto* saisie = Controle<QLineEdit>(ecran, champ);
    saisie->setFocus();
    saisie->selectAll();
    QTest::keyClicks(saisie, texte);
    QTest::keyClick(saisie, Qt::Key_Return);
    LaisseFaire();
}

void TapeTout(QWidget& ecran, const Saisies& saisies) {
    for (const auto& [champ, texte] : saisies) TapeDans(ecran, champ, texte);
}

void TapeLigne(QWidget& ecran, const std::string& saisies) {
    std::istringstream flux(saisies);
    std::string champ, texte;
    while (std::getline(flux >> std::ws, champ, '=') && flux >> texte) TapeDans(ecran, champ.c_str(), texte.c_str());
}

void CliqueSur(QWidget& ecran, const char* bouton) {
    QTest::mouseClick(Controle<QAbstractButton>(ecran, bouton), Qt::LeftButton);
    LaisseFaire();
}

std::vector<std::string> LegendesCoupees(QWidget& ecran) {
    std::vector<std::string> coupees;
    const auto note = [&coupees](const QWidget* widget, const QString& legende) {
        coupees.push_back(S(widget->objectName() + ": " + legende));
    };
    for (QWidget* widget : ecran.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&ecran)) continue;
        const QSize place = widget->size();
        if (auto* etiquette = qobject_cast<QLabel*>(widget)) {
            const QSize besoin = etiquette->wordWrap() ? QSize(0, etiquette->heightForWidth(place.width()))
                                                       : etiquette->minimumSizeHint();
            if (!etiquette->text().isEmpty() && (besoin.width() > place.width() || besoin.height() > place.height()))
                note(widget, etiquette->text());
        } else if (auto* bouton = qobject_cast<QAbstractButton*>(widget); bouton && !bouton->text().isEmpty()) {
            if (bouton->minimumSizeHint().width() > place.width()) note(widget, bouton->text());
        } else if (auto* groupe = qobject_cast<QGroupBox*>(widget)) {
            if (groupe->fontMetrics().horizontalAdvance(groupe->title()) > place.width()) note(widget, groupe->title());
        } else if (auto* onglets = qobject_cast<QTabBar*>(widget)) {
            if (onglets->sizeHint().width() > place.width()) note(widget, onglets->tabText(0));
        }
    }
    return coupees;
}

void ChoisitLangue(const char* langue) {
    LangueTravail = langue;
    ChargeTextes(LaBase);
}

std::filesystem::path Exemple(const std::string& nom) {
    return CheminAppli / NomDossierEtudes / nom;
}

void CalculeExemple(const char* nom) {
    ASSERT_TRUE(LitFichierEtude(Exemple(nom))) << nom;
    CalculeEtude();
    ASSERT_TRUE(SansErreur()) << nom;
}
