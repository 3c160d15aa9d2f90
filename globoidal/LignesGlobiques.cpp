#include "globoidal/LignesGlobiques.h"

#include "core/Nombres.h"
#include "data/Textes.h"
#include "data/Unites.h"
#include "globoidal/CapaciteOscillateur.h"
#include "globoidal/CataloguesGlobiques.h"
#include "globoidal/TextesGlobiques.h"
#include "globoidal/UnitesGlobiques.h"

#include <span>

namespace {

constexpr int DecimalesMm = 3, DecimalesEnveloppe = 2, DecimalesAngle = 2, DecimalesInertie = 5, DecimalesCouple = 2;

struct RangeeDecrite {
    int libelle;
    RangCapacite ligne;
    int label; ///< number of its first label
};

struct BlocDecrit {
    int titre;
    std::vector<RangeeDecrite> rangees;
};

const std::vector<BlocDecrit>& BlocsIndexeur() {
    static const std::vector<BlocDecrit> blocs{
        {589, {{565, B10CameTrempee, 41}, {587, LimiteCameTrempee, 46}}},
        {599, {{565, B10CameNitruree, 159}, {587, LimiteCameNitruree, 164}}},
        {507, {{289, B10Galet, 74}, {147, B10Trempee, 79}}},
        {587,
         {{289, LimiteGalet, 91}, {589, LimiteTrempee, 96}, {641, LimiteProfondeur, 126}, {588, LimiteArbre, 119}}},
    };
    return blocs;
}

const std::vector<BlocDecrit>& BlocsOscillateur() {
    static const std::vector<BlocDecrit> blocs{
        {556, {{565, B10CameTrempee, 41}, {587, LimiteCameTrempee, 46}}},
        {599, {{565, B10CameNitruree, 133}, {587, LimiteCameNitruree, 138}}},
        {507, {{289, B10Galet, 74}, {147, B10Trempee, 79}}},
        {587,
         {{289, LimiteGalet, 91}, {589, LimiteTrempee, 96}, {641, LimiteProfondeur, 144}, {588, LimiteArbre, 119}}},
    };
    return blocs;
}

std::string NomLabel(int numero) {
    return "Label" + std::to_string(numero);
}

std::vector<TableResultats> ComposeBlocs(std::span<const BlocDecrit> decrits, const ResultatGlobique& resultat) {
    std::vector<TableResultats> blocs;
    for (const BlocDecrit& decrit : decrits) {
        TableResultats& bloc = blocs.emplace_back();
        bloc.titre = Trim(Texte(decrit.titre)) + " (" + Texte(UniteNm) + ")";
        for (std::size_t k = 0; k < NombreParts; ++k) bloc.colonnes.push_back(TexteCourt(PartInertie(k)) + " %");
        for (const RangeeDecrite& rangee : decrit.rangees) {
            auto& lignes = bloc.rangees.emplace_back(TableResultats::Rangee{Texte(rangee.libelle), {}});
            for (std::size_t k = 0; k < NombreParts; ++k) {
                const double couple = resultat.Resultats[rangee.ligne][k] * NmParLivrePouce;
                lignes.cellules.push_back({NomLabel(rangee.label + static_cast<int>(k)), Texte(rangee.libelle),
                                           TexteArrondi(couple, DecimalesCouple), Texte(UniteNm), false,
                                           SansCharge(resultat, rangee.ligne, k) ? Texte(TexteSansCharge) : ""});
            }
        }
    }
    return blocs;
}

LigneResultat Ligne(const char* controle, int libelle, const std::string& valeur, int unite = 0) {
    return {controle, Texte(libelle), valeur, Texte(unite), false, {}};
}

void Rougit(LigneResultat& ligne, bool rouge, int note) {
    ligne.rouge = rouge;
    if (rouge) ligne.note = Texte(note);
}

LigneResultat LigneNervure(const char* controle, int libelle, double mm, double minimum, double diametreGalet) {
    LigneResultat ligne = Ligne(controle, libelle, TexteArrondi(mm, DecimalesMm), UniteMm);
    Rougit(ligne, mm < minimum * MmParPouce || mm < diametreGalet * PartGaletNervure, TexteNervureMince);
    return ligne;
}

LigneResultat LigneCourbure(const char* controle, int libelle, double mm) {
    const std::string valeur = TexteArrondi(mm, DecimalesMm);
    LigneResultat ligne = Ligne(controle, libelle, valeur, UniteMm);
    Rougit(ligne, Val(valeur) <= 0.0, TexteCourbureInsuffisante);
    return ligne;
}

GroupeResultats GroupeNervure(const MecanismeGlobique& d, const ResultatGlobique& r) {
    const EpaisseursNervure& e = r.EpaisseurMin;
    return {Texte(577),
            {LigneNervure("Label24", 578, e.Tete, NervureMinTete, d.DiametreGalet),
             LigneNervure("Label25", 585, e.Centre, NervureMinCentre, d.DiametreGalet),
             LigneNervure("Label26", 173, e.Racine, NervureMinCentre, d.DiametreGalet)}};
}

GroupeResultats GroupeCourbure(const ResultatGlobique& r) {
    return {Texte(580),
            {LigneCourbure("Label29", 585, r.CourbureCentre), LigneCourbure("Label30", 173, r.CourbureRacine)}};
}

/// The code in use where it is not that of the name: a casing or a roller that is typed keeps the last one's.
std::string NoteCode(const Catalogue& catalogue, const std::string& nom, const char* membre, double code, int texte) {
    const auto ligne = ChercheLigne(catalogue, nom);
    if (ligne && ligne->at(membre).value_or(0.0) == code) return {};
    return Texte(texte) + " " + TexteCourt(code);
}

std::string NoteBoitier(const MecanismeGlobique& d) {
    return NoteCode(CatalogueBoitiers, d.Modele, "Boitier", d.Boitier, TexteCodeBoitier);
}

/// The code of the roller counts with one casing only.
std::string NoteGalet(const MecanismeGlobique& d) {
    if (CodeBoitier(d) != BoitierParGalet) return {};
    return NoteCode(CatalogueGalets, d.ReferenceGalet, "codemi", d.codemi, TexteCodeGalet);
}

/// Pressure angle, pitch radius and inertia, and between them what an indexer has of its own.
/// @param notesRayon what the pitch radius in use depends on unseen
GroupeResultats GroupeContact(const ResultatGlobique& r, const std::vector<LigneResultat>& propres,
                              const std::vector<std::string>& notesRayon) {
    const std::string angle = TexteArrondi(r.AnglePressionMaxi, DecimalesAngle);
    LigneResultat pression = Ligne("Label63", 581, angle, UniteDegres);
    Rougit(pression, Val(angle) > AnglePressionLimite, TextePressionForte);
    LigneResultat primitif = Ligne("Text17", 504, "0", UniteMm);
    primitif.note = Texte(TexteRayonPrimitifNul);
    GroupeResultats groupe{Texte(TexteContact), {pression}};
    groupe.lignes.insert(groupe.lignes.end(), propres.begin(), propres.end());
    groupe.lignes.push_back(primitif);
    LigneResultat employe =
        Ligne("RayonPrimitif", TexteRayonPrimitifReel, TexteArrondi(r.RayonPrimitif, DecimalesMm), UniteMm);
    for (const std::string& note : notesRayon)
        if (!note.empty()) employe.note += (employe.note.empty() ? "" : "\n") + note;
    groupe.lignes.push_back(employe);
    groupe.lignes.push_back(Ligne("Text18", 672, TexteArrondi(r.InertieTotale, DecimalesInertie), UniteKgM2));
    return groupe;
}

/// A size of the cam against what the casing takes; a limit of 0 is none.
LigneResultat LigneEnveloppe(const char* controle, int libelle, double mm, int decimales, double limite, bool rougit) {
    LigneResultat ligne = Ligne(controle, libelle, TexteArrondi(mm, decimales), UniteMm);
    const bool depasse = limite != 0.0 && mm > limite;
    ligne.rouge = depasse && rougit;
    if (depasse) ligne.note = Texte(TexteBoitierDepasse) + " " + TexteCourt(limite) + " " + Texte(UniteMm);
    return ligne;
}

/// What the life ratings are counted for.
std::string BaseDuree() {
    return Texte(565) + " " + Texte(600);
}

/// Whether some share of inertia leaves the depth of the nitrided layer out of its limit.
bool ProfondeurNonPrise(const ResultatGlobique& r) {
    for (std::size_t k = 0; k < NombreParts; ++k)
        if (r.Resultats[LimiteProfondeur][k] < r.Resultats[LimiteNitruree][k]) return true;
    return false;
}

} // namespace

