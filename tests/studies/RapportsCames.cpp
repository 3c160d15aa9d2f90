#include "studies/RapportsCames.h"

#include "cams/Pente.h"
#include "outils/Catalogue.h"
#include "outils/DialoguesScript.h"
#include "outils/ImprimanteNotee.h"
#include "studies/FichierEtude.h"
#include "studies/TypesEtude.h"

#include <cmath>
#include <sstream>

namespace {

using Textes = std::vector<std::string>;

class RapportsCames : public AvecCatalogue {
protected:
    DialoguesScript dialogues;
    ImprimanteNotee imprimante;

    void Calcule(const char* type, double vitesse = 300, std::int16_t pointsParDegre = 1) {
        etude.donnees.TypeCame = type;
        etude.donnees.NomFichier = "Essai";
        etude.donnees.CoteA = 100;
        etude.donnees.CoteB = 65;
        etude.donnees.RayonO1A = 120;
        etude.donnees.RayonO1P = 100;
        etude.donnees.AnglePO1A = 50;
        etude.donnees.RayonGalet = 16;
        etude.donnees.VitesseCame = vitesse;
        etude.donnees.MasseBrasO1A = 1.2;
        etude.donnees.MasseBrasO1P = 0.9;
        etude.donnees.MasseA = 2.5;
        etude.donnees.ForceY = -120;
        etude.donnees.EpaisseurCame = 20;
        etude.donnees.PointsParDegre = pointsParDegre;
        const bool bras = etude.donnees.TypeCame == "Angulaire";
        const double bas = bras ? 5 : 45, haut = bras ? 25 : 80;
        PoseZones({{bas, haut, 110, "MS"}, {haut, haut, 60, "MS"}, {haut, bas, 120, "MS"}, {bas, bas, 70, "MS"}});
        CalculeEtude();
        ASSERT_TRUE(SansErreur());
    }

    void Imprime(std::initializer_list<MarqueImpression> voulues) {
        MarquesImpression marques{};
        for (const MarqueImpression marque : voulues) marques.at(static_cast<std::size_t>(marque)) = true;
        ImprimeRapportsCames(imprimante, marques);
    }

    Textes ToutesLesLignes() const {
        Textes toutes;
        for (const auto& page : imprimante.pages)
            for (const std::string& ligne : page.Textes()) toutes.push_back(ligne);
        return toutes;
    }

    /// The rows of a printed table, as numbers, and the width that they all have.
    std::vector<std::vector<double>> Tableau(int largeur) const {
        std::vector<std::vector<double>> rangees;
        for (const std::string& ligne : ToutesLesLignes()) {
            const auto chiffre = ligne.find_first_not_of(' ');
            if (chiffre == std::string::npos || std::string(".-0123456789").find(ligne[chiffre]) == std::string::npos)
                continue;
            EXPECT_EQ(NombreCaracteres(ligne), largeur) << ligne;
            std::istringstream flux(ligne);
            rangees.emplace_back();
            for (std::string mot; flux >> mot;) rangees.back().push_back(Val(mot));
        }
        return rangees;
    }

    /// The strokes of one colour on a page that have more points than an axis.
    static std::vector<std::vector<PointDessin>> Courbes(const ImprimanteNotee::Feuillet& page, Couleur couleur) {
        std::vector<std::vector<PointDessin>> courbes;
        for (const auto& trace : page.traces)
            if (trace.couleur == couleur && trace.points.size() > 10) courbes.push_back(trace.points);
        return courbes;
    }
};

bool Contient(const Textes& lignes, const std::string& debut, const std::string& fin) {
    return std::any_of(lignes.begin(), lignes.end(), [&](const std::string& ligne) {
        const std::string texte = Trim(ligne);
        return texte.starts_with(debut) && texte.ends_with(fin);
    });
}

constexpr double CentiemeArrondi = 0.005 + 1e-9;

} // namespace

