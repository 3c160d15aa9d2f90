// One window for each folder of the user, where only one run at a time can hold the database. A start first tries the
// database: whoever gets it is the only one, and any socket that stands there was left by a run that was killed.
// Whoever does not get it hands its file to the run that has it, over that run's socket, and ends.
#pragma once

#include "app/PriseLocale.h"
#include "data/Configuration.h"

#include <QObject>

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// What a start hands to the window that is open.
struct Remise {
    std::filesystem::path fichier; ///< absolute; empty when none was named: the window only comes to the front
    std::string jeton;             ///< the leave of the desktop to take the focus; most give none
};

/// How long a start waits for the database or an answer, and a window for what its caller has to say.
inline constexpr std::chrono::milliseconds AttenteInstance{2000};

/// The files of the socket on which the window that works in a folder, on the present display, may listen; in the order
/// in which they are tried.
std::vector<std::filesystem::path> AdressesInstance(const std::filesystem::path& dossierBase);

/// Listens for later starts, from the moment when the database is held until shortly before it is let go of.
class InstanceUnique : public QObject {
public:
    /// @param recoit is called from the event loop for each start, also while a box is open
    InstanceUnique(const std::filesystem::path& dossierBase, std::function<void(const Remise&)> recoit);
    ~InstanceUnique() override;

private:
    void PrendAppel();
    void Ecoute(const Prise& appel);

    std::function<void(const Remise&)> recoit_;
    std::filesystem::path fichier_;
    Prise ecoute_;
};

/// Hands something to the window that works in a folder.
/// @return whether it took it. One that does not answer in time finds it withdrawn.
bool RemetInstance(const std::filesystem::path& dossierBase, const Remise& remise, std::chrono::milliseconds attente);

/// Starts, or hands over what this start was to open (empty for none). A window that is just opening or closing, and
/// another program that is at the database, are waited for.
/// @param demarre the start; it is tried again while the database is in use
/// @return none when a window that was open took it over: this start has nothing more to do.
/// @throws ErreurExecution what the start throws; database in use by another program, `AttenteInstance` after the first
///         try.
std::optional<Configuration> DemarreOuRemet(const std::function<Configuration()>& demarre,
                                            const std::filesystem::path& fichier);
