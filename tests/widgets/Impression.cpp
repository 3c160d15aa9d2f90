#include "widgets/ApercuImpression.h"
#include "widgets/ImprimantePoste.h"
#include "widgets/ImprimanteQt.h"

#include "outils/DialoguesScript.h"
#include "outils/DossierTemporaire.h"
#include "outils/Ecrans.h"
#include "outils/ImprimanteNotee.h"
#include "studies/RapportsCames.h"

#include <QBuffer>
#include <QComboBox>
#include <QLabel>
#include <QPdfWriter>
#include <QPrinter>
#include <QProgressDialog>
#include <QPushButton>
#include <QThread>
#include <QTimer>

namespace {

void ImprimeTout(Imprimante& imprimante) {
    MarquesImpression marques;
    marques.fill(true);
    ImprimeRapportsCames(imprimante, marques);
}

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

QPageSize::PageSizeId PapierDuPoste() {
    return ImprimanteDuPoste().pageLayout().pageSize().id();
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
    imprimante.setOutputFileName(QChemin(dossier / "absent/papier.pdf"));
    ImprimanteQt enPanne(imprimante);
    EXPECT_THROW(TroisPages(enPanne), ErreurExecution);
}

TEST(ApercuImpression, ShowsAndWritesThePagesThatThePrinterGets) {
    const DossierTemporaire dossier;
    DialoguesScript dialogues;
    CalculeExemple("Exemple.Ang");
    ImprimanteNotee notee;
    ImprimeTout(notee);
    const int pages = static_cast<int>(notee.pages.size());
    for (const char* langue : {"Français", "Español", "English"}) {
        ChoisitLangue(langue);
        ApercuImpression apercu(ImprimeTout, "Exemple");
        apercu.show();
        LaisseFaire();
        EXPECT_EQ(apercu.NombrePages(), pages);
        EXPECT_TRUE(LegendesCoupees(apercu).empty()) << LegendesCoupees(apercu).front();
        EXPECT_FALSE(Controle<QPushButton>(apercu, "Precedent")->isEnabled());
        Clique(apercu, "Suivant");
        EXPECT_EQ(Controle<QLabel>(apercu, "Page")->text(), QTexte(413) + "2 / " + QString::number(pages));
        EXPECT_TRUE(Controle<QPushButton>(apercu, "Precedent")->isEnabled());
        dialogues.fichiers = {std::nullopt, dossier / langue};
        Clique(apercu, "Pdf");
        EXPECT_FALSE(std::filesystem::exists(dossier / langue)) << "cancelled";
        Clique(apercu, "Pdf");
        EXPECT_EQ(PagesPdf(LitBrut(dossier / langue)), pages);
        EXPECT_TRUE(apercu.isVisible()) << "the pages can still be printed";
        QTest::keyClick(&apercu, Qt::Key_Escape);
        EXPECT_FALSE(apercu.isVisible());
    }
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
    std::string libelle;
    QObject::connect(&veille, &QTimer::timeout, [&] {
        auto* suivi = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
        if (suivi == nullptr) return;
        EXPECT_TRUE(LegendesCoupees(*suivi).empty());
        libelle = S(suivi->labelText());
        QTest::mouseClick(suivi->findChild<QPushButton*>(), Qt::LeftButton);
    });
    veille.start(20);
    ApercuEtImprime(nullptr, "longues", longues);
    EXPECT_GT(pages, 10) << "a short run is not shown";
    EXPECT_LT(pages, 1000);
    EXPECT_TRUE(libelle.starts_with(Texte(840) + " "));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "no preview of half a document";
}

TEST(ApercuImpression, AFailureAndAnEmptyDocumentOpenNothing) {
    DialoguesScript dialogues;
    EXPECT_THROW(ApercuEtImprime(nullptr, "x", EchoueApresUneLigne), ErreurExecution);
    EXPECT_TRUE(dialogues.boites.empty());
    ApercuEtImprime(nullptr, "x", RienQueLaFin);
    EXPECT_EQ(dialogues.Derniere(), Texte(675));
}

TEST(ConfigureImprimante, ThePaperIsKeptAndCancelKeepsNothing) {
    const auto choisit = [](const char* papier, const char* bouton) {
        QTimer::singleShot(0, [papier, bouton] {
            QWidget* dialogue = QApplication::activeModalWidget();
            ASSERT_NE(dialogue, nullptr);
            EXPECT_TRUE(LegendesCoupees(*dialogue).empty());
            Controle<QComboBox>(*dialogue, "Papiers")->setCurrentText(papier);
            Clique(*dialogue, bouton);
        });
        ConfigureImprimante(nullptr);
    };
    EXPECT_EQ(PapierDuPoste(), QPageSize::A4);
    choisit("A3", "Annuler");
    EXPECT_EQ(PapierDuPoste(), QPageSize::A4);
    choisit("A3", "Ok");
    EXPECT_EQ(PapierDuPoste(), QPageSize::A3);
    EXPECT_EQ(ImprimanteDuPoste().pageLayout().orientation(), QPageLayout::Portrait);
    choisit("A4", "Ok");
    EXPECT_EQ(PapierDuPoste(), QPageSize::A4);
}
