#include "shell/ciel/LabelsCiel.hpp"

#include "sky/AstresCiel.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

namespace velmaris::ciel {
namespace {

constexpr double kDuRepere = 60.0; ///< from a mark to a name beside it, 1/1440 inch

/// In which order names take their places.
enum class Tour : std::uint8_t { Navigation, Planete, Devant, Allumee, Autre };

bool EstMuet(const Controle &label) { return label.legende.find_first_not_of(' ') == std::string::npos; }

bool Contient(const Place &place, Point p, double autour = 0) {
  return p.x >= place.gauche - autour && p.x <= place.gauche + place.largeur + autour && p.y >= place.haut - autour &&
         p.y <= place.haut + place.hauteur + autour;
}

bool Contient(const ZoneTexte &zone, Point p) {
  return Contient(Place{zone.gauche, zone.haut, zone.largeur, zone.hauteur}, p);
}

Point MilieuDe(const Place &place) { return {place.gauche + place.largeur / 2, place.haut + place.hauteur / 2}; }

/// Label of a mark, or mark of a label.
Controle *Compagnon(std::span<Controle *const> corps, const Controle &c) {
  constexpr std::array<std::pair<std::string_view, std::string_view>, 4> kPaires{
      {{"Laet", "Shet"}, {"Shet", "Laet"}, {"LaP", "Shapla"}, {"Shapla", "LaP"}}};
  const auto *paire = std::find_if(kPaires.begin(), kPaires.end(), [&](const auto &p) { return p.first == c.nom; });
  if (paire == kPaires.end()) {
    return nullptr;
  }
  const auto autre = std::find_if(corps.begin(), corps.end(),
                                  [&](const Controle *a) { return a->indice == c.indice && a->nom == paire->second; });
  return autre == corps.end() ? nullptr : *autre;
}

Tour TourDe(const Controle &label) {
  if (label.nom == "LaP") {
    return Tour::Planete;
  }
  if (label.gras) {
    return Tour::Navigation;
  }
  if (label.opaque) {
    return Tour::Devant;
  }
  return label.couleur == kRouge ? Tour::Allumee : Tour::Autre;
}

struct Nomme {
  Controle *label;
  Controle *marque;
  Tour tour;
};

/// The names of bodies that are on the chart, in the order of their turns.
std::vector<Nomme> Nommes(const Ciel &c, std::span<Controle *const> corps) {
  std::vector<Nomme> nommes;
  for (Controle *label : corps) {
    if (label->genre != Genre::Etiquette || !label->visible || EstMuet(*label)) {
      continue;
    }
    Controle *marque = Compagnon(corps, *label);
    const Place carte{0, 0, c.picture1.largeur, c.picture1.hauteur};
    if (marque != nullptr && Contient(carte, MilieuDe(marque->place))) {
      nommes.push_back({label, marque, TourDe(*label)});
    }
  }
  std::stable_sort(nommes.begin(), nommes.end(), [](const Nomme &a, const Nomme &b) {
    return std::tuple(a.tour, RangEclat(a.label->legende)) < std::tuple(b.tour, RangEclat(b.label->legende));
  });
  return nommes;
}

/// A place of its own, above its mark, or beside it.
std::optional<ZoneTexte> Cote(const PlanTextes &plan, const ZoneTexte &zone, const Place &marque) {
  const Point milieu = MilieuDe(marque);
  const double dessus = 2 * milieu.y - zone.bas() - zone.haut;
  const double cote = marque.largeur / 2 + kDuRepere;
  const double hauteur = milieu.y - zone.hauteur / 2 - zone.haut;
  const std::array<Point, 4> ecarts{
      {{0, 0}, {0, dessus}, {milieu.x + cote - zone.gauche, hauteur}, {milieu.x - cote - zone.droite(), hauteur}}};
  return plan.Premiere(zone, ecarts);
}

/// The topmost mark that holds a point.
Controle *MarqueAu(const std::vector<Controle *> &marques, Point point, double autour) {
  const auto trouvee = std::find_if(marques.rbegin(), marques.rend(),
                                    [&](const Controle *m) { return Contient(m->place, point, autour); });
  return trouvee == marques.rend() ? nullptr : *trouvee;
}

} // namespace

std::vector<LabelMontre> LabelsMontres(const Ciel &c, std::span<Controle *const> corps,
                                       std::span<const ZoneTexte> pris) {
  PlanTextes plan(c.picture1.largeur, c.picture1.hauteur);
  std::for_each(pris.begin(), pris.end(), [&](const ZoneTexte &zone) { plan.Prend(zone); });
  std::vector<LabelMontre> montres;
  for (const Nomme &nomme : Nommes(c, corps)) {
    const Place &p = nomme.label->place;
    const ZoneTexte zone{p.gauche, p.haut, p.largeur, p.hauteur};
    std::optional<ZoneTexte> place = Cote(plan, zone, nomme.marque->place);
    if (!place && nomme.tour <= Tour::Devant) {
      place = plan.Proche(zone);
    }
    if (place) {
      plan.Prend(*place);
      montres.push_back({nomme.label, *place});
    }
  }
  return montres;
}

std::vector<Controle *> MarquesMontrees(std::span<Controle *const> corps) {
  std::vector<std::pair<int, Controle *>> marques;
  for (Controle *c : corps) {
    if (c->genre != Genre::Marque || !c->visible) {
      continue;
    }
    // A planet lies under the stars: its disc is the larger one, and shows around them.
    int rang = -1;
    if (c->nom == "Shet") {
      const Controle *label = Compagnon(corps, *c);
      rang = label != nullptr && label->gras ? kNombreNavigables - RangEclat(label->legende) : 0;
    }
    marques.emplace_back(rang, c);
  }
  std::stable_sort(marques.begin(), marques.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
  std::vector<Controle *> resultat;
  std::transform(marques.begin(), marques.end(), std::back_inserter(resultat), [](const auto &m) { return m.second; });
  return resultat;
}

AstreTrouve AstreAu(const Ciel &c, std::span<Controle *const> corps, Point point, double prise,
                    std::span<const ZoneTexte> pris) {
  const std::vector<LabelMontre> labels = LabelsMontres(c, corps, pris);
  const std::vector<Controle *> marques = MarquesMontrees(corps);
  const auto nomAu = [&](bool devant) -> Controle * {
    const auto trouve = std::find_if(labels.begin(), labels.end(), [&](const LabelMontre &l) {
      return (!devant || l.label->opaque) && Contient(l.zone, point);
    });
    return trouve == labels.end() ? nullptr : trouve->label;
  };
  if (Controle *devant = nomAu(true)) {
    return {devant, devant};
  }
  Controle *image = nullptr; // painted over the marks; of two the later one is over the other
  for (Controle *astre : corps) {
    image = astre->genre == Genre::Image && astre->visible && Contient(astre->place, point) ? astre : image;
  }
  Controle *disque = image == nullptr ? MarqueAu(marques, point, 0) : nullptr;
  if (disque != nullptr) {
    return {Compagnon(corps, *disque), disque};
  }
  if (Controle *nom = nomAu(false)) {
    return {nom, nom};
  }
  if (image != nullptr) {
    return {image, image};
  }
  Controle *proche = MarqueAu(marques, point, prise);
  return proche == nullptr ? AstreTrouve{} : AstreTrouve{Compagnon(corps, *proche), proche};
}

} // namespace velmaris::ciel
