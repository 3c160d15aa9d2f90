// The sketch of the mechanism beside the fields of a data screen. The dimension whose field has the focus is set off.
#pragma once

#include "platform/Dessin.h"

#include <QGroupBox>

#include <map>
#include <string>

class ZoneDessin;

class PanneauSchema : public QGroupBox {
    Q_OBJECT

public:
    /// @param dessine draws the sketch; `accent` is the dimension to set off, or empty
    explicit PanneauSchema(void (*dessine)(Dessin& dessin, const std::string& accent), QWidget* parent = nullptr);

    /// Sets off `cote` while `champ` has the focus.
    void Suit(QWidget* champ, const char* cote);

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    void Montre(const std::string& accent);

    void (*dessine_)(Dessin&, const std::string&);
    ZoneDessin* schema_;
    std::map<const QObject*, std::string> cotes_;
};
