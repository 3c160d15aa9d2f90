// What the user must know of a value of a law study to read it right.
#pragma once

#include "core/Notes.h"
#include "laws/EtudesLois.h"

/// The notes that apply to the results of a study, under the controls of its values.
Notes NotesEtudeLoi(const EtudeLoi& loi, const ResultatLoi& resultat);
