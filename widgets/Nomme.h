// Control names: every control bears the name that the system gives it, so that tests and captions find it.
#pragma once

#include <QLabel>

template <class T> T* Nomme(T* controle, const char* nom) {
    controle->setObjectName(QString::fromLatin1(nom));
    return controle;
}

/// A label whose text comes from a table of captions; `champ` gets the focus by its accelerator.
inline QLabel* FaitEtiquette(const char* nom, QWidget* champ = nullptr) {
    auto* etiquette = Nomme(new QLabel, nom);
    etiquette->setBuddy(champ);
    return etiquette;
}
