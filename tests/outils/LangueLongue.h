// A made-up language for the screens: every text 30 % longer than the French one, added to a catalogue of its own as a
// user adds one, from a file.
#pragma once

#include "languages/FichierLangue.h"
#include "outils/BaseAEcrire.h"

#include "core/Utf8.h"

#include <gtest/gtest.h>

#include <cmath>

inline constexpr const char* NomLangueLongue = "Longue";

/// The text with letters repeated, evenly over its length. Accelerators stay what they are.
inline std::string Allonge(const std::string& texte) {
    constexpr double Part = 0.3;
    std::vector<std::size_t> lettres;
    for (std::size_t i = 0; i < texte.size(); ++i)
        if (std::isalpha(static_cast<unsigned char>(texte[i])) != 0 && (i == 0 || texte[i - 1] != '&'))
            lettres.push_back(i);
    const auto enPlus = static_cast<std::size_t>(std::ceil(Part * static_cast<double>(Caracteres(texte))));
    if (lettres.empty()) return texte + std::string(enPlus, 'm');
    std::vector<std::size_t> fois(texte.size(), 1);
    for (std::size_t i = 0; i < enPlus; ++i) ++fois[lettres[i * lettres.size() / enPlus]];
    std::string longue;
    for (std::size_t i = 0; i < texte.size(); ++i) longue.append(fois[i], texte[i]);
    return longue;
}

/// The file of the made-up language.
inline std::string FichierLangueLongue(JeuEnregistrements& textes) {
    std::string fichier = std::string("Numero\t") + NomLangueLongue + "\n";
    for (long numero = 1; numero <= textes.NombreEnregistrements(); ++numero) {
        std::string texte = Allonge(TexteDeLangue(textes, "Français", numero));
        for (auto saut = texte.find('\n'); saut != std::string::npos; saut = texte.find('\n'))
            texte.replace(saut, 1, "\\n");
        fichier += std::to_string(numero) + "\t" + texte + "\n";
    }
    return fichier;
}

/// While it lives, `LaBase` is its own and has the language.
class BaseLangueLongue {
public:
    BaseLangueLongue() {
        JeuEnregistrements textes = LaBase.OuvreTable(TableTextes);
        AjouteLangue(LaBase, textes, NomLangueLongue);
        const ImportLangue import = AnalyseFichierLangue(textes, FichierLangueLongue(textes));
        EXPECT_EQ(import.fautes, std::vector<std::string>{}) << "the lengths leave room for it";
        EcritTextes(LaBase, textes, NomLangueLongue, import.textes);
    }

private:
    BaseAEcrire base_;
};
