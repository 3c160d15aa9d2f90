// Screen tests run on the off-screen platform, with the built catalogue opened for reading and the French texts.
#include "data/Demarrage.h"
#include "laws/CalculLois.h"
#include "outils/Ecrans.h"
#include "widgets/Application.h"

#include <QTemporaryDir>
#include <QTimer>

#include <chrono>

namespace {

constexpr std::chrono::seconds AttenteMax{30};

/// Every test starts from French and an empty study. One that waits for a box or a menu at which nobody is fails.
class RetourAuDebut : public testing::EmptyTestEventListener {
public:
    RetourAuDebut() {
        QObject::connect(&attente_, &QTimer::timeout, [] {
            for (QWidget* attendu : {QApplication::activePopupWidget(), QApplication::activeModalWidget()})
                if (attendu != nullptr) {
                    ADD_FAILURE() << "nobody is at " << S(attendu->objectName() + " " + attendu->windowTitle());
                    attendu->close();
                }
        });
    }

private:
    void OnTestStart(const testing::TestInfo&) override {
        attente_.start(AttenteMax);
        etude = Etude{};
        std::error_code sansImportance;
        std::filesystem::remove_all(std::filesystem::path(qgetenv("XDG_STATE_HOME").toStdString()) / "velorin",
                                    sansImportance);
        ChargeLois();
        ChoisitLangue("Français");
    }

    QTimer attente_;
};

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // The recovery file of a test run is its own; a test that kills a run of its own passes that of this run on.
    const QTemporaryDir etat;
    const bool enfant = qEnvironmentVariableIsSet("VELORIN_ESSAI_TUE");
    if (!enfant) qputenv("XDG_STATE_HOME", etat.path().toUtf8());
    Application application(argc, argv);
    PrendDossiers(VELORIN_DOSSIER, {});
    LaBase = BaseDonnees::Ouvre(CheminAppli / NomBase, MotDePasseBase, BaseDonnees::Usage::Lecture);
    testing::UnitTest::GetInstance()->listeners().Append(new RetourAuDebut);
    return RUN_ALL_TESTS();
}
