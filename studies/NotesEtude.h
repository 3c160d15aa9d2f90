// What the user must know of a value of a study to read it right: where a rule of the machine gives less than the value
// says. One table, which the results window and the printed report read.
#pragma once

#include "core/Notes.h"
#include "studies/TypesEtude.h"

#include <span>

/// Text numbers of this room.
enum TextesEtudes {
    TexteArcDegre = 832,
    TextePenteVraie = 833,
    TexteEchelleOsc = 834,
    TexteMaximumGarde = 835,
    TexteTropCourbe = 836,
    TexteCourbureUnPoint = 837,
    TextePenteMontee = 838,
    TexteNotes = 842,
    TexteFichierSansSigne = 1001,
    TexteGaletEnArriere = 1007,
};

struct NoteValeur {
    const char* valeur;               ///< name of the remarkable value that it stands beside
    bool (*vaut)(const TypeEtude&);   ///< whether it applies to the present results
    int texte;                        ///< text number
    std::string (*suite)() = nullptr; ///< what follows the text
};

std::span<const NoteValeur> LesNotes();

/// The notes that apply to the present results of a kind of study; of several cams, those of each.
Notes NotesEnVigueur(const TypeEtude& type);
