#include "languages/screens/AutresLangues.h"

#include "widgets/Chaines.h"
#include "widgets/Nomme.h"

#include <QGridLayout>

namespace {

constexpr std::size_t NombrePaires = 10;

QLabel* FaitEtiquettePaire(const char* nom) {
    auto* etiquette = Nomme(new QLabel, nom);
    etiquette->setTextFormat(Qt::PlainText);
    etiquette->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return etiquette;
}

} // namespace

AutresLangues::AutresLangues(QWidget* parent) : QScrollArea(parent) {
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    auto* contenu = new QWidget;
    grille_ = new QGridLayout(contenu);
    grille_->setContentsMargins({});
    grille_->setColumnStretch(1, 1);
    while (paires_.size() < NombrePaires) AjoutePaire();
    setWidget(contenu);
    for (QWidget* fond : {contenu, viewport()}) fond->setAutoFillBackground(false);
}

void AutresLangues::AjoutePaire() {
    const Etiquettes paire{FaitEtiquettePaire("Label5"), FaitEtiquettePaire("Label6")};
    paire.texte->setWordWrap(true);
    const int rang = static_cast<int>(paires_.size());
    grille_->addWidget(paire.langue, rang, 0, Qt::AlignTop);
    grille_->addWidget(paire.texte, rang, 1, Qt::AlignTop);
    grille_->setRowStretch(rang, 0);
    grille_->setRowStretch(rang + 1, 1);
    paires_.push_back(paire);
}

void AutresLangues::Montre(const std::vector<Paire>& paires) {
    while (paires_.size() < paires.size()) AjoutePaire();
    for (std::size_t i = 0; i < paires_.size(); ++i) {
        const bool pris = i < paires.size();
        paires_[i].langue->setText(pris ? Q(paires[i].langue) : QString());
        paires_[i].texte->setText(pris ? Q(paires[i].texte) : QString());
        paires_[i].langue->setVisible(pris);
        paires_[i].texte->setVisible(pris);
    }
}
