// One number of a row of the result tables, as a function of the row, for tables and curves that name it.
#pragma once

#include "core/Etude.h"

template <double Point::*membre> double DuPoint(long i) {
    return etude.resultats.Points[i].*membre;
}
template <double PointLoi::*membre> double DuMouvement(long i) {
    return etude.resultats.Mouvement[i].*membre;
}
template <double PointProfil::*membre> double DuProfil(long i) {
    return etude.resultats.Profil[i].*membre;
}
