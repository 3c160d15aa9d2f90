// The capacity of a globoidal indexer.
#pragma once

#include "globoidal/screens/EcranGlobique.h"

class GlobiqueIndexeur : public EcranGlobique {
    Q_OBJECT

public:
    explicit GlobiqueIndexeur(QWidget* parent = nullptr);

protected:
    std::optional<FauteSaisie> ChercheFaute() override;
    void CalculeResultats() override;
    const MecanismeGlobique& Mecanisme() const override { return donnees_; }
    RapportGlobique Rapport() const override;

private:
    void ChoisitFichier();

    DonneesIndexeur donnees_;
};
