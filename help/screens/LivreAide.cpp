#include "help/screens/LivreAide.h"

#include "help/TextesAide.h"
#include "widgets/Chaines.h"

#include <QFile>
#include <QResource>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>

namespace {

constexpr const char* Racine = "/aide";

constexpr struct {
    const char* cle;
    int texte;
} groupes[] = {
    {"prise-en-main", TexteGroupePriseEnMain},
    {"lois", TexteGroupeLois},
    {"cames-plates", TexteGroupePlates},
    {"cames-cylindriques", TexteGroupeCylindriques},
    {"cames-conjuguees", TexteGroupeConjuguees},
    {"cames-globiques", TexteGroupeGlobiques},
    {"inertie", TexteGroupeInertie},
    {"resultats", TexteGroupeResultats},
    {"programme", TexteGroupeProgramme},
};

/// How far an extract reaches to each side of what was found, in characters.
constexpr qsizetype PorteeExtrait = 50;

QString LitRessource(const QString& nom) {
    QFile fichier(":" + QString::fromLatin1(Racine) + "/" + nom);
    return fichier.open(QIODevice::ReadOnly) ? QString::fromUtf8(fichier.readAll()) : QString();
}

int TexteGroupe(const QString& cle) {
    const auto groupe = std::find_if(std::begin(groupes), std::end(groupes),
                                     [&](const auto& g) { return cle == QLatin1String(g.cle); });
    return groupe == std::end(groupes) ? int{TexteGroupeProgramme} : groupe->texte;
}

PageAide LitPage(const QString& nom, const QString& groupe) {
    QTextDocument document;
    document.setMarkdown(LitRessource(nom + ".md"));
    PageAide page{nom, TexteGroupe(groupe), document.firstBlock().text(), document.toPlainText(), {}};
    page.texte.remove(QChar::ObjectReplacementCharacter);
    page.texte = page.texte.simplified();
    page.plie = Plie(page.texte);
    return page;
}

bool ContientTous(const QString& plie, const QStringList& mots) {
    return std::all_of(mots.begin(), mots.end(), [&](const QString& mot) { return plie.contains(mot); });
}

/// The words around a place.
QString Extrait(const PageAide& page, qsizetype place) {
    qsizetype debut = std::max<qsizetype>(0, place - PorteeExtrait);
    qsizetype fin = std::min(page.texte.size(), place + PorteeExtrait);
    if (debut > 0) debut = page.texte.indexOf(' ', debut) + 1;
    if (fin < page.texte.size()) fin = std::max(page.texte.lastIndexOf(' ', fin), place);
    return (debut > 0 ? "… " : "") + page.texte.mid(debut, fin - debut) + (fin < page.texte.size() ? " …" : "");
}

} // namespace

QString Plie(const QString& texte) {
    QString plie = texte;
    for (QChar& c : plie) {
        if (c.decompositionTag() == QChar::Canonical) c = c.decomposition().front();
        c = c.isSpace() ? QChar(' ') : c.toLower();
    }
    return plie;
}

QStringList Mots(const QString& saisie) {
    return Plie(saisie).split(' ', Qt::SkipEmptyParts);
}

LivreAide::LivreAide(const std::filesystem::path& fichier) : fichier_(QChemin(fichier)) {
    if (!QResource::registerResource(fichier_, QString::fromLatin1(Racine))) return;
    for (const QString& ligne : LitRessource("sommaire.tsv").split('\n', Qt::SkipEmptyParts).mid(1)) {
        const QStringList cellules = ligne.split('\t');
        PageAide page = LitPage(cellules.value(0), cellules.value(1).trimmed());
        if (!page.titre.isEmpty()) pages_.push_back(std::move(page));
    }
}

LivreAide::~LivreAide() {
    QResource::unregisterResource(fichier_, QString::fromLatin1(Racine));
}

const PageAide* LivreAide::Trouve(const QString& nom) const {
    const auto page = std::find_if(pages_.begin(), pages_.end(), [&](const PageAide& p) { return p.nom == nom; });
    return page == pages_.end() ? nullptr : &*page;
}

std::vector<Trouvaille> LivreAide::Cherche(const QString& saisie) const {
    std::vector<Trouvaille> trouvailles;
    const QStringList mots = Mots(saisie);
    if (mots.isEmpty()) return trouvailles;
    for (const PageAide& page : pages_) {
        if (!ContientTous(page.plie, mots)) continue;
        // Behind the title, where the page says more than it.
        qsizetype place = page.plie.indexOf(mots.front(), page.titre.size());
        if (place < 0) place = page.plie.indexOf(mots.front());
        trouvailles.push_back({&page, Extrait(page, place)});
    }
    std::stable_partition(trouvailles.begin(), trouvailles.end(),
                          [&](const Trouvaille& t) { return ContientTous(Plie(t.page->titre), mots); });
    return trouvailles;
}

QUrl LivreAide::Adresse(const QString& nom) {
    return QUrl("qrc:" + QString::fromLatin1(Racine) + "/" + nom + ".md");
}

QString LivreAide::NomPage(const QUrl& adresse) {
    QString nom = adresse.fileName();
    if (nom.endsWith(QLatin1String(".md"))) nom.chop(3);
    return nom;
}
