#include "shell/point/SourcesPoint.hpp"

#include "complements/ciel/Refus.hpp"
#include "complements/registre/FiltreRegistre.hpp"
#include "complements/registre/ReduitCopie.hpp"
#include "complements/registre/RegistreLu.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/complements/ReglagesLus.hpp"
#include "shell/droites/MemoireDroites.hpp"
#include "shell/point/Point.hpp"
#include "shell/registre/LectureRegistre.hpp"
#include "shell/registre/Registre.hpp"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <set>
#include <string>
#include <tuple>

namespace velmaris {
namespace {

constexpr std::int64_t kEntreQuarts = 5400; ///< seconds
constexpr double kUnJour = 86400;           ///< seconds
constexpr double kVitesseMax = 100;         ///< knots
constexpr double kTour = 360;
constexpr std::string_view kDroite = "droite "; ///< what the identity of a stored line begins with

/// What makes two rows one sight: body and time.
using Sujet = std::tuple<Corps, std::string, std::int64_t>;

/// Of a row: a star or a planet by its name, the Sun and the Moon whatever the language.
Sujet SujetDe(const Rangee &rangee, std::int64_t instant) {
  const Corps corps = rangee.observation.corps;
  return {corps, corps == Corps::Soleil || corps == Corps::Lune ? "" : rangee.astre, instant};
}

/// Whether two sights are one: body and time as typed.
bool EstLaMeme(const Observation &a, const Observation &b) {
  const auto temps = [](const Observation &o) {
    return std::tuple(Val(o.annee), Val(o.mois), Val(o.jour), Val(o.heure), Val(o.minute), Val(o.seconde));
  };
  const bool corps = a.corps == b.corps && (a.corps != Corps::Planetes || a.planete == b.planete) &&
                     (a.corps != Corps::Etoiles || a.etoile == b.etoile);
  return corps && temps(a) == temps(b);
}

bool EstDroite(const std::string &identite) { return identite.starts_with(kDroite); }

/// Whether a stored line is of the day of the sights beside it, within 24 hours of the last of them, rows of the log
/// before lines: one that was kept on another voyage is listed, and counts when it is ticked.
bool EstDuJour(const PointOuvert &point, const ViseeDuPoint &droite) {
  const auto derniere = [&](bool droites) {
    const InstantUTC *trouvee = nullptr;
    for (const ViseeDuPoint &v : point.visees) {
      if (v.hauteur && EstDroite(v.identite) == droites &&
          (trouvee == nullptr || SecondesEntre(*trouvee, v.hauteur->utc) > 0)) {
        trouvee = &v.hauteur->utc;
      }
    }
    return trouvee;
  };
  const InstantUTC *jour = derniere(false);
  jour = jour == nullptr ? derniere(true) : jour;
  return jour == nullptr || !droite.hauteur || std::fabs(SecondesEntre(*jour, droite.hauteur->utc)) <= kUnJour;
}

void AjouteRangee(Bureau &bureau, const RegistreLu &registre, std::size_t rang) {
  if (std::optional<Rangee> r = RangeeDe(registre, rang); r && ChoisitAstre(*r, bureau.etoiles)) {
    AjouteVisee(bureau, r->identite, r->observation, ResultatDit{r->Ho, r->Hc, r->azimut, r->intercept});
  }
}

} // namespace

void ReprendDroites(Bureau &bureau, bool cochees) {
  std::set<std::string> neuves;
  for (int ligne = 0; ligne < kNombreDroites; ++ligne) {
    std::optional<Observation> gardee = ObservationGardee(bureau, ligne);
    if (!gardee) {
      continue;
    }
    const bool connue = std::any_of(bureau.point.visees.begin(), bureau.point.visees.end(),
                                    [&](const ViseeDuPoint &v) { return EstLaMeme(v.observation, *gardee); });
    const std::optional<ResultatDit> dit = ReduitCopie(*gardee, bureau.etoiles, bureau.messages);
    if (!connue && dit) {
      const std::string identite = std::string(kDroite) + std::to_string(ligne + 1);
      AjouteVisee(bureau, identite, *gardee, dit);
      neuves.insert(identite);
    }
  }
  for (ViseeDuPoint &v : bureau.point.visees) {
    if (neuves.contains(v.identite)) {
      v.cochee = cochees && EstDuJour(bureau.point, v);
    }
  }
}

std::vector<std::size_t> DernierQuart(const RegistreLu &registre, const Annotations &annotations) {
  std::vector<std::size_t> rangs;
  std::set<Sujet> connus;
  std::optional<std::int64_t> avant;
  for (std::size_t i = 0; i < registre.lignes.size() && rangs.size() < kViseesDuPoint; ++i) {
    const std::int64_t instant = registre.lignes[i].instant;
    if (avant && *avant - instant > kEntreQuarts) {
      break;
    }
    const auto annotation = annotations.find(IdentiteDe(registre, i));
    const std::optional<Rangee> rangee = RangeeDe(registre, i);
    if (!rangee || (annotation != annotations.end() && annotation->second.masquee)) {
      continue;
    }
    avant = instant;
    if (connus.insert(SujetDe(*rangee, instant)).second) {
      rangs.push_back(i);
    }
  }
  return rangs;
}

bool ListeFaiteMain(Bureau &bureau) {
  const std::vector<ViseeDuPoint> &visees = bureau.point.visees;
  const auto touchee = [&](const ViseeDuPoint &v) {
    const bool deLui = !EstDroite(v.identite) || EstDuJour(bureau.point, v);
    return v.cochee != deLui || v.ecartType;
  };
  if (std::any_of(visees.begin(), visees.end(), touchee)) {
    return true;
  }
  const auto duRegistre = [](const ViseeDuPoint &v) { return !EstDroite(v.identite); };
  LitRegistreAussitot(bureau);
  const RegistreLu &registre = *bureau.registreOuvert.lu;
  const std::vector<std::size_t> quart = DernierQuart(registre, *bureau.registreOuvert.annotations);
  const auto listee = [&](std::size_t rang) {
    const std::string identite = IdentiteDe(registre, rang);
    return std::any_of(visees.begin(), visees.end(), [&](const auto &v) { return v.identite == identite; });
  };
  const auto nombre = std::count_if(visees.begin(), visees.end(), duRegistre);
  return static_cast<std::size_t>(nombre) != quart.size() || !std::all_of(quart.begin(), quart.end(), listee);
}

std::vector<ViseeTenue> ViseesTenues(const PointOuvert &point) {
  std::vector<ViseeTenue> tenues;
  tenues.reserve(point.visees.size());
  for (const ViseeDuPoint &v : point.visees) {
    tenues.push_back({v.identite, v.cochee, v.ecartType});
  }
  return tenues;
}

void RemetVisees(Bureau &bureau, const std::vector<ViseeTenue> &visees) {
  const auto trouve = [&](const std::string &identite) {
    return std::find_if(visees.begin(), visees.end(), [&](const ViseeTenue &v) { return v.identite == identite; });
  };
  bureau.point.visees.clear();
  bureau.registreOuvert.auPoint.clear();
  for (const ViseeTenue &visee : visees) {
    if (!EstDroite(visee.identite)) {
      bureau.registreOuvert.auPoint.push_back(visee.identite);
    }
  }
  SuitRegistre(bureau);
  ReprendDroites(bureau, true);
  std::erase_if(bureau.point.visees, [&](const ViseeDuPoint &v) { return trouve(v.identite) == visees.end(); });
  for (ViseeDuPoint &visee : bureau.point.visees) {
    visee.cochee = trouve(visee.identite)->cochee;
    visee.ecartType = trouve(visee.identite)->ecartType;
  }
  ++bureau.registre.Table1.tableau.version;
}

void ReprendVisees(Bureau &bureau) {
  bureau.point.visees.clear();
  std::vector<std::string> identites;
  LitRegistreAussitot(bureau);
  const RegistreLu &registre = *bureau.registreOuvert.lu;
  for (const std::size_t rang : DernierQuart(registre, *bureau.registreOuvert.annotations)) {
    identites.push_back(IdentiteDe(registre, rang));
    AjouteRangee(bureau, registre, rang);
  }
  bureau.registreOuvert.auPoint = std::move(identites);
  ++bureau.registre.Table1.tableau.version;
  ReprendDroites(bureau, true);
}

bool SuitRegistre(Bureau &bureau) {
  const std::vector<std::string> &voulues = bureau.registreOuvert.auPoint;
  std::vector<ViseeDuPoint> &visees = bureau.point.visees;
  const auto voulue = [&](const std::string &identite) {
    return EstDroite(identite) || std::find(voulues.begin(), voulues.end(), identite) != voulues.end();
  };
  bool change = std::erase_if(visees, [&](const ViseeDuPoint &v) { return !voulue(v.identite); }) > 0;
  std::vector<std::string> manquent;
  for (const std::string &identite : voulues) {
    if (std::none_of(visees.begin(), visees.end(), [&](const ViseeDuPoint &v) { return v.identite == identite; })) {
      manquent.push_back(identite);
    }
  }
  if (manquent.empty()) {
    return change;
  }
  LitRegistreAussitot(bureau);
  const std::shared_ptr<const RegistreLu> registre = bureau.registreOuvert.lu;
  std::vector<std::size_t> tous(registre->lignes.size());
  std::iota(tous.begin(), tous.end(), std::size_t{0});
  for (const std::size_t rang : RangsDe(*registre, tous, manquent)) {
    AjouteRangee(bureau, *registre, rang);
    change = true;
  }
  // What no journal has is asked for once.
  std::erase_if(bureau.registreOuvert.auPoint, [&](const std::string &identite) {
    return std::none_of(visees.begin(), visees.end(), [&](const ViseeDuPoint &v) { return v.identite == identite; });
  });
  return change;
}

void PrepareVisee(const Bureau &bureau, ViseeDuPoint &visee) {
  visee.hauteur.reset();
  visee.refus.reset();
  try {
    const ViseeTypee typee = LitVisee(visee.observation, bureau.verification.reglages);
    double montre = 0;
    if (bureau.point.montreComptee) {
      montre = -ErreurMontre(bureau.registreOuvert.montre, SecondesDe(UTCDe(typee.date))).value_or(0);
    }
    visee.hauteur = PrepareHauteur(typee, visee.dit, montre, bureau.verification.reglages.dut1);
    visee.refus = visee.hauteur->refus;
  } catch (const Refus &refus) {
    visee.refus = refus.raison;
  }
}

void PrepareVisees(Bureau &bureau) {
  for (ViseeDuPoint &visee : bureau.point.visees) {
    PrepareVisee(bureau, visee);
  }
  bureau.point.versionMontre = bureau.registreOuvert.versionMontre;
  OrdonneVisees(bureau.point);
}

void OrdonneVisees(PointOuvert &point) {
  std::stable_sort(point.visees.begin(), point.visees.end(), [](const ViseeDuPoint &a, const ViseeDuPoint &b) {
    if (!a.hauteur || !b.hauteur) {
      return a.hauteur.has_value() && !b.hauteur;
    }
    return SecondesEntre(a.hauteur->utc, b.hauteur->utc) > 0;
  });
}

std::vector<Jambe> JambesDEstime(const Bureau &bureau) {
  const Donnees &d = bureau.donnees;
  const auto cap = LitNombreBorne(d.Text1.texte, 0, kTour);
  const auto vitesse = LitNombreBorne(d.Text2.texte, 0, kVitesseMax);
  const auto premiere = std::find_if(bureau.point.visees.begin(), bureau.point.visees.end(),
                                     [](const ViseeDuPoint &v) { return v.hauteur.has_value(); });
  if (!cap || !vitesse || premiere == bureau.point.visees.end()) {
    return {};
  }
  DateCivile depuis = CivileDe(premiere->hauteur->utc);
  constexpr int kHeureMax = 23;
  constexpr int kMinuteMax = 59;
  depuis.heure = static_cast<int>(LitNombreBorne(d.Combo1.texte, 0, kHeureMax).value_or(0));
  depuis.minute = static_cast<int>(LitNombreBorne(d.Combo2.texte, 0, kMinuteMax).value_or(0));
  depuis.seconde = 0;
  return {{UTCDe(depuis), *cap, *vitesse}};
}

} // namespace velmaris
