// The table of study kinds: one row per `TypeCame`. Reader, writer, dialogue filters, menus, save screen, reports and
// batch walk this table, so that adding a kind of cam is adding a row.
#pragma once

#include "cams/DescriptionZones.h"
#include "cams/GroupesDonnees.h"
#include "cams/Passes.h"
#include "core/Etude.h"
#include "core/TableTexte.h"
#include "platform/Dessin.h"
#include "platform/Dialogues.h"

#include <filesystem>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

/// The reports that only some kinds have; none where a kind has no such report.
struct RapportsEtude {
    void (*donnees)() = nullptr;
    void (*profil)() = nullptr;
    TableTexte (*pointsMouvement)() = nullptr; ///< its motion point by point, as it is printed
    int notePoints = 0;                        ///< text number of what is said below it
};

/// A check of several cams together, told in lines and point by point.
struct ControleEtude {
    std::vector<LigneControle> (*lignes)() = nullptr; ///< none: nothing is checked
    int titre = 0, note = 0;                          ///< text numbers of its caption, and of what must be known of it
    std::vector<double> (*ecarts)() = nullptr;        ///< what is checked, mm, for the points 0..`NombrePoints`
    int titreEcarts = 0;                              ///< text number of their heading
};

struct TypeEtude {
    const char* nom;          ///< `TypeCame`
    const char* extension;    ///< of its study files, without the point
    int titre;                ///< text number of the kind's name
    const char* suffixeTitre; ///< what follows the name in the first line of a file
    std::span<const ChampEtude> champs;
    std::span<const GroupeDonnees> groupes; ///< in the order of the data screen
    const char* masqueNombreZones;
    const DescriptionZones* zones;
    const char* masqueValeur;
    const char* masqueAngleCame;
    bool conjuguees = false;                       ///< a pair of cams, whose laws stand with the second
    void (*calcule)() = nullptr;                   ///< the pipeline; none while this kind cannot be calculated
    std::span<const DescriptionPasse> passes = {}; ///< the cams of a study of several; none of a single cam
    ControleEtude controle = {};                   ///< what is checked of several cams together
    /// Cut on a cylinder: heights for radii, and extreme values that keep the subscript of their point.
    bool developpee = false;
    void (*dessine)(Dessin& dessin, double angle) = nullptr; ///< the cam at a cam angle, degrees
    RapportsEtude rapports = {};
    bool scriptAvecBras = false;         ///< the script of the inner profile draws the arm too
    const char* motifDialogue = nullptr; ///< pattern as file dialogues show it, where it is not that of the extension
    const char* ecranSaisie = "";        ///< its data screen
    const char* ecranResultats = "";     ///< the screen that shows its results: a data screen can

    bool Disponible() const { return calcule != nullptr; }
    bool Bras() const { return zones->Bras(); }
    bool ResultatsAPart() const { return std::string_view(ecranSaisie) != ecranResultats; }
    /// The scalar of the present study that cannot be calculated with; none when all will do.
    const ChampEtude* ChercheFaute() const { return ChercheInterdit(champs, etude.donnees); }
};

std::span<const TypeEtude> LesTypesEtude();

/// The row of a `TypeCame`, or of a file name by its extension in any case; none for an unknown one.
const TypeEtude* TrouveType(std::string_view nom);
const TypeEtude* TrouveTypeFichier(const std::filesystem::path& fichier);

/// The row of the present study.
/// @throws ErreurExecution incorrect call when its `TypeCame` is none of the table.
const TypeEtude& LeTypeEtude();

/// The filter of a file dialogue for the study files of one kind: its name " (*.ang)" and "*.Ang".
FiltreFichier FiltreEtude(const TypeEtude& type);

/// Name of a study without its extension, on which the names of its exports are built.
std::string NomSansExtension(const std::string& nomFichier);

/// Last cam angle that the drawing of the present results can be brought to, in whole degrees: a plane cam turns once,
/// a developed one is walked along to the end of its last turn.
int DernierAngleDessin(const TypeEtude& type);

/// Cam angle at which an extreme value of the present study stands, in whole degrees.
/// @param place the angle that a maximum of the record keeps
double AngleExtreme(std::int16_t place);

/// Calls `traite` for each cam of the present study with its results in the record: for a single cam once, with none.
template <class Traite> void PourChaqueCame(const TypeEtude& type, Traite traite) {
    if (type.passes.empty()) return traite(static_cast<const DescriptionPasse*>(nullptr));
    for (std::size_t rang = 0; rang < type.passes.size(); ++rang) {
        if (rang >= etude.passes.size()) return;
        const PasseEnVue vue(etude.passes[rang]);
        traite(&type.passes[rang]);
    }
}

/// A number of one of several cams, point by point. @param rang of the cam in `etude.passes`
inline std::function<double(long)> DeCame(std::size_t rang, double (*valeur)(long point)) {
    return [rang, valeur](long point) {
        const PasseEnVue vue(etude.passes.at(rang));
        return valeur(point);
    };
}

/// Runs the pipeline of the present study's kind.
/// @throws ErreurExecution whatever stops the pipeline; the zones are back in degrees.
void CalculeEtude();