TEST_F(RapportsCames, TheSevenReportsComeInTheirOrderAndEachOnItsOwnPages) {
    Calcule("Angulaire");
    using M = MarqueImpression;
    Imprime({M::Profil, M::Donnees, M::GraphiqueForces, M::GraphiqueMouvement, M::PointsForces, M::PointsMouvement,
             M::PointsRemarquables});
    Textes titres;
    for (const auto& page : imprimante.pages)
        if (page.lignes.size() > 4 && page.lignes[1].Texte().find("Essai") != std::string::npos)
            titres.push_back(Trim(page.lignes[3].Texte()));
    EXPECT_EQ(titres, (Textes{"Données du profil", "Valeurs remarquables", "Profil de la came", "Graphiques",
                              "Graphiques", "Graphiques", "Point à point Mouvement", "Point à point Forces"}));
    EXPECT_TRUE(imprimante.fini);
    EXPECT_TRUE(imprimante.portrait);
    for (const auto& page : imprimante.pages) EXPECT_FALSE(page.Vide());
}

TEST_F(RapportsCames, NoMarkPrintsNothingAndATranslatingFollowerHasNoArm) {
    Calcule("Lineaire");
    Imprime({});
    EXPECT_TRUE(imprimante.fini);
    EXPECT_TRUE(imprimante.pages.empty());

    imprimante = ImprimanteNotee();
    Imprime({MarqueImpression::GraphiqueMouvement, MarqueImpression::PointsRemarquables});
    EXPECT_EQ(imprimante.pages.size(), 2U);
    EXPECT_FALSE(Contient(ToutesLesLignes(), "Bras", ""));
    EXPECT_TRUE(Contient(ToutesLesLignes(), "Rayon came : maxi", "(mm) : 80."));
}

TEST_F(RapportsCames, DataReportHasEveryValueOfTheStudy) {
    Calcule("Angulaire");
    Imprime({MarqueImpression::Donnees});
    ASSERT_EQ(imprimante.pages.size(), 1U);
    const Textes lignes = ToutesLesLignes();
    for (const ChampEtude& champ : TrouveType("Angulaire")->champs)
        EXPECT_TRUE(Contient(lignes, Texte(champ.texte),
                             "(" + Texte(champ.unite) + ") : " + Format(champ.Nombre(etude.donnees), "###.##")))
            << champ.nom;
    const auto rang = [&](const char* debut) {
        return std::find_if(lignes.begin(), lignes.end(), [&](const auto& l) { return Trim(l).starts_with(debut); }) -
               lignes.begin();
    };
    EXPECT_LT(rang("Masses"), rang("y positif"));
    EXPECT_LT(rang("y positif"), rang("Angle pesanteur")) << "the order of the data screen";
    EXPECT_TRUE(Contient(lignes, "Loi", " : MS"));
    EXPECT_TRUE(Contient(lignes, "Temps", " : .06 S."));
    EXPECT_TRUE(Contient(lignes, "Angle (a) final", "(degrés) : 25."));
    EXPECT_EQ(std::count_if(lignes.begin(), lignes.end(), [](const auto& l) { return l.starts_with("Zone n° "); }), 4);
    // The separators stand below each other.
    for (const std::string& ligne : lignes) {
        const auto place = ligne.find(") : ");
        if (place == std::string::npos) continue;
        EXPECT_EQ(NombreCaracteres(ligne.substr(0, place)), 50) << ligne;
    }
}

TEST_F(RapportsCames, RemarkableValuesWithTheirMasksAndAngles) {
    Calcule("Angulaire");
    Imprime({MarqueImpression::PointsRemarquables});
    const Textes lignes = ToutesLesLignes();
    EXPECT_TRUE(Contient(lignes, "Rayon came : mini", "(mm) : " + Format(etude.resultats.RayonMin, "###.###")));
    EXPECT_TRUE(Contient(lignes, "Force maxi sur le galet",
                         "au point " + std::to_string(etude.resultats.ForceGaletMaxAngle) + "°"));
    EXPECT_TRUE(
        Contient(lignes, "Accélération        ", "au point " + std::to_string(etude.durables.LoiAccelMaxAngle) + "°"));
    EXPECT_TRUE(Contient(lignes, "Inertie du bras", "(Kgm²) : " + Format(etude.resultats.InertieBras, "##.#####")));
    EXPECT_NE(etude.resultats.InertieBras, 0);
}

