#include "widgets/DessinQt.h"

#include "widgets/Chaines.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

/// Points of a polyline nearer than this to the last one kept, in pixels, are left out: nobody could see them.
constexpr double EcartMinPixels = 1.0;

/// Share of the stroke's colour in the shade that fills a surface.
constexpr double PartTeinte = 0.16;

/// The smallest font size that the toolkit draws legibly, pixels.
constexpr double TaillePoliceMin = 6.0;

struct Teintes {
    Couleur couleur;
    QRgb claire; ///< on a light sheet
    QRgb sombre; ///< on a dark sheet
};

constexpr std::array<Teintes, 12> LesTeintes{{
    {Couleur::Axe, 0x3A3F47, 0xD5D9DF},
    {Couleur::Graduation, 0xD3D8DF, 0x4A515B},
    {Couleur::Texte, 0x1B1E23, 0xF0F2F5},
    {Couleur::TexteDiscret, 0x5F6773, 0xA6AFBB},
    {Couleur::Courbe1, 0x0B5CAD, 0x6CB6FF},
    {Couleur::Courbe2, 0xB93C0A, 0xFF9B63},
    {Couleur::Courbe3, 0x157A3A, 0x6FDC8C},
    {Couleur::Came, 0x1F4E79, 0x8ECBFF},
    {Couleur::Primitif, 0x8A6200, 0xE6C35C},
    {Couleur::Galet, 0x6D33C9, 0xC7ACFF},
    {Couleur::Bras, 0x475160, 0xC3CAD4},
    {Couleur::Repere, 0xCB1528, 0xFF7B86},
}};

/// The sixteen colours by number, in the order of the old displays: black, blue, green, cyan, red, magenta, brown,
/// grey, and the same once more, brighter. Each stands out on its sheet.
constexpr std::array<std::pair<QRgb, QRgb>, NombreCouleurs> LesNumeros{{
    {0x1B1E23, 0xF0F2F5},
    {0x1238B0, 0x7FA8FF},
    {0x0B7A2F, 0x5BD483},
    {0x007A87, 0x55D6E2},
    {0xB01622, 0xFF7B86},
    {0x8E1A8E, 0xEE8CEE},
    {0x8A5A00, 0xE0B25C},
    {0x7A828C, 0xB9C0C9},
    {0x4A515B, 0x98A1AD},
    {0x3F74F2, 0xA9C4FF},
    {0x2AA84F, 0x93EBB0},
    {0x0FA3B5, 0x97EFF7},
    {0xE8434F, 0xFFADB4},
    {0xC640C6, 0xFFB8FF},
    {0xA88B00, 0xFFEB85},
    {0x9AA1AB, 0xDDE2E8},
}};

bool FeuilleSombre(const QPalette& palette) {
    return palette.color(QPalette::Base).lightness() < 128;
}

/// What lies further out is drawn there, in the unit of the surface: far from any sheet, and near enough for the
/// arithmetic of the toolkit.
constexpr double LimiteTrace = 1e6;

double Borne(double x) {
    return std::isnan(x) ? 0.0 : std::clamp(x, -LimiteTrace, LimiteTrace);
}

QPointF EnQPoint(PointDessin p) {
    return {Borne(p.x), Borne(p.y)};
}

/// A stroke longer than this, in its own widths, is drawn solid: the toolkit makes each dash of it, seen or not.
constexpr double TiretsMax = 1e5;

double Longueur(const std::vector<QPointF>& points) {
    double longueur = 0;
    for (std::size_t i = 1; i < points.size(); ++i)
        longueur += std::hypot(points[i].x() - points[i - 1].x(), points[i].y() - points[i - 1].y());
    return longueur;
}

} // namespace

QColor CouleurTrait(Couleur couleur, const QPalette& palette) {
    const auto opaque = [&](QRgb claire, QRgb sombre) {
        return QColor::fromRgb(0xFF000000U | (FeuilleSombre(palette) ? sombre : claire));
    };
    if (couleur >= Couleur::Numero) {
        const auto [claire, sombre] =
            LesNumeros.at(static_cast<std::size_t>(couleur) - static_cast<std::size_t>(Couleur::Numero));
        return opaque(claire, sombre);
    }
    for (const Teintes& teintes : LesTeintes)
        if (teintes.couleur == couleur) return opaque(teintes.claire, teintes.sombre);
    return palette.color(QPalette::Text);
}

DessinQt::DessinQt(QPainter& peintre, const QRectF& cadre, const QPalette& palette)
    : peintre_(peintre), cadre_(cadre), palette_(palette) {
    peintre_.save();
    peintre_.setRenderHint(QPainter::Antialiasing);
    peintre_.translate(cadre_.topLeft());
    const double echelle = std::sqrt(std::abs(peintre_.worldTransform().determinant()));
    ecartMin_ = EcartMinPixels / (echelle > 0 ? echelle : 1);
}

