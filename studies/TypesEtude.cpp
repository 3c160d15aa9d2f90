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

#include <algorithm>
#include <cctype>

namespace {

constexpr const char* M2 = "###.##";
constexpr const char* M2Large = "####.##";
constexpr const char* M3 = "###.###";
constexpr const char* M3Large = "####.###";

const ChampFichier champsAngulaire[] = {
    {"CoteA", &DonneesEtude::CoteA, M2, 152, UniteMm},
    {"CoteB", &DonneesEtude::CoteB, M2, 153, UniteMm},
    {"RayonO1A", &DonneesEtude::RayonO1A, M2, 154, UniteMm},
    {"RayonO1P", &DonneesEtude::RayonO1P, M2, 155, UniteMm},
    {"AnglePO1A", &DonneesEtude::AnglePO1A, M2, 156, UniteDegres},
    {"RayonGalet", &DonneesEtude::RayonGalet, M2, 123, UniteMm},
    {"VitesseCame", &DonneesEtude::VitesseCame, M2, 157, UniteTours},
    {"AnglePesanteur", &DonneesEtude::AnglePesanteur, M2, 169, UniteDegres},
    {"MasseBrasO1A", &DonneesEtude::MasseBrasO1A, M2, 159, UniteKg},
    {"MasseBrasO1P", &DonneesEtude::MasseBrasO1P, M2, 160, UniteKg},
    {"EpaisseurCame", &DonneesEtude::EpaisseurCame, M2, 161, UniteMm},
    {"MasseA", &DonneesEtude::MasseA, M2, 163, UniteKg},
    {"ForceX", &DonneesEtude::ForceX, M2Large, 166, UniteN},
    {"ForceY", &DonneesEtude::ForceY, M2Large, 167, UniteN},
};

const ChampFichier champsLineaire[] = {
    {"RayonGalet", &DonneesEtude::RayonGalet, M2, 123, UniteMm},
    {"VitesseCame", &DonneesEtude::VitesseCame, M2, 157, UniteTours},
    {"AnglePesanteur", &DonneesEtude::AnglePesanteur, M2, 169, UniteDegres},
    {"EpaisseurCame", &DonneesEtude::EpaisseurCame, M2, 161, UniteMm},
    {"MasseA", &DonneesEtude::MasseA, M2, 163, UniteKg},
    {"ForceY", &DonneesEtude::ForceY, M2Large, 167, UniteN},
};

const ChampFichier champsCylindrique[] = {
    {"RayonGalet", &DonneesEtude::RayonGalet, M2, 123, UniteMm},
    {"VitesseCame", &DonneesEtude::VitesseCame, M2, 157, UniteTours},
    {"AnglePesanteur", &DonneesEtude::AnglePesanteur, M2, 169, UniteDegres},
    {"DiametreCame", &DonneesEtude::DiametreCame, M2, 394, UniteMm},
    {"MasseA", &DonneesEtude::MasseA, M2, 395, UniteKg},
    {"ForceY", &DonneesEtude::ForceY, M2Large, 167, UniteN},
};

const ChampFichier champsOscillation[] = {
    {"RayonGalet", &DonneesEtude::RayonGalet, M2, 123, UniteMm},
    {"VitesseCame", &DonneesEtude::VitesseCame, M2, 157, UniteTours},
    {"DiametreCame", &DonneesEtude::DiametreCame, M2, 394, UniteMm},
    {"CoteA", &DonneesEtude::CoteA, M2, 400, UniteMm},
    {"RayonO1P", &DonneesEtude::RayonO1P, M2, 155, UniteMm},
    {"InertieMasseA", &DonneesEtude::InertieMasseA, M2, 239, UniteKgM2},
    {"CoupleConstantO1", &DonneesEtude::CoupleConstantO1, M2, 240, UniteNm},
};

const ChampFichier champsConjuguees[] = {
    {"CoteA", &DonneesEtude::CoteA, M3, 152, UniteMm},
    {"CoteB", &DonneesEtude::CoteB, M3, 153, UniteMm},
    {"RayonBrasR1", &DonneesEtude::RayonBrasR1, M3, 470, UniteMm},
    {"RayonGaletG1", &DonneesEtude::RayonGaletG1, M3, 471, UniteMm},
    {"RayonBrasR2", &DonneesEtude::RayonBrasR2, M3, 472, UniteMm},
    {"RayonGaletG2", &DonneesEtude::RayonGaletG2, M3, 473, UniteMm},
    {"VitesseCame", &DonneesEtude::VitesseCame, M3, 157, UniteTours},
    {"AngleBras", &DonneesEtude::AngleBras, M3, 474, UniteDegres},
    {"InertieO1", &DonneesEtude::InertieO1, M3Large, 475, UniteKgM2},
};

constexpr DescriptionZones zonesConjuguees{
    &Zone::AngleDepart, &Zone::AngleFinal, 478, 479, 177, UniteDegres, false, false};

const TypeEtude types[] = {
    {"Angulaire", "Ang", 85, " : Ang", champsAngulaire, M2Large, &ZonesAngulaire, M2, M2, false, CalculeCameAngulaire,
     ChercheFauteAngulaire, false, DessineCamePlate, "DatoCama", "Resultat", true},
    {"Lineaire", "Lin", 86, " : Lin ", champsLineaire, M2Large, &ZonesLineaire, M2Large, M2Large, false,
     CalculeCameLineaire, ChercheFauteLineaire, false, DessineCamePlate, "DoProfil", "Resultat"},
    {"Cylindrique", "Cyl", 87, " : Cyl", champsCylindrique, M2Large, &ZonesCylindrique, M2Large, M2Large, false,
     CalculeCameCylindrique, ChercheFauteCylindrique, true, DessinProfilCyl, "DoCyl", "Resultat"},
    {"Oscillation", "Osc", 527, " : Osc", champsOscillation, M2Large, &ZonesOscillation, M2, M2, false,
     CalculeCameCylOsc, ChercheFauteOscillation, true, DessinProfilCyl, "DoCylOsc", "Resultat"},
    {"ConjuguesOscillation", "Cjg", 642, " : Cjg", champsConjuguees, M3Large, &zonesConjuguees, M2, M2, true, nullptr,
     nullptr, false, nullptr, "CamesConjugeesOscillation", "CamesConjugeesOscillation"},
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

FiltreFichier FiltreEtude(const TypeEtude& type) {
    const std::string motif = std::string("*.") + type.extension;
    // The arm cam's own pattern is shown in small letters.
    return {Texte(type.titre) + " (" + (type.nom == std::string_view("Angulaire") ? "*.ang" : motif) + ")", motif};
}

std::string NomSansExtension(const std::string& nomFichier) {
    const std::filesystem::path nom(nomFichier);
    return TrouveTypeFichier(nom) == nullptr ? nomFichier : nom.stem().string();
}

bool AChamp(const TypeEtude& type, double DonneesEtude::*membre) {
    return std::any_of(type.champs.begin(), type.champs.end(),
                       [membre](const ChampFichier& champ) { return champ.membre == membre; });
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
    const TypeEtude* type = TrouveType(etude.donnees.TypeCame);
    if (type == nullptr || !type->Disponible())
        throw ErreurExecution(NumeroErreur::AppelIncorrect, etude.donnees.TypeCame);
    type->calcule();
}
