#pragma once

#include "shell/bureau/Bureau.hpp"

#include <QColor>
#include <QWidget>

namespace velmaris::qt {

/// Makes the widget that shows a control; it bears the control's name and index as its object name.
/// @return null for words that no control shows, and for menus and their entries
QWidget *CreeWidget(Bureau &bureau, const Controle &controle, QWidget *parent);

/// Brings a widget in line with its control.
/// @param vu  the control as the widget showed it last
void AccordeWidget(QWidget &widget, const Controle &controle, const Controle &vu, bool tout);

/// Brings the colours and the picture of a widget in line with the day or the night.
void AccordeTeintes(QWidget &widget, const Controle &controle);

/// A caption broken into lines so that it fits a width; a single line when it does, or when there is no room for two.
QString CoupeLegende(const QString &texte, const QWidget &widget, double largeur, double hauteur);

/// The place of a control in the toolkit's pixels.
QRect PlaceQt(const Place &place, const QWidget &widget);

/// Room that an option or a box keeps for its mark, in the toolkit's pixels.
int LargeurMarque(const QWidget &widget);

} // namespace velmaris::qt
