// The printout of a law study: its data, results and graphs, then the table of its points.
#pragma once

#include "laws/EtudesLois.h"
#include "platform/Imprimante.h"

/// What the printout of a study needs besides the record.
struct RapportLoi {
    const EtudeLoi* loi = nullptr;
    std::string titre; ///< name of the law
    ResultatLoi resultat;
};

/// Prints data, results and graphs, then the points, and ends the document.
/// @throws ErreurExecution input/output when the printer fails.
void ImprimeEtudeLoi(Imprimante& imprimante, const RapportLoi& rapport);
