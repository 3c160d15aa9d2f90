// Units and allowables of the globoidal calculations. Inside them everything is in inches, pounds-force and pound-force
// inches under a reference torque of 100; screens, files and pages are in mm, N and Nm.
#pragma once

inline constexpr double MmParPouce = 25.4;
inline constexpr double NewtonParLivre = 4.44822;

/// Every torque that is shown is multiplied by this.
inline constexpr double NmParLivrePouce = 0.112985;
/// The shaft capacity typed for an indexer is multiplied by this. It is not the reciprocal of `NmParLivrePouce`: both
/// stand as the published ratings were made with them.
inline constexpr double LivrePouceParNm = 8.85;

/// The torque that the forces of the walk belong to: a capacity is this times allowable over actual.
inline constexpr double CoupleReference = 100.0;

/// Allowable contact load figures F/(H rho), psi: hardened and nitrided cam.
inline constexpr double AdmissibleTrempee = 17000.0;
inline constexpr double AdmissibleNitruree = 3000.0;
/// Allowable case depth figure F rho/H.
inline constexpr double AdmissibleProfondeur = 75200.0;
/// The life rating of a cam over its limit torque, per unit of torque.
inline constexpr double FacteurDuree = 38.5;

/// 8000 hours at 50 rpm, in millions of revolutions.
inline constexpr double VieReference = 24.0;
/// Exponents of the life of a line contact: load to life, and life to load.
inline constexpr double ExposantVie = 10.0 / 3.0;
inline constexpr double ExposantCharge = 0.3;

/// Inertia of a steel roller: kgm² per inch to the fifth.
inline constexpr double InertieGaletAcier = 6.30168e-05;

/// Steps of a motion by a law of the catalogue, and by a law file.
inline constexpr int PasLoiNommee = 60;
inline constexpr int PasLoiFichier = 180;

/// The cam goes on beyond the end of the roller by so much, inches.
inline constexpr double ProfondeurSousGalet = 0.125;

/// What rows of minima begin at: any real figure undercuts it. A row that still shows it was never loaded.
inline constexpr double GrandNombre = 387420489.0; // 9 to the 9th

/// Chamfer of the edges of an oscillator's cam, inches.
inline constexpr double ChanfreinOscillateur = 0.063;

// Limits of the red flags. Those of the rib are inches, besides a share of the roller diameter.
inline constexpr double NervureMinTete = 0.25, NervureMinCentre = 0.28;
inline constexpr double PartGaletNervure = 0.25;
inline constexpr double AnglePressionLimite = 53;
