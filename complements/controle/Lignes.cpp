#include "complements/controle/Lignes.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kTour = 360;
constexpr double kMinutes = 60;
constexpr double kEcartExplique = 0.1; ///< minutes
constexpr double kEcartSecondes = 1;

/// What the lines are made from.
struct Matiere {
  const ResultatDit &dit;
  const EtapesDites &dites;
  const ViseeTypee *visee;
  const RouteActuelle *route;
  const std::vector<PartCause> &parts;
  bool ligneFautive;
};

/// The cause with the largest part.
/// @param admise  which causes count
template <class Admise> std::optional<Cause> Principale(const std::vector<PartCause> &parts, Admise &&admise) {
  std::optional<Cause> principale;
  double plus = 0;
  for (const PartCause &part : parts) {
    if (admise(part.cause) && std::fabs(part.minutes) > plus) {
      plus = std::fabs(part.minutes);
      principale = part.cause;
    }
  }
  return principale;
}

bool EstDeLecture(Cause cause) {
  return cause == Cause::Refraction || cause == Cause::Depression || cause == Cause::Artificiel ||
         cause == Cause::DemiDiametre || cause == Cause::Parallaxe || cause == Cause::ErreurArc;
}

/// Why a body's place differs.
/// @param signe  whether the sign of the declination acts on the step
Cause RaisonDuLieu(const Matiere &m, bool signe) {
  if (m.ligneFautive) {
    return Cause::Etoile;
  }
  if (m.dites.signePerdu && signe) {
    return Cause::Signe;
  }
  if (m.visee->astre.genre == GenreAstre::Lune) {
    return Cause::Temps;
  }
  // The Earth's lag is a setting: it turns the sky as a theory's fault does.
  return Principale(m.parts, [](Cause cause) { return cause == Cause::Temps || cause == Cause::Lieu; })
      .value_or(Cause::Lieu);
}

bool EstLune(const Matiere &m) { return m.visee->astre.genre == GenreAstre::Lune; }

/// Why the azimuth differs: by the body's place, as far as that goes. Where it doesn't, the told formula has failed,
/// near the meridian or the zenith, and no cause of this list is it.
std::optional<Cause> RaisonDeLAzimut(const Matiere &m) {
  constexpr double kParLeLieu = 0.5; ///< degrees
  const double ecart = std::fabs(std::remainder(m.route->vue.azimutCentre - m.dit.azimut, kTour));
  const Cause lieu = RaisonDuLieu(m, true);
  const bool nommee = lieu == Cause::Etoile || lieu == Cause::Signe;
  return nommee || ecart < kParLeLieu ? std::optional(lieu) : std::nullopt;
}

/// Why the step of a correction differs: off an artificial horizon because that is one.
Cause RaisonDeCorrection(const Matiere &m, Cause cause) {
  const bool tout = cause != Cause::Parallaxe || m.visee->astre.genre == GenreAstre::Soleil;
  return m.visee->lecture.horizonArtificiel && tout ? Cause::Artificiel : cause;
}

/// Why a step differs, if there is one known.
std::optional<Cause> Raison(const Matiere &m, EtapeControle etape) {
  switch (etape) {
  case EtapeControle::EcartTemps:
    return Cause::Temps;
  case EtapeControle::AngleHoraire:
  case EtapeControle::AngleLocal:
    return RaisonDuLieu(m, false);
  case EtapeControle::Declinaison:
    return RaisonDuLieu(m, true);
  case EtapeControle::Azimut:
    return RaisonDeLAzimut(m);
  case EtapeControle::HauteurCalculee:
    return EstLune(m) ? Cause::Parallaxe : RaisonDuLieu(m, true);
  case EtapeControle::Lecture:
  case EtapeControle::Collimation:
    return std::nullopt;
  case EtapeControle::ErreurArc:
    return Cause::ErreurArc;
  case EtapeControle::Depression:
    return RaisonDeCorrection(m, Cause::Depression);
  case EtapeControle::Refraction:
    return RaisonDeCorrection(m, Cause::Refraction);
  case EtapeControle::DemiDiametre:
    return RaisonDeCorrection(m, Cause::DemiDiametre);
  case EtapeControle::Parallaxe:
    return RaisonDeCorrection(m, Cause::Parallaxe);
  case EtapeControle::HauteurVraie:
    return EstLune(m) ? Cause::Parallaxe : Principale(m.parts, EstDeLecture);
  case EtapeControle::Intercept:
    return Principale(m.parts, [](Cause) { return true; });
  }
  return std::nullopt;
}

bool EstAngleDeTour(EtapeControle etape) {
  return etape == EtapeControle::AngleHoraire || etape == EtapeControle::AngleLocal || etape == EtapeControle::Azimut;
}

/// Whether the difference of a line is large enough to be explained.
bool Differe(const LigneControle &ligne) {
  if (!ligne.dit || !ligne.actuel) {
    return false;
  }
  const double ecart = *ligne.actuel - *ligne.dit;
  switch (ligne.unite) {
  case UniteControle::Secondes:
    return std::fabs(ecart) > kEcartSecondes;
  case UniteControle::Minutes:
    return std::fabs(ecart) > kEcartExplique;
  case UniteControle::Degres:
    break;
  }
  return std::fabs(EstAngleDeTour(ligne.etape) ? std::remainder(ecart, kTour) : ecart) * kMinutes > kEcartExplique;
}

