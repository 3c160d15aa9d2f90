#include "inertia/FichierInerties.h"

#include "core/FichierEntier.h"
#include "core/Lignes.h"

namespace {

constexpr std::string_view EnTete = "TypeSolide;Text1;Text2;MasseTotal;Text3;Text5;Text6;Text7;Text8";
constexpr char Separateur = ';';

using S = SaisieSolide;
/// The texts of a solid around the mark of its mass.
constexpr std::string S::*AvantMasse[] = {&S::Text1, &S::Text2};
constexpr std::string S::*ApresMasse[] = {&S::Text3, &S::Text5, &S::Text6, &S::Text7, &S::Text8};

/// The cells of one line, one after the other.
class Cellules {
public:
    explicit Cellules(std::string_view ligne) : reste_(ligne) {}

    std::string Suivante() {
        if (fini_) throw ErreurExecution(NumeroErreur::ContenuInvalide);
        const auto fin = reste_.find(Separateur);
        std::string cellule = Trim(reste_.substr(0, fin));
        fini_ = fin == std::string_view::npos;
        if (!fini_) reste_.remove_prefix(fin + 1);
        return cellule;
    }
    bool Fini() const { return fini_; }

private:
    std::string_view reste_;
    bool fini_ = false;
};

/// A text as a field holds it: a number, or the beginning of one.
std::string LitNombre(Cellules& cellules) {
    std::string texte = cellules.Suivante();
    if (texte.find_first_not_of("0123456789+-.,eE") != std::string::npos)
        throw ErreurExecution(NumeroErreur::ContenuInvalide);
    return texte;
}

bool LitMasseTotal(const std::string& texte) {
    if (texte != "True" && texte != "False") throw ErreurExecution(NumeroErreur::ContenuInvalide);
    return texte == "True";
}

SaisieSolide LitSolide(std::string_view ligne) {
    Cellules cellules(ligne);
    SaisieSolide saisie;
    const std::string code = LitNombre(cellules);
    for (const GenreSolide& genre : LesSolides())
        if (code == std::to_string(genre.TypeSolide)) saisie.TypeSolide = genre.TypeSolide;
    if (saisie.TypeSolide == 0) throw ErreurExecution(NumeroErreur::ContenuInvalide);
    for (const auto membre : AvantMasse) saisie.*membre = LitNombre(cellules);
    saisie.MasseTotal = LitMasseTotal(cellules.Suivante());
    for (const auto membre : ApresMasse) saisie.*membre = LitNombre(cellules);
    if (!cellules.Fini()) throw ErreurExecution(NumeroErreur::ContenuInvalide);
    return saisie;
}

/// Calculates a solid and adds it.
void Reprend(Assemblage& assemblage, const SaisieSolide& saisie) {
    if (const auto faute = ChercheFaute(saisie)) throw ErreurExecution(NumeroErreur::ContenuInvalide, faute->sens);
    const Grandeurs valeurs = CalculeSolide(saisie);
    RestitueSolide(assemblage, saisie, EtiquettesDe(valeurs), valeurs);
}

} // namespace

std::string ComposeInerties(const Assemblage& assemblage) {
    std::string contenu = std::string(EnTete) + FinDeLigne;
    for (const LigneAssemblage& ligne : assemblage.lignes) {
        const SaisieSolide& saisie = ligne.saisie;
        contenu += std::to_string(saisie.TypeSolide) + Separateur;
        for (const auto membre : AvantMasse) contenu += saisie.*membre + Separateur;
        contenu += saisie.MasseTotal ? "True" : "False";
        for (const auto membre : ApresMasse) contenu += Separateur + saisie.*membre;
        contenu += FinDeLigne;
    }
    return contenu;
}

Assemblage AnalyseInerties(std::string_view contenu) {
    Assemblage assemblage;
    Lignes lignes(contenu);
    for (int numero = 1; !lignes.Fin(); ++numero) {
        const std::string ligne = Trim(lignes.Suivante());
        try {
            if (numero == 1 && ligne != EnTete) throw ErreurExecution(NumeroErreur::ContenuInvalide);
            if (numero > 1 && !ligne.empty()) Reprend(assemblage, LitSolide(ligne));
        } catch (const ErreurExecution& erreur) {
            const std::string place = "(" + std::to_string(numero) + ")";
            throw ErreurExecution(NumeroErreur::ContenuInvalide,
                                  erreur.detail.empty() ? place : place + " " + erreur.detail);
        }
    }
    if (contenu.empty()) throw ErreurExecution(NumeroErreur::ContenuInvalide);
    return assemblage;
}

void EcritInerties(const std::filesystem::path& chemin, const Assemblage& assemblage) {
    EcritFichierEntier(chemin, ComposeInerties(assemblage));
}

Assemblage LitInerties(const std::filesystem::path& chemin) {
    try {
        return AnalyseInerties(LitFichierEntier(chemin));
    } catch (const ErreurExecution& erreur) {
        if (erreur.numero != NumeroErreur::ContenuInvalide) throw;
        throw ErreurExecution(erreur.numero, chemin.filename().string() + " " + erreur.detail);
    }
}
