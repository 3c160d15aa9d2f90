#include "help/screens/VisionneuseAide.h"

#include "help/TextesAide.h"
#include "widgets/Chaines.h"
#include "widgets/Icones.h"
#include "widgets/Nomme.h"
#include "widgets/TailleEcran.h"

#include <QAction>
#include <QBoxLayout>
#include <QCoreApplication>
#include <QEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextTable>
#include <QToolBar>
#include <QTreeWidget>

#include <algorithm>
#include <map>

namespace {

constexpr QSize TailleFenetre(1160, 780);
constexpr int LargeurSommaireMin = 300, LargeurSommaireMax = 420; // pixels
constexpr int LargeurTrouver = 300;                               // pixels
constexpr int MargeTitre = 18;                                    // pixels
constexpr int MargePage = 14;                                     // pixels
constexpr int MargeCellule = 5;                                   // pixels
constexpr int RoleNom = Qt::UserRole;
constexpr QColor CouleurTrouve(255, 200, 0, 120);

/// A colour between the two, nearer to the first.
QColor Melange(const QColor& a, const QColor& b, double partB) {
    const auto mele = [partB](int x, int y) { return static_cast<int>(x + (y - x) * partB); };
    return {mele(a.red(), b.red()), mele(a.green(), b.green()), mele(a.blue(), b.blue())};
}

void HabilleTable(QTextTable& table, const QColor& lignes, const QColor& tete) {
    QTextTableFormat format = table.format();
    format.setBorder(1);
    format.setBorderCollapse(true);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(lignes);
    format.setCellPadding(MargeCellule);
    format.setCellSpacing(0);
    format.setTopMargin(MargeCellule);
    format.setRightMargin(1); // for its frame, which the toolkit lets stand out of the page
    format.setBottomMargin(MargePage);
    table.setFormat(format);
    for (int colonne = 0; colonne < table.columns(); ++colonne) {
        QTextTableCell cellule = table.cellAt(0, colonne);
        QTextCharFormat formatTete = cellule.format();
        formatTete.setBackground(tete);
        cellule.setFormat(formatTete);
    }
}

} // namespace

VisionneuseAide::VisionneuseAide(const std::filesystem::path& fichier, QWidget* parent)
    : QWidget(parent, Qt::Window), livre_(fichier) {
    setObjectName(QStringLiteral("Aide"));
    setWindowTitle(QTexte(TexteAide) + " - " + QCoreApplication::applicationName());
    page_ = Nomme(new QTextBrowser, "Page");
    page_->setOpenExternalLinks(false);
    page_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // the pictures are as wide as what it leaves
    page_->document()->setDocumentMargin(MargePage);
    page_->setUndoRedoEnabled(false);
    page_->viewport()->installEventFilter(this);
    auto* partage = new QSplitter;
    partage->addWidget(FaitSommaire());
    partage->addWidget(page_);
    partage->setStretchFactor(1, 1);
    partage->setChildrenCollapsible(false);
    auto* disposition = new QVBoxLayout(this);
    disposition->setContentsMargins({});
    disposition->setSpacing(0);
    disposition->addWidget(FaitBarre());
    disposition->addWidget(partage, 1);
    connect(page_, &QTextBrowser::sourceChanged, this, &VisionneuseAide::PageChangee);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    RemplitSommaire();
    const int sommaire = LargeurSommaire();
    partage->setSizes({sommaire, TailleFenetre.width() - sommaire});
    page_->setFocus();
    TientSurEcran(*this, TailleFenetre);
}

/// Of the longest title, as far as the page keeps room enough.
int VisionneuseAide::LargeurSommaire() const {
    const QAbstractItemView& entrees = *sommaire_;
    const int bords = 2 * sommaire_->frameWidth() + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    return std::clamp(entrees.sizeHintForColumn(0) + bords, LargeurSommaireMin, LargeurSommaireMax);
}

