// One window for each folder of the user: later starts hand their files to it.
#include "app/InstanceUnique.h"
#include "app/CameType.h"
#include "data/EchecDemarrage.h"
#include "outils/FenetrePrincipale.h"

#include <QEventLoop>
#include <QMenu>
#include <QProcess>

#include <future>
#include <thread>

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

/// The main window listens, for a folder of its own; its socket stands in a folder of its own, too.
class Instances : public FenetrePrincipale {
protected:
    const QByteArray execution_ = qgetenv("XDG_RUNTIME_DIR");
    const fs::path utilisateur_ = CheminUtilisateur;
    std::vector<Remise> recues_;
    std::unique_ptr<InstanceUnique> instance_;

    Instances() {
        CheminUtilisateur = dossier_ / "base";
        fs::create_directory(CheminUtilisateur);
        ChoisitExecution(dossier_ / "execution");
        Ecoute();
    }
    ~Instances() override {
        CheminUtilisateur = utilisateur_;
        qputenv("XDG_RUNTIME_DIR", execution_);
    }
    static void ChoisitExecution(const fs::path& dossier) {
        fs::create_directories(dossier);
        qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(dossier.string()));
    }
    void Ecoute() {
        instance_ = std::make_unique<InstanceUnique>(CheminUtilisateur, [this](const Remise& remise) {
            recues_.push_back(remise);
            mdi_->Accueille(remise);
        });
    }
    static fs::path Adresse() { return AdressesInstance(CheminUtilisateur).front(); }
    /// What another run does meanwhile.
    template <class Fait> auto Pendant(Fait fait) {
        auto resultat = std::async(std::launch::async, fait);
        EXPECT_TRUE(QTest::qWaitFor([&] { return resultat.wait_for(0s) == std::future_status::ready; }, 10000));
        LaisseFaire();
        return resultat.get();
    }
    bool Remet(const fs::path& fichier, const fs::path& dossier = CheminUtilisateur) {
        return Pendant([&] { return RemetInstance(dossier, {fichier, {}}, AttenteInstance); });
    }
    fs::path Copie(const char* exemple, const std::string& nom) const {
        return dossier_.Ecrit(nom, LitBrut(Exemple(exemple)));
    }
    bool Attend(const char* type, int ms = 500) {
        return QTest::qWaitFor([type] { return etude.donnees.TypeCame == type; }, ms);
    }
};

Configuration DitOccupee() {
    throw ErreurExecution(NumeroErreur::BaseOccupee);
}

/// The program in a folder of its own, started there as a file manager does.
struct ProgrammeReel {
    fs::path dossier;

    explicit ProgrammeReel(const fs::path& dossier_) : dossier(dossier_) {
        fs::create_directories(dossier);
        for (const char* nom : {"velorin", "BaseDatos.Mdb", "CameAng.cfg"})
            fs::copy_file(fs::path(VELORIN_DOSSIER) / nom, dossier / nom);
    }
    void Lance(QProcess& processus, const QStringList& arguments = {}, const fs::path& depuis = {}) const {
        processus.setWorkingDirectory(QChemin(depuis));
        processus.start(QChemin(dossier / "velorin"), arguments);
    }
    /// @return the exit status of a start that ends
    int Lance(const QStringList& arguments, const fs::path& depuis = {}) const {
        QProcess processus;
        Lance(processus, arguments, depuis);
        const bool fini = QTest::qWaitFor([&] { return processus.state() == QProcess::NotRunning; }, 20000);
        return fini && processus.exitStatus() == QProcess::NormalExit ? processus.exitCode() : -1;
    }
};

} // namespace

TEST_F(Instances, AHandedFileOpensAsADroppedOne) {
    mdi_->CommenceEtude(LesChoixEtude().front());
    TapeDans(Ecran("DatoCama"), "Text1", "80");
    const fs::path barillet = Copie("Barillet.Cyl", "deux mots, \u00e9\n.cyl");
    etude.resultats.RotationEnCours = Vrai;
    ASSERT_TRUE(Remet(barillet));
    EXPECT_TRUE(QTest::qWaitFor([this] { return dialogues_.Derniere() == Texte(435); }, 500)) << "the cam turns";
    EXPECT_TRUE(Ouvert("DatoCama"));
    etude.resultats.RotationEnCours = Faux;
    ASSERT_TRUE(Remet(barillet));
    EXPECT_TRUE(Attend("Cylindrique")) << Etat();
    EXPECT_TRUE(Action("FichierReprendre").isEnabled()) << "what was not saved can be taken back";
}

