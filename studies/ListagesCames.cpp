#include "studies/ListagesCames.h"

#include "data/Textes.h"
#include "studies/ColonnesListage.h"
#include "studies/NotesEtude.h"
#include "studies/ValeursRemarquables.h"

#include <initializer_list>
#include <memory>
#include <span>

namespace {

/// @param nom what stands over the heading: the short name of a cam, or nothing
ColonneTexte FaitColonne(const ColonneListage& c, std::size_t rang, const std::string& nom) {
    return ColonneNombres(
        nom + Texte(c.texte), Texte(c.unite),
        [valeur = DeCame(rang, c.valeur)](int ligne) {
            return valeur(static_cast<long>(ligne) * etude.donnees.PointsParDegre);
        },
        c.masque);
}

/// The same columns for each cam, one cam after the other.
void AjouteColonnes(TableTexte& table, const TypeEtude& type,
                    std::initializer_list<std::span<const ColonneListage>> groupes) {
    for (std::size_t rang = 0; rang < type.passes.size(); ++rang)
        for (const auto groupe : groupes)
            for (const ColonneListage& c : groupe)
                table.colonnes.push_back(FaitColonne(c, rang, Texte(type.passes[rang].nomCourt) + "\n"));
}

TableTexte CommenceTable(const TypeEtude& type) {
    TableTexte table;
    if (!type.passes.empty() && !etude.passes.empty())
        table.lignes = etude.passes.front().resultats.NombrePoints / etude.donnees.PointsParDegre + 1;
    table.colonnes.push_back(FaitColonne(ColonneAngle, 0, {}));
    return table;
}

/// A column of texts that stand already.
ColonneTexte ColonneTextes(const std::string& titre, std::vector<std::string> textes, Cote cote) {
    auto gardes = std::make_shared<std::vector<std::string>>(std::move(textes));
    return {titre, "", [gardes](int ligne) { return gardes->at(static_cast<std::size_t>(ligne)); }, cote};
}

} // namespace

TableTexte TableMouvementCames(const TypeEtude& type) {
    TableTexte table = CommenceTable(type);
    for (const ColonneListage& c : ColonnesBras) table.colonnes.push_back(FaitColonne(c, 0, {}));
    AjouteColonnes(table, type, {ColonnesGalet});
    if (type.controle.ecarts != nullptr) {
        auto ecarts = std::make_shared<std::vector<double>>(type.controle.ecarts());
        table.colonnes.push_back(ColonneNombres(
            Texte(type.controle.titreEcarts), Texte(UniteMm),
            [ecarts](int ligne) {
                return ecarts->at(static_cast<std::size_t>(ligne) *
                                  static_cast<std::size_t>(etude.donnees.PointsParDegre));
            },
            "0.000"));
    }
    return table;
}

TableTexte TableEffortsCames(const TypeEtude& type) {
    TableTexte table = CommenceTable(type);
    AjouteColonnes(table, type, {ColonnesEfforts, ColonnesCourbure});
    return table;
}

TableTexte TableRemarquablesCames(const TypeEtude& type) {
    const Notes notes = NotesEnVigueur(type);
    std::vector<std::string> noms, unites;
    for (const ValeurRemarquable& valeur : LesValeursRemarquables()) {
        if (valeur.texte(type) == 0) continue;
        noms.push_back(Texte(valeur.groupe) + " : " + Texte(valeur.texte(type)) + notes.Renvoi(valeur.nom));
        unites.push_back(Texte(valeur.unite));
    }
    TableTexte table{{}, static_cast<int>(noms.size())};
    table.colonnes.push_back(ColonneTextes(Texte(216), noms, Cote::Gauche));
    PourChaqueCame(type, [&](const DescriptionPasse* came) {
        std::vector<std::string> textes, angles;
        for (const ValeurRemarquable& valeur : LesValeursRemarquables()) {
            if (valeur.texte(type) == 0) continue;
            textes.push_back(EcritValeur(valeur, valeur.masque));
            angles.push_back(valeur.repere == nullptr ? std::string()
                                                      : Format(AngleExtreme(valeur.repere()), "##0") + "°");
        }
        table.colonnes.push_back(ColonneTextes(Texte(came->titre), textes, Cote::Droite));
        table.colonnes.push_back(ColonneTextes(Texte(227), angles, Cote::Droite));
    });
    table.colonnes.push_back(ColonneTextes("", unites, Cote::Gauche));
    return table;
}

TableTexte TableControle(const TypeEtude& type) {
    TableTexte table;
    if (type.controle.lignes == nullptr) return table;
    std::vector<std::string> noms, valeurs, unites;
    for (const LigneControle& ligne : type.controle.lignes()) {
        noms.push_back(ligne.libelle);
        valeurs.push_back(ligne.valeur);
        unites.push_back(ligne.unite);
    }
    table.lignes = static_cast<int>(noms.size());
    table.colonnes = {ColonneTextes(Texte(type.controle.titre), noms, Cote::Gauche),
                      ColonneTextes("", valeurs, Cote::Gauche), ColonneTextes("", unites, Cote::Gauche)};
    return table;
}
