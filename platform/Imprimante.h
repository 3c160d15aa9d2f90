// The printer: a head that walks down the page line by line in a fixed-pitch font, and surfaces to draw on in
// millimetres. Positions run right and down from the upper left corner of the printable area.
#pragma once

#include "platform/Dessin.h"

#include <memory>
#include <string>

enum class OrientationPage { Portrait, Paysage };

class Imprimante {
public:
    virtual ~Imprimante() = default;

    /// Font of the text that follows. @param taille points
    virtual void Police(const std::string& nom, double taille) = 0;
    virtual void Taille(double points) = 0;
    virtual void Gras(bool gras) = 0;
    virtual void Souligne(bool souligne) = 0;

    /// Takes effect on the next page that is opened.
    virtual void Oriente(OrientationPage orientation) = 0;

    /// Makes room for that many lines of that many characters of the present font on a page: line spacing is squeezed
    /// as far as the page asks for, and on a page too small even so the text is reduced.
    virtual void CadreTexte(int lignes, int colonnes) = 0;

    /// Prints a text where the head stands and stays on the line.
    virtual void Ecrit(const std::string& texte) = 0;
    /// Ends the line: the head goes to the start of the next one.
    virtual void TermineLigne() = 0;
    /// Height of the head on the page, mm.
    virtual double Tete() const = 0;
    /// Puts the head at the start of a line whose top is at `y` mm.
    virtual void PlaceTete(double y) = 0;
    /// Width of a text in the present font, mm.
    virtual double LargeurTexte(const std::string& texte) const = 0;

    /// Size of the printable area, mm.
    virtual double Largeur() const = 0;
    virtual double Hauteur() const = 0;

    /// A surface whose upper left corner is at `coin` (mm) and that is so many mm wide and high, for the life of the
    /// object and of the page. @param unite its unit of length, mm
    virtual std::unique_ptr<Dessin> Feuille(PointDessin coin, double largeur, double hauteur, double unite = 1) = 0;

    /// Number of the present page, from 1.
    virtual int Page() const = 0;
    /// Ends the page. A page on which nothing was printed is not put out, neither here nor at the end of the document.
    virtual void NouvellePage() = 0;
    virtual void FinDocument() = 0;
};
