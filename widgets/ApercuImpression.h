// The pages of a document before they go to paper, and the way from there to a printer or to a PDF file. What is shown
// is drawn by the same procedure that prints.
#pragma once

#include "widgets/ImprimanteQt.h"

#include <QDialog>

#include <exception>

class QLabel;
class QPrinter;
class QPrintPreviewWidget;
class QPushButton;

class ApercuImpression : public QDialog {
    Q_OBJECT

public:
    /// @param nom name proposed for a PDF file, without folder and extension
    /// @throws ErreurExecution whatever `pages` throws.
    ApercuImpression(Pages pages, QString nom, QWidget* parent = nullptr);

    int NombrePages() const { return nombrePages_; }

private:
    void DessinePages(QPrinter* imprimante);
    void FaitBoutons();
    void Imprime();
    void EcritPdf();
    void VaALaPage(int page);
    void MontrePage();

    Pages pages_;
    QString nom_;
    int nombrePages_ = 0;
    std::exception_ptr echec_; ///< what stopped the drawing of the pages
    QPrintPreviewWidget* apercu_;
    QLabel* page_;
    QPushButton *precedent_, *suivant_;
};

/// Shows the pages; from there the user prints them. A document without a page is told of. What takes a while is shown
/// to be under way, and can be stopped.
/// @param nom name proposed for a PDF file, without folder and extension
/// @throws ErreurExecution whatever `pages` throws.
void ApercuEtImprime(QWidget* parent, const QString& nom, const Pages& pages);
