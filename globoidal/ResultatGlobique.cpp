#include "globoidal/ResultatGlobique.h"

#include "core/Etude.h"
#include "globoidal/UnitesGlobiques.h"

#include <algorithm>

namespace {

/// More positions than any picture can show.
constexpr std::size_t ParcoursMax = 20000;

} // namespace

void RangeMinima(const CameGlobique& came, const MinimaGlobiques& minima, ResultatGlobique& resultat) {
    resultat.EpaisseurMin = {minima.tete * MmParPouce, minima.centre * MmParPouce, minima.racine * MmParPouce};
    resultat.AnglePressionMaxi = minima.alpha * RadDeg;
    const auto moinsGalet = [&](double rayon) { return (rayon - came.D / 2.0) * MmParPouce; };
    resultat.CourbureCentre = moinsGalet(std::min(minima.convexeCentre, minima.flancsCentre));
    resultat.CourbureRacine = moinsGalet(std::min(minima.convexeRacine, minima.flancsRacine));
}

void NoteParcours(const PointParcours& point, ResultatGlobique& resultat) {
    if (resultat.Parcours.size() < ParcoursMax) resultat.Parcours.push_back(point);
}
