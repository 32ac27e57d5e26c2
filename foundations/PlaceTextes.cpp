#include "foundations/PlaceTextes.hpp"

#include "foundations/TexteNombre.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string_view>
#include <unordered_map>

namespace velmaris {
namespace {

constexpr double kEcart = 45.0;     ///< between two texts side by side, 1/1440 inch
constexpr double kEntreLignes = 15; ///< between two texts one over the other: accents of capitals stand out
constexpr double kUnSpot = 15.0;    ///< within which two places are one, 1/1440 inch
constexpr int kDirections = 16;     ///< in which a free place is looked for
constexpr int kCerclesObjet = 6;    ///< half heights of its text up to which an object's name goes away from its point
constexpr double kUnePointe = 60.0; ///< from a point to its name aside, 1/1440 inch
constexpr std::array<long, 9> kPasDegres{1, 2, 5, 10, 15, 30, 45, 90, 180};

/// A text with the room it takes.
struct Texte {
  std::size_t rang;
  const TexteTrace *trace;
  ZoneTexte zone;                       ///< where it is recorded
  const Etiquette *etiquette = nullptr; ///< of a name of a line
};

ZoneTexte Deplacee(ZoneTexte zone, double dx, double dy) {
  zone.gauche += dx;
  zone.haut += dy;
  return zone;
}

bool Contient(const Surface &surface, Point p) {
  return p.x >= 0 && p.x <= surface.largeur && p.y >= 0 && p.y <= surface.hauteur;
}

/// Whether a text stands for something on the surface: its corner or its middle lies there, or any part of a figure of
/// a scale, whose tick is at its middle or right of it.
bool EstDessus(const Surface &surface, const ZoneTexte &zone, GenreTexte genre) {
  if (genre == GenreTexte::Echelle) {
    return SeCoupent(zone, {0, 0, surface.largeur, surface.hauteur});
  }
  return Contient(surface, {zone.gauche, zone.haut}) ||
         Contient(surface, {zone.gauche + zone.largeur / 2, zone.haut + zone.hauteur / 2});
}

/// What stands in any case.
bool EstTenu(const Texte &texte) { return texte.trace->role.genre < GenreTexte::Minute; }

/// A free place around the point that a name belongs to, as recorded if there is room.
std::optional<ZoneTexte> Cote(const PlanTextes &plan, const ZoneTexte &zone) {
  const double gauche = -zone.largeur - kEcart;
  const double haut = -zone.hauteur - kEntreLignes;
  const std::array<Point, 8> ecarts{{{0, 0},
                                     {0, haut},
                                     {gauche, 0},
                                     {gauche, haut},
                                     {kUnePointe, -zone.hauteur / 2},
                                     {gauche - kEntreLignes, -zone.hauteur / 2},
                                     {-zone.largeur / 2, kUnePointe},
                                     {-zone.largeur / 2, haut - kEcart}}};
  return plan.Premiere(zone, ecarts);
}

/// A place at one of a line's ends.
std::optional<ZoneTexte> AuBout(const PlanTextes &plan, const Texte &texte) {
  const std::optional<ZoneTexte> premier = Cote(plan, texte.zone);
  const Point ici = texte.trace->position;
  const Point autre = texte.etiquette->autreBout;
  return premier ? premier : Cote(plan, Deplacee(texte.zone, autre.x - ici.x, autre.y - ici.y));
}

/// A place for what gives way where there is none.
std::optional<ZoneTexte> PlaceCedante(const PlanTextes &plan, const Texte &texte) {
  const ZoneTexte dedans = plan.Rentree(texte.zone);
  switch (texte.trace->role.genre) {
  case GenreTexte::Ville:
    return Cote(plan, texte.zone);
  case GenreTexte::Bout:
    return AuBout(plan, texte);
  case GenreTexte::Objet: {
    const std::optional<ZoneTexte> cote = Cote(plan, texte.zone);
    return cote ? cote : plan.Autour(texte.zone, kCerclesObjet);
  }
  default:
    return plan.EstLibre(dedans) ? std::optional(dedans) : std::nullopt;
  }
}

/// Whether a place is one: finite, and not out of all measure.
bool EstPlace(const Surface &surface, Point p) {
  return std::fabs(p.x) < 10 * surface.largeur + 1 && std::fabs(p.y) < 10 * surface.hauteur + 1;
}

/// One of the surface's names of lines, those of its layer counted after them.
const Etiquette &EtiquetteDe(const Surface &surface, std::size_t rang) {
  const std::size_t noms = surface.etiquettes.size();
  return rang < noms ? surface.etiquettes[rang] : surface.calque.etiquettes.at(rang - noms);
}

/// Texts on the surface in the order in which they take their places.
std::vector<Texte> Ordonnes(const Surface &surface, const MesureTexte &mesure) {
  std::vector<Texte> textes;
  const auto zone = [&](const TexteTrace &trace) {
    const TailleTexte taille = mesure(trace);
    return ZoneTexte{trace.position.x, trace.position.y, taille.largeur, taille.hauteur};
  };
  for (std::size_t i = 0; i < surface.traces.size(); ++i) {
    const auto *trace = std::get_if<TexteTrace>(&surface.traces[i]);
    if (trace != nullptr && EstPlace(surface, trace->position)) { // what is in no place needs no room
      const Texte texte{i, trace, zone(*trace)};
      if (trace->role.genre == GenreTexte::Libre || EstDessus(surface, texte.zone, trace->role.genre)) {
        textes.push_back(texte);
      }
    }
  }
  const std::size_t noms = surface.etiquettes.size();
  for (std::size_t i = surface.etiquetee ? 0 : noms; i < noms + surface.calque.etiquettes.size(); ++i) {
    const Etiquette &etiquette = EtiquetteDe(surface, i);
    if (EstPlace(surface, etiquette.texte.position) && EstPlace(surface, etiquette.autreBout)) {
      textes.push_back({i, &etiquette.texte, zone(etiquette.texte), &etiquette});
    }
  }
  std::stable_sort(textes.begin(), textes.end(), [](const Texte &a, const Texte &b) {
    const RoleTexte &x = a.trace->role;
    const RoleTexte &y = b.trace->role;
    return x.genre != y.genre ? x.genre < y.genre : x.classe < y.classe;
  });
  return textes;
}

/// Leaves one of several equal texts on one spot.
void RetireDoubles(std::vector<Texte> &textes) {
  std::unordered_map<std::string_view, std::vector<ZoneTexte>> connus;
  std::erase_if(textes, [&](const Texte &texte) {
    std::vector<ZoneTexte> &egaux = connus[texte.trace->texte];
    const bool connu = std::any_of(egaux.begin(), egaux.end(), [&](const ZoneTexte &autre) {
      return std::fabs(autre.gauche - texte.zone.gauche) <= kUnSpot &&
             std::fabs(autre.haut - texte.zone.haut) <= kUnSpot;
    });
    if (!connu) {
      egaux.push_back(texte.zone);
    }
    return connu;
  });
}

bool EstMultiple(const Texte &degre, long pas) { return std::lround(Val(degre.trace->texte)) % pas == 0; }

/// Leaves of one axis the degrees that stand far enough apart for their figures: every one of them if all do.
void EclaircitDegres(std::vector<Texte> &textes, GenreTexte axe) {
  const auto estAxe = [&](const Texte &t) { return t.trace->role.genre == axe; };
  const auto lisible = [&](long pas) {
    const Texte *dernier = nullptr;
    for (const Texte &t : textes) {
      if (estAxe(t) && EstMultiple(t, pas)) {
        if (dernier != nullptr && std::fabs(t.zone.gauche - dernier->zone.gauche) < dernier->zone.largeur + kEcart &&
            std::fabs(t.zone.haut - dernier->zone.haut) < t.zone.hauteur + kEntreLignes) {
          return false;
        }
        dernier = &t;
      }
    }
    return true;
  };
  const auto *pas = std::find_if(kPasDegres.begin(), kPasDegres.end() - 1, lisible);
  std::erase_if(textes, [&](const Texte &t) { return estAxe(t) && !EstMultiple(t, *pas); });
}

} // namespace

bool SeCoupent(const ZoneTexte &a, const ZoneTexte &b) {
  return a.gauche < b.droite() && b.gauche < a.droite() && a.haut < b.bas() && b.haut < a.bas();
}

/// The strip that a height lies in; beyond the surface it is the nearest one.
std::size_t PlanTextes::EtageDe(double y) const {
  const double etage = y / std::max(hauteur_, 1.0) * kEtages;
  return static_cast<std::size_t>(std::max(0.0, std::min(etage, kEtages - 1.0)));
}

void PlanTextes::Prend(const ZoneTexte &zone) {
  for (std::size_t i = EtageDe(zone.haut); i <= EtageDe(zone.bas()); ++i) {
    prises_.at(i).push_back(zone);
  }
}

bool PlanTextes::EstLibre(ZoneTexte zone) const {
  zone.gauche -= kEcart;
  zone.largeur += 2 * kEcart;
  zone.haut -= kEntreLignes;
  zone.hauteur += 2 * kEntreLignes;
  const auto libre = [&](const std::vector<ZoneTexte> &etage) {
    return std::none_of(etage.begin(), etage.end(), [&](const ZoneTexte &prise) { return SeCoupent(prise, zone); });
  };
  const auto etages = std::span(prises_).subspan(EtageDe(zone.haut), EtageDe(zone.bas()) + 1 - EtageDe(zone.haut));
  return std::all_of(etages.begin(), etages.end(), libre);
}

ZoneTexte PlanTextes::Rentree(ZoneTexte zone) const {
  zone.gauche = std::max(0.0, std::min(zone.gauche, largeur_ - zone.largeur));
  zone.haut = std::max(0.0, std::min(zone.haut, hauteur_ - zone.hauteur));
  return zone;
}

std::optional<ZoneTexte> PlanTextes::Premiere(const ZoneTexte &zone, std::span<const Point> ecarts) const {
  for (const Point &ecart : ecarts) {
    const ZoneTexte essai = Deplacee(zone, ecart.x, ecart.y);
    if (Rentree(essai) == essai && EstLibre(essai)) {
      return essai;
    }
  }
  return std::nullopt;
}

std::optional<ZoneTexte> PlanTextes::Autour(const ZoneTexte &zone, int cercles) const {
  for (int cercle = 1; cercle <= cercles; ++cercle) {
    const double rayon = cercle * zone.hauteur / 2;
    for (int k = 0; k < kDirections; ++k) {
      // Above and below by turns first, where a text has the shortest way.
      const double angle = std::numbers::pi * (0.5 + (k % 2 == 0 ? k / 2 : k / 2 + 8) / 8.0);
      const ZoneTexte essai = Rentree(Deplacee(zone, rayon * std::cos(angle), -rayon * std::sin(angle)));
      if (EstLibre(essai)) {
        return essai;
      }
    }
  }
  return std::nullopt;
}

ZoneTexte PlanTextes::Proche(const ZoneTexte &zone) const {
  const ZoneTexte dedans = Rentree(zone);
  const auto partout = static_cast<int>(2 * (largeur_ + hauteur_) / std::max(zone.hauteur, 1.0));
  return EstLibre(dedans) ? dedans : Autour(dedans, partout).value_or(dedans);
}

const TexteTrace &TexteDe(const Surface &surface, const TextePlace &place) {
  return place.etiquette ? EtiquetteDe(surface, place.rang).texte : std::get<TexteTrace>(surface.traces.at(place.rang));
}

std::vector<TextePlace> PlaceTextes(const Surface &surface, const MesureTexte &mesure,
                                    std::span<const ZoneTexte> reserves) {
  std::vector<Texte> textes = Ordonnes(surface, mesure);
  RetireDoubles(textes);
  EclaircitDegres(textes, GenreTexte::DegreLongitude);
  EclaircitDegres(textes, GenreTexte::DegreLatitude);
  PlanTextes plan(surface.largeur, surface.hauteur);
  for (const ZoneTexte &zone : reserves) {
    plan.Prend(zone);
  }
  std::vector<TextePlace> places;
  const auto montre = [&](const Texte &texte, const ZoneTexte &zone) {
    plan.Prend(zone);
    places.push_back({texte.rang, zone, texte.etiquette != nullptr});
  };
  // First whatever has its own place free, then the others as near to theirs as can be, then what gives way.
  const auto fin = std::find_if_not(textes.begin(), textes.end(), EstTenu);
  std::vector<Texte> remis;
  for (const Texte &texte : std::span(textes.begin(), fin)) {
    const bool libre = texte.trace->role.genre == GenreTexte::Libre;
    const ZoneTexte zone = libre ? texte.zone : plan.Rentree(texte.zone);
    if (libre || plan.EstLibre(zone)) {
      montre(texte, zone);
    } else {
      remis.push_back(texte);
    }
  }
  for (const Texte &texte : remis) {
    montre(texte, plan.Proche(texte.zone));
  }
  for (const Texte &texte : std::span(fin, textes.end())) {
    if (const std::optional<ZoneTexte> zone = PlaceCedante(plan, texte)) {
      montre(texte, *zone);
    }
  }
  return places;
}

} // namespace velmaris
