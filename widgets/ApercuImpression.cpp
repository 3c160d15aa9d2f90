#include "widgets/ApercuImpression.h"

#include "data/Demarrage.h"
#include "platform/Dialogues.h"
#include "widgets/Application.h"
#include "widgets/Chaines.h"
#include "widgets/Icones.h"
#include "widgets/ImprimantePoste.h"
#include "widgets/Legendes.h"
#include "widgets/Nomme.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QProgressDialog>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>
#include <limits>
#include <memory>

namespace {

constexpr Legende legendes[] = {
    {"ApercuImpression", 0, 697}, {"Precedent", 0, 16}, {"Suivant", 0, 17}, {"Reduire", 0, 699}, {"Agrandir", 0, 698},
    {"PageEntiere", 0, 700},      {"Fermer", 0, 5},     {"Pdf", 0, 791},    {"Imprimer", 0, 56},
};

constexpr int TexteAnnuler = 4, TextePreparation = 840;
constexpr int DelaiSuivi = 500; ///< ms that a run may take before it is shown to be under way

/// Shows the page under way of a run that takes a while, and stops it.
class SuiviImpression {
public:
    explicit SuiviImpression(QWidget* parent) : dialogue_(QString(), QTexte(TexteAnnuler), 0, 0, parent) {
        dialogue_.setObjectName(QStringLiteral("SuiviImpression"));
        dialogue_.setWindowModality(Qt::ApplicationModal);
        dialogue_.setMinimumDuration(std::numeric_limits<int>::max()); // shown by the count of the pages only
        duree_.start();
    }

    /// @throws ErreurExecution the run was stopped.
    void operator()(int page) {
        if (duree_.elapsed() < DelaiSuivi) return;
        dialogue_.setLabelText(QTexte(TextePreparation) + " " + QString::number(page));
        if (!dialogue_.wasCanceled()) dialogue_.show();
        QCoreApplication::processEvents();
        if (dialogue_.wasCanceled()) throw ErreurExecution(NumeroErreur::Interruption);
    }

private:
    QProgressDialog dialogue_;
    QElapsedTimer duree_;
};

/// Does what the user may stop; false when he did.
template <class Etape> bool Acheve(Etape etape) {
    try {
        etape();
        return true;
    } catch (const ErreurExecution& erreur) {
        if (erreur.numero != NumeroErreur::Interruption) throw;
        return false;
    }
}

/// Room that suits an upright page, inside the display.
QSize TailleInitiale(const QWidget& fenetre) {
    const QSize place = fenetre.screen()->availableSize();
    return {std::min(860, place.width() * 9 / 10), std::min(1040, place.height() * 9 / 10)};
}

} // namespace

