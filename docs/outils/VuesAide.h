// The screens as the pictures of the help show them: each opened on a worked example in the present language. The
// program that makes the pictures and the test that finds them old walk the same table.
#pragma once

#include <QString>
#include <QWidget>

#include <memory>
#include <span>
#include <string>

struct VueAide {
    const char* image; ///< name of its picture: the screen's page, "-" and what of it is shown
    std::unique_ptr<QWidget> (*ouvre)();
    const char* ecran = nullptr; ///< the screen that must be built for it

    /// Name of the page that is about the screen.
    std::string Page() const;
    bool Disponible() const;
};

std::span<const VueAide> LesVuesAide();

/// The folder of docs/aide of each delivered language.
struct LangueAide {
    const char* langue;
    const char* dossier;
};
inline constexpr LangueAide LesLanguesAide[] = {{"Français", "fr"}, {"Español", "es"}, {"English", "en"}};

/// Takes a language for a view: the texts, and an empty study.
void CommenceVue(const char* langue);

/// What a picture shows that the fonts of a machine do not change: classes, names, places among each other and captions
/// of the controls, hashed.
QString Empreinte(const QWidget& ecran);
