#include "studies/TypesEtude.h"

#include "outils/Catalogue.h"

#include <gtest/gtest.h>

#include <array>

namespace {

class TypesEtudes : public AvecCatalogue {};

} // namespace

TEST_F(TypesEtudes, NumbersAtFaultAreToldOneAfterTheOther) {
    const std::pair<const char*, std::vector<std::pair<std::string, int>>> cas[] = {
        {"Angulaire", {{"CoteA", 197}, {"RayonO1P", 202}, {"RayonGalet", 201}, {"VitesseCame", 200}}},
        {"Lineaire", {{"RayonGalet", 201}, {"VitesseCame", 200}}},
        {"Cylindrique", {{"DiametreCame", 419}, {"RayonGalet", 201}, {"VitesseCame", 200}}},
        {"Oscillation", {{"RayonO1P", 202}, {"DiametreCame", 419}, {"RayonGalet", 201}, {"VitesseCame", 200}}},
    };
    for (const auto& [nom, attendues] : cas) {
        etude = Etude{};
        const TypeEtude& type = *TrouveType(nom);
        std::vector<std::pair<std::string, int>> dites;
        while (const ChampEtude* faute = type.ChercheFaute()) {
            dites.emplace_back(faute->nom, faute->texteFaute);
            faute->Nombre(etude.donnees) = 0.5;
        }
        EXPECT_EQ(dites, attendues) << nom;
    }
    // Below nothing a speed turns the other way; a roller cannot be.
    etude.donnees.VitesseCame = etude.donnees.RayonGalet = -0.5;
    EXPECT_EQ(TrouveType("Lineaire")->ChercheFaute()->texteFaute, 201);
    etude.donnees.RayonGalet = 0.5;
    EXPECT_EQ(TrouveType("Lineaire")->ChercheFaute(), nullptr);
    etude = Etude{};
}

TEST_F(TypesEtudes, FiltersOfTheFileDialogues) {
    for (const auto& [nom, montre, motif] :
         {std::array{"Angulaire", "*.ang", "*.Ang"}, {"Oscillation", "*.Osc", "*.Osc"}}) {
        const FiltreFichier filtre = FiltreEtude(*TrouveType(nom));
        EXPECT_TRUE(filtre.libelle.ends_with(std::string(" (") + montre + ")")) << filtre.libelle;
        EXPECT_EQ(filtre.motif, motif);
    }
}
