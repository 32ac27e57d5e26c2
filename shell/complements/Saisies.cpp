#include "shell/complements/Saisies.hpp"

#include "complements/ciel/Refus.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/complements/ReglagesLus.hpp"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstddef>
#include <numeric>
#include <string>
#include <vector>

namespace velmaris {
namespace {

constexpr std::size_t kParties = 3;
constexpr int kChiffresMax = 100000;
constexpr double kSoixante = 60;

/// The whole numbers of a text, whatever parts them.
/// @return nothing for more than three, or one that is too large
std::vector<int> Nombres(std::string_view texte) {
  std::vector<int> nombres;
  bool dedans = false;
  for (const char c : texte) {
    const bool chiffre = c >= '0' && c <= '9';
    if (chiffre && !dedans) {
      nombres.push_back(0);
    }
    if (chiffre) {
      nombres.back() = nombres.back() * 10 + (c - '0');
    }
    dedans = chiffre;
    if (c == '-' && nombres.empty()) {
      return {};
    }
    if (nombres.size() > kParties || (chiffre && nombres.back() > kChiffresMax)) {
      return {};
    }
  }
  return nombres;
}

bool EstDuNombre(char c) { return (c >= '0' && c <= '9') || c == '.'; }

/// The parts of an angle: runs of digits and points. A letter among them is none.
std::vector<double> PartiesAngle(std::string_view texte) {
  std::vector<double> parties;
  std::size_t i = 0;
  while (i < texte.size()) {
    if (std::isalpha(static_cast<unsigned char>(texte[i])) != 0 || texte[i] == '-') {
      return {};
    }
    std::size_t fin = i;
    while (fin < texte.size() && EstDuNombre(texte[fin])) {
      ++fin;
    }
    if (fin > i) {
      const auto nombre = LitNombreBorne(texte.substr(i, fin - i), 0, kChiffresMax);
      if (!nombre || parties.size() == kParties) {
        return {};
      }
      parties.push_back(*nombre);
    }
    i = std::max(fin, i + 1);
  }
  return parties;
}

/// An angle with a letter for its side.
/// @param plus, moins  letters of the positive and of the negative side, capitals
std::optional<double> LitCote(std::string_view texte, double max, std::string_view plus, std::string_view moins) {
  std::string nu(SansBlancs(texte));
  double signe = 1;
  bool lettre = false;
  for (const std::size_t bout : {std::size_t{0}, nu.size() - 1}) {
    const char c = nu.empty() ? ' ' : static_cast<char>(std::toupper(static_cast<unsigned char>(nu[bout])));
    const bool negatif = moins.find(c) != std::string_view::npos;
    if (!lettre && (negatif || plus.find(c) != std::string_view::npos)) {
      signe = negatif ? -1 : 1;
      lettre = true;
      nu.erase(bout, 1);
      break;
    }
  }
  const auto angle = LitAngleTape(nu, max);
  return angle && (!lettre || *angle >= 0) ? std::optional(signe * *angle) : std::nullopt;
}

/// Whether a control and all that it lies in are shown.
bool EstMontre(const ListeControles &controles, const Controle &controle) {
  const Controle *c = &controle;
  while (c != nullptr && c->visible && !c->parent.empty()) {
    c = Cherche(controles, c->parent);
  }
  return c == nullptr || c->visible;
}

} // namespace

std::optional<InstantUTC> LitMomentTape(std::string_view date, std::string_view heure) {
  constexpr int kSiecle = 100;
  constexpr int kPivot = 30;
  const std::vector<int> jour = Nombres(date);
  const std::vector<int> temps = Nombres(heure);
  if (jour.size() != kParties || temps.size() < 2) {
    return std::nullopt;
  }
  const int annee = jour[2] >= kSiecle ? jour[2] : jour[2] + (jour[2] < kPivot ? 2000 : 1900);
  try {
    return UTCDe({annee, jour[1], jour[0], temps[0], temps[1], temps.size() > 2 ? temps[2] : 0.0});
  } catch (const Refus &) {
    return std::nullopt;
  }
}

std::optional<double> LitAngleTape(std::string_view texte, double max) {
  std::string nu = AvecPoint(SansBlancs(texte));
  const bool negatif = nu.starts_with('-');
  if (negatif || nu.starts_with('+')) {
    nu.erase(0, 1);
  }
  const std::vector<double> parties = PartiesAngle(nu);
  if (parties.empty() || std::any_of(parties.begin() + 1, parties.end(), [](double p) { return p >= kSoixante; })) {
    return std::nullopt;
  }
  const double degres = std::accumulate(parties.rbegin(), parties.rend(), 0.0,
                                        [](double somme, double partie) { return somme / kSoixante + partie; });
  return degres <= max ? std::optional(negatif ? -degres : degres) : std::nullopt;
}

std::optional<double> LitLatitudeTapee(std::string_view texte) {
  constexpr double kPole = 90;
  return LitCote(texte, kPole, "N", "S");
}

std::optional<double> LitLongitudeTapee(std::string_view texte) {
  constexpr double kDemiTour = 180;
  return LitCote(texte, kDemiTour, "E", "WO");
}

void MarqueChamp(Controle &champ, bool bon, std::string_view mots) {
  champ.alerte = bon ? std::string() : std::string(mots) + champ.infobulle;
}

std::optional<double> LitChampBorne(Controle &champ, double moindre, double plusGrand, std::string_view mots) {
  const bool vide = SansBlancs(champ.texte).empty();
  const std::optional<double> nombre = vide ? std::nullopt : LitNombreBorne(champ.texte, moindre, plusGrand);
  MarqueChamp(champ, vide || nombre, mots);
  return nombre;
}

std::string PremiereFaute(const ListeControles &controles) {
  const auto faute = std::find_if(controles.begin(), controles.end(), [&](const Controle *c) {
    return c->genre == Genre::Champ && !c->alerte.empty() && EstMontre(controles, *c);
  });
  if (faute == controles.end()) {
    return {};
  }
  const Controle &champ = **faute;
  const std::string tape(SansBlancs(champ.texte));
  const Controle *nom = tape.empty() ? Cherche(controles, champ.par, champ.parIndice) : nullptr;
  const std::string avant = nom != nullptr ? nom->legende : tape;
  return avant.empty() ? champ.alerte : avant + " : " + champ.alerte;
}

void OublieFautes(const ListeControles &controles) {
  for (Controle *c : controles) {
    if (c->genre == Genre::Champ) {
      c->alerte.clear();
    }
  }
}

bool ViseFaute(const Controle *&clavier, const ListeControles &champs) {
  const auto faute = std::find_if(champs.begin(), champs.end(), [](const Controle *c) { return !c->alerte.empty(); });
  if (faute == champs.end()) {
    return false;
  }
  (*faute)->toutSelectionne = true;
  clavier = *faute;
  return true;
}

} // namespace velmaris
