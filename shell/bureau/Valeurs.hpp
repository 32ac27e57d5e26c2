#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

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
class Valeurs {
public:
  /// Opens the store, making its folder and file when they are missing. A damaged file is set aside under a new name.
  /// @param fichier  the store's file; an empty path gives a store in memory
  explicit Valeurs(std::filesystem::path fichier);
  ~Valeurs();
  Valeurs(const Valeurs &) = delete;
  Valeurs &operator=(const Valeurs &) = delete;
  Valeurs(Valeurs &&) = delete;
  Valeurs &operator=(Valeurs &&) = delete;

  /// The stored text, or the default.
  std::string GetSetting(std::string_view application, std::string_view section, std::string_view cle,
                         std::string_view defaut = {}) const;

  /// Creates or replaces a value; it is on the disk when this returns, unless it stands in a group.
  /// When the disk refuses, the store goes on in memory with all its values and `etat` says so.
  void SaveSetting(std::string_view application, std::string_view section, std::string_view cle,
                   std::string_view valeur);

  /// Runs a group of SaveSetting as one: after a crash either all of them stand or none. When the disk refuses the
  /// group, none stands on it and the store goes on in memory with all of them.
  /// @param ecritures  run a second time after such a refusal, which has undone what it had written
  template <class Ecritures> void Ensemble(Ecritures &&ecritures) {
    if (Execute("BEGIN IMMEDIATE")) {
      const EtatMagasin avant = etat_;
      try {
        ecritures();
      } catch (...) {
        Execute("ROLLBACK");
        throw;
      }
      if (etat_ == avant && Execute("COMMIT")) {
        return;
      }
    }
    if (etat_ != EtatMagasin::SansTrace) {
      PasseEnMemoire();
    }
    ecritures();
  }

  /// Runs a group of GetSetting on one state of the store, whatever another program writes meanwhile.
  template <class Lectures> void EnsembleLu(Lectures &&lectures) {
    const bool ouvert = Execute("BEGIN");
    lectures();
    if (ouvert) {
      Execute("COMMIT");
    }
  }

  EtatMagasin etat() const { return etat_; }
  /// The damaged file's new name, or the file that can't be written.
  const std::filesystem::path &fichierEnCause() const { return fichierEnCause_; }

private:
  struct Fermeture {
    void operator()(sqlite3 *base) const;
    void operator()(sqlite3_stmt *instruction) const;
  };
  bool Lit(std::string_view application, std::string_view section, std::string_view cle, std::string &valeur) const;
  bool Ouvre();
  void MetDeCote();
  void PasseEnMemoire();
  bool Execute(const char *instruction);

  std::filesystem::path fichier_;
  std::filesystem::path fichierEnCause_;
  std::unique_ptr<sqlite3, Fermeture> base_;
  mutable std::unique_ptr<sqlite3_stmt, Fermeture> lecture_; ///< prepared once: a sheet's redraw reads a hundred keys
  EtatMagasin etat_ = EtatMagasin::Sain;
};

} // namespace velmaris
