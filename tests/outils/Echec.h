// The run-time failure that a call ends with.
#pragma once

#include "core/ErreurExecution.h"

struct Echec {
    NumeroErreur numero{};
    std::string detail;
};

/// What `appel` fails with; number 0 when it does not.
template <class Appel> Echec EchecDe(Appel&& appel) {
    try {
        appel();
    } catch (const ErreurExecution& erreur) {
        return {erreur.numero, erreur.detail};
    }
    return {};
}
