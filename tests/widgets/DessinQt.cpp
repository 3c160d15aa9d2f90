#include "widgets/DessinQt.h"

#include "outils/DialoguesScript.h"
#include "outils/Ecrans.h"
#include "widgets/Application.h"
#include "widgets/ZoneDessin.h"

#include <QImage>
#include <QPainter>
#include <QTimer>

#include <cmath>

namespace {

/// One and a half waves of a sine, as so many chords.
QImage DessineSinus(int cordes) {
    QImage image(200, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter peintre(&image);
    std::vector<PointDessin> trace;
    for (int i = 0; i <= cordes; ++i) {
        const double x = 180.0 * i / cordes;
        trace.push_back({10 + x, 100 - 80 * std::sin(x / 20)});
    }
    DessinQt(peintre, QRectF(0, 0, 200, 200), QPalette()).Polyligne(trace, {Couleur::Courbe1, 2.0});
    return image;
}

int EcartMax(const QImage& a, const QImage& b) {
    int ecart = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            ecart = std::max(ecart, std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))));
    return ecart;
}

} // namespace

TEST(DessinQt, UneCourbeAllegeeEstLaMeme) {
    EXPECT_LT(EcartMax(DessineSinus(36000), DessineSinus(1800)), 64);
    EXPECT_GT(EcartMax(DessineSinus(36000), DessineSinus(4)), 128) << "the comparison sees nothing";
}

TEST(ZoneDessin, UneFauteDuDessinEstDiteUneFois) {
    DialoguesScript dialogues;
    ZoneDessin zone;
    int appels = 0;
    zone.Peint([&appels](Dessin&) {
        ++appels;
        throw ErreurExecution(NumeroErreur::DivisionParZero);
    });
    zone.grab();
    zone.grab();
    LaisseFaire();
    EXPECT_EQ(appels, 1);
    ASSERT_EQ(dialogues.boites.size(), 1U);
    EXPECT_EQ(dialogues.boites[0].icone, Icone::Critique);
}

TEST(Application, UneFauteDansUnEvenementEstDiteEtLeProgrammeContinue) {
    DialoguesScript dialogues;
    QTimer::singleShot(0, [] {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        throw ErreurExecution(NumeroErreur::Depassement, "NombrePoints");
    });
    QTimer::singleShot(0, [] { throw std::logic_error("no such control"); });
    LaisseFaire();
    ASSERT_EQ(dialogues.boites.size(), 2U);
    EXPECT_EQ(dialogues.boites[0].texte, TexteErreur(ErreurExecution(NumeroErreur::Depassement, "NombrePoints")));
    EXPECT_EQ(dialogues.boites[1].texte, "no such control");
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "the hourglass is gone";
}
