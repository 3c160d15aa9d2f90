// The user's own database and configuration, where the program works in a folder that it cannot write to.
#pragma once

#include <filesystem>

/// Makes the folder of the user ready to work in: the delivered configuration where he has none, and the delivered
/// database, or what a later delivery brings for the one that he has. His languages and the rows that he added to the
/// catalogues stay. A run that is killed leaves a folder that the next one makes ready.
/// @throws ErreurExecution access refused; disk full; unreadable database; database in use by another program.
void PrepareDossierUtilisateur();

/// What a reader reads: the files of the user, his database brought up to the delivered one first; the delivered ones
/// while he has none.
/// @throws ErreurExecution as `PrepareDossierUtilisateur`.
std::filesystem::path BaseALire();
std::filesystem::path ConfigurationALire();

/// Brings the database `chemin` up to the delivered one `livree`, in one transaction; makes it where there is none, and
/// leaves it where it is of the same version.
/// The delivered texts and laws are those of the program: their fields take its values. What the user added stays:
/// fields, records, and in the catalogues the values of any record that stands there.
/// @throws ErreurExecution as `PrepareDossierUtilisateur`.
void MetAJourBase(const std::filesystem::path& livree, const std::filesystem::path& chemin);
