// The remarkable values of a calculation, as the results window and the printed report show them: what each is called,
// how it is written, where its extreme stands, and which kinds of study have it.
#pragma once

#include "studies/TypesEtude.h"

#include <span>
#include <string>

/// Text number of the group that a value stands in.
enum GroupeValeurs { GroupeCame = 147, GroupeGalet = 289, GroupeBras = 217 };

struct ValeurRemarquable {
    GroupeValeurs groupe;
    const char* nom;                ///< control name
    int (*texte)(const TypeEtude&); ///< text number of the caption; 0 for a kind of study that does not have the value
    double (*valeur)();
    const char* masque; ///< on the screen
    int unite;          ///< text number
    const char* masqueRapport;
    const char* uniteRapport;           ///< on paper, the same in every language; none where it is that of the screen
    std::int16_t (*repere)() = nullptr; ///< where the extreme stands
    int texteRapport = 0;               ///< caption on paper, where it is another
    const char* suiteRapport = "";      ///< what follows the value on paper
};

std::span<const ValeurRemarquable> LesValeursRemarquables();

/// A remarkable value by a mask of its own; "-" for a smallest radius of curvature where nothing is curved.
std::string EcritValeur(const ValeurRemarquable& valeur, const char* masque);
