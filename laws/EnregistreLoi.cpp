#include "laws/EnregistreLoi.h"

#include "core/Etude.h"
#include "core/FichierEntier.h"
#include "data/Demarrage.h"
#include "data/Textes.h"
#include "laws/FichierLoi.h"
#include "laws/TextesLois.h"
#include "platform/Dialogues.h"

namespace {

struct GenreFichier {
    int texte; ///< text number of the filter
    const char* extension;
    std::string (*compose)();
};
constexpr GenreFichier genres[] = {{342, "Txt", ComposeListageLoi}, {279, "Lmi", ComposeFichierLoi}};

/// The kind the user wants; none when he gives up. Any other answer is asked for again.
const GenreFichier* DemandeGenre() {
    for (;;) {
        const auto reponse =
            LesDialogues().Saisie(Texte(341), Texte(508) + " 2 " + Texte(637) + ", " + Texte(638), "1");
        if (!reponse) return nullptr;
        const std::string choix = Trim(*reponse);
        if (choix == "1") return &genres[0];
        if (choix == "2") return &genres[1];
        LesDialogues().Message(Icone::Information, Texte(358));
    }
}

/// A reader takes 720 points for a whole turn, whatever the study: a shorter law is followed by the end of its stroke.
std::string CeQuiSeraLu() {
    const int n = etude.resultats.NombrePoints;
    if (n == PointsLoiFichier && n == 360 * etude.donnees.PointsParDegre) return {};
    return " : " + Texte(TexteRelu) + " " + StrTrim(n / 2.0) + Texte(TexteReluPas) +
           (n < PointsLoiFichier ? Texte(TexteReluFin) : "");
}

} // namespace

std::optional<std::string> EnregistreLoi(const std::string& nom) {
    const GenreFichier* genre = DemandeGenre();
    if (genre == nullptr) return {};
    // A reader takes the first 720 points and no more: a longer law would be cut without a word.
    if (genre->compose == ComposeFichierLoi && etude.resultats.NombrePoints > PointsLoiFichier) {
        LesDialogues().Message(Icone::Avertissement, Texte(800));
        return {};
    }
    const std::string motif = std::string("*.") + genre->extension;
    const auto chemin = LesDialogues().FichierASauver(
        {Texte(357), CheminEtudes, nom + "." + genre->extension, {{Texte(genre->texte) + " (" + motif + ")", motif}}});
    if (!chemin || chemin->empty()) return {};
    EcritFichierEntier(*chemin, genre->compose());
    const std::u8string fichier = chemin->filename().u8string();
    return std::string(fichier.begin(), fichier.end()) + (genre->compose == ComposeFichierLoi ? CeQuiSeraLu() : "");
}