TEST_F(RapportsCames, MotionTableHoldsEveryPoint) {
    Calcule("Angulaire");
    Imprime({MarqueImpression::PointsMouvement});
    const auto rangees = Tableau(57);
    ASSERT_EQ(rangees.size(), 361U);
    for (long i = 0; i <= 360; ++i) {
        const auto& r = rangees[static_cast<std::size_t>(i)];
        const Point& p = etude.resultats.Points[i];
        const PointLoi& m = etude.resultats.Mouvement[i];
        const double attendues[] = {p.Angle, p.Rayon, p.VitesseRayon, p.AccelRayon, m.Course, m.Vitesse, m.Accel};
        ASSERT_EQ(r.size(), std::size(attendues)) << i;
        for (std::size_t c = 0; c < r.size(); ++c) ASSERT_NEAR(r[c], attendues[c], CentiemeArrondi) << i << " " << c;
    }
    ASSERT_EQ(imprimante.pages.size(), 6U);
    for (const auto& page : imprimante.pages) {
        const Textes lignes = page.Textes();
        EXPECT_LE(lignes.size(), 67U);
        EXPECT_EQ(std::count(lignes.begin(), lignes.end(), "           mm    m/sec   m/sec²         rad/sec  rad/sec²"),
                  1);
        // Int((360 + 8) / 61)
        EXPECT_TRUE(lignes.back().ends_with(" / 6")) << lignes.back();
    }
    EXPECT_EQ(imprimante.pages.back().Textes().back(), std::string(40, ' ') + "Page 6 / 6");
}

TEST_F(RapportsCames, UnitsOfTheOtherTablesAndTheTruncatedPageTotal) {
    Calcule("Lineaire", 300, 2);
    Imprime({MarqueImpression::PointsMouvement, MarqueImpression::PointsForces});
    const Textes lignes = ToutesLesLignes();
    EXPECT_GT(std::count(lignes.begin(), lignes.end(), "           mm      m/sec     m/sec²"), 1);
    EXPECT_GT(std::count(lignes.begin(), lignes.end(), "               N         Nm"), 1);
    // Int((720 + 8) / 61) = 11 for twelve pages: the total is a plain truncation.
    ASSERT_EQ(imprimante.pages.size(), 24U);
    EXPECT_EQ(imprimante.pages[11].Textes().back(), std::string(40, ' ') + "Page 12 / 11");
    EXPECT_EQ(imprimante.pages[12].Textes()[66], std::string(40, ' ') + "Page 1 / 11");
}

TEST_F(RapportsCames, AValueTooLongForItsColumnIsNeverCut) {
    Calcule("Angulaire", 12000);
    ASSERT_GT(etude.durables.LoiAccelMax, 500000);
    Imprime({MarqueImpression::PointsMouvement});
    const Textes lignes = ToutesLesLignes();
    const int largeur = NombreCaracteres(lignes[6]);
    EXPECT_GT(largeur, 57);
    EXPECT_EQ(NombreCaracteres(lignes[7]), largeur) << "the units move with their columns";
    const auto rangees = Tableau(largeur);
    ASSERT_EQ(rangees.size(), 361U);
    for (long i = 0; i <= 360; ++i) {
        ASSERT_EQ(rangees[static_cast<std::size_t>(i)].size(), 7U) << i;
        ASSERT_NEAR(rangees[static_cast<std::size_t>(i)][6], etude.resultats.Mouvement[i].Accel, 0.006) << i;
    }
}

