#include "widgets/DessinQt.h"

#include "outils/DialoguesScript.h"
#include "outils/Ecrans.h"
#include "widgets/Application.h"
#include "widgets/Etiquettes.h"
#include "widgets/ZoneDessin.h"

#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QTimer>

#include <cmath>

namespace {

const QColor Sombre(0x1E, 0x1F, 0x22);

QPalette Feuille(const QColor& base) {
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    return palette;
}

/// Relative luminance of a colour, as the accessibility guidelines for web content define it.
double Luminance(const QColor& couleur) {
    const auto lineaire = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * lineaire(couleur.redF()) + 0.7152 * lineaire(couleur.greenF()) + 0.0722 * lineaire(couleur.blueF());
}

double Contraste(const QColor& a, const QColor& b) {
    const double clair = std::max(Luminance(a), Luminance(b)), sombre = std::min(Luminance(a), Luminance(b));
    return (clair + 0.05) / (sombre + 0.05);
}

constexpr Couleur Traits[] = {Couleur::Axe,     Couleur::Texte,   Couleur::TexteDiscret, Couleur::Courbe1,
                              Couleur::Courbe2, Couleur::Courbe3, Couleur::Came,         Couleur::Primitif,
                              Couleur::Galet,   Couleur::Bras,    Couleur::Repere};

template <class Procedure> QImage Dessine(const Procedure& procedure) {
    QImage image(200, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter peintre(&image);
    DessinQt dessin(peintre, QRectF(0, 0, 200, 200), Feuille(Qt::white));
    procedure(dessin);
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

TEST(DessinQt, ContrasteSurFeuilleClaireEtSombre) {
    for (const QColor& base : {QColor(Qt::white), Sombre}) {
        const QPalette palette = Feuille(base);
        for (const Couleur couleur : Traits)
            EXPECT_GE(Contraste(CouleurTrait(couleur, palette), base), 4.5) << static_cast<int>(couleur);
        // The grid stays in the background, and is seen.
        const double grille = Contraste(CouleurTrait(Couleur::Graduation, palette), base);
        EXPECT_GT(grille, 1.2);
        EXPECT_LT(grille, 3.0);
    }
}

TEST(Etiquettes, UnitsAreLegibleOnADarkPalette) {
    for (const auto& [fond, encre] :
         {std::pair{QColor(50, 50, 50), QColor(Qt::white)}, {QColor(239, 239, 239), QColor(Qt::black)}}) {
        QWidget ecran;
        QLabel* unite = FaitUnite("mm");
        unite->setParent(&ecran);
        ecran.setPalette(QPalette(encre, fond, fond, fond, fond, encre, encre, fond, fond));
        QImage melange(1, 1, QImage::Format_RGB32);
        melange.fill(fond);
        QPainter(&melange).fillRect(0, 0, 1, 1, unite->palette().color(unite->foregroundRole()));
        EXPECT_GE(Contraste(melange.pixelColor(0, 0), fond), 4.5) << S(fond.name());
    }
}

TEST(DessinQt, UneCourbeAllegeeEstLaMeme) {
    const auto courbe = [](int points) {
        return Dessine([points](DessinQt& dessin) {
            std::vector<PointDessin> trace;
            for (int i = 0; i <= points; ++i) {
                const double x = 180.0 * i / points;
                trace.push_back({10 + x, 100 - 80 * std::sin(x / 20)});
            }
            dessin.Polyligne(trace, {Couleur::Courbe1, 2.0});
        });
    };
    EXPECT_LT(EcartMax(courbe(36000), courbe(1800)), 64);
    EXPECT_GT(EcartMax(courbe(36000), courbe(4)), 128) << "the comparison sees nothing";
    const QImage minuscule = Dessine([](DessinQt& dessin) {
        const PointDessin points[] = {{50, 50}, {50.1, 50}, {50.2, 50}};
        dessin.Polyligne(points, {Couleur::Axe, 4.0});
    });
    EXPECT_LT(qGray(minuscule.pixel(50, 50)), 128) << "a tiny curve is still a mark";
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
    zone.Peint([](Dessin& dessin) { dessin.Disque({5, 5}, 3, {}); });
    zone.grab();
    EXPECT_EQ(dialogues.boites.size(), 1U);
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
