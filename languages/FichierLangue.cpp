#include "languages/FichierLangue.h"

#include "core/ErreurExecution.h"
#include "core/Lignes.h"
#include "core/Utf8.h"
#include "data/Textes.h"
#include "languages/TextesLangues.h"

#include <algorithm>
#include <charconv>
#include <map>

namespace {

constexpr std::string_view TitreNumero = "Numero";
constexpr std::string_view MarqueUtf8 = "\xEF\xBB\xBF"; ///< which editors put in front

std::string Remplace(std::string texte, std::string_view de, std::string_view par) {
    for (auto place = texte.find(de); place != std::string::npos; place = texte.find(de, place + par.size()))
        texte.replace(place, de.size(), par);
    return texte;
}

/// @return 0 for a text that is no whole number
long EnNumero(std::string_view texte) {
    long numero = 0;
    const auto [fin, faute] = std::from_chars(texte.data(), texte.data() + texte.size(), numero);
    return faute == std::errc{} && fin == texte.data() + texte.size() ? numero : 0;
}

/// Whether a byte is a control character, which no wording has.
bool EstCommande(char c) {
    return c >= 0 && c < ' ' && c != '\t';
}

class Analyse {
public:
    explicit Analyse(JeuEnregistrements& textes) : textes_(textes) {}

    void LitTitre(std::string_view ligne) {
        ++ligne_;
        if (ligne.substr(0, ligne.find('\t')) != TitreNumero) Note(Texte(TexteLigneTitre));
    }

    void LitTexte(std::string_view ligne) {
        ++ligne_;
        if (ligne.empty()) return;
        const auto tab = ligne.find('\t');
        if (!EstUtf8(ligne) || std::any_of(ligne.begin(), ligne.end(), EstCommande)) return Note(Texte(TexteEncodage));
        if (tab == std::string_view::npos || ligne.find('\t', tab + 1) != std::string_view::npos)
            return Note(Texte(TexteDeuxColonnes));
        const long numero = EnNumero(ligne.substr(0, tab));
        if (numero < 1 || numero > textes_.NombreEnregistrements()) return Note(Texte(TexteNumeroInconnu));
        const auto [premiere, nouveau] = lignes_.emplace(numero, ligne_);
        if (!nouveau) return Note(Texte(TexteNumeroDouble) + " " + std::to_string(premiere->second));
        const std::string texte = Remplace(std::string(ligne.substr(tab + 1)), "\\n", "\n");
        if (texte.empty()) return;
        const std::string ou = Texte(TexteNumeroTexte) + " " + std::to_string(numero) + " : ";
        for (const std::string& faute : FautesTraduction(textes_, numero, texte)) Note(ou + faute);
        resultat_.textes.push_back({numero, texte});
    }

    ImportLangue Resultat() {
        if (resultat_.fautes.empty() && resultat_.textes.empty()) resultat_.fautes.push_back(Texte(TexteRienAImporter));
        if (!resultat_.fautes.empty()) resultat_.textes.clear();
        return std::move(resultat_);
    }

private:
    void Note(const std::string& faute) {
        resultat_.fautes.push_back(Texte(TexteLigne) + " " + std::to_string(ligne_) + " : " + faute);
    }

    JeuEnregistrements& textes_;
    long ligne_ = 0;
    std::map<long, long> lignes_; ///< on which line each number stands
    ImportLangue resultat_;
};

} // namespace

std::string ComposeFichierLangue(JeuEnregistrements& textes, const std::string& langue) {
    std::string fichier = std::string(TitreNumero) + "\t" + langue + FinDeLigne;
    for (long numero = 1; numero <= textes.NombreEnregistrements(); ++numero) {
        const std::string texte = Remplace(TexteDeLangue(textes, langue, numero), "\n", "\\n");
        fichier += std::to_string(numero) + "\t" + Remplace(texte, "\t", " ") + FinDeLigne;
    }
    return fichier;
}

ImportLangue AnalyseFichierLangue(JeuEnregistrements& textes, std::string_view contenu) {
    if (contenu.substr(0, MarqueUtf8.size()) == MarqueUtf8) contenu.remove_prefix(MarqueUtf8.size());
    Analyse analyse(textes);
    Lignes lignes(contenu);
    analyse.LitTitre(lignes.Fin() ? std::string_view{} : lignes.Suivante());
    while (!lignes.Fin()) analyse.LitTexte(lignes.Suivante());
    return analyse.Resultat();
}

long NombreRemplaces(JeuEnregistrements& textes, const std::string& langue, const std::vector<TexteImporte>& importes) {
    return std::count_if(importes.begin(), importes.end(), [&](const TexteImporte& importe) {
        const std::string ancien = TexteDeLangue(textes, langue, importe.numero);
        return !ancien.empty() && ancien != importe.texte;
    });
}

void EcritTextes(BaseDonnees& base, JeuEnregistrements& textes, const std::string& langue,
                 const std::vector<TexteImporte>& importes) {
    // A recordset of its own: that of the caller knows nothing of what is taken back.
    JeuEnregistrements nouveaux = base.OuvreTable(TableTextes);
    Transaction transaction(base);
    for (const TexteImporte& importe : importes) EcritTexte(nouveaux, langue, importe.numero, importe.texte);
    transaction.Valide();
    textes = std::move(nouveaux);
}
