// Captions come from tables: one row a caption.
#pragma once

#include <span>

class QWidget;

struct Legende {
    const char* controle; ///< object name
    int indice;           ///< tab of a tab sheet, or which of several controls of that name; from 0
    int numero;           ///< text number
};

/// Gives the controls of a screen their captions: labels, buttons, group boxes, tabs, actions, menus, and the title of
/// the screen itself or of a tool bar.
/// @throws std::logic_error when there is no such control, or it has no caption; the message lists the names there are.
void AppliqueLegendes(QWidget& ecran, std::span<const Legende> legendes);
