#include "studies/TypesEtude.h"

#include "conjugate/DessinPaire.h"
#include "conjugate/DonneesPaire.h"
#include "conjugate/FermeturePaire.h"
#include "conjugate/PaireOscillante.h"
#include "conjugate/TextesPaire.h"
#include "cylindrical/CamesCylindriques.h"
#include "cylindrical/DessinProfilCyl.h"
#include "cylindrical/DeveloppeeCyl.h"
#include "cylindrical/DonneesCyl.h"
#include "data/Textes.h"
#include "planecams/CamesPlates.h"
#include "planecams/DonneesPlates.h"
#include "studies/DessinCame.h"
#include "studies/RapportsCames.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr const char* M2 = "###.##";
constexpr const char* M2Large = "####.##";

constexpr RapportsEtude rapportsAngulaire{ImprimeDonneesAngulaire, ImprimeProfilPlat, PointsMouvementAngulaire};
constexpr RapportsEtude rapportsLineaire{ImprimeDonneesLineaire, ImprimeProfilPlat, PointsMouvementLineaire};
constexpr RapportsEtude rapportsCylindrique{ImprimeDonneesCylindrique, ImprimeProfilCylindre,
                                            PointsMouvementCylindrique};
constexpr RapportsEtude rapportsOscillation{ImprimeDonneesOscillation, ImprimeProfilCylindre,
                                            PointsMouvementOscillation};
constexpr RapportsEtude rapportsConjuguees{ImprimeDonneesConjuguees, ImprimeProfilConjugue, PointsConjugues,
                                           TexteNoteDistances};

const TypeEtude types[] = {
    {.nom = "Angulaire",
     .extension = "Ang",
     .titre = 85,
     .suffixeTitre = " : Ang",
     .champs = ChampsAngulaire,
     .groupes = GroupesAngulaire,
     .masqueNombreZones = M2Large,
     .zones = &ZonesAngulaire,
     .masqueValeur = M2,
     .masqueAngleCame = M2,
     .calcule = CalculeCameAngulaire,
     .dessine = DessineCamePlate,
     .rapports = rapportsAngulaire,
     .scriptAvecBras = true,
     .motifDialogue = "*.ang",
     .ecranSaisie = "DatoCama",
     .ecranResultats = "Resultat"},
    {.nom = "Lineaire",
     .extension = "Lin",
     .titre = 86,
     .suffixeTitre = " : Lin ",
     .champs = ChampsLineaire,
     .groupes = GroupesLineaire,
     .masqueNombreZones = M2Large,
     .zones = &ZonesLineaire,
     .masqueValeur = M2Large,
     .masqueAngleCame = M2Large,
     .calcule = CalculeCameLineaire,
     .dessine = DessineCamePlate,
     .rapports = rapportsLineaire,
     .ecranSaisie = "DoProfil",
     .ecranResultats = "Resultat"},
    {.nom = "Cylindrique",
     .extension = "Cyl",
     .titre = 87,
     .suffixeTitre = " : Cyl",
     .champs = ChampsCylindrique,
     .groupes = GroupesCylindrique,
     .masqueNombreZones = M2Large,
     .zones = &ZonesCylindrique,
     .masqueValeur = M2Large,
     .masqueAngleCame = M2Large,
     .calcule = CalculeCameCylindrique,
     .developpee = true,
     .dessine = DessinProfilCyl,
     .rapports = rapportsCylindrique,
     .ecranSaisie = "DoCyl",
     .ecranResultats = "Resultat"},
    {.nom = "Oscillation",
     .extension = "Osc",
     .titre = 527,
     .suffixeTitre = " : Osc",
     .champs = ChampsOscillation,
     .groupes = GroupesOscillation,
     .masqueNombreZones = M2Large,
     .zones = &ZonesOscillation,
     .masqueValeur = M2,
     .masqueAngleCame = M2,
     .calcule = CalculeCameCylOsc,
     .developpee = true,
     .dessine = DessinProfilCyl,
     .rapports = rapportsOscillation,
     .ecranSaisie = "DoCylOsc",
     .ecranResultats = "Resultat"},
    {.nom = "ConjuguesOscillation",
     .extension = "Cjg",
     .titre = 642,
     .suffixeTitre = " : Cjg",
     .champs = ChampsPaire,
     .groupes = GroupesPaire,
     .masqueNombreZones = MasquePaireLarge,
     .zones = &ZonesPaire,
     .masqueValeur = M2,
     .masqueAngleCame = M2,
     .conjuguees = true,
     .calcule = CalculeCamesConjuguees,
     .passes = PassesPaire,
     .controle = {LignesFermeture, TexteFermeture, TexteNoteFermeture, EcartsFermeture, TexteEcart},
     .dessine = DessinePaire,
     .rapports = rapportsConjuguees,
     .ecranSaisie = "CamesConjugeesOscillation",
     .ecranResultats = "CamesConjugeesOscillation"},
};

std::string Minuscules(std::string_view texte) {
    std::string sortie(texte);
    std::transform(sortie.begin(), sortie.end(), sortie.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return sortie;
}

} // namespace

std::span<const TypeEtude> LesTypesEtude() {
    return types;
}

const TypeEtude* TrouveType(std::string_view nom) {
    const auto type =
        std::find_if(std::begin(types), std::end(types), [&](const TypeEtude& t) { return nom == t.nom; });
    return type == std::end(types) ? nullptr : type;
}

const TypeEtude* TrouveTypeFichier(const std::filesystem::path& fichier) {
    const std::string extension = Minuscules(fichier.extension().string());
    const auto type = std::find_if(std::begin(types), std::end(types),
                                   [&](const TypeEtude& t) { return extension == "." + Minuscules(t.extension); });
    return type == std::end(types) ? nullptr : type;
}

const TypeEtude& LeTypeEtude() {
    const TypeEtude* type = TrouveType(etude.donnees.TypeCame);
    if (type == nullptr) throw ErreurExecution(NumeroErreur::AppelIncorrect, etude.donnees.TypeCame);
    return *type;
}

FiltreFichier FiltreEtude(const TypeEtude& type) {
    const std::string motif = std::string("*.") + type.extension;
    return {Texte(type.titre) + " (" + (type.motifDialogue == nullptr ? motif : type.motifDialogue) + ")", motif};
}

std::string NomSansExtension(const std::string& nomFichier) {
    const std::filesystem::path nom(nomFichier);
    return TrouveTypeFichier(nom) == nullptr ? nomFichier : nom.stem().string();
}

int DernierAngleDessin(const TypeEtude& type) {
    return type.developpee && NombreTours() > 1 ? etude.resultats.NombrePoints / etude.donnees.PointsParDegre : 360;
}

double AngleExtreme(std::int16_t place) {
    const TypeEtude* type = TrouveType(etude.donnees.TypeCame);
    return type != nullptr && type->developpee ? Arrondi(static_cast<double>(place) / etude.donnees.PointsParDegre)
                                               : place;
}

void CalculeEtude() {
    const TypeEtude& type = LeTypeEtude();
    if (!type.Disponible()) throw ErreurExecution(NumeroErreur::AppelIncorrect, etude.donnees.TypeCame);
    type.calcule();
}
