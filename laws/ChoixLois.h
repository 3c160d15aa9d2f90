// The laws as the two choosers and the tool bar offer them: one row a picture.
#pragma once

#include "core/Etude.h"

#include <span>
#include <string>
#include <string_view>

struct ChoixLoi {
    const char* chooser; ///< "QuelLoi" or "QuelLoiSpe"
    const char* image;   ///< control name of its picture
    const char* cle;     ///< key of its entry in the tool bar
    const char* loi;     ///< `LoiChoisie` it sets; none leaves it as it is
    const char* ecran;   ///< study screen it opens
    int texte;           ///< text number of its name
    int famille;         ///< text number of the family, which begins the caption of `LoiMouv`; 0 for another study
    const char* part;    ///< what stands between family and "at constant speed"; none for a law without that part
    /// Coefficients shown with the picture: fixed texts, not those of the catalogue. Empty where there are none.
    const char *coefAccel, *coefVitesse;
};

/// All pictures, in the order in which they are shown.
std::span<const ChoixLoi> LesChoixLois();

/// The row of a tool bar key; none for an unknown one.
const ChoixLoi* TrouveChoixLoi(std::string_view cle);

/// Text number of the name of a law by its key, that of a law file included; 0 when no picture has it.
int TexteLoi(std::string_view loi);

/// Caption of the study of `LoiChoisie`; the key itself when no picture has it.
std::string TitreLoiChoisie();

/// The unit law of a picture, 0..`pas`, from the catalogue or from typical inputs.
/// @param catalogue rows of the table `Lois`, from 1
Tableau<PointLoi> TableChoix(const ChoixLoi& choix, const Tableau<Loi>& catalogue, long pas);
