// Pictures that are drawn ahead, beside the main thread.
#include "widgets/BoutonImage.h"

#include "widgets/TravailFond.h"

#include <QApplication>
#include <gtest/gtest.h>

#include <numeric>
#include <stdexcept>
#include <vector>

namespace {

constexpr QSize Taille(90, 60);

void DessineRond(Dessin& dessin) {
    dessin.Surface(std::vector<PointDessin>{{10, 10}, {50, 12.5}, {30, 40}}, {Couleur::Came, 1.5});
}

/// What a button shows whose picture was made in the given way.
QImage Montre(BoutonImage& bouton) {
    bouton.resize(bouton.sizeHint());
    return bouton.grab().toImage();
}

} // namespace

TEST(BoutonImage, APictureDrawnAheadIsTheOneDrawnWhenShown) {
    BoutonImage prepare(DessineRond, Taille);
    BoutonImage direct(DessineRond, Taille);
    FaitAuFond(prepare.Prepare());
    const QImage attendue = Montre(direct);
    EXPECT_EQ(Montre(prepare), attendue);
    EXPECT_EQ(Montre(prepare), attendue) << "once more, from what is kept";
    EXPECT_GT(attendue.convertToFormat(QImage::Format_Indexed8).colorCount(), 4) << "there is something to see";
}

TEST(BoutonImage, ColoursThatChangeMeanwhileAreThoseShown) {
    QPalette sombre;
    sombre.setColor(QPalette::Base, Qt::black);
    BoutonImage prepare(DessineRond, Taille);
    BoutonImage direct(DessineRond, Taille);
    FaitAuFond(prepare.Prepare());
    prepare.setPalette(sombre);
    direct.setPalette(sombre);
    EXPECT_EQ(Montre(prepare), Montre(direct));
}

TEST(BoutonImage, ADrawingThatFailsHoldsUpNoOther) {
    BoutonImage fautif([](Dessin&) { throw std::runtime_error("no drawing"); }, Taille);
    EXPECT_NO_THROW(fautif.Prepare()());
}

TEST(TravailFond, JobsAreDoneInTheirOrder) {
    std::vector<int> faits;
    for (int i = 0; i < 20; ++i) FaitAuFond([i, &faits] { faits.push_back(i); });
    AttendFond();
    std::vector<int> attendus(20);
    std::iota(attendus.begin(), attendus.end(), 0);
    EXPECT_EQ(faits, attendus);
}
