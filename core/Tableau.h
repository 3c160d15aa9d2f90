// A table whose subscripts run from 0 to an upper bound, both included, and are checked on every access: a subscript
// outside is a run-time failure.
#pragma once

#include "core/ErreurExecution.h"

#include <algorithm>
#include <vector>

template <class T> class Tableau {
public:
    Tableau() = default;

    /// Makes the table anew with subscripts 0..`borneHaute`, every element at its initial value.
    /// @param borneHaute -1 gives an empty table; less is a run-time failure (subscript out of range).
    void Redimensionne(long borneHaute) {
        if (borneHaute < -1) throw ErreurExecution(NumeroErreur::IndiceHorsLimites);
        elements_.assign(static_cast<std::size_t>(borneHaute + 1), T{});
    }

    /// Upper bound; -1 when the table is empty.
    long BorneHaute() const { return static_cast<long>(elements_.size()) - 1; }
    bool Vide() const { return elements_.empty(); }

    T& operator[](long i) { return elements_[Verifie(i)]; }
    const T& operator[](long i) const { return elements_[Verifie(i)]; }

    auto begin() { return elements_.begin(); }
    auto end() { return elements_.end(); }
    auto begin() const { return elements_.begin(); }
    auto end() const { return elements_.end(); }

private:
    std::size_t Verifie(long i) const {
        if (static_cast<std::size_t>(i) >= elements_.size()) throw ErreurExecution(NumeroErreur::IndiceHorsLimites);
        return static_cast<std::size_t>(i);
    }

    std::vector<T> elements_;
};
