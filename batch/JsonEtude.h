// What the batch companion prints of the study record, as JSON. Members stand in the order of their tables, under the
// names of the record.
#pragma once

#include "batch/DialoguesCollecte.h"
#include "core/Etude.h"
#include "studies/TypesEtude.h"

#include <nlohmann/json.hpp>

#include <iosfwd>

using Json = nlohmann::ordered_json;

/// The scalars that a kind of study uses: those of its file, the number of zones and the points per degree.
Json JsonDonnees(const TypeEtude& type);
/// The zones 0..`NombreZones`, one object each.
Json JsonZones();
/// The summary values.
/// @param calcule false where there is no result: every value is null
Json JsonResume(bool calcule);
/// A unit law or the motion: the arrays `Course`, `Vitesse`, `Accel`.
Json JsonLoi(const Tableau<PointLoi>& table);
/// The point tables, one array a field.
Json JsonPoints();
Json JsonProfil();
/// The boxes, in order: `icone` and `texte`.
Json JsonMessages(const DialoguesCollecte& dialogues);

/// Writes `json` on one line. A number has the fewest digits that read back to the same double; what is not finite is
/// null; bytes that are not UTF-8 become the replacement character.
void EcritJson(std::ostream& sortie, const Json& json);
