#include "languages/FichierLangue.h"

#include "core/ErreurExecution.h"
#include "core/Utf8.h"
#include "languages/TextesLangues.h"
#include "outils/BaseAEcrire.h"
#include "outils/Catalogue.h"

#include <algorithm>
#include <csignal>
#include <functional>
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

/// The number of the first text that is allowed so many characters and has an accelerator, or none.
long TexteAvecTouche(JeuEnregistrements& textes, bool touche) {
    for (long numero = 1;; ++numero)
        if ((TexteDeLangue(textes, "Français", numero).find('&') != std::string::npos) == touche &&
            LongueurPermise(textes, numero) < 20)
            return numero;
}

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
    for (const char* bon : {"Deutsch", "Português (Brasil)", "日本語", "Русский", "Nynorsk-2"})
        EXPECT_EQ(faute(bon), "");
    for (const char* faux : {"", "a\"b", "l'autre", "[x]", "x]", "`x`", "a&b", "a\tb", "a;b", "a/b", "rowid", "OID",
                             "2e", " x", "_x", "caf\xE9"})
        EXPECT_EQ(faute(faux), Texte(TexteNomInvalide)) << faux;
    EXPECT_EQ(faute("numero"), Texte(TexteNomPris) + " Numero");
    EXPECT_EQ(faute("LONGUEUR"), Texte(TexteNomPris) + " Longueur");
    EXPECT_EQ(faute("FRANÇAIS"), Texte(TexteNomPris) + " Français");
    EXPECT_EQ(faute(std::string(40, 'x')), "");
    EXPECT_NE(faute(std::string(41, 'x')).find("40"), std::string::npos);
    const auto avant = NomsLangues(textes);
    for (const char* faux : {"numero", "a\"b", "français"})
        EXPECT_THROW(AjouteLangue(LaBase, textes, faux), ErreurExecution) << faux;
    for (const char* faux : {"Numero", "Longueur", "Klingon", "English"})
        EXPECT_THROW(SupprimeLangue(LaBase, textes, faux), ErreurExecution) << faux;
    EXPECT_EQ(NomsLangues(LaBase.OuvreTable(TableTextes)), avant);
}

TEST_F(EditeurLangues, WhatIsMissingIsCountedAndFoundAllAround) {
    EXPECT_EQ(NombreATraduire(textes, Italiano), nombre);
    EXPECT_EQ(NombreATraduire(textes, "English"), 0);
    EXPECT_FALSE(ProchainATraduire(textes, "English", 1));
    std::vector<TexteImporte> presque;
    for (long numero = 1; numero < nombre; ++numero)
        if (numero != 7) presque.push_back({numero, "testo"});
    EcritTextes(LaBase, textes, Italiano, presque);
    EXPECT_EQ(NombreATraduire(textes, Italiano), 2);
    EXPECT_EQ(ProchainATraduire(textes, Italiano, 1), 7);
    EXPECT_EQ(ProchainATraduire(textes, Italiano, 7), nombre);
    EXPECT_EQ(ProchainATraduire(textes, Italiano, nombre), 7);
    EXPECT_EQ(LanguesCompletes(LaBase).size(), 3U) << "not offered yet";
    EcritTexte(textes, Italiano, 7, "testo");
    EXPECT_EQ(ProchainATraduire(textes, Italiano, nombre), nombre) << "the present one is the only one";
    EcritTexte(textes, Italiano, nombre, "testo");
    EXPECT_EQ(LanguesCompletes(LaBase).back(), Italiano);
    for (const char* livree : {"Français", "Español", "English"})
        EXPECT_THROW(EcritTexte(textes, livree, 7, "x"), ErreurExecution) << livree;
}

TEST_F(EditeurLangues, TheSearchLooksInNumbersAndInAllLanguages) {
    EcritTexte(textes, Italiano, 44, "&Modifiche ÀÉ 435 zz");
    const std::vector<long> parNumero = ChercheTextes(textes, "435");
    ASSERT_EQ(parNumero.size(), 2U);
    EXPECT_EQ(parNumero[0], 435) << "its number before a wording";
    EXPECT_EQ(parNumero[1], 44);
    EXPECT_EQ(ChercheTextes(textes, "modifiche ae"), std::vector<long>{44});
    const std::vector<long> anglais = ChercheTextes(textes, "WORK ON A LANGUAGE");
    EXPECT_EQ(anglais, std::vector<long>{687});
    EXPECT_TRUE(ChercheTextes(textes, "").empty());
    EXPECT_TRUE(ChercheTextes(textes, "&").empty());
    EXPECT_TRUE(ChercheTextes(textes, "zzz").empty());
}

