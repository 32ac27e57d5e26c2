#include "complements/controle/Glissades.hpp"

#include "complements/ciel/Refus.hpp"
#include "complements/controle/RouteActuelle.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"
#include "sights/JugementVisee.hpp"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <string>
#include <utility>

namespace velmaris {
namespace {

constexpr double kMinute = 60; ///< seconds
constexpr double kHeure = 3600;
constexpr double kJour = 86400;
constexpr std::size_t kLectureDegres = 10;
constexpr std::size_t kCollimation = 13;
constexpr std::size_t kDeuxChiffres = 2;

/// A search under way.
struct Recherche {
  const Observation &observation;
  const ReglagesControle &reglages;
  ViseeTypee typee;
  PlaceGeocentrique place;
  std::vector<Glissade> trouvees;
};

bool MemeInstant(const DateCivile &a, const DateCivile &b) {
  return a.annee == b.annee && a.mois == b.mois && a.jour == b.jour && a.heure == b.heure && a.minute == b.minute &&
         a.seconde == b.seconde;
}

PlaceGeocentrique PlaceA(const Recherche &r, const ViseeTypee &visee) {
  if (MemeInstant(visee.date, r.typee.date)) {
    return r.place;
  }
  return PlaceDe(PrepareCiel(MomentDe(visee.date, r.reglages.dut1)), visee.astre);
}

/// Keeps a slip if the sight without it has a small intercept; one that makes no sight is none.
void Essaie(Recherche &r, Glissade glissade) {
  try {
    const ViseeTypee visee = LitVisee(glissade.corrigee, r.reglages);
    glissade.intercept = InterceptActuel(visee, PlaceA(r, visee));
    if (std::fabs(glissade.intercept) < kResteGlissade) {
      r.trouvees.push_back(std::move(glissade));
    }
  } catch (const Refus &) {
    // No such sight: nobody would have meant it.
  }
}

/// A slip of a kind, its sight still as typed.
Glissade Nouvelle(const Recherche &r, GenreGlissade genre, double ajout = 0) {
  Glissade glissade;
  glissade.genre = genre;
  glissade.ajout = ajout;
  glissade.contact = r.typee.lecture.contact;
  glissade.corrigee = r.observation;
  return glissade;
}

bool DansLesBornes(double valeur, const Bornes &bornes) { return valeur >= bornes.minimum && valeur <= bornes.maximum; }

void EssaieLecture(Recherche &r) {
  for (const double degres : {1.0, -1.0, 10.0, -10.0}) {
    Glissade g = Nouvelle(r, GenreGlissade::LectureDegres, degres);
    const double lue = Val(r.observation.lectureDegres) + degres;
    if (DansLesBornes(lue, BornesDuChamp(kLectureDegres, r.observation.horizon))) {
      g.corrigee.lectureDegres = Format(lue, "00");
      Essaie(r, std::move(g));
    }
  }
}

/// Puts the time of a sight by some seconds, over midnights and ends of months.
void Decale(Observation &observation, const DateCivile &date, double secondes) {
  using namespace std::chrono;
  const double duJour = date.heure * kHeure + date.minute * kMinute + date.seconde + secondes;
  const double jours = std::floor(duJour / kJour);
  const double reste = duJour - jours * kJour;
  const year_month_day jour{sys_days{year{date.annee} / date.mois / date.jour} + days{static_cast<int>(jours)}};
  const double minute = Int(reste / kMinute);
  const double seconde = reste - minute * kMinute;
  observation.annee = std::to_string(static_cast<int>(jour.year()));
  observation.mois = Format(static_cast<unsigned>(jour.month()), "00");
  observation.jour = Format(static_cast<unsigned>(jour.day()), "00");
  observation.heure = Format(Int(minute / 60), "00");
  observation.minute = Format(minute - 60 * Int(minute / 60), "00");
  observation.seconde = seconde == Int(seconde) ? Format(seconde, "00") : TexteGeneral(seconde);
}

void EssaieTemps(Recherche &r) {
  const auto essaie = [&](GenreGlissade genre, double ajout, double unite) {
    for (const double signe : {1.0, -1.0}) {
      Glissade g = Nouvelle(r, genre, signe * ajout);
      Decale(g.corrigee, r.typee.date, signe * ajout * unite);
      Essaie(r, std::move(g));
    }
  };
  essaie(GenreGlissade::Heure, 1, kHeure);
  essaie(GenreGlissade::Minute, 1, kMinute);
  essaie(GenreGlissade::Jour, 1, kJour);
  // Ten seconds are 2.5 miles at most: one wrong digit of the tens explains a large intercept by two of them or more.
  for (int dizaines = 1; dizaines <= 5; ++dizaines) {
    essaie(GenreGlissade::Secondes, 10.0 * dizaines, 1);
  }
}

/// Whether a field's text stands for a figure that it takes.
bool EstPossible(const Observation &o, std::size_t champ) {
  const std::string &texte = o.*kTextesVisee.at(champ);
  double valeur = Val(texte);
  if (champ >= kCollimation && !Passe([&] { valeur = LitVirgule(texte); })) {
    return false;
  }
  return DansLesBornes(valeur, BornesDuChamp(champ, o.horizon));
}

void EssaieChiffres(Recherche &r, std::size_t champ) {
  std::string texte = r.observation.*kTextesVisee.at(champ);
  if (champ < kCollimation && texte.size() == 1) {
    texte.insert(0, kDeuxChiffres - 1, '0');
  }
  std::size_t avant = std::string::npos;
  for (std::size_t i = 0; i < texte.size(); ++i) {
    if (texte[i] < '0' || texte[i] > '9') {
      continue;
    }
    if (avant != std::string::npos && texte[avant] != texte[i]) {
      Glissade g = Nouvelle(r, GenreGlissade::Chiffres);
      std::string change = texte;
      std::swap(change[avant], change[i]);
      g.champ = static_cast<ChampGlisse>(champ + 1);
      g.corrigee.*kTextesVisee.at(champ) = change;
      if (EstPossible(g.corrigee, champ)) {
        Essaie(r, std::move(g));
      }
    }
    avant = i;
  }
}

void EssaieCollimation(Recherche &r) {
  if (r.typee.lecture.collimation == 0) {
    return;
  }
  Glissade g = Nouvelle(r, GenreGlissade::Collimation);
  std::string &texte = g.corrigee.collimation;
  const std::string chiffres(SansBlancs(texte));
  texte = chiffres.starts_with('-') ? chiffres.substr(1) : "-" + chiffres.substr(chiffres.starts_with('+') ? 1 : 0);
  Essaie(r, std::move(g));
}

void EssaieBords(Recherche &r) {
  if (r.observation.corps != Corps::Soleil && r.observation.corps != Corps::Lune) {
    return;
  }
  constexpr std::array kBords = {std::pair{Bord::Inferieur, Contact::Inferieur},
                                 std::pair{Bord::Superieur, Contact::Superieur},
                                 std::pair{Bord::Centre, Contact::Centre}};
  for (const auto &[bord, contact] : kBords) {
    if (contact != r.typee.lecture.contact) {
      Glissade g = Nouvelle(r, GenreGlissade::Bord);
      g.contact = contact;
      g.corrigee.bord = bord;
      Essaie(r, std::move(g));
    }
  }
}

void EssaieCotes(Recherche &r) {
  Glissade latitude = Nouvelle(r, GenreGlissade::CoteLatitude);
  latitude.corrigee.sud = !latitude.corrigee.sud;
  Essaie(r, std::move(latitude));
  Glissade longitude = Nouvelle(r, GenreGlissade::CoteLongitude);
  longitude.corrigee.est = !longitude.corrigee.est;
  Essaie(r, std::move(longitude));
}

} // namespace

std::vector<Glissade> ChercheGlissades(const Observation &observation, const ReglagesControle &reglages) {
  const ViseeTypee typee = LitVisee(observation, reglages);
  const PlaceGeocentrique place = PlaceDe(PrepareCiel(MomentDe(typee.date, reglages.dut1)), typee.astre);
  Recherche r{observation, reglages, typee, place, {}};
  EssaieLecture(r);
  EssaieTemps(r);
  for (std::size_t champ = 0; champ < kChampsVisee; ++champ) {
    EssaieChiffres(r, champ);
  }
  EssaieCollimation(r);
  EssaieBords(r);
  EssaieCotes(r);
  std::stable_sort(r.trouvees.begin(), r.trouvees.end(), [](const Glissade &a, const Glissade &b) {
    return std::fabs(a.intercept) < std::fabs(b.intercept);
  });
  return std::move(r.trouvees);
}

} // namespace velmaris
