#pragma once

#include "shell/bureau/Magasin.hpp"

#include <array>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velmaris {

inline constexpr std::string_view kApplication = "Velmaris";
inline constexpr std::string_view kSection = "Valeurs";

/// What opening or writing the store met.
enum class EtatMagasin : std::uint8_t {
  Sain,     ///< values are kept
  Abime,    ///< the file was damaged and set aside; values are kept in a new one
  SansTrace ///< nothing can be written: values live in memory until the program ends
};

/// The per-user store of named text values, addressed by application, section and key; keys compare without case.
/// All values are in memory, and what another program writes is read again. While another program holds the file, what
/// is in memory answers; a new value waits there, and is written with all others that wait as soon as the file is free.
/// The program never stands still for longer than its patience.
class Valeurs {
public:
  /// Opens the store, making its folder and file when they are missing. A damaged file is set aside under a new name.
  /// @param fichier  the store's file; an empty path gives a store in memory
  explicit Valeurs(std::filesystem::path fichier);
  /// Tries once more to write what waits.
  ~Valeurs();
  Valeurs(const Valeurs &) = delete;
  Valeurs &operator=(const Valeurs &) = delete;
  Valeurs(Valeurs &&) = delete;
  Valeurs &operator=(Valeurs &&) = delete;

  /// The stored text, or the default. In a group of SaveSetting it is the one before the group.
  std::string GetSetting(std::string_view application, std::string_view section, std::string_view cle,
                         std::string_view defaut = {}) const;

  /// Creates or replaces a value; it is on the disk when this returns, unless it stands in a group or `enAttente` says
  /// so. When the disk refuses, the store goes on in memory with all its values and `etat` says so.
  void SaveSetting(std::string_view application, std::string_view section, std::string_view cle,
                   std::string_view valeur);

  /// Runs a group of SaveSetting as one: after a crash either all of them stand or none. One that throws keeps none.
  template <class Ecritures> void Ensemble(Ecritures &&ecritures) {
    const Groupe groupe(groupe_);
    ecritures();
    Retient(std::exchange(groupe_, {}).valeurs);
  }

  /// Runs a group of GetSetting on one state of the store, whatever another program writes meanwhile.
  template <class Lectures> void EnsembleLu(Lectures &&lectures) {
    Rafraichit(patience_);
    const Pause pause(lectureFigee_);
    lectures();
  }

  /// Writes what waits if that can be done without waiting for another program.
  void Retente();

  /// What is left of the waiting for other programs; begun anew, the next access waits again.
  Patience &patience() { return patience_; }

  /// Whether another program holds the file, so that values wait in memory or have never been read.
  bool enAttente() const;

  /// Whether the stored values have never been read, but may still be.
  bool aveugle() const { return !lu_ && !enMemoire_; }

  /// Drops the values that wait: those that stand in for what couldn't be read aren't new ones.
  void OublieEnAttente();

  EtatMagasin etat() const { return etat_; }
  /// The damaged file's new name, or the file that can't be written or is held.
  const std::filesystem::path &fichierEnCause() const {
    return etat_ == EtatMagasin::Abime ? magasin_.misDeCote() : fichier_;
  }

private:
  using Adresse = std::array<std::string, 3>;
  struct Valeur {
    std::string texte;
    bool enAttente = false; ///< not yet written
  };
  /// The values of a group under way.
  struct GroupeEcrit {
    bool ouvert = false;
    std::vector<ValeurGardee> valeurs;
  };
  /// Opens a group and closes it with its scope.
  class Groupe {
  public:
    explicit Groupe(GroupeEcrit &groupe) : groupe_(groupe) { groupe_ = {.ouvert = true, .valeurs = {}}; }
    ~Groupe() { groupe_ = {}; }
    Groupe(const Groupe &) = delete;
    Groupe &operator=(const Groupe &) = delete;
    Groupe(Groupe &&) = delete;
    Groupe &operator=(Groupe &&) = delete;

  private:
    GroupeEcrit &groupe_;
  };
  /// Values aren't read again within its scope.
  class Pause {
  public:
    explicit Pause(bool &figee) : figee_(figee) { figee = true; }
    ~Pause() { figee_ = false; }
    Pause(const Pause &) = delete;
    Pause &operator=(const Pause &) = delete;
    Pause(Pause &&) = delete;
    Pause &operator=(Pause &&) = delete;

  private:
    bool &figee_;
  };

  static Adresse AdresseDe(std::string_view application, std::string_view section, std::string_view cle);
  void Rafraichit(Patience &patience) const;
  void Ouvre(Patience &patience);
  void Retient(const std::vector<ValeurGardee> &valeurs);
  void Ecrit(Patience &patience);
  void PasseEnMemoire();

  std::filesystem::path fichier_;
  mutable Magasin magasin_;
  mutable Patience patience_;
  mutable std::map<Adresse, Valeur> valeurs_;
  std::vector<ValeurGardee> attente_; ///< values not yet written, in the order in which they were given
  mutable bool lu_ = false;           ///< the file's values have been read
  bool enMemoire_ = false;            ///< there is no file, or none that can be used
  bool lectureFigee_ = false;         ///< a group of readings is under way
  GroupeEcrit groupe_;
  EtatMagasin etat_ = EtatMagasin::Sain;
};

} // namespace velmaris
