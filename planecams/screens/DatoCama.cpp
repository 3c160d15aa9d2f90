#include "planecams/screens/DatoCama.h"

#include "data/Demarrage.h"
#include "data/Textes.h"
#include "laws/CalculLois.h"
#include "planecams/CamesPlates.h"
#include "planecams/ListeZones.h"
#include "planecams/MouvementCame.h"
#include "planecams/SaisieCame.h"
#include "planecams/SchemaBras.h"
#include "platform/Dialogues.h"
#include "widgets/Application.h"
#include "widgets/Chaines.h"
#include "widgets/ChampNombre.h"
#include "widgets/Grille.h"
#include "widgets/Legendes.h"
#include "widgets/PanneauChamps.h"
#include "widgets/ZoneDefilante.h"
#include "widgets/ZoneDessin.h"

#include <QComboBox>
#include <QEvent>
#include <QFocusEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace {

constexpr int UniteMm = 18, UniteDegres = 19, UniteTours = 21, UniteKg = 24, UniteN = 25;

constexpr ChampSaisie champsGeometrie[] = {
    {"Text1", 152, UniteMm, &Etude::CoteA},           {"Text2", 153, UniteMm, &Etude::CoteB},
    {"Text3", 154, UniteMm, &Etude::RayonO1A},        {"Text4", 155, UniteMm, &Etude::RayonO1P},
    {"Text5", 156, UniteDegres, &Etude::AnglePO1A},   {"Text6", 123, UniteMm, &Etude::RayonGalet},
    {"Text18", 157, UniteTours, &Etude::VitesseCame},
};
constexpr ChampSaisie champsMasses[] = {
    {"Text7", 159, UniteKg, &Etude::MasseBrasO1A},
    {"Text8", 160, UniteKg, &Etude::MasseBrasO1P},
    {"Text9", 161, UniteMm, &Etude::EpaisseurCame},
};
constexpr ChampSaisie champsForces[] = {
    {"Text10", 163, UniteKg, &Etude::MasseA},
};
constexpr ChampSaisie champsExterieurs[] = {
    {"Text11", 166, UniteN, &Etude::ForceX},
    {"Text12", 167, UniteN, &Etude::ForceY},
};

/// The dimension of the drawing that a field sets off while it has the focus.
constexpr struct {
    const char* champ;
    const char* cote;
} cotes[] = {{"Text1", "a"},    {"Text2", "b"},      {"Text3", "O1-A"},
             {"Text4", "O1-P"}, {"Text5", "P-O1-A"}, {"Text6", "galet"}};

constexpr Legende legendes[] = {
    {"DatoCama", 0, 384},        {"TitrePesanteur", 0, 168},  {"EtiquetteText17", 0, 169}, {"Picture5", 0, 170},
    {"EtiquetteCombo2", 0, 174}, {"EtiquetteCombo1", 0, 105}, {"TitreGrille", 0, 179},     {"TitreSchema", 0, 189},
    {"Suivante", 0, 14},         {"Retour", 0, 13},           {"Calculer", 0, 11},
};

template <class T> T* Nomme(T* controle, const char* nom) {
    controle->setObjectName(QString::fromLatin1(nom));
    return controle;
}

QLabel* FaitEtiquette(const char* nom, QWidget* champ = nullptr) {
    auto* etiquette = Nomme(new QLabel, nom);
    etiquette->setBuddy(champ);
    return etiquette;
}

} // namespace

DatoCama::DatoCama(QWidget* parent) : QWidget(parent) {
    setObjectName("DatoCama");
    auto* contenu = new QWidget;
    auto* colonnes = new QHBoxLayout(contenu);
    colonnes->setContentsMargins({});
    colonnes->addWidget(FaitDonnees());
    colonnes->addWidget(FaitForces());
    colonnes->addWidget(FaitZones(), 1);
    auto* disposition = new QVBoxLayout(this);
    disposition->addWidget(new ZoneDefilante(contenu), 1);
    disposition->addLayout(FaitBoutons());

    AppliqueLegendes(*this, legendes);
    RelieChamps();

    zonesEntrees_ = etude.NombreZones;
    etude.ZoneCourante = 1;
    nombreZones_->Montre(etude.NombreZones);
    ChangePesanteur(etude.AnglePesanteur);
    const std::string points = etude.PointsParDegre == 0 ? "1" : std::to_string(etude.PointsParDegre);
    pointsParDegre_->setCurrentText(Q(points));
    MontreZone();
    RemplitGrille();
    geometrie_->Champs().front()->setFocus();
}

