// The lines of a text file one after the other.
#pragma once

#include "core/Nombres.h"

#include <string_view>

class Lignes {
public:
    explicit Lignes(std::string_view contenu) : reste_(contenu) {}

    bool Fin() const { return reste_.empty(); }

    /// What was not read yet.
    std::string_view Reste() const { return reste_; }

    /// The next line without its line end, CR LF or LF.
    /// @throws ErreurExecution input past the end of the file.
    std::string_view Suivante() {
        if (Fin()) throw ErreurExecution(NumeroErreur::FinDeFichier);
        const auto fin = reste_.find('\n');
        std::string_view ligne = reste_.substr(0, fin);
        reste_ = fin == std::string_view::npos ? std::string_view{} : reste_.substr(fin + 1);
        if (!ligne.empty() && ligne.back() == '\r') ligne.remove_suffix(1);
        return ligne;
    }

private:
    std::string_view reste_;
};

/// Line end of the files that the program writes.
inline constexpr const char* FinDeLigne = "\r\n";
