// Lines that are told beside a table instead of in a box; no room is taken while there are none.
#pragma once

#include "widgets/Chaines.h"

#include <QLabel>

#include <string>
#include <vector>

class Remarques : public QLabel {
public:
    explicit Remarques(QWidget* parent = nullptr) : QLabel(parent) {
        setWordWrap(true);
        setTextInteractionFlags(Qt::TextSelectableByMouse);
        hide();
    }

    void Montre(const std::vector<std::string>& lignes) {
        QStringList textes;
        for (const std::string& ligne : lignes) textes << Q(ligne);
        setText(textes.join('\n'));
        setVisible(!lignes.empty());
    }
};