QWidget* DatoCama::FaitDonnees() {
    auto* donnees = new QWidget;
    auto* disposition = new QVBoxLayout(donnees);
    disposition->setContentsMargins({});
    geometrie_ = new PanneauChamps("Picture2", 151, champsGeometrie);
    masses_ = new PanneauChamps("Picture3", 158, champsMasses);
    auto* cadreSchema = Nomme(new QGroupBox, "TitreSchema");
    schema_ = Nomme(new ZoneDessin, "Schema");
    schema_->setMinimumSize(250, 240);
    schema_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    schema_->Peint([](Dessin& dessin) { DessineSchemaBras(dessin, {}); });
    (new QVBoxLayout(cadreSchema))->addWidget(schema_);
    disposition->addWidget(geometrie_);
    disposition->addWidget(cadreSchema, 1);
    return donnees;
}

QWidget* DatoCama::FaitForces() {
    auto* forces = new QWidget;
    auto* disposition = new QVBoxLayout(forces);
    disposition->setContentsMargins({});
    forces_ = new PanneauChamps("Picture4", 162, champsForces);
    exterieures_ = new PanneauChamps("Exterieures", 165, champsExterieurs);

    auto* cadre = Nomme(new QGroupBox, "TitrePesanteur");
    auto* pesanteur = new QGridLayout(cadre);
    pesanteur_ = Nomme(new ZoneDessin, "Picture6");
    pesanteur_->setMinimumSize(150, 150);
    pesanteur_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    sensPesanteur_ = Nomme(new QScrollBar(Qt::Horizontal), "HScroll1");
    sensPesanteur_->setRange(0, 360);
    sensPesanteur_->setPageStep(15);
    sensPesanteur_->setFocusPolicy(Qt::StrongFocus);
    anglePesanteur_ = AjouteLigneChamp(*pesanteur, 0, "Text17", 169, UniteDegres);
    pesanteur->addWidget(sensPesanteur_, 1, 0, 1, 3);
    pesanteur->addWidget(pesanteur_, 2, 0, 1, 3);
    pesanteur->setRowStretch(2, 1);

    disposition->addWidget(masses_);
    disposition->addWidget(forces_);
    disposition->addWidget(exterieures_);
    disposition->addWidget(cadre, 1);
    return forces;
}

QWidget* DatoCama::FaitCadreZone() {
    cadreZone_ = Nomme(new QGroupBox, "Frame1");
    auto* champs = new QGridLayout(cadreZone_);
    angleDepart_ = AjouteLigneChamp(*champs, 0, "Text14", 175, UniteDegres);
    angleFinal_ = AjouteLigneChamp(*champs, 1, "Text15", 176, UniteDegres);
    angleCame_ = AjouteLigneChamp(*champs, 2, "Text16", 177, UniteDegres);
    loi_ = Nomme(new QComboBox, "Combo1");
    loi_->setEditable(true);
    loi_->setInsertPolicy(QComboBox::NoInsert);
    for (std::int16_t i = 1; i <= etude.NombreLois; ++i)
        if (etude.ListeLois[i].NomLoi.find("MSH") == std::string::npos) loi_->addItem(Q(etude.ListeLois[i].NomLoi));
    champs->addWidget(FaitEtiquette("EtiquetteCombo1", loi_), 3, 0);
    champs->addWidget(loi_, 3, 1);
    symetrie_ = AjouteLigneChamp(*champs, 4, "Text19", 178, 0);
    suivante_ = Nomme(new QPushButton, "Suivante");
    suivante_->setAutoDefault(true);
    champs->addWidget(suivante_, 5, 0, 1, 3, Qt::AlignRight);
    return cadreZone_;
}

