// The pages of the help as they stand in docs/aide: each screen has one in every language, with its fields and a
// picture of its present layout; links and contents lead somewhere.
#include "app/Ecrans.h"
#include "core/FichierEntier.h"
#include "data/Demarrage.h"
#include "docs/outils/VuesAide.h"
#include "help/screens/LivreAide.h"
#include "outils/DialoguesScript.h"
#include "studies/FichierEtude.h"
#include "studies/TypesEtude.h"
#include "studies/ValeursRemarquables.h"
#include "widgets/Chaines.h"
#include "widgets/FenetreEnfant.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>

#include <map>
#include <set>

namespace {

using Noms = std::set<std::string>;

constexpr const char* Boites[] = {"CameType", "QuelLoi", "QuelLoiSpe", "SeleSauv", "ApercuImpression", "Propos"};

const std::filesystem::path docs = std::filesystem::path(VELORIN_SOURCES) / "docs" / "aide";

/// First column of a table to the second, without the heading.
std::map<std::string, std::string> LitTable(const char* nom) {
    std::map<std::string, std::string> table;
    for (const QString& ligne : Q(LitFichierEntier(docs / nom)).split('\n', Qt::SkipEmptyParts).mid(1))
        table[S(ligne.section('\t', 0, 0))] = S(ligne.section('\t', 1));
    return table;
}

Noms Cles(const std::map<std::string, std::string>& table) {
    Noms cles;
    for (const auto& [cle, valeur] : table) cles.insert(cle);
    return cles;
}

Noms Fichiers(const std::filesystem::path& dossier, const char* extension) {
    Noms noms;
    for (const auto& entree : std::filesystem::directory_iterator(dossier))
        if (entree.path().extension() == extension) noms.insert(entree.path().stem().string());
    return noms;
}

QString TextePage(const char* dossier, const std::string& page) {
    return Q(LitFichierEntier(docs / dossier / (page + ".md")));
}

QStringList Cibles(const QString& texte) {
    QStringList cibles;
    static const QRegularExpression lien("\\]\\(([^)]+)\\)");
    for (auto trouve = lien.globalMatch(texte); trouve.hasNext();) cibles << trouve.next().captured(1);
    return cibles;
}

class Pages : public testing::TestWithParam<LangueAide> {
protected:
    DialoguesScript dialogues_;
    const char* dossier_ = GetParam().dossier;
};

/// True when a number of the text is this value, with the digits that it has.
bool Contient(const QString& texte, double valeur) {
    static const QRegularExpression nombre("-?\\d+(?:\\.(\\d+))?");
    for (auto trouve = nombre.globalMatch(texte); trouve.hasNext();) {
        const auto mot = trouve.next();
        const double ecart = std::abs(mot.captured().toDouble() - valeur);
        if (ecart <= 0.501 * std::pow(10.0, -static_cast<double>(mot.capturedLength(1))) &&
            ecart <= 0.005 * std::abs(valeur))
            return true;
    }
    return false;
}

} // namespace

TEST_P(Pages, ContentsLinksAndPicturesMeet) {
    const Noms pages = Fichiers(docs / dossier_, ".md");
    EXPECT_EQ(pages, Cles(LitTable("sommaire.tsv")));
    const std::map<std::string, std::string> images = LitTable("images.tsv");
    Noms montrees;
    for (const std::string& page : pages) {
        const QString texte = TextePage(dossier_, page);
        EXPECT_TRUE(texte.startsWith("# ")) << page;
        for (const QString& cible : Cibles(texte)) {
            if (cible.endsWith(".md")) {
                EXPECT_TRUE(pages.contains(S(cible.chopped(3)))) << page << " leads to " << S(cible);
            } else {
                const std::string image = dossier_ + ("/" + S(cible));
                EXPECT_TRUE(images.contains(image) && std::filesystem::exists(docs / image)) << page << ": " << image;
                montrees.insert(image);
            }
        }
    }
    for (const auto& [image, empreinte] : images)
        EXPECT_TRUE(image.rfind(dossier_, 0) != 0 || montrees.contains(image)) << image << " is on no page";
}

TEST_P(Pages, EveryScreenHasOne) {
    const Noms pages = Fichiers(docs / dossier_, ".md");
    for (const EcranEnfant& ecran : LesEcrans()) EXPECT_TRUE(pages.contains(ecran.nom)) << ecran.nom;
    for (const char* boite : Boites) EXPECT_TRUE(pages.contains(boite)) << boite;
}

TEST_P(Pages, PicturesAndFieldsAreThoseOfTheScreens) {
    const std::map<std::string, std::string> images = LitTable("images.tsv");
    for (const VueAide& vue : LesVuesAide()) {
        if (!vue.Disponible()) continue;
        CommenceVue(GetParam().langue);
        const std::unique_ptr<QWidget> ecran = vue.ouvre();
        const std::string image = std::string(dossier_) + "/images/" + vue.image + ".png";
        ASSERT_TRUE(images.contains(image)) << image;
        EXPECT_EQ(S(Empreinte(*ecran)), images.at(image))
            << image << " is older than its screen: make it again with images_aide";
        const QString texte = TextePage(dossier_, vue.Page()).remove('\\').simplified();
        for (const auto* etiquette : ecran->findChildren<QLabel*>()) {
            const QString legende = etiquette->text().remove('&').simplified();
            const QWidget* champ = etiquette->buddy();
            const bool saisi =
                qobject_cast<const QLineEdit*>(champ) != nullptr || qobject_cast<const QComboBox*>(champ);
            if (!saisi || !etiquette->isVisibleTo(ecran.get())) continue;
            EXPECT_TRUE(texte.contains(legende)) << vue.Page() << " has no field " << S(legende);
        }
    }
    EXPECT_TRUE(dialogues_.boites.empty());
}

TEST_P(Pages, NumbersOfTheWorkedExampleAreThoseOfTheCalculation) {
    CommenceVue(GetParam().langue);
    ASSERT_TRUE(LitFichierEtude(CheminAppli / NomDossierEtudes / "Exemple.Ang"));
    CalculeEtude();
    const TypeEtude& type = *TrouveType(etude.donnees.TypeCame);
    const QString texte = TextePage(dossier_, "exemple-came");
    for (const ValeurRemarquable& valeur : LesValeursRemarquables())
        EXPECT_TRUE(valeur.texte(type) == 0 || Contient(texte, valeur.valeur())) << valeur.nom << valeur.valeur();
    for (const ChampEtude& champ : type.champs) EXPECT_TRUE(Contient(texte, champ.Nombre(etude.donnees))) << champ.nom;
}

INSTANTIATE_TEST_SUITE_P(Langues, Pages, testing::ValuesIn(LesLanguesAide),
                         [](const auto& langue) { return std::string(langue.param.dossier); });
