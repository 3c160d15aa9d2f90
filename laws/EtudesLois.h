// The studies of a single law, without a cam: from a cam angle, a stroke and a speed to the motion and its maxima. One
// row a study says what it asks for, what is refused, how its unit law is made and what it shows; the screens, the
// printout and the batch companion walk this table.
//
// A study works on the record: inputs in its members, the unit law in `LoiUnite`, the motion in `Mouvement` (mm, m/s,
// m/s², or degrees, rad/s, rad/s²) and `Points.Angle`.
#pragma once

#include "core/Champ.h"
#include "core/Etude.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

/// What a number of a law study measures. The unit of the output quantities is that of the output: mm or degrees.
enum class Grandeur { Nombre, AngleEntree, Pourcentage, Tours, Duree, Sortie, Vitesse, Accel };

/// Text number of a unit in the present output unit; 0 for a plain number.
int UniteLoi(Grandeur grandeur);

/// An input of a law study. Its row has no unit of its own where that follows the unit of the output.
struct ChampLoi : Champ<DonneesEtude> {
    Grandeur grandeur;
    int texteMm = 0;             ///< text number of the label when the output is a length; 0 when it is the same
    bool signe = false;          ///< a negative value may be typed
    bool (*employe)() = nullptr; ///< whether the law chosen asks for it; none when every law does

    bool Employe() const { return employe == nullptr || employe(); }
    /// Text number of the label in the present output unit.
    int Libelle() const { return texteMm != 0 && !etude.donnees.SortieEnDegres ? texteMm : texte; }
};

/// What a study gives besides its tables.
struct ResultatLoi {
    double CoefA = 0, CoefB = 0, CoefC = 0, CoefD = 0; ///< shares of a law of the catalogue
    double CoefFixe = 0;
    double CoefAccel = 0, CoefVitesse = 0; ///< maxima of the unit law
    double VitesseRapide = 0, VitesseLente = 0;
    double AccelRapide = 0, AccelFreinage = 0, AccelLente = 0; ///< start and braking of the fast part, stop
    double DecelerationMaxi = 0;
    double VitesseMaxi = 0, AccelerationMaxi = 0; ///< largest magnitudes
    double Duree = 0;                             ///< s
};

struct ValeurLoi {
    const char* controle;
    int texte; ///< text number of the label
    Grandeur grandeur;
    double ResultatLoi::*membre;
    const char* masque;
};

/// Why a study is refused, and the input that the focus goes to.
struct FauteLoi {
    std::string texte;
    Champ<DonneesEtude>::Membre membre;
};

struct EtudeLoi {
    const char* ecran;   ///< its screen
    const char* typeLoi; ///< `TypeLoi` while that screen is open
    const char* genre;   ///< what the batch companion calls it; none when it has another command
    int titre;           ///< text number of its caption; 0 for that of the law chosen
    Booleen16 DonneesEtude::*active;
    bool degresDabord; ///< the first of the two units is degrees
    std::span<const ChampLoi> champs;
    std::span<const ValeurLoi> valeurs;
    std::optional<FauteLoi> (*chercheFaute)();
    std::span<double DonneesEtude::*const> angles; ///< the cam angles of the motion, one after the other
    /// The unit law into `LoiUnite`, its coefficients into the result; the amplitudes shown are unit values still.
    void (*remplit)(ResultatLoi& resultat);
    bool pasEntiers = false; ///< the angle is rounded to whole steps, and the motion lasts those
};

std::span<const EtudeLoi> LesEtudesLois();

/// The row of a screen, or of a kind of the batch companion; none for an unknown one.
const EtudeLoi* TrouveEtudeLoi(std::string_view ecran);
const EtudeLoi* TrouveGenreLoi(std::string_view genre);

/// Points per degree that a law study offers.
inline constexpr std::int16_t PointsParDegreLoi[] = {1, 2, 4, 5, 10};

/// The first input that keeps the study from being calculated, which sets `Erreur`; none when all will do.
std::optional<FauteLoi> ChercheFauteLoi(const EtudeLoi& loi);

/// Calculates a study that `ChercheFauteLoi` lets through.
/// @throws ErreurExecution overflow; division by zero; a result that is no number.
ResultatLoi CalculeEtudeLoi(const EtudeLoi& loi);

/// True when the law chosen is the one whose percentage the user gives; true when it is of the MSH family.
bool LoiChoisieSpe();
bool LoiChoisieMSH();
