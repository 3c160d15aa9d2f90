#include "indexers/SourceLoi.h"

#include "core/FichierEntier.h"
#include "core/Lignes.h"
#include "data/Textes.h"
#include "indexers/TextesIndexeurs.h"
#include "laws/FichierLoi.h"

#include <cmath>

namespace {

/// Within this of a whole share the typed tenths have met it.
constexpr double EcartPart = 1e-9;

constexpr int TexteCoefs = 551;

} // namespace

double CoefD(const SourceLoi& source) {
    const double d = 1.0 - source.CoefA - source.CoefB - source.CoefC;
    for (const double part : {0.0, 1.0})
        if (std::abs(d - part) <= EcartPart) return part;
    return d;
}

std::string TexteFauteD(double d, double maximum) {
    if (d >= 0.0 && d <= maximum) return {};
    std::string texte = Texte(TexteCoefs);
    if (d > maximum && d <= 1.0) texte += "\n" + Texte(TexteDMaximum) + " " + TexteCourt(maximum) + ".";
    return texte;
}

std::optional<FauteSaisie> ChercheFauteCoefs(const SourceLoi& source, double maximum) {
    if (!source.Speciale()) return {};
    const std::string faute = TexteFauteD(CoefD(source), maximum);
    if (faute.empty()) return {};
    return FauteSaisie{"CoefA", faute, Icone::Critique};
}

Loi LoiDeSource(const SourceLoi& source, const Tableau<Loi>& lois) {
    Loi loi;
    loi.NomLoi = source.NomLoi;
    if (source.Speciale()) {
        loi.CoefA = source.CoefA;
        loi.CoefB = source.CoefB;
        loi.CoefC = source.CoefC;
        loi.CoefD = CoefD(source);
        // Every law passes from its acceleration to its constant speed through a cosine, however short.
        if (loi.CoefC == 0.0) throw ErreurExecution(NumeroErreur::DivisionParZero, source.NomLoi);
        CalculeMaxima(loi);
    } else if (EstLoiSpe(source.NomLoi)) {
        CalculeCoefs(loi, PourcentageLoiSpe(source.NomLoi));
    } else {
        for (long i = 1; i <= lois.BorneHaute(); ++i)
            if (lois[i].NomLoi == source.NomLoi) return lois[i];
        throw ErreurExecution(NumeroErreur::IndiceHorsLimites, source.NomLoi);
    }
    return loi;
}

Tableau<double> CoursesDeSource(const SourceLoi& source, const Tableau<Loi>& lois, double pas) {
    Loi loi = LoiDeSource(source, lois);
    Tableau<PointLoi> table;
    RemplitTable(loi, source.CoefSymetrie, pas, table);
    Tableau<double> courses;
    courses.Redimensionne(table.BorneHaute());
    for (long i = 0; i <= table.BorneHaute(); ++i) courses[i] = table[i].Course;
    return courses;
}

LoiDeFichier LitLoiCalculateur(std::string_view contenu) {
    LoiDeFichier loi;
    loi.lignes.Redimensionne(PlacesLoiFichier - 1);
    for (Lignes lignes(contenu); !lignes.Fin() && !loi.finie;) {
        loi.lignes[loi.nombre] = LitPointLoi(lignes.Suivante());
        loi.finie = loi.lignes[loi.nombre].Course == 1.0;
        if (!loi.finie) ++loi.nombre;
    }
    return loi;
}

LoiDeFichier LitFichierLoiCalculateur(const std::filesystem::path& chemin) {
    return LitLoiCalculateur(LitFichierEntier(chemin));
}
