// Makes the pictures of the help out of the program itself, and notes of which layout they are.
//   images_aide <folder docs/aide> [picture...]    with names, only those
#include "core/FichierEntier.h"
#include "data/Demarrage.h"
#include "outils/VuesAide.h"
#include "platform/Dialogues.h"
#include "widgets/Application.h"
#include "widgets/Chaines.h"

#include <QBuffer>
#include <QHash>
#include <QImageWriter>

#include <cstdio>
#include <map>
#include <stdexcept>

namespace {

/// No example of the help asks anything.
class SansDialogues : public Dialogues {
public:
    void Message(Icone, const std::string& texte) override { throw std::runtime_error(texte); }
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

constexpr int CouleursMax = 256;

/// The picture with a palette of its own: as many bits of each colour are left as make no more colours than it can
/// hold.
QImage AvecPalette(const QImage& image) {
    for (int perdus = 0;; ++perdus) {
        const QRgb masque = 0x010101U * ((0xFFU << perdus) & 0xFFU);
        QHash<QRgb, int> places;
        QList<QRgb> couleurs;
        QImage palette(image.size(), QImage::Format_Indexed8);
        for (int y = 0; y < image.height() && couleurs.size() <= CouleursMax; ++y) {
            const auto* ligne = reinterpret_cast<const QRgb*>(image.constScanLine(y));
            uchar* indices = palette.scanLine(y);
            for (int x = 0; x < image.width() && couleurs.size() <= CouleursMax; ++x) {
                auto place = places.constFind(ligne[x] & masque);
                if (place == places.constEnd()) {
                    place = places.insert(ligne[x] & masque, static_cast<int>(couleurs.size()));
                    couleurs.append(ligne[x] | 0xFF000000U); // the first colour seen stands for those like it
                }
                indices[x] = static_cast<uchar>(place.value());
            }
        }
        if (couleurs.size() > CouleursMax) continue;
        palette.setColorTable(couleurs);
        return palette;
    }
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
