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

/// The values that are per unit of the rise. Those that bear a unit are multiplied by that ratio as often as they
/// count time.
struct NoteLoi {
    const char* valeur;
    int texte;
    int puissance = 0;
};
constexpr NoteLoi notes[] = {
    {"CoefAccel", TexteParMontee},
    {"CoefVitesse", TexteParMontee},
    {"VitesseMaxi", TexteEchelleMontee, 1},
    {"AccelerationMaxi", TexteEchelleMontee, 2},
};

} // namespace

Notes NotesEtudeLoi(const EtudeLoi& loi, const ResultatLoi& resultat) {
    Notes enVigueur;
    const double rapport = PartMontee(loi.ecran);
    if (rapport == 1.0) return enVigueur;
    for (const NoteLoi& note : notes)
        for (const ValeurLoi& valeur : loi.valeurs) {
            if (valeur.controle != std::string_view(note.valeur)) continue;
            std::string texte = Texte(note.texte);
            if (note.puissance > 0) {
                const double facteur = note.puissance == 1 ? rapport : rapport * rapport;
                texte += " " + Format(resultat.*valeur.membre * facteur, valeur.masque) + " " +
                         Texte(UniteLoi(valeur.grandeur));
            }
            enVigueur.Ajoute(note.valeur, texte);
        }
    return enVigueur;
}
