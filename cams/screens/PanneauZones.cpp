#include "cams/screens/PanneauZones.h"

#include "cams/LimitesSaisie.h"
#include "cams/ListeZones.h"
#include "data/Demarrage.h"
#include "data/Textes.h"
#include "data/Unites.h"
#include "laws/CalculLois.h"
#include "laws/FichierLoi.h"
#include "platform/Dialogues.h"
#include "widgets/Chaines.h"
#include "widgets/ChampNombre.h"
#include "widgets/Grille.h"
#include "widgets/Legendes.h"
#include "widgets/Nomme.h"
#include "widgets/PanneauChamps.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QGridLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr Legende legendes[] = {
    {"EtiquetteCombo2", 0, 174},
    {"EtiquetteCombo1", 0, 105},
    {"TitreGrille", 0, 179},
};

QComboBox* FaitListe(const char* nom) {
    auto* liste = Nomme(new QComboBox, nom);
    liste->setEditable(true);
    liste->setInsertPolicy(QComboBox::NoInsert);
    return liste;
}

} // namespace

PanneauZones::PanneauZones(const DescriptionZones& description, const ChampsZones& champs,
                           std::function<bool(Zone&)> acheve, QWidget* parent)
    : QGroupBox(QTexte(170), parent), description_(description), acheve_(std::move(acheve)) {
    setObjectName("Picture5");
    auto* disposition = new QVBoxLayout(this);
    auto* tete = new QGridLayout;
    nombreZones_ = AjouteLigneChamp(*tete, 0, champs.nombre, 172, 0);
    pointsParDegre_ = FaitListe("Combo2");
    for (const auto points : PointsParDegrePermis) pointsParDegre_->addItem(QString::number(points));
    tete->addWidget(FaitEtiquette("EtiquetteCombo2", pointsParDegre_), 1, 0);
    tete->addWidget(pointsParDegre_, 1, 1);
    disposition->addLayout(tete);
    disposition->addWidget(FaitCadreZone(champs));
    grille_ = Nomme(new Grille, "Grille");
    grille_->setMinimumSize(630, 200);
    disposition->addWidget(FaitEtiquette("TitreGrille", grille_));
    disposition->addWidget(grille_, 1);
    somme_ = Nomme(new QLabel, "SommeAngles");
    disposition->addWidget(somme_);
    AppliqueLegendes(*this, legendes);
    suivante_->setText(QTexte(champs.suivante));
    RelieChamps();

    zonesEntrees_ = etude.donnees.NombreZones;
    etude.donnees.ZoneCourante = 1;
    nombreZones_->Montre(etude.donnees.NombreZones);
    pointsParDegre_->setCurrentText(etude.donnees.PointsParDegre == 0 ? "1"
                                                                      : QString::number(etude.donnees.PointsParDegre));
    ProposeFichier();
    MontreZone();
    RemplitGrille();
}

QWidget* PanneauZones::FaitCadreZone(const ChampsZones& noms) {
    cadreZone_ = Nomme(new QGroupBox, "Frame1");
    auto* champs = new QGridLayout(cadreZone_);
    valeurDepart_ = AjouteLigneChamp(*champs, 0, noms.depart, description_.texteDepart, description_.unite);
    valeurFinale_ = AjouteLigneChamp(*champs, 1, noms.finale, description_.texteFinale, description_.unite);
    angleCame_ = AjouteLigneChamp(*champs, 2, noms.came, description_.texteCame, UniteDegres);
    loi_ = FaitListe("Combo1");
    loi_->setMinimumContentsLength(11);
    for (const auto& nom : NomsLoisZones()) loi_->addItem(Q(nom));
    champs->addWidget(FaitEtiquette("EtiquetteCombo1", loi_), 3, 0);
    champs->addWidget(loi_, 3, 1);
    symetrie_ = AjouteLigneChamp(*champs, 4, noms.symetrie, 178, 0);
    suivante_ = Nomme(new QPushButton, "Suivante");
    suivante_->setAutoDefault(true);
    champs->addWidget(suivante_, 5, 0, 1, 3, Qt::AlignRight);
    return cadreZone_;
}

void PanneauZones::RelieChamps() {
    const auto prendFocus = [](QWidget* champ) { return [champ] { champ->setFocus(Qt::TabFocusReason); }; };
    connect(nombreZones_, &ChampNombre::Suivant, this, prendFocus(valeurDepart_));
    connect(pointsParDegre_->lineEdit(), &QLineEdit::returnPressed, this, prendFocus(valeurDepart_));
    connect(valeurDepart_, &ChampNombre::Suivant, this, prendFocus(valeurFinale_));
    connect(valeurFinale_, &ChampNombre::Suivant, this, prendFocus(angleCame_));
    connect(angleCame_, &ChampNombre::Suivant, this, prendFocus(loi_));
    connect(symetrie_, &ChampNombre::Suivant, this, prendFocus(suivante_));
    nombreZones_->installEventFilter(this);
    connect(loi_, &QComboBox::activated, this, [this] { DemandeChoix(false); });
    connect(loi_->lineEdit(), &QLineEdit::returnPressed, this, [this] { DemandeChoix(true); });
    connect(grille_, &QTableView::clicked, this, [this](const QModelIndex& index) { VaALaZone(index.row()); });
    connect(suivante_, &QPushButton::clicked, this, &PanneauZones::Suivante);
}

