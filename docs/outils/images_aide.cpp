// Makes the pictures of the help out of the program itself, and notes of which layout they are.
//   images_aide <folder docs/aide> [picture...]    with names, only those
#include "core/FichierEntier.h"
#include "data/Demarrage.h"
#include "docs/outils/VuesAide.h"
#include "platform/Dialogues.h"
#include "widgets/Application.h"
#include "widgets/Chaines.h"

#include <QBuffer>
#include <QHash>
#include <QImageWriter>

#include <algorithm>
#include <cstdio>
#include <map>
#include <stdexcept>

namespace {

/// No example of the help asks anything.
class SansDialogues : public Dialogues {
public:
    void Message(Icone, const std::string& texte, const std::string&) override { throw std::runtime_error(texte); }
    bool Question(const std::string& texte) override { throw std::runtime_error(texte); }
    std::optional<std::string> Saisie(const std::string&, const std::string& invite, const std::string&) override {
        throw std::runtime_error(invite);
    }
    std::optional<std::filesystem::path> FichierAOuvrir(const DemandeFichier& demande) override {
        throw std::runtime_error(demande.titre);
    }
    std::optional<std::filesystem::path> FichierASauver(const DemandeFichier& demande) override {
        throw std::runtime_error(demande.titre);
    }
};

constexpr qsizetype CouleursMax = 256;

/// The colours of a picture, the most frequent first.
QList<QRgb> CouleursParNombre(const QImage& image) {
    QHash<QRgb, int> nombres;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) ++nombres[image.pixel(x, y)];
    QList<QRgb> couleurs = nombres.keys();
    std::sort(couleurs.begin(), couleurs.end(), [&](QRgb a, QRgb b) {
        return std::pair(nombres[b], a) < std::pair(nombres[a], b); // of equal ones always the same first
    });
    return couleurs;
}

int Ecart(QRgb a, QRgb b) {
    const int r = qRed(a) - qRed(b), v = qGreen(a) - qGreen(b), c = qBlue(a) - qBlue(b);
    return r * r + v * v + c * c;
}

/// Those that no more frequent one comes near to: as few as a palette can hold, as near as that allows.
QList<QRgb> Palette(const QList<QRgb>& couleurs) {
    for (int proche = 1;; proche *= 2) {
        QList<QRgb> gardees;
        for (const QRgb couleur : couleurs)
            if (gardees.size() <= CouleursMax &&
                std::none_of(gardees.begin(), gardees.end(), [&](QRgb g) { return Ecart(g, couleur) < proche; }))
                gardees.append(couleur);
        if (gardees.size() <= CouleursMax) return gardees;
    }
}

/// The picture with a palette of its own, each colour the nearest there.
QImage AvecPalette(const QImage& image) {
    const QList<QRgb> couleurs = CouleursParNombre(image), gardees = Palette(couleurs);
    QHash<QRgb, uchar> places;
    for (const QRgb couleur : couleurs)
        places[couleur] = static_cast<uchar>(
            std::min_element(gardees.begin(), gardees.end(),
                             [couleur](QRgb a, QRgb b) { return Ecart(a, couleur) < Ecart(b, couleur); }) -
            gardees.begin());
    QImage palette(image.size(), QImage::Format_Indexed8);
    palette.setColorTable(gardees);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) palette.scanLine(y)[x] = places[image.pixel(x, y)];
    return palette;
}

std::string Png(const QImage& image) {
    QBuffer contenu;
    QImageWriter ecrivain(&contenu, "png");
    ecrivain.setCompression(100);
    if (!ecrivain.write(AvecPalette(image))) throw std::runtime_error("no picture");
    return contenu.data().toStdString();
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) return std::fputs("images_aide <docs/aide> [picture...]\n", stderr), 1;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Application application(argc, argv);
    SansDialogues dialogues;
    const InstalleDialogues installe(dialogues);
    CheminAppli = VELORIN_DOSSIER;
    LaBase = BaseDonnees::Ouvre(CheminAppli / NomBase, MotDePasseBase, BaseDonnees::Usage::Lecture);
    const std::filesystem::path docs = argv[1];
    const QStringList voulues = Application::arguments().mid(2);

    std::map<std::string, std::string> empreintes; ///< of the pictures that are left as they are
    const QStringList lignes =
        Q(std::filesystem::exists(docs / "images.tsv") ? LitFichierEntier(docs / "images.tsv") : "").split('\n');
    for (const QString& ligne : lignes) empreintes[S(ligne.section('\t', 0, 0))] = S(ligne.section('\t', 1));
    std::string table = "image\tempreinte\n";
    for (const auto& [langue, dossier] : LesLanguesAide)
        for (const VueAide& vue : LesVuesAide()) {
            const std::string nom = std::string(dossier) + "/images/" + vue.image + ".png";
            if (vue.Disponible() && (voulues.isEmpty() || voulues.contains(QString::fromLatin1(vue.image)))) {
                CommenceVue(langue);
                const std::unique_ptr<QWidget> ecran = vue.ouvre();
                EcritFichierEntier(docs / nom, Png(ecran->grab().toImage().convertToFormat(QImage::Format_RGB32)));
                empreintes[nom] = S(Empreinte(*ecran));
                std::printf("%s\n", nom.c_str());
            }
            if (empreintes.contains(nom)) table += nom + "\t" + empreintes[nom] + "\n";
        }
    EcritFichierEntier(docs / "images.tsv", table);
    return 0;
}
