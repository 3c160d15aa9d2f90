#include "drawing/Script.h"

#include "core/Lignes.h"
#include "core/Nombres.h"

namespace {

/// Half length of the arms of a cross, mm.
constexpr double DemiCroix = 5;

} // namespace

void Script::Point(PointDessin p) {
    AjouteStr(texte_, p.x);
    texte_ += ',';
    AjouteStr(texte_, p.y);
}

void Script::Ligne(PointDessin de, PointDessin a, Saut saut) {
    texte_ += "LIGNE ";
    Point(de);
    texte_ += saut == Saut::Retour ? FinDeLigne : " ";
    Point(a);
    texte_ += FinDeLigne;
    texte_ += FinDeLigne;
}

void Script::Cercle(PointDessin centre, double diametre) {
    texte_ += "CERCLE ";
    Point(centre);
    texte_ += " d ";
    AjouteStr(texte_, diametre);
    texte_ += FinDeLigne;
}

void Script::Croix(PointDessin c, Saut saut) {
    Ligne({c.x - DemiCroix, c.y}, {c.x + DemiCroix, c.y}, saut);
    Ligne({c.x, c.y - DemiCroix}, {c.x, c.y + DemiCroix}, saut);
}

void Script::DebutPolyligne() {
    texte_ += "_pline";
    texte_ += FinDeLigne;
}

void Script::PointPolyligne(PointDessin p) {
    Point(p);
    texte_ += FinDeLigne;
}