QWidget* VisionneuseAide::FaitSommaire() {
    recherche_ = Nomme(new QLineEdit, "Recherche");
    recherche_->setPlaceholderText(QTexte(TexteChercher));
    recherche_->setClearButtonEnabled(true);
    sommaire_ = Nomme(new QTreeWidget, "Sommaire");
    sommaire_->setHeaderHidden(true);
    trouvailles_ = Nomme(new QListWidget, "Trouvailles");
    trouvailles_->setWordWrap(true);
    trouvailles_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    trouvailles_->setAlternatingRowColors(true);
    gauche_ = new QStackedWidget;
    gauche_->addWidget(sommaire_);
    gauche_->addWidget(trouvailles_);
    auto* colonne = new QWidget;
    auto* disposition = new QVBoxLayout(colonne);
    disposition->setContentsMargins(4, 4, 0, 0);
    disposition->addWidget(recherche_);
    disposition->addWidget(gauche_, 1);

    connect(recherche_, &QLineEdit::textChanged, this, &VisionneuseAide::Cherche);
    connect(recherche_, &QLineEdit::returnPressed, this, [this] { trouvailles_->setFocus(Qt::TabFocusReason); });
    connect(trouvailles_, &QListWidget::currentItemChanged, this, &VisionneuseAide::MontreTrouvaille);
    connect(sommaire_, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* entree) {
        if (entree != nullptr && entree->parent() != nullptr) MontrePage(entree->data(0, RoleNom).toString());
    });
    return colonne;
}

QAction* VisionneuseAide::AjouteCommande(QToolBar& barre, const char* nom, int texte,
                                         const std::vector<QKeySequence>& touches) {
    QAction* action = Nomme(barre.addAction(IconeBarre(QString::fromLatin1(nom)), QTexte(texte)), nom);
    action->setShortcuts(QList<QKeySequence>(touches.begin(), touches.end()));
    action->setToolTip(QTexte(texte) + " (" + touches.front().toString(QKeySequence::NativeText) + ")");
    return action;
}

