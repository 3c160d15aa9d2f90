// velorin-batch: the calculations without the screens, for scripts, parameter sweeps and tests.
#include "batch/Commandes.h"

#include <iostream>

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    const int statut = LanceCommande({argv + 1, argv + argc}, std::cout, std::cerr);
    if (std::cout.flush()) return statut;
    std::cerr << "velorin-batch: the result could not be written\n";
    return 1;
}
