#include "laws/NotesLoi.h"

#include "data/Textes.h"
#include "laws/TextesLois.h"

#include <string_view>

namespace {

/// How much longer the whole motion lasts than its rise; 1 for a law that does not return.
double PartMontee(std::string_view ecran) {
    if (ecran == "LoiMSHDis") // its angles were let through
        return (etude.donnees.AngleMontee + etude.donnees.AngleDescente) / etude.donnees.AngleMontee;
    return ecran == "LoiMouv" && LoiChoisieMSH() ? 2.0 : 1.0;
}

/// The note beside a value of the study.
/// @param facteur what the value is multiplied by where the text ends in another one; 0 where it does not
void Note(const EtudeLoi& loi, const ResultatLoi& resultat, const char* nom, int texte, double facteur, Notes& notes) {
    for (const ValeurLoi& valeur : loi.valeurs) {
        if (valeur.controle != std::string_view(nom)) continue;
        std::string note = Texte(texte);
        if (facteur != 0.0) {
            note += " " + Format(resultat.*valeur.membre * facteur, valeur.masque);
            if (const int unite = UniteLoi(valeur.grandeur)) note += " " + Texte(unite);
        }
        notes.Ajoute(nom, note);
    }
}

/// The values of a motion that returns are per unit of its rise. Those that bear a unit are multiplied by that ratio as
/// often as they count time.
void NoteRetour(const EtudeLoi& loi, const ResultatLoi& resultat, Notes& notes) {
    const double rapport = PartMontee(loi.ecran);
    if (rapport == 1.0) return;
    Note(loi, resultat, "CoefAccel", TexteParMontee, 0, notes);
    Note(loi, resultat, "CoefVitesse", TexteParMontee, 0, notes);
    Note(loi, resultat, "VitesseMaxi", TexteEchelleMontee, rapport, notes);
    Note(loi, resultat, "AccelerationMaxi", TexteEchelleMontee, rapport * rapport, notes);
}

/// Both coefficients are shown times 0.5 / S: that of the speed does not depend on S, and past 0.5 the deceleration has
/// the larger one.
void NoteSymetrie(const EtudeLoi& loi, const ResultatLoi& resultat, Notes& notes) {
    const double S = etude.donnees.SymetrieLoi;
    if (loi.ecran != std::string_view("LoiMouv") || LoiChoisieMSH() || S == 0.5) return;
    Note(loi, resultat, "CoefVitesse", TexteSymetrieVitesse, 2.0 * S, notes);
    if (S > 0.5 && S < 1.0) Note(loi, resultat, "CoefAccel", TexteSymetrieAccel, S / (1.0 - S), notes);
}

} // namespace

Notes NotesEtudeLoi(const EtudeLoi& loi, const ResultatLoi& resultat) {
    Notes notes;
    NoteRetour(loi, resultat, notes);
    NoteSymetrie(loi, resultat, notes);
    return notes;
}
