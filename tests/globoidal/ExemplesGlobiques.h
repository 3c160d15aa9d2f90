// Plausible globoidal mechanisms for tests.
#pragma once

#include "core/Nombres.h"
#include "globoidal/DonneesGlobiques.h"

#include <cmath>
#include <string>

inline void PoseMecanisme(MecanismeGlobique& d) {
    d.Modele = "MG-160";
    d.Boitier = 5;
    d.Entraxe = 160;
    d.RayonTourelle = 90;
    d.InertieTourelle = 0.019;
    d.CapaciteArbreEntree = 370;
    d.ReferenceGalet = "G-022";
    d.codemi = 4;
    d.DiametreGalet = 22;
    d.HauteurGalet = 12;
    d.CapaciteB10 = 6050;
    d.CapaciteLimite = 7650;
}

inline DonneesIndexeur UnIndexeur(double galets = 8, double stops = 8, double angle = 150) {
    DonneesIndexeur d;
    PoseMecanisme(d);
    d.AngleIndexage = angle;
    d.NombreGalets = galets;
    d.NombreStops = stops;
    d.NomLoi = "MS";
    return d;
}

inline DonneesOscillateur UnOscillateur(double galets = 2) {
    DonneesOscillateur d;
    PoseMecanisme(d);
    d.NombreGalets = galets;
    d.AngleEntreGalets = 40;
    d.AngleSortie = 30;
    d.AngleZoneA = d.AngleZoneC = 120;
    d.AngleZoneB = d.AngleZoneD = 60;
    d.LoiZoneA = d.LoiZoneC = "MS";
    return d;
}

/// The lines of a law file. @param point of half a degree
template <class PointDe> std::string ContenuLoi(PointDe point) {
    std::string contenu;
    for (int i = 0; i < 722; ++i) {
        const PointLoi p = point(i);
        contenu += StrTrim(p.Course) + ";" + StrTrim(p.Vitesse) + ";" + StrTrim(p.Accel) + "\r\n";
    }
    return contenu;
}

inline double Relatif(double valeur, double attendu) {
    return std::abs(valeur / attendu - 1);
}
