// What keeps a capacity calculator from calculating.
#pragma once

#include "platform/Dialogues.h"

#include <string>

/// The first fault of the entries: what the box says, and the field that the focus goes to.
struct FauteSaisie {
    std::string champ; ///< name of the record's member
    std::string texte; ///< as the box shows it, put together in the working language
    Icone icone = Icone::Avertissement;
    std::string titre = {}; ///< of the box; empty for the name of the program
};
