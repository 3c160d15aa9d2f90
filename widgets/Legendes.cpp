#include "widgets/Legendes.h"

#include "widgets/Chaines.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QTabWidget>
#include <QToolBar>

#include <stdexcept>

namespace {

QObject* Trouve(QWidget& ecran, const Legende& legende) {
    const QString nom = QString::fromUtf8(legende.controle);
    if (ecran.objectName() == nom) return &ecran;
    const QList<QObject*> tous = ecran.findChildren<QObject*>(nom);
    if (tous.size() == 1) return tous.front(); // the index is that of a tab
    return tous.value(legende.indice, nullptr);
}

[[noreturn]] void Refuse(QWidget& ecran, const Legende& legende) {
    QStringList noms;
    for (const QObject* enfant : ecran.findChildren<QObject*>())
        if (!enfant->objectName().isEmpty() && !enfant->objectName().startsWith(QLatin1String("qt_")))
            noms << enfant->objectName();
    noms.removeDuplicates();
    noms.sort();
    throw std::logic_error(std::string("no caption for ") + legende.controle + " (" + std::to_string(legende.indice) +
                           ") on " + S(ecran.objectName()) + ": " + S(noms.join(' ')));
}

bool Applique(QWidget& ecran, QObject* objet, const Legende& legende) {
    const QString texte = QTexte(legende.numero);
    if (objet == &ecran)
        ecran.setWindowTitle(texte);
    else if (auto* onglets = qobject_cast<QTabWidget*>(objet); onglets && legende.indice < onglets->count())
        onglets->setTabText(legende.indice, texte);
    else if (auto* etiquette = qobject_cast<QLabel*>(objet))
        etiquette->setText(texte);
    else if (auto* bouton = qobject_cast<QAbstractButton*>(objet))
        bouton->setText(texte);
    else if (auto* groupe = qobject_cast<QGroupBox*>(objet))
        groupe->setTitle(texte);
    else if (auto* menu = qobject_cast<QMenu*>(objet))
        menu->setTitle(texte);
    else if (auto* barre = qobject_cast<QToolBar*>(objet))
        barre->setWindowTitle(texte);
    else if (auto* action = qobject_cast<QAction*>(objet))
        action->setText(texte);
    else
        return false;
    return true;
}

} // namespace

void AppliqueLegendes(QWidget& ecran, std::span<const Legende> legendes) {
    for (const Legende& legende : legendes) {
        QObject* objet = Trouve(ecran, legende);
        if (!objet || !Applique(ecran, objet, legende)) Refuse(ecran, legende);
    }
}
