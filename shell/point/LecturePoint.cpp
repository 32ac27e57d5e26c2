#include "shell/point/LecturePoint.hpp"

#include "complements/ciel/Refus.hpp"
#include "shell/complements/ReglagesLus.hpp"
#include "shell/point/MotsPoint.hpp"

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
constexpr std::size_t kParties = 3;
constexpr int kChiffresMax = 100000;

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

/// A number of a field; one that can't be used is marked.
std::optional<double> Lit(const FenetrePoint &f, Controle &champ, double moindre, double plusGrand) {
  const std::optional<double> nombre =
      champ.texte.empty() ? std::nullopt : LitNombreBorne(champ.texte, moindre, plusGrand);
  champ.alerte = champ.texte.empty() || nombre ? "" : f.TexteHors.legende + champ.infobulle;
  return nombre;
}

InstantUTC DerniereVisee(const PointOuvert &point) {
  InstantUTC derniere{2451544.5, 0};
  for (const ViseeDuPoint &visee : point.visees) {
    if (visee.hauteur && visee.cochee) {
      derniere = visee.hauteur->utc; // they stand by time
    }
  }
  return derniere;
}

/// Marks a field whose text can't be used.
void Marque(const FenetrePoint &f, Controle &champ, bool bon) {
  champ.alerte = bon ? "" : f.TexteHors.legende + champ.infobulle;
}

/// The time that the fix is for: as typed, on the last sight's day where no day is, at the last sight's time where no
/// time is.
InstantUTC LitHeureDuPoint(FenetrePoint &f, const InstantUTC &derniere) {
  Controle &date = f.Text1[0];
  Controle &temps = f.Text1[1];
  const std::string jour = date.texte.empty() ? TexteDate(derniere) : date.texte;
  const std::string heure = temps.texte.empty() ? TexteHeureUtc(derniere) : temps.texte;
  const auto lue = LitMomentTape(jour, heure);
  Marque(f, date, LitMomentTape(jour, "00:00").has_value());
  Marque(f, temps, LitMomentTape("01/01/2000", heure).has_value());
  return date.texte.empty() && temps.texte.empty() ? derniere : lue.value_or(derniere);
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

std::optional<Jambe> LitJambeTapee(FenetrePoint &f) {
  const auto depuis = LitMomentTape(f.Text3[0].texte, f.Text3[1].texte);
  const auto cap = LitNombreBorne(f.Text3[2].texte, 0, kTour);
  const auto vitesse = LitNombreBorne(f.Text3[3].texte, 0, kVitesseMax);
  Marque(f, f.Text3[0], LitMomentTape(f.Text3[0].texte, "00:00").has_value());
  Marque(f, f.Text3[1], LitMomentTape("01/01/2000", f.Text3[1].texte).has_value());
  Marque(f, f.Text3[2], cap.has_value());
  Marque(f, f.Text3[3], vitesse.has_value());
  return depuis && cap && vitesse ? std::optional(Jambe{*depuis, *cap, *vitesse}) : std::nullopt;
}

ReglagesPoint LitDemande(Bureau &bureau) {
  FenetrePoint &f = bureau.fenetrePoint;
  ReglagesPoint demande;
  demande.heure = LitHeureDuPoint(f, DerniereVisee(bureau.point));
  demande.route.jambes = bureau.point.jambes;
  const auto direction = Lit(f, f.Text4[0], 0, kTour);
  const auto vitesse = Lit(f, f.Text4[1], 0, kCourantMax);
  if (direction && vitesse) {
    demande.route.courant = {*direction, *vitesse};
  }
  DoutesPoint &doutes = demande.doutes;
  doutes.hauteur = Lit(f, f.Text5[0], kMoindreErreur, kErreurHauteurMax).value_or(doutes.hauteur);
  doutes.cap = Lit(f, f.Text5[1], 0, kDouteCapMax).value_or(doutes.cap);
  doutes.vitesse = Lit(f, f.Text5[2], 0, kDouteVitesseMax).value_or(doutes.vitesse);
  doutes.courant = Lit(f, f.Text5[3], 0, kDouteCourantMax).value_or(doutes.courant);
  demande.erreurCommune = f.Check2[0].valeur == 1;
  demande.routeFond = f.Check2[1].valeur == 1;
  return demande;
}

std::optional<double> LitEcartTape(FenetrePoint &f) { return Lit(f, f.Text2, kMoindreErreur, kErreurHauteurMax); }

} // namespace velmaris