void PanneauZones::PrendFocus() {
    nombreZones_->setFocus(Qt::TabFocusReason);
}

bool PanneauZones::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() == QEvent::FocusOut) {
        // Another window, a menu or the way back may be gone to with any number in the field.
        const auto raison = static_cast<QFocusEvent*>(evenement)->reason();
        const bool ailleurs = raison == Qt::ActiveWindowFocusReason || raison == Qt::PopupFocusReason ||
                              raison == Qt::MenuBarFocusReason || (retour_ != nullptr && retour_->hasFocus());
        if (!ailleurs && isVisible())
            QMetaObject::invokeMethod(this, &PanneauZones::EntreNombreZones, Qt::QueuedConnection);
    }
    return QGroupBox::eventFilter(objet, evenement);
}

void PanneauZones::EntreNombreZones() {
    const double nombre = Int(nombreZones_->Valeur());
    const int texte = nombre <= 0.0 ? 72 : nombre > 32767.0 ? 206 : 0;
    if (texte != 0) {
        LesDialogues().Message(Icone::Information, Texte(texte));
        nombreZones_->setFocus();
        return;
    }
    nombreZones_->Montre(nombre);
    if (Entier16(nombre) == etude.donnees.NombreZones) return;
    etude.donnees.NombreZones = Entier16(nombre);
    emit Modifie();
    etude.donnees.Zones.Redimensionne(etude.donnees.NombreZones);
    etude.donnees.ZoneCourante = 1;
    zonesEntrees_ = 0;
    ProposeFichier();
    MontreZone();
    RemplitGrille();
}

/// A study of one zone may take its law from a file; any other may not.
bool PanneauZones::FichierPermis() const {
    return description_.loiDeFichier && etude.donnees.NombreZones == 1;
}

void PanneauZones::ProposeFichier() {
    const QString nom = QString::fromLatin1(NomLoiFichier);
    const int place = loi_->findText(nom, Qt::MatchExactly);
    if (FichierPermis() && place < 0) loi_->addItem(nom);
    if (!FichierPermis() && place >= 0) loi_->removeItem(place);
}

void PanneauZones::MontreZone() {
    const std::int16_t z = etude.donnees.ZoneCourante;
    cadreZone_->setTitle(QTexte(187) + " " + Q(Format(z, "###")));
    const bool entree = z <= zonesEntrees_;
    const Zone zone = entree ? etude.donnees.Zones[z] : Zone{};
    // A zone begins where the one before ends.
    const bool propre = z <= 1 || (entree && !description_.departsSuivis);
    valeurDepart_->Montre(propre ? zone.*description_.valeurDepart
                                 : etude.donnees.Zones[z - 1].*description_.valeurFinale);
    valeurDepart_->setEnabled(z <= 1 || !description_.departsSuivis);
    valeurFinale_->Montre(zone.*description_.valeurFinale);
    angleCame_->Montre(zone.AngleCame);
    if (entree) loi_->setCurrentText(Q(zone.NomLoi));
    loiChoisie_ = loi_->currentText();
    symetrie_->Montre(entree ? zone.CoefSymetrie : 0.5);
    MontreBoutons();
}

void PanneauZones::MontreBoutons() {
    suivante_->setEnabled(etude.donnees.NombreZones > 0);
    suivante_->setDefault(!Complet());
    emit Change();
}

void PanneauZones::RemplitGrille() {
    grille_->Remplit(TableZones(description_, zonesEntrees_));
    double somme = 0;
    for (std::int16_t z = 1; z <= zonesEntrees_; ++z) somme += etude.donnees.Zones[z].AngleCame;
    somme_->setText(QTexte(191) + " " + Q(StrTrim(somme)) + " " + QTexte(UniteDegres));
}

void PanneauZones::VaALaZone(int ligne) {
    // Only zones already entered, or the first that is not, can be gone to.
    if (ligne + 1 > std::min<int>(zonesEntrees_ + 1, etude.donnees.NombreZones)) return;
    etude.donnees.ZoneCourante = static_cast<std::int16_t>(ligne + 1);
    MontreZone();
    (valeurDepart_->isEnabled() ? valeurDepart_ : valeurFinale_)->setFocus(Qt::TabFocusReason);
}

