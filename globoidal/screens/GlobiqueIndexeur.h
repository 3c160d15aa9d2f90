// The capacity of a globoidal indexer.
#pragma once

#include "globoidal/screens/EcranGlobique.h"

class GlobiqueIndexeur : public EcranGlobique {
    Q_OBJECT

public:
    explicit GlobiqueIndexeur(QWidget* parent = nullptr);

protected:
    std::optional<FauteSaisie> ChercheFauteDonnees() const override;
    void CalculeResultats() override;
    RapportGlobique Rapport() const override;
    void ChoisitFichier() override;

private:
    DonneesIndexeur donnees_;
};
