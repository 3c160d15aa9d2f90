#include "studies/FichierEtude.h"

#include "cams/CompleteZones.h"
#include "core/FichierEntier.h"
#include "core/Lignes.h"
#include "data/Demarrage.h"
#include "data/Textes.h"
#include "laws/CalculLois.h"
#include "laws/FichierLoi.h"

#include <chrono>
#include <ctime>
#include <locale>
#include <stdexcept>

namespace {

/// A number by its leading digits, with the point or the comma; a text reads as 0.
double LitNombre(Lignes& lignes) {
    return ValVirgule(lignes.Suivante());
}

bool LoiConnue(const std::string& nomLoi) {
    return nomLoi.find("Spe") != std::string::npos || ChercheLoi(nomLoi) != 0;
}

void LitZone(Lignes& lignes, const TypeEtude& type, Zone& zone) {
    lignes.Suivante();
    zone.*type.zones->valeurDepart = LitNombre(lignes);
    zone.*type.zones->valeurFinale = LitNombre(lignes);
    zone.AngleCame = LitNombre(lignes);
    zone.NomLoi = lignes.Suivante();
    zone.CoefSymetrie = LitNombre(lignes);
}

/// Whether the zones can be completed by what was read. A speed or an arm of 0 is told by the calculation, and put
/// right on the data screen.
bool ZonesCompletables(const TypeEtude& type) {
    return etude.donnees.VitesseCame != 0.0 && (!type.zones->rayonsBras || etude.donnees.RayonO1P != 0.0);
}

/// Today's date as "dd mm yyyy".
std::string DateDuJour() {
    const std::time_t maintenant = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    char date[16];
    std::strftime(date, sizeof date, "%d %m %Y", std::localtime(&maintenant));
    return date;
}

/// Decimal separator of the machine's regional settings.
char SeparateurRegional() {
    try {
        return std::use_facet<std::numpunct<char>>(std::locale("")).decimal_point();
    } catch (const std::runtime_error&) {
        return '.'; // settings that the machine does not know
    }
}

} // namespace

bool LitEtude(std::string_view contenu, const TypeEtude& type) {
    Lignes lignes(contenu);
    lignes.Suivante();
    lignes.Suivante();
    for (const auto& champ : type.champs) champ.Nombre(etude.donnees) = LitNombre(lignes);
    etude.donnees.NombreZones = Entier16(LitNombre(lignes));
    etude.donnees.Zones.Redimensionne(etude.donnees.NombreZones);
    etude.donnees.TypeCame = type.nom;
    for (int z = 1; z <= etude.donnees.NombreZones; ++z) {
        Zone& zone = etude.donnees.Zones[z];
        LitZone(lignes, type, zone);
        if (!LoiConnue(zone.NomLoi)) {
            LesDialogues().Message(Icone::Critique, AvecLoisRemplacees(Texte(521) + " ' " + zone.NomLoi + " ' " +
                                                                       Texte(103) + "\n" + Texte(509)));
            return false;
        }
        if (ZonesCompletables(type)) CompleteZone(z, type.zones->rayonsBras);
    }
    if (type.conjuguees) etude.donnees.ZonesConjuguees = etude.donnees.Zones;
    etude.donnees.PointsParDegre = Entier16(LitNombre(lignes));
    return true;
}

bool LitFichierEtude(const std::filesystem::path& chemin) {
    const TypeEtude* type = TrouveTypeFichier(chemin);
    if (type == nullptr) throw ErreurExecution(NumeroErreur::ExtensionInconnue, chemin.extension().string());
    if (!type->Disponible()) throw ErreurExecution(NumeroErreur::TypeNonCalcule, Texte(type->titre));
    const std::string contenu = LitFichierEntier(chemin);
    etude.donnees.NomFichier = chemin.filename().string();
    return LitEtude(contenu, *type);
}

std::string ComposeFichierEtude(const TypeEtude& type, char separateur) {
    std::string contenu;
    const auto ligne = [&](const std::string& texte) { contenu += texte + FinDeLigne; };
    const auto nombre = [&](std::string texte) {
        const auto point = texte.find('.');
        if (point != std::string::npos) texte[point] = separateur;
        ligne(texte);
    };
    ligne(Texte(type.titre) + type.suffixeTitre);
    ligne(Texte(387) + DateDuJour());
    for (const auto& champ : type.champs) nombre(Format(champ.Nombre(etude.donnees), champ.masque));
    nombre(Format(etude.donnees.NombreZones, type.masqueNombreZones));
    for (int z = 1; z <= etude.donnees.NombreZones; ++z) {
        const Zone& zone = etude.donnees.Zones[z];
        ligne(Texte(187) + Format(z, "##"));
        nombre(Format(zone.*type.zones->valeurDepart, type.masqueValeur));
        nombre(Format(zone.*type.zones->valeurFinale, type.masqueValeur));
        nombre(Format(zone.AngleCame, type.masqueAngleCame));
        const Zone& loi = type.conjuguees ? etude.donnees.ZonesConjuguees[z] : zone;
        ligne(loi.NomLoi);
        nombre(StrTrim(loi.CoefSymetrie));
    }
    ligne(std::to_string(etude.donnees.PointsParDegre));
    return contenu;
}

std::optional<std::filesystem::path> DonneesDepart() {
    const TypeEtude* type = TrouveType(etude.donnees.TypeCame);
    if (type == nullptr) throw ErreurExecution(NumeroErreur::AppelIncorrect, etude.donnees.TypeCame);
    auto chemin = LesDialogues().FichierASauver({Texte(type->titre) + " " + Texte(120),
                                                 CheminEtudes,
                                                 NomSansExtension(etude.donnees.NomFichier) + "." + type->extension,
                                                 {FiltreEtude(*type)}});
    if (!chemin || chemin->empty()) return {};
    EcritFichierEntier(*chemin, ComposeFichierEtude(*type, SeparateurRegional()));
    etude.donnees.NomFichier = chemin->filename().string();
    return chemin;
}
