// The capacity of a globoidal oscillator.
#pragma once

#include "globoidal/screens/EcranGlobique.h"

class GlobiqueOscillateur : public EcranGlobique {
    Q_OBJECT

public:
    explicit GlobiqueOscillateur(QWidget* parent = nullptr);

protected:
    std::optional<FauteSaisie> ChercheFauteDonnees() const override;
    void CalculeResultats() override;
    RapportGlobique Rapport() const override;
    void ChoisitFichier() override;

private:
    void CompleteTour();

    DonneesOscillateur donnees_;
};
