#include "app/TravauxRepris.h"

#include "core/FichierEntier.h"
#include "core/Lignes.h"
#include "widgets/DossiersPoste.h"

#include <utility>

namespace {

/// A line of its own for the window, the law, and the length of what follows; then that.
std::string Compose(const std::vector<Travail>& travaux) {
    std::string contenu;
    for (const Travail& travail : travaux) {
        for (const std::string& ligne : {travail.ecran, travail.loi, std::to_string(travail.contenu.size())})
            contenu += ligne + FinDeLigne;
        contenu += travail.contenu;
    }
    return contenu;
}

std::vector<Travail> Decompose(std::string_view contenu) {
    std::vector<Travail> travaux;
    while (!contenu.empty()) {
        Lignes lignes(contenu);
        Travail travail;
        travail.ecran = lignes.Suivante();
        travail.loi = lignes.Suivante();
        const double longueur = Val(lignes.Suivante());
        const std::string_view reste = lignes.Reste();
        if (!(longueur >= 0 && longueur <= static_cast<double>(reste.size())))
            throw ErreurExecution(NumeroErreur::FinDeFichier);
        travail.contenu = reste.substr(0, static_cast<std::size_t>(longueur));
        contenu = reste.substr(travail.contenu.size());
        travaux.push_back(std::move(travail));
    }
    return travaux;
}

} // namespace

std::filesystem::path FichierReprise(const std::filesystem::path& dossierBase) {
    return DossierEtat() / "velorin" / ("reprise-" + EmpreinteDossier(dossierBase) + ".txt");
}

TravauxRepris::TravauxRepris(std::filesystem::path fichier) : fichier_(std::move(fichier)) {
    std::error_code sansImportance;
    if (!std::filesystem::exists(fichier_, sansImportance)) return;
    try {
        abandonnes_ = Decompose(LitFichierEntier(fichier_));
    } catch (const ErreurExecution&) {
        abandonnes_.clear();
    }
}

void TravauxRepris::Abandonne(std::vector<Travail> travaux) {
    if (!travaux.empty()) abandonnes_ = std::move(travaux);
}

std::vector<Travail> TravauxRepris::Reprend() {
    return std::exchange(abandonnes_, {});
}

void TravauxRepris::Garde(const std::vector<Travail>& ouverts) {
    if (ouverts == gardes_) return;
    if (ouverts.empty()) {
        std::error_code sansImportance;
        std::filesystem::remove(fichier_, sansImportance);
    } else {
        std::error_code sansImportance; // what is wrong with the folder is told by the writing
        std::filesystem::create_directories(fichier_.parent_path(), sansImportance);
        EcritFichierEntier(fichier_, Compose(ouverts));
    }
    gardes_ = ouverts;
}
