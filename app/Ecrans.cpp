#include "app/Ecrans.h"

#include "cylindrical/screens/DoCyl.h"
#include "cylindrical/screens/DoCylOsc.h"
#include "laws/screens/EcranLoi.h"
#include "planecams/screens/DatoCama.h"
#include "planecams/screens/DoProfil.h"
#include "studies/screens/Resultat.h"
#include "widgets/Chaines.h"

#include <algorithm>

namespace {

/// A data screen, which calculates a study and is given up.
template <class Ecran> QWidget* CreeSaisie(const char*, const DemandesEcran& demandes) {
    auto* ecran = new Ecran;
    QObject::connect(ecran, &Ecran::EtudeCalculee, ecran, demandes.etudeCalculee);
    QObject::connect(ecran, &Ecran::Quitte, ecran, demandes.quitte);
    return ecran;
}

QWidget* CreeResultat(const char*, const DemandesEcran& demandes) {
    auto* ecran = new Resultat;
    QObject::connect(ecran, &Resultat::EtudeRecalculee, ecran, demandes.etudeRecalculee);
    QObject::connect(ecran, &Resultat::Quitte, ecran, demandes.quitte);
    return ecran;
}

QWidget* CreeLoi(const char* nom, const DemandesEcran& demandes) {
    auto* ecran = new EcranLoi(*TrouveEtudeLoi(nom));
    QObject::connect(ecran, &EcranLoi::LoiCalculee, ecran, demandes.etudeRecalculee);
    QObject::connect(ecran, &EcranLoi::LoiEnregistree, ecran,
                     [enregistre = demandes.fichierEnregistre](const QString& fichier) { enregistre(S(fichier)); });
    QObject::connect(ecran, &EcranLoi::ImpressionDemandee, ecran, demandes.imprime);
    QObject::connect(ecran, &EcranLoi::Quitte, ecran, demandes.quitte);
    return ecran;
}

constexpr EcranEnfant LesEcrans[] = {
    {"DatoCama", "Retour", CreeSaisie<DatoCama>},
    {"DoProfil", "Retour", CreeSaisie<DoProfil>},
    {"DoCyl", "Retour", CreeSaisie<DoCyl>},
    {"DoCylOsc", "Retour", CreeSaisie<DoCylOsc>},
    {"Resultat", "Quitter", CreeResultat},
    {"LoiMouv", "Retour", CreeLoi},
    {"LoiHes", "Retour", CreeLoi},
    {"LoiSpe", "Retour", CreeLoi},
    {"LoisLiq", "Retour", CreeLoi},
    {"LoiMSHDis", "Retour", CreeLoi},
};

} // namespace

const EcranEnfant* TrouveEcran(std::string_view nom) {
    const auto ecran =
        std::find_if(std::begin(LesEcrans), std::end(LesEcrans), [nom](const EcranEnfant& e) { return nom == e.nom; });
    return ecran == std::end(LesEcrans) ? nullptr : ecran;
}
