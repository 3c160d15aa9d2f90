#include "globoidal/CapacitesGlobiques.h"

#include "core/Nombres.h"
#include "globoidal/UnitesGlobiques.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace {

/// What a figure of 0 is replaced with where it divides.
constexpr double PresqueNul = 1e-9;

double NonNul(double figure) {
    return figure == 0.0 ? PresqueNul : figure;
}

using ColonneCapacites = std::array<double, NombreLignes>;

ColonneCapacites FiguresParcours(const CameGlobique& came, const ColonneParcours& colonne, const ReglesDuree& regles) {
    ColonneCapacites f{};
    f[FigureContact] = colonne.contact;
    f[ForceGalet] = colonne.force;
    f[ToursGalet] = colonne.tours;
    if (colonne.tours != 0.0) f[ChargeEquivalente] = Puissance(colonne.vie / colonne.tours, ExposantCharge);
    f[FigureProfondeur] = colonne.profondeur;
    const double vie = NonNul(colonne.vie), contact = NonNul(colonne.contact);
    f[B10Galet] = Divise(came.Cb * CoupleReference, Puissance(VieReference * vie / regles.parTour, ExposantCharge)) *
                  regles.facteurGalet;
    f[B10Trempee] = FacteurDuree * AdmissibleTrempee / contact * regles.facteurCame;
    f[B10Nitruree] = FacteurDuree * AdmissibleNitruree / contact * regles.facteurCame;
    f[LimiteGalet] = came.Cl * CoupleReference / NonNul(colonne.force);
    f[LimiteTrempee] = CoupleReference * AdmissibleTrempee / contact;
    f[LimiteNitruree] = CoupleReference * AdmissibleNitruree / contact;
    f[LimiteProfondeur] = AdmissibleProfondeur / NonNul(colonne.profondeur);
    return f;
}

} // namespace

TableCapacites TableVide() {
    TableCapacites table{};
    for (std::size_t ligne = B10Galet; ligne <= LimiteProfondeur; ++ligne) table[ligne].fill(GrandNombre);
    for (std::size_t k = 0; k < NombreParts; ++k) table[Inertie][k] = PartInertie(k);
    return table;
}

void AjouteParcours(const CameGlobique& came, const ParcoursGalet& parcours, const ReglesDuree& regles,
                    TableCapacites& table) {
    for (std::size_t k = 0; k < NombreParts; ++k) {
        const ColonneCapacites f = FiguresParcours(came, parcours[k], regles);
        const bool pire = f[B10Galet] < table[B10Galet][k];
        for (const auto ligne : {ToursGalet, ChargeEquivalente})
            if (regles.toursDuPire ? pire : f[ligne] > table[ligne][k]) table[ligne][k] = f[ligne];
        for (const auto ligne : {FigureContact, ForceGalet, FigureProfondeur})
            table[ligne][k] = std::max(table[ligne][k], f[ligne]);
        for (std::size_t ligne = B10Galet; ligne <= LimiteProfondeur; ++ligne)
            table[ligne][k] = std::min(table[ligne][k], f[ligne]);
    }
}

void CompleteTable(TableCapacites& table, bool arbreNulIllimite) {
    for (std::size_t k = 0; k < NombreParts; ++k) {
        const auto valeur = [&](RangCapacite ligne) { return table[ligne][k]; };
        const double arbre = valeur(LimiteArbre);
        const auto limite = [&](RangCapacite came) {
            const double deux = std::min(valeur(LimiteGalet), valeur(came));
            return arbreNulIllimite && arbre == 0.0 ? deux : std::min(deux, arbre);
        };
        // The depth is the limit between the nitrided skin and the hardened one; below the skin's own limit it is not
        // taken, and the life is that of the hardened cam: required as it stands, and told beside the values.
        const double profondeur = valeur(LimiteProfondeur);
        const RangCapacite nitruree = profondeur > valeur(LimiteTrempee)    ? LimiteTrempee
                                      : profondeur > valeur(LimiteNitruree) ? LimiteProfondeur
                                                                            : LimiteNitruree;
        table[LimiteCameTrempee][k] = limite(LimiteTrempee);
        table[LimiteCameNitruree][k] = limite(nitruree);
        table[B10CameTrempee][k] = std::min(valeur(B10Galet), valeur(B10Trempee));
        table[B10CameNitruree][k] =
            std::min(valeur(B10Galet), valeur(profondeur >= valeur(LimiteNitruree) ? B10Nitruree : B10Trempee));
    }
    for (const auto& ligne : table)
        for (const double valeur : ligne)
            if (!std::isfinite(valeur)) throw ErreurExecution(NumeroErreur::ResultatNonFini);
}

RangCapacite LigneQuiLimite(const TableCapacites& table, RangCapacite globale, std::size_t part) {
    static constexpr RangCapacite couples[] = {LimiteArbre, LimiteGalet, LimiteTrempee, LimiteProfondeur,
                                               LimiteNitruree},
                                  durees[] = {B10Galet, B10Trempee, B10Nitruree};
    const bool couple = globale == LimiteCameTrempee || globale == LimiteCameNitruree;
    for (const RangCapacite ligne :
         couple ? std::span<const RangCapacite>(couples) : std::span<const RangCapacite>(durees))
        if (table[ligne][part] == table[globale][part]) return ligne;
    return globale;
}
