#include "app/Aide.h"

#include "data/Demarrage.h"
#include "data/Textes.h"
#include "platform/Dialogues.h"
#include "widgets/Chaines.h"

#include <QDesktopServices>
#include <QShortcut>
#include <QUrl>
#include <QWidget>

namespace {

enum NumerosTexte { TexteTitreAide = 6, TextePasDAide = 136, TexteSelectionnez = 137, TexteAideAbsente = 138 };

struct AideLangue {
    const char* langue;
    const char* lettre; ///< the answer that chooses it where the working language has none
    const char* fichier;
    const char* invite;
};

constexpr AideLangue LesAides[] = {
    {"Español", "E", "CamesEs.chm", "E para tener ayuda en Español"},
    {"Français", "F", "CamesFr.chm", "F pour avoir l'aide en Français"},
    {"English", "U", "CamesUk.chm", "U for help on English "},
};
constexpr const AideLangue& AideDeReserve = LesAides[1];

std::filesystem::path fichierAide;

/// The row whose field is exactly `valeur`; none for an unknown one.
const AideLangue* Cherche(const char* AideLangue::*champ, const std::string& valeur) {
    for (const AideLangue& aide : LesAides)
        if (valeur == aide.*champ) return &aide;
    return nullptr;
}

const AideLangue* DemandeLangueAide() {
    std::string invite = Texte(TextePasDAide) + " : " + LangueTravail + "\n" + Texte(TexteSelectionnez);
    for (const AideLangue& aide : LesAides) invite += std::string("\n") + aide.invite;
    const auto reponse = LesDialogues().Saisie(Texte(TexteTitreAide), invite, AideDeReserve.lettre);
    return Cherche(&AideLangue::lettre, reponse.value_or(std::string()));
}

} // namespace

void ChoisitAide() {
    const AideLangue* aide = Cherche(&AideLangue::langue, LangueTravail);
    if (!aide) aide = DemandeLangueAide();
    fichierAide = CheminAppli / (aide ? *aide : AideDeReserve).fichier;
}

const std::filesystem::path& FichierAide() {
    return fichierAide;
}

void MontreAide() {
    std::error_code sansImportance;
    const bool ouvert = std::filesystem::is_regular_file(fichierAide, sansImportance) &&
                        QDesktopServices::openUrl(QUrl::fromLocalFile(QChemin(fichierAide)));
    if (!ouvert)
        LesDialogues().Message(Icone::Avertissement,
                               Texte(TexteAideAbsente) + " " + S(QChemin(fichierAide.filename())));
}

void AjouteAide(QWidget& fenetre) {
    auto* raccourci = new QShortcut(QKeySequence(Qt::Key_F1), &fenetre);
    QObject::connect(raccourci, &QShortcut::activated, &fenetre, [] { MontreAide(); });
}
