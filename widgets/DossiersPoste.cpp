#include "widgets/DossiersPoste.h"

#include "widgets/Chaines.h"

#include <QDir>
#include <QStandardPaths>

DossiersSysteme LesDossiersPoste() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return {Chemin(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)),
            Chemin(QDir(documents).exists() ? documents : QDir::homePath())};
}
