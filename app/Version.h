// The version of the program. The build file states the same one; a test holds them together.
#pragma once

inline constexpr const char* VersionProgramme = "0.3.0";
