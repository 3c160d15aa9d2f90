#include "cams/screens/PanneauSchema.h"

#include "widgets/Chaines.h"
#include "widgets/Nomme.h"
#include "widgets/ZoneDessin.h"

#include <QEvent>
#include <QVBoxLayout>

PanneauSchema::PanneauSchema(void (*dessine)(Dessin&, const std::string&), QWidget* parent)
    : QGroupBox(QTexte(189), parent), dessine_(dessine), schema_(Nomme(new ZoneDessin, "Schema")) {
    schema_->setMinimumSize(250, 240);
    schema_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    (new QVBoxLayout(this))->addWidget(schema_);
    Montre({});
}

void PanneauSchema::Suit(QWidget* champ, const char* cote) {
    cotes_[champ] = cote;
    champ->installEventFilter(this);
}

void PanneauSchema::Montre(const std::string& accent) {
    schema_->Peint([dessine = dessine_, accent](Dessin& dessin) { dessine(dessin, accent); });
}

bool PanneauSchema::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() == QEvent::FocusIn) Montre(cotes_[objet]);
    return QGroupBox::eventFilter(objet, evenement);
}
