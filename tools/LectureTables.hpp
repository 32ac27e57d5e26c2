#pragma once

#include <charconv>
#include <cstddef>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// What the generators of constants share: published tables as text, read, checked and known by their sums.
namespace tables {

using Rangee = std::vector<std::string>; ///< the fields of one line, as they stand

/// The rows of one table, or of one section of it.
struct Section {
  std::string nom; ///< empty for a table without sections
  std::size_t annonce = 0;
  std::vector<Rangee> rangees;
};

/// Ends the generation with an error that names the file.
[[noreturn]] inline void Refuse(const std::string &fichier, const std::string &raison) {
  throw std::runtime_error(fichier + ": " + raison);
}

/// The bytes of a file.
/// @throws std::runtime_error when it can't be read
std::string Lit(const std::filesystem::path &chemin);

/// FNV-1a in 64 bits, as sixteen hexadecimal digits.
std::string Somme(std::string_view octets);

/// A whole text as a number.
/// @throws std::runtime_error when it is none
template <class Nombre> Nombre LitNombre(const std::string &fichier, const std::string &texte) {
  Nombre valeur{};
  const auto [fin, code] = std::from_chars(texte.data(), texte.data() + texte.size(), valeur);
  if (code != std::errc() || fin != texte.data() + texte.size()) {
    Refuse(fichier, "\"" + texte + "\" is no number of its column");
  }
  return valeur;
}

/// The fields of a line, parted by blanks.
Rangee Champs(const std::string &ligne);

/// The sections of a table: a line of two fields opens one, every other line must have as many fields as the table has
/// columns.
/// @throws std::runtime_error
std::vector<Section> Decoupe(const std::string &fichier, const std::string &octets, std::size_t colonnes);

/// The lines of SOMMES.txt for some files of a folder.
std::string LignesSommes(const std::filesystem::path &dossier, const std::vector<std::string> &fichiers);

/// Compares files of a folder with its SOMMES.txt.
/// @throws std::runtime_error for the first one that differs
void VerifieSommes(const std::filesystem::path &dossier, const std::vector<std::string> &fichiers);

/// Writes what was generated.
/// @throws std::runtime_error when it can't be written
void Ecrit(const std::filesystem::path &chemin, const std::string &texte);

} // namespace tables
