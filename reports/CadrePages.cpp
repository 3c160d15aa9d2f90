#include "reports/CadrePages.h"

#include "core/Nombres.h"
#include "data/Textes.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <utility>

namespace {

constexpr const char* PoliceRapports = "Courier New";
constexpr int LignesPied = 2; ///< an empty line and the foot line

constexpr int TexteDate = 383, TextePage = 413, TexteJanvier = 778;

} // namespace

Tirage::Tirage(Imprimante& imprimante, FormatPage format) : imprimante_(imprimante), format_(std::move(format)) {
    imprimante_.Oriente(format_.orientation);
    imprimante_.Police(PoliceRapports, format_.taille);
    imprimante_.CadreTexte(format_.lignes + (format_.pied ? LignesPied : 0), format_.colonnes);
}

void Tirage::DebutRapport(int pages) {
    numeroLigne_ = 0;
    numeroPage_ = 0;
    enTeteTable_ = nullptr;
    AnnoncePages(pages);
    enTeteDu_ = true;
    EntamePage();
    lignesEnTete_ = numeroLigne_;
}

void Tirage::AnnoncePages(int pages) {
    nombrePages_ = Entier16(pages);
}

int Tirage::PagesJusqua(int lignes, int tete) const {
    const int premiere = format_.lignes - numeroLigne_;
    return lignes < premiere ? 1 : 2 + (lignes - premiere) / (format_.lignes - lignesEnTete_ - tete);
}

void Tirage::Ligne(const std::string& texte, bool gras, bool souligne) {
    EntamePage();
    imprimante_.Gras(gras);
    imprimante_.Souligne(souligne);
    imprimante_.Ecrit(texte);
    imprimante_.TermineLigne();
    imprimante_.Gras(false);
    imprimante_.Souligne(false);
    numeroLigne_ = Entier16(numeroLigne_ + 1);
    if (numeroLigne_ >= format_.lignes) TournePage();
}

void Tirage::TournePage() {
    numeroLigne_ = 0;
    numeroPage_ = Entier16(numeroPage_ + 1);
    EcritPied(numeroPage_);
    imprimante_.NouvellePage();
    enTeteDu_ = true;
    if (enTeteTable_) enTeteTable_();
}

void Tirage::EntamePage() {
    if (!std::exchange(enTeteDu_, false)) return;
    if (format_.enTete) format_.enTete(*this);
}

void Tirage::Reserve(int lignes) {
    if (numeroLigne_ + lignes > format_.lignes) TournePage();
}

void Tirage::EcritPied(int numeroPage) {
    if (!format_.pied) return;
    imprimante_.TermineLigne();
    imprimante_.Ecrit(Espaces(40) + Texte(TextePage) + std::to_string(numeroPage) + " / " +
                      std::to_string(nombrePages_));
    imprimante_.TermineLigne();
}

void Tirage::FinRapport(bool pied) {
    enTeteTable_ = nullptr;
    if (pied) EcritPied(Entier16(numeroPage_ + 1));
    imprimante_.NouvellePage();
    numeroLigne_ = 0;
}

void Tirage::Titre(const std::string& nom, const std::string& titre) {
    constexpr int marge = 30;
    Ligne();
    imprimante_.Taille(format_.tailleTitre);
    imprimante_.Gras(true);
    const std::string date = "  " + Texte(TexteDate) + DateDuJour();
    // A long name moves to the left, and is cut when even so it does not fit before the date.
    const int place =
        static_cast<int>(Int(imprimante_.Largeur() / imprimante_.LargeurTexte("0"))) - 5 - NombreCaracteres(date);
    const std::string nomCoupe = NomCoupe(nom, place);
    imprimante_.Ecrit(Espaces(std::min(marge, place - NombreCaracteres(nomCoupe))));
    imprimante_.Souligne(true);
    imprimante_.Ecrit(nomCoupe);
    imprimante_.Souligne(false);
    imprimante_.Gras(false);
    imprimante_.Ecrit(Espaces(5));
    imprimante_.Ecrit(date);
    imprimante_.TermineLigne();
    numeroLigne_ = Entier16(numeroLigne_ + 1);
    Ligne();
    Ligne(titre + Espaces(20), true);
    imprimante_.Taille(format_.taille);
}

void ImprimeRapportLignes(Tirage& tirage, const std::string& nom, const std::string& titre,
                          std::span<const LigneRapport> lignes) {
    tirage.DebutRapport();
    tirage.Titre(nom, titre);
    tirage.Ligne();
    tirage.Ligne();
    // A page that the last line fills turns without another one to follow.
    const int pages = tirage.PagesJusqua(static_cast<int>(lignes.size()) - 1);
    tirage.AnnoncePages(pages);
    for (const LigneRapport& ligne : lignes) tirage.Ligne(ligne.texte, ligne.gras, ligne.souligne);
    tirage.FinRapport(pages > 1 && tirage.NumeroLigne() > 0);
}

std::string DateLongue(int jour, int mois, int annee) {
    return Format(jour, "00") + " " + Texte(TexteJanvier + mois - 1) + " " + Format(annee, "0000");
}

std::string DateDuJour() {
    const std::time_t maintenant = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    const std::tm* date = std::localtime(&maintenant);
    return DateLongue(date->tm_mday, date->tm_mon + 1, date->tm_year + 1900);
}