ApercuImpression::ApercuImpression(Pages pages, QString nom, QWidget* parent)
    : QDialog(parent), pages_(std::move(pages)), nom_(std::move(nom)) {
    setObjectName(QStringLiteral("ApercuImpression"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    apercu_ = Nomme(new QPrintPreviewWidget(&ImprimanteDuPoste()), "Apercu");
    connect(apercu_, &QPrintPreviewWidget::paintRequested, this, &ApercuImpression::DessinePages);
    connect(apercu_, &QPrintPreviewWidget::previewChanged, this, &ApercuImpression::MontrePage);
    FaitBoutons();
    AppliqueLegendes(*this, legendes);
    resize(TailleInitiale(*this));
    apercu_->updatePreview();
    if (echec_) std::rethrow_exception(echec_);
    apercu_->setZoomMode(QPrintPreviewWidget::FitInView);
    MontrePage();
}

void ApercuImpression::DessinePages(QPrinter* imprimante) {
    SuiviImpression suivi(parentWidget());
    ImprimanteQt surEcran(*imprimante, {}, std::ref(suivi));
    // An exception must not go through the toolkit: the first is kept until the toolkit is done. The document is ended
    // all the same, because the toolkit looks at its pages.
    const auto garde = [this](auto&& etape) {
        try {
            etape();
        } catch (...) {
            if (!echec_) echec_ = std::current_exception();
        }
    };
    garde([&] { pages_(surEcran); });
    garde([&] { surEcran.FinDocument(); });
    nombrePages_ = surEcran.PagesSorties();
    // The toolkit would take the pages of the last preview for those of a document that never began.
    if (nombrePages_ == 0) QPainter(imprimante).end();
}

void ApercuImpression::FaitBoutons() {
    auto* navigation = new QHBoxLayout;
    auto* actions = new QHBoxLayout;
    const auto ajoute = [this](QHBoxLayout* rangee, const char* nom, auto procedure) {
        auto* bouton = Nomme(new QPushButton, nom);
        bouton->setAutoDefault(false);
        rangee->addWidget(bouton);
        connect(bouton, &QPushButton::clicked, this, procedure);
        return bouton;
    };
    precedent_ = ajoute(navigation, "Precedent", [this] { VaALaPage(apercu_->currentPage() - 1); });
    suivant_ = ajoute(navigation, "Suivant", [this] { VaALaPage(apercu_->currentPage() + 1); });
    page_ = Nomme(new QLabel, "Page");
    navigation->addSpacing(8);
    navigation->addWidget(page_);
    navigation->addStretch();
    ajoute(navigation, "Reduire", [this] { apercu_->zoomOut(); });
    ajoute(navigation, "Agrandir", [this] { apercu_->zoomIn(); });
    ajoute(navigation, "PageEntiere", [this] { apercu_->setZoomMode(QPrintPreviewWidget::FitInView); });

    ajoute(actions, "Fermer", [this] { reject(); });
    actions->addStretch();
    auto* pdf = ajoute(actions, "Pdf", [this] { EcritPdf(); });
    auto* imprimer = ajoute(actions, "Imprimer", [this] { Imprime(); });
    imprimer->setIcon(IconeBarre(QStringLiteral("Imprime")));
    imprimer->setEnabled(ImprimanteInstallee());
    if (!imprimer->isEnabled()) imprimer->setToolTip(QTexte(702));
    (imprimer->isEnabled() ? imprimer : pdf)->setDefault(true);

    const auto touche = [this](const QKeySequence& touches, auto procedure) {
        connect(new QShortcut(touches, this), &QShortcut::activated, this, procedure);
    };
    touche(Qt::Key_PageUp, [this] { VaALaPage(apercu_->currentPage() - 1); });
    touche(Qt::Key_PageDown, [this] { VaALaPage(apercu_->currentPage() + 1); });
    touche(Qt::CTRL | Qt::Key_Home, [this] { VaALaPage(1); });
    touche(Qt::CTRL | Qt::Key_End, [this] { VaALaPage(NombrePages()); });
    touche(QKeySequence::ZoomIn, [this] { apercu_->zoomIn(); });
    touche(QKeySequence::ZoomOut, [this] { apercu_->zoomOut(); });

    auto* disposition = new QVBoxLayout(this);
    disposition->addLayout(navigation);
    disposition->addWidget(apercu_, 1);
    disposition->addLayout(actions);
}

void ApercuImpression::VaALaPage(int page) {
    apercu_->setCurrentPage(std::clamp(page, 1, std::max(1, NombrePages())));
    MontrePage();
}

void ApercuImpression::MontrePage() {
    page_->setText(QTexte(413) + QString::number(apercu_->currentPage()) + " / " + QString::number(NombrePages()));
    precedent_->setEnabled(apercu_->currentPage() > 1);
    suivant_->setEnabled(apercu_->currentPage() < NombrePages());
}

void ApercuImpression::Imprime() {
    QPrinter& imprimante = ImprimanteDuPoste();
    QPrintDialog dialogue(&imprimante, this);
    dialogue.setWindowTitle(QTexte(765));
    dialogue.setOption(QAbstractPrintDialog::PrintToFile, false); // a PDF has its own way, whole or not at all
    dialogue.setOption(QAbstractPrintDialog::PrintPageRange);
    dialogue.setOption(QAbstractPrintDialog::PrintCurrentPage);
    dialogue.setMinMax(1, NombrePages());
    if (dialogue.exec() != QDialog::Accepted) return;
    QPageRanges choix;
    if (imprimante.printRange() == QPrinter::CurrentPage) choix.addPage(apercu_->currentPage());
    if (imprimante.printRange() == QPrinter::PageRange) choix = imprimante.pageRanges();
    const bool acheve = Acheve([&] {
        const Sablier sablier;
        SuiviImpression suivi(this);
        ImprimanteQt surPapier(imprimante, choix, std::ref(suivi));
        pages_(surPapier);
        surPapier.FinDocument();
    });
    if (acheve) accept();
}

void ApercuImpression::EcritPdf() {
    const auto chemin =
        LesDialogues().FichierASauver({Texte(703), CheminEtudes, S(nom_) + ".pdf", {{"PDF (*.pdf)", "*.pdf"}}});
    if (!chemin || chemin->empty()) return;
    const Sablier sablier;
    SuiviImpression suivi(this);
    Acheve([&] { ImprimePdf(*chemin, pages_, ImprimanteDuPoste().pageLayout(), std::ref(suivi)); });
}

void ApercuEtImprime(QWidget* parent, const QString& nom, const Pages& pages) {
    std::unique_ptr<ApercuImpression> apercu;
    const bool acheve = Acheve([&] {
        const Sablier sablier;
        apercu = std::make_unique<ApercuImpression>(pages, nom, parent);
    });
    if (!acheve) return;
    if (apercu->NombrePages() == 0) {
        LesDialogues().Message(Icone::Information, Texte(675));
        return;
    }
    apercu->exec();
}
