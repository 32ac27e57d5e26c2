#pragma once

#include "foundations/Surface.hpp"
#include "lines/DroiteMemoire.hpp"
#include "lines/Feuille.hpp"
#include "lines/Transport.hpp"
#include "shell/bureau/Verification.hpp"
#include "sights/Affichage.hpp"
#include "sights/Observation.hpp"

#include <array>
#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace velmaris {

/// What a control of the main window holds by its user's doing: a field's text, whether an option is chosen, the value
/// of a box or the slider, the line of a list and its text, whether and where a module shows.
struct EtatControle {
  std::string nom;
  int indice = -1;
  std::string valeur;
  bool operator==(const EtatControle &) const = default;
};

/// What a reduction has left: its figures, and the words that show them.
struct EtatResultat {
  ValeursVisee visee;
  AffichageDroite affichage;
  std::string astre;                  ///< name of the body
  std::optional<Observation> reduite; ///< the sight that was reduced, none where there is none to compare with
  std::optional<ViseeDite> dite;      ///< that is checked against the sky of today
  bool operator==(const EtatResultat &) const = default;
};

/// A row of the print page.
struct RangeeImprimee {
  bool visible = false;
  std::array<std::string, 6> textes; ///< its title, then its captions
  bool operator==(const RangeeImprimee &) const = default;
};

/// The sheet: its record, the lines on it, and its picture without the chart.
struct EtatTrace {
  Feuille feuille;
  std::array<Couleur, kNombreDroites> droites{}; ///< state of each stored line: the colour of its labels
  std::array<RangeeImprimee, kNombreDroites> rangees;
  std::vector<Trace> traces;
  std::vector<Etiquette> etiquettes; ///< names at the ends of lines
  bool carte = false;                ///< the chart lies on the surface too
  bool operator==(const EtatTrace &) const = default;
};

/// What the user's gestures can change and undo puts back, as a value.
struct EtatRevocable {
  std::vector<EtatControle> controles; ///< fields, choices and lists, in the order of the window's table
  EtatResultat resultat;
  EtatTrace trace;
  Transports transports;
  std::array<std::string, 2> estimee;                              ///< captions of the dead-reckoning position
  std::array<std::vector<CleValeur>, kNombreDroites> enregistrees; ///< all keys of the stored lines
  bool operator==(const EtatRevocable &) const = default;
};

/// One gesture: its name to the user, and the state before and after it.
struct PasRevocable {
  std::string nom;
  EtatRevocable avant, apres;
};

/// Gestures that are kept to be undone; the oldest goes for one more.
inline constexpr std::size_t kPasGardes = 100;

/// Gestures that can be undone, and those that have been, each the latest last.
struct Annulations {
  std::deque<PasRevocable> faits, defaits;
};

} // namespace velmaris
