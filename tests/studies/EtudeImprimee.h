// A study that is calculated and printed, for the tests of the reports.
#pragma once

#include "outils/Catalogue.h"
#include "outils/DialoguesScript.h"
#include "outils/ImprimanteNotee.h"
#include "studies/FichierEtude.h"
#include "studies/RapportsCames.h"

class EtudeImprimee : public AvecCatalogue {
protected:
    DialoguesScript dialogues;
    ImprimanteNotee imprimante;

    /// Calculates a study that is delivered with the program, at that many points a degree.
    void Calcule(const char* fichier, std::int16_t pointsParDegre = 1) {
        etude = Etude{};
        ChargeLois();
        ASSERT_TRUE(LitFichierEtude(CheminAppli / NomDossierEtudes / fichier));
        etude.donnees.NomFichier = "Essai";
        etude.donnees.PointsParDegre = pointsParDegre;
        CalculeEtude();
        ASSERT_TRUE(SansErreur());
    }
    /// Prints on new paper.
    void Imprime(std::initializer_list<MarqueImpression> voulues) {
        MarquesImpression marques{};
        for (const MarqueImpression marque : voulues) marques.at(static_cast<std::size_t>(marque)) = true;
        const double largeur = imprimante.largeur, hauteur = imprimante.hauteur;
        const int panne = imprimante.pannePage;
        imprimante = {};
        imprimante.largeur = largeur, imprimante.hauteur = hauteur, imprimante.pannePage = panne;
        ImprimeRapportsCames(imprimante, marques);
    }
    std::vector<std::string> Lignes() const {
        std::vector<std::string> toutes;
        for (const auto& page : imprimante.pages)
            for (const std::string& ligne : page.Textes()) toutes.push_back(ligne);
        return toutes;
    }
    std::string TexteImprime() const {
        std::string texte;
        for (const std::string& ligne : Lignes()) texte += ligne + "\n";
        return texte;
    }
    /// The strokes of one colour on a page that have more points than an axis.
    std::vector<std::vector<PointDessin>> Courbes(Couleur couleur, std::size_t page = 0) const {
        std::vector<std::vector<PointDessin>> courbes;
        for (const auto& trace : imprimante.pages.at(page).traces)
            if (trace.couleur == couleur && trace.points.size() > 10) courbes.push_back(trace.points);
        return courbes;
    }
};
