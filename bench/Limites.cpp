#include "Limites.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

/// Shows the benchmarks as usual and keeps the processor time of each: the median where it was repeated.
class GardeTemps : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& passes) override {
        for (const Run& passe : passes)
            if (passe.run_type == Run::RT_Iteration || passe.aggregate_name == "median")
                secondes_[passe.run_name.str()] =
                    passe.GetAdjustedCPUTime() / benchmark::GetTimeUnitMultiplier(passe.time_unit);
        ConsoleReporter::ReportRuns(passes);
    }

    /// @return 0 for a benchmark that was not run
    double Secondes(const std::string& nom) const {
        const auto place = secondes_.find(nom);
        return place == secondes_.end() ? 0 : place->second;
    }

private:
    std::map<std::string, double> secondes_;
};

} // namespace

int MesureEtCompare(int argc, char** argv, std::span<const Limite> limites) {
    std::string repete = "--benchmark_repetitions=15", melange = "--benchmark_enable_random_interleaving=true",
                resume = "--benchmark_display_aggregates_only=true";
    std::vector<char*> arguments(argv, argv + argc);
    if (argc == 1) arguments.insert(arguments.end(), {repete.data(), melange.data(), resume.data()});
    int nombre = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&nombre, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(nombre, arguments.data())) return 2;
    GardeTemps temps;
    benchmark::RunSpecifiedBenchmarks(&temps);

    std::puts("\nratio of the medians");
    int statut = 0;
    for (const Limite& limite : limites) {
        const double plancher = temps.Secondes(limite.plancher), mesure = temps.Secondes(limite.mesure);
        if (plancher == 0 || mesure == 0) continue;
        const double rapport = mesure / plancher / limite.echelle;
        const bool tenu = rapport <= limite.rapport;
        std::printf("  %-36s %5.2f   at most %.2f   %s\n", limite.mesure, rapport, limite.rapport,
                    tenu ? "held" : "MISSED");
        if (!tenu) statut = 1;
    }
    return statut;
}
