#include "studies/NotesEtude.h"

#include "cams/Courbure.h"
#include "cams/Pente.h"
#include "conjugate/LimitesPaire.h"
#include "data/Textes.h"
#include "data/TextesSaisie.h"
#include "data/Unites.h"
#include "studies/ValeursRemarquables.h"

#include <algorithm>

namespace {

// ---- maxima that go on growing

/// Kept from an earlier calculation: those of a cylindrical cam begin anew.
template <auto membre> bool Garde(const TypeEtude& type) {
    return !type.developpee && etude.resultats.MaximaPropres.*membre < etude.durables.*membre;
}

template <auto membre, int unite> std::string EcritPropre() {
    return " " + Format(etude.resultats.MaximaPropres.*membre, "##0.##") + " " + Texte(unite);
}

// ---- a roller that turns backwards

/// Its fastest speed that way, Tr/min, below 0: the maximum follows the speeds with their signs.
double VitesseArriere() {
    double vitesse = 0;
    for (const Point& p : etude.resultats.Points) vitesse = std::min(vitesse, p.VitesseGalet);
    return vitesse;
}

bool GaletEnArriere(const TypeEtude& type) {
    return !type.developpee && -VitesseArriere() > etude.resultats.MaximaPropres.VitesseGaletMax;
}

std::string EcritVitesseArriere() {
    return " " + Format(VitesseArriere(), "##0.##") + " " + Texte(UniteTours);
}

// ---- slopes

bool ParDegre(const TypeEtude& type) {
    return type.developpee && etude.donnees.PointsParDegre > 1 && etude.resultats.AngleTangentMax != 0.0;
}

/// Steepest slope of a plane cam where its radius grows, degrees, below 0: the largest tangent angle is one of the
/// other sign.
double PenteMontee() {
    double pente = 0;
    for (const PointProfil& p : etude.resultats.Profil) pente = std::min(pente, Pente(p.AngleTangent));
    return pente;
}

/// Steeper by what can be read at all.
bool MonteePlusForte(const TypeEtude& type) {
    constexpr double ecart = 0.005;
    return !type.developpee && -PenteMontee() > PenteMaxi() + ecart;
}

std::string EcritPenteMontee() {
    return " " + Format(PenteMontee(), "##0.##") + "°";
}

// ---- oscillating arm of a cylindrical cam

bool MouvementOsc(const TypeEtude& type) {
    return type.developpee && type.Bras() && etude.durables.LoiVitesseMax > 0.0;
}

// ---- curvature

bool CourbureUnPoint(const TypeEtude& type) {
    return !type.developpee && etude.donnees.PointsParDegre > 1;
}

bool TropCourbee(const TypeEtude&) {
    return !PlagesTropCourbees().empty();
}

std::string EcritPlages() {
    std::string texte;
    for (const PlageAngles& plage : PlagesTropCourbees()) {
        texte += (texte.empty() ? " " : ", ") + std::to_string(plage.debut) + "°";
        if (plage.fin > plage.debut) texte += "-" + std::to_string(plage.fin) + "°";
    }
    return texte;
}

// ---- a law out of a file

bool LoiDeFichier(const TypeEtude&) {
    return etude.donnees.NombreZones == 1 && etude.donnees.Zones[1].NomLoi == NomLoiFichier;
}

// The radius under an arm takes its acceleration from both of the arm's, signs included.
bool BrasDeFichier(const TypeEtude& type) {
    return type.Bras() && LoiDeFichier(type);
}

// ---- a pair whose data make up for each other

bool PaireNegative(const TypeEtude& type) {
    return !type.passes.empty() && DonneesNegatives(etude.donnees);
}

constexpr NoteValeur notes[] = {
    {"AccelRayonMax", BrasDeFichier, TexteFichierSansSigne},
    {"ForceGaletMax", LoiDeFichier, TexteFichierSansSigne},
    {"CoupleMax", LoiDeFichier, TexteFichierSansSigne},
    {"ForceGaletMax", PaireNegative, TexteProduitSeul},
    {"CoupleMax", PaireNegative, TexteProduitSeul},
    {"RayonMin", PaireNegative, TexteProduitSeul},
    {"RayonCourbureMin", TropCourbee, TexteTropCourbe, EcritPlages},
    {"RayonCourbureMin", CourbureUnPoint, TexteCourbureUnPoint},
    {"AngleTangentMax", MonteePlusForte, TextePenteMontee, EcritPenteMontee},
    {"AngleTangentMax", ParDegre, TexteArcDegre},
    {"ForceGaletMax", ParDegre, TexteArcDegre},
    {"CoupleMax", ParDegre, TexteArcDegre},
    {"LoiVitesseMax", MouvementOsc, TexteEchelleOsc},
    {"LoiAccelMax", MouvementOsc, TexteEchelleOsc},
    {"VitesseRayonMax", MouvementOsc, TexteEchelleOsc},
    {"AccelRayonMax", MouvementOsc, TexteEchelleOsc},
    {"VitesseGaletMoyenne", MouvementOsc, TexteEchelleOsc},
    {"VitesseGaletMax", MouvementOsc, TexteEchelleOsc},
    {"ForceGaletMax", MouvementOsc, TexteEchelleOsc},
    {"CoupleMax", MouvementOsc, TexteEchelleOsc},
    {"LoiCourseMax", Garde<&DurablesEtude::LoiCourseMax>, TexteMaximumGarde,
     EcritPropre<&DurablesEtude::LoiCourseMax, UniteDegres>},
    {"LoiVitesseMax", Garde<&DurablesEtude::LoiVitesseMax>, TexteMaximumGarde,
     EcritPropre<&DurablesEtude::LoiVitesseMax, UniteRadS>},
    {"LoiAccelMax", Garde<&DurablesEtude::LoiAccelMax>, TexteMaximumGarde,
     EcritPropre<&DurablesEtude::LoiAccelMax, UniteRadS2>},
    {"VitesseGaletMax", Garde<&DurablesEtude::VitesseGaletMax>, TexteMaximumGarde,
     EcritPropre<&DurablesEtude::VitesseGaletMax, UniteTours>},
    {"VitesseGaletMax", GaletEnArriere, TexteGaletEnArriere, EcritVitesseArriere},
};

} // namespace

std::span<const NoteValeur> LesNotes() {
    return notes;
}

Notes NotesEnVigueur(const TypeEtude& type) {
    const auto montre = [&type](const NoteValeur& note) {
        const auto valeur = TrouveChamp(LesValeursRemarquables(), note.valeur);
        return valeur != nullptr && valeur->texte(type) != 0 && note.vaut(type);
    };
    Notes enVigueur;
    PourChaqueCame(type, [&](const DescriptionPasse* came) {
        for (const NoteValeur& note : notes) {
            if (!montre(note)) continue;
            const bool propre = came != nullptr && note.suite != nullptr; // what follows differs from cam to cam
            enVigueur.Ajoute(note.valeur, (propre ? Texte(came->titre) + " : " : "") + Texte(note.texte) +
                                              (note.suite == nullptr ? "" : note.suite()));
        }
    });
    return enVigueur;
}
