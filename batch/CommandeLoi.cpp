#include "batch/CommandeLoi.h"

#include "batch/Passage.h"
#include "laws/CalculLois.h"
#include "laws/LoiMSH.h"

#include <charconv>

namespace {

constexpr double Symetrique = 0.5;

struct Demande {
    std::string nomLoi;
    std::int16_t points = 0;
    double symetrie = Symetrique;

    /// The laws of rise and return have an evaluation of their own.
    bool Msh() const { return nomLoi.starts_with("MSH"); }
};

std::int16_t LitPoints(const std::string& texte) {
    std::int16_t points = 0;
    const auto fin = texte.data() + texte.size();
    const auto [arret, echec] = std::from_chars(texte.data(), fin, points);
    if (echec != std::errc() || arret != fin || points < 1)
        throw UsageIncorrect("loi: --points takes a whole number from 1 to 32767");
    return points;
}

double LitSymetrie(const std::string& texte) {
    const double symetrie = EstNombre(texte) ? Val(texte) : -1.0;
    if (symetrie < 0.0 || symetrie > 1.0) throw UsageIncorrect("loi: --symetrie takes a number from 0 to 1");
    return symetrie;
}

Demande LitDemande(const LigneCommande& ligne) {
    if (ligne.arguments.size() != 1) throw UsageIncorrect("loi: one law name is needed");
    if (ligne.points.empty()) throw UsageIncorrect("loi: --points N is needed");
    Demande demande{ligne.arguments.front(), LitPoints(ligne.points)};
    if (!ligne.symetrie.empty()) demande.symetrie = LitSymetrie(ligne.symetrie);
    if (demande.Msh() && demande.symetrie != Symetrique) throw UsageIncorrect("loi: the MSH laws take no --symetrie");
    return demande;
}

/// Fills `LoiUnite`, and `ligne` with the catalogue row that was used.
void CalculeTable(const Demande& demande, Loi& ligne) {
    etude.resultats.NombrePoints = demande.points;
    if (demande.Msh()) {
        const std::int16_t numero = ChercheLoi(demande.nomLoi);
        if (numero == 0) throw ErreurExecution(NumeroErreur::IndiceHorsLimites, demande.nomLoi);
        ligne = etude.lois.ListeLois[numero];
        PrepareLoiMSH(ligne);
        CalculeLoiMSH();
        return;
    }
    etude.donnees.NombreZones = 1;
    etude.donnees.Zones.Redimensionne(1);
    etude.donnees.Zones[1].NomLoi = demande.nomLoi;
    etude.donnees.Zones[1].AngleCame = demande.points;
    etude.donnees.Zones[1].CoefSymetrie = demande.symetrie;
    AppliqueLoi(1);
    // A custom percentage overwrites the row whose number is that of the zone.
    ligne = etude.lois.ListeLois[EstLoiSpe(demande.nomLoi) ? std::int16_t{1} : ChercheLoi(demande.nomLoi)];
}

} // namespace

int CommandeLoi(const LigneCommande& ligne, std::ostream& sortie, std::ostream&) {
    const Demande demande = LitDemande(ligne);
    RemetEtude();
    Loi loi;
    Calcul calcul;
    calcul.tete["NomLoi"] = demande.nomLoi;
    calcul.execute = [&](const DialoguesCollecte&) {
        CalculeTable(demande, loi);
        return std::string();
    };
    calcul.resultats = [&](bool reussi) {
        const auto coefficient = [&](double valeur) { return reussi ? Json(valeur) : Json(); };
        Json objet = {{"Ca", coefficient(loi.Ca)},       {"Cv", coefficient(loi.Cv)},
                      {"CoefA", coefficient(loi.CoefA)}, {"CoefB", coefficient(loi.CoefB)},
                      {"CoefC", coefficient(loi.CoefC)}, {"CoefD", coefficient(loi.CoefD)}};
        objet.update(JsonLoi(reussi ? etude.lois.LoiUnite : Tableau<PointLoi>{}));
        return objet;
    };
    return LanceCalcul(calcul, ligne, sortie);
}
