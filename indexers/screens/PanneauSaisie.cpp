#include "indexers/screens/PanneauSaisie.h"

#include "indexers/screens/ListeCles.h"
#include "widgets/Chaines.h"
#include "widgets/ChampNombre.h"
#include "widgets/Nomme.h"
#include "widgets/PanneauChamps.h"

#include <QGridLayout>
#include <QPushButton>

PanneauSaisie::PanneauSaisie(const char* nom, int titre, const std::vector<ChampLie>& champs, QWidget* parent)
    : QGroupBox(QTexte(titre), parent) {
    setObjectName(QString::fromLatin1(nom));
    auto* grille = new QGridLayout(this);
    for (const ChampLie& champ : champs) AjouteLigne(*grille, champ);
    grille->setRowStretch(grille->rowCount(), 1);
}

PanneauSaisie::PanneauSaisie(const char* nom, int titre, const std::vector<ChampLie>& champs,
                             const Catalogue& catalogue, Garde garde, QWidget* parent)
    : PanneauSaisie(nom, titre, champs, parent) {
    catalogue_ = &catalogue;
    for (const Ligne& ligne : lignes_)
        if (ligne.liste != nullptr && std::string_view(ligne.champ.nom) == catalogue.membreCle) cles_ = ligne.liste;
    cles_->Offre(ClesCatalogue(catalogue));
    cles_->Montre({});
    auto* bouton = Nomme(new QPushButton(QTexte(garde.texte)), garde.controle);
    bouton->setAutoDefault(false);
    auto* grille = static_cast<QGridLayout*>(layout());
    grille->addWidget(bouton, grille->rowCount(), 0, 1, 3, Qt::AlignRight);
    connect(cles_, &ListeCles::Choisie, this, &PanneauSaisie::Remplit);
    connect(bouton, &QPushButton::clicked, this, &PanneauSaisie::GardeLigne);
}

void PanneauSaisie::AjouteLigne(QGridLayout& grille, const ChampLie& champ) {
    Ligne ligne{champ};
    const int rang = grille.rowCount();
    if (champ.controle == nullptr) {
        lignes_.push_back(ligne);
        return;
    }
    if (std::holds_alternative<std::string*>(champ.valeur)) {
        ligne.liste = new ListeCles(champ.controle, true);
        auto* etiquette = FaitEtiquette("", ligne.liste);
        etiquette->setText(QTexte(champ.texte));
        etiquette->setObjectName(QStringLiteral("Etiquette") + ligne.liste->objectName());
        grille.addWidget(etiquette, rang, 0);
        grille.addWidget(ligne.liste, rang, 1, 1, 2);
        connect(ligne.liste, &QComboBox::editTextChanged, this, &PanneauSaisie::Modifie);
    } else {
        ligne.nombre = AjouteLigneChamp(grille, rang, champ.controle, champ.texte, champ.unite);
        connect(ligne.nombre, &QLineEdit::textChanged, this, &PanneauSaisie::Modifie);
    }
    lignes_.push_back(ligne);
}

void PanneauSaisie::Lit() {
    for (const Ligne& ligne : lignes_) {
        if (ligne.nombre != nullptr) *std::get<double*>(ligne.champ.valeur) = ligne.nombre->Valeur();
        if (ligne.liste != nullptr) *std::get<std::string*>(ligne.champ.valeur) = ligne.liste->Cle();
    }
}

QWidget* PanneauSaisie::Controle(const std::string& membre) const {
    for (const Ligne& ligne : lignes_)
        if (membre == ligne.champ.nom)
            return ligne.liste != nullptr ? static_cast<QWidget*>(ligne.liste) : ligne.nombre;
    return nullptr;
}

std::string PanneauSaisie::Saisi(const std::string& membre) const {
    for (const Ligne& ligne : lignes_) {
        if (membre != ligne.champ.nom) continue;
        if (ligne.liste != nullptr) return S(ligne.liste->currentText());
        if (ligne.nombre != nullptr) return S(ligne.nombre->text());
    }
    return {};
}

std::vector<QWidget*> PanneauSaisie::Controles() const {
    std::vector<QWidget*> controles;
    for (const Ligne& ligne : lignes_)
        if (QWidget* controle = Controle(ligne.champ.nom)) controles.push_back(controle);
    return controles;
}

void PanneauSaisie::Remplit() {
    const auto valeurs = ChercheLigne(*catalogue_, cles_->Cle());
    if (!valeurs) return;
    for (const auto& [membre, valeur] : *valeurs)
        for (const Ligne& ligne : lignes_) {
            if (membre != ligne.champ.nom) continue;
            if (ligne.nombre == nullptr) {
                *std::get<double*>(ligne.champ.valeur) = valeur.value_or(0.0);
            } else if (valeur) {
                ligne.nombre->Montre(*valeur);
            } else {
                ligne.nombre->clear();
            }
        }
    emit Remplie();
}

void PanneauSaisie::GardeLigne() {
    ValeursCatalogue valeurs;
    for (const Ligne& ligne : lignes_) {
        if (ligne.nombre != nullptr) {
            auto& valeur = valeurs[ligne.champ.nom];
            if (!ligne.nombre->text().isEmpty()) valeur = ligne.nombre->Valeur();
        } else if (const auto* cachee = std::get_if<double*>(&ligne.champ.valeur)) {
            valeurs[ligne.champ.nom] = **cachee;
        }
    }
    const std::string cle = cles_->Cle();
    if (const auto faute = ChercheFauteLigne(*catalogue_, cle, valeurs)) {
        emit Refusee(*faute);
        return;
    }
    ::AjouteLigne(*catalogue_, cle, valeurs);
    cles_->Offre(ClesCatalogue(*catalogue_));
    emit Gardee(Q(cle));
}
