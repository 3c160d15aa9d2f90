#include "app/PriseLocale.h"

#include <utility>

#ifdef __linux__

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace {

/// Longer than a path of the system with what stands before it.
constexpr std::size_t LongueurMessageMax = 8192;

constexpr int GenreMessages = SOCK_SEQPACKET | SOCK_CLOEXEC;

/// The address of a socket file. It has room for 107 bytes, so that the file is named from its folder, held open.
struct Adresse {
    Prise dossier;
    sockaddr_un nom{};

    explicit Adresse(const std::filesystem::path& fichier)
        : dossier(::open(fichier.parent_path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {
        const std::string chemin =
            "/proc/self/fd/" + std::to_string(dossier.Numero()) + "/" + fichier.filename().string();
        if (chemin.size() >= sizeof nom.sun_path) return; // no address: whatever is done with it fails
        nom.sun_family = AF_UNIX;
        std::memcpy(nom.sun_path, chemin.data(), chemin.size());
    }
    const sockaddr* Nom() const { return reinterpret_cast<const sockaddr*>(&nom); }
};

/// Root may open the socket of any user, and others may have put one of theirs where ours is looked for.
bool MemeUtilisateur(const Prise& prise) {
    ucred autre{};
    socklen_t taille = sizeof autre;
    return ::getsockopt(prise.Numero(), SOL_SOCKET, SO_PEERCRED, &autre, &taille) == 0 && autre.uid == ::geteuid();
}

} // namespace

Prise::~Prise() {
    if (numero_ >= 0) ::close(numero_);
}

bool Prise::Envoie(std::string_view message) const {
    return ::send(numero_, message.data(), message.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(message.size());
}

std::optional<std::string> Prise::Recoit() const {
    std::array<char, LongueurMessageMax> tampon;
    const ssize_t longueur = ::recv(numero_, tampon.data(), tampon.size(), MSG_TRUNC);
    if (longueur <= 0 || static_cast<std::size_t>(longueur) > tampon.size()) return {};
    return std::string(tampon.data(), static_cast<std::size_t>(longueur));
}

Prise EcouteLocale(const std::filesystem::path& fichier) {
    const Adresse adresse(fichier);
    Prise ecoute(::socket(AF_UNIX, GenreMessages | SOCK_NONBLOCK, 0));
    std::error_code sansImportance; // what cannot be removed cannot be bound either
    std::filesystem::remove(fichier, sansImportance);
    // The file takes the mode of the socket: it is never there with another one.
    const bool faite = ::fchmod(ecoute.Numero(), S_IRUSR | S_IWUSR) == 0 &&
                       ::bind(ecoute.Numero(), adresse.Nom(), sizeof adresse.nom) == 0 &&
                       ::listen(ecoute.Numero(), SOMAXCONN) == 0;
    return faite ? std::move(ecoute) : Prise();
}

Prise AccepteAppel(const Prise& ecoute) {
    Prise appel(::accept4(ecoute.Numero(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
    return MemeUtilisateur(appel) ? std::move(appel) : Prise();
}

Prise AppelleLocale(const std::filesystem::path& fichier, std::chrono::milliseconds attente) {
    const Adresse adresse(fichier);
    Prise appel(::socket(AF_UNIX, GenreMessages, 0));
    const auto duree = std::max<std::chrono::microseconds::rep>(1, std::chrono::microseconds(attente).count());
    const timeval limite{duree / 1'000'000, duree % 1'000'000}; // of zero it would wait for ever
    for (const int sens : {SO_SNDTIMEO, SO_RCVTIMEO})
        ::setsockopt(appel.Numero(), SOL_SOCKET, sens, &limite, sizeof limite);
    const bool faite = ::connect(appel.Numero(), adresse.Nom(), sizeof adresse.nom) == 0 && MemeUtilisateur(appel);
    return faite ? std::move(appel) : Prise();
}

#else

Prise::~Prise() = default;

bool Prise::Envoie(std::string_view) const {
    return false;
}

std::optional<std::string> Prise::Recoit() const {
    return {};
}

Prise EcouteLocale(const std::filesystem::path&) {
    return {};
}

Prise AccepteAppel(const Prise&) {
    return {};
}

Prise AppelleLocale(const std::filesystem::path&, std::chrono::milliseconds) {
    return {};
}

#endif

Prise::Prise(Prise&& autre) noexcept : numero_(std::exchange(autre.numero_, -1)) {}

Prise& Prise::operator=(Prise&& autre) noexcept {
    std::swap(numero_, autre.numero_);
    return *this;
}
