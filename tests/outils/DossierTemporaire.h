// A folder of its own for a test, gone when the test is over.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

class DossierTemporaire {
public:
    DossierTemporaire() {
        std::string modele = (std::filesystem::temp_directory_path() / "velorin-XXXXXX").string();
        if (::mkdtemp(modele.data()) == nullptr) throw std::runtime_error("no temporary folder");
        chemin_ = modele;
    }
    ~DossierTemporaire() {
        std::error_code ignore;
        std::filesystem::remove_all(chemin_, ignore);
    }
    DossierTemporaire(const DossierTemporaire&) = delete;
    DossierTemporaire& operator=(const DossierTemporaire&) = delete;

    const std::filesystem::path& Chemin() const { return chemin_; }
    std::filesystem::path operator/(const std::string& nom) const { return chemin_ / nom; }

    /// Writes a file of the folder and gives its path.
    std::string Ecrit(const std::string& nom, const std::string& contenu) const {
        std::ofstream(chemin_ / nom, std::ios::binary) << contenu;
        return (chemin_ / nom).string();
    }

    long NombreFichiers() const {
        return std::distance(std::filesystem::directory_iterator(chemin_), std::filesystem::directory_iterator{});
    }

private:
    std::filesystem::path chemin_;
};

/// The content of a file as it stands.
inline std::string LitBrut(const std::filesystem::path& fichier) {
    std::ifstream flux(fichier, std::ios::binary);
    return {std::istreambuf_iterator<char>(flux), {}};
}
