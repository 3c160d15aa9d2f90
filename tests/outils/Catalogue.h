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
    etude.NombreZones = static_cast<std::int16_t>(voulues.size());
    etude.Zones.Redimensionne(etude.NombreZones);
    long z = 0;
    for (const auto& v : voulues) {
        Zone& zone = etude.Zones[++z];
        zone.AngleDepart = v.depart;
        zone.AngleFinal = v.final;
        zone.RayonDepart = v.depart;
        zone.RayonFinal = v.final;
        zone.AngleCame = v.angleCame;
        zone.NomLoi = v.loi;
        zone.CoefSymetrie = v.symetrie;
        zone.Temps = v.angleCame / etude.VitesseCame / 6.0;
    }
}

/// A plausible arm mechanism at 300 Tr/min, without masses and zones.
inline void PoseMecanismeBras() {
    etude.TypeCame = "Angulaire";
    etude.CoteA = 80;
    etude.CoteB = 30;
    etude.RayonO1A = 100;
    etude.RayonO1P = 70;
    etude.AnglePO1A = 40;
    etude.RayonGalet = 10;
    etude.VitesseCame = 300;
    etude.PointsParDegre = 1;
}
