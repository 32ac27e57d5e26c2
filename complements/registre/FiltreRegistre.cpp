#include "complements/registre/FiltreRegistre.hpp"

#include "complements/registre/TexteCsv.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <system_error>
#include <unordered_set>
#include <utility>

namespace velmaris {
namespace {

constexpr std::size_t kColonneAstre = 2;
constexpr std::size_t kColonnesLues = 3; ///< up to that one
constexpr int kDernierJour = 31;
constexpr int kDernierMois = 12;
constexpr std::int64_t kParJour = 86400;

char Petite(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::string Petites(std::string_view texte) {
  std::string petites(texte);
  std::transform(petites.begin(), petites.end(), petites.begin(), Petite);
  return petites;
}

/// Whether a text holds words, in small letters, without regard to its own case.
bool Contient(std::string_view texte, std::string_view mots) {
  return std::search(texte.begin(), texte.end(), mots.begin(), mots.end(),
                     [](char a, char b) { return Petite(a) == b; }) != texte.end();
}

/// The numbers of a text, parted by anything else.
/// @return nothing when there are more than three, or one is none
std::optional<std::vector<int>> Nombres(std::string_view texte) {
  std::vector<int> nombres;
  while (true) {
    texte.remove_prefix(std::min(texte.find_first_of("0123456789"), texte.size()));
    if (texte.empty()) {
      return nombres.empty() || nombres.size() > 3 ? std::nullopt : std::optional(nombres);
    }
    int n = 0;
    const auto [fin, code] = std::from_chars(texte.data(), texte.data() + texte.size(), n);
    if (code != std::errc()) {
      return std::nullopt;
    }
    nombres.push_back(n);
    texte.remove_prefix(static_cast<std::size_t>(fin - texte.data()));
  }
}

bool EstDuJour(std::int64_t instant, const JourCherche &cherche) {
  const std::chrono::sys_days minuit{std::chrono::days((instant >= 0 ? instant : instant - kParJour + 1) / kParJour)};
  const std::chrono::year_month_day date{minuit};
  return (!cherche.annee || static_cast<int>(date.year()) == *cherche.annee) &&
         (!cherche.mois || std::cmp_equal(static_cast<unsigned>(date.month()), *cherche.mois)) &&
         (!cherche.jour || std::cmp_equal(static_cast<unsigned>(date.day()), *cherche.jour));
}

/// A filter ready for many rows.
struct Tamis {
  const RegistreLu &registre;
  const Annotations &annotations;
  std::string texte, astre; ///< in small letters
  std::optional<Corps> corps;
  JourCherche jour;
  bool masquees = false;

  bool Passe(std::size_t rang) const {
    const LigneIndexee &ligne = registre.lignes[rang];
    return EstDuJour(ligne.instant, jour) && (astre.empty() || ligne.corps == corps || DeLAstre(rang)) && Annotee(rang);
  }

private:
  bool DeLAstre(std::size_t rang) const {
    std::array<std::string_view, kColonnesLues> parties;
    PartiesCsv(LigneBrute(registre, rang), parties);
    return Contient(parties[kColonneAstre], astre) || Contient(parties[kColonneAstre - 1], astre);
  }

  /// What notes and words let through.
  bool Annotee(std::size_t rang) const {
    const Annotation *dite = nullptr;
    if (!annotations.empty()) {
      const auto trouvee = annotations.find(IdentiteDe(registre, rang));
      dite = trouvee == annotations.end() ? nullptr : &trouvee->second;
    }
    if (dite != nullptr && dite->masquee && !masquees) {
      return false;
    }
    return texte.empty() || Contient(LigneBrute(registre, rang), texte) ||
           (dite != nullptr && Contient(dite->note, texte));
  }
};

/// A day, a month or a year by how many numbers there are, and by which of them is too large for a day.
JourCherche JourDe(const std::vector<int> &n) {
  if (n.size() == 3) {
    return n[0] > kDernierJour ? JourCherche{n[2], n[1], n[0]} : JourCherche{n[0], n[1], n[2]};
  }
  if (n.size() == 2) {
    return n[1] > kDernierJour   ? JourCherche{{}, n[0], n[1]}
           : n[0] > kDernierJour ? JourCherche{{}, n[1], n[0]}
                                 : JourCherche{n[0], n[1], {}};
  }
  return n[0] > kDernierJour ? JourCherche{{}, {}, n[0]} : JourCherche{n[0], {}, {}};
}

} // namespace

std::optional<JourCherche> LitJourCherche(std::string_view texte) {
  if (texte.find_first_not_of(' ') == std::string_view::npos) {
    return JourCherche{};
  }
  const auto lus = Nombres(texte);
  if (!lus) {
    return std::nullopt;
  }
  const JourCherche jour = JourDe(*lus);
  const bool existe = jour.jour.value_or(1) >= 1 && jour.jour.value_or(1) <= kDernierJour &&
                      jour.mois.value_or(1) >= 1 && jour.mois.value_or(1) <= kDernierMois;
  return existe ? std::optional(jour) : std::nullopt;
}

std::vector<std::size_t> Filtre(const RegistreLu &registre, const Annotations &annotations,
                                const FiltreRegistre &filtre) {
  const Tamis tamis{registre,
                    annotations,
                    Petites(filtre.texte),
                    Petites(filtre.astre),
                    filtre.corps,
                    LitJourCherche(filtre.jour).value_or(JourCherche{}),
                    filtre.masquees};
  std::vector<std::size_t> rangs;
  rangs.reserve(registre.lignes.size());
  for (std::size_t rang = 0; rang < registre.lignes.size(); ++rang) {
    if (tamis.Passe(rang)) {
      rangs.push_back(rang);
    }
  }
  return rangs;
}

std::vector<std::size_t> RangsDe(const RegistreLu &registre, const std::vector<std::size_t> &rangs,
                                 const std::vector<std::string> &identites) {
  const std::unordered_set<std::string> cherchees(identites.begin(), identites.end());
  std::vector<std::size_t> trouves;
  for (std::size_t i = 0; i < rangs.size() && !cherchees.empty(); ++i) {
    if (cherchees.contains(IdentiteDe(registre, rangs[i]))) {
      trouves.push_back(i);
    }
  }
  return trouves;
}

} // namespace velmaris