TEST_F(EditeurLangues, AFileIsCheckedWholeAndEveryFaultNamed) {
    const long touche = TexteAvecTouche(textes, true), sans = TexteAvecTouche(textes, false);
    const auto ligne = [](long numero, const std::string& texte) {
        return std::to_string(numero) + "\t" + texte + "\n";
    };
    const auto texte = [](long numero) { return Texte(TexteNumeroTexte) + " " + std::to_string(numero) + " : "; };
    EXPECT_EQ(Fautes(ligne(sans, "va bene") + "\r\n" + ligne(touche, "&va") + ligne(3, "")), "");
    EXPECT_EQ(Fautes(ligne(sans, "va") + "rien\n"), SurLaLigne(3, Texte(TexteDeuxColonnes)));
    EXPECT_EQ(Fautes(ligne(sans, "va\tbene")), SurLaLigne(2, Texte(TexteDeuxColonnes)));
    for (const char* numero : {"0", "-3", "sept", "7.5", "99999", "", "99999999999999999999"})
        EXPECT_EQ(Fautes(std::string(numero) + "\tva\n"), SurLaLigne(2, Texte(TexteNumeroInconnu))) << numero;
    EXPECT_EQ(Fautes(ligne(sans, "va") + ligne(sans, "va")), SurLaLigne(3, Texte(TexteNumeroDouble) + " 2"));
    const std::string bonne(static_cast<std::size_t>(LongueurPermise(textes, sans)), 'x');
    EXPECT_EQ(Fautes(ligne(sans, bonne)), "");
    EXPECT_NE(Fautes(ligne(sans, bonne + "é")).find(texte(sans) + Texte(TexteTropLong)), std::string::npos);
    for (const char* muette : {"va", "va&", "va & bene", "va && bene"})
        EXPECT_EQ(Fautes(ligne(touche, muette)), SurLaLigne(2, texte(touche) + Texte(TexteSansTouche))) << muette;
    EXPECT_EQ(Fautes(ligne(touche, "&v&a")), SurLaLigne(2, texte(touche) + Texte(TexteToucheEnTrop)));
    EXPECT_EQ(Fautes(ligne(sans, "v&a")), SurLaLigne(2, texte(sans) + Texte(TexteToucheEnTrop)));
    EXPECT_EQ(Fautes(ligne(sans, "caf\xE9")), SurLaLigne(2, Texte(TexteEncodage)));
    EXPECT_EQ(Fautes(ligne(sans, std::string("a\0b", 3))), SurLaLigne(2, Texte(TexteEncodage)));
    EXPECT_EQ(Fautes(ligne(3, "")), Texte(TexteRienAImporter) + "\n");
    for (const char* sansTitre : {"", "7\tva\n", "numéro\tItaliano\n"})
        EXPECT_EQ(AnalyseFichierLangue(textes, sansTitre).fautes[0] + "\n", SurLaLigne(1, Texte(TexteLigneTitre)));
    EXPECT_EQ(Fautes("x\n" + ligne(sans, "va") + "y\n"),
              SurLaLigne(2, Texte(TexteDeuxColonnes)) + SurLaLigne(4, Texte(TexteDeuxColonnes)));
    EXPECT_TRUE(AnalyseFichierLangue(textes, "Numero\tx\n" + ligne(sans, "va") + "x\n").textes.empty());
}