QWidget* DatoCama::FaitZones() {
    auto* panneau = Nomme(new QGroupBox, "Picture5");
    auto* disposition = new QVBoxLayout(panneau);
    auto* tete = new QGridLayout;
    nombreZones_ = AjouteLigneChamp(*tete, 0, "Text13", 172, 0);
    pointsParDegre_ = Nomme(new QComboBox, "Combo2");
    pointsParDegre_->setEditable(true);
    pointsParDegre_->setInsertPolicy(QComboBox::NoInsert);
    for (const auto points : PointsParDegrePermis) pointsParDegre_->addItem(QString::number(points));
    tete->addWidget(FaitEtiquette("EtiquetteCombo2", pointsParDegre_), 1, 0);
    tete->addWidget(pointsParDegre_, 1, 1);
    disposition->addLayout(tete);
    disposition->addWidget(FaitCadreZone());
    grille_ = Nomme(new Grille, "Grille");
    grille_->setMinimumSize(580, 150);
    disposition->addWidget(FaitEtiquette("TitreGrille", grille_));
    disposition->addWidget(grille_, 1);
    somme_ = Nomme(new QLabel, "SommeAngles");
    disposition->addWidget(somme_);
    return panneau;
}

QBoxLayout* DatoCama::FaitBoutons() {
    auto* boutons = new QHBoxLayout;
    retour_ = Nomme(new QPushButton, "Retour");
    calculer_ = Nomme(new QPushButton, "Calculer");
    retour_->setShortcut(Qt::Key_Escape);
    calculer_->setAutoDefault(true);
    boutons->addWidget(retour_);
    boutons->addStretch();
    boutons->addWidget(calculer_);
    return boutons;
}

void DatoCama::RelieChamps() {
    const auto prendFocus = [](QWidget* champ) { return [champ] { champ->setFocus(Qt::TabFocusReason); }; };
    connect(geometrie_, &PanneauChamps::Termine, this, prendFocus(masses_->Champs().front()));
    connect(masses_, &PanneauChamps::Termine, this, prendFocus(forces_->Champs().front()));
    connect(forces_, &PanneauChamps::Termine, this, prendFocus(exterieures_->Champs().front()));
    connect(exterieures_, &PanneauChamps::Termine, this, prendFocus(nombreZones_));
    connect(anglePesanteur_, &ChampNombre::Suivant, this, prendFocus(nombreZones_));
    connect(nombreZones_, &ChampNombre::Suivant, this, prendFocus(angleDepart_));
    connect(pointsParDegre_->lineEdit(), &QLineEdit::returnPressed, this, prendFocus(angleDepart_));
    connect(angleDepart_, &ChampNombre::Suivant, this, prendFocus(angleFinal_));
    connect(angleFinal_, &ChampNombre::Suivant, this, prendFocus(angleCame_));
    connect(angleCame_, &ChampNombre::Suivant, this, prendFocus(loi_));
    connect(symetrie_, &ChampNombre::Suivant, this, prendFocus(suivante_));

    for (auto* panneau : Panneaux())
        for (auto* champ : panneau->Champs()) connect(champ, &QLineEdit::editingFinished, panneau, &PanneauChamps::Lit);
    for (const auto& cote : cotes) geometrie_->Champ(cote.champ)->installEventFilter(this);
    nombreZones_->installEventFilter(this);

    connect(sensPesanteur_, &QScrollBar::valueChanged, this, [this](int angle) { ChangePesanteur(angle); });
    connect(anglePesanteur_, &QLineEdit::editingFinished, this, [this] { ChangePesanteur(anglePesanteur_->Valeur()); });
    connect(loi_, &QComboBox::activated, this, &DatoCama::ChoisitLoi);
    connect(loi_->lineEdit(), &QLineEdit::returnPressed, this, [this] {
        if (ChoisitLoi()) symetrie_->setFocus(Qt::TabFocusReason);
    });
    connect(grille_, &QTableView::clicked, this, [this](const QModelIndex& index) { VaALaZone(index.row()); });
    connect(suivante_, &QPushButton::clicked, this, &DatoCama::Suivante);
    connect(calculer_, &QPushButton::clicked, this, &DatoCama::Calculer);
    connect(retour_, &QPushButton::clicked, this, &DatoCama::Retour);
}

