// The program as it is started by a user.
#include <QProcess>
#include <gtest/gtest.h>

TEST(Depart, ADisplayThatCannotBeReachedIsToldInWords) {
    QProcess programme;
    QProcessEnvironment poste = QProcessEnvironment::systemEnvironment();
    poste.insert("QT_QPA_PLATFORM", "xcb");
    poste.insert("DISPLAY", "nowhere:47");
    poste.remove("WAYLAND_DISPLAY");
    programme.setProcessEnvironment(poste);
    programme.start(VELORIN_DOSSIER "/velorin", {});
    ASSERT_TRUE(programme.waitForFinished());
    EXPECT_EQ(programme.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(programme.exitCode(), 1);
    const QByteArray dit = programme.readAllStandardError();
    EXPECT_TRUE(dit.startsWith("velorin: ") && dit.contains("no display") && dit.count('\n') == 1) << dit.constData();
}
