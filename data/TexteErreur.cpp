// The meaning of each run-time failure, in the working language.
#include "data/Textes.h"

#include <algorithm>

namespace {

struct Sens {
    NumeroErreur numero;
    int texte;
};

constexpr Sens LesSens[] = {
    {NumeroErreur::AppelIncorrect, 709},     {NumeroErreur::Depassement, 710},
    {NumeroErreur::IndiceHorsLimites, 712},  {NumeroErreur::DivisionParZero, 713},
    {NumeroErreur::TypeIncompatible, 714},   {NumeroErreur::FichierIntrouvable, 716},
    {NumeroErreur::EntreeSortie, 717},       {NumeroErreur::DisquePlein, 718},
    {NumeroErreur::FinDeFichier, 719},       {NumeroErreur::AccesFichier, 721},
    {NumeroErreur::ContenuInvalide, 725},    {NumeroErreur::ExtensionInconnue, 728},
    {NumeroErreur::DossierIntrouvable, 722}, {NumeroErreur::TypeNonCalcule, 795},
    {NumeroErreur::FichierTropGrand, 726},   {NumeroErreur::ResultatNonFini, 738},
    {NumeroErreur::PointsIncomplets, 794},   {NumeroErreur::BaseIllisible, 730},
    {NumeroErreur::BaseOccupee, 731},        {NumeroErreur::Interruption, 841},
};

} // namespace

std::string SensErreur(const ErreurExecution& erreur) {
    const auto s =
        std::find_if(std::begin(LesSens), std::end(LesSens), [&](const Sens& e) { return e.numero == erreur.numero; });
    if (s == std::end(LesSens)) return Texte(735) + " " + std::to_string(static_cast<int>(erreur.numero));
    return Texte(s->texte) + (erreur.detail.empty() ? "" : " (" + erreur.detail + ")");
}

std::string TexteErreur(const ErreurExecution& erreur) {
    return Texte(708) + " " + std::to_string(static_cast<int>(erreur.numero)) + "\n\n" + SensErreur(erreur);
}
