#include "cams/screens/PanneauZones.h"

#include "cams/LimitesSaisie.h"
#include "cams/ListeZones.h"
#include "cams/RemarquesZones.h"
#include "cams/screens/ListeLois.h"
#include "data/Demarrage.h"
#include "data/Textes.h"
#include "data/TextesSaisie.h"
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
#include "widgets/Remarques.h"
#include "widgets/ReprendSaisie.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QGridLayout>
#include <QLineEdit>
#include <QMouseEvent>
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

/// The text of a list that can be typed into: selected whole when it is entered, by the mouse too, and when the list
/// has closed again.
class LigneListe : public QLineEdit {
protected:
    void focusInEvent(QFocusEvent* evenement) override {
        QLineEdit::focusInEvent(evenement);
        vientDeLaSouris_ = evenement->reason() == Qt::MouseFocusReason;
        if (evenement->reason() == Qt::PopupFocusReason) selectAll();
    }
    void mouseReleaseEvent(QMouseEvent* evenement) override {
        QLineEdit::mouseReleaseEvent(evenement);
        if (std::exchange(vientDeLaSouris_, false) && !hasSelectedText()) selectAll();
    }

private:
    bool vientDeLaSouris_ = false; ///< the press that gave the focus is still down
};

QComboBox* FaitListe(const char* nom) {
    auto* liste = Nomme(new QComboBox, nom);
    liste->setLineEdit(new LigneListe);
    liste->setInsertPolicy(QComboBox::NoInsert);
    return liste;
}

