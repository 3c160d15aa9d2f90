#include "studies/screens/CamesConjugeesOscillation.h"

#include "cams/Pente.h"
#include "cams/screens/PanneauRotation.h"
#include "cams/screens/PanneauSchema.h"
#include "conjugate/DessinPaire.h"
#include "conjugate/DonneesPaire.h"
#include "conjugate/LimitesPaire.h"
#include "conjugate/PaireOscillante.h"
#include "conjugate/SchemaPaire.h"
#include "data/Textes.h"
#include "platform/Dialogues.h"
#include "studies/Graphique.h"
#include "studies/ListagesCames.h"
#include "studies/NotesEtude.h"
#include "widgets/Chaines.h"
#include "widgets/Etiquettes.h"
#include "widgets/Grille.h"
#include "widgets/Legendes.h"
#include "widgets/Nomme.h"
#include "widgets/Remarques.h"
#include "widgets/ZoneDessin.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>

#include <algorithm>
#include <string_view>

namespace {

enum Feuille { FeuilleDonnees, FeuilleResultats, FeuilleProfils, FeuilleListages };

constexpr int TexteRotation = 435, TexteEchelle = 488, TexteAngles = 476, TexteAngleBras = 477;

constexpr Legende legendes[] = {{"SSTab1", 0, 215}, {"SSTab1", 1, 216}, {"SSTab1", 2, 481},   {"SSTab1", 3, 210},
                                {"SSTab1", 4, 482}, {"SSTab1", 5, 483}, {"Listages", 0, 211}, {"Listages", 1, 214}};

/// The dimension of the drawing that a field sets off while it has the focus.
constexpr struct {
    const char* champ;
    const char* cote;
} cotes[] = {{"CoteA", "a"},         {"CoteB", "b"},        {"AngleBras", "angle"}, {"RayonBrasR1", "R1"},
             {"RayonGaletG1", "G1"}, {"RayonBrasR2", "R2"}, {"RayonGaletG2", "G2"}};

constexpr DescriptionSaisie description{"CamesConjugeesOscillation",
                                        ZonesPaire,
                                        {"Text9", "Text10", "Text11", "AngleCame", "Text12", 480},
                                        ChampsPaire,
                                        GroupesPaire,
                                        "VitesseCame",
                                        CalculeCamesConjuguees,
                                        463};

/// The kind of study whose screen this is.
const TypeEtude& LeType() {
    const auto types = LesTypesEtude();
    return *std::find_if(types.begin(), types.end(),
                         [](const TypeEtude& type) { return std::string_view(type.ecranSaisie) == description.nom; });
}

QLabel* FaitNote(const char* nom, const QString& texte) {
    auto* note = FaitUnite(texte);
    note->setObjectName(QString::fromLatin1(nom));
    note->setWordWrap(true);
    return note;
}

/// Slopes of both profiles, degrees: guide, then follower.
std::string EcritPentes(long point) {
    std::string texte;
    for (PasseEtude& passe : etude.passes) {
        if (point > passe.resultats.Profil.BorneHaute()) return {};
        const PasseEnVue vue(passe);
        texte += (texte.empty() ? "" : " / ") + Format(Pente(etude.resultats.Profil[point].AngleTangent), "0.00");
    }
    return texte;
}

} // namespace

CamesConjugeesOscillation::CamesConjugeesOscillation(QWidget* parent) : SaisieCame(description, parent) {
    feuilles_ = Nomme(new QTabWidget, "SSTab1");
    auto* schema = new PanneauSchema(DessineSchemaPaire);
    auto* guide = FaitNote("Label464", QTexte(464));
    auto* suiveur = FaitNote("Label467", QTexte(467));
    Compose({EmpilePanneaux({Panneau("Picture2"), schema}, 1),
             EmpilePanneaux({Panneau("Picture3"), guide, Panneau("Picture4"), suiveur, Panneau("Picture6"),
                             FaitNote("Label477", QTexte(TexteAngles) + " : " + QTexte(TexteAngleBras)), new QWidget},
                            6)},
            feuilles_);
    for (const auto& cote : cotes) schema->Suit(ChampDe(cote.champ), cote.cote);
    feuilles_->addTab(FaitResultats(), {});
    feuilles_->addTab(FaitProfils(), {});
    feuilles_->addTab(FaitListages(), {});
    feuilles_->addTab(FaitGraphiques(275, &bras_, 247, &rayons_), {});
    feuilles_->addTab(FaitGraphiques(276, &forces_, 277, &couples_), {});
    AppliqueLegendes(*this, legendes);
    ActiveResultats(false);
    feuilles_->setCurrentIndex(FeuilleDonnees);
    if (!etude.passes.empty()) CamesConjugeesOscillation::Montre();
}

QWidget* CamesConjugeesOscillation::FaitProfils() {
    auto* feuille = new QWidget;
    auto* disposition = new QVBoxLayout(feuille);
    disposition->setContentsMargins({});
    cames_ = new PanneauRotation("Picture1", true);
    profils_ = cames_->findChild<ZoneDessin*>("Picture1");
    profils_->installEventFilter(this);
    auto* ligne = new QHBoxLayout;
    echelle_ = FaitValeur("Echelle", "000.00");
    ligne->addStretch();
    ligne->addWidget(new QLabel(QTexte(TexteEchelle)));
    ligne->addWidget(echelle_);
    ligne->setContentsMargins(9, 9, 9, 0);
    disposition->addLayout(ligne);
    disposition->addWidget(cames_, 1);
    return feuille;
}

