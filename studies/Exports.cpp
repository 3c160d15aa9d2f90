#include "studies/Exports.h"

#include "core/Etude.h"
#include "core/FichierEntier.h"
#include "core/Lignes.h"
#include "data/Demarrage.h"
#include "data/Textes.h"
#include "studies/TypesEtude.h"

#include <cmath>

namespace {

/// Half length of the arms of a centre cross, mm.
constexpr double DemiCroix = 5;

/// A text that grows line by line.
class Script {
public:
    Script& Mot(const char* mot) {
        texte_ += mot;
        return *this;
    }
    Script& Point(double x, double y) {
        AjouteStr(texte_, x);
        texte_ += ',';
        AjouteStr(texte_, y);
        return *this;
    }
    Script& Nombre(double valeur) {
        AjouteStr(texte_, valeur);
        return *this;
    }
    Script& Fin() {
        texte_ += FinDeLigne;
        return *this;
    }
    /// An empty line, which ends a command.
    Script& FinCommande() { return Fin().Fin(); }

    std::string texte_;
};

void TraceCroixCentre(Script& script) {
    script.Mot("LIGNE -5,0 5,0").FinCommande();
    script.Mot("LIGNE 0,-5 0,5").FinCommande();
}

/// The arm at the start of the motion: a cross at its pivot, the arm itself, and the roller.
void TraceBras(Script& script) {
    const double x0 = -etude.donnees.CoteA, y0 = -etude.donnees.CoteB;
    const double a = (etude.donnees.AnglePO1A + etude.donnees.Zones[1].AngleDepart) * Pi / 180.0;
    const double px = std::cos(a) * etude.donnees.RayonO1P + x0, py = std::sin(a) * etude.donnees.RayonO1P + y0;
    script.Mot("LIGNE ").Point(x0 - DemiCroix, y0).Fin().Point(x0 + DemiCroix, y0).FinCommande();
    script.Mot("LIGNE ").Point(x0, y0 - DemiCroix).Fin().Point(x0, y0 + DemiCroix).FinCommande();
    script.Mot("LIGNE ").Point(x0, y0).Fin().Point(px, py).FinCommande();
    script.Mot("CERCLE ").Point(px, py).Mot(" d ").Nombre(2.0 * etude.donnees.RayonGalet).Fin();
}

/// One profile, turned by `AngleRotation`.
struct CourbeScript {
    double PointProfil::*x;
    double PointProfil::*y;
    double c = std::cos(etude.resultats.AngleRotation), s = std::sin(etude.resultats.AngleRotation);

    void Pose(Script& script, long i) const {
        const double xi = etude.resultats.Profil[i].*x, yi = etude.resultats.Profil[i].*y;
        script.Point(c * xi + s * yi, -xi * s + yi * c);
    }

    void TracePolyligne(Script& script) const {
        script.Mot("_pline").Fin();
        for (long i = 1; i <= etude.resultats.NombrePoints; ++i) {
            Pose(script, i);
            script.Fin();
        }
    }
};

void EcritDemande(int titre, const std::string& nom, const char* extension, std::string (*compose)()) {
    const std::string motif = std::string("*.") + extension;
    const auto chemin = LesDialogues().FichierASauver({Texte(titre),
                                                       CheminAppli / NomDossierEtudes,
                                                       nom + "." + extension,
                                                       {{Texte(124) + " (" + motif + ")", motif}}});
    if (chemin && !chemin->empty()) EcritFichierEntier(*chemin, compose());
}

} // namespace

std::string ComposeFichierPoints() {
    std::string contenu = "Rayon du galet ," + StrTrim(etude.donnees.RayonGalet) + FinDeLigne;
    contenu.reserve(static_cast<std::size_t>(etude.resultats.NombrePoints + 2) * 24);
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i) {
        AjouteStr(contenu, etude.resultats.Points[i].Angle);
        contenu += ',';
        AjouteFormat(contenu, etude.resultats.Points[i].Rayon, "###.######");
        contenu += FinDeLigne;
    }
    return contenu;
}

std::string ComposeScriptExterieur() {
    const CourbeScript courbe{&PointProfil::XExterieur, &PointProfil::YExterieur};
    Script script;
    TraceCroixCentre(script);
    script.Mot("LIGNE 0,0 ");
    courbe.Pose(script, 0);
    script.FinCommande();
    courbe.TracePolyligne(script);
    return script.texte_;
}

std::string ComposeScriptInterieur() {
    const CourbeScript courbe{&PointProfil::XInterieur, &PointProfil::YInterieur};
    Script script;
    TraceCroixCentre(script);
    const TypeEtude* type = TrouveType(etude.donnees.TypeCame);
    if (type != nullptr && type->scriptAvecBras) TraceBras(script);
    courbe.TracePolyligne(script);
    return script.texte_;
}

void FichiersPoints() {
    EcritDemande(124, NomSansExtension(etude.donnees.NomFichier), "Pnt", ComposeFichierPoints);
}

void FichiersScripts() {
    const std::string nom = NomSansExtension(etude.donnees.NomFichier);
    EcritDemande(315, nom + "_Ext", "Scr", ComposeScriptExterieur);
    EcritDemande(316, nom + "_Int", "Scr", ComposeScriptInterieur);
}
