// The limits of what a designer may enter for the zones of a cam. The screens show the text and put the focus on the
// field at fault.
#pragma once

#include "core/Etude.h"

#include <optional>
#include <string>

enum class ChampZone { Symetrie, NomLoi, AngleCame };

struct FauteZone {
    ChampZone champ;
    std::string texte;
};

/// Checks what was entered for a zone: symmetry coefficient from 0 to 1, a law of the catalogue or a custom one, and a
/// cam angle above 0.
std::optional<FauteZone> ChercheFauteZone(const Zone& zone);

/// Greatest magnitude of a number that is typed in for a cam: far beyond any machine, and far below where a
/// calculation with it would overflow. Its refusal says this number.
inline constexpr double LimiteNombre = 1e9;

/// The name of the custom law of a percentage: the row's name, "_" and the number as `Str` writes it. None outside 1
/// to 99.
std::optional<std::string> NomLoiPersonnelle(double pourcentage);

/// Points per degree that a study may have.
inline constexpr std::int16_t PointsParDegrePermis[] = {1, 2, 4, 5, 8, 10};

/// True for exactly the text of one of `PointsParDegrePermis`.
bool EstPointsParDegre(const std::string& texte);

/// Text number of what is wrong with the points that the zones make: more than a 16-bit subscript reaches, a last zone
/// that does not end on a point, or no point behind the first. 0 when nothing is.
int FautePoints(std::int16_t pointsParDegre);
