// The capacity of a globoidal oscillator.
#pragma once

#include "globoidal/screens/EcranGlobique.h"

class GlobiqueOscillateur : public EcranGlobique {
    Q_OBJECT

public:
    explicit GlobiqueOscillateur(QWidget* parent = nullptr);

protected:
    std::optional<FauteSaisie> ChercheFaute() override;
    void CalculeResultats() override;
    const MecanismeGlobique& Mecanisme() const override { return donnees_; }
    RapportGlobique Rapport() const override;

private:
    void ChoisitFichier();
    void CompleteTour();

    DonneesOscillateur donnees_;
};
