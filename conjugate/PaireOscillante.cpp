#include "conjugate/PaireOscillante.h"

#include "cams/Courbure.h"
#include "cams/Efforts.h"
#include "cams/LimitesSaisie.h"
#include "cams/Pipeline.h"
#include "conjugate/DonneesPaire.h"
#include "data/Textes.h"
#include "planecams/GeometrieCame.h"
#include "planecams/MouvementCame.h"
#include "platform/Dialogues.h"

#include <cmath>
#include <utility>

namespace {

/// What the largest force (N) and torque (N m) start from.
constexpr double DepartMaxima = 0.1;

/// The tables keep their memory for the calculation that follows.
void VideResultats(PasseEtude& passe) {
    ResultatsEtude vide;
    std::swap(vide.Points, passe.resultats.Points);
    std::swap(vide.Mouvement, passe.resultats.Mouvement);
    std::swap(vide.Profil, passe.resultats.Profil);
    passe.resultats = std::move(vide);
    passe.durables = {};
}

/// Largest force and torque are those of both cams.
void PartageMaxima(const ResultatsEtude& de, ResultatsEtude& a) {
    a.ForceGaletMax = de.ForceGaletMax;
    a.ForceGaletMaxAngle = de.ForceGaletMaxAngle;
    a.CoupleMax = de.CoupleMax;
    a.CoupleMaxAngle = de.CoupleMaxAngle;
}

void PrepareGuide(PasseEtude& passe) {
    VideResultats(passe);
    passe.RayonO1P = etude.donnees.RayonBrasR1;
    passe.RayonGalet = etude.donnees.RayonGaletG1;
    passe.Zones = etude.donnees.Zones;
    passe.resultats.ForceGaletMax = passe.resultats.CoupleMax = DepartMaxima;
}

void PrepareSuiveuse(PasseEtude& passe, const PasseEtude& guide) {
    VideResultats(passe);
    passe.RayonO1P = etude.donnees.RayonBrasR2;
    passe.RayonGalet = etude.donnees.RayonGaletG2;
    passe.Zones = etude.donnees.Zones;
    for (Zone& zone : passe.Zones) {
        zone.AngleDepart -= etude.donnees.AngleBras;
        zone.AngleFinal -= etude.donnees.AngleBras;
    }
    PartageMaxima(guide.resultats, passe.resultats);
}

/// The arm's forces with the inertia at O1 for its masses: no weights, no outer forces.
void CalculeForcesPaire() {
    const double lp = etude.donnees.RayonO1P / 1000.0;
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i) {
        Point& p = etude.resultats.Points[i];
        p.ForceGalet = Divise(etude.resultats.Mouvement[i].Accel * (etude.donnees.InertieO1 * FacteurDynamique), lp);
        p.Couple = (p.Rayon / 1000.0) * p.ForceGalet * std::tan(etude.resultats.Profil[i].AngleTangent - Pi / 2.0);
        SuitEfforts(p, p.Angle);
    }
}

/// @return false after the box that names the cam whose stages failed
bool CalculePasse(PasseEtude& passe, const DescriptionPasse& description, LoisZones& lois) {
    {
        const PasseEnVue vue(passe);
        DerouleEtapes({.bras = true, .profilExterieur = false},
                      {[&lois] { CalculeMouvementCouple(lois); }, CalculeProfil, ControleBrasCentre, ControleCourbure,
                       CalculeForcesPaire});
    }
    if (SansErreur()) return true;
    LesDialogues().Message(Icone::Information, Texte(497) + " " + Texte(description.titre));
    return false;
}

bool RefusePointsParDegre() {
    if (EstPointsParDegre(std::to_string(etude.donnees.PointsParDegre))) return false;
    LesDialogues().Message(Icone::Avertissement, Texte(519) + "\n" + Texte(520));
    etude.resultats.Erreur = Vrai;
    return true;
}

} // namespace

void CalculeCamesConjuguees() {
    // A drawing that is asked for meanwhile, behind a box, finds no cam.
    std::vector<PasseEtude> passes = std::exchange(etude.passes, {});
    etude.resultats.Erreur = Faux;
    if (RefusePointsParDegre()) return;
    etude.resultats.EtudeModifiee = etude.resultats.ResultatsPrets = Faux;
    etude.donnees.AnglePO1A = 0; // the zones give the direction of the arm itself
    etude.donnees.ZonesConjuguees = etude.donnees.Zones;
    passes.resize(std::size(PassesPaire));
    PasseEtude &guide = passes[CameGuide], &suiveuse = passes[CameSuiveuse];
    LoisZones lois;
    PrepareGuide(guide);
    if (!CalculePasse(guide, PassesPaire[CameGuide], lois)) return;
    PrepareSuiveuse(suiveuse, guide);
    if (!CalculePasse(suiveuse, PassesPaire[CameSuiveuse], lois)) return;
    PartageMaxima(suiveuse.resultats, guide.resultats);
    etude.passes = std::move(passes);
}
