// Back to a field after its entry was refused.
#pragma once

#include <QComboBox>
#include <QLineEdit>

/// Gives a field or an editable list the focus, its text selected whole: what is typed next replaces what was refused.
inline void ReprendSaisie(QWidget& champ) {
    champ.setFocus(Qt::TabFocusReason);
    auto* liste = qobject_cast<QComboBox*>(&champ);
    if (auto* ligne = liste != nullptr ? liste->lineEdit() : qobject_cast<QLineEdit*>(&champ)) ligne->selectAll();
}