TEST_F(Instances, TheWindowComesToTheFront) {
    QWidget autre;
    mdi_->showMinimized();
    autre.show();
    autre.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return autre.isActiveWindow(); }));
    const std::string avant = Etat();
    ASSERT_TRUE(Remet({}));
    EXPECT_TRUE(QTest::qWaitFor([this] { return mdi_->isActiveWindow(); }));
    EXPECT_FALSE(mdi_->isMinimized());
    EXPECT_EQ(Etat(), avant);
    // The leave that the desktop gave to the later start, and its file named from where it was started.
    qputenv("XDG_ACTIVATION_TOKEN", "jeton 7");
    EXPECT_FALSE(Pendant([] { return DemarreOuRemet(DitOccupee, "absent.Ang"); }));
    ASSERT_EQ(recues_.size(), 2U);
    EXPECT_EQ(recues_.back().jeton, "jeton 7");
    EXPECT_EQ(recues_.back().fichier, fs::current_path() / "absent.Ang");
    EXPECT_TRUE(QTest::qWaitFor([this] { return Etat().starts_with(Texte(128) + " absent.Ang : "); }, 500));
    qunsetenv("XDG_ACTIVATION_TOKEN");
}

TEST_F(Instances, WhileSomethingWaitsForTheUserTheFileWaits) {
    const fs::path barillet = Copie("Barillet.Cyl", "b.Cyl");
    const auto attend = [&](const std::string& devant) {
        ASSERT_TRUE(Remet(barillet)) << devant;
        EXPECT_EQ(Etat(), Texte(990) + " b.Cyl") << devant;
        EXPECT_FALSE(Attend("Cylindrique", 250)) << devant;
    };
    const auto ouvre = [&] {
        EXPECT_TRUE(Attend("Cylindrique"));
        etude.donnees.TypeCame.clear();
    };
    QDialog boite(mdi_.get());
    boite.open();
    attend("a box");
    EXPECT_TRUE(QTest::qWaitFor([&] { return boite.isActiveWindow(); })) << "the box before its window";
    boite.close();
    ouvre();
    QMenu menu;
    menu.popup({});
    attend("a menu");
    menu.close();
    ouvre();
    // A command that waits in a loop of its own goes on with what it found.
    QEventLoop programme, commande;
    QTimer::singleShot(0, &programme, [&] {
        QTimer::singleShot(0, &commande, [&] {
            attend("a command");
            commande.quit();
        });
        commande.exec();
        EXPECT_NE(etude.donnees.TypeCame, "Cylindrique");
    });
    QTimer::singleShot(1000, &programme, &QEventLoop::quit);
    programme.exec();
    ouvre();
}

TEST_F(Instances, WhatIsNoStartOfOursIsIgnored) {
    const std::string bon = std::string("velorin 1") + '\0' + '\0';
    const std::string messages[] = {"x",
                                    "velorin 1",
                                    bon + "relatif.Ang",
                                    bon + "/a" + '\0' + "b",
                                    "velorin 2" + bon.substr(9) + "/a",
                                    bon + "/" + std::string(9000, 'a')};
    const auto reponse = [&](const std::string& message) {
        return Pendant([&] {
            const Prise appel = AppelleLocale(Adresse(), AttenteInstance);
            return appel && appel.Envoie(message) ? appel.Recoit() : std::optional<std::string>("no window");
        });
    };
    for (const std::string& message : messages) EXPECT_EQ(reponse(message), std::nullopt) << message.substr(0, 20);
    EXPECT_EQ(recues_.size(), 0U);
    EXPECT_EQ(reponse(bon + "/a"), "velorin 1 ok");
    // One that says nothing holds nobody up, and is left alone after a while.
    const Prise muet = AppelleLocale(Adresse(), AttenteInstance * 2);
    ASSERT_TRUE(muet);
    EXPECT_TRUE(Remet({}));
    const auto debut = std::chrono::steady_clock::now();
    EXPECT_EQ(Pendant([&] { return muet.Recoit(); }), std::nullopt);
    EXPECT_LT(std::chrono::steady_clock::now() - debut, AttenteInstance + 500ms);
    EXPECT_TRUE(Remet({}));
}

TEST_F(Instances, AStartThatWaitsNoLongerFindsItsFileWithdrawn) {
    EXPECT_FALSE(RemetInstance(CheminUtilisateur, {Copie("Barillet.Cyl", "b.Cyl"), {}}, 50ms)) << "the window is busy";
    EXPECT_FALSE(Attend("Cylindrique")) << "its user was told that it failed";
}

