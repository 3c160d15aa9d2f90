// Start to a shown main window, and its memory, beside those of an empty main window of the toolkit, in the same run.
// The program starts itself again for each start; a start ends when the window was drawn. Needs a display.
#include "app/Aide.h"
#include "app/Demarre.h"
#include "app/MdiCamA.h"
#include "widgets/Application.h"
#include "widgets/Polices.h"

#include <QMainWindow>
#include <QTimer>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <string_view>
#include <vector>

namespace {

constexpr int Departs = 21;
constexpr double RapportMax = 1.5;

/// Shows a window, lets it be drawn, and ends.
int MontreFenetre(QMainWindow& fenetre) {
    fenetre.show();
    QTimer::singleShot(0, qApp, [] { QTimer::singleShot(0, qApp, &QApplication::quit); });
    return QApplication::exec();
}

int FenetreVide(int argc, char** argv) {
    QApplication application(argc, argv);
    QMainWindow fenetre;
    fenetre.resize(1320, 900);
    return MontreFenetre(fenetre);
}

int FenetreVelorin(int argc, char** argv) {
    LitPolices();
    std::future<Configuration> demarrage = CommenceDemarrage(VELORIN_DOSSIER);
    Application application(argc, argv);
    MdiCamA fenetre(demarrage.get());
    ChoisitAide();
    return MontreFenetre(fenetre);
}

struct Mesure {
    double millisecondes;
    double megaoctets;
};

Mesure Depart(const char* programme, const char* mode) {
    const auto debut = std::chrono::steady_clock::now();
    const pid_t enfant = fork();
    if (enfant == 0) {
        execl(programme, programme, mode, nullptr);
        _exit(127);
    }
    int statut = 0;
    rusage emploi{};
    wait4(enfant, &statut, 0, &emploi);
    if (!WIFEXITED(statut) || WEXITSTATUS(statut) != 0) {
        std::fprintf(stderr, "the start '%s' failed\n", mode);
        std::exit(2);
    }
    const std::chrono::duration<double, std::milli> duree = std::chrono::steady_clock::now() - debut;
    return {duree.count(), static_cast<double>(emploi.ru_maxrss) / 1024.0};
}

double Mediane(std::vector<Mesure>& mesures, double Mesure::*membre) {
    std::sort(mesures.begin(), mesures.end(), [&](const Mesure& a, const Mesure& b) { return a.*membre < b.*membre; });
    return mesures[mesures.size() / 2].*membre;
}

} // namespace

int main(int argc, char** argv) {
    if (argc > 1) return std::string_view(argv[1]) == "vide" ? FenetreVide(argc, argv) : FenetreVelorin(argc, argv);
    std::vector<Mesure> vides, velorins;
    for (int i = 0; i < Departs; ++i) {
        vides.push_back(Depart(argv[0], "vide"));
        velorins.push_back(Depart(argv[0], "velorin"));
    }
    int issue = 0;
    const std::pair<const char*, double Mesure::*> grandeurs[] = {{"start, ms", &Mesure::millisecondes},
                                                                  {"memory, MB", &Mesure::megaoctets}};
    for (const auto& [nom, membre] : grandeurs) {
        const double vide = Mediane(vides, membre), velorin = Mediane(velorins, membre);
        const bool tenu = velorin <= RapportMax * vide;
        std::printf("%-12s empty window %7.1f   Velorin %7.1f   ratio %.2f, at most %.2f   %s\n", nom, vide, velorin,
                    velorin / vide, RapportMax, tenu ? "held" : "MISSED");
        if (!tenu) issue = 1;
    }
    return issue;
}
