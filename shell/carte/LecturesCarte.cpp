#include "shell/carte/LecturesCarte.hpp"

#include "foundations/Fichiers.hpp"

#include <filesystem>
#include <string>
#include <system_error>

namespace velmaris {
namespace {

PolygoneLu LitUnPolygone(const Dossiers &dossiers, const std::string &nom) {
  PolygoneLu lu;
  try {
    const std::filesystem::path fichier = TrouveFichier(dossiers, nom);
    std::error_code refus;
    lu.fichier = {std::filesystem::file_size(fichier, refus), std::filesystem::last_write_time(fichier, refus), {}};
    const std::string octets = LitFichier(fichier);
    lu.ouvert = true;
    lu.points = LitPolygone(lu.polygone, octets);
  } catch (const Erreur &erreur) {
    lu.refus = erreur;
  }
  return lu;
}

} // namespace

LecturesCarte LancePolygones(const Dossiers &dossiers, const std::vector<std::string_view> &noms) {
  LecturesCarte lectures;
  lectures.reserve(noms.size());
  for (const std::string_view nom : noms) {
    lectures.push_back(std::async(lectures.empty() ? std::launch::deferred : std::launch::async,
                                  [dossiers, nom = std::string(nom)] { return LitUnPolygone(dossiers, nom); }));
  }
  return lectures;
}

} // namespace velmaris
