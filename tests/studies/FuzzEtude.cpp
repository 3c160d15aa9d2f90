// Thousands of damaged study files: each must end in a calculation, a box or a run-time failure, with the zones in
// degrees.
#include "fuzz/EssaiEtude.h"

#include "outils/DialoguesScript.h"
#include "outils/DossierTemporaire.h"
#include "outils/ImprimanteNotee.h"
#include "studies/RapportsCames.h"

#include <iterator>
#include <random>
#include <set>

namespace {

constexpr unsigned Graine = 20261122; ///< another one makes other files; the same makes the same
constexpr int NombreEssais = 20000;

const char* const remplacements[] = {
    "",       ".",        "-",        "0",         "-1",
    "nan",    "inf",      "1e999",    "-1e308",    "1e308",
    "1e-320", "32767",    "32768",    "-32769",    "99999999999999999999",
    "12,5",   "0.5",      "1",        "MS_Spe_ 5", "MS_Spe_99",
    "Spe",    "aSpe_",    "MS_Spe",   "MS_Spe_-3", "Fichier",
    "MSH",    "INCONNUE", "\xff\xfe", "0x10",      "+-3",
    "1e9",    "-1e9",     "1e16",     "1e150",     "1e307",
    "1e-9",   "1e-150",
};
constexpr int UnTirageSur = 4; ///< calculated studies that are printed: one in so many

/// Prints every report of the present study. A page has room for so much; more would be a loop that nothing bounds.
std::string ImprimeEtude() {
    MarquesImpression marques;
    marques.fill(true);
    etude.donnees.NomFichier = "Essai";
    ImprimanteNotee imprimante;
    ImprimeRapportsCames(imprimante, marques);
    auto points = static_cast<std::size_t>(etude.resultats.NombrePoints);
    for (const PasseEtude& passe : etude.passes) points += static_cast<std::size_t>(passe.resultats.NombrePoints);
    if (imprimante.pages.size() > 12 + points / 20 + static_cast<std::size_t>(etude.donnees.NombreZones) / 4)
        return "too many pages";
    for (const auto& page : imprimante.pages) {
        if (page.traces.size() > 600 || page.etiquettes.size() > 400) return "a page too full";
        for (const std::string& ligne : page.Textes())
            if (ligne.find("NaN") != std::string::npos || ligne.find("INF") != std::string::npos ||
                ligne.size() > 20000)
                return "no number, or too long: " + ligne;
    }
    return {};
}

/// The studies that are delivered with the program, and short ones, so that thousands are soon calculated.
std::vector<std::string> Corpus() {
    const auto zones = [](const char* un, const char* deux) {
        return std::string("2.\r\nZone n° 1\r\n") + un + "\r\nMS_Spe_ 40\r\n.5\r\nZone n° 2\r\n" + deux +
               "\r\nCYC\r\n.35\r\n1\r\n";
    };
    const std::string bras = zones("25.\r\n40.\r\n18.", "40.\r\n25.\r\n9.2");
    std::vector<std::string> corpus{
        "Ang\r\nDate\r\n80.\r\n30.5\r\n100.\r\n70.\r\n40.\r\n10.\r\n300.\r\n.\r\n.8\r\n.6\r\n12.\r\n1.5\r\n-3.\r\n40."
        "25\r\n" +
            bras,
        "Lin\r\nDate\r\n10.\r\n300.\r\n90.\r\n12.\r\n1.5\r\n-20.\r\n" + bras,
        "Cyl\r\nDate\r\n8.\r\n120.\r\n270.\r\n120.\r\n3.5\r\n-45.\r\n" + zones(".\r\n5.\r\n18.", "5.\r\n.\r\n18."),
        "Osc\r\nDate\r\n9.\r\n150.\r\n125.\r\n110.\r\n112.\r\n.06\r\n4.\r\n" +
            zones("-3.\r\n3.\r\n18.", "3.\r\n-3.\r\n18."),
    };
    for (const auto& fichier : std::filesystem::directory_iterator(VELORIN_SOURCES "/Profils"))
        corpus.push_back(LitBrut(fichier.path()));
    return corpus;
}

class Mutations {
    std::vector<std::string> corpus_;
    std::mt19937 hasard_{Graine};

