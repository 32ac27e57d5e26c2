#pragma once

#include "foundations/PlaceTextes.hpp"
#include "foundations/Surface.hpp"
#include "shell/bureau/Bureau.hpp"

#include <QFont>
#include <QFontMetricsF>
#include <QWidget>

#include <string>
#include <unordered_map>
#include <vector>

class QPainter;

namespace velmaris::qt {

/// The font of a surface as the toolkit's.
/// @param facteur  units of what is painted on, per 1/1440 inch
/// @param support  what is painted on
QFont PoliceQt(const Police &police, double facteur, const QPaintDevice &support);

/// Height of a surface's line of text in 1/1440 inch. It goes into the record, so it is measured by the screen's own
/// measure and not by the window's scale.
double Interligne(const Surface &surface, const QWidget &widget);

/// How a surface is painted.
struct Maniere {
  Eclairage eclairage = Eclairage::Jour; ///< by what light it is seen
  double pixel = 1.0;                    ///< painter's units that a line of width 1 takes
};

/// Paints the filled shapes of a surface, where they are to be seen.
/// @param painter, facteur, maniere  as for PeintLignes
void PeintAires(QPainter &painter, const Surface &surface, double facteur, Maniere maniere);

/// Paints lines and circles of a surface.
/// @param painter  its unit is the toolkit's pixel, or a printer's
/// @param facteur  units per 1/1440 inch
/// @param premier  first recorded trace to paint
/// @param maniere  how, beyond what is recorded
void PeintLignes(QPainter &painter, const Surface &surface, double facteur, std::size_t premier, Maniere maniere);

/// Paints lines and circles of the layer over a surface.
/// @param painter, facteur, maniere  as for PeintLignes
void PeintCalque(QPainter &painter, const Surface &surface, double facteur, Maniere maniere);

/// The sizes of texts by one scale, kept from one picture to the next.
class MesuresTextes {
public:
  /// The room that a text takes, 1/1440 inch.
  /// @param support  what is painted on
  /// @param facteur  as for PeintLignes; another one than before forgets all sizes
  TailleTexte De(const TexteTrace &texte, const QPaintDevice &support, double facteur);

private:
  struct Fonte {
    Police police;
    QFontMetricsF metrique;
    std::unordered_map<std::string, TailleTexte> tailles;
  };
  Fonte &FonteDe(const Police &police, const QPaintDevice &support);

  double facteur_ = 0.0;
  std::vector<Fonte> fontes_;
};

/// The texts of a surface that are painted, and where, by the sizes that they have with a painter.
/// @param painter, facteur  as for PeintLignes
/// @param reserves          as for PlaceTextes
std::vector<TextePlace> TextesPeints(const QPainter &painter, const Surface &surface, double facteur,
                                     MesuresTextes &mesures, std::span<const ZoneTexte> reserves = {});

/// Paints texts of a surface in given places.
/// @param painter, facteur, maniere  as for PeintLignes
void PeintTextes(QPainter &painter, const Surface &surface, double facteur, const std::vector<TextePlace> &textes,
                 Maniere maniere);

/// Paints what is recorded on a surface, filled shapes first, then lines and the layer, and over them the texts
/// that are to be seen.
/// @param painter, facteur, maniere  as for PeintLignes
/// @return the texts painted, in 1/1440 inch
std::vector<TextePlace> PeintTraces(QPainter &painter, const Surface &surface, double facteur, Maniere maniere = {});

} // namespace velmaris::qt
