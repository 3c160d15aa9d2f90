#include "indexers/screens/PanneauLoi.h"

#include "data/Demarrage.h"
#include "data/Textes.h"
#include "indexers/screens/ListeCles.h"
#include "laws/CalculLois.h"
#include "platform/Dialogues.h"
#include "widgets/Chaines.h"
#include "widgets/ChampNombre.h"
#include "widgets/Etiquettes.h"
#include "widgets/Nomme.h"
#include "widgets/PanneauChamps.h"

#include <QGridLayout>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr int TexteEntrezCoefs = 406;
constexpr int TexteCoefD = 331;
constexpr int TexteOk = 3;

} // namespace

PanneauLoi::PanneauLoi(const char* nom, int titre, const SaisieLoi& saisie, const std::vector<std::string>& lois,
                       QWidget* parent)
    : QGroupBox(QTexte(titre), parent), saisie_(saisie), lois_(new ListeCles(saisie.loi.controle, false)) {
    setObjectName(QString::fromLatin1(nom));
    lois_->Offre(lois);
    lois_->setCurrentIndex(-1);
    auto* grille = new QGridLayout(this);
    auto* etiquette = FaitEtiquette("", lois_);
    etiquette->setText(QTexte(saisie.loi.texte));
    grille->addWidget(etiquette, 0, 0);
    grille->addWidget(lois_, 0, 1, 1, 2);
    symetrie_ = AjouteLigneChamp(*grille, 1, saisie.symetrie.controle, saisie.symetrie.texte, saisie.symetrie.unite);
    grille->addWidget(FaitCoefs(), 2, 0, 1, 3);
    grille->setRowStretch(3, 1);
    connect(lois_, &ListeCles::Choisie, this, &PanneauLoi::Choisit);
    connect(symetrie_, &QLineEdit::textChanged, this, &PanneauLoi::Modifie);
}

QWidget* PanneauLoi::FaitCoefs() {
    panneau_ = Nomme(new QGroupBox(QTexte(TexteEntrezCoefs)), saisie_.panneau);
    auto* grille = new QGridLayout(panneau_);
    const ChampLie* champs[] = {&saisie_.a, &saisie_.b, &saisie_.c};
    for (int i = 0; i < 3; ++i) {
        coefs_[i] = AjouteLigneChamp(*grille, i, champs[i]->controle, champs[i]->texte, 0);
        connect(coefs_[i], &QLineEdit::textChanged, this, &PanneauLoi::MontreD);
        connect(coefs_[i], &QLineEdit::textChanged, this, &PanneauLoi::Modifie);
    }
    grille->addWidget(new QLabel(QTexte(TexteCoefD)), 3, 0);
    d_ = FaitValeur("", "-0.000000");
    d_->setObjectName(QStringLiteral("CoefD") + panneau_->objectName());
    grille->addWidget(d_, 3, 1);
    ok_ = Nomme(new QPushButton(QTexte(TexteOk)), saisie_.ok);
    grille->addWidget(ok_, 4, 0, 1, 3, Qt::AlignRight);
    for (int i = 0; i < 3; ++i) {
        auto* suivant = i < 2 ? static_cast<QWidget*>(coefs_[i + 1]) : ok_;
        connect(coefs_[i], &ChampNombre::Suivant, suivant, [suivant] { suivant->setFocus(Qt::TabFocusReason); });
    }
    ok_->setAutoDefault(true);
    connect(ok_, &QPushButton::clicked, this, &PanneauLoi::Accepte);
    MontreD();
    // Its room stays, so that nothing moves when it opens.
    QSizePolicy place = panneau_->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    panneau_->setSizePolicy(place);
    panneau_->hide();
    return panneau_;
}

void PanneauLoi::Lit() {
    const SourceLoi source = Source();
    *std::get<std::string*>(saisie_.loi.valeur) = source.NomLoi;
    *std::get<double*>(saisie_.symetrie.valeur) = source.CoefSymetrie;
    *std::get<double*>(saisie_.a.valeur) = source.CoefA;
    *std::get<double*>(saisie_.b.valeur) = source.CoefB;
    *std::get<double*>(saisie_.c.valeur) = source.CoefC;
}

SourceLoi PanneauLoi::Source() const {
    SourceLoi source;
    source.NomLoi = lois_->Cle();
    source.CoefSymetrie = symetrie_->Valeur();
    source.CoefA = coefs_[0]->Valeur();
    source.CoefB = coefs_[1]->Valeur();
    source.CoefC = coefs_[2]->Valeur();
    return source;
}

QWidget* PanneauLoi::Controle(const std::string& membre) const {
    if (membre == saisie_.loi.nom) return lois_;
    if (membre == saisie_.symetrie.nom) return symetrie_;
    const ChampLie* champs[] = {&saisie_.a, &saisie_.b, &saisie_.c};
    for (int i = 0; i < 3; ++i)
        if (membre == champs[i]->nom) return coefs_[i];
    return nullptr;
}

std::string PanneauLoi::Saisi(const std::string& membre) const {
    QWidget* controle = Controle(membre);
    if (controle == lois_) return lois_->Cle();
    const auto* champ = qobject_cast<ChampNombre*>(controle);
    return champ == nullptr ? std::string() : S(champ->text());
}

std::vector<QWidget*> PanneauLoi::Controles() const {
    return {lois_, symetrie_};
}

bool PanneauLoi::Ouvert() const {
    return !panneau_->isHidden();
}

void PanneauLoi::Choisit() {
    const std::string loi = lois_->Cle();
    OuvreCoefs(loi == NomLoiSpe);
    (Ouvert() ? coefs_[0] : symetrie_)->setFocus(Qt::TabFocusReason);
    emit Modifie();
    if (loi == NomLoiFichier) emit FichierChoisi();
}

void PanneauLoi::Accepte() {
    if (const auto faute = ChercheFauteCoefs(Source(), saisie_.maximumD)) {
        LesDialogues().Message(saisie_.icone, faute->texte);
        coefs_[0]->setFocus(Qt::OtherFocusReason);
        return;
    }
    OuvreCoefs(false);
    symetrie_->setFocus(Qt::TabFocusReason);
}

void PanneauLoi::OuvreCoefs(bool ouvert) {
    panneau_->setVisible(ouvert);
    symetrie_->setEnabled(!ouvert);
    emit Bloque(ouvert);
}

void PanneauLoi::MontreD() {
    d_->setText(Q(TexteArrondi(CoefD(Source()), 6)));
}

std::string DemandeFichierLoi() {
    const auto chemin =
        LesDialogues().FichierAOuvrir({Texte(125), CheminEtudes, {}, {{Texte(279) + " (*.Lmi)", "*.Lmi"}}});
    return chemin ? S(QChemin(*chemin)) : std::string();
}

std::vector<std::string> NomsLoisCalculateur() {
    std::vector<std::string> noms = NomsLoisZones();
    if (std::find(noms.begin(), noms.end(), NomLoiFichier) == noms.end()) noms.emplace_back(NomLoiFichier);
    return noms;
}
