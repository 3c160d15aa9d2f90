// A socket between two runs of one user on one machine. A message arrives whole or not at all, so that nothing is put
// together out of pieces. Only Linux has such sockets; elsewhere none is ever made, and every call of a `Prise` fails.
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

/// A socket, closed with this object; false where there is none.
class Prise {
public:
    Prise() = default;
    explicit Prise(int numero) : numero_(numero) {}
    ~Prise();
    Prise(Prise&& autre) noexcept;
    Prise& operator=(Prise&& autre) noexcept;

    explicit operator bool() const { return numero_ >= 0; }
    int Numero() const { return numero_; }

    /// @return false when the other end is gone, or does not take the message in time.
    bool Envoie(std::string_view message) const;

    /// The next message; none when there is none in time, the other end is gone, or it is longer than any of ours.
    std::optional<std::string> Recoit() const;

private:
    int numero_ = -1;
};

/// Listens at a file, which only this user can open, in the place of one that a killed run left there. Neither this
/// socket nor those of its callers are ever waited for.
/// @return none when the file cannot be made.
Prise EcouteLocale(const std::filesystem::path& fichier);

/// The next caller of a listening socket; none when there is none, or it is another user's.
Prise AccepteAppel(const Prise& ecoute);

/// Calls who listens at a file; each wait of this socket lasts so long at most.
/// @return none when nobody listens there, or another user.
Prise AppelleLocale(const std::filesystem::path& fichier, std::chrono::milliseconds attente);
