#include "widgets/Etiquettes.h"

#include "widgets/Application.h"
#include "widgets/Nomme.h"

QLabel* FaitValeur(const char* nom, const char* gabarit) {
    auto* valeur = Nomme(new QLabel, nom);
    valeur->setFont(PoliceTabulaire(valeur->font()));
    valeur->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    valeur->setMinimumWidth(valeur->fontMetrics().horizontalAdvance(QString::fromLatin1(gabarit)));
    valeur->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return valeur;
}

QLabel* FaitUnite(const QString& texte) {
    return new QLabel(texte);
}
