#include "widgets/DialoguesQt.h"

#include "widgets/Chaines.h"
#include "widgets/TailleEcran.h"

#include <QApplication>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeView>

#include <algorithm>

namespace {

enum NumerosTexte {
    TexteOk = 3,
    TexteAnnuler = 4,
    TexteEnregistrer = 15,
    TexteOuvrir = 125,
    TexteNomFichier = 307,
    TexteRemplacer = 317,
    TexteTypeFichier = 341,
    TexteOui = 769,
    TexteNon = 770,
};

/// Text of the working language, or `reserve` before the texts are loaded (a failure at start-up).
QString TexteOuReserve(int numero, const char* reserve) {
    return numero <= NombreTextes() ? QTexte(numero) : QString::fromUtf8(reserve);
}

/// Runs a dialogue; the hourglass of a long action gives way to the arrow meanwhile.
int Execute(QDialog& dialogue) {
    const bool sablier = QGuiApplication::overrideCursor() != nullptr;
    if (sablier) QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    const int resultat = dialogue.exec();
    if (sablier) QGuiApplication::restoreOverrideCursor();
    return resultat;
}

/// What a plain box holds without growing past the display.
constexpr std::size_t LongueurBoiteMax = 900;
constexpr long LignesBoiteMax = 14;

/// A long text scrolls inside its box.
void AjouteTexteDefilant(QMessageBox& boite, const QString& texte) {
    auto* zone = new QPlainTextEdit(texte);
    zone->setObjectName(QStringLiteral("Texte"));
    zone->setReadOnly(true);
    zone->setMinimumSize(40 * zone->fontMetrics().averageCharWidth() * 2, 16 * zone->fontMetrics().lineSpacing());
    qobject_cast<QGridLayout*>(boite.layout())->addWidget(zone, 0, 2);
}

QMessageBox::Icon IconeQt(Icone icone) {
    switch (icone) {
    case Icone::Avertissement:
        return QMessageBox::Warning;
    case Icone::Critique:
        return QMessageBox::Critical;
    case Icone::Information:
        break;
    }
    return QMessageBox::Information;
}

/// The lines of the filter list. A pattern matches whatever the case of the extension, and is not shown a second time.
QStringList Filtres(const DemandeFichier& demande) {
    QStringList filtres;
    for (const FiltreFichier& filtre : demande.filtres) {
        const QString motif = Q(filtre.motif);
        QStringList motifs{motif, motif.toLower(), motif.toUpper()};
        motifs.removeDuplicates();
        filtres << Q(filtre.libelle) + " (" + motifs.join(' ') + ")";
    }
    return filtres;
}

constexpr QSize TailleFichiers(860, 520);

void Prepare(QFileDialog& dialogue, const DemandeFichier& demande, int accepter) {
    dialogue.setWindowTitle(Q(demande.titre));
    dialogue.setDirectory(QChemin(demande.dossier));
    dialogue.setNameFilters(Filtres(demande));
    dialogue.setOption(QFileDialog::HideNameFilterDetails);
    if (!demande.nom.empty()) dialogue.selectFile(Q(demande.nom));
    dialogue.setLabelText(QFileDialog::Accept, QTexte(accepter));
    dialogue.setLabelText(QFileDialog::Reject, QTexte(TexteAnnuler));
    dialogue.setLabelText(QFileDialog::FileName, QTexte(TexteNomFichier));
    dialogue.setLabelText(QFileDialog::FileType, QTexte(TexteTypeFichier));
    // The toolkit's own opens too narrow for its columns.
    TientSurEcran(dialogue, TailleFichiers);
    if (const auto* liste = dialogue.findChild<QTreeView*>(QStringLiteral("treeView"))) {
        liste->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        liste->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    }
}

std::filesystem::path FichierChoisi(const QFileDialog& dialogue) {
    return Chemin(dialogue.selectedFiles().value(0));
}

std::string MotifChoisi(const QFileDialog& dialogue, const DemandeFichier& demande) {
    // The toolkit's own dialogue gives the filter back without its patterns, that of the system with them.
    const QString choisi = dialogue.selectedNameFilter();
    const QStringList filtres = Filtres(demande);
    for (std::size_t i = 0; i < demande.filtres.size(); ++i)
        if (filtres[static_cast<qsizetype>(i)].startsWith(choisi)) return demande.filtres[i].motif;
    return {};
}

} // namespace

