// fabrique_base FOLDER DATABASE: builds the catalogue database out of its tables.
#include "data/FabriqueBase.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "fabrique_base FOLDER DATABASE\n";
        return 2;
    }
    try {
        FabriqueBase(argv[1], argv[2]);
    } catch (const std::exception& erreur) {
        std::cerr << erreur.what() << "\n";
        return 1;
    }
}
