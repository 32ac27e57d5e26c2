#include "sights/JugementVisee.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"
#include "foundations/ValeurDate.hpp"
#include "sights/ChampFautif.hpp"

#include <algorithm>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace velmaris {
namespace {

constexpr std::size_t kAnnee = 2;
constexpr std::size_t kLectureDegres = 10;
constexpr std::size_t kFraction = 12;
constexpr std::size_t kCollimation = 13;
constexpr std::size_t kHauteurOeil = 14;
constexpr double kSansFin = std::numeric_limits<double>::infinity();

constexpr std::array<Bornes, kChampsVisee> kBornes = {{{0, 31},
                                                       {0, 12},
                                                       {0, 5000},
                                                       {0, 60}, // of the hour too
                                                       {0, 60},
                                                       {0, 60},
                                                       {0, 180}, // of the latitude too
                                                       {0, 60},
                                                       {0, 180},
                                                       {0, 60},
                                                       {0, 90},
                                                       {0, 60},
                                                       {-kSansFin, kSansFin}, // two characters, whatever they say
                                                       {-60, 60},
                                                       {0, kSansFin}}};

bool EstLointain(const Observation &o) { return o.corps == Corps::Planetes || o.corps == Corps::Etoiles; }

bool EstDecimal(std::size_t champ) { return champ == kCollimation || champ == kHauteurOeil; }

/// The number of a field as leaving it takes it: a comma ends that of the decimal ones.
double Nombre(const Observation &o, std::size_t champ) {
  std::string texte = o.*kTextesVisee.at(champ);
  if (EstDecimal(champ)) {
    std::replace(texte.begin(), texte.end(), '.', ',');
    return Val(texte);
  }
  return champ <= kAnnee ? Val(texte) : Val(AvecPoint(texte));
}

bool EstNecessaire(const Observation &o, std::size_t champ) {
  return EstCommencee(o) && champ != kFraction && (!EstDecimal(champ) || EstLointain(o));
}

/// Whether a text is a number from its first character to its last; a reduction takes what stands at its start, and
/// 0 for none. A star's and a planet's decimal fields have a rule of their own.
bool EstEcritEnChiffres(const Observation &o, std::size_t champ) {
  const std::string_view texte = SansBlancs(o.*kTextesVisee.at(champ));
  const std::string_view chiffres = texte.substr(texte.starts_with('-') || texte.starts_with('+') ? 1 : 0);
  const auto signe = [](char c) { return c == '.' || c == ','; };
  const auto chiffre = [](char c) { return c >= '0' && c <= '9'; };
  return (EstDecimal(champ) && EstLointain(o)) ||
         (std::any_of(chiffres.begin(), chiffres.end(), chiffre) &&
          std::count_if(chiffres.begin(), chiffres.end(), signe) <= 1 &&
          std::all_of(chiffres.begin(), chiffres.end(), [&](char c) { return chiffre(c) || signe(c); }));
}

Verdict JugeChamp(const Observation &o, std::size_t champ) {
  if ((o.*kTextesVisee.at(champ)).empty()) {
    return EstNecessaire(o, champ) ? Verdict::Vide : Verdict::Bon;
  }
  if (!EstEcritEnChiffres(o, champ)) {
    return Verdict::HorsBornes;
  }
  const auto [minimum, maximum] = BornesDuChamp(champ, o.horizon);
  const double nombre = Nombre(o, champ);
  return nombre >= minimum && nombre <= maximum ? Verdict::Bon : Verdict::HorsBornes;
}

std::size_t RangDe(ChampVisee champ) {
  constexpr std::array<std::size_t, 8> kRangs = {kHauteurOeil, kCollimation, 0, 1, 2, 3, 4, 5};
  return kRangs.at(static_cast<std::size_t>(champ));
}

Verdict VerdictDe(Defaut defaut) {
  constexpr std::array<Verdict, 6> kVerdicts = {Verdict::Vide,       Verdict::PasUnNombre,  Verdict::SousLaMer,
                                                Verdict::HorsDuJour, Verdict::HorsDeLHeure, Verdict::DateImpossible};
  return kVerdicts.at(static_cast<std::size_t>(defaut));
}

bool EstDate(const Observation &o) {
  return Passe([&] { LitDate(o.jour + "/" + o.mois + "/" + o.annee); });
}

bool MemeNombre(const std::string &a, const std::string &b) {
  return a == b || (!a.empty() && !b.empty() && Val(AvecPoint(a)) == Val(AvecPoint(b)));
}

} // namespace

Bornes BornesDuChamp(std::size_t champ, Horizon horizon) {
  Bornes bornes = kBornes.at(champ);
  if (champ == kLectureDegres && horizon != Horizon::Naturel) {
    bornes.maximum *= 2;
  }
  return bornes;
}

bool EstCommencee(const Observation &o) { return Val(o.lectureDegres) != 0 || Val(o.lectureMinutes) != 0; }

std::array<Verdict, kChampsVisee> JugeVisee(const Observation &o) {
  std::array<Verdict, kChampsVisee> verdicts{};
  for (std::size_t champ = 0; champ < verdicts.size(); ++champ) {
    verdicts.at(champ) = JugeChamp(o, champ);
  }
  const auto bon = [](Verdict v) { return v == Verdict::Bon; };
  const bool datee = !o.jour.empty() && !o.mois.empty() && !o.annee.empty();
  if (datee && std::all_of(verdicts.begin(), verdicts.begin() + kAnnee + 1, bon) && !EstDate(o)) {
    std::fill_n(verdicts.begin(), kAnnee + 1, Verdict::DateImpossible);
  }
  const std::optional<ChampFautif> fautif = TrouveChampFautif(o);
  if (fautif && fautif->defaut != Defaut::Vide && bon(verdicts.at(RangDe(fautif->champ)))) {
    verdicts.at(RangDe(fautif->champ)) = VerdictDe(fautif->defaut);
  }
  return verdicts;
}

bool SansAstreChoisi(const Observation &o) {
  return EstCommencee(o) &&
         ((o.corps == Corps::Etoiles && o.etoile < 0) || (o.corps == Corps::Planetes && o.planete < 0));
}

bool MemeVisee(const Observation &a, const Observation &b) {
  const auto memeTexte = [&](std::string Observation::*texte) { return MemeNombre(a.*texte, b.*texte); };
  return std::all_of(kTextesVisee.begin(), kTextesVisee.end(), memeTexte) && a.sud == b.sud && a.est == b.est &&
         a.fraction == b.fraction && a.bord == b.bord && a.horizon == b.horizon && a.corps == b.corps &&
         (a.corps != Corps::Planetes || a.planete == b.planete) && (a.corps != Corps::Etoiles || a.etoile == b.etoile);
}

} // namespace velmaris
