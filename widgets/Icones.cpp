#include "widgets/Icones.h"

#include "widgets/Chaines.h"
#include "widgets/MoteurImage.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <algorithm>
#include <stdexcept>

namespace {

/// Side of the grid that the strokes stand on.
constexpr double Grille24 = 24;
constexpr double EpaisseurTrait = 1.6;

/// Strokes of one icon, one letter and its numbers each: M x y starts a line, L x y goes on, Q cx cy x y bends on, Z
/// closes; O x y r is a circle, A x y r start span an arc (degrees, against the clock); F before a closed figure or a
/// circle fills it.
struct DessinIcone {
    const char* cle;
    const char* traits;
};

// clang-format off
constexpr DessinIcone LesIcones[] = {
    // a cam, its shaft, and the roller on it: the program itself
    {"Velorin", "M 10 6 Q 17 5.5 17.5 13 Q 17.5 21.5 9.5 21.5 Q 2.5 21.5 2.5 14.5 Q 2.5 6.5 10 6 Z O 9.8 14 2 O 18.4 5.4 3.2"},
    // a sheet with a turned corner and a plus sign
    {"Nouveau", "M 5 3 L 14 3 L 19 8 L 19 21 L 5 21 Z M 14 3 L 14 8 L 19 8 M 12 11 L 12 18 M 8.5 14.5 L 15.5 14.5"},
    // an open folder
    {"Ouvre", "M 3 19 L 3 5 L 9 5 L 11 7.5 L 19 7.5 L 19 11 M 3 19 L 6.5 11 L 22 11 L 18.5 19 Z"},
    // a diskette
    {"Sauve", "M 4 4 L 17 4 L 20 7 L 20 20 L 4 20 Z M 8 4 L 8 9 L 15.5 9 L 15.5 4 M 7 20 L 7 13 L 17 13 L 17 20"},
    // a flywheel: rim, hub, spokes
    {"Inerties",
     "O 12 12 9 O 12 12 6.5 F O 12 12 2 M 12 10 L 12 5.5 M 12 14 L 12 18.5 M 10 12 L 5.5 12 M 14 12 L 18.5 12"},
    // an i in a circle
    {"Propos", "O 12 12 9 F O 12 7.6 1.1 M 12 11 L 12 17.2 M 10.3 11 L 12 11 M 10.2 17.2 L 13.8 17.2"},
    // a printer with a sheet
    {"Imprime",
     "M 7 9 L 7 3 L 17 3 L 17 9 M 7 17 L 3.5 17 L 3.5 9 L 20.5 9 L 20.5 17 L 17 17 M 7 14 L 17 14 L 17 21 L 7 21 Z "
     "F O 17.4 11.6 0.9"},
    // axes and one swing of a motion law
    {"LoisMouvement", "M 4 3 L 4 20 L 21 20 M 4 20 Q 10 20 12 12.5 Q 14 5 20 5"},
    // axes and a law with a dwell and a quick return
    {"LoisMouvementSpe", "M 4 3 L 4 20 L 21 20 M 4 18 Q 6 18 7 12 Q 8 6 10 6 L 13 6 Q 15 6 15.7 12 Q 16.4 17 20.5 17 "
                         "M 17 3 L 17 8 M 14.5 5.5 L 19.5 5.5"},
    // a door and an arrow that leaves
    {"Quitter",
     "M 13 3 L 4 3 L 4 21 L 13 21 M 13 3 L 13 7.5 M 13 16.5 L 13 21 M 9 12 L 20.5 12 M 17 8.5 L 20.5 12 L 17 15.5"},
    // turning arrows
    {"SensTrigo", "A 12 12 8 40 280 M 14.4 18.5 L 18.1 17.1 L 17.4 21.1 F O 12 12 1.5"},
    {"SensHorloge", "A 12 12 8 140 -280 M 9.6 18.5 L 5.9 17.1 L 6.6 21.1 F O 12 12 1.5"},
    // the help window: to and fro, larger and smaller letters, up and down
    {"Arriere", "M 20 12 L 4 12 M 10.5 5.5 L 4 12 L 10.5 18.5"},
    {"Avant", "M 4 12 L 20 12 M 13.5 5.5 L 20 12 L 13.5 18.5"},
    {"Agrandir", "O 10.5 10.5 6.5 M 15.3 15.3 L 21 21 M 10.5 7.5 L 10.5 13.5 M 7.5 10.5 L 13.5 10.5"},
    {"Reduire", "O 10.5 10.5 6.5 M 15.3 15.3 L 21 21 M 7.5 10.5 L 13.5 10.5"},
    {"TrouvePrecedent", "M 5 15.5 L 12 8.5 L 19 15.5"},
    {"TrouveSuivant", "M 5 8.5 L 12 15.5 L 19 8.5"},
    // a bar that goes on to the right, or below
    {"SuiteDroite", "M 6 6 L 12 12 L 6 18 M 13 6 L 19 12 L 13 18"},
    {"SuiteBas", "M 6 6 L 12 12 L 18 6 M 6 13 L 12 19 L 18 13"},
    {"Tourner", "F M 7 4 L 19.5 12 L 7 20 Z"},
    {"Arret", "F M 6 6 L 18 6 L 18 18 L 6 18 Z"},
};
// clang-format on

/// Reads the letters and numbers of an icon's strokes.
class Traceur {
public:
    Traceur(QPainter& peintre, const QColor& couleur) : peintre_(peintre), couleur_(couleur) {
        peintre_.setPen(QPen(couleur_, EpaisseurTrait, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }

    void Trace(const char* traits) {
        const QStringList mots = QString::fromLatin1(traits).split(' ');
        for (qsizetype i = 0; i < mots.size();) {
            const char lettre = mots[i].front().toLatin1();
            const auto n = [&mots, i](int rang) { return mots.value(i + rang).toDouble(); };
            i += 1 + Figure(lettre, n);
        }
        Termine();
    }

private:
    /// Draws one letter; gives the count of its numbers.
    template <class Nombre> int Figure(char lettre, const Nombre& n) {
        switch (lettre) {
        case 'M':
            Termine();
            chemin_.moveTo(n(1), n(2));
            return 2;
        case 'L':
            chemin_.lineTo(n(1), n(2));
            return 2;
        case 'Q':
            chemin_.quadTo(n(1), n(2), n(3), n(4));
            return 4;
        case 'Z':
            chemin_.closeSubpath();
            return 0;
        case 'O':
            Termine();
            chemin_.addEllipse(QPointF(n(1), n(2)), n(3), n(3));
            return 3;
        case 'A': {
            Termine();
            const QRectF cadre(n(1) - n(3), n(2) - n(3), 2 * n(3), 2 * n(3));
            chemin_.arcMoveTo(cadre, n(4));
            chemin_.arcTo(cadre, n(4), n(5));
            return 5;
        }
        case 'F':
            Termine();
            plein_ = true;
            return 0;
        default:
            throw std::logic_error(std::string("no icon stroke ") + lettre);
        }
    }

    void Termine() {
        if (chemin_.isEmpty()) return;
        peintre_.setBrush(plein_ ? QBrush(couleur_) : QBrush(Qt::NoBrush));
        peintre_.drawPath(chemin_);
        chemin_ = QPainterPath();
        plein_ = false;
    }

    QPainter& peintre_;
    QColor couleur_;
    QPainterPath chemin_;
    bool plein_ = false;
};

class MoteurIcone : public MoteurImage {
public:
    explicit MoteurIcone(const DessinIcone& dessin) : dessin_(dessin) {}

    void paint(QPainter* peintre, const QRect& cadre, QIcon::Mode mode, QIcon::State) override {
        const QPalette palette = QGuiApplication::palette();
        const auto groupe = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const double cote = std::min(cadre.width(), cadre.height());
        peintre->save();
        peintre->setRenderHint(QPainter::Antialiasing);
        peintre->translate(cadre.x() + (cadre.width() - cote) / 2, cadre.y() + (cadre.height() - cote) / 2);
        peintre->scale(cote / Grille24, cote / Grille24);
        Traceur(*peintre, palette.color(groupe, QPalette::ButtonText)).Trace(dessin_.traits);
        peintre->restore();
    }

    QIconEngine* clone() const override { return new MoteurIcone(*this); }

private:
    DessinIcone dessin_;
};

} // namespace

QStringList ClesIcones() {
    QStringList cles;
    for (const DessinIcone& dessin : LesIcones) cles << QString::fromLatin1(dessin.cle);
    return cles;
}

QIcon IconeBarre(const QString& cle) {
    for (const DessinIcone& dessin : LesIcones)
        if (cle == QLatin1String(dessin.cle)) return QIcon(new MoteurIcone(dessin));
    throw std::logic_error("no icon " + S(cle) + " among: " + S(ClesIcones().join(' ')));
}
