#include "globoidal/DonneesGlobiques.h"

#include "data/Unites.h"

#include <iterator>
#include <vector>

namespace {

template <class Fiche> void AjouteBoitier(std::vector<Champ<Fiche>>& champs) {
    const Champ<Fiche> boitier[] = {
        {"Modele", "DerouleModeles", 554, 0, &Fiche::Modele},
        {"Boitier", nullptr, 0, 0, &Fiche::Boitier},
        {"Entraxe", "Text1", 171, UniteMm, &Fiche::Entraxe},
        {"RayonTourelle", "Text2", 501, UniteMm, &Fiche::RayonTourelle},
        {"InertieTourelle", "Text3", 557, UniteKgM2, &Fiche::InertieTourelle},
        {"CapaciteArbreEntree", "Text12", 560, UniteNm, &Fiche::CapaciteArbreEntree},
        {"CameMaxDiam", "Text20", 502, UniteMm, &Fiche::CameMaxDiam},
        {"CameMaxLong", "Text21", 503, UniteMm, &Fiche::CameMaxLong},
    };
    champs.insert(champs.end(), std::begin(boitier), std::end(boitier));
}

template <class Fiche> void AjouteGalet(std::vector<Champ<Fiche>>& champs) {
    const Champ<Fiche> galet[] = {
        {"Precontrainte", "Text4", 561, 0, &Fiche::Precontrainte},
        {"ReferenceGalet", "DerouleGalets", 595, 0, &Fiche::ReferenceGalet},
        {"codemi", nullptr, 0, 0, &Fiche::codemi},
        {"DiametreGalet", "Text8", 594, UniteMm, &Fiche::DiametreGalet},
        {"HauteurGalet", "Text9", 244, UniteMm, &Fiche::HauteurGalet},
        {"CapaciteB10", "Text10", 565, UniteN, &Fiche::CapaciteB10},
        {"CapaciteLimite", "Text11", 566, UniteN, &Fiche::CapaciteLimite},
        {"FichierLoi", nullptr, 0, 0, &Fiche::FichierLoi},
    };
    champs.insert(champs.end(), std::begin(galet), std::end(galet));
}

/// Casing, motion, roller and law, as the screens ask for them.
template <class Fiche, std::size_t M, std::size_t L>
std::vector<Champ<Fiche>> Assemble(const Champ<Fiche> (&mouvement)[M], const Champ<Fiche> (&lois)[L]) {
    std::vector<Champ<Fiche>> champs;
    AjouteBoitier(champs);
    champs.insert(champs.end(), std::begin(mouvement), std::end(mouvement));
    AjouteGalet(champs);
    champs.insert(champs.end(), std::begin(lois), std::end(lois));
    return champs;
}

using Indexeur = DonneesIndexeur;
constexpr Champ<Indexeur> mouvementIndexeur[] = {
    {"AngleIndexage", "Text7", 270, UniteDegresMajuscule, &Indexeur::AngleIndexage},
    {"NombreGalets", "Text6", 596, 0, &Indexeur::NombreGalets},
    {"NombreStops", "Text5", 562, 0, &Indexeur::NombreStops},
};
constexpr Champ<Indexeur> loisIndexeur[] = {
    {"NomLoi", "DerouleLois", 105, 0, &Indexeur::NomLoi}, {"CoefSymetrie", "Text13", 522, 0, &Indexeur::CoefSymetrie},
    {"CoefA", "Text14", 568, 0, &Indexeur::CoefA},        {"CoefB", "Text15", 569, 0, &Indexeur::CoefB},
    {"CoefC", "Text16", 570, 0, &Indexeur::CoefC},
};

using Oscillateur = DonneesOscillateur;
constexpr Champ<Oscillateur> mouvementOscillateur[] = {
    {"NombreGalets", "Text6", 596, 0, &Oscillateur::NombreGalets},
    {"AngleEntreGalets", "Text27", 525, UniteDegres, &Oscillateur::AngleEntreGalets},
    {"AngleSortie", "Text5", 526, UniteDegres, &Oscillateur::AngleSortie},
    {"AngleZoneA", "Text7", 532, UniteDegres, &Oscillateur::AngleZoneA},
    {"AngleZoneB", "Text19", 533, UniteDegres, &Oscillateur::AngleZoneB},
    {"AngleZoneC", "Text22", 534, UniteDegres, &Oscillateur::AngleZoneC},
    {"AngleZoneD", "Text28", 540, UniteDegres, &Oscillateur::AngleZoneD},
};
constexpr Champ<Oscillateur> loisOscillateur[] = {
    {"LoiZoneA", "DerouleLois1", 552, 0, &Oscillateur::LoiZoneA},
    {"SymetrieA", "Text13", 522, 0, &Oscillateur::SymetrieA},
    {"CoefA1", "Text14", 568, 0, &Oscillateur::CoefA1},
    {"CoefB1", "Text15", 569, 0, &Oscillateur::CoefB1},
    {"CoefC1", "Text16", 570, 0, &Oscillateur::CoefC1},
    {"CodeLoiA", nullptr, 0, 0, &Oscillateur::CodeLoiA},
    {"LoiZoneC", "DerouleLois2", 553, 0, &Oscillateur::LoiZoneC},
    {"SymetrieC", "Text23", 522, 0, &Oscillateur::SymetrieC},
    {"CoefA2", "Text24", 568, 0, &Oscillateur::CoefA2},
    {"CoefB2", "Text25", 569, 0, &Oscillateur::CoefB2},
    {"CoefC2", "Text26", 570, 0, &Oscillateur::CoefC2},
    {"CodeLoiC", nullptr, 0, 0, &Oscillateur::CodeLoiC},
};

} // namespace

std::span<const Champ<DonneesIndexeur>> ChampsIndexeur() {
    static const auto champs = Assemble(mouvementIndexeur, loisIndexeur);
    return champs;
}

std::span<const Champ<DonneesOscillateur>> ChampsOscillateur() {
    static const auto champs = Assemble(mouvementOscillateur, loisOscillateur);
    return champs;
}
