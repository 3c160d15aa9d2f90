#include "app/Demarre.h"

#include "core/Etude.h"
#include "data/DossierUtilisateur.h"
#include "data/Textes.h"
#include "laws/CalculLois.h"
#include "widgets/DossiersPoste.h"

Configuration Demarre(const std::filesystem::path& executable, const DossiersSysteme& systeme) {
    PrendDossiers(executable, systeme);
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

std::future<Configuration> CommenceDemarrage(const std::filesystem::path& executable) {
    return std::async(std::launch::async, Demarre, executable, LesDossiersPoste());
}