bool SansCharge(const ResultatGlobique& resultat, RangCapacite ligne, std::size_t part) {
    const double valeur = resultat.Resultats[ligne][part];
    if (valeur >= GrandNombre) return true;
    // A roller that carries nothing wears all the same by a hair, so that nothing is divided by zero.
    const bool duree = ligne == B10Galet || ligne == B10CameTrempee || ligne == B10CameNitruree;
    return duree && resultat.Resultats[ForceGalet][part] == 0.0;
}

std::vector<TableResultats> CapacitesIndexeur(const ResultatGlobique& resultat) {
    return ComposeBlocs(BlocsIndexeur(), resultat);
}

std::vector<TableResultats> CapacitesOscillateur(const ResultatGlobique& resultat) {
    return ComposeBlocs(BlocsOscillateur(), resultat);
}

std::vector<GroupeResultats> GeometrieIndexeur(const DonneesIndexeur& d, const ResultatGlobique& r) {
    const EpaisseursNervure repos = r.EpaisseurRepos.value_or(EpaisseursNervure{});
    const auto mm = [](double valeur) { return TexteArrondi(valeur, DecimalesMm); };
    return {{Texte(574),
             {LigneEnveloppe("Label16", 575, r.CameDiametre, DecimalesMm, d.CameMaxDiam, true),
              LigneEnveloppe("Label17", 576, r.CameLargeur, DecimalesMm, d.CameMaxLong, true)}},
            GroupeNervure(d, r),
            {Texte(579),
             {Ligne("Label69", 578, mm(repos.Tete), UniteMm), Ligne("Label52", 585, mm(repos.Centre), UniteMm),
              Ligne("Label51", 173, mm(repos.Racine), UniteMm)}},
            GroupeCourbure(r),
            GroupeContact(r,
                          {Ligne("Label53", 597, TexteCourt(r.Type)), Ligne("Label73", 583, TexteCourt(r.Passages)),
                           Ligne("Text19", 598, TexteCourt(r.AngleReel), UniteDegres)},
                          {NoteBoitier(d), NoteGalet(d)})};
}

