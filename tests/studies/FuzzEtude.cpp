// Thousands of damaged study files: each must end in a calculation, a box or a run-time failure, with the zones in
// degrees.
#include "fuzz/EssaiEtude.h"

#include "outils/DialoguesScript.h"
#include "outils/ImprimanteNotee.h"
#include "studies/RapportsCames.h"

#include <fstream>
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
std::optional<std::string> ImprimeEtude() {
    constexpr std::size_t traces = 600, etiquettes = 400, caracteres = 20000;
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
        if (page.traces.size() > traces) return "too many strokes";
        if (page.etiquettes.size() > etiquettes) return "too many labels";
        for (const auto& trace : page.traces)
            if (trace.points.size() > points + 2) return "a stroke of too many points";
        for (const std::string& ligne : page.Textes()) {
            if (ligne.size() > caracteres) return "a line too long";
            for (const char* nombre : {"NaN", "INF"})
                if (ligne.find(nombre) != std::string::npos) return "no number: " + ligne;
        }
    }
    return {};
}

/// Small studies, so that thousands are soon calculated.
std::vector<std::string> Corpus() {
    const std::string tete =
        "Came plate : Ang\r\nDate 01 02 2026\r\n80.\r\n30.5\r\n100.\r\n70.\r\n40.\r\n10.\r\n300.\r\n.\r\n"
        ".8\r\n.6\r\n12.\r\n1.5\r\n-3.\r\n40.25\r\n";
    std::vector<std::string> corpus{
        tete + "2.\r\nZone n° 1\r\n25.\r\n40.\r\n18.\r\nMS\r\n.5\r\nZone n° "
               "2\r\n40.\r\n25.\r\n18.\r\nMTC50\r\n.35\r\n1\r\n",
        tete + "2.\r\nZone n° 1\r\n25.\r\n40.\r\n10.3\r\nMS_Spe_ 40\r\n.5\r\nZone n° "
               "2\r\n40.\r\n25.\r\n9.2\r\nSHM\r\n.5\r\n2\r\n",
        tete + "1.\r\nZone n° 1\r\n30.\r\n30.\r\n36.\r\nCYC\r\n.5\r\n4\r\n",
        "Came : Lin \r\nDate\r\n10.\r\n300.\r\n90.\r\n12.\r\n1.5\r\n-20.\r\n2.\r\nZone n° "
        "1\r\n40.\r\n60.\r\n18.\r\nMS\r\n.5\r\n"
        "Zone n° 2\r\n60.\r\n40.\r\n18.\r\nCYC\r\n.5\r\n1\r\n",
        "Came : Cyl\r\nDate\r\n8.\r\n120.\r\n270.\r\n120.\r\n3.5\r\n-45.\r\n2.\r\nZone n° "
        "1\r\n.\r\n5.\r\n18.\r\nMS\r\n.5\r\nZone n° 2\r\n5.\r\n.\r\n18.\r\nMSC50\r\n.5\r\n2\r\n",
        "Came : Osc\r\nDate\r\n9.\r\n150.\r\n125.\r\n110.\r\n112.\r\n.06\r\n4.\r\n2.\r\nZone n° "
        "1\r\n-3.\r\n3.\r\n18.\r\nMS\r\n.5\r\nZone n° 2\r\n3.\r\n-3.\r\n18.\r\nCYC\r\n.4\r\n1\r\n",
    };
    for (const auto& fichier :
         std::filesystem::directory_iterator(std::filesystem::path(VELORIN_SOURCES) / "Profils")) {
        std::ifstream flux(fichier.path(), std::ios::binary);
        corpus.emplace_back(std::istreambuf_iterator<char>(flux), std::istreambuf_iterator<char>());
    }
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
        switch (Hasard(4)) {
        case 0:
            return texte.substr(0, static_cast<std::size_t>(Hasard(texte.size())));
        case 1:
            texte[static_cast<std::size_t>(Hasard(texte.size()))] ^= static_cast<char>(1 << Hasard(8));
            return texte;
        case 2: {
            const std::string autre = Choisit(corpus_);
            return texte.substr(0, static_cast<std::size_t>(Hasard(texte.size()))) +
                   autre.substr(static_cast<std::size_t>(Hasard(autre.size())));
        }
        default:
            return ChangeLignes(texte);
        }
    }

    std::string ChangeLignes(const std::string& texte) {
        std::vector<std::string> lignes(1);
        for (const char c : texte) {
            lignes.back() += c;
            if (c == '\n') lignes.emplace_back();
        }
        std::string& une = lignes[static_cast<std::size_t>(Hasard(lignes.size()))];
        std::string& autre = lignes[static_cast<std::size_t>(Hasard(lignes.size()))];
        switch (Hasard(6)) {
        case 0:
            std::swap(une, autre);
            break;
        case 1:
            une += une;
            break;
        case 2:
            une.clear();
            break;
        default:
            une = std::string(Choisit(remplacements)) + "\r\n";
        }
        std::string change;
        for (const auto& ligne : lignes) change += ligne;
        return change;
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
                std::optional<std::string> tirage;
                ASSERT_NO_THROW(tirage = ImprimeEtude());
                ASSERT_FALSE(tirage.has_value()) << *tirage;
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
