#include "shell/point/LecturePoint.hpp"

#include "shell/complements/Mots.hpp"
#include "shell/complements/ReglagesLus.hpp"
#include "shell/complements/Saisies.hpp"

#include <array>
#include <cstddef>
#include <limits>
#include <vector>

namespace velmaris {
namespace {

constexpr double kTour = 360;
constexpr double kVitesseMax = 100;      ///< knots
constexpr double kCourantMax = 20;       ///< knots
constexpr double kMoindreErreur = 0.1;   ///< minutes of arc
constexpr double kErreurHauteurMax = 60; ///< minutes of arc
constexpr double kDouteCapMax = 45;      ///< degrees
constexpr double kDouteVitesseMax = 100; ///< per cent
constexpr double kDouteCourantMax = 10;  ///< knots
InstantUTC DerniereVisee(const PointOuvert &point) {
  InstantUTC derniere{2451544.5, 0};
  for (const ViseeDuPoint &visee : point.visees) {
    if (visee.hauteur && visee.cochee) {
      derniere = visee.hauteur->utc; // they stand by time
    }
  }
  return derniere;
}

/// The time that the fix is for: as typed, on the last sight's day where no day is, at the last sight's time where no
/// time is.
InstantUTC LitHeureDuPoint(FenetrePoint &f, const InstantUTC &derniere) {
  Controle &date = f.Text1[0];
  Controle &temps = f.Text1[1];
  const std::string jour = date.texte.empty() ? TexteDate(derniere) : date.texte;
  const std::string heure = temps.texte.empty() ? TexteHeureUtc(derniere) : temps.texte;
  const auto lue = LitMomentTape(jour, heure);
  MarqueChamp(date, LitMomentTape(jour, "00:00").has_value(), f.TexteHors.legende);
  MarqueChamp(temps, LitMomentTape("01/01/2000", heure).has_value(), f.TexteHors.legende);
  return date.texte.empty() && temps.texte.empty() ? derniere : lue.value_or(derniere);
}

} // namespace

std::optional<Jambe> LitJambeTapee(FenetrePoint &f) {
  const auto depuis = LitMomentTape(f.Text3[0].texte, f.Text3[1].texte);
  const auto cap = LitNombreBorne(f.Text3[2].texte, 0, kTour);
  const auto vitesse = LitNombreBorne(f.Text3[3].texte, 0, kVitesseMax);
  MarqueChamp(f.Text3[0], LitMomentTape(f.Text3[0].texte, "00:00").has_value(), f.TexteHors.legende);
  MarqueChamp(f.Text3[1], LitMomentTape("01/01/2000", f.Text3[1].texte).has_value(), f.TexteHors.legende);
  MarqueChamp(f.Text3[2], cap.has_value(), f.TexteHors.legende);
  MarqueChamp(f.Text3[3], vitesse.has_value(), f.TexteHors.legende);
  return depuis && cap && vitesse ? std::optional(Jambe{*depuis, *cap, *vitesse}) : std::nullopt;
}

ReglagesPoint LitDemande(Bureau &bureau) {
  FenetrePoint &f = bureau.fenetrePoint;
  const std::string &hors = f.TexteHors.legende;
  ReglagesPoint demande;
  demande.heure = LitHeureDuPoint(f, DerniereVisee(bureau.point));
  demande.route.jambes = bureau.point.jambes;
  const auto direction = LitChampBorne(f.Text4[0], 0, kTour, hors);
  const auto vitesse = LitChampBorne(f.Text4[1], 0, kCourantMax, hors);
  if (direction && vitesse) {
    demande.route.courant = {*direction, *vitesse};
  }
  DoutesPoint &doutes = demande.doutes;
  doutes.hauteur = LitChampBorne(f.Text5[0], kMoindreErreur, kErreurHauteurMax, hors).value_or(doutes.hauteur);
  doutes.cap = LitChampBorne(f.Text5[1], 0, kDouteCapMax, hors).value_or(doutes.cap);
  doutes.vitesse = LitChampBorne(f.Text5[2], 0, kDouteVitesseMax, hors).value_or(doutes.vitesse);
  doutes.courant = LitChampBorne(f.Text5[3], 0, kDouteCourantMax, hors).value_or(doutes.courant);
  demande.erreurCommune = f.Check2[0].valeur == 1;
  demande.routeFond = f.Check2[1].valeur == 1;
  return demande;
}

std::optional<double> LitEcartTape(FenetrePoint &f) {
  return LitChampBorne(f.Text2, kMoindreErreur, kErreurHauteurMax, f.TexteHors.legende);
}

} // namespace velmaris