using Valeur = std::optional<double>;

/// A figure that is none, of fields beyond what a number holds, isn't told.
Valeur SiFini(Valeur valeur) { return valeur && std::isfinite(*valeur) ? valeur : std::nullopt; }

double UnTour(double degres) {
  const double reste = std::fmod(degres, kTour);
  return reste < 0 ? reste + kTour : reste;
}

/// The lines of time and place.
void LignesDuLieu(const Matiere &m, std::vector<LigneControle> &lignes) {
  const RouteActuelle *r = m.route;
  const auto local = [&](Valeur gha) -> Valeur {
    return gha && m.visee != nullptr ? Valeur(UnTour(*gha + m.visee->station.longitude)) : std::nullopt;
  };
  const Valeur gha = r != nullptr ? Valeur(r->place.gha) : std::nullopt;
  const auto secondes = [&] { return Valeur(EcartTT(r->ciel.tt, r->ciel.ut1)); };
  lignes = {{EtapeControle::EcartTemps, UniteControle::Secondes, 0, r != nullptr ? secondes() : std::nullopt, {}},
            {EtapeControle::AngleHoraire, UniteControle::Degres, m.dites.gha, gha, {}},
            {EtapeControle::Declinaison,
             UniteControle::Degres,
             m.dites.declinaison,
             r != nullptr ? Valeur(r->place.declinaison) : std::nullopt,
             {}},
            {EtapeControle::AngleLocal, UniteControle::Degres, local(m.dites.gha), local(gha), {}}};
}

/// The lines of the reading's corrections.
void LignesDeLaLecture(const Matiere &m, std::vector<LigneControle> &lignes) {
  const EtapesHauteur *e = m.route != nullptr ? &m.route->etapes : nullptr;
  const auto actuel = [&](double EtapesHauteur::*champ) { return e != nullptr ? Valeur(e->*champ) : std::nullopt; };
  const auto lue = [&](double LectureSextant::*champ) {
    return m.visee != nullptr ? Valeur(m.visee->lecture.*champ) : std::nullopt;
  };
  const auto ajoute = [&](EtapeControle etape, UniteControle unite, Valeur dit, Valeur aujourdhui) {
    lignes.push_back({etape, unite, dit, aujourdhui, {}});
  };
  ajoute(EtapeControle::Lecture, UniteControle::Degres, lue(&LectureSextant::lecture), actuel(&EtapesHauteur::lecture));
  ajoute(EtapeControle::ErreurArc, UniteControle::Minutes, std::nullopt, actuel(&EtapesHauteur::erreurArc));
  ajoute(EtapeControle::Collimation, UniteControle::Minutes, lue(&LectureSextant::collimation),
         actuel(&EtapesHauteur::collimation));
  ajoute(EtapeControle::Depression, UniteControle::Minutes, m.dites.depression, actuel(&EtapesHauteur::depression));
  ajoute(EtapeControle::Refraction, UniteControle::Minutes, m.dites.refraction, actuel(&EtapesHauteur::refraction));
  ajoute(EtapeControle::DemiDiametre, UniteControle::Minutes, m.dites.demiDiametre,
         actuel(&EtapesHauteur::demiDiametre));
  ajoute(EtapeControle::Parallaxe, UniteControle::Minutes, m.dites.parallaxe, actuel(&EtapesHauteur::parallaxe));
}

/// The lines of the results.
void LignesDuResultat(const Matiere &m, std::vector<LigneControle> &lignes) {
  const RouteActuelle *r = m.route;
  const auto ajoute = [&](EtapeControle etape, UniteControle unite, double dit, Valeur actuel) {
    lignes.push_back({etape, unite, dit, actuel, {}});
  };
  const auto si = [&](auto &&valeur) { return r != nullptr ? Valeur(valeur()) : std::nullopt; };
  ajoute(EtapeControle::HauteurVraie, UniteControle::Degres, m.dit.Ho, si([&] { return r->etapes.observee; }));
  ajoute(EtapeControle::HauteurCalculee, UniteControle::Degres, m.dit.Hc, si([&] { return r->vue.hauteurCentre; }));
  ajoute(EtapeControle::Azimut, UniteControle::Degres, m.dit.azimut, si([&] { return r->vue.azimutCentre; }));
  ajoute(EtapeControle::Intercept, UniteControle::Minutes, m.dit.intercept, si([&] { return r->intercept; }));
}

} // namespace

std::vector<LigneControle> LignesDuControle(const ResultatDit &dit, const EtapesDites &dites, const ViseeTypee *visee,
                                            const RouteActuelle *route, const std::vector<PartCause> &parts,
                                            bool ligneFautive) {
  const Matiere matiere{dit, dites, visee, route, parts, ligneFautive};
  std::vector<LigneControle> lignes;
  LignesDuLieu(matiere, lignes);
  LignesDeLaLecture(matiere, lignes);
  LignesDuResultat(matiere, lignes);
  for (LigneControle &ligne : lignes) {
    ligne.dit = SiFini(ligne.dit);
    ligne.actuel = SiFini(ligne.actuel);
    if (Differe(ligne)) {
      ligne.raison = Raison(matiere, ligne.etape);
    }
  }
  return lignes;
}

} // namespace velmaris
