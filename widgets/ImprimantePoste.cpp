#include "widgets/ImprimantePoste.h"

#include "widgets/Chaines.h"
#include "widgets/ImprimanteQt.h"
#include "widgets/Legendes.h"
#include "widgets/Nomme.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>

namespace {

constexpr QPageSize::PageSizeId papiersUsuels[] = {QPageSize::A4, QPageSize::A3, QPageSize::A5, QPageSize::Letter,
                                                   QPageSize::Legal};

constexpr Legende legendes[] = {
    {"ConfigureImprimante", 0, 701},
    {"EtiquetteImprimante", 0, 792},
    {"EtiquettePapier", 0, 793},
    {"Annuler", 0, 4},
    {"Ok", 0, 3},
};

std::unique_ptr<QPrinter> poste;

class DialogueImprimante : public QDialog {
public:
    explicit DialogueImprimante(QWidget* parent) : QDialog(parent) {
        setObjectName(QStringLiteral("ConfigureImprimante"));
        imprimantes_ = Nomme(new QComboBox, "Imprimantes");
        papiers_ = Nomme(new QComboBox, "Papiers");
        imprimantes_->addItems(QPrinterInfo::availablePrinterNames());
        imprimantes_->setCurrentText(ImprimanteDuPoste().printerName());
        if (imprimantes_->count() == 0) {
            imprimantes_->addItem(QTexte(702));
            imprimantes_->setEnabled(false);
        }
        connect(imprimantes_, &QComboBox::currentIndexChanged, this, [this] { RemplitPapiers(); });
        RemplitPapiers();

        auto* champs = new QFormLayout;
        champs->addRow(FaitEtiquette("EtiquetteImprimante", imprimantes_), imprimantes_);
        champs->addRow(FaitEtiquette("EtiquettePapier", papiers_), papiers_);
        auto* annuler = Nomme(new QPushButton, "Annuler");
        auto* ok = Nomme(new QPushButton, "Ok");
        ok->setDefault(true);
        connect(annuler, &QPushButton::clicked, this, &QDialog::reject);
        connect(ok, &QPushButton::clicked, this, &QDialog::accept);
        auto* boutons = new QHBoxLayout;
        boutons->addWidget(annuler);
        boutons->addStretch();
        boutons->addWidget(ok);
        auto* disposition = new QVBoxLayout(this);
        disposition->addLayout(champs);
        disposition->addStretch();
        disposition->addLayout(boutons);
        AppliqueLegendes(*this, legendes);
        setMinimumWidth(fontMetrics().horizontalAdvance('0') * 50);
    }

    void Applique() const {
        QPrinter& imprimante = ImprimanteDuPoste();
        if (imprimantes_->isEnabled()) imprimante.setPrinterName(imprimantes_->currentText());
        QPageLayout page = PageParDefaut();
        page.setPageSize(QPageSize(static_cast<QPageSize::PageSizeId>(papiers_->currentData().toInt())));
        imprimante.setPageLayout(page);
    }

private:
    /// The papers of the chosen printer, or the usual ones; the present one stays chosen.
    void RemplitPapiers() {
        const int present = papiers_->count() > 0 ? papiers_->currentData().toInt()
                                                  : static_cast<int>(ImprimanteDuPoste().pageLayout().pageSize().id());
        papiers_->clear();
        QList<QPageSize> papiers = QPrinterInfo::printerInfo(imprimantes_->currentText()).supportedPageSizes();
        if (papiers.isEmpty())
            for (const auto papier : papiersUsuels) papiers << QPageSize(papier);
        for (const QPageSize& papier : papiers)
            if (papier.id() != QPageSize::Custom) papiers_->addItem(papier.name(), static_cast<int>(papier.id()));
        papiers_->setCurrentIndex(std::max(0, papiers_->findData(present)));
    }

    QComboBox *imprimantes_, *papiers_;
};

} // namespace

QPrinter& ImprimanteDuPoste() {
    if (!poste) {
        poste = std::make_unique<QPrinter>(QPrinter::HighResolution);
        poste->setPageLayout(PageParDefaut());
        qAddPostRoutine([] { poste.reset(); }); // before the toolkit that it belongs to
    }
    return *poste;
}

bool ImprimanteInstallee() {
    return !QPrinterInfo::availablePrinterNames().isEmpty();
}

void ConfigureImprimante(QWidget* parent) {
    DialogueImprimante dialogue(parent);
    if (dialogue.exec() == QDialog::Accepted) dialogue.Applique();
}