/// One Return may announce itself twice, as a key and as a choice: the law is chosen once.
void PanneauZones::DemandeChoix(bool continuer) {
    continuer_ = continuer_ || continuer;
    if (std::exchange(choixDemande_, true)) return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            choixDemande_ = false;
            const bool suite = std::exchange(continuer_, false);
            if (ChoisitLoi() && suite) symetrie_->setFocus(Qt::TabFocusReason);
        },
        Qt::QueuedConnection);
}

bool PanneauZones::ChoisitLoi() {
    if (loi_->currentText() == QLatin1String(NomLoiFichier) && FichierPermis()) return ChercheFichier();
    JeuEnregistrements lois = LaBase.OuvreTable("Lois");
    lois.Seek(S(loi_->currentText()));
    if (!lois.NoMatch()) {
        symetrie_->Montre(EnNombre(lois.Champ("CoefS")));
        loiChoisie_ = loi_->currentText();
        return true;
    }
    LesDialogues().Message(Icone::Avertissement, Texte(521) + " " + Texte(103));
    loi_->setCurrentIndex(0);
    symetrie_->Montre(0.5);
    loi_->setFocus();
    return false;
}

bool PanneauZones::ChercheFichier() {
    // A cancelled dialogue or a file that cannot be read leaves the law as it was.
    loi_->setCurrentText(loiChoisie_);
    const auto chemin = LesDialogues().FichierAOuvrir(
        {Texte(125), CheminAppli / NomDossierEtudes, {}, {{Texte(279) + " (*.Lmi)", "*.Lmi"}}});
    if (!chemin || chemin->empty()) return false;
    LitFichierLoi(*chemin);
    emit Modifie();
    etude.resultats.Erreur = Faux;
    etude.donnees.Zones.Redimensionne(1);
    Zone& zone = etude.donnees.Zones[1];
    zone.*description_.valeurDepart = valeurDepart_->Valeur();
    zone.*description_.valeurFinale = valeurFinale_->Valeur();
    zone.NomLoi = NomLoiFichier;
    zone.CoefSymetrie = symetrie_->Valeur();
    // A law file is 720 points over a whole turn.
    zone.AngleCame = 360;
    etude.donnees.NombreZones = 1;
    etude.donnees.ZoneCourante = 1;
    zonesEntrees_ = 1;
    nombreZones_->Montre(1);
    pointsParDegre_->setCurrentText("2");
    MontreZone();
    zonesEntrees_ = 0; // the zone is filled, and waits to be accepted
    MontreBoutons();
    RemplitGrille();
    return true;
}

bool PanneauZones::DemandePourcentage(std::string& nomLoi) {
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

void PanneauZones::Suivante() {
    if (etude.donnees.ZoneCourante > etude.donnees.NombreZones) return;
    Zone zone;
    zone.*description_.valeurDepart = valeurDepart_->Valeur();
    zone.*description_.valeurFinale = valeurFinale_->Valeur();
    zone.AngleCame = angleCame_->Valeur();
    zone.NomLoi = S(loi_->currentText());
    zone.CoefSymetrie = symetrie_->Valeur();
    auto faute = ChercheFauteZone(zone);
    if (!faute && zone.NomLoi == NomLoiFichier && !FichierPermis()) faute = {ChampZone::NomLoi, Texte(511)};
    if (faute) {
        LesDialogues().Message(Icone::Avertissement, faute->texte);
        QWidget* const champs[] = {symetrie_, loi_, angleCame_};
        champs[static_cast<int>(faute->champ)]->setFocus();
        return;
    }
    if (zone.NomLoi == NomLoiPourcentage && !DemandePourcentage(zone.NomLoi)) return;
    if (acheve_(zone)) TermineZone(zone);
}

void PanneauZones::TermineZone(const Zone& zone) {
    etude.donnees.Zones[etude.donnees.ZoneCourante] = zone;
    emit Modifie();
    zonesEntrees_ = std::max(zonesEntrees_, etude.donnees.ZoneCourante);
    const bool derniere = etude.donnees.ZoneCourante == etude.donnees.NombreZones;
    if (!derniere) ++etude.donnees.ZoneCourante;
    MontreZone();
    RemplitGrille();
    if (derniere)
        emit Termine();
    else
        valeurFinale_->setFocus(Qt::TabFocusReason);
}

bool PanneauZones::LitPointsParDegre() {
    const std::string points = S(pointsParDegre_->currentText());
    std::string faute;
    if (!EstPointsParDegre(points))
        faute = Texte(519) + "\n" + Texte(520);
    else if (const int texte = FautePoints(Entier16(Val(points))))
        faute = Texte(texte);
    if (faute.empty()) {
        etude.donnees.PointsParDegre = Entier16(Val(points));
        return true;
    }
    LesDialogues().Message(Icone::Avertissement, faute);
    pointsParDegre_->setFocus();
    return false;
}