TEST_F(RapportsCames, TheProfileHasTheScaleOfItsLastLine) {
    // A cam that fits at 1:1, one of three times its size, and one of a fifth.
    for (const double grandeur : {1.0, 3.0, 0.2}) {
        etude = Etude{};
        ChargeLois();
        imprimante = ImprimanteNotee();
        Calcule("Lineaire");
        for (Zone& zone : etude.donnees.Zones) {
            zone.RayonDepart *= grandeur;
            zone.RayonFinal *= grandeur;
        }
        etude.donnees.RayonGalet *= grandeur;
        CalculeEtude();
        Imprime({MarqueImpression::Profil});
        ASSERT_EQ(imprimante.pages.size(), 1U);
        const std::string ligne = imprimante.pages[0].Textes().back();
        ASSERT_TRUE(ligne.starts_with("Echelle : ")) << ligne;
        const double echelle = Val(ligne.substr(10));
        EXPECT_EQ(echelle, grandeur == 1.0 ? 1 : grandeur == 3.0 ? 0.2 : 5);

        const auto courbes = Courbes(imprimante.pages[0], Couleur::Came);
        ASSERT_EQ(courbes.size(), 2U);
        for (long i = 1; i <= etude.resultats.NombrePoints; ++i) {
            const PointDessin& interieur = courbes[0][static_cast<std::size_t>(i)];
            const PointDessin& exterieur = courbes[1][static_cast<std::size_t>(i)];
            const PointProfil& p = etude.resultats.Profil[i];
            ASSERT_NEAR(interieur.x - courbes[0][0].x, echelle * (p.XInterieur - etude.resultats.Profil[0].XInterieur),
                        1e-9);
            ASSERT_NEAR(exterieur.x - interieur.x, echelle * (p.XExterieur - p.XInterieur), 1e-9);
            ASSERT_NEAR(exterieur.y - interieur.y, -echelle * (p.YExterieur - p.YInterieur), 1e-9) << "y runs up";
            ASSERT_TRUE(exterieur.x > 0 && exterieur.x < 185 && exterieur.y > 20 && exterieur.y < 269) << i;
        }
        // The next larger scale would not fit.
        const auto& e = courbes[1];
        const auto [gauche, droite] =
            std::minmax_element(e.begin(), e.end(), [](PointDessin a, PointDessin b) { return a.x < b.x; });
        EXPECT_GT((droite->x - gauche->x) * 2.5, 179);
    }
}

TEST_F(RapportsCames, ACylindricalCamIsPrintedDevelopedAndUnderItsOwnNames) {
    for (const char* fichier : {"Deux-tours.Cyl", "Balancier.Osc"}) {
        SCOPED_TRACE(fichier);
        etude = Etude{};
        ChargeLois();
        ASSERT_TRUE(LitFichierEtude(CheminAppli / NomDossierEtudes / fichier));
        CalculeEtude();
        const bool bras = etude.donnees.TypeCame == "Oscillation";
        imprimante = ImprimanteNotee();
        Imprime({MarqueImpression::Profil});
        const auto& page = imprimante.pages.front();
        EXPECT_EQ(page.Textes().back(), Texte(488) + " : 0.5") << "down the page, where it is larger";
        const auto courbes = Courbes(page, Couleur::Came);
        ASSERT_EQ(courbes.size(), bras ? 2u : 4u) << "both flanks of every turn";
        const auto& interieur = courbes.front();
        for (long i = 0; i < 700; ++i) {
            const PointProfil& p = etude.resultats.Profil[i];
            ASSERT_NEAR(interieur[static_cast<std::size_t>(i)].y - interieur[0].y,
                        0.5 * (p.XInterieur - etude.resultats.Profil[0].XInterieur), 1e-9);
        }
        const auto tour = Format(Pi * etude.donnees.DiametreCame, "####.00");
        EXPECT_TRUE(std::any_of(page.etiquettes.begin(), page.etiquettes.end(), [&](const auto& etiquette) {
            return etiquette.texte == tour;
        })) << tour;

        imprimante = ImprimanteNotee();
        Imprime({MarqueImpression::PointsMouvement});
        EXPECT_EQ(imprimante.pages.front().Textes()[7],
                  bras ? "           mm    m/sec   m/sec²         rad/sec  rad/sec²"
                       : "           mm    m/sec   m/sec²");
        EXPECT_EQ(NombreCaracteres(imprimante.pages.front().Textes()[9]), 31) << "no row under the heading of the arm";

        imprimante = ImprimanteNotee();
        Imprime(
            {MarqueImpression::Donnees, MarqueImpression::PointsRemarquables, MarqueImpression::GraphiqueMouvement});
        EXPECT_EQ(imprimante.pages.size(), bras ? 4u : 3u) << "a graph of the arm only where there is one";
        std::string texte;
        for (const std::string& ligne : ToutesLesLignes()) texte += ligne + "\n";
        EXPECT_NE(texte.find(Format(etude.resultats.CoupleDemarrage, "###.##") + " 0.25 sec"), std::string::npos);
        EXPECT_NE(texte.find(Format(PenteMaxi(), "##.##")), std::string::npos);
        std::size_t place = 0;
        for (const int libelle :
             bras ? std::vector{400, 155, 394, 123, 157, 239, 240} : std::vector{157, 123, 394, 395}) {
            place = texte.find(" " + Texte(libelle), place);
            EXPECT_NE(place, std::string::npos) << "in the order of its data screen: " << Texte(libelle);
        }
        EXPECT_EQ(texte.find(Texte(221)), std::string::npos) << "no radius of a plane cam";
    }
}

