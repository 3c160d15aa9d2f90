#include "languages/FichierLangue.h"

#include "core/ErreurExecution.h"
#include "core/Utf8.h"
#include "languages/TextesLangues.h"
#include "outils/BaseAEcrire.h"
#include "outils/Catalogue.h"

#include <csignal>
#include <functional>
#include <limits>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const char* const Italiano = "Italiano";

/// A catalogue with a language that has no text yet.
class EditeurLangues : public AvecCatalogue {
protected:
    BaseAEcrire base;
    JeuEnregistrements textes = LaBase.OuvreTable(TableTextes);
    long nombre = textes.NombreEnregistrements();

    EditeurLangues() { AjouteLangue(LaBase, textes, Italiano); }
    /// The faults of a file with these lines below its first one, a line each.
    std::string Fautes(const std::string& lignes) {
        std::string fautes;
        for (const auto& faute : AnalyseFichierLangue(textes, "Numero\tItaliano\n" + lignes).fautes)
            fautes += faute + "\n";
        return fautes;
    }
    static std::string SurLaLigne(int ligne, const std::string& faute) {
        return Texte(TexteLigne) + " " + std::to_string(ligne) + " : " + faute + "\n";
    }
};

} // namespace

TEST(Utf8, CharactersAreCountedCheckedAndFolded) {
    EXPECT_EQ(Caracteres("é€😀a"), 4);
    EXPECT_TRUE(EstUtf8("Español, 日本, 😀"));
    for (const char* faux : {"caf\xE9", "\xC3", "\xE2\x82", "\x80", "\xC0\xAF", "\xF8\x88\x80\x80"})
        EXPECT_FALSE(EstUtf8(faux)) << faux;
    EXPECT_EQ(Plie("&Élévation ÑÇß ×"), "elevation ncß ×");
}

TEST_F(EditeurLangues, ANameThatNoColumnCanHaveIsRefused) {
    const auto faute = [&](const std::string& nom) { return FauteNomLangue(textes, nom).value_or(""); };
    for (const std::string& bon : {std::string("Português (Brasil)"), std::string("日本語-2"), std::string(40, 'x')})
        EXPECT_EQ(faute(bon), "");
    for (const char* faux : {"", "a\"b", "l'autre", "[x]", "`x`", "a&b", "a\tb", "a/b", "OID", "2e", " x", "caf\xE9"})
        EXPECT_EQ(faute(faux), Texte(TexteNomInvalide)) << faux;
    EXPECT_EQ(faute("numero"), Texte(TexteNomPris) + " Numero");
    EXPECT_EQ(faute("FRANÇAIS"), Texte(TexteNomPris) + " Français");
    EXPECT_EQ(faute(std::string(41, 'x')), Texte(TexteNomTropLong) + " 40");
    const auto avant = NomsLangues(textes);
    EXPECT_THROW(AjouteLangue(LaBase, textes, "a\"b"), ErreurExecution);
    for (const char* faux : {"Numero", "Klingon", "English"})
        EXPECT_THROW(SupprimeLangue(LaBase, textes, faux), ErreurExecution) << faux;
    EXPECT_EQ(NomsLangues(LaBase.OuvreTable(TableTextes)), avant);
}

TEST_F(EditeurLangues, AFileIsCheckedWholeAndEveryFaultNamed) {
    constexpr long Touche = 38, Sans = 3; // "&Fichier" and "OK"
    const std::string bonne(static_cast<std::size_t>(LongueurPermise(textes, Sans)), 'x');
    const auto texte = [](long numero) { return Texte(TexteNumeroTexte) + " " + std::to_string(numero) + " : "; };
    EXPECT_EQ(Fautes("3\tva bene\r\n\r\n38\t&va\n4\t"), "");
    EXPECT_EQ(Fautes("3\t" + bonne), "");
    const std::string longueurs = " (" + std::to_string(bonne.size() + 1) + " > " + std::to_string(bonne.size()) + ")";
    EXPECT_EQ(Fautes("3\t" + bonne + "é"), SurLaLigne(2, texte(Sans) + Texte(TexteTropLong) + longueurs));
    for (const char* ligne : {"rien", "3\tva\tbene"}) EXPECT_EQ(Fautes(ligne), SurLaLigne(2, Texte(TexteDeuxColonnes)));
    for (const char* numero : {"0", "-3", "sept", "7.5", "99999", "", "99999999999999999999"})
        EXPECT_EQ(Fautes(std::string(numero) + "\tva"), SurLaLigne(2, Texte(TexteNumeroInconnu))) << numero;
    EXPECT_EQ(Fautes("3\tva\n4\tva\n3\tva"), SurLaLigne(4, Texte(TexteNumeroDouble) + " 2"));
    for (const char* muette : {"va", "va&", "va && bene"})
        EXPECT_EQ(Fautes(std::string("38\t") + muette), SurLaLigne(2, texte(Touche) + Texte(TexteSansTouche)));
    EXPECT_EQ(Fautes("38\t&v&a"), SurLaLigne(2, texte(Touche) + Texte(TexteToucheEnTrop)));
    EXPECT_EQ(Fautes("3\tv&a"), SurLaLigne(2, texte(Sans) + Texte(TexteToucheEnTrop)));
    EXPECT_EQ(Fautes("3\tcaf\xE9"), SurLaLigne(2, Texte(TexteEncodage)));
    EXPECT_EQ(Fautes("x\n3\tva\ny"), SurLaLigne(2, Texte(TexteDeuxColonnes)) + SurLaLigne(4, Texte(TexteDeuxColonnes)));
    EXPECT_TRUE(AnalyseFichierLangue(textes, "3\tva\n4\tva\n").textes.empty()) << "no line of titles";
}

