#include "studies/ContoursCame.h"

#include "core/Etude.h"
#include "drawing/PlanDessin.h"

ContoursCame CalculeContours() {
    ContoursCame contours;
    const auto nombre = static_cast<std::size_t>(etude.resultats.NombrePoints) + 1;
    for (auto* courbe : {&contours.interieur, &contours.exterieur, &contours.primitif}) courbe->reserve(nombre);
    for (long i = 0; i <= etude.resultats.NombrePoints; ++i) {
        const PointProfil& p = etude.resultats.Profil[i];
        contours.interieur.push_back({p.XInterieur, p.YInterieur});
        contours.exterieur.push_back({p.XExterieur, p.YExterieur});
        contours.primitif.push_back(Polaire({0, 0}, etude.resultats.Points[i].Rayon, etude.resultats.Points[i].Angle));
    }
    return contours;
}
