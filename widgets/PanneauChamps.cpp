#include "widgets/PanneauChamps.h"

#include "widgets/Chaines.h"
#include "widgets/ChampNombre.h"
#include "widgets/Etiquettes.h"

#include <QGridLayout>
#include <QLabel>

#include <stdexcept>

ChampNombre* AjouteLigneChamp(QGridLayout& grille, int ligne, const char* controle, int texte, int unite) {
    auto* etiquette = new QLabel(QTexte(texte));
    auto* champ = new ChampNombre;
    champ->setObjectName(QString::fromUtf8(controle));
    etiquette->setObjectName(QStringLiteral("Etiquette") + champ->objectName());
    etiquette->setBuddy(champ);
    auto* grandeur = FaitUnite(unite == 0 ? QString() : QTexte(unite));
    grandeur->setObjectName(QStringLiteral("Unite") + champ->objectName());
    grille.addWidget(etiquette, ligne, 0);
    grille.addWidget(champ, ligne, 1, Qt::AlignRight | Qt::AlignVCenter);
    grille.addWidget(grandeur, ligne, 2);
    grille.setColumnStretch(0, 1);
    return champ;
}

PanneauChamps::PanneauChamps(const char* nom, int titre, std::span<const ChampSaisie> champs, QWidget* parent)
    : QGroupBox(QTexte(titre), parent), table_(champs), disposition_(new QGridLayout(this)) {
    setObjectName(QString::fromUtf8(nom));
    for (const ChampSaisie& champ : table_)
        lesChamps_.push_back(
            AjouteLigneChamp(*disposition_, disposition_->rowCount(), champ.controle, champ.texte, champ.unite));
    for (std::size_t i = 0; i < lesChamps_.size(); ++i) {
        if (i + 1 < lesChamps_.size()) {
            ChampNombre* suivant = lesChamps_[i + 1];
            connect(lesChamps_[i], &ChampNombre::Suivant, suivant,
                    [suivant] { suivant->setFocus(Qt::TabFocusReason); });
        } else {
            connect(lesChamps_[i], &ChampNombre::Suivant, this, &PanneauChamps::Termine);
        }
    }
    Charge();
}

void PanneauChamps::Charge() {
    for (std::size_t i = 0; i < lesChamps_.size(); ++i) lesChamps_[i]->Montre(etude.donnees.*table_[i].membre);
}

bool PanneauChamps::Lit() {
    std::vector<double> valeurs;
    for (const ChampNombre* champ : lesChamps_) valeurs.push_back(champ->Valeur());
    bool change = false;
    for (std::size_t i = 0; i < valeurs.size(); ++i) {
        change = change || etude.donnees.*table_[i].membre != valeurs[i];
        etude.donnees.*table_[i].membre = valeurs[i];
    }
    return change;
}

ChampNombre* PanneauChamps::Champ(const char* controle) const {
    std::string noms;
    for (ChampNombre* champ : lesChamps_) {
        if (champ->objectName() == QLatin1String(controle)) return champ;
        noms += " " + S(champ->objectName());
    }
    throw std::logic_error(std::string("no field ") + controle + " among:" + noms);
}

ChampNombre* PanneauChamps::ChampDe(double DonneesEtude::*membre) const {
    for (std::size_t i = 0; i < lesChamps_.size(); ++i)
        if (table_[i].membre == membre) return lesChamps_[i];
    return nullptr;
}
