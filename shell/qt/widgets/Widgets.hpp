#pragma once

#include "shell/bureau/Bureau.hpp"

#include <QWidget>

namespace velmaris::qt {

/// A text of the core as the toolkit's.
QString Texte(const std::string &texte);

/// Whether a caption is the letter of a star, which is shown as a Greek one.
bool EstLettre(const Controle &controle);

/// A caption as the toolkit takes it: an ampersand marks a key only where the control has one.
QString Legende(const Controle &controle);

/// A caption broken into lines so that it fits a width; a single line when it does, or when there is no room for two.
QString CoupeLegende(const QString &texte, const QWidget &widget, double largeur, double hauteur);

/// Width of a caption's widest line as a widget shows it, in the toolkit's pixels.
double LargeurTexte(const QString &texte, const QWidget &widget);

/// A tool tip whose words are shown as they stand: what looks like markup, in a stored name say, is none.
QString Infobulle(const std::string &texte);

/// The place of a control in the toolkit's pixels.
QRect PlaceQt(const Place &place, const QWidget &widget);

/// Room that an option or a box keeps for its mark, in the toolkit's pixels.
int LargeurMarque(const QWidget &widget);

} // namespace velmaris::qt