std::filesystem::path AvecExtension(const std::filesystem::path& chemin, const std::string& motif) {
    const std::filesystem::path extension = std::filesystem::path(motif).extension();
    const auto minuscules = [](const std::filesystem::path& p) { return QChemin(p).toLower(); };
    if (extension == ".*" || minuscules(chemin.extension()) == minuscules(extension)) return chemin;
    // A point inside a name is no extension: "arbre 2.5" becomes "arbre 2.5.Ang", and "came." gets no second point.
    std::filesystem::path complet = chemin.extension() == "." ? chemin.parent_path() / chemin.stem() : chemin;
    complet += extension;
    return complet;
}

void DialoguesQt::Message(Icone icone, const std::string& texte, const std::string& titre) {
    const bool longue =
        texte.size() > LongueurBoiteMax || std::count(texte.begin(), texte.end(), '\n') > LignesBoiteMax;
    QMessageBox boite(IconeQt(icone), titre.empty() ? QCoreApplication::applicationName() : Q(titre),
                      longue ? QString() : Q(texte), QMessageBox::NoButton, QApplication::activeWindow());
    boite.setTextFormat(Qt::PlainText);
    if (longue) AjouteTexteDefilant(boite, Q(texte));
    boite.addButton(TexteOuReserve(TexteOk, "OK"), QMessageBox::AcceptRole);
    Execute(boite);
}

bool DialoguesQt::Question(const std::string& texte) {
    QMessageBox boite(QMessageBox::Question, QCoreApplication::applicationName(), Q(texte), QMessageBox::NoButton,
                      QApplication::activeWindow());
    boite.setTextFormat(Qt::PlainText);
    QPushButton* oui = boite.addButton(QTexte(TexteOui), QMessageBox::YesRole);
    QPushButton* non = boite.addButton(QTexte(TexteNon), QMessageBox::NoRole);
    boite.setDefaultButton(oui);
    boite.setEscapeButton(non);
    Execute(boite);
    return boite.clickedButton() == oui;
}

std::optional<std::string> DialoguesQt::Saisie(const std::string& titre, const std::string& invite,
                                               const std::string& defaut) {
    QInputDialog boite(QApplication::activeWindow());
    boite.setWindowTitle(Q(titre));
    boite.setLabelText(Q(invite));
    boite.setTextValue(Q(defaut));
    boite.setOkButtonText(QTexte(TexteOk));
    boite.setCancelButtonText(QTexte(TexteAnnuler));
    if (Execute(boite) != QDialog::Accepted) return {};
    return S(boite.textValue());
}

std::optional<std::filesystem::path> DialoguesQt::FichierAOuvrir(const DemandeFichier& demande) {
    QFileDialog dialogue(QApplication::activeWindow());
    dialogue.setAcceptMode(QFileDialog::AcceptOpen);
    dialogue.setFileMode(QFileDialog::ExistingFile);
    Prepare(dialogue, demande, TexteOuvrir);
    if (Execute(dialogue) != QDialog::Accepted) return {};
    return FichierChoisi(dialogue);
}

std::optional<std::filesystem::path> DialoguesQt::FichierASauver(const DemandeFichier& demande) {
    QFileDialog dialogue(QApplication::activeWindow());
    dialogue.setAcceptMode(QFileDialog::AcceptSave);
    dialogue.setFileMode(QFileDialog::AnyFile);
    dialogue.setOption(QFileDialog::DontConfirmOverwrite); // asked below, for the name with its extension
    Prepare(dialogue, demande, TexteEnregistrer);
    while (Execute(dialogue) == QDialog::Accepted) {
        const std::filesystem::path chemin = AvecExtension(FichierChoisi(dialogue), MotifChoisi(dialogue, demande));
        std::error_code sansImportance;
        if (!std::filesystem::exists(chemin, sansImportance)) return chemin;
        if (Question(Texte(TexteRemplacer) + "\n" + S(QChemin(chemin.filename())))) return chemin;
        dialogue.selectFile(QChemin(chemin.filename()));
    }
    return {};
}
