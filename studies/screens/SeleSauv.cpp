#include "studies/screens/SeleSauv.h"

#include "core/Etude.h"
#include "data/Textes.h"
#include "platform/Dialogues.h"
#include "studies/Exports.h"
#include "studies/FichierEtude.h"
#include "widgets/Chaines.h"
#include "widgets/Legendes.h"
#include "widgets/Nomme.h"
#include "widgets/ReprendSaisie.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

#include <utility>

namespace {

constexpr Legende legendes[] = {
    {"SeleSauv", 0, 305}, {"Label1", 0, 306},    {"EtiquetteText1", 0, 307}, {"Check1", 0, 215},
    {"Check2", 0, 210},   {"Check3", 0, 308},    {"Label3", 0, 310},         {"Label4", 0, 311},
    {"Label5", 0, 312},   {"Sauvegarde", 0, 41}, {"Quitter", 0, 313},
};

} // namespace

SeleSauv::SeleSauv(std::function<bool()> metAJour, QWidget* parent) : QDialog(parent), metAJour_(std::move(metAJour)) {
    setObjectName("SeleSauv");
    nom_ = Nomme(new QLineEdit(Q(NomSansExtension(etude.donnees.NomFichier))), "Text1");
    donnees_ = Nomme(new QCheckBox, "Check1");
    points_ = Nomme(new QCheckBox, "Check2");
    scripts_ = Nomme(new QCheckBox, "Check3");
    donnees_->setChecked(true);

    auto* choix = new QGridLayout;
    choix->addWidget(FaitEtiquette("EtiquetteText1", nom_), 0, 0);
    choix->addWidget(nom_, 0, 1);
    const std::pair<QCheckBox*, const char*> lignes[] = {
        {donnees_, "Label3"}, {points_, "Label5"}, {scripts_, "Label4"}};
    int rang = 1;
    for (const auto& [case_, nom] : lignes) {
        auto* explication = FaitEtiquette(nom);
        choix->addWidget(case_, rang, 0);
        choix->addWidget(explication, rang++, 1);
    }
    choix->setColumnStretch(1, 1);

    auto* quitter = Nomme(new QPushButton, "Quitter");
    auto* sauvegarde = Nomme(new QPushButton, "Sauvegarde");
    sauvegarde->setDefault(true);
    quitter->setAutoDefault(false);
    auto* boutons = new QHBoxLayout;
    boutons->addWidget(quitter);
    boutons->addStretch();
    boutons->addWidget(sauvegarde);

    auto* disposition = new QVBoxLayout(this);
    disposition->addWidget(FaitEtiquette("Label1"));
    disposition->addLayout(choix);
    disposition->addStretch();
    disposition->addLayout(boutons);
    AppliqueLegendes(*this, legendes);
    connect(quitter, &QPushButton::clicked, this, &QDialog::reject);
    connect(sauvegarde, &QPushButton::clicked, this, &SeleSauv::Sauvegarde);
    nom_->selectAll();
}

void SeleSauv::Sauvegarde() {
    const std::string nom = Trim(S(nom_->text()));
    if (nom.empty()) {
        LesDialogues().Message(Icone::Information, Texte(518));
        ReprendSaisie(*nom_);
        return;
    }
    if (nom.find_first_of("/\\") != std::string::npos) {
        LesDialogues().Message(Icone::Avertissement, Texte(208));
        ReprendSaisie(*nom_);
        return;
    }
    // The exports alone would leave nothing to make them again from.
    if (!donnees_->isChecked()) {
        LesDialogues().Message(Icone::Information, Texte(517));
        donnees_->setFocus();
        return;
    }
    if ((points_->isChecked() || scripts_->isChecked()) && !metAJour_()) return;
    etude.donnees.NomFichier = nom;
    if (const auto chemin = DonneesDepart()) emit FichierEnregistre(QChemin(*chemin));
    if (points_->isChecked()) FichiersPoints();
    if (scripts_->isChecked()) FichiersScripts();
    accept();
}
