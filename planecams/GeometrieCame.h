// From the radii to the curves of a plane cam: pressure angle, the two offset profiles of the roller and their
// differences.
#pragma once

/// `Points.Rayon` to `Profil`: tangent angle, inner and outer offset curves, first and second differences.
void CalculeProfil();

/// The arm must not cross the line from the cam centre to the pivot: sets `Erreur` and says so when it does.
/// @throws ErreurExecution division by zero for a CoteA of 0.
void ControleBrasCentre();
