// The report of the remarkable values: extremes of the calculation with the cam angles at which they occur.
#include "data/Unites.h"
#include "planecams/GeometrieCame.h"
#include "reports/CadrePages.h"
#include "studies/RapportsCames.h"
#include "studies/RapportsCamesLignes.h"

#include <algorithm>
#include <vector>

namespace {

template <double Etude::*membre> double De() {
    return etude.*membre;
}

bool ABras(const TypeEtude& type) {
    return type.valeurDepart == &Zone::AngleDepart;
}
bool AMasseBras(const TypeEtude& type) {
    return AChamp(type, "MasseBrasO1A");
}
bool ACoupleConstant(const TypeEtude& type) {
    return AChamp(type, "CoupleConstantO1");
}

struct LigneRemarquable {
    int groupe; ///< text number of the caption that it stands under
    int texte;
    double (*valeur)();
    const char* masque;
    const char* unite; ///< none where the unit is text `texteUnite`
    int texteUnite = 0;
    std::int16_t Etude::*angle = nullptr;
    bool (*pour)(const TypeEtude&) = nullptr; ///< kinds of study that have it; all when there is none
    const char* suite = "";
};

constexpr const char* M3 = "###.###";
constexpr const char* M2 = "###.##";
constexpr const char* M2Court = "##.##";
constexpr const char* M2Force = "####.##";
constexpr const char* MInertie = "##.#####";
constexpr int Came = 147, Galet = 289, Bras = 217;

const LigneRemarquable lesValeurs[] = {
    {Came, 220, De<&Etude::RayonMin>, M3, "(mm) : "},
    {Came, 221, De<&Etude::RayonMax>, M3, "(mm) : "},
    {Came, 222, De<&Etude::RayonCourbureMin>, M2Court, "(mm) : "},
    {Came, 223, PenteMaxi, M2Court, nullptr, UniteDegres},
    {Came, 232, De<&Etude::CoupleMax>, M2, "(Nm) : ", 0, &Etude::CoupleMaxAngle},
    {Came, 705, De<&Etude::CoupleDemarrage>, M2, "(Nm) : ", 0, nullptr, ACoupleConstant, " 0.25 sec"},
    {Came, 234, De<&Etude::MasseCame>, M2Court, "(Kg) : "},
    {Came, 233, De<&Etude::InertieCame>, MInertie, "(Kgm²) : "},
    {Galet, 225, De<&Etude::VitesseRayonMax>, M2, "(m/sec) : ", 0, &Etude::VitesseRayonMaxAngle},
    {Galet, 226, De<&Etude::AccelRayonMax>, M2, "(m/sec²) : ", 0, &Etude::AccelRayonMaxAngle},
    {Galet, 229, De<&Etude::VitesseGaletMoyenne>, M2, nullptr, UniteTours},
    {Galet, 230, De<&Etude::VitesseGaletMax>, M2, nullptr, UniteTours},
    {Galet, 231, De<&Etude::ForceGaletMax>, M2Force, "(N) : ", 0, &Etude::ForceGaletMaxAngle},
    {Bras, 237, De<&Etude::LoiCourseMax>, M2, nullptr, UniteDegres, nullptr, ABras},
    {Bras, 225, De<&Etude::LoiVitesseMax>, M2, "(rad/sec) : ", 0, &Etude::LoiVitesseMaxAngle, ABras},
    {Bras, 226, De<&Etude::LoiAccelMax>, M2, "(rad/sec²): ", 0, &Etude::LoiAccelMaxAngle, ABras},
    {Bras, 235, De<&Etude::InertieBras>, MInertie, "(Kgm²) : ", 0, nullptr, AMasseBras},
    {Bras, 236, De<&Etude::InertieMasseA>, MInertie, "(Kgm²) : ", 0, nullptr, AMasseBras},
};

std::string ComposeLigne(const LigneRemarquable& ligne) {
    std::string valeur = Format(ligne.valeur(), ligne.masque) + ligne.suite;
    if (ligne.angle != nullptr) {
        // Whole degrees; the last digit always shows, so that a maximum at the start of the cam has its 0.
        constexpr int largeurValeur = 8;
        valeur += Espaces(std::max(1, largeurValeur - NombreCaracteres(valeur))) + Texte(227) + " " +
                  Format(etude.*ligne.angle, "##0") + "°";
    }
    return LigneValeur(Texte(ligne.texte), ligne.unite != nullptr ? ligne.unite : UniteTexte(ligne.texteUnite), valeur);
}

} // namespace

void ImprimePointsRemarquables() {
    const TypeEtude* type = TrouveType(etude.TypeCame);
    if (type == nullptr) throw ErreurExecution(NumeroErreur::AppelIncorrect, etude.TypeCame);
    std::vector<LigneRapport> lignes;
    int groupe = 0;
    for (const LigneRemarquable& ligne : lesValeurs) {
        if (ligne.pour != nullptr && !ligne.pour(*type)) continue;
        if (ligne.groupe != groupe) {
            if (groupe != 0) lignes.push_back({});
            lignes.push_back({Texte(ligne.groupe), true});
            groupe = ligne.groupe;
        }
        lignes.push_back({ComposeLigne(ligne)});
    }
    ImprimeRapportLignes(Texte(TitreRemarquables), lignes);
}
