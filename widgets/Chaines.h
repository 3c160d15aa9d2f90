// Between the texts of the program (UTF-8 in std::string, std::filesystem::path) and those of the toolkit.
#pragma once

#include "data/Textes.h"

#include <QString>

#include <filesystem>
#include <string>

inline QString Q(const std::string& texte) {
    return QString::fromUtf8(texte.data(), static_cast<qsizetype>(texte.size()));
}

inline std::string S(const QString& texte) {
    const QByteArray octets = texte.toUtf8();
    return {octets.constData(), static_cast<std::size_t>(octets.size())};
}

/// Text number `numero` of the working language.
/// @throws ErreurExecution subscript out of range.
inline QString QTexte(int numero) {
    return Q(Texte(numero));
}

inline QString QChemin(const std::filesystem::path& chemin) {
    const std::u8string octets = chemin.u8string();
    return QString::fromUtf8(reinterpret_cast<const char*>(octets.data()), static_cast<qsizetype>(octets.size()));
}

inline std::filesystem::path Chemin(const QString& chemin) {
    const QByteArray octets = chemin.toUtf8();
    return {std::u8string(octets.begin(), octets.end())};
}
