#include "laws/ChoixLois.h"

#include "data/Textes.h"
#include "laws/CalculLois.h"
#include "laws/LoiMSH.h"
#include "laws/LoisSpeciales.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int TexteVitesseConstante = 213;

constexpr ChoixLoi choix[] = {
    {"QuelLoi", "Image1", "Cycloide", "CYC", "LoiMouv", 107, 107, nullptr, "6.283", "2"},
    {"QuelLoi", "Image2", "Harmonique", "SHM", "LoiMouv", 106, 106, nullptr, "4.935", "1.571"},
    {"QuelLoi", "Image3", "MT", "MT", "LoiMouv", 108, 108, nullptr, "4.888", "2"},
    {"QuelLoi", "Image6", "MTC50", "MTC50", "LoiMouv", 109, 108, " 50% ", "6.517", "1.333"},
    {"QuelLoi", "Image7", "MS", "MS", "LoiMouv", 228, 228, nullptr, "5.528", "1.76"},
    {"QuelLoi", "Image8", "MSC15", "MSC15", "LoiMouv", 94, 228, " 15% ", "5.837", "1.5796"},
    {"QuelLoi", "Image13", "MSC20", "MSC20", "LoiMouv", 95, 228, " 20% ", "5.999", "1.528"},
    {"QuelLoi", "Image9", "MSC25", "MSC25", "LoiMouv", 96, 228, " 25% ", "6.194", "1.479"},
    {"QuelLoi", "Image10", "MSC33", "MSC33", "LoiMouv", 97, 228, " 33% ", "6.616", "1.404"},
    {"QuelLoi", "Image11", "MSC50", "MSC50", "LoiMouv", 98, 228, " 50% ", "8.013", "1.275"},
    {"QuelLoi", "Image12", "MSC66", "MSC66", "LoiMouv", 99, 228, " 66% ", "11.009", "1.168"},
    {"QuelLoi", "Image14", "MSC80", "MSC80", "LoiMouv", 100, 228, " 80% ", "17.192", "1.094"},
    {"QuelLoi", "Image15", "MSPerso", NomLoiSpe, "LoiMouv", 104, 228, " ", "", ""},
    {"QuelLoiSpe", "Image3", "MSH", "MSH", "LoiMouv", 110, 110, nullptr, "", ""},
    {"QuelLoiSpe", "Image4", "MSHC20", "MSHC20", "LoiMouv", 111, 110, " 20% ", "", ""},
    {"QuelLoiSpe", "Image5", "MSHC33", "MSHC33", "LoiMouv", 112, 110, " 33% ", "", ""},
    {"QuelLoiSpe", "Image6", "MSHC50", "MSHC50", "LoiMouv", 113, 110, " 50% ", "", ""},
    {"QuelLoiSpe", "Image7", "MSHDissyme", nullptr, "LoiMSHDis", 114, 0, nullptr, "", ""},
    {"QuelLoiSpe", "Image2", "Liquides", nullptr, "LoisLiq", 115, 0, nullptr, "", ""},
    {"QuelLoiSpe", "Image8", "AvanceRapide", nullptr, "LoiSpe", 116, 0, nullptr, "", ""},
    {"QuelLoiSpe", "Image1", "Hesser", nullptr, "LoiHes", 117, 0, nullptr, "", ""},
};

// Inputs that show a special law at its most typical.
constexpr double ExcentriciteImage = 0.125;
constexpr double PartAngleImage = 0.5, PartSortieImage = 0.8;
constexpr double RapportDescenteImage = 1.6;

template <class Evalue> Tableau<PointLoi> Tabule(long pas, const Evalue& evalue) {
    Tableau<PointLoi> table;
    table.Redimensionne(pas);
    for (long i = 0; i <= pas; ++i) table[i] = evalue(static_cast<double>(i) / static_cast<double>(pas));
    return table;
}

/// Rise and return over the whole table; both are per unit of the rise, so that their curves join.
template <class Montee, class Descente>
Tableau<PointLoi> TabuleAllerRetour(long pas, double e, const Montee& montee, const Descente& descente) {
    return Tabule(pas, [&](double x) {
        const double total = x * (1.0 + e);
        return total <= 1.0 ? montee(total) : descente((total - 1.0) / e);
    });
}

Tableau<PointLoi> TableCatalogue(const Loi& ligne, long pas) {
    if (!ligne.NomLoi.starts_with("MSH")) {
        Loi loi = ligne;
        Tableau<PointLoi> table;
        RemplitTable(loi, 0.5, static_cast<double>(pas), table);
        return table;
    }
    const Loi montee = PartsMSH(ligne);
    const auto aller = [&](double x) { return EvalueMonteeMSH(montee, x); };
    return TabuleAllerRetour(pas, 1.0, aller, [&](double z) {
        const PointLoi p = aller(1.0 - z);
        return PointLoi{p.Course, -p.Vitesse, p.Accel};
    });
}

/// Unit law of a special study's picture.
Tableau<PointLoi> TableSpeciale(std::string_view ecran, long pas) {
    if (ecran == "LoiHes") return Tabule(pas, EvalueHesser);
    if (ecran == "LoiSpe") {
        const AvanceRapide loi = PrepareAvanceRapide(PartAngleImage, PartSortieImage);
        return Tabule(pas, [&](double x) { return EvalueAvanceRapide(loi, x); });
    }
    if (ecran == "LoisLiq") {
        const LoiLiquide loi = PrepareLiquide(ExcentriciteImage);
        return Tabule(pas, [&](double x) { return EvalueLiquide(loi, x); });
    }
    const LoiMSHDissyme loi = PrepareMSHDissyme(RapportDescenteImage);
    return TabuleAllerRetour(
        pas, loi.e, [&](double x) { return EvalueMonteeMSH(loi.montee, x); },
        [&](double z) { return EvalueDescente(loi, z); });
}

} // namespace

std::span<const ChoixLoi> LesChoixLois() {
    return choix;
}

const ChoixLoi* TrouveChoixLoi(std::string_view cle) {
    const auto trouve =
        std::find_if(std::begin(choix), std::end(choix), [&](const ChoixLoi& c) { return cle == c.cle; });
    return trouve == std::end(choix) ? nullptr : trouve;
}

int TexteLoi(std::string_view loi) {
    if (loi == NomLoiFichier) return 279;
    const auto trouve = std::find_if(std::begin(choix), std::end(choix),
                                     [&](const ChoixLoi& c) { return c.loi != nullptr && loi == c.loi; });
    return trouve == std::end(choix) ? 0 : trouve->texte;
}

std::string TitreLoiChoisie() {
    const auto trouve = std::find_if(std::begin(choix), std::end(choix), [](const ChoixLoi& c) {
        return c.loi != nullptr && etude.lois.LoiChoisie == c.loi;
    });
    if (trouve == std::end(choix)) return etude.lois.LoiChoisie;
    const std::string& famille = Texte(trouve->famille);
    return trouve->part == nullptr ? famille : famille + trouve->part + Texte(TexteVitesseConstante);
}

Tableau<PointLoi> TableChoix(const ChoixLoi& c, const Tableau<Loi>& catalogue, long pas) {
    if (c.loi == nullptr) return TableSpeciale(c.ecran, pas);
    for (const Loi& ligne : catalogue)
        if (ligne.NomLoi == c.loi) return TableCatalogue(ligne, pas);
    return {};
}
