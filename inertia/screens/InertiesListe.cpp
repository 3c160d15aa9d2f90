// What is done with the whole list: files, clipboard, printing, the total handed over.
#include "core/FichierEntier.h"
#include "core/Lignes.h"
#include "data/Demarrage.h"
#include "data/Textes.h"
#include "inertia/FichierInerties.h"
#include "inertia/ImprimeInerties.h"
#include "inertia/TextesInertie.h"
#include "inertia/screens/Inerties.h"
#include "platform/Dialogues.h"
#include "widgets/Chaines.h"
#include "widgets/Nomme.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QToolButton>

#include <utility>

namespace {

/// The list that was last given up without being saved, as its file; it lives as long as the program.
std::string abandonnee;

struct EntreeListe {
    const char* nom;
    int texte;
};
constexpr EntreeListe entrees[] = {
    {"ListeOuvrir", TexteOuvrirListe},
    {"ListeEnregistrer", TexteEnregistrerListe},
    {"ListeReprendre", TexteReprendreListe},
    {"ListeCopier", TexteCopierListe},
    {"ListeCsv", TexteEnregistrerCsv},
    {"ListeTransmettre", TexteTransmettre},
    {"M_InertieImprime", 56},
    {"M_InertieFinCalcul", 603},
};

/// A table with its headings, a row a line.
std::string CopieTable(const TableTexte& table, char separateur, const char* finDeLigne) {
    const int colonnes = static_cast<int>(table.colonnes.size()) - 1; // without that of the pictures
    TableTexte entetes{{}, 1};
    for (const ColonneTexte& colonne : table.colonnes)
        entetes.colonnes.push_back(
            {"", "", [texte = colonne.titre + (colonne.unite.empty() ? "" : " (" + colonne.unite + ")")](int) {
                 return texte;
             }});
    std::string copie;
    AjouteCellules(copie, entetes, {0, 1, 1, colonnes}, separateur, finDeLigne);
    AjouteCellules(copie, table, {0, table.lignes, 1, colonnes}, separateur, finDeLigne);
    return copie;
}

DemandeFichier Demande(int texteFiltre, const char* motif) {
    return {Texte(TexteListeSolides), CheminEtudes, {}, {{Texte(texteFiltre), motif}}};
}

DemandeFichier DemandeListe() {
    return Demande(TexteFiltreListe, "*.Ine");
}

} // namespace

QWidget* Inerties::FaitMenuListe() {
    menuListe_ = Nomme(new QToolButton, "MenuListe");
    menuListe_->setPopupMode(QToolButton::InstantPopup);
    menuListe_->setToolButtonStyle(Qt::ToolButtonTextOnly);
    menuListe_->setAutoRaise(true);
    auto* menu = new QMenu(menuListe_);
    menuListe_->setMenu(menu);
    using Commande = void (Inerties::*)();
    constexpr Commande commandes[] = {
        &Inerties::DemandeOuverture, &Inerties::Enregistrer,   &Inerties::ReprendAbandonnee,     &Inerties::Copie,
        &Inerties::DemandeCsv,       &Inerties::TransmetTotal, &Inerties::ImprimeInertiesDriver, &Inerties::Quitte};
    static_assert(std::size(commandes) == std::size(entrees));
    for (std::size_t i = 0; i < std::size(entrees); ++i) {
        auto* action = Nomme(menu->addAction(QString()), entrees[i].nom);
        connect(action, &QAction::triggered, this, commandes[i]);
    }
    connect(menu, &QMenu::aboutToShow, this, [menu] {
        for (QAction* action : menu->actions())
            if (action->objectName() == QLatin1String("ListeReprendre")) action->setEnabled(!abandonnee.empty());
    });
    return menuListe_;
}

void Inerties::AppliqueTextesListe() {
    menuListe_->setText(QTexte(TexteMenuListe).remove('&'));
    for (const EntreeListe& entree : entrees)
        findChild<QAction*>(QString::fromLatin1(entree.nom))->setText(QTexte(entree.texte));
}

void Inerties::GardeAbandonnee() {
    if (listeModifiee_ && !assemblage_.lignes.empty()) abandonnee = ComposeInerties(assemblage_);
}

void Inerties::RemplaceListe(Assemblage nouvelle) {
    GardeAbandonnee();
    assemblage_ = std::move(nouvelle);
    listeModifiee_ = false;
    MontreListe();
}

void Inerties::OuvreListe(const std::filesystem::path& chemin) {
    RemplaceListe(LitInerties(chemin));
    emit Annonce(QTexte(TexteListeLue) + " " + QChemin(chemin.filename()));
}

void Inerties::DemandeOuverture() {
    if (const auto chemin = LesDialogues().FichierAOuvrir(DemandeListe()); chemin && !chemin->empty())
        OuvreListe(*chemin);
}

void Inerties::Enregistrer() {
    const auto chemin = LesDialogues().FichierASauver(DemandeListe());
    if (!chemin || chemin->empty()) return;
    EcritInerties(*chemin, assemblage_);
    listeModifiee_ = false;
    emit FichierEnregistre(QChemin(chemin->filename()));
}

void Inerties::DemandeCsv() {
    const auto chemin = LesDialogues().FichierASauver(Demande(TexteFiltreCsv, "*.csv"));
    if (!chemin || chemin->empty()) return;
    EcritFichierEntier(*chemin, CopieTable(TableListe(assemblage_), ';', FinDeLigne));
    emit FichierEnregistre(QChemin(chemin->filename()));
}

void Inerties::Copie() {
    QGuiApplication::clipboard()->setText(Q(CopieTable(TableListe(assemblage_), '\t', "\n")));
    emit Annonce(QTexte(TexteListeCopiee));
}

void Inerties::ReprendAbandonnee() {
    if (abandonnee.empty()) return;
    const std::string contenu = std::exchange(abandonnee, {});
    Reprend(contenu);
}

std::string Inerties::Travail() const {
    return assemblage_.lignes.empty() ? std::string() : ComposeInerties(assemblage_);
}

void Inerties::Reprend(const std::string& contenu) {
    RemplaceListe(AnalyseInerties(contenu));
    listeModifiee_ = true; // it is still in no file
}

void Inerties::TransmetTotal() {
    emit InertieOfferte(TotauxExacts(assemblage_)[1]);
}

void Inerties::Imprime(Imprimante& imprimante) const {
    ImprimeInerties(imprimante, assemblage_);
}

void Inerties::ImprimeInertiesDriver() {
    if (assemblage_.lignes.empty()) {
        LesDialogues().Message(Icone::Information, Texte(TexteListeVide));
        return;
    }
    emit ImpressionDemandee();
}
