#include "app/Demarre.h"

#include "core/Etude.h"
#include "data/Demarrage.h"
#include "data/Textes.h"
#include "laws/CalculLois.h"

Configuration Demarre(const std::filesystem::path& dossier) {
    CheminAppli = dossier;
    LaBase = BaseDonnees::Ouvre(CheminAppli / NomBase, MotDePasseBase, BaseDonnees::Usage::Exclusif);
    ChargeLois();
    const Configuration configuration = LitConfiguration(CheminAppli / NomConfiguration);
    etude.resultats.EtudeModifiee = Faux;
    etude.resultats.ResultatsPrets = Faux;
    LangueTravail = configuration.langue;
    ChargeTextes(LaBase);
    return configuration;
}
