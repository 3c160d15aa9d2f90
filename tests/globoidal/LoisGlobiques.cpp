#include "globoidal/LoisGlobiques.h"

#include "outils/Catalogue.h"
#include "outils/DossierTemporaire.h"
#include "outils/VerifieLoi.h"

namespace {

class LoisGlobiques : public AvecCatalogue {
protected:
    const Tableau<Loi> catalogue = LitLois();
};

/// Derivatives and joints between the ends; a law without a sine part jumps in acceleration at a joint.
void VerifieDedans(const LoiDeX& loi, std::vector<double> joints) {
    std::erase_if(joints, [](double j) { return j <= 0 || j >= 1; });
    VerifieLoi(loi, joints, 10);
}

} // namespace

TEST_F(LoisGlobiques, FiveSegmentsRiseFromRestToRestAndAreTheirOwnDerivatives) {
    for (long i = 1; i <= catalogue.BorneHaute(); ++i) {
        SCOPED_TRACE(catalogue[i].NomLoi);
        const PartsLoi parts = PartsLoiNommee(catalogue[i].NomLoi, catalogue);
        const LoiCinqSegments loi = PrepareCinqSegments(parts);
        const double fin = (1 - parts.d) / 2;
        for (const JointsLoi joints : {JointsIndexeur, JointsOscillateur}) {
            const auto evalue = [&](double u) { return Evalue(loi, u, 0.5, joints); };
            EXPECT_NEAR(evalue(0).Course, 0, 1e-15);
            EXPECT_NEAR(evalue(1).Course, 1, 1e-15);
            EXPECT_NEAR(evalue(0.5).Vitesse, loi.Vmax, 1e-14);
            VerifieDedans(evalue, {parts.a / 2, (parts.a + parts.b) / 2, fin, 1 - fin});
        }
    }
}

TEST_F(LoisGlobiques, SymmetryMovesTheMiddleAndKeepsTheSpeed) {
    const LoiCinqSegments loi = PrepareCinqSegments(PartsLoiNommee("MSC33", catalogue));
    for (const double S : {0.1, 0.37, 0.9}) {
        const PointLoi milieu = Evalue(loi, S, S, JointsIndexeur);
        EXPECT_NEAR(milieu.Course, S, 1e-15);
        EXPECT_NEAR(milieu.Vitesse, loi.Vmax, 1e-14);
        EXPECT_NEAR(Evalue(loi, 1, S, JointsOscillateur).Course, 1, 1e-14);
        VerifieDedans([&](double u) { return Evalue(loi, u, S, JointsOscillateur); },
                      {S / 12, S / 3, S * 2 / 3, 1 - (1 - S) * 2 / 3, 1 - (1 - S) / 12, S});
    }
}

TEST_F(LoisGlobiques, SecondFamilyMeetsThePublishedMaximaOfRiseAndReturn) {
    for (const char* nom : {"MSH", "MSHC20", "MSHC33", "MSHC50"}) {
        SCOPED_TRACE(nom);
        const LoiDissymetrique loi = PrepareDissymetrique(PartsLoiNommee(nom, catalogue));
        const Loi& ligne = etude.lois.ListeLois[ChercheLoi(nom)];
        EXPECT_NEAR(loi.Ap, ligne.Ca, 1e-13);
        EXPECT_NEAR(loi.Vmax, ligne.Cv, 1e-13);
    }
    // Any shares give a law that rises by 1 and ends at rest.
    for (const auto& [a, b, c] : {std::array{0.3, 0.2, 0.4}, {0.0, 0.5, 0.3}, {0.4, 0.1, 0.0}, {0.0, 0.0, 0.8}}) {
        const LoiDissymetrique loi = PrepareDissymetrique(CompleteParts(a, b, c));
        const auto evalue = [&](double u) { return Evalue(loi, u); };
        VerifieDedans(evalue, {loi.h1, loi.h2, loi.h3, 1 - loi.h3});
        EXPECT_NEAR(evalue(0).Course, 0, 1e-15);
        EXPECT_NEAR(evalue(1).Course, 1, 1e-14);
        EXPECT_NEAR(evalue(1).Vitesse, 0, 1e-14);
    }
}

TEST_F(LoisGlobiques, ALawFileLosesItsSignsAndEndsWhereItEnds) {
    const DossierTemporaire dossier;
    const FichierDeLoi fichier(dossier.Ecrit("a.Lmi", "0;0;0\r\n.25;1.5;-4\r\n.75;-1.5;4\r\n1;0;0\r\n"));
    EXPECT_EQ(fichier.NombreLignes(), 4u);
    EXPECT_EQ(fichier.Ligne(2).Accel, 4);
    EXPECT_EQ(fichier.Ligne(3).Vitesse, 1.5);
    EXPECT_THROW(fichier.Ligne(5), ErreurExecution);
}
