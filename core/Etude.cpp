#include "core/Etude.h"

Etude etude;
