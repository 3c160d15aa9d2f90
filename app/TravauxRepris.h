// Work that was given up without being saved, and can be taken back: the last one in memory, and what is being entered
// in a recovery file of the user's state folder, for the case that the program is killed.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// What was entered in one window.
struct Travail {
    std::string ecran;   ///< the window that it is shown in
    std::string loi;     ///< key of the law chosen, for the study of a law
    std::string contenu; ///< what the window, or the study record, gave

    bool operator==(const Travail&) const = default;
};

class TravauxRepris {
public:
    /// Offers what a killed run left in its recovery file. A damaged file offers nothing.
    explicit TravauxRepris(std::filesystem::path fichier);

    bool Offerts() const { return !abandonnes_.empty(); }

    /// From now on these are what can be taken back; none leaves what could be before.
    void Abandonne(std::vector<Travail> travaux);

    /// Hands them out, once.
    std::vector<Travail> Reprend();

    /// Brings the recovery file up to what is open and not saved; without any it goes, unless it is of a killed run and
    /// was not taken back yet.
    /// @throws ErreurExecution when it cannot be written.
    void Garde(const std::vector<Travail>& ouverts);

private:
    std::filesystem::path fichier_;
    std::vector<Travail> abandonnes_;
    std::vector<Travail> gardes_; ///< what the recovery file of this run holds
};

/// The recovery file of the program whose database stands in this folder: one for each such folder, since only one run
/// at a time works there.
std::filesystem::path FichierReprise(const std::filesystem::path& dossierBase);
