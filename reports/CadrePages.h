// The page framework of the reports: lines, page turns with foot line and repeated heading, page heading.
#pragma once

#include "platform/Imprimante.h"
#include "reports/Cadrage.h"

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <utility>

class Tirage;

/// What the pages of a print run look like; as it stands, what those of the cams do.
struct FormatPage {
    double taille = 11;      ///< of the text in "Courier New", points
    double tailleTitre = 12; ///< of the first lines of a page heading, points
    int lignes = 65;         ///< lines of a page: the one with this number still prints, then the page turns
    int colonnes = 78;       ///< characters of the widest line that the paper makes room for
    OrientationPage orientation = OrientationPage::Portrait;
    bool pied = true; ///< a page that turns ends in a foot line with its number, below its lines
    /// Prints what every page of a report begins with, the first one too. None: each report prints its own heading on
    /// its first page.
    std::function<void(Tirage&)> enTete;
};

/// A line of a report.
struct LigneRapport {
    std::string texte;
    bool gras = false;
    bool souligne = false;
};

/// A print run in one page format: the reports that it prints, one after the other, and the end of its document.
class Tirage {
public:
    explicit Tirage(Imprimante& imprimante, FormatPage format = {});

    Imprimante& Appareil() { return imprimante_; }

    std::int16_t NumeroLigne() const { return numeroLigne_; } ///< lines printed on the present page
    std::int16_t NumeroPage() const { return numeroPage_; }   ///< pages turned in the present report

    /// Begins a report at the head of a page, with the heading of the format.
    /// @param pages page total of its foot lines
    void DebutRapport(int pages = 0);
    /// The page total, for a report that knows it once its heading is printed.
    void AnnoncePages(int pages);
    /// Pages of a report that has so many lines to print from here on.
    /// @param tete lines that every further page repeats below the heading of the format
    int PagesJusqua(int lignes, int tete = 0) const;

    /// Prints one line. The last one of a page is followed by the foot line, turns the page and repeats the headings.
    void Ligne(const std::string& texte = {}, bool gras = false, bool souligne = false);

    /// Prints the heading of a report: the name of what is reported, the date of the day, and `titre`.
    void Titre(const std::string& nom, const std::string& titre);

    /// What a page begins with at once when it turns, below the heading of the format; nothing for none.
    void RepeteEnTete(std::function<void()> enTete) { enTeteTable_ = std::move(enTete); }

    /// Ends the present page, whatever room it has left. The heading of the next one waits for its first line, so that
    /// no page is put out for its heading alone.
    void TournePage();
    /// Prints that heading where it still waits, for a page that begins with a drawing.
    void EntamePage();
    /// Turns the page unless so many lines still fit on it.
    void Reserve(int lignes);

    /// Ends the last page of a report, with a foot line of its own or without.
    void FinRapport(bool pied);

    void FinDocument() { imprimante_.FinDocument(); }

private:
    void EcritPied(int numeroPage);

    Imprimante& imprimante_;
    FormatPage format_;
    std::function<void()> enTeteTable_;
    bool enTeteDu_ = false; ///< the heading of the format waits for the first line
    int lignesEnTete_ = 0;  ///< that it takes
    std::int16_t numeroLigne_ = 0, numeroPage_ = 0, nombrePages_ = 0;
};

/// Prints a whole report of lines: heading, lines, and its pages numbered when they are more than one.
void ImprimeRapportLignes(Tirage& tirage, const std::string& nom, const std::string& titre,
                          std::span<const LigneRapport> lignes);

/// A date as "dd mmmm yyyy", the month in the working language. @param mois 1..12
std::string DateLongue(int jour, int mois, int annee);

/// The date of the day, in that form.
std::string DateDuJour();