QWidget* CamesConjugeesOscillation::FaitResultats() {
    auto* feuille = new QWidget;
    auto* disposition = new QVBoxLayout(feuille);
    remarquables_ = Nomme(new Grille, "Resultats");
    controle_ = Nomme(new Grille, "Fermeture");
    notesRemarquables_ = Nomme(new Remarques, "NotesRemarquables");
    disposition->addWidget(remarquables_, 3);
    disposition->addWidget(notesRemarquables_);
    disposition->addWidget(controle_, 2);
    disposition->addWidget(FaitNote("NoteFermeture", QTexte(LeType().controle.note)));
    return feuille;
}

QWidget* CamesConjugeesOscillation::FaitListages() {
    auto* listages = Nomme(new QTabWidget, "Listages");
    mouvement_ = Nomme(new Grille, "Grille1");
    efforts_ = Nomme(new Grille, "Grille3");
    listages->addTab(mouvement_, {});
    listages->addTab(efforts_, {});
    return listages;
}

QWidget* CamesConjugeesOscillation::FaitGraphiques(int titre1, ZoneDessin** zone1, int titre2, ZoneDessin** zone2) {
    auto* feuille = new QWidget;
    auto* disposition = new QVBoxLayout(feuille);
    for (const auto& [titre, zone] : {std::pair{titre1, zone1}, {titre2, zone2}}) {
        *zone = new ZoneDessin;
        disposition->addWidget(new QLabel(QTexte(titre)));
        disposition->addWidget(*zone, 1);
    }
    return feuille;
}

void CamesConjugeesOscillation::Montre() {
    const TypeEtude& type = LeType();
    remarquables_->Remplit(TableRemarquablesCames(type));
    notesRemarquables_->Montre(NotesEnVigueur(type).Lignes());
    controle_->Remplit(TableControle(type));
    mouvement_->Remplit(TableMouvementCames(type));
    efforts_->Remplit(TableEffortsCames(type));
    bras_->Peint([](Dessin& dessin) {
        if (etude.passes.empty()) return;
        const PasseEnVue vue(etude.passes.front());
        DessineGraphique(dessin, CourbesBras());
    });
    const std::pair<ZoneDessin*, std::vector<Courbe> (*)()> graphiques[] = {
        {rayons_, CourbeRayon}, {forces_, CourbesForce}, {couples_, CourbesCouple}};
    for (const auto& [zone, courbes] : graphiques)
        zone->Peint([dessine = courbes](Dessin& dessin) { DessineGraphiqueCames(dessin, LeType(), dessine); });
    ActiveResultats(true);
    cames_->Montre({type.dessine, DernierAngleDessin(type), false, EcritPentes});
    MontreEchelle();
    MontreNomFichier();
    feuilles_->setCurrentIndex(FeuilleProfils);
}

void CamesConjugeesOscillation::MontreNomFichier() {
    const QString nom = Q(etude.donnees.NomFichier);
    setWindowTitle(QTexte(description.titre).trimmed() + (nom.isEmpty() ? QString() : " " + nom));
}

void CamesConjugeesOscillation::MontreRotation() {
    feuilles_->setCurrentIndex(FeuilleProfils);
}

void CamesConjugeesOscillation::ActiveResultats(bool actifs) {
    for (int feuille = FeuilleResultats; feuille < feuilles_->count(); ++feuille)
        feuilles_->setTabEnabled(feuille, actifs);
}

/// Millimetres of the screen for one of the pair, which follow the size of the drawing.
void CamesConjugeesOscillation::MontreEchelle() {
    if (etude.passes.empty()) return;
    constexpr double millimetresPouce = 25.4;
    const double echelle = EchellePaire(profils_->width(), profils_->height());
    echelle_->setText(Q(Format(echelle * millimetresPouce / logicalDpiX(), "0.00")));
}

bool CamesConjugeesOscillation::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() == QEvent::Resize) MontreEchelle();
    return SaisieCame::eventFilter(objet, evenement);
}

bool CamesConjugeesOscillation::ControleZone(const Zone&) {
    const auto faute = ChercheFauteVitesse(etude.donnees);
    if (faute) RefuseDonnee(faute->champ, faute->texte);
    return !faute;
}

bool CamesConjugeesOscillation::ControleDonnees() {
    if (cames_->RotationEnCours()) {
        LesDialogues().Message(Icone::Information, Texte(TexteRotation));
        MontreRotation();
        return false;
    }
    auto faute = ChercheFauteVitesse(etude.donnees);
    if (!faute) faute = ChercheFautePaire(etude.donnees);
    if (faute) RefuseDonnee(faute->champ, faute->texte);
    return !faute;
}

void CamesConjugeesOscillation::PerimeResultats() {
    SaisieCame::PerimeResultats();
    cames_->Arrete();
    ActiveResultats(false);
}
