// The catalogue as the program has it at start-up, for tests of calculations.
#pragma once

#include "core/Etude.h"
#include "data/Demarrage.h"
#include "data/Textes.h"
#include "laws/CalculLois.h"

#include <gtest/gtest.h>

/// A fixture that begins each test as a fresh start of the program.
class AvecCatalogue : public testing::Test {
protected:
    static void SetUpTestSuite() {
        LaBase = BaseDonnees::Ouvre(std::filesystem::path(VELORIN_DOSSIER) / NomBase, MotDePasseBase,
                                    BaseDonnees::Usage::Lecture);
        CheminAppli = VELORIN_DOSSIER;
        LangueTravail = "Français";
        ChargeTextes(LaBase);
    }

    AvecCatalogue() {
        etude = Etude{};
        ChargeLois();
    }
};

/// Puts zones into the study record: travels between values over cam angles (degrees), each under a law.
struct ZoneVoulue {
    double depart, final, angleCame;
    const char* loi;
    double symetrie = 0.5;
};

inline void PoseZones(const std::vector<ZoneVoulue>& voulues) {
    etude.donnees.NombreZones = static_cast<std::int16_t>(voulues.size());
    etude.donnees.Zones.Redimensionne(etude.donnees.NombreZones);
    long z = 0;
    for (const auto& v : voulues) {
        Zone& zone = etude.donnees.Zones[++z];
        zone.AngleDepart = v.depart;
        zone.AngleFinal = v.final;
        zone.RayonDepart = v.depart;
        zone.RayonFinal = v.final;
        zone.AngleCame = v.angleCame;
        zone.NomLoi = v.loi;
        zone.CoefSymetrie = v.symetrie;
        zone.Temps = v.angleCame / etude.donnees.VitesseCame / 6.0;
    }
}

/// A plausible arm mechanism at 300 Tr/min, without masses and zones.
inline void PoseMecanismeBras() {
    etude.donnees.TypeCame = "Angulaire";
    etude.donnees.CoteA = 80;
    etude.donnees.CoteB = 30;
    etude.donnees.RayonO1A = 100;
    etude.donnees.RayonO1P = 70;
    etude.donnees.AnglePO1A = 40;
    etude.donnees.RayonGalet = 10;
    etude.donnees.VitesseCame = 300;
    etude.donnees.PointsParDegre = 1;
}