TEST_F(RapportsCames, GraphsFillTheirBoxesToScale) {
    Calcule("Angulaire");
    Imprime({MarqueImpression::GraphiqueMouvement});
    ASSERT_EQ(imprimante.pages.size(), 2U);
    const auto& bras = imprimante.pages[1];
    const double maxima[] = {etude.durables.LoiCourseMax, etude.durables.LoiVitesseMax, etude.durables.LoiAccelMax};
    const Couleur couleurs[] = {Couleur::Courbe1, Couleur::Courbe2, Couleur::Courbe3};
    double PointLoi::*const membres[] = {&PointLoi::Course, &PointLoi::Vitesse, &PointLoi::Accel};
    for (int c = 0; c < 3; ++c) {
        const auto courbes = Courbes(bras, couleurs[c]);
        ASSERT_EQ(courbes.size(), 1U);
        const double zero = 70 + 80 * c;
        for (long i = 0; i <= 360; ++i) {
            const PointDessin& p = courbes[0][static_cast<std::size_t>(i)];
            ASSERT_NEAR(p.x, 20 + 160.0 * static_cast<double>(i) / 360, 1e-9);
            ASSERT_NEAR(zero - p.y, 30 * etude.resultats.Mouvement[i].*membres[c] / maxima[c], 1e-9);
        }
    }
    const auto etiquette = [&](const std::string& texte) {
        return std::any_of(bras.etiquettes.begin(), bras.etiquettes.end(),
                           [&](const auto& e) { return e.texte == texte; });
    };
    EXPECT_TRUE(etiquette(Format(etude.durables.LoiVitesseMax, "###.##")));
    EXPECT_TRUE(etiquette("-" + Format(etude.durables.LoiAccelMax, "###.##")));
    EXPECT_TRUE(etiquette(" rad/sec²"));
    EXPECT_TRUE(etiquette("360"));
    EXPECT_TRUE(etiquette("Angle came (degrés)"));
    for (const auto& e : bras.etiquettes) EXPECT_GE(e.place.x, 0) << e.texte;
}

TEST_F(RapportsCames, DrawingsStayOnASmallerPaper) {
    Calcule("Angulaire");
    for (const auto& [largeur, hauteur] : {std::pair{190.9, 259.4}, std::pair{123.0, 190.0}}) { // letter, A5
        imprimante = ImprimanteNotee();
        imprimante.largeur = largeur;
        imprimante.hauteur = hauteur;
        Imprime({MarqueImpression::Profil, MarqueImpression::GraphiqueMouvement, MarqueImpression::GraphiqueForces});
        for (const auto& page : imprimante.pages)
            for (const auto& trace : page.traces)
                for (const PointDessin& p : trace.points)
                    ASSERT_TRUE(p.x >= 0 && p.x <= largeur && p.y >= 0 && p.y <= hauteur) << p.x << " " << p.y;
    }
}

TEST_F(RapportsCames, ACurveOfZerosIsDrawnOnItsAxis) {
    Calcule("Lineaire");
    for (Point& point : etude.resultats.Points) point.Couple = 0;
    etude.resultats.CoupleMax = 0;
    Imprime({MarqueImpression::GraphiqueForces});
    const auto courbes = Courbes(imprimante.pages[0], Couleur::Courbe2);
    ASSERT_EQ(courbes.size(), 1U);
    for (const PointDessin& p : courbes[0]) ASSERT_EQ(p.y, 150);
}

TEST_F(RapportsCames, APrinterThatFailsEndsTheRun) {
    Calcule("Angulaire");
    imprimante.pannePage = 2;
    EXPECT_THROW(Imprime({MarqueImpression::PointsMouvement}), ErreurExecution);
    EXPECT_FALSE(imprimante.fini);
    EXPECT_THROW(ImprimanteEnCours(), ErreurExecution) << "the run is over";
    EXPECT_EQ(etude.resultats.Points.BorneHaute(), 360) << "the study is as it was";
}
