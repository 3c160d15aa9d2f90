#include "outils/Ecrans.h"

#include "data/Demarrage.h"
#include "data/Textes.h"
#include "widgets/Chaines.h"
#include "widgets/DessinQt.h"
#include "widgets/ZoneDessin.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QGroupBox>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTest>

namespace {

/// Width of a list whose present entry stands whole.
int LargeurTexte(const QComboBox& liste) {
    QStyleOptionComboBox option;
    option.initFrom(&liste);
    const QSize texte = liste.fontMetrics().size(Qt::TextSingleLine, liste.currentText());
    return liste.style()->sizeFromContents(QStyle::CT_ComboBox, &option, texte, &liste).width();
}

/// The heading of a visible section that does not fit into it; empty for one that does.
QString EnTeteCoupe(const QHeaderView& entetes, int section) {
    const QString titre = entetes.model()->headerData(section, entetes.orientation()).toString();
    if (entetes.isSectionHidden(section) || entetes.orientation() == Qt::Vertical) return {};
    const QSize besoin = entetes.fontMetrics().size(0, titre);
    return besoin.width() > entetes.sectionSize(section) || besoin.height() > entetes.height() ? titre : QString();
}

/// A sheet on which every text is to stand whole.
class FeuilleSurveillee : public DessinQt {
public:
    FeuilleSurveillee(QPainter& peintre, const QRectF& cadre, const QPalette& palette)
        : DessinQt(peintre, cadre, palette) {}

    std::vector<std::string> coupes;

    void Texte(PointDessin p, const std::string& texte, Ancrage ancrage, double hauteur, Couleur) override {
        constexpr double Arrondi = 1; // pixels
        const double largeur = LargeurTexte(texte, hauteur);
        const double gauche = p.x - (ancrage == Ancrage::Gauche   ? 0
                                     : ancrage == Ancrage::Centre ? largeur / 2
                                                                  : largeur);
        if (gauche < -Arrondi || gauche + largeur > Largeur() + Arrondi || p.y < 0 || p.y > Hauteur())
            coupes.push_back(texte);
    }
};

std::vector<std::string> TextesCoupes(const ZoneDessin& zone) {
    QImage image(zone.size(), QImage::Format_RGB32);
    QPainter peintre(&image);
    peintre.setFont(zone.font());
    FeuilleSurveillee feuille(peintre, zone.rect(), zone.palette());
    zone.Redessine(feuille);
    return feuille.coupes;
}

} // namespace

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
        } else if (auto* dessin = qobject_cast<ZoneDessin*>(widget)) {
            for (const std::string& texte : TextesCoupes(*dessin)) note(widget, Q(texte));
        } else if (auto* liste = qobject_cast<QComboBox*>(widget)) {
            if (!liste->isEditable() && LargeurTexte(*liste) > place.width()) note(widget, liste->currentText());
        } else if (auto* entetes = qobject_cast<QHeaderView*>(widget); entetes && entetes->model()) {
            for (int section = 0; section < entetes->count(); ++section)
                if (const QString titre = EnTeteCoupe(*entetes, section); !titre.isEmpty()) note(widget, titre);
        }
    }
    return coupees;
}

void ChoisitLangue(const char* langue) {
    LangueTravail = langue;
    ChargeTextes(LaBase);
}
