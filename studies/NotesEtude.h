// What the user must know of a value of a study to read it right: where a rule of the machine gives less than the value
// says. One table, which the results window and the printed report read.
#pragma once

#include "core/Notes.h"
#include "studies/TypesEtude.h"

/// Text numbers of this room.
enum TextesEtudes {
    TexteArcDegre = 807,
    TextePenteVraie = 808,
    TexteEchelleOsc = 809,
    TexteMaximumGarde = 810,
    TexteTropCourbe = 811,
    TexteCourbureUnPoint = 812,
    TextePenteMontee = 813,
    TexteNotes = 817,
};

struct NoteValeur {
    const char* valeur;               ///< name of the remarkable value that it stands beside
    bool (*vaut)(const TypeEtude&);   ///< whether it applies to the present results
    int texte;                        ///< text number
    std::string (*suite)() = nullptr; ///< what follows the text
};

std::span<const NoteValeur> LesNotes();

/// The notes that apply to the present results of a kind of study.
Notes NotesEnVigueur(const TypeEtude& type);