TEST_F(EditeurLangues, AFileGivesBackTheTextsItWasMadeOf) {
    const std::string anglais = ComposeFichierLangue(textes, "English");
    const ImportLangue import = AnalyseFichierLangue(textes, "\xEF\xBB\xBF" + anglais);
    EXPECT_EQ(import.fautes, std::vector<std::string>{}) << "the delivered texts keep their own rules";
    EcritTexte(textes, Italiano, 12, "<< &Via");
    EXPECT_EQ(NombreRemplaces(textes, Italiano, import.textes), 1);
    EcritTextes(LaBase, textes, Italiano, import.textes);
    EXPECT_EQ(NombreRemplaces(textes, Italiano, import.textes), 0);
    base.Ouvre(BaseDonnees::Usage::Exclusif);
    textes = LaBase.OuvreTable(TableTextes);
    for (long numero = 1; numero <= nombre; ++numero)
        ASSERT_EQ(TexteDeLangue(textes, Italiano, numero), TexteDeLangue(textes, "English", numero)) << numero;
    const std::string italien = ComposeFichierLangue(textes, Italiano);
    EXPECT_EQ(italien.substr(italien.find('\n')), anglais.substr(anglais.find('\n')));

    // One that cannot be stored takes all of them back, and a delivered language takes none.
    EXPECT_THROW(EcritTextes(LaBase, textes, Italiano, {{1, "x"}, {nombre + 1, "x"}}), ErreurExecution);
    EXPECT_THROW(EcritTextes(LaBase, textes, "English", {{1, "x"}}), ErreurExecution);
    EXPECT_EQ(ComposeFichierLangue(textes, Italiano), italien);
    base.Ouvre(BaseDonnees::Usage::Exclusif);
    textes = LaBase.OuvreTable(TableTextes);
    EXPECT_EQ(ComposeFichierLangue(textes, Italiano), italien);
    EXPECT_EQ(ComposeFichierLangue(textes, "English"), anglais);
}

TEST_F(EditeurLangues, AReaderBesideSeesEachChange) {
    const auto vue = [&](const char* langue) {
        BaseDonnees lecture = BaseDonnees::Ouvre(base.Chemin(), MotDePasseBase, BaseDonnees::Usage::Lecture);
        JeuEnregistrements jeu = lecture.OuvreTable(TableTextes);
        return ExisteLangue(jeu, langue) ? "<" + TexteDeLangue(jeu, langue, 7) + ">" : "";
    };
    EXPECT_EQ(vue(Italiano), "<>");
    EcritTexte(textes, Italiano, 7, "testo");
    EXPECT_EQ(vue(Italiano), "<testo>");
    SupprimeLangue(LaBase, textes, Italiano);
    EXPECT_EQ(vue(Italiano), "");
    EXPECT_EQ(vue("English"), "<" + TexteDeLangue(textes, "English", 7) + ">");
}

