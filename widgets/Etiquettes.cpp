#include "widgets/Etiquettes.h"

#include "widgets/Application.h"
#include "widgets/Chaines.h"
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

QLabel* FaitNotes() {
    auto* notes = Nomme(new QLabel, "Notes");
    notes->setWordWrap(true);
    notes->setTextFormat(Qt::PlainText);
    notes->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return notes;
}

void MontreNotes(QLabel& etiquette, const Notes& notes) {
    QStringList lignes;
    for (const std::string& ligne : notes.Lignes()) lignes << Q(ligne);
    etiquette.setText(lignes.join('\n'));
    etiquette.setVisible(!notes.Vide());
}
