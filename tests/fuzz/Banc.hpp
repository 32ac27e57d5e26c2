#pragma once

#include "tests/OutilsTests.hpp"

#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

namespace velmaris {

using essais::Contenu;
using essais::Pose;

/// A scratch folder in memory that goes with the run, for the targets that read real files.
class Banc {
public:
  Banc() {
    const std::filesystem::path memoire = "/dev/shm";
    std::error_code absent;
    const bool la = std::filesystem::is_directory(memoire, absent);
    std::string modele = ((la ? memoire : std::filesystem::temp_directory_path()) / "velmaris-fuzz-XXXXXX").string();
    if (::mkdtemp(modele.data()) == nullptr) {
      std::abort();
    }
    chemin_ = modele;
  }
  ~Banc() {
    std::error_code ignore;
    std::filesystem::remove_all(chemin_, ignore);
  }
  Banc(const Banc &) = delete;
  Banc &operator=(const Banc &) = delete;
  Banc(Banc &&) = delete;
  Banc &operator=(Banc &&) = delete;

  const std::filesystem::path &chemin() const { return chemin_; }
  std::filesystem::path operator/(const char *nom) const { return chemin_ / nom; }

  /// Takes away what an input has left.
  void Vide() const {
    for (const auto &entree : std::filesystem::directory_iterator(chemin_)) {
      std::filesystem::remove_all(entree.path());
    }
  }

private:
  std::filesystem::path chemin_;
};

} // namespace velmaris
