#include "tools/MesureTheorie.hpp"

#include "complements/ciel/Refus.hpp"
#include "complements/controle/Controle.hpp"
#include "complements/controle/LignesEtoiles.hpp"
#include "complements/controle/Parts.hpp"
#include "foundations/TexteNombre.hpp"
#include "sights/DroiteLUN.hpp"
#include "sights/DroitePLA.hpp"
#include "sights/DroiteSOL.hpp"
#include "sights/DroiteSTAR.hpp"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <random>
#include <set>

namespace velmaris {
namespace {

constexpr double kRad = 0.017453292519943295;
constexpr double kJamais = 3; ///< minutes of arc past which a row is never to be used

const Etoiles &Table() {
  static const Etoiles etoiles = [] {
    Etoiles table;
    std::vector<std::string> noms;
    ChargeEtoiles(table, noms);
    return table;
  }();
  return etoiles;
}

/// Names of the stars that the sky window writes in green.
std::set<std::string> NomsEnVert() {
  std::set<std::string> noms;
  for (const double latitude : {-60.0, 0.0, 60.0}) {
    for (int heure = 0; heure < 24; heure += 3) {
      const auto visibles = ListeVisibles(Table(), {"1", "1", "2026"},
                                          {.annee = 2026, .mois = 1, .jour = 1, .heure = heure}, latitude, 0);
      noms.insert(visibles.begin(), visibles.end());
    }
  }
  return noms;
}

/// Those of some rows that the sky window writes in green.
std::vector<int> EnVert(const std::vector<int> &rangs) {
  const std::set<std::string> noms = NomsEnVert();
  std::vector<int> verts;
  for (const int rang : rangs) {
    if (noms.contains(std::string(Table().EtoileNom.at(static_cast<std::size_t>(rang) + 1)))) {
      verts.push_back(rang);
    }
  }
  return verts;
}

/// Named stars by how far their row lies off.
std::vector<int> Rangees(bool bonnes) {
  std::vector<int> rangs;
  for (int rang = 1; rang <= kNombreEtoiles; ++rang) {
    const auto ecart = EcartDeLigne(Table(), rang);
    if (ecart && (*ecart <= kJamais) == bonnes) {
      rangs.push_back(rang - 1);
    }
  }
  return rangs;
}

struct Hasard {
  std::mt19937_64 alea;
  /// Not of the library's own, whose figures differ from one to the next.
  double Entre(double bas, double haut) {
    return bas + (haut - bas) * (static_cast<double>(alea() >> 11U) / 9007199254740992.0);
  }
  int Entier(int bas, int haut) { return static_cast<int>(std::floor(Entre(bas, haut + 1.0))); }
};

std::string Deux(long n) { return Format(static_cast<double>(n), "00"); }

/// Date, time and position of a sight, the rest still to come.
Observation AuHasard(Hasard &h, const GroupeVisees &groupe) {
  using namespace std::chrono;
  const sys_days debut{year{2020} / 1 / 1};
  const sys_days fin{year{2035} / 1 / 1};
  const year_month_day jour{debut + days{h.Entier(0, static_cast<int>((fin - debut).count()) - 1)}};
  Observation o;
  o.corps = groupe.corps;
  o.horizon = groupe.horizon;
  o.annee = std::to_string(static_cast<int>(jour.year()));
  o.mois = Deux(static_cast<unsigned>(jour.month()));
  o.jour = Deux(static_cast<unsigned>(jour.day()));
  o.heure = Deux(h.Entier(0, 23));
  o.minute = Deux(h.Entier(0, 59));
  o.seconde = Deux(h.Entier(0, 59));
  // As many on each square mile.
  const double sinus = std::sin(70 * kRad);
  const auto latitude = static_cast<int>(std::lround(std::asin(h.Entre(-sinus, sinus)) / kRad * 60));
  const int longitude = h.Entier(0, 179 * 60 + 59);
  o.latitudeDegres = Deux(std::abs(latitude) / 60);
  o.latitudeMinutes = Deux(std::abs(latitude) % 60);
  o.longitudeDegres = Deux(longitude / 60);
  o.longitudeMinutes = Deux(longitude % 60);
  o.sud = latitude < 0;
  o.est = h.Entier(0, 1) == 1;
  o.hauteurOeil = std::to_string(h.Entier(2, 9)) + "," + std::to_string(h.Entier(0, 9));
  o.collimation = "0,0";
  const bool disque = groupe.corps == Corps::Soleil || groupe.corps == Corps::Lune;
  o.bord = !disque || groupe.centre ? Bord::Centre : h.Entier(0, 1) == 1 ? Bord::Inferieur : Bord::Superieur;
  const int rang =
      groupe.rangs.empty()
          ? -1
          : groupe.rangs.at(static_cast<std::size_t>(h.Entier(0, static_cast<int>(groupe.rangs.size()) - 1)));
  o.etoile = groupe.corps == Corps::Etoiles ? rang : -1;
  o.planete = groupe.corps == Corps::Planetes ? rang : -1;
  return o;
}

/// Gives the sight the reading of a ship some miles off.
/// @return false when the body can't be shot
bool Lit(Observation &o, double milles) {
  constexpr double kPlusBas = 10;
  const ViseeTypee typee = LitVisee(o, {});
  const RouteActuelle route = SuitRoute(typee, 0);
  const bool artificiel = o.horizon == Horizon::Artificiel;
  const double h = route.vue.hauteur;
  if (h < kPlusBas || h > (artificiel ? 65 : 80)) {
    return false;
  }
  const double signe = o.bord == Bord::Inferieur ? -1 : o.bord == Bord::Superieur ? 1 : 0;
  const double bord = h + (milles + signe * route.vue.demiDiametre) / 60;
  const double apparente = bord + 1.02 / std::tan((bord + 10.3 / (bord + 5.11)) * kRad) / 60;
  const double lecture = artificiel ? 2 * apparente : apparente + Depression(typee.lecture.hauteurOeil) / 60;
  const auto centiemes = std::lround(lecture * 6000);
  o.lectureDegres = Deux(centiemes / 6000);
  o.lectureMinutes = Deux(centiemes / 100 % 60);
  o.lectureFraction = Deux(centiemes % 100);
  o.fraction = Fraction::Centiemes;
  return true;
}

double InterceptDit(Observation o) {
  ValeursVisee v;
  AffichageDroite affichage;
  Lune lune;
  v.HeureDecimale = HeureDesChamps(o);
  LitEstime(o, v);
  switch (o.corps) {
  case Corps::Lune:
    Calcul_DroiteLUN(o, v, lune, affichage, {});
    break;
  case Corps::Planetes:
    Calcul_DroitePLA(o, v, affichage, {});
    break;
  case Corps::Etoiles:
    Calcul_DroiteSTAR(o, v, Table(), affichage, {});
    break;
  default:
    Calcul_DroiteSOL(o, v, affichage, {});
    break;
  }
  return v.Intercept;
}

/// Adds a sight, if it belongs to the group.
/// @return whether it does
bool AjouteVisee(const Observation &o, const GroupeVisees &groupe, MesureTheorie &mesure) {
  const ViseeTypee typee = LitVisee(o, {});
  const RouteActuelle route = SuitRoute(typee, 0);
  if (groupe.signePerdu && (route.place.declinaison < -1.1 || route.place.declinaison > 0.1)) {
    return false; // far from the band: no need to work out the told place
  }
  const EtapesDites dites = RefaitEtapes(o, typee, Table());
  if (o.corps == Corps::Planetes && dites.signePerdu != groupe.signePerdu) {
    return false;
  }
  std::array<double, kNombreCauses> parts{};
  for (const PartCause &part : PartsDesCauses(typee, route, dites, Table(), 0)) {
    parts.at(static_cast<std::size_t>(part.cause)) += part.minutes;
  }
  for (std::size_t i = 0; i < kNombreCauses; ++i) {
    mesure.parts.at(i).Ajoute(parts.at(i));
  }
  const double ecart = route.intercept - InterceptDit(o);
  mesure.total.Ajoute(ecart);
  const bool accord = std::fabs(ecart) <= kAccord;
  mesure.accords += accord ? 1 : 0;
  mesure.manieres += !accord && std::fabs(ecart) <= kManiere ? 1 : 0;
  return true;
}

/// Two figures of a line: root mean square and largest; a dash where there is nothing to tell.
std::string Deux(const Ecarts &ecarts) {
  constexpr double kRien = 0.005;
  if (ecarts.plusGrand < kRien) {
    return "-";
  }
  const char *const masque = ecarts.plusGrand < 10 ? "0.00" : "0.0";
  return Format(ecarts.Moyen(), masque) + ", " + Format(ecarts.plusGrand, masque);
}

} // namespace

void Ecarts::Ajoute(double milles) {
  carres += milles * milles;
  plusGrand = std::max(plusGrand, std::fabs(milles));
  ++nombre;
}

double Ecarts::Moyen() const { return nombre == 0 ? 0 : std::sqrt(carres / nombre); }

std::vector<GroupeVisees> GroupesDeLaTable() {
  return {{.nom = "Sun", .corps = Corps::Soleil},
          {.nom = "Moon", .corps = Corps::Lune},
          {.nom = "Venus", .corps = Corps::Planetes, .rangs = {0}},
          {.nom = "Mars", .corps = Corps::Planetes, .rangs = {1}},
          {.nom = "Jupiter", .corps = Corps::Planetes, .rangs = {2}},
          {.nom = "Saturn", .corps = Corps::Planetes, .rangs = {3}},
          {.nom = "Planets, sign lost", .corps = Corps::Planetes, .rangs = {0, 1, 2, 3}, .signePerdu = true},
          {.nom = "Stars in green, but Antares", .corps = Corps::Etoiles, .rangs = EnVert(Rangees(true))},
          {.nom = "Stars, rows up to 3' off", .corps = Corps::Etoiles, .rangs = Rangees(true)},
          {.nom = "Stars, rows over 3' off", .corps = Corps::Etoiles, .rangs = Rangees(false)},
          {.nom = "Sun's centre, artificial horizon",
           .corps = Corps::Soleil,
           .horizon = Horizon::Artificiel,
           .centre = true},
          {.nom = "Sun's limb, artificial horizon", .corps = Corps::Soleil, .horizon = Horizon::Artificiel},
          {.nom = "Moon's centre, artificial horizon",
           .corps = Corps::Lune,
           .horizon = Horizon::Artificiel,
           .centre = true},
          {.nom = "Moon's limb, artificial horizon", .corps = Corps::Lune, .horizon = Horizon::Artificiel},
          {.nom = "Stars in green, artificial horizon",
           .corps = Corps::Etoiles,
           .rangs = EnVert(Rangees(true)),
           .horizon = Horizon::Artificiel}};
}

MesureTheorie Mesure(const GroupeVisees &groupe, int nombre, std::uint64_t graine) {
  Hasard h{std::mt19937_64(graine)};
  MesureTheorie mesure;
  while (mesure.total.nombre < nombre) {
    Observation o = AuHasard(h, groupe);
    if (Lit(o, h.Entre(-5, 5))) {
      AjouteVisee(o, groupe, mesure);
    }
  }
  return mesure;
}

std::string TeteDeTable() {
  return "| Body | Whole | Agreement, manner | Row or sign | Place | Time scales | Refraction | Dip | Semidiameter | "
         "Parallax | Artificial "
         "|\n"
         "|---|---|---|---|---|---|---|---|---|---|---|\n";
}

std::string LigneDeTable(const GroupeVisees &groupe, const MesureTheorie &mesure) {
  const Cause ligneOuSigne = groupe.corps == Corps::Planetes ? Cause::Signe : Cause::Etoile;
  const auto part = [&](int visees) { return Format(100.0 * visees / mesure.total.nombre, "0") + " %"; };
  std::string ligne =
      "| " + groupe.nom + " | " + Deux(mesure.total) + " | " + part(mesure.accords) + ", " + part(mesure.manieres);
  for (const Cause cause : {ligneOuSigne, Cause::Lieu, Cause::Temps, Cause::Refraction, Cause::Depression,
                            Cause::DemiDiametre, Cause::Parallaxe, Cause::Artificiel}) {
    ligne += " | " + Deux(mesure.De(cause));
  }
  return ligne + " |\n";
}

} // namespace velmaris
