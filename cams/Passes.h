// A study of several cams: each has a record of its own, which is put in the place of the study's while it is
// calculated or read. What is written for one cam thereby serves each of several.
#pragma once

#include "core/Etude.h"

#include <string>

/// What one of several cams is called.
struct DescriptionPasse {
    const char* nom; ///< in JSON
    int titre;       ///< text number of its full name
    int nomCourt;    ///< text number of its short name, for headings
    int distance;    ///< text number of the heading of its roller's distance on paper
    const char*
        pointsGalet; ///< heads its roller radius in the point file, and `pointsTitre` its points; not translated
    const char* pointsTitre;
};

/// A line of what is checked of several cams together.
struct LigneControle {
    std::string libelle, unite, valeur;
};

/// Shows a cam in the study record for the life of this object: its arm, roller, zones, results and maxima. The flags
/// stay those of the study.
class PasseEnVue {
public:
    /// @param passe must outlive this object
    explicit PasseEnVue(PasseEtude& passe) : passe_(passe) { Echange(); }
    ~PasseEnVue() { Echange(); }
    PasseEnVue(const PasseEnVue&) = delete;
    PasseEnVue& operator=(const PasseEnVue&) = delete;

private:
    void Echange();

    PasseEtude& passe_;
};
