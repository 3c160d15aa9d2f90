#include "docs/outils/VuesAide.h"

#include "app/CameType.h"
#include "app/Ecrans.h"
#include "app/MdiCamA.h"
#include "app/Propos.h"
#include "core/FichierEntier.h"
#include "data/Demarrage.h"
#include "laws/CalculLois.h"
#include "laws/screens/QuelLoi.h"
#include "outils/Ecrans.h"
#include "studies/FichierEtude.h"
#include "studies/RapportsCames.h"
#include "studies/TypesEtude.h"
#include "studies/screens/SeleSauv.h"
#include "widgets/ApercuImpression.h"
#include "widgets/Chaines.h"
#include "widgets/FenetreEnfant.h"
#include "widgets/TextesQt.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCryptographicHash>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

#include <algorithm>

namespace {

using Fenetre = std::unique_ptr<QWidget>;

constexpr QSize TailleMax(1320, 900);

std::filesystem::path Exemple(const char* nom) {
    return CheminAppli / NomDossierEtudes / nom;
}

void MontreFenetre(QWidget& fenetre) {
    fenetre.resize(fenetre.sizeHint().boundedTo(TailleMax));
    fenetre.show();
    LaisseFaire();
}

Fenetre OuvreEcran(const char* nom) {
    Fenetre fenetre(TrouveEcran(nom)->cree(nom));
    MontreFenetre(*fenetre);
    return fenetre;
}

void CalculeExemple(const char* fichier) {
    if (!LitFichierEtude(Exemple(fichier))) throw std::runtime_error(std::string("cannot read ") + fichier);
    etude.donnees.NomFichier = fichier;
    CalculeEtude();
}

void ChoisitFeuille(QWidget& fenetre, int feuille) {
    Controle<QTabWidget>(fenetre, "SSTab1")->setCurrentIndex(feuille);
    LaisseFaire();
}

/// The data screen of a worked example, or its results on one of their sheets.
template <class Nom> Fenetre OuvreExemple(const char* fichier, Nom TypeEtude::*ecran, int feuille = -1) {
    CalculeExemple(fichier);
    Fenetre fenetre = OuvreEcran(TrouveType(etude.donnees.TypeCame)->*ecran);
    if (feuille >= 0) ChoisitFeuille(*fenetre, feuille);
    return fenetre;
}

template <class Boite, class... Arguments> Fenetre OuvreBoite(Arguments... arguments) {
    auto boite = std::make_unique<Boite>(arguments...);
    boite->show();
    LaisseFaire();
    return boite;
}

/// Takes an entry of a catalogue list as a person does.
void Deroule(QWidget& fenetre, const char* liste, const char* cle) {
    auto* controle = Controle<QComboBox>(fenetre, liste);
    controle->showPopup();
    LaisseFaire();
    controle->view()->setCurrentIndex(controle->model()->index(controle->findText(cle), 0));
    QTest::keyClick(controle->view(), Qt::Key_Return);
    LaisseFaire();
}

using Saisies = std::initializer_list<std::pair<const char*, const char*>>;

void Tape(QWidget& fenetre, const Saisies& saisies) {
    for (const auto& [champ, texte] : saisies) TapeDans(fenetre, champ, texte);
}

/// The study of a law, its fields typed from the first on, calculated.
Fenetre OuvreLoi(const char* ecran, const char* loi, const Saisies& saisies) {
    etude.lois.LoiChoisie = loi;
    Fenetre fenetre = OuvreEcran(ecran);
    Tape(*fenetre, saisies);
    CliqueSur(*fenetre, "Calculer");
    return fenetre;
}

/// A calculator on its worked example: the entries of its lists and the numbers typed, in this order; with a sheet of
/// results it is calculated first.
Fenetre OuvreCalculateur(const char* ecran, const Saisies& avant, const Saisies& nombres, const Saisies& apres,
                         int feuille) {
    Fenetre fenetre = OuvreEcran(ecran);
    for (const auto& [liste, cle] : avant) Deroule(*fenetre, liste, cle);
    Tape(*fenetre, nombres);
    for (const auto& [liste, cle] : apres) Deroule(*fenetre, liste, cle);
    if (feuille > 0) CliqueSur(*fenetre, "Calculer");
    ChoisitFeuille(*fenetre, feuille);
    return fenetre;
}

template <int feuille> Fenetre OuvreIndexeurCyl() {
    return OuvreCalculateur("CylindriqueIndexeur", {{"DerouleModeles", "MC-100"}},
                            {{"Text5", "8"}, {"Text6", "8"}, {"Text7", "180"}},
                            {{"DerouleLois", "MS"}, {"DerouleGalets", "G-035"}}, feuille);
}

template <int feuille> Fenetre OuvreIndexeurConjugue() {
    return OuvreCalculateur("CamesConjugueesIndexeur", {},
                            {{"Text1", "100"},
                             {"Text2", "42"},
                             {"Text5", "8"},
                             {"Text3", "8"},
                             {"Text4", "150"},
                             {"Text11", ".25"},
                             {"Text12", "100"}},
                            {{"Combo1", "GP-026"}}, feuille);
}

template <int feuille> Fenetre OuvreIndexeurGlobique() {
    return OuvreCalculateur("GlobiqueIndexeur", {{"DerouleModeles", "MG-160"}},
                            {{"Text4", "50"}, {"Text7", "150"}, {"Text6", "8"}, {"Text5", "8"}},
                            {{"DerouleGalets", "G-035"}, {"DerouleLois", "MS"}}, feuille);
}

template <int feuille> Fenetre OuvreOscillateurGlobique() {
    return OuvreCalculateur("GlobiqueOscillateur", {{"DerouleModeles", "MG-160"}},
                            {{"Text6", "3"},
                             {"Text27", "30"},
                             {"Text5", "40"},
                             {"Text7", "120"},
                             {"Text19", "60"},
                             {"Text22", "120"},
                             {"Text28", "60"},
                             {"Text4", "110"}},
                            {{"DerouleGalets", "G-022"}, {"DerouleLois1", "MS"}, {"DerouleLois2", "MT"}}, feuille);
}

Fenetre OuvrePrincipale() {
    auto fenetre = std::make_unique<MdiCamA>(LitConfiguration(CheminAppli / NomConfiguration));
    fenetre->resize(TailleMax);
    fenetre->show();
    LaisseFaire();
    return fenetre;
}

Fenetre OuvreInerties() {
    Fenetre fenetre = OuvreEcran("Inerties");
    static_cast<FenetreEnfant&>(*fenetre).Reprend(LitFichierEntier(Exemple("Plateau.Ine")));
    LaisseFaire();
    return fenetre;
}

/// The language editor, with a language chosen.
Fenetre OuvrePersona() {
    Fenetre fenetre = OuvreEcran("Persona");
    Controle<QListWidget>(*fenetre, "List2")->setCurrentRow(0);
    LaisseFaire();
    return fenetre;
}

/// The page with the profile of the cam, in the preview of its reports.
Fenetre OuvreApercu() {
    CalculeExemple("Exemple.Ang");
    auto apercu = std::make_unique<ApercuImpression>(
        [](Imprimante& imprimante) {
            ImprimeRapportsCames(imprimante, {true, true});
        },
        QStringLiteral("Exemple"));
    apercu->resize(620, 860);
    apercu->show();
    LaisseFaire();
    CliqueSur(*apercu, "Suivant");
    CliqueSur(*apercu, "PageEntiere");
    return apercu;
}

// clang-format off
constexpr VueAide vues[] = {
    {"accueil", OuvrePrincipale},
    {"CameType", OuvreBoite<CameType>},
    {"DatoCama", [] { return OuvreExemple("Exemple.Ang", &TypeEtude::ecranSaisie); }},
    {"DoProfil", [] { return OuvreExemple("Translation.Lin", &TypeEtude::ecranSaisie); }},
    {"DoCyl", [] { return OuvreExemple("Barillet.Cyl", &TypeEtude::ecranSaisie); }},
    {"DoCylOsc", [] { return OuvreExemple("Balancier.Osc", &TypeEtude::ecranSaisie); }},
    {"Resultat", [] { return OuvreExemple("Exemple.Ang", &TypeEtude::ecranResultats, 0); }},
    {"Resultat-points", [] { return OuvreExemple("Exemple.Ang", &TypeEtude::ecranResultats, 1); }},
    {"Resultat-mouvement", [] { return OuvreExemple("Exemple.Ang", &TypeEtude::ecranResultats, 2); }},
    {"Resultat-efforts", [] { return OuvreExemple("Exemple.Ang", &TypeEtude::ecranResultats, 3); }},
    {"Resultat-came", [] { return OuvreExemple("Exemple.Ang", &TypeEtude::ecranResultats, 4); }},
    {"Resultat-developpee", [] { return OuvreExemple("Deux-tours.Cyl", &TypeEtude::ecranResultats, 4); }},
    {"SeleSauv", [] { CalculeExemple("Exemple.Ang"); return OuvreBoite<SeleSauv>([] { return true; }); }},
    {"ApercuImpression", OuvreApercu},
    {"QuelLoi", [] { return OuvreBoite<QuelLoi>("QuelLoi"); }},
    {"QuelLoiSpe", [] { return OuvreBoite<QuelLoi>("QuelLoiSpe"); }},
    {"LoiMouv", [] { return OuvreLoi("LoiMouv", "MS", {{"Text0", ".5"}, {"Text1", "120"}, {"Text2", "0"}, {"Text3", "40"}, {"Text4", "60"}}); }},
    {"LoiHes", [] { return OuvreLoi("LoiHes", "", {{"Text1", "120"}, {"Text2", "30"}, {"Text3", "60"}}); }},
    {"LoiSpe", [] { return OuvreLoi("LoiSpe", "", {{"Text1", "120"}, {"Text2", "60"}, {"Text3", "30"}, {"Text4", "24"}, {"Text5", "60"}}); }},
    {"LoisLiq", [] { return OuvreLoi("LoisLiq", "", {{"Text1", "120"}, {"Text2", "30"}, {"Text3", "60"}, {"Text4", ".125"}}); }},
    {"LoiMSHDis", [] { return OuvreLoi("LoiMSHDis", "", {{"Text1", "100"}, {"Text2", "140"}, {"Text3", "30"}, {"Text4", "60"}}); }},
    {"CylindriqueIndexeur", OuvreIndexeurCyl<0>},
    {"CylindriqueIndexeur-resultats", OuvreIndexeurCyl<1>},
    {"CamesConjugeesOscillation", [] { return OuvreExemple("Conjuguees.Cjg", &TypeEtude::ecranSaisie, 0); }},
    {"CamesConjugeesOscillation-profils", [] { return OuvreExemple("Conjuguees.Cjg", &TypeEtude::ecranSaisie, 2); }},
    {"CamesConjugueesIndexeur", OuvreIndexeurConjugue<0>},
    {"CamesConjugueesIndexeur-resultats", OuvreIndexeurConjugue<1>},
    {"CamesConjugueesIndexeur-graphes", OuvreIndexeurConjugue<2>},
    {"GlobiqueIndexeur", OuvreIndexeurGlobique<0>},
    {"GlobiqueIndexeur-resultats", OuvreIndexeurGlobique<1>},
    {"GlobiqueIndexeur-section", OuvreIndexeurGlobique<3>},
    {"GlobiqueIndexeur-parcours", OuvreIndexeurGlobique<4>},
    {"GlobiqueOscillateur", OuvreOscillateurGlobique<0>},
    {"GlobiqueOscillateur-resultats", OuvreOscillateurGlobique<1>},
    {"Inerties", OuvreInerties},
    {"Propos", OuvreBoite<Propos>},
    {"Persona", OuvrePersona, "Persona"},
};
// clang-format on

/// The caption of a control, without its access key and the numbers that it shows: results are no layout. Empty for a
/// control without one.
QString Legende(const QWidget& controle) {
    QString legende;
    if (const auto* etiquette = qobject_cast<const QLabel*>(&controle)) legende = etiquette->text();
    if (const auto* bouton = qobject_cast<const QAbstractButton*>(&controle)) legende = bouton->text();
    if (const auto* groupe = qobject_cast<const QGroupBox*>(&controle)) legende = groupe->title();
    if (const auto* onglets = qobject_cast<const QTabBar*>(&controle))
        for (int i = 0; i < onglets->count(); ++i)
            if (onglets->isTabVisible(i)) legende += onglets->tabText(i) + "|";
    if (const auto* table = qobject_cast<const QTableView*>(&controle))
        for (int i = 0; table->model() != nullptr && i < table->model()->columnCount(); ++i)
            legende += table->model()->headerData(i, Qt::Horizontal).toString() + "|";
    legende.remove('&');
    static const QRegularExpression nombres("[0-9.,-]+"), lettre("\\p{L}");
    return lettre.match(legende).hasMatch() ? legende.replace(nombres, "#") : QString();
}

void Decrit(const QWidget& controle, const QWidget& ecran, int niveau, QByteArray& texte) {
    if (!controle.isVisibleTo(&ecran)) return;
    // What the toolkit makes for itself differs from one of its versions to the next.
    const QString nom = controle.objectName().startsWith(QLatin1String("qt_")) ? QString() : controle.objectName();
    const QString legende = Legende(controle);
    if (!nom.isEmpty() || !legende.isEmpty()) {
        texte += QByteArray::number(niveau++) + ' ' + controle.metaObject()->className() + ' ' + nom.toUtf8() + ' ' +
                 legende.toUtf8() + '\n';
    }
    for (const QObject* enfant : controle.children())
        if (enfant->isWidgetType()) Decrit(*static_cast<const QWidget*>(enfant), ecran, niveau, texte);
}

} // namespace

std::string VueAide::Page() const {
    const std::string nom = image;
    return nom.substr(0, nom.find('-'));
}

bool VueAide::Disponible() const {
    return ecran == nullptr || TrouveEcran(ecran) != nullptr;
}

std::span<const VueAide> LesVuesAide() {
    return vues;
}

void CommenceVue(const char* langue) {
    etude = Etude{};
    ChargeLois();
    ChoisitLangue(langue);
    ChargeTextesQt(langue);
}

QString Empreinte(const QWidget& ecran) {
    QByteArray texte;
    Decrit(ecran, ecran, 0, texte);
    return QString::fromLatin1(QCryptographicHash::hash(texte, QCryptographicHash::Sha1).toHex().left(16));
}
