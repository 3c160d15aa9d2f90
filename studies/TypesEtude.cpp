#include "studies/TypesEtude.h"

#include "cylindrical/CamesCylindriques.h"
#include "cylindrical/DessinProfilCyl.h"
#include "cylindrical/DeveloppeeCyl.h"
#include "cylindrical/DonneesCyl.h"
#include "data/Textes.h"
#include "data/Unites.h"
#include "planecams/CamesPlates.h"
#include "planecams/DonneesPlates.h"
#include "studies/DessinCame.h"
#include "studies/RapportsCames.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr const char* M2 = "###.##";
constexpr const char* M2Large = "####.##";
constexpr const char* M3 = "###.###";
constexpr const char* M3Large = "####.###";

/// A pair of cams, which is known by its files only.
constexpr ChampEtude champsConjuguees[] = {
    {"CoteA", nullptr, 152, UniteMm, &DonneesEtude::CoteA, M3},
    {"CoteB", nullptr, 153, UniteMm, &DonneesEtude::CoteB, M3},
    {"RayonBrasR1", nullptr, 470, UniteMm, &DonneesEtude::RayonBrasR1, M3},
    {"RayonGaletG1", nullptr, 471, UniteMm, &DonneesEtude::RayonGaletG1, M3},
    {"RayonBrasR2", nullptr, 472, UniteMm, &DonneesEtude::RayonBrasR2, M3},
    {"RayonGaletG2", nullptr, 473, UniteMm, &DonneesEtude::RayonGaletG2, M3},
    {"VitesseCame", nullptr, 157, UniteTours, &DonneesEtude::VitesseCame, M3},
    {"AngleBras", nullptr, 474, UniteDegres, &DonneesEtude::AngleBras, M3},
    {"InertieO1", nullptr, 475, UniteKgM2, &DonneesEtude::InertieO1, M3Large},
};

constexpr DescriptionZones zonesConjuguees{
    &Zone::AngleDepart, &Zone::AngleFinal, 478, 479, 177, UniteDegres, false, false};

constexpr RapportsEtude rapportsAngulaire{ImprimeDonneesAngulaire, ImprimeProfilPlat, PointsMouvementAngulaire};
constexpr RapportsEtude rapportsLineaire{ImprimeDonneesLineaire, ImprimeProfilPlat, PointsMouvementLineaire};
constexpr RapportsEtude rapportsCylindrique{ImprimeDonneesCylindrique, ImprimeProfilCylindre,
                                            PointsMouvementCylindrique};
constexpr RapportsEtude rapportsOscillation{ImprimeDonneesOscillation, ImprimeProfilCylindre,
                                            PointsMouvementOscillation};

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
     .champs = champsConjuguees,
     .groupes = {},
     .masqueNombreZones = M3Large,
     .zones = &zonesConjuguees,
     .masqueValeur = M2,
     .masqueAngleCame = M2,
     .conjuguees = true,
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
