// The calculations that a user waits for, each beside its floor: a bare loop that makes as many of the same calls of
// the mathematical library, on arguments of the same range.
#include "Limites.h"

#include "core/FichierEntier.h"
#include "data/Demarrage.h"
#include "data/Textes.h"
#include "globoidal/CapaciteIndexeur.h"
#include "globoidal/CapaciteOscillateur.h"
#include "laws/CalculLois.h"
#include "studies/Exports.h"
#include "studies/FichierEtude.h"

#include <benchmark/benchmark.h>

#include <charconv>

namespace {

constexpr long PasLoi = 3600;

/// A worked example of the program, with `points` points around the cam.
void PrepareEtude(long points, const char* exemple = "Exemple.Ang") {
    etude = Etude{};
    ChargeLois();
    LitFichierEtude(CheminAppli / NomDossierEtudes / exemple);
    etude.donnees.PointsParDegre = Entier16(static_cast<double>(points) / 360.0);
}

void MesureAppliqueLoi(benchmark::State& etat, const char* nomLoi) {
    etude = Etude{};
    ChargeLois();
    etude.donnees.Zones.Redimensionne(1);
    etude.donnees.Zones[1].NomLoi = nomLoi;
    etude.donnees.Zones[1].CoefSymetrie = 0.5;
    etude.donnees.Zones[1].AngleCame = PasLoi;
    for (auto _ : etat) {
        AppliqueLoi(1);
        benchmark::DoNotOptimize(etude.lois.LoiUnite[PasLoi].Course);
    }
}

/// One sine and one cosine a step, of an angle of a quarter wave.
void PlancherLoi(benchmark::State& etat) {
    for (auto _ : etat)
        for (long i = 0; i <= PasLoi; ++i) {
            const double angle = Pi / 2.0 * static_cast<double>(i) / PasLoi;
            double sinus = std::sin(angle), cosinus = std::cos(angle);
            benchmark::DoNotOptimize(sinus);
            benchmark::DoNotOptimize(cosinus);
        }
}

void MesureCame(benchmark::State& etat, const char* exemple) {
    PrepareEtude(etat.range(0), exemple);
    for (auto _ : etat) {
        CalculeEtude();
        benchmark::DoNotOptimize(etude.resultats.CoupleMax);
    }
    const ResultatsEtude& resultats = etude.passes.empty() ? etude.resultats : etude.passes.back().resultats;
    if (resultats.NombrePoints != etat.range(0) || !SansErreur()) etat.SkipWithError("not calculated");
}

/// Angles in radians, of which a calculation takes sine and cosine together.
struct Plage {
    double debut, fin;
};

/// The six pairs of a point of the worked example: unit law; direction of the roller arm, for the radius and its speed;
/// arm, for the force point and again for the forces; cam angle; tangent.
const Plage paires[] = {{0, Pi / 2}, {0.96, 1.31}, {0.09, 0.44}, {0.09, 0.44}, {0, 2 * Pi}, {Pi / 2, 5 * Pi / 2}};

/// Besides its pairs a point takes one cosine of a large argument, an arctangent, a tangent and three square roots.
void PlancherCameAngulaire(benchmark::State& etat) {
    const long points = etat.range(0);
    for (auto _ : etat)
        for (long i = 0; i <= points; ++i) {
            const double part = static_cast<double>(i) / static_cast<double>(points);
            for (const Plage& plage : paires) {
                double angle = plage.debut + part * (plage.fin - plage.debut);
                benchmark::DoNotOptimize(angle); // twice the same angle is twice a call
                double sinus = std::sin(angle), cosinus = std::cos(angle);
                benchmark::DoNotOptimize(sinus);
                benchmark::DoNotOptimize(cosinus);
            }
            double autres[] = {std::cos((55.0 + 20.0 * part) * 180.0 / Pi),
                               std::atan(part - 0.5),
                               std::tan(part - 0.5),
                               std::sqrt(part),
                               std::sqrt(part + 1.0),
                               std::sqrt(part + 2.0)};
            benchmark::DoNotOptimize(autres);
        }
}

/// A point of a cylindrical cam takes the pairs of the unit law and of the slope, an arctangent and two square roots
/// for the roller speed and the radius of curvature, and the slope's pair again for the forces; on an arm the sine of
/// its angle too.
void PlancherCylindre(benchmark::State& etat, bool bras) {
    const long points = etat.range(0);
    for (auto _ : etat)
        for (long i = 0; i <= points; ++i) {
            const double part = static_cast<double>(i) / static_cast<double>(points);
            for (const Plage& plage : {Plage{0, Pi / 2}, Plage{-0.5, 0.5}}) {
                double angle = plage.debut + part * (plage.fin - plage.debut);
                benchmark::DoNotOptimize(angle);
                double sinus = std::sin(angle), cosinus = std::cos(angle);
                benchmark::DoNotOptimize(sinus);
                benchmark::DoNotOptimize(cosinus);
            }
            double angle = part - 0.5;
            benchmark::DoNotOptimize(angle);
            double autres[] = {std::sin(angle), std::cos(angle), std::atan(part), std::sqrt(part),
                               std::sqrt(part + 1.0)};
            benchmark::DoNotOptimize(autres);
            if (bras) {
                double sinus = std::sin(part - 0.25);
                benchmark::DoNotOptimize(sinus);
            }
        }
}

/// The globoidal mechanisms of the worked examples.
void PoseMecanisme(MecanismeGlobique& d) {
    d.Boitier = 5;
    d.Entraxe = 160;
    d.RayonTourelle = 90;
    d.CapaciteArbreEntree = 370;
    d.DiametreGalet = 22;
    d.HauteurGalet = 12;
    d.CapaciteB10 = 6050;
    d.CapaciteLimite = 7650;
    d.Precontrainte = 110;
}

ResultatGlobique CalculeExempleIndexeur() {
    DonneesIndexeur d;
    PoseMecanisme(d);
    d.AngleIndexage = 150;
    d.NombreGalets = d.NombreStops = 8;
    d.NomLoi = "MS";
    return CalculeCapaciteIndexador(d, etude.lois.ListeLois);
}

ResultatGlobique CalculeExempleOscillateur() {
    DonneesOscillateur d;
    PoseMecanisme(d);
    d.NombreGalets = 3;
    d.AngleEntreGalets = 30;
    d.AngleSortie = 40;
    d.AngleZoneA = d.AngleZoneC = 120;
    d.AngleZoneB = d.AngleZoneD = 60;
    d.LoiZoneA = "MS";
    d.LoiZoneC = "MT";
    return CalculeCapaciteOscillateur(d, etude.lois.ListeLois);
}

void MesureGlobique(benchmark::State& etat, ResultatGlobique (*calcule)()) {
    etude = Etude{};
    ChargeLois();
    for (auto _ : etat) benchmark::DoNotOptimize(calcule());
}

/// A loaded position takes the pressure angle at the roller, at its end and at three radii of the rib, each an
/// arctangent and its cosine; sine and cosine of the roller's angle twice, the cosine halfway; a power for each of the
/// five shares of inertia. The law takes a pair for each of its steps.
void PlancherGlobique(benchmark::State& etat, ResultatGlobique (*calcule)(), long pasLoi) {
    etude = Etude{};
    ChargeLois();
    const long positions = static_cast<long>(calcule().Parcours.size());
    for (auto _ : etat) {
        for (long i = 0; i < positions; ++i) {
            const double part = static_cast<double>(i) / static_cast<double>(positions);
            double somme = std::cos(part - 0.25);
            for (int j = 0; j < 2; ++j) {
                double angle = part - 0.5;
                benchmark::DoNotOptimize(angle);
                somme += std::sin(angle) + std::cos(angle);
            }
            for (int j = 0; j < 5; ++j) {
                double tangente = part + 0.01 * j;
                benchmark::DoNotOptimize(tangente);
                somme += std::cos(std::atan(tangente));
                double force = 50.0 + part * j;
                benchmark::DoNotOptimize(force);
                somme += std::pow(force, 10.0 / 3.0);
            }
            benchmark::DoNotOptimize(somme);
        }
        for (long i = 0; i < pasLoi; ++i) {
            double angle = Pi / 2.0 * static_cast<double>(i) / static_cast<double>(pasLoi);
            double sinus = std::sin(angle), cosinus = std::cos(angle);
            benchmark::DoNotOptimize(sinus);
            benchmark::DoNotOptimize(cosinus);
        }
    }
}

void PrepareResultats() {
    PrepareEtude(3600);
    CalculeEtude();
}

void MesureFichierPoints(benchmark::State& etat) {
    PrepareResultats();
    for (auto _ : etat) benchmark::DoNotOptimize(ComposeFichierPoints());
}

void MesureScript(benchmark::State& etat) {
    PrepareResultats();
    for (auto _ : etat) benchmark::DoNotOptimize(ComposeScriptExterieur());
}

/// The shortest digits of numbers, one after the other, into one text.
void PlancherTextes(benchmark::State& etat, double (*premier)(long), double (*second)(long)) {
    PrepareResultats();
    for (auto _ : etat) {
        std::string texte;
        char tampon[32];
        for (long i = 0; i <= etude.resultats.NombrePoints; ++i)
            for (const double valeur : {premier(i), second(i)})
                texte.append(tampon, std::to_chars(tampon, tampon + sizeof tampon, valeur).ptr);
        benchmark::DoNotOptimize(texte);
    }
}

/// The point file on disk, flushed and renamed.
void MesureEcriturePoints(benchmark::State& etat) {
    PrepareResultats();
    const auto chemin = std::filesystem::temp_directory_path() / "velorin-bench.Pnt";
    for (auto _ : etat) EcritFichierEntier(chemin, ComposeFichierPoints());
    std::filesystem::remove(chemin);
}

BENCHMARK(MesureFichierPoints)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(
    PlancherTextes, Points, [](long i) { return etude.resultats.Points[i].Angle; },
    [](long i) { return etude.resultats.Points[i].Rayon; })
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(MesureScript)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(
    PlancherTextes, Script, [](long i) { return etude.resultats.Profil[i].XExterieur; },
    [](long i) { return etude.resultats.Profil[i].YExterieur; })
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(MesureEcriturePoints)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MesureAppliqueLoi, MS, "MS");
BENCHMARK_CAPTURE(MesureAppliqueLoi, CYC, "CYC");
BENCHMARK(PlancherLoi);
BENCHMARK_CAPTURE(MesureCame, Angulaire, "Exemple.Ang")->Arg(3600)->Arg(32760)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(MesureCame, Conjuguees, "Conjuguees.Cjg")->Arg(3600)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(MesureCame, Cylindrique, "Barillet.Cyl")->Arg(3600)->Arg(32760)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(MesureCame, Oscillation, "Balancier.Osc")->Arg(3600)->Arg(32760)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(PlancherCylindre, Cylindrique, false)->Arg(3600)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(PlancherCylindre, Oscillation, true)->Arg(3600)->Unit(benchmark::kMicrosecond);
BENCHMARK(PlancherCameAngulaire)->Arg(3600)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(MesureGlobique, Indexeur, CalculeExempleIndexeur)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(MesureGlobique, Oscillateur, CalculeExempleOscillateur)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(PlancherGlobique, Indexeur, CalculeExempleIndexeur, 60)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(PlancherGlobique, Oscillateur, CalculeExempleOscillateur, 122)->Unit(benchmark::kMicrosecond);