bool DatoCama::eventFilter(QObject* objet, QEvent* evenement) {
    const auto reprendFocus = [&] { return static_cast<QFocusEvent*>(evenement)->reason(); };
    if (evenement->type() == QEvent::FocusIn) {
        for (const auto& cote : cotes)
            if (objet == geometrie_->Champ(cote.champ))
                schema_->Peint([nom = cote.cote](Dessin& dessin) { DessineSchemaBras(dessin, nom); });
    } else if (evenement->type() == QEvent::FocusOut && objet == nombreZones_) {
        // Another window, a menu or the way back may be gone to with any number in the field.
        const bool reste = reprendFocus() == Qt::ActiveWindowFocusReason || reprendFocus() == Qt::PopupFocusReason;
        if (!reste && !retour_->hasFocus() && isVisible())
            QMetaObject::invokeMethod(this, &DatoCama::EntreNombreZones, Qt::QueuedConnection);
    }
    return QWidget::eventFilter(objet, evenement);
}

void DatoCama::ChangePesanteur(double angle) {
    etude.AnglePesanteur = std::clamp(angle, 0.0, 360.0);
    anglePesanteur_->Montre(etude.AnglePesanteur);
    const QSignalBlocker muet(sensPesanteur_);
    sensPesanteur_->setValue(static_cast<int>(std::lround(etude.AnglePesanteur)));
    pesanteur_->Peint([angle = etude.AnglePesanteur](Dessin& dessin) { DessinePesanteur(dessin, angle); });
}

void DatoCama::EntreNombreZones() {
    const double nombre = Int(nombreZones_->Valeur());
    const int texte = nombre <= 0.0 ? 72 : nombre > 32767.0 ? 206 : 0;
    if (texte != 0) {
        LesDialogues().Message(Icone::Information, Texte(texte));
        nombreZones_->setFocus();
        return;
    }
    nombreZones_->Montre(nombre);
    if (Entier16(nombre) == etude.NombreZones) return;
    etude.NombreZones = Entier16(nombre);
    etude.Zones.Redimensionne(etude.NombreZones);
    etude.ZoneCourante = 1;
    zonesEntrees_ = 0;
    MontreZone();
    RemplitGrille();
}

void DatoCama::MontreZone() {
    const std::int16_t z = etude.ZoneCourante;
    cadreZone_->setTitle(QTexte(187) + " " + Q(Format(z, "###")));
    const bool entree = z <= zonesEntrees_;
    const Zone zone = entree ? etude.Zones[z] : Zone{};
    // A zone begins where the one before ends.
    const double depart = entree || z <= 1 ? zone.AngleDepart : etude.Zones[z - 1].AngleFinal;
    angleDepart_->Montre(depart);
    angleFinal_->Montre(zone.AngleFinal);
    angleCame_->Montre(zone.AngleCame);
    if (entree) loi_->setCurrentText(Q(zone.NomLoi));
    symetrie_->Montre(entree ? zone.CoefSymetrie : 0.5);
    MontreBoutons();
}

void DatoCama::MontreBoutons() {
    const bool complete = etude.NombreZones > 0 && zonesEntrees_ == etude.NombreZones;
    suivante_->setEnabled(etude.NombreZones > 0);
    calculer_->setEnabled(complete);
    calculer_->setDefault(complete);
    suivante_->setDefault(!complete);
}

void DatoCama::RemplitGrille() {
    grille_->Remplit(
        {EntetesZones(), etude.NombreZones,
         [entrees = zonesEntrees_](int ligne, int colonne) { return CelluleZone(ligne, colonne, entrees); },
         ColonnesTexteZones()});
    double somme = 0;
    for (std::int16_t z = 1; z <= zonesEntrees_; ++z) somme += etude.Zones[z].AngleCame;
    somme_->setText(QTexte(191) + " " + Q(StrTrim(somme)) + " " + QTexte(UniteDegres));
}

void DatoCama::VaALaZone(int ligne) {
    // Only zones already entered, or the first that is not, can be gone to.
    if (ligne + 1 > std::min<int>(zonesEntrees_ + 1, etude.NombreZones)) return;
    etude.ZoneCourante = static_cast<std::int16_t>(ligne + 1);
    MontreZone();
    angleDepart_->setFocus(Qt::TabFocusReason);
}

bool DatoCama::ChoisitLoi() {
    JeuEnregistrements lois = LaBase.OuvreTable("Lois");
    lois.Seek(S(loi_->currentText()));
    if (!lois.NoMatch()) {
        symetrie_->Montre(EnNombre(lois.Champ("CoefS")));
        return true;
    }
    LesDialogues().Message(Icone::Avertissement, Texte(521) + " " + Texte(103));
    loi_->setCurrentIndex(0);
    symetrie_->Montre(0.5);
    loi_->setFocus();
    return false;
}

