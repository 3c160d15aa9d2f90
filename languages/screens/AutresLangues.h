// The wordings of a text in the other languages: pairs of a language's name and its wording, which scroll.
#pragma once

#include <QScrollArea>

#include <string>
#include <vector>

class QGridLayout;
class QLabel;

class AutresLangues : public QScrollArea {
public:
    /// Ten pairs `Label5`, `Label6` are there from the start, empty; more are added as they are needed.
    explicit AutresLangues(QWidget* parent = nullptr);

    struct Paire {
        std::string langue, texte;
    };
    void Montre(const std::vector<Paire>& paires);

private:
    void AjoutePaire();

    struct Etiquettes {
        QLabel *langue, *texte;
    };
    std::vector<Etiquettes> paires_;
    QGridLayout* grille_;
};
