#pragma once

#include "foundations/Patience.hpp"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace velmaris {

/// What became of an access to the store's file.
enum class Acces : std::uint8_t {
  Fait,
  Retenu, ///< another program holds it; nothing has changed
  Abime,  ///< what is there is no store
  Refuse  ///< by the disk or a permission; nothing has changed
};

/// One value of the store, with its address.
struct ValeurGardee {
  std::string application;
  std::string section;
  std::string cle;
  std::string texte;
  bool operator==(const ValeurGardee &) const = default;
};

/// The file of the settings store. It keeps no value itself; every access is given up once the patience is used up.
class Magasin {
public:
  Magasin() = default;
  ~Magasin();
  Magasin(const Magasin &) = delete;
  Magasin &operator=(const Magasin &) = delete;
  Magasin(Magasin &&) = delete;
  Magasin &operator=(Magasin &&) = delete;

  /// Opens the file, making its folder and itself when they are missing. What is there and is no store is set aside
  /// under a new name. A table that has columns beside those of this program is one.
  /// @return Fait, Retenu or Refuse; but for the first it stays closed
  Acces Ouvre(const std::filesystem::path &fichier, Patience &patience);

  bool ouvert() const { return base_ != nullptr; }

  /// The new name of what was set aside, empty when nothing was.
  const std::filesystem::path &misDeCote() const { return misDeCote_; }

  /// Reads all values of the open file at one moment, unless nobody has changed them since they were last read.
  /// @param valeurs  replaced when they were read
  /// @param lues     whether they were
  Acces Lit(std::vector<ValeurGardee> &valeurs, bool &lues, Patience &patience);

  /// Writes values into the open file, all or none; they are on the disk when this returns Fait.
  Acces Ecrit(const std::vector<ValeurGardee> &valeurs, Patience &patience);

  void Ferme();

private:
  struct Fermeture {
    void operator()(sqlite3 *base) const;
    void operator()(sqlite3_stmt *instruction) const;
  };
  Acces OuvreBase(const std::filesystem::path &fichier);
  Acces Execute(const char *instruction);
  Acces EcritDans(const std::vector<ValeurGardee> &valeurs);

  std::unique_ptr<sqlite3, Fermeture> base_;
  std::unique_ptr<sqlite3_stmt, Fermeture> version_; ///< prepared once: every reading asks whether anything has changed
  int versionLue_ = 0;
  bool jamaisLu_ = true;
  Patience *patience_ = nullptr; ///< of the access under way
  std::filesystem::path misDeCote_;
};

} // namespace velmaris
