// The folders of the present user on this workstation.
#pragma once

#include "data/Demarrage.h"

DossiersSysteme LesDossiersPoste();
