// A help file: the pages of one language, packed by the build out of `docs/aide`. A page bears the name of the screen
// that it is about, or a name of its own.
#pragma once

#include <QString>
#include <QUrl>

#include <filesystem>
#include <vector>

struct PageAide {
    QString nom;
    int groupe; ///< text number of the group that it stands in
    QString titre;
    QString texte; ///< its words, without marks
    QString plie;  ///< the same, folded
};

/// A page that holds what was looked for.
struct Trouvaille {
    const PageAide* page;
    QString extrait; ///< the words around the first place
};

/// Without accents and capitals, character for character: a place in the result is the same place in `texte`.
QString Plie(const QString& texte);

/// The words of what was typed, folded.
QStringList Mots(const QString& saisie);

class LivreAide {
public:
    /// Opens a help file. Only one is open at a time.
    explicit LivreAide(const std::filesystem::path& fichier);
    ~LivreAide();
    LivreAide(const LivreAide&) = delete;
    LivreAide& operator=(const LivreAide&) = delete;

    /// The pages in the order of the contents; none for a file that is missing or no help file.
    const std::vector<PageAide>& Pages() const { return pages_; }

    /// The page of that name; none for an unknown one.
    const PageAide* Trouve(const QString& nom) const;

    /// The pages that hold every word, those first whose title does.
    std::vector<Trouvaille> Cherche(const QString& saisie) const;

    static QUrl Adresse(const QString& nom);
    static QString NomPage(const QUrl& adresse);

private:
    QString fichier_;
    std::vector<PageAide> pages_;
};
