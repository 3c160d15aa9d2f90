#include "studies/TypesEtude.h"

#include "data/Textes.h"
#include "planecams/CamesPlates.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr const char* M2 = "###.##";
constexpr const char* M2Large = "####.##";
constexpr const char* M3 = "###.###";
constexpr const char* M3Large = "####.###";

/// Text numbers of the units.
constexpr int Mm = 18, Degres = 19, Tours = 21, Kg = 24, Newton = 25, NewtonMetre = 26, KgM2 = 31;

const ChampFichier champsAngulaire[] = {
    {"CoteA", &Etude::CoteA, M2, 152, Mm},
    {"CoteB", &Etude::CoteB, M2, 153, Mm},
    {"RayonO1A", &Etude::RayonO1A, M2, 154, Mm},
    {"RayonO1P", &Etude::RayonO1P, M2, 155, Mm},
    {"AnglePO1A", &Etude::AnglePO1A, M2, 156, Degres},
    {"RayonGalet", &Etude::RayonGalet, M2, 123, Mm},
    {"VitesseCame", &Etude::VitesseCame, M2, 157, Tours},
    {"AnglePesanteur", &Etude::AnglePesanteur, M2, 169, Degres},
    {"MasseBrasO1A", &Etude::MasseBrasO1A, M2, 159, Kg},
    {"MasseBrasO1P", &Etude::MasseBrasO1P, M2, 160, Kg},
    {"EpaisseurCame", &Etude::EpaisseurCame, M2, 161, Mm},
    {"MasseA", &Etude::MasseA, M2, 163, Kg},
    {"ForceX", &Etude::ForceX, M2Large, 166, Newton},
    {"ForceY", &Etude::ForceY, M2Large, 167, Newton},
};

const ChampFichier champsLineaire[] = {
    {"RayonGalet", &Etude::RayonGalet, M2, 123, Mm},
    {"VitesseCame", &Etude::VitesseCame, M2, 157, Tours},
    {"AnglePesanteur", &Etude::AnglePesanteur, M2, 169, Degres},
    {"EpaisseurCame", &Etude::EpaisseurCame, M2, 161, Mm},
    {"MasseA", &Etude::MasseA, M2, 163, Kg},
    {"ForceY", &Etude::ForceY, M2Large, 167, Newton},
};

const ChampFichier champsCylindrique[] = {
    {"RayonGalet", &Etude::RayonGalet, M2, 123, Mm},
    {"VitesseCame", &Etude::VitesseCame, M2, 157, Tours},
    {"AnglePesanteur", &Etude::AnglePesanteur, M2, 169, Degres},
    {"DiametreCame", &Etude::DiametreCame, M2, 394, Mm},
    {"MasseA", &Etude::MasseA, M2, 163, Kg},
    {"ForceY", &Etude::ForceY, M2Large, 167, Newton},
};

const ChampFichier champsOscillation[] = {
    {"RayonGalet", &Etude::RayonGalet, M2, 123, Mm},
    {"VitesseCame", &Etude::VitesseCame, M2, 157, Tours},
    {"DiametreCame", &Etude::DiametreCame, M2, 394, Mm},
    {"CoteA", &Etude::CoteA, M2, 152, Mm},
    {"RayonO1P", &Etude::RayonO1P, M2, 155, Mm},
    {"InertieMasseA", &Etude::InertieMasseA, M2, 239, KgM2},
    {"CoupleConstantO1", &Etude::CoupleConstantO1, M2, 240, NewtonMetre},
};

const ChampFichier champsConjuguees[] = {
    {"CoteA", &Etude::CoteA, M3, 152, Mm},
    {"CoteB", &Etude::CoteB, M3, 153, Mm},
    {"RayonBrasR1", &Etude::RayonBrasR1, M3, 470, Mm},
    {"RayonGaletG1", &Etude::RayonGaletG1, M3, 471, Mm},
    {"RayonBrasR2", &Etude::RayonBrasR2, M3, 472, Mm},
    {"RayonGaletG2", &Etude::RayonGaletG2, M3, 473, Mm},
    {"VitesseCame", &Etude::VitesseCame, M3, 157, Tours},
    {"AngleBras", &Etude::AngleBras, M3, 474, Degres},
    {"InertieO1", &Etude::InertieO1, M3Large, 475, KgM2},
};

constexpr auto angleDepart = &Zone::AngleDepart, angleFinal = &Zone::AngleFinal;
constexpr auto rayonDepart = &Zone::RayonDepart, rayonFinal = &Zone::RayonFinal;

const TypeEtude types[] = {
    {"Angulaire", "Ang", 85, " : Ang", champsAngulaire, M2Large, angleDepart, angleFinal, M2, M2, true,
     CalculeCameAngulaire, ChercheFauteAngulaire},
    {"Lineaire", "Lin", 86, " : Lin ", champsLineaire, M2Large, rayonDepart, rayonFinal, M2Large, M2Large, false,
     CalculeCameLineaire, ChercheFauteLineaire},
    {"Cylindrique", "Cyl", 87, " : Cyl", champsCylindrique, M2Large, rayonDepart, rayonFinal, M2Large, M2Large, false},
    {"Oscillation", "Osc", 527, " : Osc", champsOscillation, M2Large, angleDepart, angleFinal, M2, M2, false},
    {"ConjuguesOscillation", "Cjg", 642, " : Cjg", champsConjuguees, M3Large, angleDepart, angleFinal, M2, M2, false},
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

void CalculeEtude() {
    const TypeEtude* type = TrouveType(etude.TypeCame);
    if (type == nullptr || !type->Disponible()) throw ErreurExecution(NumeroErreur::AppelIncorrect, etude.TypeCame);
    type->calcule();
}
