// Run-time failures. They are thrown where the arithmetic or a file gives out, and told at the event loop of the
// desktop program and at the command of the batch companion, unless whoever asked can say or do something better.
#pragma once

#include <stdexcept>
#include <string>

/// What went wrong. The values are the program's own run-time error numbers and are shown to the user.
enum class NumeroErreur {
    AppelIncorrect = 5,      ///< an argument makes no sense (a law name that cannot be cut)
    Depassement = 6,         ///< a value does not fit a 16-bit integer, or a number its type
    IndiceHorsLimites = 9,   ///< subscript out of range
    DivisionParZero = 11,    ///< division by zero
    TypeIncompatible = 13,   ///< a text stands where a number is needed, or the reverse
    Interruption = 18,       ///< the user has stopped what was under way
    FichierIntrouvable = 53, ///< no such file
    EntreeSortie = 57,       ///< the device failed while reading or writing
    DisquePlein = 61,        ///< no room left on the device
    FinDeFichier = 62,       ///< input past the end of the file
    AccesFichier = 75,       ///< the path or the file cannot be opened
    DossierIntrouvable = 76, ///< no such folder
    ContenuInvalide = 321,   ///< a file holds what it cannot hold
    ExtensionInconnue = 322, ///< no study has files of this extension
    FichierTropGrand = 323,  ///< larger than any file of the program
    TypeNonCalcule = 324,    ///< a kind of study that this version does not calculate
    ResultatNonFini = 325,   ///< a result is no number: the data are beyond all measure
    PointsIncomplets = 326,  ///< the last zone does not end on a point
    BaseIllisible = 3031,    ///< wrong password, or a damaged database
    BaseOccupee = 3045,      ///< another program holds the database
};

/// A run-time failure. `detail` says what it is about (a file, a table), and may be empty.
class ErreurExecution : public std::runtime_error {
public:
    explicit ErreurExecution(NumeroErreur numero_, const std::string& detail_ = {})
        : std::runtime_error("run-time failure " + std::to_string(static_cast<int>(numero_)) +
                             (detail_.empty() ? "" : ": " + detail_)),
          numero(numero_), detail(detail_) {}

    NumeroErreur numero;
    std::string detail;
};