    int Hasard(std::size_t nombre) {
        return static_cast<int>(std::uniform_int_distribution<std::size_t>(0, nombre - 1)(hasard_));
    }
    template <class T> const auto& Choisit(const T& choix) {
        return *(std::begin(choix) + Hasard(static_cast<std::size_t>(std::size(choix))));
    }

    std::string Change(std::string texte) {
        if (texte.empty()) return Choisit(corpus_);
        const auto place = static_cast<std::size_t>(Hasard(texte.size()));
        switch (Hasard(6)) {
        case 0:
            return texte.substr(0, place);
        case 1:
            texte[place] ^= static_cast<char>(1 << Hasard(8));
            return texte;
        case 2: {
            const std::string autre = Choisit(corpus_);
            return texte.substr(0, place) + autre.substr(static_cast<std::size_t>(Hasard(autre.size())));
        }
        default:
            return ChangeLigne(texte, place);
        }
    }

    /// Another line in place of the one at `place`, or the same twice.
    std::string ChangeLigne(const std::string& texte, std::size_t place) {
        const std::size_t debut = texte.rfind('\n', place) + 1, fin = texte.find('\n', place);
        const std::string une = texte.substr(debut, fin == std::string::npos ? fin : fin + 1 - debut);
        const std::string autre = Hasard(6) == 0 ? une + une : std::string(Choisit(remplacements)) + "\r\n";
        return texte.substr(0, debut) + autre + texte.substr(std::min(debut + une.size(), texte.size()));
    }

public:
    explicit Mutations(std::vector<std::string> corpus) : corpus_(std::move(corpus)) {}

    std::string Suivante() {
        std::string texte = Choisit(corpus_);
        for (int fois = 1 + Hasard(4); fois > 0; --fois) texte = Change(std::move(texte));
        return texte;
    }
};

} // namespace

TEST(FuzzEtude, NoDamagedFileBringsTheProgramDown) {
    OuvreCatalogue(VELORIN_DOSSIER);
    std::printf("seed %u, %d files\n", Graine, NombreEssais);
    Mutations mutations(Corpus());
    std::set<NumeroErreur> echecs;
    int calculees = 0, refusees = 0;
    for (int i = 0; i < NombreEssais; ++i) {
        const std::string contenu = mutations.Suivante();
        for (const TypeEtude& type : LesTypesEtude()) {
            if (!type.Disponible()) continue;
            DialoguesScript dialogues;
            SCOPED_TRACE(std::string(type.nom) + ", file " + std::to_string(i) + ":\n" + contenu);
            EssaiEtude essai;
            ASSERT_NO_THROW(essai = EssaieEtude(contenu, type));
            ASSERT_FALSE(essai.anomalie.has_value()) << *essai.anomalie;
            // What ends without results and without a run-time failure was told in a box.
            if (essai.erreur) {
                echecs.insert(*essai.erreur);
            } else if (essai.Calculee()) {
                if (++calculees % UnTirageSur != 0) continue;
                std::string tirage;
                ASSERT_NO_THROW(tirage = ImprimeEtude());
                ASSERT_EQ(tirage, "");
            } else {
                ++refusees;
                ASSERT_FALSE(dialogues.boites.empty());
            }
        }
    }
    std::printf("%d calculated, %d told in a box, %zu kinds of run-time failure\n", calculees, refusees, echecs.size());
    // The files were neither all ruined nor all sound.
    EXPECT_GT(calculees, NombreEssais / 20);
    EXPECT_GT(refusees, 10);
    for (const auto numero : {NumeroErreur::FinDeFichier, NumeroErreur::Depassement, NumeroErreur::IndiceHorsLimites,
                              NumeroErreur::DivisionParZero, NumeroErreur::AppelIncorrect})
        EXPECT_TRUE(echecs.count(numero)) << static_cast<int>(numero);
}
