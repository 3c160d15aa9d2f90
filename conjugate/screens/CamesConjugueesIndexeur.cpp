#include "conjugate/screens/CamesConjugueesIndexeur.h"

#include "conjugate/GraphesConjugue.h"
#include "conjugate/ImpressionConjugue.h"
#include "conjugate/TextesConjugue.h"
#include "core/Etude.h"
#include "data/Textes.h"
#include "indexers/Catalogue.h"
#include "indexers/screens/ListeCles.h"
#include "indexers/screens/PanneauResultats.h"
#include "indexers/screens/PanneauSaisie.h"
#include "widgets/Chaines.h"
#include "widgets/Grille.h"
#include "widgets/Nomme.h"
#include "widgets/ZoneDefilante.h"
#include "widgets/ZoneDessin.h"

#include <QFont>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int TexteQuitter = 47, TexteTitre = 422, TexteMecanisme = 451, TexteGarderGalet = 452,
              TexteDonneesIncorrectes = 453;
constexpr int TexteRapport = 460, TexteLigne = 461, TexteGraphiques = 134;
// What the captions say, and behind it what the calculation does.
constexpr int NotesMecanisme[] = {447, 448, 449, 450, TexteNoteStops, TexteNoteBornesPart}, NoteHuile[] = {446};

constexpr std::size_t NombreGraphes = 3;

/// What is seen of the report at first: its longest lines whole, beside the notes.
constexpr int ColonnesVues = 90, HauteurVue = 520, LargeurNotes = 260; // characters, pixels, pixels
/// And at the least.
constexpr int ColonnesMin = 50, HauteurMin = 160; // characters, pixels

/// The number of entries of the mechanism; those behind them are of the roller.
constexpr std::ptrdiff_t EntreesMecanisme = 8;

constexpr ChampCatalogue champsGalet[] = {
    {"D", "DiametreGalet", false, true, TexteDonneesIncorrectes},
    {"F", "HauteurGalet", false, true, TexteDonneesIncorrectes},
    {"B10", "CapaciteB10", false, true, TexteDonneesIncorrectes},
    {"CLim", "CapaciteLimite", false, true, TexteDonneesIncorrectes},
    {"VitesseGraisse", "VitesseGraise", false, true, TexteDonneesIncorrectes},
};
const Catalogue galets{"Table Galets Arbres Paralleles", "ReferenceGalet",         "ReferenceGalet", champsGalet,
                       TexteDonneesIncorrectes,          {TexteDonneesIncorrectes}};

QWidget* FaitNotes(std::span<const int> textes) {
    auto* notes = new QWidget;
    auto* pile = new QVBoxLayout(notes);
    pile->setContentsMargins({});
    for (const int texte : textes) pile->addWidget(FaitNote(Texte(texte)));
    return notes;
}

} // namespace

CamesConjugueesIndexeur::CamesConjugueesIndexeur(QWidget* parent)
    : EcranCalculateur("CamesConjugueesIndexeur", TexteTitre, nullptr, parent) {
    const auto lies = LieChamps(ChampsConjugue(), saisie_);
    const auto galet = lies.begin() + EntreesMecanisme;
    auto* mecanisme = new PanneauSaisie("Frame1", TexteMecanisme, {lies.begin(), galet});
    auto* panneauGalet =
        new PanneauSaisie("Frame2", TexteSelectionGalet, {galet, lies.end()}, galets, {"GardeGalet", TexteGarderGalet});
    auto* loi = qobject_cast<ListeCles*>(mecanisme->Controle("Loi"));
    loi->setEditable(false);
    loi->Offre({"MS", "MT"});
    loi->Montre(saisie_.Loi);
    connect(loi, &QComboBox::currentTextChanged, this, &CamesConjugueesIndexeur::Perime);

    auto ordre = mecanisme->Controles();
    for (QWidget* controle : panneauGalet->Controles()) ordre.push_back(controle);
    Composition composition;
    composition.colonnes = {{mecanisme, FaitNotes(NotesMecanisme)}, {panneauGalet, FaitNotes(NoteHuile)}};
    composition.panneaux = {mecanisme, panneauGalet};
    composition.ordre = ordre;
    composition.resultats = {{FaitRapport(), TexteRapport}, {FaitGraphiques(), TexteGraphiques}};
    composition.sauvegarde = false;
    composition.quitter = TexteQuitter;
    Compose(composition);
}

