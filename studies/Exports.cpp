#include "studies/Exports.h"

#include "core/Etude.h"
#include "core/FichierEntier.h"
#include "core/Lignes.h"
#include "data/Demarrage.h"
#include "data/Textes.h"
#include "drawing/Script.h"
#include "studies/TypesEtude.h"

#include <cmath>
#include <functional>
#include <span>
#include <vector>

namespace {

/// The arm at the start of the motion: a cross at its pivot, the arm itself, and the roller.
void TraceBras(Script& script) {
    const PointDessin pivot{-etude.donnees.CoteA, -etude.donnees.CoteB};
    const double a = (etude.donnees.AnglePO1A + etude.donnees.Zones[1].AngleDepart) * Pi / 180.0;
    const PointDessin galet{std::cos(a) * etude.donnees.RayonO1P + pivot.x,
                            std::sin(a) * etude.donnees.RayonO1P + pivot.y};
    script.Croix(pivot, Script::Saut::Retour);
    script.Ligne(pivot, galet, Script::Saut::Retour);
    script.Cercle(galet, 2.0 * etude.donnees.RayonGalet);
}

/// One profile, turned by `AngleRotation`.
struct CourbeScript {
    double PointProfil::*x;
    double PointProfil::*y;
    double c = std::cos(etude.resultats.AngleRotation), s = std::sin(etude.resultats.AngleRotation);

    PointDessin operator()(long i) const {
        const double xi = etude.resultats.Profil[i].*x, yi = etude.resultats.Profil[i].*y;
        return {c * xi + s * yi, -xi * s + yi * c};
    }

    void TracePolyligne(Script& script) const {
        script.DebutPolyligne();
        for (long i = 1; i <= etude.resultats.NombrePoints; ++i) script.PointPolyligne((*this)(i));
    }
};

/// A file to ask for.
struct Demande {
    int titre;
    std::string nom;
    const char* extension;
    std::function<std::string()> compose;
};

/// Asks for every name, then writes those given together: all of them or none.
void EcritDemandes(std::span<const Demande> demandes) {
    std::vector<FichierAEcrire> fichiers;
    for (const Demande& demande : demandes) {
        const std::string motif = std::string("*.") + demande.extension;
        const auto chemin = LesDialogues().FichierASauver({Texte(demande.titre),
                                                           CheminEtudes,
                                                           demande.nom + "." + demande.extension,
                                                           {{Texte(124) + " (" + motif + ")", motif}}});
        if (chemin && !chemin->empty()) fichiers.push_back({*chemin, demande.compose()});
    }
    EcritFichiersEntiers(fichiers);
}

constexpr const char* LigneBlanche = " ";

/// The roller radius, then cam angle and radius of every point, of the cam that the record shows. Several cams have
/// each a heading.
void AjoutePoints(std::string& contenu, const DescriptionPasse* came) {
    if (came != nullptr && !contenu.empty()) contenu += std::string(LigneBlanche) + FinDeLigne;
    contenu +=
        (came == nullptr ? "Rayon du galet ," : came->pointsGalet) + StrTrim(etude.donnees.RayonGalet) + FinDeLigne;
    if (came != nullptr) contenu += std::string(came->pointsTitre) + FinDeLigne + LigneBlanche + FinDeLigne;
    contenu.reserve(contenu.size() + static_cast<std::size_t>(etude.resultats.NombrePoints + 2) * 24);
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i) {
        AjouteStr(contenu, etude.resultats.Points[i].Angle);
        contenu += ',';
        AjouteFormat(contenu, etude.resultats.Points[i].Rayon, "###.######");
        contenu += FinDeLigne;
    }
}

/// One of several cams: all the arms with their rollers, then the radius to the start and the profile of this one.
std::string ComposeScriptCame(std::size_t rang) {
    Script script;
    script.Croix({0, 0}, Script::Saut::Blanc);
    PourChaqueCame(LeTypeEtude(), [&](const DescriptionPasse*) { TraceBras(script); });
    const PasseEnVue vue(etude.passes.at(rang));
    const CourbeScript courbe{&PointProfil::XInterieur, &PointProfil::YInterieur};
    script.Ligne({0, 0}, courbe(0), Script::Saut::Blanc);
    courbe.TracePolyligne(script);
    return script.Texte();
}

} // namespace

std::vector<FichierScript> LesScripts() {
    const TypeEtude* type = TrouveType(etude.donnees.TypeCame);
    if (type == nullptr || type->passes.empty())
        return {{"_Ext", 315, ComposeScriptExterieur}, {"_Int", 316, ComposeScriptInterieur}};
    std::vector<FichierScript> scripts;
    for (std::size_t rang = 0; rang < type->passes.size(); ++rang)
        scripts.push_back({"_" + Texte(type->passes[rang].titre), 316, [rang] { return ComposeScriptCame(rang); }});
    return scripts;
}

std::string ComposeFichierPoints() {
    std::string contenu;
    PourChaqueCame(LeTypeEtude(), [&](const DescriptionPasse* came) { AjoutePoints(contenu, came); });
    return contenu;
}

std::string ComposeScriptExterieur() {
    const CourbeScript courbe{&PointProfil::XExterieur, &PointProfil::YExterieur};
    Script script;
    script.Croix({0, 0}, Script::Saut::Blanc);
    script.Ligne({0, 0}, courbe(0), Script::Saut::Blanc);
    courbe.TracePolyligne(script);
    return script.Texte();
}

std::string ComposeScriptInterieur() {
    const CourbeScript courbe{&PointProfil::XInterieur, &PointProfil::YInterieur};
    Script script;
    script.Croix({0, 0}, Script::Saut::Blanc);
    const TypeEtude* type = TrouveType(etude.donnees.TypeCame);
    if (type != nullptr && type->scriptAvecBras) TraceBras(script);
    courbe.TracePolyligne(script);
    return script.Texte();
}

void FichiersPoints() {
    const Demande demande{124, NomSansExtension(etude.donnees.NomFichier), "Pnt", ComposeFichierPoints};
    EcritDemandes({&demande, 1});
}

void FichiersScripts() {
    const std::string nom = NomSansExtension(etude.donnees.NomFichier);
    std::vector<Demande> demandes;
    for (const FichierScript& script : LesScripts())
        demandes.push_back({script.titre, nom + script.suite, "Scr", script.compose});
    EcritDemandes(demandes);
}
