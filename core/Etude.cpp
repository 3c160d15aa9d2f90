#include "core/Etude.h"

Etude etude;

void VideEtude() {
    etude.donnees = {};
    etude.resultats = {};
    etude.passes.clear();
}
