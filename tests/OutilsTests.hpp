#pragma once

#include "foundations/Erreur.hpp"
#include "foundations/Horloge.hpp"
#include "foundations/Surface.hpp"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <linux/capability.h>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <sys/syscall.h>
#include <unistd.h>
#include <variant>
#include <vector>

/// What several test files share: errors by number, scratch folders, fixed clocks, and readers of a drawn surface.
namespace velmaris::essais {

/// Number of the error that a callable raises, 0 when it raises none.
template <class Appel> int NumeroErreur(Appel &&appel) {
  try {
    appel();
  } catch (const Erreur &erreur) {
    return erreur.numero;
  }
  return 0;
}

/// A scratch folder that goes with its scope.
class DossierTemporaire {
public:
  DossierTemporaire() {
    std::string modele = (std::filesystem::temp_directory_path() / "velmaris-essai-XXXXXX").string();
    if (::mkdtemp(modele.data()) == nullptr) {
      throw std::runtime_error("no scratch folder");
    }
    chemin_ = modele;
  }
  ~DossierTemporaire() {
    std::error_code ignore;
    std::filesystem::remove_all(chemin_, ignore);
  }
  DossierTemporaire(const DossierTemporaire &) = delete;
  DossierTemporaire &operator=(const DossierTemporaire &) = delete;
  DossierTemporaire(DossierTemporaire &&) = delete;
  DossierTemporaire &operator=(DossierTemporaire &&) = delete;

  std::filesystem::path operator/(const std::string &nom) const { return chemin_ / nom; }
  const std::filesystem::path &chemin() const { return chemin_; }

private:
  std::filesystem::path chemin_;
};

inline void Pose(const std::filesystem::path &chemin, std::string_view octets) {
  std::ofstream fichier(chemin, std::ios::binary);
  fichier.write(octets.data(), static_cast<std::streamsize>(octets.size()));
}

inline std::string Contenu(const std::filesystem::path &chemin) {
  std::ifstream fichier(chemin, std::ios::binary);
  std::ostringstream octets;
  octets << fichier.rdbuf();
  return octets.str();
}

/// A clock that stands still.
inline Horloge HorlogeFixe(const TempsSysteme &utc, const ValeurDate &locale) {
  Horloge horloge;
  horloge.source = [utc] { return utc; };
  horloge.locale = [locale] { return locale; };
  return horloge;
}

inline Surface SurfaceNeuve(double largeur, double hauteur) {
  Surface surface;
  surface.largeur = largeur;
  surface.hauteur = hauteur;
  return surface;
}

/// One drawn segment, joined or not.
struct Segment {
  Plume plume;
  Point debut, fin;
};

/// All segments in drawing order, polylines taken apart.
inline std::vector<Segment> Segments(const Surface &surface) {
  std::vector<Segment> segments;
  for (const Trace &trace : surface.traces) {
    if (const auto *ligne = std::get_if<Polyligne>(&trace)) {
      for (std::size_t i = 1; i < ligne->points.size(); ++i) {
        segments.push_back({ligne->plume, ligne->points[i - 1], ligne->points[i]});
      }
    }
  }
  return segments;
}

/// All traces of one kind, in drawing order.
template <class Genre> std::vector<Genre> TracesDe(const Surface &surface) {
  std::vector<Genre> resultat;
  for (const Trace &trace : surface.traces) {
    if (const auto *t = std::get_if<Genre>(&trace)) {
      resultat.push_back(*t);
    }
  }
  return resultat;
}

inline std::vector<TexteTrace> Textes(const Surface &surface) { return TracesDe<TexteTrace>(surface); }
inline std::vector<CercleTrace> Cercles(const Surface &surface) { return TracesDe<CercleTrace>(surface); }

/// A superuser held to the permissions of files for the life of the scope: what lets this thread read and write all
/// that others can't is laid down, and taken up again. No other user is played: that one may have no way to the scratch
/// folder, which a strict umask or a private temporary folder closes.
struct UtilisateurSansDroit {
  UtilisateurSansDroit() : reussi(Lit() && Pose(avant[0].effective & ~kPassePartout)) {}
  ~UtilisateurSansDroit() {
    if (reussi && !Pose(avant[0].effective)) {
      std::abort();
    }
  }
  UtilisateurSansDroit(const UtilisateurSansDroit &) = delete;
  UtilisateurSansDroit &operator=(const UtilisateurSansDroit &) = delete;
  UtilisateurSansDroit(UtilisateurSansDroit &&) = delete;
  UtilisateurSansDroit &operator=(UtilisateurSansDroit &&) = delete;

private:
  static constexpr unsigned kPassePartout =
      1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH | 1U << CAP_FOWNER | 1U << CAP_CHOWN;

  bool Lit() { return ::syscall(SYS_capget, &entete, avant.data()) == 0; }
  bool Pose(unsigned effectifs) {
    std::array<__user_cap_data_struct, 2> droits = avant;
    droits[0].effective = effectifs;
    return ::syscall(SYS_capset, &entete, droits.data()) == 0;
  }

  __user_cap_header_struct entete{_LINUX_CAPABILITY_VERSION_3, 0};
  std::array<__user_cap_data_struct, 2> avant{};

public:
  bool reussi;
};

} // namespace velmaris::essais
