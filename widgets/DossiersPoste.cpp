#include "widgets/DossiersPoste.h"

#include "widgets/Chaines.h"

#include <QCryptographicHash>
#include <QDir>
#include <QStandardPaths>

DossiersSysteme LesDossiersPoste() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return {Chemin(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)),
            Chemin(QDir(documents).exists() ? documents : QDir::homePath())};
}

std::filesystem::path DossierEtat() {
#ifdef Q_OS_WIN
    return Chemin(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
#else
    const QString choisi = qEnvironmentVariable("XDG_STATE_HOME");
    return Chemin(QDir::isAbsolutePath(choisi) ? choisi : QDir::homePath() + "/.local/state");
#endif
}

std::filesystem::path DossierExecution() {
    const QString choisi = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return QDir::isAbsolutePath(choisi) && QDir(choisi).exists() ? Chemin(choisi) : std::filesystem::path();
}

std::string EmpreinteDossier(const std::filesystem::path& dossier) {
    const QByteArray chemin = QChemin(dossier).toUtf8();
    return QCryptographicHash::hash(chemin, QCryptographicHash::Md5).toHex().left(8).toStdString();
}
