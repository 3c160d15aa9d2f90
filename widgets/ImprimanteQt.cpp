// Everything is painted in hundredths of a millimetre: font sizes and metrics are whole numbers there, and fine enough.
#include "widgets/ImprimanteQt.h"

#include "core/ErreurExecution.h"
#include "core/FichierEntier.h"
#include "widgets/Chaines.h"
#include "widgets/DessinQt.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPalette>
#include <QPdfWriter>
#include <QPrinter>

#include <algorithm>
#include <vector>

namespace {

constexpr double Fin = 100; // units of the painter a millimetre
constexpr double MmPouce = 25.4, MmPoint = MmPouce / 72;

/// Lines may come this near, as a share of the font size, before the text is reduced.
constexpr double InterligneMin = 0.9;

constexpr int ResolutionPdf = 1200; // dots per inch

/// Ink on white paper, whatever the palette of the screen.
QPalette PalettePapier() {
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

/// A surface in a unit of its own on one in the unit of the painter.
class DessinPapier final : public Dessin {
public:
    DessinPapier(QPainter& peintre, const QRectF& mm, double unite)
        : fin_(peintre, QRectF(mm.topLeft() * Fin, mm.size() * Fin), PalettePapier()), unite_(unite * Fin) {}

    double Largeur() const override { return fin_.Largeur() / unite_; }
    double Hauteur() const override { return fin_.Hauteur() / unite_; }
    void Ligne(PointDessin de, PointDessin a, const Trait& t) override { fin_.Ligne(Fine(de), Fine(a), Fine(t)); }
    void Polyligne(std::span<const PointDessin> points, const Trait& t) override {
        fin_.Polyligne(Fine(points), Fine(t));
    }
    void Surface(std::span<const PointDessin> points, const Trait& t) override { fin_.Surface(Fine(points), Fine(t)); }
    void Cercle(PointDessin centre, double rayon, const Trait& t) override {
        fin_.Cercle(Fine(centre), rayon * unite_, Fine(t));
    }
    void Disque(PointDessin centre, double rayon, const Trait& t) override {
        fin_.Disque(Fine(centre), rayon * unite_, Fine(t));
    }
    void Texte(PointDessin p, const std::string& texte, Ancrage ancrage, double hauteur, Couleur couleur) override {
        fin_.Texte(Fine(p), texte, ancrage, hauteur * unite_, couleur);
    }
    double LargeurTexte(const std::string& texte, double hauteur) const override {
        return fin_.LargeurTexte(texte, hauteur * unite_) / unite_;
    }

private:
    PointDessin Fine(PointDessin p) const { return {p.x * unite_, p.y * unite_}; }
    Trait Fine(Trait t) const { return {t.couleur, t.epaisseur * unite_, t.pointille}; }
    std::span<const PointDessin> Fine(std::span<const PointDessin> points) {
        points_.clear();
        for (const PointDessin& p : points) points_.push_back(Fine(p));
        return points_;
    }

    DessinQt fin_;
    double unite_; ///< units of the painter
    std::vector<PointDessin> points_;
};

int TaillePixels(double points) {
    return static_cast<int>(points * MmPoint * Fin);
}

} // namespace

ImprimanteQt::ImprimanteQt(QPagedPaintDevice& support, QPageRanges choix, SuiviPages suivi)
    : support_(support), choix_(std::move(choix)), suivi_(std::move(suivi)) {
    police_.setKerning(false);
    police_.setStyleHint(QFont::TypeWriter);
    police_.setFixedPitch(true);
    Police("Courier New", taille_);
}

ImprimanteQt::~ImprimanteQt() {
    auto* imprimante = dynamic_cast<QPrinter*>(&support_);
    if (peintre_.isActive() && imprimante != nullptr) imprimante->abort();
}

void ImprimanteQt::Police(const std::string& nom, double taille) {
    // Where the font itself is missing, one of the same widths takes its place, then any of fixed pitch.
    police_.setFamilies({Q(nom), QStringLiteral("Liberation Mono"), QStringLiteral("Cousine")});
    Taille(taille);
    CadreTexte(lignes_, colonnes_);
}

void ImprimanteQt::Taille(double points) {
    taille_ = points;
}

void ImprimanteQt::Gras(bool gras) {
    police_.setBold(gras);
}

void ImprimanteQt::Souligne(bool souligne) {
    police_.setUnderline(souligne);
}

void ImprimanteQt::Oriente(OrientationPage orientation) {
    const auto voulue = orientation == OrientationPage::Portrait ? QPageLayout::Portrait : QPageLayout::Landscape;
    if (support_.pageLayout().orientation() != voulue) support_.setPageOrientation(voulue);
    CadreTexte(lignes_, colonnes_);
}

void ImprimanteQt::CadreTexte(int lignes, int colonnes) {
    lignes_ = lignes;
    colonnes_ = colonnes;
    reduction_ = 1;
    const QFontMetricsF mesures(PoliceMesuree());
    interligne_ = mesures.lineSpacing() / Fin;
    if (lignes > 0) interligne_ = std::min(interligne_, Hauteur() / lignes);
    const double parLignes = interligne_ / (InterligneMin * taille_ * MmPoint);
    const double parColonnes = colonnes > 0 ? Largeur() * Fin / (colonnes * mesures.horizontalAdvance('0')) : 1;
    reduction_ = std::min({1.0, parLignes, parColonnes});
}

QFont ImprimanteQt::PoliceMesuree() const {
    QFont police = police_;
    police.setPixelSize(std::max(1, TaillePixels(taille_ * reduction_)));
    return police;
}

double ImprimanteQt::Largeur() const {
    return support_.pageLayout().paintRect(QPageLayout::Millimeter).width();
}

double ImprimanteQt::Hauteur() const {
    return support_.pageLayout().paintRect(QPageLayout::Millimeter).height();
}

double ImprimanteQt::LargeurTexte(const std::string& texte) const {
    return QFontMetricsF(PoliceMesuree()).horizontalAdvance(Q(texte)) / Fin;
}

void ImprimanteQt::OuvrePage() {
    if (pageOuverte_) return;
    if (suivi_) suivi_(page_);
    pageOuverte_ = true;
    if (!choix_.isEmpty() && !choix_.contains(page_)) {
        pageRefusee_ = QPicture();
        rebut_.begin(&pageRefusee_);
        return;
    }
    const bool prete = peintre_.isActive() ? support_.newPage() : peintre_.begin(&support_);
    if (!prete) Echoue();
    ++pagesSorties_;
    peintre_.resetTransform();
    peintre_.scale(support_.logicalDpiX() / MmPouce / Fin, support_.logicalDpiY() / MmPouce / Fin);
}

void ImprimanteQt::Ecrit(const std::string& texte) {
    const QString ligne = Q(texte);
    const QFont police = PoliceMesuree();
    const QFontMetricsF mesures(police);
    if (!ligne.trimmed().isEmpty()) {
        OuvrePage();
        QPainter& peintre = Peintre();
        peintre.setPen(Qt::black);
        peintre.setFont(police);
        // The line hangs in the middle of its space, however much of that there is.
        const double base = (interligne_ * Fin + mesures.ascent() - mesures.descent()) / 2;
        peintre.drawText(QPointF(x_ * Fin, y_ * Fin + base), ligne);
    }
    x_ += mesures.horizontalAdvance(ligne) / Fin;
}

void ImprimanteQt::TermineLigne() {
    x_ = 0;
    y_ += interligne_;
}

void ImprimanteQt::PlaceTete(double y) {
    x_ = 0;
    y_ = y;
}

std::unique_ptr<Dessin> ImprimanteQt::Feuille(PointDessin coin, double largeur, double hauteur, double unite) {
    OuvrePage();
    QFont police = police_;
    police.setBold(false);
    police.setUnderline(false);
    Peintre().setFont(police);
    return std::make_unique<DessinPapier>(Peintre(), QRectF(coin.x, coin.y, largeur, hauteur), unite);
}

void ImprimanteQt::NouvellePage() {
    PlaceTete(0);
    if (!pageOuverte_) return;
    if (rebut_.isActive()) rebut_.end();
    pageOuverte_ = false;
    ++page_;
    const auto* imprimante = dynamic_cast<QPrinter*>(&support_);
    if (imprimante != nullptr && imprimante->printerState() == QPrinter::Error) Echoue();
}

void ImprimanteQt::FinDocument() {
    NouvellePage();
    if (peintre_.isActive() && !peintre_.end()) Echoue();
}

void ImprimanteQt::Echoue() const {
    const auto* imprimante = dynamic_cast<const QPrinter*>(&support_);
    throw ErreurExecution(NumeroErreur::EntreeSortie, imprimante == nullptr ? "" : S(imprimante->printerName()));
}

QPageLayout PageParDefaut() {
    return {QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(15, 10, 10, 10), QPageLayout::Millimeter};
}

std::string ComposePdf(const std::string& titre, const Pages& pages, const QPageLayout& page, const SuiviPages& suivi) {
    QByteArray contenu;
    QBuffer tampon(&contenu);
    tampon.open(QIODevice::WriteOnly);
    {
        QPdfWriter support(&tampon);
        support.setResolution(ResolutionPdf);
        support.setPageLayout(page);
        support.setTitle(Q(titre));
        support.setCreator(QStringLiteral("Velorin"));
        ImprimanteQt imprimante(support, {}, suivi);
        pages(imprimante);
        imprimante.FinDocument();
    }
    return contenu.toStdString();
}

bool ImprimePdf(const std::filesystem::path& chemin, const Pages& pages, const QPageLayout& page,
                const SuiviPages& suivi) {
    const std::string contenu = ComposePdf(chemin.stem().string(), pages, page, suivi);
    if (contenu.empty()) return false;
    EcritFichierEntier(chemin, contenu);
    return true;
}