namespace {

/// A change that is made again and again until the program is killed: what it does the `i`th time, how often the
/// catalogue shows it, and that nothing else is other than it was.
struct Changement {
    const char* nom;
    useconds_t delaiMax; ///< microseconds, within which some of them are made
    std::function<void(JeuEnregistrements&, int)> fait;
    std::function<int(JeuEnregistrements&)> compte;
    std::function<void(JeuEnregistrements&, int)> verifie;
};

std::string Colonne(int i) {
    return "L" + std::to_string(i);
}

constexpr int Colonnes = 12; ///< that there are to delete

void RemplitLangue(JeuEnregistrements& textes, const std::string& langue, const std::string& texte) {
    std::vector<TexteImporte> tous;
    for (long numero = 1; numero <= textes.NombreEnregistrements(); ++numero) tous.push_back({numero, texte});
    EcritTextes(LaBase, textes, langue, tous);
}

/// Every text of a language is `texte`, beginning at text `de`.
void AttendTexte(JeuEnregistrements& textes, const std::string& langue, const std::string& texte, long de = 1) {
    for (long numero = de; numero <= textes.NombreEnregistrements(); ++numero)
        ASSERT_EQ(TexteDeLangue(textes, langue, numero), texte) << langue << " " << numero;
}

/// How many languages have a name that begins so.
int NombreColonnes(const JeuEnregistrements& textes, const std::string& debut) {
    const auto noms = NomsLangues(textes);
    return static_cast<int>(
        std::count_if(noms.begin(), noms.end(), [&](const auto& nom) { return nom.rfind(debut, 0) == 0; }));
}

const Changement changements[] = {
    {"edit", 20000, [](JeuEnregistrements& textes, int i) { EcritTexte(textes, Italiano, i + 1, "nuovo"); },
     [](JeuEnregistrements& textes) {
         int faits = 0;
         while (TexteDeLangue(textes, Italiano, faits + 1) == "nuovo") ++faits;
         return faits;
     },
     [](JeuEnregistrements& textes, int faits) { AttendTexte(textes, Italiano, "vecchio", faits + 1); }},
    {"append", 20000,
     [](JeuEnregistrements&, int i) { LaBase.AjouteChamp(TableTextes, {"Neuve" + std::to_string(i)}); },
     [](JeuEnregistrements& textes) { return NombreColonnes(textes, "Neuve"); },
     [](JeuEnregistrements& textes, int faits) {
         for (int i = 0; i < faits; ++i) AttendTexte(textes, "Neuve" + std::to_string(i), "");
     }},
    {"delete", 40000, [](JeuEnregistrements&, int i) { LaBase.SupprimeChamp(TableTextes, Colonne(i)); },
     [](JeuEnregistrements& textes) { return Colonnes - NombreColonnes(textes, "L"); },
     [](JeuEnregistrements& textes, int faits) {
         for (int i = faits; i < Colonnes; ++i) ASSERT_EQ(TexteDeLangue(textes, Colonne(i), 1 + i), Colonne(i));
         AttendTexte(textes, Italiano, "vecchio");
     }},
    {"import", 80000, [](JeuEnregistrements& textes, int i) { RemplitLangue(textes, Italiano, Colonne(i)); },
     [](JeuEnregistrements& textes) {
         const std::string premier = TexteDeLangue(textes, Italiano, 1);
         return premier == "vecchio" ? 0 : 1 + std::stoi(premier.substr(1));
     },
     [](JeuEnregistrements& textes, int faits) {
         AttendTexte(textes, Italiano, faits == 0 ? "vecchio" : Colonne(faits - 1));
     }},
};

[[noreturn]] void ChangeSansFin(const std::filesystem::path& chemin, const Changement& changement, int sortie) {
    LaBase = BaseDonnees::Ouvre(chemin, MotDePasseBase, BaseDonnees::Usage::Exclusif);
    JeuEnregistrements textes = LaBase.OuvreTable(TableTextes);
    for (int i = -1;; ++i) {
        if (i >= 0) changement.fait(textes, i);
        if (::write(sortie, &i, sizeof i) != sizeof i) ::_exit(1);
    }
}

/// Runs a change in a process of its own and kills it some time after it has begun.
/// @return how many times it told that it was done
int ChangeEtTue(const std::filesystem::path& chemin, const Changement& changement, useconds_t delai) {
    int tube[2];
    EXPECT_EQ(::pipe(tube), 0);
    const pid_t enfant = ::fork();
    if (enfant == 0) ChangeSansFin(chemin, changement, tube[1]);
    ::close(tube[1]);
    int dernier = -1;
    EXPECT_EQ(::read(tube[0], &dernier, sizeof dernier), static_cast<ssize_t>(sizeof dernier)) << "it never began";
    ::usleep(delai);
    ::kill(enfant, SIGKILL);
    ::waitpid(enfant, nullptr, 0);
    for (int i; ::read(tube[0], &i, sizeof i) == sizeof i;) dernier = i;
    ::close(tube[0]);
    return dernier + 1;
}

} // namespace

TEST_F(EditeurLangues, AKillLeavesAllOrNoneOfAChange) {
    RemplitLangue(textes, Italiano, "vecchio");
    for (int i = 0; i < Colonnes; ++i) {
        AjouteLangue(LaBase, textes, Colonne(i));
        EcritTexte(textes, Colonne(i), 1 + i, Colonne(i));
    }
    const std::string francais = ComposeFichierLangue(textes, "Français");
    LaBase = {};
    constexpr int Tours = 15; // of each change
    std::mt19937 hasard(static_cast<unsigned>(testing::UnitTest::GetInstance()->random_seed()));
    for (const Changement& changement : changements)
        for (int tour = 0; tour < Tours; ++tour) {
            const auto copie = base.Dossier() / (changement.nom + std::to_string(tour));
            std::filesystem::copy_file(base.Chemin(), copie);
            const int dits = ChangeEtTue(copie, changement, hasard() % changement.delaiMax);
            {
                std::ifstream j(copie.string() + "-journal", std::ios::binary);
                char t[8] = {};
                j.read(t, 8);
                bool hot = false;
                for (char c : t) hot |= c != 0;
                std::printf("%s dits %d chaud %d\n", changement.nom, dits, hot);
            }
            LaBase = BaseDonnees::Ouvre(copie, MotDePasseBase, BaseDonnees::Usage::Exclusif);
            JeuEnregistrements apres = LaBase.OuvreTable(TableTextes);
            const int faits = changement.compte(apres);
            ASSERT_GE(faits, dits) << changement.nom << ": what was told is there";
            ASSERT_LE(faits, dits + 1) << changement.nom << ": and at most the one being made";
            changement.verifie(apres, faits);
            ASSERT_FALSE(HasFatalFailure()) << changement.nom << " " << tour;
            ASSERT_EQ(ComposeFichierLangue(apres, "Français"), francais) << changement.nom;
            LaBase = {};
        }
}