QWidget* VisionneuseAide::FaitBarre() {
    auto* barre = new QToolBar;
    QAction* arriere =
        AjouteCommande(*barre, "Arriere", TextePageArriere, {Qt::ALT | Qt::Key_Left, QKeySequence(Qt::Key_Back)});
    QAction* avant =
        AjouteCommande(*barre, "Avant", TextePageAvant, {Qt::ALT | Qt::Key_Right, QKeySequence(Qt::Key_Forward)});
    barre->addSeparator();
    QAction* reduire = AjouteCommande(*barre, "Reduire", TexteReduire, {Qt::CTRL | Qt::Key_Minus});
    QAction* agrandir = AjouteCommande(*barre, "Agrandir", TexteGrossir,
                                       {Qt::CTRL | Qt::Key_Plus, QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    for (QAction* action : {arriere, avant}) action->setEnabled(false);
    connect(arriere, &QAction::triggered, page_, &QTextBrowser::backward);
    connect(avant, &QAction::triggered, page_, &QTextBrowser::forward);
    connect(page_, &QTextBrowser::backwardAvailable, arriere, &QAction::setEnabled);
    connect(page_, &QTextBrowser::forwardAvailable, avant, &QAction::setEnabled);
    connect(reduire, &QAction::triggered, page_, [this] { page_->zoomOut(); });
    connect(agrandir, &QAction::triggered, page_, [this] { page_->zoomIn(); });

    auto* vide = new QWidget;
    vide->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    barre->addWidget(vide);
    trouver_ = Nomme(new QLineEdit, "Trouver");
    trouver_->setPlaceholderText(QTexte(TexteTrouver));
    trouver_->setClearButtonEnabled(true);
    trouver_->setMaximumWidth(LargeurTrouver);
    barre->addWidget(trouver_);
    QAction* precedent = AjouteCommande(*barre, "TrouvePrecedent", TexteTrouvePrecedent, {Qt::SHIFT | Qt::Key_F3});
    QAction* suivant = AjouteCommande(*barre, "TrouveSuivant", TexteTrouveSuivant, {QKeySequence(Qt::Key_F3)});
    connect(trouver_, &QLineEdit::textChanged, this, [this](const QString& saisie) {
        Surligne(saisie);
        VaAuTrouve(1);
    });
    connect(trouver_, &QLineEdit::returnPressed, this, [this] { VaAuTrouve(1); });
    connect(precedent, &QAction::triggered, this, [this] { VaAuTrouve(-1); });
    connect(suivant, &QAction::triggered, this, [this] { VaAuTrouve(1); });
    const auto versChamp = [this](const QKeySequence& touches, QLineEdit* champ) {
        connect(new QShortcut(touches, this), &QShortcut::activated, champ, [champ] {
            champ->setFocus(Qt::ShortcutFocusReason);
            champ->selectAll();
        });
    };
    versChamp(Qt::CTRL | Qt::Key_F, trouver_);
    versChamp(Qt::CTRL | Qt::SHIFT | Qt::Key_F, recherche_);
    return barre;
}

void VisionneuseAide::RemplitSommaire() {
    std::map<int, QTreeWidgetItem*> groupes;
    for (const PageAide& page : livre_.Pages()) {
        QTreeWidgetItem*& groupe = groupes[page.groupe];
        if (groupe == nullptr) {
            groupe = new QTreeWidgetItem(sommaire_, {QTexte(page.groupe).trimmed()});
            QFont gras = sommaire_->font();
            gras.setBold(true);
            groupe->setFont(0, gras);
            groupe->setExpanded(true);
            groupe->setFlags(Qt::ItemIsEnabled);
        }
        auto* entree = new QTreeWidgetItem(groupe, {page.titre});
        entree->setData(0, RoleNom, page.nom);
    }
}

void VisionneuseAide::MontrePage(const QString& nom) {
    if (livre_.Pages().empty()) return;
    const PageAide* page = livre_.Trouve(nom);
    const QUrl adresse = LivreAide::Adresse(page != nullptr ? nom : livre_.Pages().front().nom);
    if (page_->source() != adresse) page_->setSource(adresse, QTextDocument::MarkdownResource);
}

QString VisionneuseAide::Page() const {
    return LivreAide::NomPage(page_->source());
}

/// @param adresse of the new page: it is not yet the source while its change is told
void VisionneuseAide::PageChangee(const QUrl& adresse) {
    Habille();
    Surligne(trouver_->text());
    const QSignalBlocker sansRetour(sommaire_);
    sommaire_->setCurrentItem(nullptr);
    for (QTreeWidgetItemIterator entree(sommaire_); *entree != nullptr; ++entree)
        if ((*entree)->data(0, RoleNom).toString() == LivreAide::NomPage(adresse)) sommaire_->setCurrentItem(*entree);
}

/// What the marks of a page do not say: lines and a head for tables, room around headings, formulas set off, pictures
/// that fit.
void VisionneuseAide::Habille() {
    const QColor fond = palette().color(QPalette::Base), encre = palette().color(QPalette::Text);
    const QColor teinte = Melange(fond, encre, 0.08);
    for (QTextFrame* cadre : page_->document()->rootFrame()->childFrames())
        if (auto* table = qobject_cast<QTextTable*>(cadre)) HabilleTable(*table, Melange(fond, encre, 0.35), teinte);
    for (QTextBlock bloc = page_->document()->begin(); bloc.isValid(); bloc = bloc.next()) {
        QTextBlockFormat format = bloc.blockFormat();
        if (format.headingLevel() > 1) {
            format.setTopMargin(MargeTitre);
            format.setBottomMargin(MargeCellule);
        } else if (format.hasProperty(QTextFormat::BlockCodeFence)) {
            format.setBackground(teinte);
            format.setLeftMargin(MargePage);
        } else {
            continue;
        }
        QTextCursor(bloc).setBlockFormat(format);
    }
    AjusteImages();
}

/// Gives each picture the width of the page where it is wider: drawn anew by it, since the page itself would leave
/// pixels out.
void VisionneuseAide::AjusteImages() {
    QTextDocument& document = *page_->document();
    const int place = page_->viewport()->width() - 2 * MargePage;
    for (QTextBlock bloc = document.begin(); bloc.isValid(); bloc = bloc.next())
        for (auto morceau = bloc.begin(); !morceau.atEnd(); ++morceau) {
            QTextImageFormat format = morceau.fragment().charFormat().toImageFormat();
            if (!format.isValid()) continue;
            const QString nom = format.name().section('?', 0, 0);
            const auto image = document.resource(QTextDocument::ImageResource, QUrl(nom)).value<QPixmap>();
            const int largeur = std::min(image.width(), place);
            if (image.isNull() || qRound(format.width()) == largeur) continue;
            const QString reduite = nom + "?" + QString::number(largeur);
            const QPixmap pixels = image.scaledToWidth(std::min(image.width(), qRound(largeur * devicePixelRatioF())),
                                                       Qt::SmoothTransformation);
            document.addResource(QTextDocument::ImageResource, document.baseUrl().resolved(QUrl(reduite)), pixels);
            format.setName(reduite);
            format.setWidth(largeur);
            format.setHeight(static_cast<double>(image.height()) * largeur / image.width());
            QTextCursor curseur(&document);
            curseur.setPosition(morceau.fragment().position());
            curseur.setPosition(morceau.fragment().position() + morceau.fragment().length(), QTextCursor::KeepAnchor);
            curseur.setCharFormat(format);
            break; // a picture stands in a paragraph of its own
        }
}

bool VisionneuseAide::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() == QEvent::Resize) AjusteImages();
    return QWidget::eventFilter(objet, evenement);
}

