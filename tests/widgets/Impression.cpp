#include "widgets/ApercuImpression.h"
#include "widgets/ImprimanteQt.h"

#include "outils/DialoguesScript.h"
#include "outils/DossierTemporaire.h"
#include "outils/Ecrans.h"

#include <QBuffer>
#include <QLabel>
#include <QPdfWriter>
#include <QPrinter>
#include <QProgressDialog>
#include <QPushButton>
#include <QThread>
#include <QTimer>

namespace {

void TroisPages(Imprimante& imprimante) {
    for (const char* texte : {"un", "deux", "trois"}) {
        imprimante.Ecrit(texte);
        imprimante.NouvellePage();
    }
    imprimante.FinDocument();
}

void EchoueApresUneLigne(Imprimante& imprimante) {
    imprimante.Ecrit("une page");
    throw ErreurExecution(NumeroErreur::Depassement);
}

void RienQueLaFin(Imprimante& imprimante) {
    imprimante.FinDocument();
}

/// Page objects of a whole PDF document; the tree that holds them is another kind. -1 for half a document.
int PagesPdf(const std::string& pdf) {
    if (!pdf.starts_with("%PDF-") || pdf.find("%%EOF", pdf.size() - 8) == std::string::npos) return -1;
    int pages = 0;
    for (auto place = pdf.find("/Type /Page\n"); place != std::string::npos;
         place = pdf.find("/Type /Page\n", place + 1))
        ++pages;
    return pages;
}

void Clique(QWidget& fenetre, const char* bouton) {
    QTest::mouseClick(Controle<QPushButton>(fenetre, bouton), Qt::LeftButton);
}

} // namespace

TEST(ImprimePdf, WholeOrNotAtAll) {
    const DossierTemporaire dossier;
    const std::string ancien = dossier.Ecrit("r.pdf", "ancien");
    EXPECT_THROW(ImprimePdf(ancien, EchoueApresUneLigne), ErreurExecution);
    EXPECT_FALSE(ImprimePdf(ancien, RienQueLaFin)) << "a document without a page is not written";
    EXPECT_EQ(LitBrut(ancien), "ancien");
    EXPECT_THROW(ImprimePdf(dossier / "absent/r.pdf", TroisPages), ErreurExecution);
    EXPECT_TRUE(ImprimePdf(ancien, TroisPages));
    EXPECT_EQ(PagesPdf(LitBrut(ancien)), 3);
    EXPECT_EQ(dossier.NombreFichiers(), 1);
}

TEST(ImprimanteQt, ColumnsAlignAndAPageTakesItsLines) {
    for (const QPageSize::PageSizeId papier : {QPageSize::A4, QPageSize::Letter, QPageSize::A5, QPageSize::A3}) {
        QBuffer tampon;
        tampon.open(QIODevice::WriteOnly);
        QPdfWriter support(&tampon);
        support.setPageLayout(PageParDefaut());
        support.setPageSize(QPageSize(papier));
        ImprimanteQt imprimante(support);
        imprimante.Police("Courier New", 11);
        imprimante.CadreTexte(67, 72);
        for (const char* texte : {"iiiiiiiiii", "WWWWWWWWWW", "é²°Áñ1.,- "})
            EXPECT_NEAR(imprimante.LargeurTexte(texte), 10 * imprimante.LargeurTexte("0"), 1e-6) << texte;
        imprimante.Gras(true);
        EXPECT_NEAR(imprimante.LargeurTexte("0123"), 4 * imprimante.LargeurTexte("m"), 1e-6);
        EXPECT_LE(imprimante.LargeurTexte(std::string(72, '0')), imprimante.Largeur());
        for (int ligne = 0; ligne < 67; ++ligne) imprimante.TermineLigne();
        EXPECT_LE(imprimante.Tete(), imprimante.Hauteur() + 1e-6) << static_cast<int>(papier);
        imprimante.FinDocument();
    }
}

TEST(ImprimanteQt, ChosenPagesAloneArePutOutAndAnAbandonedRunLeavesThePrinterUsable) {
    const DossierTemporaire dossier;
    QPrinter imprimante(QPrinter::HighResolution);
    imprimante.setOutputFormat(QPrinter::PdfFormat);
    imprimante.setOutputFileName(QChemin(dossier / "papier.pdf"));
    { ImprimanteQt(imprimante).Ecrit("une page"); }
    QPageRanges choix;
    choix.addRange(2, 3);
    for (const auto& [pages, attendues] : {std::pair{QPageRanges(), 3}, {choix, 2}}) {
        ImprimanteQt entiere(imprimante, pages);
        TroisPages(entiere);
        EXPECT_EQ(PagesPdf(LitBrut(dossier / "papier.pdf")), attendues);
    }
}

TEST(ApercuImpression, ShowsAndWritesThePagesThatThePrinterGets) {
    const DossierTemporaire dossier;
    DialoguesScript dialogues;
    ApercuImpression apercu(TroisPages, "Exemple");
    apercu.show();
    EXPECT_EQ(apercu.NombrePages(), 3);
    Clique(apercu, "Suivant");
    EXPECT_EQ(Controle<QLabel>(apercu, "Page")->text(), QTexte(413) + "2 / 3");
    dialogues.fichiers = {std::nullopt, dossier / "r.pdf"};
    Clique(apercu, "Pdf");
    EXPECT_FALSE(std::filesystem::exists(dossier / "r.pdf")) << "cancelled";
    Clique(apercu, "Pdf");
    EXPECT_EQ(PagesPdf(LitBrut(dossier / "r.pdf")), 3);
}

TEST(ApercuImpression, ALongRunIsShownToBeUnderWayAndStops) {
    int pages = 0;
    const Pages longues = [&pages](Imprimante& imprimante) {
        for (pages = 0; pages < 2000; ++pages) {
            QThread::msleep(10);
            imprimante.Ecrit("une page");
            imprimante.NouvellePage();
        }
    };
    QTimer veille;
    QObject::connect(&veille, &QTimer::timeout, [&] {
        auto* suivi = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
        if (suivi == nullptr) return;
        EXPECT_TRUE(LegendesCoupees(*suivi).empty());
        QTest::mouseClick(suivi->findChild<QPushButton*>(), Qt::LeftButton);
    });
    veille.start(20);
    ApercuEtImprime(nullptr, "longues", longues);
    EXPECT_GT(pages, 10) << "a short run is not shown";
    EXPECT_LT(pages, 1000);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "no preview of half a document";
}