QWidget* CamesConjugueesIndexeur::FaitRapport() {
    grille_ = Nomme(new Grille, "Grille");
    QFont police(QStringLiteral("Courier New"));
    police.setStyleHint(QFont::Monospace);
    grille_->setFont(police);
    const int caractere = grille_->fontMetrics().horizontalAdvance(QLatin1Char('0'));
    grille_->Prefere({caractere * ColonnesVues, HauteurVue});
    grille_->setMinimumSize(caractere * ColonnesMin, HauteurMin);
    notes_ = Nomme(new PanneauResultats, "Notes");
    auto* feuille = new QWidget;
    auto* rangee = new QHBoxLayout(feuille);
    auto* aCote = new ZoneDefilante(notes_);
    aCote->setMinimumWidth(LargeurNotes);
    rangee->addWidget(grille_, 3);
    rangee->addWidget(aCote, 1);
    return feuille;
}

QWidget* CamesConjugueesIndexeur::FaitGraphiques() {
    auto* feuille = new QWidget;
    auto* pile = new QVBoxLayout(feuille);
    for (std::size_t i = 0; i < NombreGraphes; ++i) {
        auto* zone = Nomme(new ZoneDessin, ("Graphe" + std::to_string(i + 1)).c_str());
        zone->Peint([this, i](Dessin& dessin) {
            if (i < graphes_.size()) DessineGraphe(dessin, graphes_[i], PlaceEntiere(dessin, graphes_[i]));
        });
        // The graphs share what height there is.
        zone->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
        zones_.push_back(zone);
        pile->addWidget(zone);
    }
    return feuille;
}

/// A run-time failure is told with the entry to blame, and the focus goes there.
std::optional<FauteSaisie> CamesConjugueesIndexeur::ChercheFaute() {
    try {
        CalculeIndexeurConjugue(saisie_, resultat_);
    } catch (const ErreurExecution& erreur) {
        const auto faute = ChercheFauteConjugue(saisie_);
        return FauteSaisie{faute ? faute->champ : std::string(), TexteErreur(erreur), Icone::Critique};
    }
    if (resultat_.motif.empty()) return {};
    return resultat_.arret ? *resultat_.arret : FauteSaisie{"D", {}};
}

void CamesConjugueesIndexeur::MontreResultats() {
    TableTexte table;
    table.colonnes = {{Texte(TexteLigne), {}, [](int ligne) { return std::to_string(ligne + 1); }},
                      {Texte(TexteRapport),
                       {},
                       [this](int ligne) { return resultat_.lignes[static_cast<std::size_t>(ligne)]; },
                       Cote::Gauche}};
    table.lignes = static_cast<int>(resultat_.lignes.size());
    grille_->Remplit(std::move(table));
    notes_->Montre({}, {}, resultat_.notes);
    graphes_ = GraphesConjugue(resultat_);
    for (std::size_t i = 0; i < zones_.size(); ++i) {
        zones_[i]->setVisible(i < graphes_.size());
        zones_[i]->update();
    }
}

/// The lines written so far stay to be looked at. A cam that is undercut stops without a box: its notes and its
/// curvature say so.
void CamesConjugueesIndexeur::MontreArret(const FauteSaisie& faute) {
    MontreResultats();
    const bool muet = faute.texte.empty();
    OuvreFeuilles(muet ? 1 : 0);
    if (!muet) return MontreFaute(faute);
    emit Annonce(Q(resultat_.motif).simplified());
    grille_->setFocus(Qt::OtherFocusReason);
}

void CamesConjugueesIndexeur::Imprime(Imprimante& imprimante) const {
    ImprimeConjugue(imprimante, resultat_);
}

void CamesConjugueesIndexeur::Ferme() {
    etude.resultats.EtudeModifiee = Faux;
    etude.resultats.ResultatsPrets = Faux;
}