void VisionneuseAide::changeEvent(QEvent* evenement) {
    QWidget::changeEvent(evenement);
    if (evenement->type() == QEvent::PaletteChange) Habille();
}

// ---- search

void VisionneuseAide::Cherche(const QString& saisie) {
    const QSignalBlocker sansRetour(trouvailles_);
    trouvailles_->clear();
    for (const Trouvaille& trouvaille : livre_.Cherche(saisie)) {
        auto* entree = new QListWidgetItem(trouvaille.page->titre + "\n" + trouvaille.extrait, trouvailles_);
        entree->setData(RoleNom, trouvaille.page->nom);
    }
    if (trouvailles_->count() == 0)
        (new QListWidgetItem(QTexte(TexteAucunePage), trouvailles_))->setFlags(Qt::NoItemFlags);
    gauche_->setCurrentWidget(Mots(saisie).isEmpty() ? static_cast<QWidget*>(sommaire_) : trouvailles_);
}

/// The page of the entry in the list, its words marked.
void VisionneuseAide::MontreTrouvaille() {
    const QListWidgetItem* entree = trouvailles_->currentItem();
    if (entree == nullptr) return;
    MontrePage(entree->data(RoleNom).toString());
    const QSignalBlocker sansRetour(trouver_);
    trouver_->setText(recherche_->text());
    Surligne(recherche_->text());
    VaAuTrouve(1);
}

/// Marks every place of the page that holds one of the words.
void VisionneuseAide::Surligne(const QString& saisie) {
    trouves_.clear();
    trouve_ = -1;
    const QStringList mots = Mots(saisie);
    for (QTextBlock bloc = page_->document()->begin(); bloc.isValid(); bloc = bloc.next()) {
        const QString plie = Plie(bloc.text());
        for (const QString& mot : mots)
            for (qsizetype place = plie.indexOf(mot); place >= 0; place = plie.indexOf(mot, place + mot.size())) {
                QTextCursor curseur(bloc);
                curseur.setPosition(bloc.position() + static_cast<int>(place));
                curseur.setPosition(curseur.position() + static_cast<int>(mot.size()), QTextCursor::KeepAnchor);
                trouves_.push_back(curseur);
            }
    }
    std::sort(trouves_.begin(), trouves_.end());
    MontreSurlignes();
}

/// To the next place or the one before, from the last one on to the first.
void VisionneuseAide::VaAuTrouve(int pas) {
    if (trouves_.empty()) return;
    const int nombre = static_cast<int>(trouves_.size());
    trouve_ = trouve_ < 0 && pas < 0 ? nombre - 1 : (trouve_ + pas + nombre) % nombre;
    page_->setTextCursor(trouves_[static_cast<std::size_t>(trouve_)]);
    page_->ensureCursorVisible();
    MontreSurlignes();
}

void VisionneuseAide::MontreSurlignes() {
    QList<QTextEdit::ExtraSelection> marques;
    for (const QTextCursor& curseur : trouves_) {
        QTextCharFormat format;
        format.setBackground(CouleurTrouve);
        marques.append({curseur, format});
    }
    page_->setExtraSelections(marques);
}