TEST_F(EditeurLangues, AFileGivesBackTheTextsItWasMadeOf) {
    const std::string anglais = ComposeFichierLangue(textes, "English");
    const ImportLangue import = AnalyseFichierLangue(textes, "\xEF\xBB\xBF" + anglais);
    EXPECT_EQ(import.fautes, std::vector<std::string>{}) << "the delivered texts keep their own rules";
    EcritTexte(textes, Italiano, 12, "<< &Via");
    EXPECT_EQ(NombreRemplaces(textes, Italiano, import.textes), 1);
    EXPECT_EQ(NombreATraduire(textes, Italiano), nombre - 1);
    EXPECT_EQ(ProchainATraduire(textes, Italiano, nombre), 1) << "all around";
    EcritTextes(LaBase, textes, Italiano, import.textes);
    // One that cannot be stored takes all of them back, and a delivered language takes none.
    EXPECT_THROW(EcritTextes(LaBase, textes, Italiano, {{1, "x"}, {nombre + 1, "x"}}), ErreurExecution);
    for (const char* livree : {"Français", "Español", "English"})
        EXPECT_THROW(EcritTextes(LaBase, textes, livree, {{1, "x"}}), ErreurExecution) << livree;
    base.Ouvre(BaseDonnees::Usage::Exclusif);
    textes = LaBase.OuvreTable(TableTextes);
    EXPECT_EQ(ComposeFichierLangue(textes, "English"), anglais);
    const std::string italien = ComposeFichierLangue(textes, Italiano);
    EXPECT_EQ(italien.substr(italien.find('\n')), anglais.substr(anglais.find('\n')));
}

namespace {

/// A change and the change that takes it back, made in turn until the program is killed.
struct Changement {
    const char* nom;
    useconds_t delaiMax; ///< microseconds, within which some are made
    std::function<void(JeuEnregistrements&, bool)> fait;
};

void RemplitLangue(JeuEnregistrements& textes, const std::string& texte) {
    std::vector<TexteImporte> tous;
    for (long numero = 1; numero <= textes.NombreEnregistrements(); ++numero) tous.push_back({numero, texte});
    EcritTextes(LaBase, textes, Italiano, tous);
}

const Changement changements[] = {
    {"edit", 10000,
     [](JeuEnregistrements& textes, bool neuf) { EcritTexte(textes, Italiano, 7, neuf ? "nuovo" : "vecchio"); }},
    {"append and delete", 20000,
     [](JeuEnregistrements&, bool neuf) {
         if (neuf) return LaBase.AjouteChamp(TableTextes, {"Deutsch", false, 60});
         LaBase.SupprimeChamp(TableTextes, "Deutsch");
     }},
    {"import", 60000, [](JeuEnregistrements& textes, bool neuf) { RemplitLangue(textes, neuf ? "nuovo" : "vecchio"); }},
};

/// The languages with all their texts.
std::string Contenu(const std::filesystem::path& chemin) {
    LaBase = BaseDonnees::Ouvre(chemin, MotDePasseBase, BaseDonnees::Usage::Exclusif);
    JeuEnregistrements textes = LaBase.OuvreTable(TableTextes);
    std::string contenu;
    for (const std::string& langue : NomsLangues(textes)) contenu += ComposeFichierLangue(textes, langue);
    LaBase = {};
    return contenu;
}

void Change(const std::filesystem::path& chemin, const Changement& changement, int fois, int sortie = -1) {
    LaBase = BaseDonnees::Ouvre(chemin, MotDePasseBase, BaseDonnees::Usage::Exclusif);
    JeuEnregistrements textes = LaBase.OuvreTable(TableTextes);
    if (sortie >= 0 && ::write(sortie, "+", 1) != 1) ::_exit(1);
    for (int i = 0; i < fois; ++i) changement.fait(textes, i % 2 == 0);
    LaBase = {};
}

/// Runs the change in a process of its own and kills it some time after it has begun.
void ChangeEtTue(const std::filesystem::path& chemin, const Changement& changement, useconds_t delai) {
    int tube[2];
    ASSERT_EQ(::pipe(tube), 0);
    const pid_t enfant = ::fork();
    if (enfant == 0) {
        Change(chemin, changement, std::numeric_limits<int>::max(), tube[1]);
        ::_exit(1);
    }
    char debut = 0;
    ASSERT_EQ(::read(tube[0], &debut, 1), 1);
    ::usleep(delai);
    ::kill(enfant, SIGKILL);
    int statut = 0;
    ::waitpid(enfant, &statut, 0);
    EXPECT_TRUE(WIFSIGNALED(statut)) << "it had ended before";
    for (const int bout : tube) ::close(bout);
}

} // namespace

TEST_F(EditeurLangues, AKillLeavesAllOrNoneOfAChange) {
    RemplitLangue(textes, "vecchio");
    LaBase = {};
    const std::string avant = Contenu(base.Chemin());
    constexpr int Tours = 20; // of each change
    std::mt19937 hasard(static_cast<unsigned>(testing::UnitTest::GetInstance()->random_seed()));
    for (const Changement& changement : changements) {
        const auto copie = base.Dossier() / changement.nom;
        std::filesystem::copy_file(base.Chemin(), copie);
        Change(copie, changement, 1);
        const std::string apres = Contenu(copie);
        ASSERT_NE(apres, avant);
        for (int tour = 0; tour < Tours; ++tour) {
            std::filesystem::copy_file(base.Chemin(), copie, std::filesystem::copy_options::overwrite_existing);
            ChangeEtTue(copie, changement, hasard() % changement.delaiMax);
            const std::string reste = Contenu(copie);
            EXPECT_TRUE(reste == avant || reste == apres) << changement.nom << " " << tour;
        }
    }
}
