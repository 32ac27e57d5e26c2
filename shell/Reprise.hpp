#pragma once

#include "shell/bureau/Bureau.hpp"
#include "shell/point/SourcesPoint.hpp"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// What lies on the sheet beside the panel's own sight.
struct EtatFeuille {
  Origine origine = kSansFeuille;        ///< of the sheet
  bool grille = false;                   ///< the grid is drawn
  std::array<Couleur, 4> droites{};      ///< state of each stored line: the colour of its labels
  std::string transportsDroite;          ///< lines carried to another line
  std::string cible;                     ///< that line's number
  std::string transportsEstime;          ///< lines carried to the dead-reckoning point
  Origine estime{0.0F, 0.0F};            ///< that point
  std::array<std::string, 2> estimeDite; ///< and its captions
  bool carte = false;                    ///< the chart lies on the surface
  bool operator==(const EtatFeuille &) const = default;
};

/// A session as it can be taken up again: all that its user has typed and chosen, and what no file or store has yet.
struct Session {
  std::vector<EtatControle> controles; ///< of the main window, in the order of its table
  EtatFeuille feuille;
  EtatResultat resultat;
  std::optional<std::string> objets; ///< lines of the user's objects, while they differ from their file
  std::vector<ViseeTenue> point;     ///< the sights that the fix is made of
  bool operator==(const Session &) const = default;
};

/// The session as it is now.
Session PriseSession(Bureau &bureau);

/// A session as the text of a file, which its last line closes.
std::string TexteSession(const Session &session);

/// Reads a session back.
/// @return nothing for a text that isn't one, is of another form, or isn't whole
std::optional<Session> LitSession(std::string_view texte);

/// Names of the recovery file in the user's data folder, and of the one that the program before has left.
inline constexpr const char *kFichierReprise = "reprise.txt";
inline constexpr const char *kDerniereReprise = "reprise-derniere.txt";

/// From here on the session is kept in the recovery file; one that was left there by a program that has died is set
/// aside, and kept in `sessionLaissee`.
void OuvreReprise(Bureau &bureau);

/// Keeps the session as it is now, in the background; where nothing has changed, or nothing has been
/// done since the start, nothing is written; nor before it is settled what becomes of a session that was left.
void GardeSession(Bureau &bureau);

/// The program ends in order: there is nothing to take up again.
void FermeReprise(Bureau &bureau);

} // namespace velmaris
