// Screens in tests: controls are found by their object names, keys are sent as a user's.
#pragma once

#include "data/Textes.h"
#include "widgets/Chaines.h"

#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

/// The object of that name and class among `racine` and its children.
/// @throws std::logic_error with the names that exist.
QObject* ControleNomme(QObject& racine, const QString& nom, const QMetaObject& classe);

template <class T> T* Controle(QObject& racine, const char* nom) {
    return static_cast<T*>(ControleNomme(racine, QString::fromUtf8(nom), T::staticMetaObject));
}

/// Types a text over what a field holds, and presses Return.
void TapeDans(QWidget& ecran, const char* champ, const char* texte);

/// Texts for fields, by the names of the fields.
using Saisies = std::vector<std::pair<const char*, const char*>>;

/// Types into one field after the other.
void TapeTout(QWidget& ecran, const Saisies& saisies);

/// The same for texts without blanks, as "Text1=80 Text2=30,5".
void TapeLigne(QWidget& ecran, const std::string& saisies);

/// Clicks a button.
void CliqueSur(QWidget& ecran, const char* bouton);

/// Lets the event loop deliver all that is pending, deferred deletions included.
void LaisseFaire();

/// Controls whose caption does not fit into their present size, as "name: caption".
std::vector<std::string> LegendesCoupees(QWidget& ecran);

/// Loads the texts of a language out of the built database.
void ChoisitLangue(const char* langue);

/// A study that is delivered with the program.
std::filesystem::path Exemple(const std::string& nom);

/// Reads one of them into the record and calculates it.
void CalculeExemple(const char* nom);