std::vector<GroupeResultats> GeometrieOscillateur(const DonneesOscillateur& d, const ResultatGlobique& r) {
    const auto degres = [](const char* nom, int texte, double angle) {
        return Ligne(nom, texte, TexteArrondi(angle, DecimalesAngle), UniteDegres);
    };
    return {{Texte(574),
             {LigneEnveloppe("Label16", 575, r.CameDiametre, DecimalesEnveloppe, d.CameMaxDiam, false),
              LigneEnveloppe("Label17", 559, r.DiametreRogne, DecimalesEnveloppe, 0, false),
              LigneEnveloppe("Label53", 407, r.CameLargeur, DecimalesEnveloppe, d.CameMaxLong, false),
              LigneEnveloppe("Label73", 563, r.LargeurRognee, DecimalesEnveloppe, 0, false)}},
            GroupeNervure(d, r),
            {Texte(TexteFlancs),
             {degres("AngleFlanc1", TexteFlanc1, r.AngleFlanc1), degres("AngleFlanc2", TexteFlanc2, r.AngleFlanc2),
              degres("AngleFlancTravail", TexteFlancTravail, r.AngleFlancTravail)}},
            {Texte(TexteZones),
             {degres("AngleZoneA", 532, r.Zones[0]), degres("AngleZoneB", 533, r.Zones[1]),
              degres("AngleZoneC", 534, r.Zones[2]), degres("AngleZoneD", 540, r.Zones[3])}},
            GroupeCourbure(r),
            GroupeContact(r, {}, {NoteBoitier(d)})};
}

std::vector<TableResultats> PourAffichage(std::vector<TableResultats> tables) {
    for (TableResultats& table : tables)
        for (auto& rangee : table.rangees)
            for (LigneResultat& cellule : rangee.cellules)
                if (!cellule.note.empty()) cellule.valeur = Tiret;
    return tables;
}

std::vector<std::string> NotesIndexeur(const DonneesIndexeur& d, const ResultatGlobique& r) {
    std::vector<std::string> notes{BaseDuree()};
    if (ProfondeurNonPrise(r)) notes.push_back(Texte(TexteProfondeurNonPrise));
    if (d.NomLoi == NomLoiFichier) {
        notes.push_back(Texte(TexteLoiSansSigne));
    } else if (d.CoefSymetrie != 0.5) {
        notes.push_back(Texte(TexteSymetrieCouple));
    }
    if (d.NomLoi.starts_with("MSH")) notes.push_back(Texte(TexteMshSansRetour));
    return notes;
}

std::vector<std::string> NotesOscillateur(const DonneesOscillateur& d, const ResultatGlobique& r) {
    std::vector<std::string> notes{BaseDuree(), Texte(TexteRetourArbre)};
    if (ProfondeurNonPrise(r)) notes.push_back(Texte(TexteProfondeurNonPrise));
    if (d.CapaciteArbreEntree == 0.0) notes.push_back(Texte(TexteArbreNul));
    if (LoiParFichier(d)) notes.push_back(Texte(TexteLoiSansSigne));
    if (!r.Sauts.empty()) {
        std::string raccords;
        for (const std::string& raccord : r.Sauts) raccords += (raccords.empty() ? " " : ", ") + raccord;
        notes.push_back(Texte(TexteSauts) + raccords);
    }
    return notes;
}