bool DatoCama::DemandePourcentage(std::string& nomLoi) {
    const auto reponse = LesDialogues().Saisie(Texte(73), Texte(309), "50");
    const auto nom = NomLoiPersonnelle(reponse ? ValVirgule(*reponse) : 0.0);
    if (!nom) {
        LesDialogues().Message(Icone::Avertissement, Texte(416));
        loi_->setFocus();
        return false;
    }
    nomLoi = *nom;
    return true;
}

void DatoCama::LitDonnees() {
    for (auto* panneau : Panneaux()) panneau->Lit();
    ChangePesanteur(anglePesanteur_->Valeur());
}

bool DatoCama::FauteDeDonnee() {
    const auto faute = ChercheFauteAngulaire();
    if (!faute) return false;
    LesDialogues().Message(Icone::Avertissement, Texte(faute->texte));
    for (const auto& champ : champsGeometrie)
        if (champ.membre == faute->membre) geometrie_->Champ(champ.controle)->setFocus();
    return true;
}

void DatoCama::Suivante() {
    if (etude.ZoneCourante > etude.NombreZones) return;
    LitDonnees();
    Zone zone;
    zone.AngleDepart = angleDepart_->Valeur();
    zone.AngleFinal = angleFinal_->Valeur();
    zone.AngleCame = angleCame_->Valeur();
    zone.NomLoi = S(loi_->currentText());
    zone.CoefSymetrie = symetrie_->Valeur();
    if (const auto faute = ChercheFauteZone(zone)) {
        LesDialogues().Message(Icone::Avertissement, faute->texte);
        QWidget* const champs[] = {symetrie_, loi_, angleCame_};
        champs[static_cast<int>(faute->champ)]->setFocus();
        return;
    }
    if (zone.NomLoi == NomLoiPourcentage && !DemandePourcentage(zone.NomLoi)) return;
    if (FauteDeDonnee()) return;
    CalculeRayonsZone(zone);
    if (!SansErreur()) {
        LesDialogues().Message(Icone::Avertissement, Texte(75));
        geometrie_->Champ("Text4")->setFocus();
        return;
    }
    zone.Temps = TempsZone(zone.AngleCame, etude.VitesseCame);
    TermineZone(zone);
}

void DatoCama::TermineZone(const Zone& zone) {
    etude.Zones[etude.ZoneCourante] = zone;
    zonesEntrees_ = std::max(zonesEntrees_, etude.ZoneCourante);
    const bool derniere = etude.ZoneCourante == etude.NombreZones;
    if (!derniere) ++etude.ZoneCourante;
    MontreZone();
    RemplitGrille();
    derniere ? calculer_->setFocus(Qt::TabFocusReason) : angleFinal_->setFocus(Qt::TabFocusReason);
}

void DatoCama::Calculer() {
    const std::string points = S(pointsParDegre_->currentText());
    if (!EstPointsParDegre(points)) {
        LesDialogues().Message(Icone::Avertissement, Texte(519) + "\n" + Texte(520));
        pointsParDegre_->setFocus();
        return;
    }
    LitDonnees();
    if (FauteDeDonnee()) return;
    const std::int16_t pointsParDegre = Entier16(Val(points));
    if (TropDePoints(pointsParDegre)) {
        LesDialogues().Message(Icone::Avertissement, Texte(205));
        pointsParDegre_->setFocus();
        return;
    }
    const Sablier sablier;
    etude.PointsParDegre = pointsParDegre;
    // The speed may have changed since a zone was accepted.
    for (std::int16_t z = 1; z <= etude.NombreZones; ++z)
        etude.Zones[z].Temps = TempsZone(etude.Zones[z].AngleCame, etude.VitesseCame);
    CalculeCameAngulaire();
    if (!SansErreur()) return;
    etude.EtudeModifiee = Vrai;
    etude.ResultatsPrets = Vrai;
    emit EtudeCalculee();
}

void DatoCama::Retour() {
    etude.ZoneCourante = 0;
    etude.EtudeModifiee = Faux;
    etude.ResultatsPrets = Faux;
    emit Quitte();
}