TEST_F(Instances, AFirstTryThatTakesLongLeavesTimeToHandOver) {
    // As that of a later version, which waits for the database to bring it up to date.
    const auto demarre = [premier = true]() mutable -> Configuration {
        if (std::exchange(premier, false)) std::this_thread::sleep_for(AttenteInstance + 100ms);
        return DitOccupee();
    };
    EXPECT_FALSE(Pendant([&] { return DemarreOuRemet(demarre, "/a"); }));
    ASSERT_EQ(recues_.size(), 1U);
    EXPECT_EQ(recues_.back().fichier, "/a");
}

TEST_F(Instances, EachFolderHasItsOwnSocketUnderAnyName) {
    const fs::path autre = dossier_ / "autre", lien = dossier_ / "lien";
    fs::create_directory(autre);
    fs::create_directory_symlink(CheminUtilisateur, lien);
    EXPECT_FALSE(Remet({}, autre));
    EXPECT_TRUE(Remet({}, lien));
    const QByteArray affichage = qgetenv("WAYLAND_DISPLAY");
    qputenv("WAYLAND_DISPLAY", "wayland-7");
    EXPECT_FALSE(Remet({})) << "a window on another display";
    affichage.isNull() ? qunsetenv("WAYLAND_DISPLAY") : qputenv("WAYLAND_DISPLAY", affichage);
    EXPECT_EQ(fs::status(Adresse()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    instance_.reset();
    EXPECT_FALSE(fs::exists(Adresse()));
    // A folder whose name is longer than that of a socket can be, and none at all: the folder for states stands in.
    ChoisitExecution(dossier_ / std::string(200, 's'));
    Ecoute();
    EXPECT_TRUE(fs::is_socket(Adresse()));
    EXPECT_TRUE(Remet({}));
    qunsetenv("XDG_RUNTIME_DIR");
    EXPECT_FALSE(Remet({}));
    Ecoute();
    EXPECT_TRUE(Remet({}));
}

TEST_F(Instances, ABaseThatSomebodyElseHoldsIsToldAfterTwoSeconds) {
    instance_.reset();
    // The batch companion writes into it, to bring it up to date.
    const fs::path base = CheminUtilisateur / NomBase;
    fs::copy_file(fs::path(VELORIN_DOSSIER) / NomBase, base);
    const BaseDonnees tenue = BaseDonnees::OuvreOuCree(base, MotDePasseBase);
    const auto refuse = [&](const char* cas) {
        const auto debut = std::chrono::steady_clock::now();
        EXPECT_EQ(Pendant([&]() -> std::string {
                      try {
                          DemarreOuRemet(
                              [&] {
                                  BaseDonnees::Ouvre(base, MotDePasseBase, BaseDonnees::Usage::Exclusif);
                                  return Configuration{};
                              },
                              "/a");
                          return "started, or handed over";
                      } catch (const ErreurExecution& erreur) {
                          return TexteEchecDemarrage(erreur, "English");
                      }
                  }),
                  "File in use by another program : " + base.string())
            << cas;
        const auto duree = std::chrono::steady_clock::now() - debut;
        EXPECT_TRUE(duree >= AttenteInstance && duree < AttenteInstance + 1s) << cas;
    };
    refuse("no window");
    const Prise muette = EcouteLocale(Adresse());
    ASSERT_TRUE(muette);
    refuse("a window that does not answer");
}

TEST_F(Instances, RealStartsHandOverAlsoAfterAKill) {
    const ProgrammeReel programme(CheminUtilisateur);
    const fs::path barillet = Copie("Barillet.Cyl", "b c.Cyl");
    {
        // This window has the database.
        const BaseDonnees base =
            BaseDonnees::Ouvre(CheminUtilisateur / NomBase, MotDePasseBase, BaseDonnees::Usage::Exclusif);
        EXPECT_EQ(programme.Lance({"./b c.Cyl"}, dossier_.Chemin()), 0);
        EXPECT_TRUE(Attend("Cylindrique")) << Etat();
        instance_.reset();
    }
    const auto ecoute = [] { return static_cast<bool>(AppelleLocale(Adresse(), AttenteInstance)); };
    QProcess premier, suivant;
    programme.Lance(premier);
    ASSERT_TRUE(QTest::qWaitFor(ecoute, 20000));
    premier.kill();
    premier.waitForFinished();
    EXPECT_TRUE(fs::exists(Adresse())) << "left behind";
    EXPECT_FALSE(ecoute());
    programme.Lance(suivant, {QChemin(barillet)});
    ASSERT_TRUE(QTest::qWaitFor(ecoute, 20000));
    EXPECT_EQ(programme.Lance({QChemin(barillet)}), 0);
    EXPECT_EQ(suivant.state(), QProcess::Running);
    suivant.kill();
    suivant.waitForFinished();
}
