// The unit laws of the globoidal calculations: lift s from 0 to 1 over u from 0 to 1, with its first two derivatives.
// They stand apart from the laws of the cam studies: their segments meet on other sides, and the law of rise and return
// has two amplitudes here.
//
// A law of the first family has five segments, laid out by four shares of the interval: sine rise of the acceleration
// (a), constant (b), cosine fall (c), none (d), and the mirror image of all these. A law of the second family rises by
// sine, constant and cosine over a + b + c and comes to rest along one quarter wave.
#pragma once

#include "core/Etude.h"

#include <string>
#include <vector>

struct PartsLoi {
    double a = 0, b = 0, c = 0, d = 0;
};

/// The shares a, b, c with what they leave for d; a remainder within 1e-9 of 0 is 0.
PartsLoi CompleteParts(double a, double b, double c);

/// The shares of a named law.
/// @throws ErreurExecution subscript out of range for a name that the catalogue does not have
PartsLoi PartsLoiNommee(const std::string& nom, const Tableau<Loi>& catalogue);

enum class Segment { Sinus, Constante, Cosinus, Vitesse, Miroir };

/// Which segment a point lies on: indexer and oscillator give the joints to different sides.
using JointsLoi = Segment (*)(const PartsLoi& parts, double u);
Segment JointsIndexeur(const PartsLoi& parts, double u);
Segment JointsOscillateur(const PartsLoi& parts, double u);

/// A law of the first family.
struct LoiCinqSegments {
    PartsLoi parts;
    double q1 = 0, q2 = 0, q3 = 0, q4 = 0, q5 = 0, q6 = 0, q7 = 0; ///< integration constants
    double Amax = 0, Vmax = 0;
};
/// @throws ErreurExecution division by zero for shares that give no lift
LoiCinqSegments PrepareCinqSegments(const PartsLoi& parts);

/// The law stretched over its symmetry coefficient S: the first half over 0..S. Exactly 0.5 leaves it as it is.
/// @throws ErreurExecution division by zero on a cosine segment of no length
PointLoi Evalue(const LoiCinqSegments& loi, double u, double S, JointsLoi joints);

/// A law of the second family.
struct LoiDissymetrique {
    PartsLoi parts;
    double h1 = 0, h2 = 0, h3 = 0; ///< ends of its segments
    double g = 0;
    double Ap = 0, An = 0; ///< amplitudes: start, and coming to rest
    double Vmax = 0;
};
LoiDissymetrique PrepareDissymetrique(const PartsLoi& parts);
PointLoi Evalue(const LoiDissymetrique& loi, double u);

/// The law run backwards.
PointLoi Retourne(const PointLoi& point);

/// A law file: one line a point, speeds and accelerations without their signs.
class FichierDeLoi {
public:
    /// @throws ErreurExecution whatever keeps the file from being read
    explicit FichierDeLoi(const std::string& chemin);

    /// Line `ligne`, from 1.
    /// @throws ErreurExecution input past the end of the file
    const PointLoi& Ligne(std::size_t ligne) const;
    std::size_t NombreLignes() const { return points_.size(); }
    const std::string& Chemin() const { return chemin_; }

private:
    std::string chemin_;
    std::vector<PointLoi> points_;
};
