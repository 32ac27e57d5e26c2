#pragma once

#include "foundations/Surface.hpp"
#include "shell/bureau/Bureau.hpp"

#include <QColor>
#include <QImage>
#include <QPalette>

namespace velmaris::qt {

/// The palette, written down once: every colour that the program paints of its own accord, for each light. Inks keep at
/// least these contrasts with their grounds (1 is none, 21 is black on white), and a test holds them:
///
/// | Ink and ground                   | day         | dusk | night |
/// |----------------------------------|-------------|------|-------|
/// | texts of windows and fields      | 4.5         | 4.5  | 3.0   |
/// | figures and names on the surface | 4.5         | 4.5  | 3.0   |
/// | lines of position on the sheet   | as recorded | 3.0  | 3.0   |
///
/// By night all is red under 200 of 255, to spare the eyes, in one order of brightness: line of position, figures,
/// coast, names, land.
struct Teintes {
  QColor fenetre; ///< of a window
  QColor carte;   ///< of a module
  QColor bord;    ///< around it
  QColor bande;   ///< under its title
  QColor terre;   ///< land
  QColor eau;     ///< lakes
  QColor mat;     ///< what the print page lies on
  QColor ombre;   ///< around the page
  QColor alerte;  ///< the frame around what is to be mended
};
const Teintes &TeintesDe(Eclairage eclairage);

/// The toolkit's colours.
/// @param contraste  the desktop's user wants a high contrast: texts stand out by 7 at least, where it isn't night
QPalette PaletteDe(Eclairage eclairage, bool contraste = false);

/// Contrast of two opaque colours, from 1 to 21 (WCAG 2.1, relative luminance of sRGB).
double Contraste(const QColor &a, const QColor &b);

/// A contrast under which no text is painted.
double ContrasteDeTexte(Eclairage eclairage);

/// A ground as that light shows it: by dusk white is a dark grey, by night it is black and a strong colour leaves a
/// trace of red.
QColor FondA(Eclairage eclairage, const QColor &fond);

/// An ink on a ground as that light shows it: the more it stands out by day, the brighter it is in the dark. Ink in the
/// ground's own colour is as little to be seen as by day.
/// @param fond  the ground by day
QColor EncreA(Eclairage eclairage, const QColor &encre, const QColor &fond = Qt::white);

/// The ink of a line of a drawing.
QColor EncreDeLigne(Eclairage eclairage, Couleur couleur, GenreLigne genre, const QColor &fond);

/// The ink of a text of a drawing: of its own colour as long as that can be read.
QColor EncreDeTexte(Eclairage eclairage, Couleur couleur, GenreTexte genre, const QColor &fond);

/// The ink of a text of a window, or of its modules.
QColor EncreDeLegende(Eclairage eclairage, Couleur couleur);

/// The ink of words that stand back and are still to be read, in a row of a list: as pale as the contrast of texts
/// allows. By night there is no room for a paler one.
QColor EncrePale(Eclairage eclairage);

/// A picture as that light shows it.
/// @param fond  the ground that it is seen on by day
void TeinteImage(Eclairage eclairage, QImage &image, const QColor &fond = Qt::white);

/// A colour as the toolkit's.
QColor CouleurQt(Couleur couleur);

} // namespace velmaris::qt