constexpr Limite limites[] = {
    {"MesureGlobique/Indexeur", "PlancherGlobique/Indexeur", 3.0},
    {"MesureGlobique/Oscillateur", "PlancherGlobique/Oscillateur", 3.0},
    {"MesureAppliqueLoi/MS", "PlancherLoi", 1.5},
    {"MesureAppliqueLoi/CYC", "PlancherLoi", 1.5},
    {"MesureCame/Angulaire/3600", "PlancherCameAngulaire/3600", 2.0},
    {"MesureCame/Angulaire/32760", "MesureCame/Angulaire/3600", 1.3, 32760.0 / 3600.0},
    {"MesureCame/Conjuguees/3600", "MesureCame/Angulaire/3600", 2.2},
    {"MesureCame/Cylindrique/3600", "PlancherCylindre/Cylindrique/3600", 2.0},
    {"MesureCame/Cylindrique/32760", "MesureCame/Cylindrique/3600", 1.3, 32760.0 / 3600.0},
    {"MesureCame/Oscillation/3600", "PlancherCylindre/Oscillation/3600", 2.0},
    {"MesureCame/Oscillation/32760", "MesureCame/Oscillation/3600", 1.3, 32760.0 / 3600.0},
    {"MesureFichierPoints", "PlancherTextes/Points", 2.0},
    {"MesureScript", "PlancherTextes/Script", 2.0},
};

} // namespace

int main(int argc, char** argv) {
    CheminAppli = VELORIN_DOSSIER;
    LaBase = BaseDonnees::Ouvre(CheminAppli / NomBase, MotDePasseBase, BaseDonnees::Usage::Lecture);
    LangueTravail = "English";
    ChargeTextes(LaBase);
    return MesureEtCompare(argc, argv, limites);
}
