// The point-to-point tables. Their units are the same in every language.
#include "core/ValeurPoint.h"
#include "cylindrical/DonneesCyl.h"
#include "data/Textes.h"
#include "reports/TableRapport.h"
#include "studies/RapportsCames.h"
#include "studies/TypesEtude.h"

#include <span>

namespace {

constexpr const char* MasqueMouvement = "###.00";

struct ColonneRapport {
    int titre;                    ///< text number
    const char* unite;            ///< as it stands on the page
    double (*valeur)(long point); ///< none for a column that has only its heading
    const char* masque;
    int largeur; ///< characters, the blank before the value included
};

constexpr int Angle = 706, Rayon = 247, Vitesse = 790, Accel = 707, Bras = 217, Force = 251, Couple = 252;

constexpr ColonneRapport colonneAngle{Angle, "", DuPoint<&Point::Angle>, MasqueMouvement, 6};
constexpr ColonneRapport colonneRayon{Rayon, "mm", DuPoint<&Point::Rayon>, MasqueMouvement, 7};
constexpr ColonneRapport colonneVitesse{Vitesse, "m/sec", DuPoint<&Point::VitesseRayon>, MasqueMouvement, 9};
constexpr ColonneRapport colonneAccel{Accel, "m/sec²", DuPoint<&Point::AccelRayon>, MasqueMouvement, 9};

constexpr ColonneRapport colonnesAngulaire[] = {
    colonneAngle,
    colonneRayon,
    colonneVitesse,
    colonneAccel,
    {Bras, "", DuMouvement<&PointLoi::Course>, MasqueMouvement, 8},
    {Vitesse, "rad/sec", DuMouvement<&PointLoi::Vitesse>, MasqueMouvement, 8},
    {Accel, "rad/sec²", DuMouvement<&PointLoi::Accel>, MasqueMouvement, 10},
};
constexpr ColonneRapport colonnesLineaire[] = {
    colonneAngle,
    colonneRayon,
    {Vitesse, "m/sec", DuPoint<&Point::VitesseRayon>, MasqueMouvement, 11},
    {Accel, "m/sec²", DuPoint<&Point::AccelRayon>, MasqueMouvement, 11},
};
constexpr ColonneRapport colonneHauteur{TexteHauteurCourte, "mm", DuPoint<&Point::Rayon>, MasqueMouvement, 7};
constexpr ColonneRapport colonnesCylindrique[] = {colonneAngle, colonneHauteur, colonneVitesse, colonneAccel};
// Kept on purpose: the heading names the arm, the rows end before it.
constexpr ColonneRapport colonnesOscillation[] = {
    colonneAngle,
    colonneHauteur,
    colonneVitesse,
    colonneAccel,
    {Bras, "", nullptr, "", 8},
    {Vitesse, "rad/sec", nullptr, "", 8},
    {Accel, "rad/sec²", nullptr, "", 10},
};
constexpr const char* MasqueConjugues = "###.000";
constexpr ColonneRapport colonnesConjugues[] = {
    {Bras, "", DuMouvement<&PointLoi::Course>, MasqueConjugues, 9},
    {Vitesse, "rad/sec", DuMouvement<&PointLoi::Vitesse>, MasqueConjugues, 12},
    {Accel, "rad/sec²", DuMouvement<&PointLoi::Accel>, MasqueConjugues, 14},
};
constexpr ColonneRapport colonnesForces[] = {
    colonneAngle,
    {Force, "N", DuPoint<&Point::ForceGalet>, "#####.00", 10},
    {Couple, "Nm", DuPoint<&Point::Couple>, "####.00", 11},
};

TableTexte TablePoints(std::span<const ColonneRapport> colonnes) {
    TableTexte table{{}, etude.resultats.NombrePoints + 1};
    for (const ColonneRapport& c : colonnes)
        table.colonnes.push_back(ColonneNombres(Texte(c.titre), c.unite, c.valeur, c.masque, c.largeur));
    return table;
}

void ImprimePoints(const TableTexte& table, int titre, const std::string& note = {}) {
    // Kept on purpose: a plain truncation, so that the last page may bear a number above the total.
    const double pages = Int((table.lignes - 1 + 8) / 61.0);
    ImprimeRapportTable(TirageCames(), etude.donnees.NomFichier, TitreCame(titre), table, static_cast<int>(pages),
                        note);
}

} // namespace

TableTexte PointsMouvementAngulaire() {
    return TablePoints(colonnesAngulaire);
}
TableTexte PointsMouvementLineaire() {
    return TablePoints(colonnesLineaire);
}
TableTexte PointsMouvementCylindrique() {
    return TablePoints(colonnesCylindrique);
}
TableTexte PointsMouvementOscillation() {
    return TablePoints(colonnesOscillation);
}

TableTexte PointsConjugues() {
    const TypeEtude& type = LeTypeEtude();
    TableTexte table;
    for (const ColonneRapport& c : colonnesConjugues)
        table.colonnes.push_back(ColonneNombres(Texte(c.titre), c.unite, DeCame(0, c.valeur), c.masque, c.largeur));
    for (std::size_t rang = 0; rang < type.passes.size(); ++rang)
        table.colonnes.push_back(ColonneNombres(Texte(type.passes[rang].distance), "mm",
                                                DeCame(rang, DuPoint<&Point::Rayon>), MasqueConjugues, 12));
    table.lignes = etude.passes.at(0).resultats.NombrePoints + 1;
    return table;
}

void ImprimePointsMouvement() {
    const RapportsEtude& rapports = LeTypeEtude().rapports;
    ImprimePoints(rapports.pointsMouvement(), TitrePointsMouvement,
                  rapports.notePoints == 0 ? std::string() : Texte(rapports.notePoints));
}

void ImprimePointsForces() {
    ImprimePoints(TablePoints(colonnesForces), TitrePointsForces);
}
