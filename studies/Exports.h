// What a calculated study writes for other programs: a point file, and script files that draw both profiles when a
// drawing system replays them.
#pragma once

#include <functional>
#include <string>
#include <vector>

/// The point file (.Pnt): the roller radius, then cam angle and radius of every point; of several cams one after the
/// other.
std::string ComposeFichierPoints();

/// The scripts (.Scr) of the outer and of the inner profile, turned by `AngleRotation`. The commands are those of a
/// French drawing system and are not translated; an empty line ends a command.
std::string ComposeScriptExterieur();
std::string ComposeScriptInterieur();

/// A script file of the present study.
struct FichierScript {
    std::string suite; ///< behind the name of the study
    int titre;         ///< text number of the title of its dialogue
    std::function<std::string()> compose;
};

/// Both profiles of a single cam; of several the inner profile of each, with all the arms.
std::vector<FichierScript> LesScripts();

/// Ask for a path and write there, whole or not at all; a cancelled dialogue writes nothing. The scripts are written
/// together.
/// @throws ErreurExecution disk full, access refused, input/output; the old file is as it was.
void FichiersPoints();
void FichiersScripts();
