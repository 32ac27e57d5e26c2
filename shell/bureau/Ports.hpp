#pragma once

#include "foundations/ValeurDate.hpp"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace velmaris {

enum class Icone : std::uint8_t { Aucune, Information, Question, Attention, Erreur };

/// A message box: one button to acknowledge, or a question with Yes and No.
struct Boite {
  std::string texte;
  std::string titre = "Velmaris";
  Icone icone = Icone::Aucune;
  bool question = false;
  bool nonParDefaut = false;
  std::string autre = {};        ///< of a box that tells: caption of a second button; empty for none
  std::string adresse = {};      ///< shown under the text, to be copied
  std::string_view fenetre = {}; ///< name of the window that it belongs to; empty for the one that the user is in
};

struct Avancement;
struct CadreFenetre;
struct Feuillet;
struct Impression;
struct Surface;

/// The forms in which a picture is saved.
enum class FormeImage : std::uint8_t { Png, Svg, Pdf };

/// What the core asks of the outside.
struct Ports {
  /// Shows a box and waits. @return true for Yes, and for the second button of a box that has one
  std::function<bool(const Boite &)> boite = [](const Boite &) { return false; };
  /// Shows a window over the main one and waits until it is no longer visible.
  std::function<void(CadreFenetre &)> modale = [](CadreFenetre &) {};
  /// Lets the interface live until something has happened in it.
  std::function<void()> attend = [] {};
  /// Lets the interface paint itself, in the middle of a long drawing; all events wait.
  std::function<void()> respire = [] {};
  /// Does a piece of work beside the interface. What it gives is run as an event once it is done; pieces are done in
  /// the order in which they are given. Without another thread it is done at once.
  std::function<void(std::function<std::function<void()>()>)> travaille =
      [](const std::function<std::function<void()>()> &travail) { travail()(); };
  /// Width of a text in one line, 1/1440 inch: its words, the font's points, and whether it is bold.
  std::function<double(const std::string &, double, bool)> largeurTexte = [](const std::string &texte, double taille,
                                                                             bool gras) {
    return static_cast<double>(texte.size()) * taille * (gras ? 12.0 : 11.0); // a typical face, near enough
  };
  /// Puts a file into the desktop's trash, or deletes it where there is none. @return false when it is still there
  std::function<bool(const std::filesystem::path &)> jette = [](const std::filesystem::path &fichier) {
    std::error_code refus;
    return std::filesystem::remove(fichier, refus);
  };
  /// Prints the page without its button, once the user has chosen where; giving up is no failure.
  /// @return false when it failed
  std::function<bool(const Impression &)> imprime = [](const Impression &) { return false; };
  /// Puts a text on the clipboard.
  std::function<void(const std::string &)> copieTexte = [](const std::string &) {};
  /// Puts the picture of a surface on the clipboard, by day.
  std::function<void(const Surface &)> copieImage = [](const Surface &) {};
  /// The bytes of a file with the picture of a surface, by day; empty when it can't be made.
  std::function<std::string(const Surface &, FormeImage)> image = [](const Surface &, FormeImage) {
    return std::string();
  };
  /// The bytes of a PDF file with these pages, whose title is the first one's; empty when it can't be made, or when the
  /// work is to stop. Any thread may ask.
  std::function<std::string(const std::vector<Feuillet> &, const Avancement &)> pdf =
      [](const std::vector<Feuillet> &, const Avancement &) { return std::string(); };
  /// Prints these pages, or those of them that the user chooses, once it is chosen where.
  /// @return how many were printed, 0 when the user gave up; nothing when it failed
  std::function<std::optional<std::size_t>(const std::vector<Feuillet> &)> imprimeFeuillets =
      [](const std::vector<Feuillet> &) { return std::optional<std::size_t>(); };
  /// Opens a web or mail address, or the path of a file, by the desktop's program for it; the second argument is
  /// called when there is none, perhaps later.
  std::function<void(const std::string &, const std::function<void()> &)> ouvre =
      [](const std::string &, const std::function<void()> &sansProgramme) { sansProgramme(); };
  /// Whether the desktop has a program for files of a media type.
  std::function<bool(const std::string &)> lecteur = [](const std::string &) { return false; };
  /// Name of a date's weekday in the system's language, in lower case.
  std::function<std::string(const ValeurDate &)> nomJour = [](const ValeurDate &) { return std::string(); };
  /// Name of a date's month in the system's language.
  std::function<std::string(const ValeurDate &)> nomMois = [](const ValeurDate &) { return std::string(); };
};

/// Where the program's text files are looked up, in this order; what it writes goes to the first.
struct Dossiers {
  std::filesystem::path utilisateur;
  std::filesystem::path programme;
  std::filesystem::path partage;
  std::filesystem::path accueil; ///< the user's own folder, where a dialog starts at first
};

/// The installed share folder: where it lies from the program, else where the build meant to install it.
/// @param programme  folder of the executable
std::filesystem::path DossierPartage(const std::filesystem::path &programme);

/// The folders of this run: the user's data folder, the program's own, the installed share folder, the user's own. The
/// user's are where the environment says by a whole path, else under the home that the account has.
/// @param programme  folder of the executable
Dossiers TrouveDossiers(const std::filesystem::path &programme);

/// The folders that files are looked for from: the user's own, the root, and what is mounted under /media, /run/media
/// and /mnt.
std::vector<std::filesystem::path> Volumes(const std::filesystem::path &accueil);

/// The first folder's file of that name.
/// @return its path; in the last folder when no folder has it
std::filesystem::path TrouveFichier(const Dossiers &dossiers, const std::string &nom);

} // namespace velmaris
