#include "laws/FichierLoi.h"

#include "core/Etude.h"
#include "core/FichierEntier.h"
#include "core/Lignes.h"
#include "data/Textes.h"
#include "data/TextesSaisie.h"
#include "laws/TablePoints.h"

#include <algorithm>
#include <cmath>

PointLoi LitPointLoi(std::string_view ligne) {
    const auto premier = ligne.find(';');
    if (premier == std::string_view::npos) return {};
    const auto second = ligne.find(';', premier + 1);
    if (second == std::string_view::npos)
        return {Val(ligne.substr(0, premier)), std::abs(Val(ligne.substr(premier + 1))), 0};
    // The sign of the return half and of the deceleration is lost, on purpose.
    return {Val(ligne.substr(0, premier)), std::abs(Val(ligne.substr(premier + 1, second - premier - 1))),
            std::abs(Val(ligne.substr(second + 1)))};
}

std::string ComposeFichierLoi() {
    std::string contenu;
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i) {
        const PointLoi& p = etude.lois.LoiUnite[i];
        contenu += StrTrim(p.Course) + ";" + StrTrim(p.Vitesse) + ";" + StrTrim(p.Accel) + FinDeLigne;
    }
    for (long i = etude.resultats.NombrePoints; i <= PointsLoiFichier; ++i)
        contenu += std::string("1;0;0") + FinDeLigne;
    return contenu;
}

std::string ComposeListageLoi() {
    const TableTexte table = TableListageLoi();
    std::string contenu;
    AjouteCellules(contenu, table, {0, table.lignes, 0, static_cast<int>(table.colonnes.size())}, ';', FinDeLigne);
    return contenu;
}

void LitLoi(std::string_view contenu) {
    Lignes lignes(contenu);
    Tableau<PointLoi> table;
    table.Redimensionne(PointsLoiFichier);
    Loi loi;
    loi.NomLoi = NomLoiFichier;
    for (long i = 1; i <= PointsLoiFichier; ++i) {
        table[i] = LitPointLoi(lignes.Suivante());
        loi.Cv = std::max(loi.Cv, table[i].Vitesse);
        loi.Ca = std::max(loi.Ca, table[i].Accel);
    }
    etude.lois.LoiUnite = std::move(table);
    etude.lois.ListeLois.Redimensionne(1);
    etude.lois.ListeLois[1] = loi;
    etude.lois.DeFichier = true;
}

void LitFichierLoi(const std::filesystem::path& chemin) {
    LitLoi(LitFichierEntier(chemin));
}

std::string AvecLoisRemplacees(const std::string& message) {
    return etude.lois.DeFichier ? message + "\n" + Texte(TexteLoisAuDemarrage) : message;
}
