#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// 1/1440 inch that a pixel of the toolkit counts at scale 1.
inline constexpr double kUnitesParPixel = 15.0;
/// Height of a screen, in 1/1440 inch, with which the drawing surface is 10,800 high: a mile of the world's chart is
/// then one unit by its outlines as by its marks and by the mouse.
inline constexpr double kHauteurJuste = 12592.5;
/// Scale under which nothing could be read any more.
inline constexpr double kEchelleMinimale = 0.8;
/// Pixels of the toolkit that a window manager's title bar takes, near enough.
inline constexpr int kBarreTitre = 32;

/// The least screen that it is laid out for, pixels of the toolkit: none is so small that a size would be none.
inline constexpr double kMoindreLargeur = 640;
inline constexpr double kMoindreHauteur = 400;

/// The screen that the program is laid out for, and by which scale it is brought to the real one.
/// @param largeur, hauteur  the area that the desktop leaves free, in pixels of the toolkit
/// @param pixelsHaut        height of the whole screen in real pixels, by which the compact layout is chosen
Ecran EcranDe(double largeur, double hauteur, int pixelsHaut);

/// The scale with which the main window's content just fills its area, times the user's factor: pixels per 15/1440
/// inch.
/// @param largeur, hauteur  of that area, in pixels of the toolkit
double EchelleContenu(const Bureau &bureau, double largeur, double hauteur);

/// The scale of a window that shows what it has room for: that of the start times the user's factor.
double EchelleFenetre(const Bureau &bureau);

/// The scale of the sky window: the main window's, or less where it is too small for its strip of buttons.
/// @param largeur, hauteur  of its inside, pixels
double EchelleCiel(const Bureau &bureau, double largeur, double hauteur);

/// The scale with which the print page fills its window.
/// @param largeur, hauteur  of its inside, pixels
double EchellePage(const CadreFenetre &cadre, double largeur, double hauteur);

/// The scale of a window over the main one: that of the start times the user's factor, less where the window would not
/// fit its screen.
/// @param cadre             the window's size in 1/1440 inch
/// @param largeur, hauteur  the area that the desktop leaves free, in pixels of the toolkit
double EchelleDialogue(const Bureau &bureau, const CadreFenetre &cadre, double largeur, double hauteur);

/// Reads from the settings how large the user wants everything.
void LitTaille(Bureau &bureau);

/// Everything larger or smaller by a step, from 80 to 200 percent, or as the screen has it; kept at once.
/// @{
void PU_TaillePlus_Click(Bureau &bureau, int indice);
void PU_TailleMoins_Click(Bureau &bureau, int indice);
void PU_TailleAuto_Click(Bureau &bureau, int indice);
/// @}

/// The main window fills the whole screen, or no longer.
void PU_PleinEcran_Click(Bureau &bureau, int indice);

} // namespace velmaris
