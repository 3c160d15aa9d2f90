#include "app/Demarre.h"

#include "core/Etude.h"
#include "data/Demarrage.h"
#include "data/DossierUtilisateur.h"
#include "data/Textes.h"
#include "laws/CalculLois.h"
#include "widgets/DossiersPoste.h"

Configuration Demarre(const std::filesystem::path& executable) {
    PrendDossiers(executable, LesDossiersPoste());
    PrepareDossierUtilisateur();
    LaBase = BaseDonnees::Ouvre(CheminUtilisateur / NomBase, MotDePasseBase, BaseDonnees::Usage::Exclusif);
    ChargeLois();
    const Configuration configuration = LitConfiguration(CheminUtilisateur / NomConfiguration);
    etude.resultats.EtudeModifiee = Faux;
    etude.resultats.ResultatsPrets = Faux;
    LangueTravail = configuration.langue;
    ChargeTextes(LaBase);
    return configuration;
}
