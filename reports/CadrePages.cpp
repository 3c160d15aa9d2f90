#include "reports/CadrePages.h"

#include "core/Etude.h"
#include "core/Nombres.h"
#include "data/Textes.h"

#include <algorithm>
#include <chrono>
#include <ctime>

Impression impression;

namespace {

constexpr const char* PoliceRapports = "Courier New";
constexpr double TailleRapports = 11, TailleTitre = 12; // points

/// A full page: the line that turns it, an empty line, the foot line.
constexpr int LignesPapier = LignesPage + 3;
/// The widest line: a remarkable value with its angle, or a table with columns that a large value widens.
constexpr int ColonnesPapier = 78;

constexpr int TexteDate = 383, TextePage = 413, TexteJanvier = 778;

Imprimante* enCours = nullptr;
std::array<ProcedureEnTete, 3> enTetesEnCours{};

std::string DateDuJour() {
    const std::time_t maintenant = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    const std::tm* date = std::localtime(&maintenant);
    return DateLongue(date->tm_mday, date->tm_mon + 1, date->tm_year + 1900);
}

/// Byte at which character number `rang` of a text begins.
std::size_t DebutCaractere(const std::string& texte, int rang) {
    std::size_t octet = 0;
    for (int vus = 0; octet < texte.size(); ++octet)
        if ((texte[octet] & 0xC0) != 0x80 && vus++ == rang) break;
    return octet;
}

/// The name of the study, cut in its middle to so many characters; its end tells the kind of study.
std::string NomCoupe(const std::string& nom, int caracteres) {
    const int longueur = NombreCaracteres(nom);
    if (longueur <= caracteres) return nom;
    const int fin = std::min(4, caracteres / 2);
    return DebutTexte(nom, caracteres - fin - 1) + "…" + nom.substr(DebutCaractere(nom, longueur - fin));
}

void TournePage() {
    ImprimePiedDePage(impression.NumeroPage);
    enCours->NouvellePage();
    const ProcedureEnTete enTete = enTetesEnCours.at(static_cast<std::size_t>(impression.TypeEnTete));
    if (enTete != nullptr) enTete();
}

} // namespace

TirageCames::TirageCames(Imprimante& imprimante, std::array<ProcedureEnTete, 3> enTetes) {
    impression = Impression{};
    enCours = &imprimante;
    enTetesEnCours = enTetes;
    imprimante.Oriente(OrientationPage::Portrait);
    imprimante.Police(PoliceRapports, TailleRapports);
    imprimante.CadreTexte(LignesPapier, ColonnesPapier);
}

TirageCames::~TirageCames() {
    enCours = nullptr;
}

Imprimante& ImprimanteEnCours() {
    if (enCours == nullptr) throw ErreurExecution(NumeroErreur::AppelIncorrect);
    return *enCours;
}

void ImprimeLigneCames(const std::string& texte, bool gras) {
    Imprimante& imprimante = ImprimanteEnCours();
    imprimante.Gras(gras);
    imprimante.Ecrit(texte);
    imprimante.TermineLigne();
    imprimante.Gras(false);
    impression.NumeroLigne = Entier16(impression.NumeroLigne + 1);
    if (impression.NumeroLigne <= LignesPage) return;
    impression.NumeroLigne = 0;
    impression.NumeroPage = Entier16(impression.NumeroPage + 1);
    TournePage();
}

void ImprimePiedDePage(int numeroPage) {
    Imprimante& imprimante = ImprimanteEnCours();
    imprimante.TermineLigne();
    imprimante.Ecrit(Espaces(40) + Texte(TextePage) + std::to_string(numeroPage) + " / " +
                     std::to_string(impression.NombrePages));
    imprimante.TermineLigne();
}

void DebutPageCames(const std::string& titre) {
    DebutPage(etude.donnees.NomFichier, titre);
}

void DebutPage(const std::string& nom, const std::string& titre) {
    constexpr int marge = 30;
    Imprimante& imprimante = ImprimanteEnCours();
    ImprimeLigneCames({});
    imprimante.Taille(TailleTitre);
    imprimante.Gras(true);
    const std::string date = "  " + Texte(TexteDate) + DateDuJour();
    // A long name moves to the left, and is cut when even so it does not fit before the date.
    const int place =
        static_cast<int>(Int(imprimante.Largeur() / imprimante.LargeurTexte("0"))) - 5 - NombreCaracteres(date);
    const std::string nomCoupe = NomCoupe(nom, place);
    imprimante.Ecrit(Espaces(std::min(marge, place - NombreCaracteres(nomCoupe))));
    imprimante.Souligne(true);
    imprimante.Ecrit(nomCoupe);
    imprimante.Souligne(false);
    imprimante.Gras(false);
    imprimante.Ecrit(Espaces(5));
    imprimante.Ecrit(date);
    imprimante.TermineLigne();
    impression.NumeroLigne = Entier16(impression.NumeroLigne + 1);
    ImprimeLigneCames({});
    ImprimeLigneCames(titre + Espaces(20), true);
    imprimante.Taille(TailleRapports);
}

void ImprimeRapportLignes(const std::string& titre, std::span<const LigneRapport> lignes) {
    constexpr int lignesTitre = 6, parPage = LignesPage + 1;
    impression.TypeEnTete = SansEnTete;
    impression.NumeroPage = 0;
    impression.NombrePages = Entier16(Int((static_cast<double>(lignes.size()) + lignesTitre + parPage - 1) / parPage));
    DebutPageCames(titre);
    ImprimeLigneCames({});
    ImprimeLigneCames({});
    for (const LigneRapport& ligne : lignes) ImprimeLigneCames(ligne.texte, ligne.gras);
    const bool pageEntamee = impression.NumeroLigne > 0;
    if (impression.NombrePages > 1 && pageEntamee) ImprimePiedDePage(impression.NumeroPage + 1);
    ImprimanteEnCours().NouvellePage();
}

std::string DateLongue(int jour, int mois, int annee) {
    return Format(jour, "00") + " " + Texte(TexteJanvier + mois - 1) + " " + Format(annee, "0000");
}

int NombreCaracteres(const std::string& texte) {
    return static_cast<int>(
        std::count_if(texte.begin(), texte.end(), [](char octet) { return (octet & 0xC0) != 0x80; }));
}

std::string CadreADroite(const std::string& texte, int largeur) {
    const int manque = largeur - NombreCaracteres(texte);
    return manque >= 0 ? Espaces(manque) + texte : texte.substr(DebutCaractere(texte, -manque));
}

std::string DebutTexte(const std::string& texte, int caracteres) {
    return texte.substr(0, DebutCaractere(texte, std::max(caracteres, 0)));
}
