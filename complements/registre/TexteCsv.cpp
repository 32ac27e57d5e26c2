#include "complements/registre/TexteCsv.hpp"

#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <system_error>

namespace velmaris {
namespace {

/// A text without its control characters, those of the upper half of Latin-1 included, and without byte order marks: at
/// its head one would be taken for the file's own.
std::string SansControles(std::string_view texte) {
  constexpr std::string_view kMarque = "\xEF\xBB\xBF";
  std::string reste;
  for (std::size_t i = 0; i < texte.size(); ++i) {
    if (texte.substr(i).starts_with(kMarque)) {
      i += kMarque.size() - 1;
      continue;
    }
    const auto octet = static_cast<unsigned char>(texte[i]);
    const auto suivant = static_cast<unsigned char>(i + 1 < texte.size() ? texte[i + 1] : 0);
    if (octet == 0xC2 && suivant >= 0x80 && suivant <= 0x9F) {
      ++i;
    } else if (octet >= 0x20 && octet != 0x7F) {
      reste += texte[i];
    }
  }
  return reste;
}

/// Whether a text is wholly a number, with a point or a comma.
bool EstNombre(std::string_view texte) {
  std::string chiffres(texte.substr(texte.starts_with('+') || texte.starts_with('-') ? 1 : 0));
  std::replace(chiffres.begin(), chiffres.end(), ',', '.');
  if (chiffres.find_first_of("0123456789.") != 0) {
    return false;
  }
  double nombre = 0.0;
  const char *const bout = chiffres.data() + chiffres.size();
  const auto [fin, code] = std::from_chars(chiffres.data(), bout, nombre);
  return fin == bout && code != std::errc::invalid_argument;
}

/// Whether a table program would reckon a text out instead of showing it. The wide signs are those of East Asian ones.
bool PasseraitPourFormule(std::string_view texte) {
  constexpr std::array<std::string_view, 8> kSignes = {"=", "+", "-", "@", "＝", "＋", "－", "＠"};
  const std::string_view debut = SansBlancs(texte);
  return std::any_of(kSignes.begin(), kSignes.end(), [&](auto signe) { return debut.starts_with(signe); }) &&
         !EstNombre(debut);
}

/// Where a field that begins in quotes ends, its closing quote taken; none when it isn't closed.
std::size_t FinEntreGuillemets(std::string_view ligne, std::size_t debut) {
  std::size_t i = debut + 1;
  while (i < ligne.size()) {
    const std::size_t guillemet = ligne.find('"', i);
    if (guillemet == std::string_view::npos) {
      return guillemet;
    }
    if (guillemet + 1 >= ligne.size() || ligne[guillemet + 1] != '"') {
      return guillemet + 1;
    }
    i = guillemet + 2;
  }
  return std::string_view::npos;
}

} // namespace

std::string ChampCsv(std::string_view texte) {
  const std::string ligne = SansControles(texte);
  std::string champ = PasseraitPourFormule(ligne) ? "'" + ligne : ligne;
  if (champ.find_first_of(",\"") == std::string::npos) {
    return champ;
  }
  std::string entre = "\"";
  for (const char c : champ) {
    entre += c == '"' ? "\"\"" : std::string(1, c);
  }
  return entre + "\"";
}

std::size_t PartiesCsv(std::string_view ligne, std::span<std::string_view> parties) {
  std::size_t nombre = 0;
  std::size_t debut = 0;
  while (true) {
    const bool entre = debut < ligne.size() && ligne[debut] == '"';
    std::size_t fin = entre ? FinEntreGuillemets(ligne, debut) : ligne.find(',', debut);
    if (entre && (fin == std::string_view::npos || (fin < ligne.size() && ligne[fin] != ','))) {
      return 0;
    }
    fin = std::min(fin, ligne.size());
    if (nombre < parties.size()) {
      parties[nombre] = ligne.substr(debut, fin - debut);
    }
    ++nombre;
    if (fin == ligne.size()) {
      return nombre;
    }
    debut = fin + 1;
  }
}

std::string TextePartie(std::string_view partie) {
  std::string texte;
  if (partie.size() >= 2 && partie.front() == '"' && partie.back() == '"') {
    for (std::size_t i = 1; i + 1 < partie.size(); ++i) {
      texte += partie[i];
      i += partie[i] == '"' ? 1 : 0; // written twice
    }
  } else {
    texte = partie;
  }
  texte = EnUtf8(texte);
  if (texte.starts_with('\'') && PasseraitPourFormule(std::string_view(texte).substr(1))) {
    texte.erase(0, 1);
  }
  return texte;
}

std::string_view PrendLigne(std::string_view &reste) {
  const std::size_t fin = std::min(reste.find('\n'), reste.size());
  std::string_view ligne = reste.substr(0, fin);
  reste.remove_prefix(std::min(fin + 1, reste.size()));
  if (ligne.ends_with('\r')) {
    ligne.remove_suffix(1);
  }
  return ligne;
}

} // namespace velmaris
