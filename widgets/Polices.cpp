#include "widgets/Polices.h"

#include "widgets/TravailFond.h"

#include <QFontDatabase>

#ifdef VELORIN_FONTCONFIG
#include <fontconfig/fontconfig.h>
#endif

namespace {

std::shared_future<void> liste;

} // namespace

void LitPolices() {
#ifdef VELORIN_FONTCONFIG
    FaitAuFond([] { FcInit(); });
#endif
}

void ListePolices() {
    liste = FaitAuFond([] { QFontDatabase::hasFamily(QString()); });
}

void AttendPolices() {
    if (liste.valid()) liste.wait();
}
