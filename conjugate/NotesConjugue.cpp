#include "conjugate/NotesConjugue.h"

#include "conjugate/InertiePropre.h"
#include "conjugate/Notes.h"
#include "conjugate/TextesConjugue.h"
#include "data/Textes.h"

#include <algorithm>
#include <iterator>

namespace {

/// Nothing is checked before: the formulas take numbers that no mechanism has.
bool SansMecanisme(const DonneesConjugue& d) {
    const double grandeurs[] = {d.Q,    d.R,   static_cast<double>(d.M), d.N, d.loi.A, d.Ipm, d.D, d.F, d.B10,
                                d.CLim, d.VMax};
    return *std::min_element(std::begin(grandeurs), std::end(grandeurs)) < 0 || d.loi.W < 0 || d.loi.W > 1;
}

void NoteCourbures(const DonneesConjugue& d, const Courbures& courbures, std::vector<std::string>& notes) {
    if (courbures.RayonMaxi < courbures.RayonMini) {
        Note(notes, Texte(TexteNoteAucunePiste));
        return;
    }
    Note(notes, Texte(TexteNoteCourbure));
    if (courbures.RayonMini < 0) Note(notes, Texte(TexteNoteRayonNegatif));
    if (courbures.PMin == d.Q + d.R) Note(notes, Texte(TexteNotePMin));
}

void NoteTableau(const DonneesConjugue& d, std::vector<std::string>& notes) {
    const double J = InertieRoue(d.Q, d.M, d.R);
    const double K = CoefficientAcceleration(d.N, AngleInertie(d.N, d.loi.A));
    Note(notes, Texte(J == 0 || K == 0 ? TexteNoteInertieInconnue : TexteNoteColonnePropre));
    if (J == InertieRoue(125, 8, 56) && d.Q == 125) Note(notes, Texte(TexteNoteInertie125));
}

} // namespace

void NoteReserves(ResultatConjugue& resultat) {
    auto& notes = resultat.notes;
    // A stop without a box is told here.
    if (!resultat.arret && !resultat.motif.empty()) Note(notes, resultat.motif);
    if (!resultat.donnees) return;
    const DonneesConjugue& d = *resultat.donnees;
    if (SansMecanisme(d)) Note(notes, Texte(TexteNoteDonnees));
    Note(notes, Texte(d.loi.Cvu < 2 ? TexteNoteMS : TexteNoteMT));
    Note(notes, Texte(TexteNoteLooping));
    if (d.N > 5) Note(notes, Texte(TexteNoteStops));
    if (resultat.courbures) NoteCourbures(d, *resultat.courbures, notes);
    if (resultat.capacite) Note(notes, Texte(TexteNoteLimitesDynamiques));
    if (!resultat.tableau.empty()) NoteTableau(d, notes);
}
