#include "widgets/TextesQt.h"

#include "data/Demarrage.h"
#include "widgets/Chaines.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <string_view>

namespace {

constexpr const char* DossierTextesQt = "translations";

constexpr struct {
    std::string_view langue;
    const char* fichier;
} LesFichiers[] = {{"Français", "qtbase_fr.qm"}, {"Español", "qtbase_es.qm"}};

} // namespace

void ChargeTextesQt(const std::string& langue) {
    static const char* const nom = "TextesQt";
    // It belongs to the application, which may be a later one in a test.
    delete qApp->findChild<QTranslator*>(QString::fromLatin1(nom), Qt::FindDirectChildrenOnly);
    for (const auto& [connue, fichier] : LesFichiers) {
        if (connue != langue) continue;
        auto* textes = new QTranslator(qApp);
        textes->setObjectName(QString::fromLatin1(nom));
        // An installed program finds them where the toolkit has its own.
        if (textes->load(QChemin(CheminAppli / DossierTextesQt / fichier)) ||
            textes->load(QString::fromLatin1(fichier), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            QCoreApplication::installTranslator(textes);
    }
}
