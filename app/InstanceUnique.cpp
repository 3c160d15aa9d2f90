#include "app/InstanceUnique.h"

#include "core/ErreurExecution.h"
#include "data/Demarrage.h"
#include "widgets/DossiersPoste.h"

#include <QSocketNotifier>
#include <QTimer>

#include <memory>
#include <string_view>
#include <thread>
#include <utility>

namespace fs = std::filesystem;

namespace {

/// A message is its mark, the leave to take the focus, and the file, with this between them.
constexpr char Separateur = '\0';
constexpr std::string_view MarqueRemise = "velorin 1", MarqueRecue = "velorin 1 ok";

/// Between two tries to start.
constexpr std::chrono::milliseconds PasEssais{50};

/// The display that windows of this run come up on.
std::string Affichage() {
    const QByteArray premier = qgetenv("WAYLAND_DISPLAY");
    return (premier.isEmpty() ? qgetenv("DISPLAY") : premier).toStdString();
}

std::string ComposeRemise(const Remise& remise) {
    return std::string(MarqueRemise) + Separateur + remise.jeton + Separateur + remise.fichier.string();
}

/// None for what no start sends.
std::optional<Remise> LitRemise(const std::string& message) {
    const auto jeton = MarqueRemise.size() + 1, fin = message.find(Separateur, jeton);
    if (!message.starts_with(std::string(MarqueRemise) + Separateur) || fin == std::string::npos) return {};
    Remise remise{message.substr(fin + 1), message.substr(jeton, fin - jeton)};
    const bool nomme = remise.fichier.is_absolute() && remise.fichier.string().find(Separateur) == std::string::npos;
    if (!nomme && !remise.fichier.empty()) return {};
    return remise;
}

} // namespace

std::vector<fs::path> AdressesInstance(const fs::path& dossierBase) {
    std::error_code sansImportance; // the same folder has one name, by whichever links it is reached
    fs::path lieu = fs::weakly_canonical(dossierBase, sansImportance);
    lieu += Affichage(); // a window on another display is not to be seen by whoever starts here
    const std::string nom = "velorin-" + EmpreinteDossier(lieu) + ".sock";
    std::vector<fs::path> adresses;
    if (const fs::path lieux = DossierExecution(); !lieux.empty()) adresses.push_back(lieux / nom);
    adresses.push_back(DossierEtat() / "velorin" / nom);
    return adresses;
}

// ---- the window that is open

InstanceUnique::InstanceUnique(const fs::path& dossierBase, std::function<void(const Remise&)> recoit)
    : recoit_(std::move(recoit)) {
    for (const fs::path& adresse : AdressesInstance(dossierBase)) {
        std::error_code sansImportance; // without a socket the program works, and a later start says what it finds
        fs::create_directories(adresse.parent_path(), sansImportance);
        ecoute_ = EcouteLocale(adresse);
        fichier_ = adresse;
        if (ecoute_) break;
    }
    if (!ecoute_) return;
    auto* appels = new QSocketNotifier(ecoute_.Numero(), QSocketNotifier::Read, this);
    connect(appels, &QSocketNotifier::activated, this, &InstanceUnique::PrendAppel);
}

InstanceUnique::~InstanceUnique() {
    std::error_code sansImportance;
    if (ecoute_) fs::remove(fichier_, sansImportance);
}

void InstanceUnique::PrendAppel() {
    const auto appel = std::make_shared<Prise>(AccepteAppel(ecoute_));
    if (!*appel) return;
    auto* parole = new QSocketNotifier(appel->Numero(), QSocketNotifier::Read, this);
    connect(parole, &QSocketNotifier::activated, this, [this, parole, appel] {
        parole->setEnabled(false);
        parole->deleteLater(); // and the socket with it
        Ecoute(*appel);
    });
    QTimer::singleShot(AttenteInstance, parole, &QObject::deleteLater);
}

void InstanceUnique::Ecoute(const Prise& appel) {
    const std::optional<std::string> message = appel.Recoit();
    const std::optional<Remise> remise = message ? LitRemise(*message) : std::nullopt;
    // Who waits no longer has told his user that it failed.
    if (remise && appel.Envoie(MarqueRecue)) recoit_(*remise);
}

// ---- the later start

bool RemetInstance(const fs::path& dossierBase, const Remise& remise, std::chrono::milliseconds attente) {
    for (const fs::path& adresse : AdressesInstance(dossierBase)) {
        const Prise appel = AppelleLocale(adresse, attente);
        if (appel && appel.Envoie(ComposeRemise(remise))) return appel.Recoit() == MarqueRecue;
    }
    return false;
}

std::optional<Configuration> DemarreOuRemet(const std::function<Configuration()>& demarre, const fs::path& fichier) {
    std::optional<std::chrono::steady_clock::time_point> fin; // what the first try took is no waiting
    while (true) {
        try {
            return demarre();
        } catch (const ErreurExecution& erreur) {
            if (erreur.numero != NumeroErreur::BaseOccupee) throw;
            if (!fin) fin = std::chrono::steady_clock::now() + AttenteInstance;
            const Remise remise{fichier.empty() ? fichier : fs::absolute(fichier),
                                qgetenv("XDG_ACTIVATION_TOKEN").toStdString()};
            const auto reste = *fin - std::chrono::steady_clock::now();
            if (RemetInstance(CheminUtilisateur, remise, std::chrono::ceil<std::chrono::milliseconds>(reste)))
                return {};
            if (std::chrono::steady_clock::now() >= *fin) throw;
        }
        std::this_thread::sleep_for(PasEssais);
    }
}