DessinQt::~DessinQt() {
    peintre_.restore();
}

void DessinQt::PrendTrait(const Trait& trait, double longueur) {
    QPen plume(CouleurTrait(trait.couleur, palette_), trait.epaisseur, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (trait.pointille && longueur <= TiretsMax * trait.epaisseur) {
        plume.setCapStyle(Qt::FlatCap);
        plume.setDashPattern({5, 4});
    }
    peintre_.setPen(plume);
    peintre_.setBrush(Qt::NoBrush);
}

void DessinQt::PrendTeinte(Couleur couleur) {
    const QColor trait = CouleurTrait(couleur, palette_);
    const QColor feuille = palette_.color(QPalette::Base);
    const auto melange = [](int a, int b) { return static_cast<int>(PartTeinte * a + (1 - PartTeinte) * b); };
    peintre_.setBrush(QColor(melange(trait.red(), feuille.red()), melange(trait.green(), feuille.green()),
                             melange(trait.blue(), feuille.blue())));
}

const std::vector<QPointF>& DessinQt::Allege(std::span<const PointDessin> points) {
    points_.clear();
    const double carre = ecartMin_ * ecartMin_;
    for (const PointDessin& point : points) {
        const QPointF p = EnQPoint(point);
        if (!points_.empty()) {
            const QPointF ecart = p - points_.back();
            if (QPointF::dotProduct(ecart, ecart) < carre) continue;
        }
        points_.push_back(p);
    }
    // A stroke ends where it ends; one whose points all fall together is still a dot.
    if (!points.empty() && (points_.size() == 1 || points_.back() != EnQPoint(points.back())))
        points_.push_back(EnQPoint(points.back()));
    return points_;
}

void DessinQt::Ligne(PointDessin de, PointDessin a, const Trait& trait) {
    const QPointF debut = EnQPoint(de), fin = EnQPoint(a);
    PrendTrait(trait, std::hypot(fin.x() - debut.x(), fin.y() - debut.y()));
    peintre_.drawLine(debut, fin);
}

void DessinQt::Polyligne(std::span<const PointDessin> points, const Trait& trait) {
    if (points.empty()) return;
    const std::vector<QPointF>& gardes = Allege(points);
    PrendTrait(trait, Longueur(gardes));
    peintre_.drawPolyline(gardes.data(), static_cast<int>(gardes.size()));
}

void DessinQt::Surface(std::span<const PointDessin> points, const Trait& trait) {
    if (points.empty()) return;
    const std::vector<QPointF>& gardes = Allege(points);
    PrendTrait(trait, Longueur(gardes));
    PrendTeinte(trait.couleur);
    peintre_.drawPolygon(gardes.data(), static_cast<int>(gardes.size()));
}

void DessinQt::Cercle(PointDessin centre, double rayon, const Trait& trait) {
    PrendTrait(trait, 2 * std::numbers::pi * rayon);
    peintre_.drawEllipse(EnQPoint(centre), Borne(rayon), Borne(rayon));
}

void DessinQt::Disque(PointDessin centre, double rayon, const Trait& trait) {
    PrendTrait(trait, 2 * std::numbers::pi * rayon);
    PrendTeinte(trait.couleur);
    peintre_.drawEllipse(EnQPoint(centre), Borne(rayon), Borne(rayon));
}

QFont DessinQt::Police(double hauteur) const {
    QFont police = peintre_.font();
    police.setPixelSize(static_cast<int>(std::lround(std::max(hauteur, TaillePoliceMin))));
    return police;
}

void DessinQt::Texte(PointDessin p, const std::string& texte, Ancrage ancrage, double hauteur, Couleur couleur) {
    const QString ligne = Q(texte);
    const QFont police = Police(hauteur);
    const QFontMetricsF mesures(police);
    const double largeur = mesures.horizontalAdvance(ligne);
    const double recul = ancrage == Ancrage::Gauche ? 0 : ancrage == Ancrage::Centre ? largeur / 2 : largeur;
    peintre_.save();
    peintre_.setFont(police);
    peintre_.setPen(CouleurTrait(couleur, palette_));
    // The vertical middle of a line of figures and capitals lies half their height above the baseline.
    const QPointF place = EnQPoint(p);
    peintre_.drawText(QPointF(place.x() - recul, place.y() + mesures.capHeight() / 2), ligne);
    peintre_.restore();
}

double DessinQt::LargeurTexte(const std::string& texte, double hauteur) const {
    return QFontMetricsF(Police(hauteur)).horizontalAdvance(Q(texte));
}
