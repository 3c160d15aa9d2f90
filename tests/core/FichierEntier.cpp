#include "core/FichierEntier.h"

#include "outils/DossierTemporaire.h"
#include "outils/Echec.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <random>
#include <thread>

namespace fs = std::filesystem;

namespace {

class FichierEntier : public testing::Test {
protected:
    /// The number of the run-time failure of a save; 0 when it succeeded.
    static NumeroErreur EchecEcriture(const fs::path& chemin, const std::string& contenu = "nouveau") {
        return EchecDe([&] { EcritFichierEntier(chemin, contenu); }).numero;
    }

    DossierTemporaire dossier;
};

/// Forbids files larger than `octets` for the life of this object: a write beyond fails as on a full disk.
class TailleLimitee {
public:
    explicit TailleLimitee(rlim_t octets) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &ancienne_);
        const rlimit limite{octets, ancienne_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limite);
    }
    ~TailleLimitee() {
        ::setrlimit(RLIMIT_FSIZE, &ancienne_);
        std::signal(SIGXFSZ, signal_);
    }

private:
    rlimit ancienne_{};
    void (*signal_)(int);
};

} // namespace

TEST_F(FichierEntier, WhatCannotBeReadIsToldApart) {
    const auto echec = [](const fs::path& chemin) {
        const Echec e = EchecDe([&] { LitFichierEntier(chemin); });
        EXPECT_NE(e.detail.find(chemin.string()), std::string::npos);
        return e.numero;
    };
    EXPECT_EQ(echec(dossier / "absent"), NumeroErreur::FichierIntrouvable);
    EXPECT_EQ(echec(dossier.Chemin()), NumeroErreur::AccesFichier);
    EXPECT_EQ(echec(dossier.Ecrit("enorme", std::string(TailleFichierMax + 1, 'x'))), NumeroErreur::FichierTropGrand);
}

TEST_F(FichierEntier, KilledAtAnyMomentLeavesAWholeFile) {
    const std::string contenus[] = {std::string(1 << 20, 'a'), std::string(900000, 'b')};
    const fs::path chemin = dossier / "etude.Ang";
    EcritFichierEntier(chemin, contenus[0]);
    std::mt19937 hasard(7);
    int interrompues = 0;
    for (int fois = 0; fois < 40; ++fois) {
        const pid_t enfant = ::fork();
        ASSERT_GE(enfant, 0);
        if (enfant == 0)
            for (int i = 1;; ++i) EcritFichierEntier(chemin, contenus[i % 2]);
        std::this_thread::sleep_for(std::chrono::microseconds(2000 + hasard() % 20000));
        ::kill(enfant, SIGKILL);
        int etat = 0;
        ::waitpid(enfant, &etat, 0);
        ASSERT_TRUE(WIFSIGNALED(etat)) << "the saving process ended by itself";

        const std::string contenu = LitBrut(chemin);
        ASSERT_TRUE(contenu == contenus[0] || contenu == contenus[1]) << "round " << fois << ", " << contenu.size();
        if (dossier.NombreFichiers() > 1) {
            ++interrompues;
            EcritFichierEntier(chemin, contenus[0]);
            ASSERT_EQ(dossier.NombreFichiers(), 1) << "what the killed run left is gone with the next write";
        }
    }
    // Most kills fell into a save, not between two.
    EXPECT_GT(interrompues, 5);
}

TEST_F(FichierEntier, FailedSaveLeavesTheOldFileAndNothingElse) {
    const fs::path chemin = dossier.Ecrit("etude.Ang", "ancien");
    {
        const TailleLimitee limite(4096);
        EXPECT_NE(EchecEcriture(chemin, std::string(100000, 'x')), NumeroErreur{});
        EXPECT_EQ(EchecEcriture(dossier / "petite.Ang", "petite"), NumeroErreur{});
    }
    EXPECT_EQ(LitBrut(chemin), "ancien");
    EXPECT_EQ(dossier.NombreFichiers(), 2);

    EXPECT_NE(EchecEcriture(dossier / "absent" / "etude.Ang"), NumeroErreur{}) << "the folder has gone";
    fs::create_directory(dossier / "dossier.Ang");
    EXPECT_NE(EchecEcriture(dossier / "dossier.Ang"), NumeroErreur{}) << "a folder stands there";
    EXPECT_EQ(LitBrut(chemin), "ancien");
    EXPECT_EQ(dossier.NombreFichiers(), 3);
}

TEST_F(FichierEntier, ProtectedFileIsNotReplaced) {
    if (::geteuid() == 0) GTEST_SKIP() << "nothing is protected from root";
    const fs::path chemin = dossier.Ecrit("etude.Ang", "ancien");
    fs::permissions(chemin, fs::perms::owner_read);
    EXPECT_EQ(EchecEcriture(chemin), NumeroErreur::AccesFichier);
    EXPECT_EQ(LitBrut(chemin), "ancien");
    EXPECT_EQ(dossier.NombreFichiers(), 1);
}

TEST_F(FichierEntier, LinkIsFollowedAndPermissionsStay) {
    const fs::path chemin = dossier.Ecrit("etude.Ang", "ancien");
    const auto droits = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    fs::permissions(chemin, droits);
    fs::create_symlink("etude.Ang", dossier / "lien.Ang");
    EXPECT_EQ(EchecEcriture(dossier / "lien.Ang"), NumeroErreur{});
    EXPECT_TRUE(fs::is_symlink(dossier / "lien.Ang"));
    EXPECT_EQ(LitBrut(chemin), "nouveau");
    EXPECT_EQ(fs::status(chemin).permissions(), droits);
    fs::create_symlink("cercle", dossier / "cercle");
    EXPECT_EQ(EchecEcriture(dossier / "cercle"), NumeroErreur::AccesFichier) << "it leads nowhere";
    EXPECT_TRUE(fs::is_symlink(dossier / "cercle"));
    EXPECT_EQ(dossier.NombreFichiers(), 3);
}

TEST_F(FichierEntier, FilesThatBelongTogetherAreWrittenAllOrNone) {
    const fs::path un = dossier.Ecrit("un", "ancien"), deux = dossier / "deux";
    // The third is refused only when it is to be put in its place.
    fs::create_directories(dossier / "trois" / "plein");
    const FichierAEcrire surDossier[] = {{un, "nouveau"}, {deux, "nouveau"}, {dossier / "trois", "nouveau"}};
    EXPECT_THROW(EcritFichiersEntiers(surDossier), ErreurExecution);
    EXPECT_EQ(LitBrut(un), "ancien");
    EXPECT_EQ(dossier.NombreFichiers(), 2);
    const FichierAEcrire bons[] = {{un, "a"}, {deux, "b"}};
    EcritFichiersEntiers(bons);
    EXPECT_EQ(LitBrut(un) + LitBrut(deux), "ab");
    EXPECT_EQ(dossier.NombreFichiers(), 3);
}

TEST_F(FichierEntier, AFileInMemoryIsReplacedAsAnyOther) {
    if (::access("/dev/shm", W_OK) != 0) GTEST_SKIP() << "no such folder here";
    const fs::path chemin = "/dev/shm/velorin-" + std::to_string(::getpid());
    EXPECT_EQ(EchecEcriture(chemin, "ancien, et plus long"), NumeroErreur{});
    EXPECT_EQ(EchecEcriture(chemin), NumeroErreur{});
    EXPECT_EQ(LitBrut(chemin), "nouveau") << "not written behind the old one";
    fs::remove(chemin);
}