/// Brings a list to the row of that text, where it has one: with the text only written over another row, Return and
/// the wheel would go from that one.
void MontreDans(QComboBox& liste, const QString& texte) {
    const int place = liste.findText(texte, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    liste.setCurrentIndex(place);
    if (place < 0) liste.setEditText(texte);
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
    grille_->Prefere({630, 192});
    grille_->setMinimumSize(400, 140); // rather its columns scroll than the sheet
    disposition->addWidget(FaitEtiquette("TitreGrille", grille_));
    remarques_ = Nomme(new Remarques, "RemarquesZones");
    disposition->addWidget(remarques_);
    disposition->addWidget(grille_, 1);
    somme_ = Nomme(new QLabel, "SommeAngles");
    disposition->addWidget(somme_);
    AppliqueLegendes(*this, legendes);
    suivante_->setText(QTexte(champs.suivante));
    RelieChamps();

    // A study taken back may have zones that were not entered yet: they have no law.
    while (zonesEntrees_ < etude.donnees.NombreZones && !etude.donnees.Zones[zonesEntrees_ + 1].NomLoi.empty())
        ++zonesEntrees_;
    const auto saisie = etude.donnees.ZoneSaisie;
    const int connues = std::min<int>(zonesEntrees_ + 1, etude.donnees.NombreZones);
    etude.donnees.ZoneCourante = saisie && saisie->numero >= 1 && saisie->numero <= connues ? saisie->numero : 1;
    nombreZones_->Montre(etude.donnees.NombreZones);
    if (etude.donnees.PointsParDegre == 0) etude.donnees.PointsParDegre = 1; // of a new study, the first of the list
    MontreDans(*pointsParDegre_, QString::number(etude.donnees.PointsParDegre));
    ProposeFichier();
    MontreZone();
    if (saisie) MontreChamps(saisie->zone);
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
    NommeLois(*loi_);
    champs->addWidget(FaitEtiquette("EtiquetteCombo1", loi_), 3, 0);
    champs->addWidget(loi_, 3, 1);
    symetrie_ = AjouteLigneChamp(*champs, 4, noms.symetrie, 178, 0);
    suivante_ = Nomme(new QPushButton, "Suivante");
    suivante_->setAutoDefault(true);
    champs->addWidget(suivante_, 5, 0, 1, 3, Qt::AlignRight);
    PoseLimites(*cadreZone_, LimiteNombre);
    return cadreZone_;
}

void PanneauZones::RelieChamps() {
    const auto prendFocus = [](QWidget* champ) { return [champ] { champ->setFocus(Qt::TabFocusReason); }; };
    connect(nombreZones_, &ChampNombre::Suivant, this, [this] {
        if (EntreNombreZones()) PrendFocusZone();
    });
    connect(pointsParDegre_->lineEdit(), &QLineEdit::returnPressed, this, &PanneauZones::PrendFocusZone);
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

/// To the first field of the frame that can be entered.
void PanneauZones::PrendFocusZone() {
    (valeurDepart_->isEnabled() ? valeurDepart_ : valeurFinale_)->setFocus(Qt::TabFocusReason);
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

bool PanneauZones::EntreNombreZones() {
    const double nombre = Int(nombreZones_->Valeur());
    const int texte = nombre <= 0.0 ? 72 : nombre > 32767.0 ? 206 : 0;
    if (texte != 0) {
        LesDialogues().Message(Icone::Information, Texte(texte));
        ReprendSaisie(*nombreZones_);
        return false;
    }
    nombreZones_->Montre(nombre);
    if (Entier16(nombre) == etude.donnees.NombreZones) return true;
    etude.donnees.NombreZones = Entier16(nombre);
    emit Modifie();
    etude.donnees.Zones.Redimensionne(etude.donnees.NombreZones);
    etude.donnees.ZoneCourante = 1;
    zonesEntrees_ = 0;
    ProposeFichier();
    MontreZone();
    RemplitGrille();
    return true;
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
    Zone zone = entree ? etude.donnees.Zones[z] : Zone{};
    // A zone begins where the one before ends.
    const bool propre = z <= 1 || (entree && !description_.departsSuivis);
    if (!propre) zone.*description_.valeurDepart = etude.donnees.Zones[z - 1].*description_.valeurFinale;
    if (!entree) {
        zone.NomLoi = S(loi_->currentText());
        zone.CoefSymetrie = 0.5;
    }
    valeurDepart_->setEnabled(z <= 1 || !description_.departsSuivis);
    MontreChamps(zone);
    zoneMontree_ = LitZone();
    numeroMontre_ = z;
    etude.donnees.ZoneSaisie.reset();
    MontreBoutons();
}

void PanneauZones::MontreChamps(const Zone& zone) {
    valeurDepart_->Montre(zone.*description_.valeurDepart);
    valeurFinale_->Montre(zone.*description_.valeurFinale);
    angleCame_->Montre(zone.AngleCame);
    MontreLoi(Q(zone.NomLoi));
    symetrie_->Montre(zone.CoefSymetrie);
}

void PanneauZones::MontreLoi(const QString& nom) {
    MontreDans(*loi_, nom);
    loiChoisie_ = nom;
}

void PanneauZones::MontreBoutons() {
    suivante_->setEnabled(etude.donnees.NombreZones > 0);
    suivante_->setDefault(!Complet());
    emit Change();
}

void PanneauZones::RemplitGrille() {
    grille_->Remplit(TableZones(description_, zonesEntrees_));
    somme_->setText(QTexte(191) + " " + Q(StrTrim(SommeAngles(zonesEntrees_))) + " " + QTexte(UniteDegres));
    remarques_->Montre(RemarquesZones(description_, zonesEntrees_));
}

void PanneauZones::VaALaZone(int ligne) {
    // Only zones already entered, or the first that is not, can be gone to; what was typed is not left behind.
    if (ligne + 1 == etude.donnees.ZoneCourante) return PrendFocusZone();
    if (ZoneModifiee() && !AccepteZone()) return;
    if (ligne < std::min<int>(zonesEntrees_ + 1, etude.donnees.NombreZones))
        etude.donnees.ZoneCourante = static_cast<std::int16_t>(ligne + 1);
    MontreZone();
    PrendFocusZone();
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
            // The law that the zone has already is no choice; a law file picked in the list again is another one.
            const bool passe =
                loi_->currentText() == loiChoisie_ && (suite || loiChoisie_ != QLatin1String(NomLoiFichier));
            if ((passe || ChoisitLoi()) && suite) symetrie_->setFocus(Qt::TabFocusReason);
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
    ReprendSaisie(*loi_);
    return false;
}

bool PanneauZones::ChercheFichier() {
    // A cancelled dialogue or a file that cannot be read leaves the law as it was.
    MontreLoi(loiChoisie_);
    const auto chemin =
        LesDialogues().FichierAOuvrir({Texte(125), CheminEtudes, {}, {{Texte(279) + " (*.Lmi)", "*.Lmi"}}});
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
    MontreDans(*pointsParDegre_, "2");
    PrendPointsParDegre("2");
    MontreZone();
    zonesEntrees_ = 0; // the zone is filled, and waits to be accepted
    MontreBoutons();
    RemplitGrille();
    emit LoiLue(QChemin(chemin->filename()));
    return true;
}

bool PanneauZones::DemandePourcentage(std::string& nomLoi) {
    const auto reponse = LesDialogues().Saisie(Texte(73), Texte(309), "50");
    const auto nom = NomLoiPersonnelle(reponse ? ValVirgule(*reponse) : 0.0);
    if (!nom) {
        LesDialogues().Message(Icone::Avertissement, Texte(416));
        ReprendSaisie(*loi_);
        return false;
    }
    nomLoi = *nom;
    return true;
}

/// What the fields of the frame hold.
Zone PanneauZones::LitZone() const {
    Zone zone;
    zone.*description_.valeurDepart = valeurDepart_->Valeur();
    zone.*description_.valeurFinale = valeurFinale_->Valeur();
    zone.AngleCame = angleCame_->Valeur();
    zone.NomLoi = S(loi_->currentText());
    zone.CoefSymetrie = symetrie_->Valeur();
    return zone;
}

bool PanneauZones::ZoneModifiee() const {
    const Zone zone = LitZone();
    for (const auto membre :
         {description_.valeurDepart, description_.valeurFinale, &Zone::AngleCame, &Zone::CoefSymetrie})
        if (zone.*membre != zoneMontree_.*membre) return true;
    return zone.NomLoi != zoneMontree_.NomLoi;
}

bool PanneauZones::PrendSaisie() {
    if (!EntreNombreZones()) return false;
    const std::int16_t z = etude.donnees.ZoneCourante;
    const bool attend = z > zonesEntrees_ && z == etude.donnees.NombreZones;
    if (attend || ZoneModifiee()) {
        if (!AccepteZone()) return false;
        MontreZone();
    }
    if (Complet()) return true;
    LesDialogues().Message(Icone::Information, Texte(TexteZonesManquantes));
    PrendFocusZone();
    return false;
}

bool PanneauZones::AccepteZone() {
    Zone zone = LitZone();
    auto faute = ChercheFauteZone(zone);
    if (!faute && zone.NomLoi == NomLoiFichier && !FichierPermis())
        faute = {ChampZone::NomLoi, AvecLoisRemplacees(Texte(511))};
    if (faute) {
        LesDialogues().Message(Icone::Avertissement, faute->texte);
        QWidget* const champs[] = {symetrie_, loi_, angleCame_};
        ReprendSaisie(*champs[static_cast<int>(faute->champ)]);
        return false;
    }
    if (zone.NomLoi == NomLoiSpe && !DemandePourcentage(zone.NomLoi)) return false;
    if (!acheve_(zone)) return false;
    GardeZone(zone);
    return true;
}

void PanneauZones::GardeZone(const Zone& zone) {
    const std::int16_t z = etude.donnees.ZoneCourante;
    const Zone avant = std::exchange(etude.donnees.Zones[z], zone);
    // The end that was edited is where the next zone starts.
    if (z < zonesEntrees_ && zone.*description_.valeurFinale != avant.*description_.valeurFinale) {
        Zone& suivante = etude.donnees.Zones[z + 1];
        suivante.RayonDepart = zone.RayonFinal;
        suivante.*description_.valeurDepart = zone.*description_.valeurFinale;
    }
    zonesEntrees_ = std::max(zonesEntrees_, z);
    emit Modifie();
    RemplitGrille();
}

void PanneauZones::Suivante() {
    if (etude.donnees.ZoneCourante > etude.donnees.NombreZones || !AccepteZone()) return;
    const bool derniere = etude.donnees.ZoneCourante == etude.donnees.NombreZones;
    if (!derniere) ++etude.donnees.ZoneCourante;
    MontreZone();
    if (derniere)
        emit Termine();
    else
        valeurFinale_->setFocus(Qt::TabFocusReason);
}

void PanneauZones::LitSaisie() {
    const std::string points = S(pointsParDegre_->currentText());
    if (EstPointsParDegre(points)) PrendPointsParDegre(points);
    etude.donnees.ZoneSaisie.reset();
    if (ZoneModifiee()) etude.donnees.ZoneSaisie = SaisieZone{numeroMontre_, LitZone()};
}

void PanneauZones::PrendPointsParDegre(const std::string& texte) {
    const std::int16_t points = Entier16(Val(texte));
    if (std::exchange(etude.donnees.PointsParDegre, points) != points) emit Modifie();
}

bool PanneauZones::LitPointsParDegre() {
    const std::string texte = S(pointsParDegre_->currentText());
    if (!EstPointsParDegre(texte)) {
        LesDialogues().Message(Icone::Avertissement, Texte(519) + "\n" + Texte(520));
        ReprendSaisie(*pointsParDegre_);
        return false;
    }
    PrendPointsParDegre(texte);
    return true;
}

bool PanneauZones::ControlePoints() {
    const int texte = FautePoints(etude.donnees.PointsParDegre);
    if (texte == 0) return true;
    LesDialogues().Message(Icone::Avertissement, Texte(texte));
    ReprendSaisie(*pointsParDegre_);
    return false;
}
