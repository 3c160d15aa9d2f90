// Screen tests run on the off-screen platform, with the built catalogue opened for reading and the French texts.
#include "data/Demarrage.h"
#include "laws/CalculLois.h"
#include "outils/Ecrans.h"
#include "widgets/Application.h"

#include <gtest/gtest.h>

namespace {

/// Every test starts from French and an empty study.
class RetourAuDebut : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override {
        etude = Etude{};
        ChargeLois();
        ChoisitLangue("Français");
    }
};

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    Application application(argc, argv);
    CheminAppli = VELORIN_DOSSIER;
    LaBase = BaseDonnees::Ouvre(CheminAppli / NomBase, MotDePasseBase, BaseDonnees::Usage::Lecture);
    testing::UnitTest::GetInstance()->listeners().Append(new RetourAuDebut);
    return RUN_ALL_TESTS();
}
