#include "indexers/Catalogue.h"

#include "data/Demarrage.h"
#include "data/Textes.h"

std::vector<std::string> ClesCatalogue(const Catalogue& catalogue) {
    std::vector<std::string> cles;
    for (JeuEnregistrements jeu = LaBase.OuvreTable(catalogue.table); !jeu.FinFichier(); jeu.VaAuSuivant())
        cles.push_back(EnTexte(jeu.Champ(catalogue.champCle)));
    return cles;
}

std::optional<ValeursCatalogue> ChercheLigne(const Catalogue& catalogue, const std::string& cle) {
    JeuEnregistrements jeu = LaBase.OuvreTable(catalogue.table);
    jeu.Seek(cle);
    if (jeu.NoMatch()) return {};
    ValeursCatalogue valeurs;
    for (const ChampCatalogue& c : catalogue.champs) {
        const Valeur& valeur = jeu.Champ(c.champ);
        auto& place = valeurs[c.membre];
        if (!EstNul(valeur)) {
            place = EnNombre(valeur);
        } else if (!c.nullable) {
            place = 0.0;
        }
    }
    return valeurs;
}

std::optional<FauteSaisie> ChercheFauteLigne(const Catalogue& catalogue, const std::string& cle,
                                             const ValeursCatalogue& valeurs) {
    if (cle.empty()) return FauteSaisie{catalogue.membreCle, Texte(catalogue.texteCleVide)};
    for (const ChampCatalogue& c : catalogue.champs) {
        if (c.texteFaute == 0) continue;
        const auto valeur = valeurs.find(c.membre);
        if (c.interdit(valeur == valeurs.end() ? 0.0 : valeur->second.value_or(0.0)))
            return FauteSaisie{c.membre, Texte(c.texteFaute)};
    }
    JeuEnregistrements jeu = LaBase.OuvreTable(catalogue.table);
    jeu.Seek(cle);
    if (jeu.NoMatch()) return {};
    FauteSaisie existe{catalogue.membreCle, {}};
    if (catalogue.titreCleExiste != 0) existe.titre = Texte(catalogue.titreCleExiste);
    for (const int texte : catalogue.texteCleExiste) existe.texte += (existe.texte.empty() ? "" : "\n") + Texte(texte);
    if (catalogue.finitParSaut) existe.texte += "\n";
    return existe;
}

void AjouteLigne(const Catalogue& catalogue, const std::string& cle, const ValeursCatalogue& valeurs) {
    JeuEnregistrements jeu = LaBase.OuvreTable(catalogue.table);
    jeu.AddNew();
    jeu.Ecrit(catalogue.champCle, cle);
    for (const ChampCatalogue& c : catalogue.champs) {
        const auto valeur = valeurs.find(c.membre);
        if (!c.enregistre || valeur == valeurs.end()) continue;
        if (valeur->second || !c.nullable) jeu.Ecrit(c.champ, valeur->second.value_or(0.0));
    }
    jeu.Update();
}
