#include "laws/FichierLoi.h"

#include "outils/Catalogue.h"

#include <algorithm>
#include <cmath>

namespace {

class FichierLoi : public AvecCatalogue {
protected:
    /// The unit law of a study of `n` points.
    static void Evalue(const char* nom, std::int16_t n) {
        etude.donnees.Zones.Redimensionne(1);
        etude.donnees.Zones[1].NomLoi = nom;
        etude.donnees.Zones[1].CoefSymetrie = 0.5;
        etude.donnees.Zones[1].AngleCame = n;
        AppliqueLoi(1);
        etude.resultats.NombrePoints = n;
    }
};

} // namespace

TEST_F(FichierLoi, WhatIsReadIsTheLawShiftedAndWithoutSigns) {
    Evalue("CYC", 720);
    const auto ecrite = etude.lois.LoiUnite;
    const std::string contenu = ComposeFichierLoi();
    EXPECT_EQ(std::ranges::count(contenu, '\n'), 722);
    LitLoi(contenu);
    ASSERT_EQ(etude.lois.LoiUnite.BorneHaute(), 720);
    EXPECT_EQ(etude.lois.LoiUnite[0].Course, 0);
    for (long i = 1; i <= 720; ++i) {
        ASSERT_EQ(etude.lois.LoiUnite[i].Course, ecrite[i - 1].Course);
        ASSERT_EQ(etude.lois.LoiUnite[i].Vitesse, std::abs(ecrite[i - 1].Vitesse));
        ASSERT_EQ(etude.lois.LoiUnite[i].Accel, std::abs(ecrite[i - 1].Accel));
    }
    EXPECT_NEAR(etude.lois.ListeLois[1].Ca, 2 * Pi, 1e-9);
    EXPECT_NEAR(etude.lois.ListeLois[1].Cv, 2, 1e-9);
    EXPECT_EQ(ChercheLoi("CYC"), 0) << "the catalogue is gone until the next start";
    EXPECT_EQ(NomsLoisZones().size(), 13U) << "its names are not";
}

TEST_F(FichierLoi, AShortFileChangesNothing) {
    Evalue("MS", 90);
    const std::string contenu = ComposeFichierLoi();
    const auto avant = etude.lois.LoiUnite.BorneHaute();
    EXPECT_THROW(LitLoi(contenu.substr(0, contenu.size() / 2)), ErreurExecution);
    EXPECT_EQ(etude.lois.LoiUnite.BorneHaute(), avant);
}

TEST_F(FichierLoi, ListingInTheUnitsOfTheStudy) {
    etude.resultats.NombrePoints = 2;
    etude.resultats.Points.Redimensionne(2);
    etude.resultats.Points[1].Angle = 0.5;
    etude.resultats.Points[2].Angle = 0.7;
    etude.resultats.Mouvement.Redimensionne(2);
    etude.resultats.Mouvement[1] = {12.34567, -0.1234567, 98.7654321};
    EXPECT_EQ(ComposeListageLoi(), "0;0;0;0\r\n.5;12.346;-.12346;98.76543\r\n.7;0;0;0\r\n");
}
