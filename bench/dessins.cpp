// What a user watches turn: one step of the drawing of a pair of conjugate cams, of 3600 points, on a sheet as large as
// that of a maximised window.
#include "conjugate/DessinPaire.h"
#include "data/Demarrage.h"
#include "data/Textes.h"
#include "laws/CalculLois.h"
#include "studies/FichierEtude.h"
#include "widgets/DessinQt.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {

constexpr double LimitePas = 8.0; ///< ms

double MesurePas(QImage& feuille, double angle) {
    const auto debut = std::chrono::steady_clock::now();
    feuille.fill(Qt::white);
    QPainter peintre(&feuille);
    peintre.setRenderHint(QPainter::Antialiasing);
    DessinQt dessin(peintre, QRectF(feuille.rect()), QPalette());
    DessinePaire(dessin, angle);
    const std::chrono::duration<double, std::milli> duree = std::chrono::steady_clock::now() - debut;
    return duree.count();
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    CheminAppli = VELORIN_DOSSIER;
    LaBase = BaseDonnees::Ouvre(CheminAppli / NomBase, MotDePasseBase, BaseDonnees::Usage::Lecture);
    LangueTravail = "English";
    ChargeTextes(LaBase);
    ChargeLois();
    LitFichierEtude(CheminAppli / NomDossierEtudes / "Conjuguees.Cjg");
    etude.donnees.PointsParDegre = 10;
    CalculeEtude();
    QImage feuille(1400, 800, QImage::Format_ARGB32_Premultiplied);
    std::vector<double> pas;
    for (int angle = 0; angle < 360; angle += 3) pas.push_back(MesurePas(feuille, angle));
    std::sort(pas.begin(), pas.end());
    const double mediane = pas[pas.size() / 2];
    const bool tenu = SansErreur() && mediane <= LimitePas;
    std::printf("step of a turning pair, ms: median %.2f   slowest %.2f   at most %.2f   %s\n", mediane, pas.back(),
                LimitePas, tenu ? "held" : "MISSED");
    return tenu ? 0 : 1;
}
