#include "conjugate/PistesConjugue.h"

#include "conjugate/ExempleConjugue.h"
#include "core/Etude.h"
#include "core/Nombres.h"
#include "outils/Catalogue.h"

#include <cmath>
#include <complex>

namespace {

class PistesConjugue : public AvecCatalogue {
protected:
    std::vector<std::string> ecran;
    Courbures courbures;
};

/// The roller centre in the plane of the cam, which turns by `T` radians against the follower wheel.
std::complex<double> Primitif(const DonneesConjugue& d, double T, double phi0, double theta) {
    return (d.Q - std::polar(d.R, theta - phi0)) * std::polar(1.0, T);
}

} // namespace

TEST_F(PistesConjugue, RadiusOfCurvatureIsThatOfThePitchCurveButForOneTerm) {
    const DonneesConjugue d = PrepareDonnees(ExempleConjugue());
    const double Q = d.Q, R = d.R, w = 0.61, a = -0.37, pas = 1e-4;
    for (const double phi : {0.9, 0.55, 0.31, 0.12}) {
        const auto point = [&](double T) { return Primitif(d, T, phi, w * T + a * T * T / 2); };
        const auto v = (point(pas) - point(-pas)) / (2 * pas);
        const auto acc = (point(pas) - 2.0 * point(0) + point(-pas)) / (pas * pas);
        const double geometrique = std::pow(std::abs(v), 3) / std::imag(std::conj(v) * acc);
        // The term of the third power of the velocity is left out of the second derivative of the radius.
        const double c = Q * R * std::cos(phi), s = std::sin(phi), d2 = Q * Q + R * R - 2 * c;
        const double n = d2 + (R * R - c) * w, r1 = -std::sqrt(d2) * Q * R * s * w / n;
        const double omis = R * (d2 * (Q - R * std::cos(phi)) + Q * R * s * s * (Q * std::cos(phi) - R)) * w * w * w;
        const double courbure = 1 / geometrique - d2 * Q * R * omis / (n * n * n) / std::pow(d2 + r1 * r1, 1.5);
        EXPECT_NEAR(RayonCourbureConjugue(d, {0, w / RadDeg, a / RadDeg / RadDeg}, phi) * courbure, 1, 1e-5) << phi;
    }
}

TEST_F(PistesConjugue, PressureAngleLiesBetweenTheNormalAndTheMotionOfTheRoller) {
    const DonneesConjugue d = PrepareDonnees(ExempleConjugue());
    const double w = 0.43, phi = 0.7, pas = 1e-5;
    const auto tangente = (Primitif(d, pas, phi, w * pas) - Primitif(d, -pas, phi, -w * pas)) / (2 * pas);
    const double entre = std::arg(tangente / std::polar(1.0, -phi)); // from the arm to the profile
    const Contact contact = Sss(d.Q, d.R, w, phi);
    EXPECT_NEAR(std::abs(contact.PA), 90 - std::abs(std::abs(entre) * RadDeg - 90), 1e-6);
    EXPECT_NEAR(contact.RCF, std::abs(Primitif(d, 0, phi, 0)), 1e-12);
}

TEST_F(PistesConjugue, ATrackEndsWhereTheRollerDoesNotFit) {
    SaisieConjugue saisie = ExempleConjugue();
    CalculeCourbures(PrepareDonnees(saisie), courbures, ecran);
    const double mini = courbures.RayonMini;
    saisie.D = 2 * (mini - 0.1271);
    EXPECT_FALSE(CalculeCourbures(PrepareDonnees(saisie), courbures, ecran));
    saisie.D = 2 * (mini - 0.1269);
    EXPECT_EQ(CalculeCourbures(PrepareDonnees(saisie), courbures, ecran),
              "Sur Usinage dans la piste B part 1 dans la position 1");
    EXPECT_EQ(courbures.pistes.back().back().rho, mini) << "the walk stops there";

    // The letter counts from the nearer end of the tracks; the rank of half a track goes to the even letter.
    saisie.D = 1000;
    saisie.M = 9;
    saisie.N = 2;
    EXPECT_EQ(CalculeCourbures(PrepareDonnees(saisie), courbures, ecran),
              "Sur Usinage dans la piste B part 1 dans la position 4.5");
}
