#include "languages/Langues.h"

#include "core/ErreurExecution.h"
#include "core/Utf8.h"
#include "data/Textes.h"
#include "languages/TextesLangues.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr std::string_view livrees[] = {"Français", "Español", "English"};

constexpr long LongueurNomMax = 40;

/// Characters that the new field is declared for. What a wording may have is said text by text, by `Longueur`.
constexpr int TailleChamp = 60;

/// Other names of the number that the engine gives each record.
constexpr std::string_view reserves[] = {"rowid", "oid"};

bool EstLettre(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) != 0 || (c & 0x80) != 0;
}

bool EstPermis(char c) {
    return EstLettre(c) || (c >= '0' && c <= '9') || std::string_view(" -_()").find(c) != std::string_view::npos;
}

void RefuseLivree(const std::string& langue) {
    if (EstLivree(langue)) throw ErreurExecution(NumeroErreur::AccesFichier, langue);
}

void VaAuTexte(JeuEnregistrements& textes, long numero) {
    textes.Seek(static_cast<double>(numero));
    if (textes.NoMatch())
        throw ErreurExecution(NumeroErreur::IndiceHorsLimites, TableTextes + (" " + std::to_string(numero)));
}

long NombreTouches(std::string_view texte) {
    long touches = 0;
    for (std::size_t i = 0; i + 1 < texte.size(); ++i) {
        if (texte[i] != '&') continue;
        const char suivant = texte[++i];
        if (EstLettre(suivant) || (suivant >= '0' && suivant <= '9')) ++touches;
    }
    return touches;
}

} // namespace

bool EstLivree(std::string_view langue) {
    return std::find(std::begin(livrees), std::end(livrees), langue) != std::end(livrees);
}

std::vector<std::string> NomsLangues(const JeuEnregistrements& textes) {
    std::vector<std::string> noms;
    for (long champ = PremiereLangue; champ < textes.NombreChamps(); ++champ) noms.push_back(textes.NomChamp(champ));
    return noms;
}

bool ExisteLangue(const JeuEnregistrements& textes, std::string_view langue) {
    const std::vector<std::string> noms = NomsLangues(textes);
    return std::find(noms.begin(), noms.end(), langue) != noms.end();
}

std::optional<std::string> FauteNomLangue(const JeuEnregistrements& textes, const std::string& nom) {
    const bool reserve = std::find(std::begin(reserves), std::end(reserves), Plie(nom)) != std::end(reserves);
    if (nom.empty() || reserve || !EstUtf8(nom) || !EstLettre(nom.front()) ||
        !std::all_of(nom.begin(), nom.end(), EstPermis))
        return Texte(TexteNomInvalide);
    if (Caracteres(nom) > LongueurNomMax) return Texte(TexteNomTropLong) + " " + std::to_string(LongueurNomMax);
    for (long champ = 0; champ < textes.NombreChamps(); ++champ)
        if (Plie(textes.NomChamp(champ)) == Plie(nom)) return Texte(TexteNomPris) + " " + textes.NomChamp(champ);
    return {};
}

void AjouteLangue(BaseDonnees& base, JeuEnregistrements& textes, const std::string& langue) {
    if (FauteNomLangue(textes, langue)) throw ErreurExecution(NumeroErreur::AccesFichier, langue);
    base.AjouteChamp(TableTextes, {langue, false, TailleChamp});
    textes = base.OuvreTable(TableTextes);
}

void SupprimeLangue(BaseDonnees& base, JeuEnregistrements& textes, const std::string& langue) {
    RefuseLivree(langue);
    if (!ExisteLangue(textes, langue)) throw ErreurExecution(NumeroErreur::AccesFichier, langue);
    base.SupprimeChamp(TableTextes, langue);
    textes = base.OuvreTable(TableTextes);
}

std::string TexteDeLangue(JeuEnregistrements& textes, const std::string& langue, long numero) {
    VaAuTexte(textes, numero);
    return EnTexte(textes.Champ(langue));
}

long LongueurPermise(JeuEnregistrements& textes, long numero) {
    VaAuTexte(textes, numero);
    return static_cast<long>(EnNombre(textes.Champ("Longueur")));
}

std::vector<std::string> FautesTraduction(JeuEnregistrements& textes, long numero, const std::string& traduction) {
    std::vector<std::string> fautes;
    const long longueur = Caracteres(traduction), permise = LongueurPermise(textes, numero);
    if (longueur > permise)
        fautes.push_back(Texte(TexteTropLong) + " (" + std::to_string(longueur) + " > " + std::to_string(permise) +
                         ")");
    const long touches = NombreTouches(traduction), voulues = NombreTouches(EnTexte(textes.Champ(PremiereLangue)));
    if (touches != voulues) fautes.push_back(Texte(touches < voulues ? TexteSansTouche : TexteToucheEnTrop));
    return fautes;
}

void EcritTexte(JeuEnregistrements& textes, const std::string& langue, long numero, const std::string& texte) {
    RefuseLivree(langue);
    VaAuTexte(textes, numero);
    textes.Edit();
    textes.Ecrit(langue, texte);
    textes.Update();
}

long NombreATraduire(JeuEnregistrements& textes, const std::string& langue) {
    long manquants = 0;
    for (textes.VaAuPremier(); !textes.FinFichier(); textes.VaAuSuivant())
        if (EstNul(textes.Champ(langue))) ++manquants;
    return manquants;
}

std::optional<long> ProchainATraduire(JeuEnregistrements& textes, const std::string& langue, long numero) {
    const long nombre = textes.NombreEnregistrements();
    for (long pas = 1; pas <= nombre; ++pas) {
        const long candidat = (numero - 1 + pas) % nombre + 1;
        VaAuTexte(textes, candidat);
        if (EstNul(textes.Champ(langue))) return candidat;
    }
    return {};
}

std::vector<long> ChercheTextes(JeuEnregistrements& textes, const std::string& cherche) {
    const std::string voulu = Plie(cherche);
    std::vector<long> trouves;
    if (voulu.empty()) return trouves;
    for (textes.VaAuPremier(); !textes.FinFichier(); textes.VaAuSuivant()) {
        const std::string numero = EnTexte(textes.Champ("Numero"));
        bool trouve = numero.find(voulu) != std::string::npos;
        for (long champ = PremiereLangue; !trouve && champ < textes.NombreChamps(); ++champ)
            trouve = Plie(EnTexte(textes.Champ(champ))).find(voulu) != std::string::npos;
        if (trouve) trouves.push_back(static_cast<long>(EnNombre(textes.Champ("Numero"))));
    }
    std::stable_partition(trouves.begin(), trouves.end(), [&](long numero) { return std::to_string(numero) == voulu; });
    return trouves;
}
