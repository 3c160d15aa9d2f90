// Screens in tests: controls are found by their object names, keys are sent as a user's.
#pragma once

#include <QWidget>

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// The object of that name and class among `racine` and its children.
/// @throws std::logic_error with the names that exist.
QObject* ControleNomme(QObject& racine, const QString& nom, const QMetaObject& classe);

template <class T> T* Controle(QObject& racine, const char* nom) {
    return static_cast<T*>(ControleNomme(racine, QString::fromUtf8(nom), T::staticMetaObject));
}

/// Types a text over what a field holds, and presses Return.
void TapeDans(QWidget& ecran, const char* champ, const char* texte);

/// Clicks a button.
void CliqueSur(QWidget& ecran, const char* bouton);

/// Lets the event loop deliver all that is pending, deferred deletions included.
void LaisseFaire();

/// Controls whose caption does not fit into their present size, as "name: caption".
std::vector<std::string> LegendesCoupees(QWidget& ecran);

/// Loads the texts of a language out of the built database.
void ChoisitLangue(const char* langue);
