// The printer on a paged paint device: a printer of the system, its preview, or a PDF document.
#pragma once

#include "platform/Imprimante.h"

#include <QFont>
#include <QPageLayout>
#include <QPageRanges>
#include <QPainter>
#include <QPicture>

#include <filesystem>
#include <functional>

class QPagedPaintDevice;

/// A procedure that prints a document and ends it.
using Pages = std::function<void(Imprimante&)>;

/// Is told the number of every page that begins, and stops the run by a failure that it throws.
using SuiviPages = std::function<void(int page)>;

class ImprimanteQt : public Imprimante {
public:
    /// @param support device, with its page layout; it outlives this object
    /// @param choix pages that are put out; all of them when empty
    explicit ImprimanteQt(QPagedPaintDevice& support, QPageRanges choix = {}, SuiviPages suivi = {});
    /// A document that was not ended is abandoned.
    ~ImprimanteQt() override;
    ImprimanteQt(const ImprimanteQt&) = delete;
    ImprimanteQt& operator=(const ImprimanteQt&) = delete;

    void Police(const std::string& nom, double taille) override;
    void Taille(double points) override;
    void Gras(bool gras) override;
    void Souligne(bool souligne) override;
    void Oriente(OrientationPage orientation) override;
    void CadreTexte(int lignes, int colonnes) override;

    void Ecrit(const std::string& texte) override;
    void TermineLigne() override;
    double Tete() const override { return y_; }
    void PlaceTete(double y) override;
    double LargeurTexte(const std::string& texte) const override;

    double Largeur() const override;
    double Hauteur() const override;

    std::unique_ptr<Dessin> Feuille(PointDessin coin, double largeur, double hauteur, double unite = 1) override;

    int Page() const override { return page_; }
    void NouvellePage() override;
    /// @throws ErreurExecution input/output when the device failed.
    void FinDocument() override;

    /// Pages put out so far.
    int PagesSorties() const { return pagesSorties_; }

private:
    QFont PoliceMesuree() const;
    void OuvrePage();
    QPainter& Peintre() { return rebut_.isActive() ? rebut_ : peintre_; }
    [[noreturn]] void Echoue() const;

    QPagedPaintDevice& support_;
    QPageRanges choix_;
    SuiviPages suivi_;
    QPainter peintre_;
    QPicture pageRefusee_; ///< takes what is printed on a page that was not asked for
    QPainter rebut_;

    QFont police_;
    double taille_ = 11; ///< points
    int lignes_ = 0, colonnes_ = 0;
    double interligne_ = 0; ///< mm
    double reduction_ = 1;  ///< of the text, on a page too small for it

    double x_ = 0, y_ = 0; ///< the head, mm
    int page_ = 1, pagesSorties_ = 0;
    bool pageOuverte_ = false;
};

/// Page layout that the reports are made for: upright A4 with a filing margin.
QPageLayout PageParDefaut();

/// The bytes of a PDF document; empty when it has no page.
/// @throws ErreurExecution whatever `pages` throws
std::string ComposePdf(const std::string& titre, const Pages& pages, const QPageLayout& page = PageParDefaut(),
                       const SuiviPages& suivi = {});

/// Prints a document into a PDF file, which is written whole or not at all.
/// @return false, and no file is written, when the document has no page.
/// @throws ErreurExecution disk full; access refused; input/output; whatever `pages` throws.
bool ImprimePdf(const std::filesystem::path& chemin, const Pages& pages, const QPageLayout& page = PageParDefaut(),
                const SuiviPages& suivi = {});
