#include "complements/papier/FicheCalcul.hpp"

#include "complements/controle/RouteActuelle.hpp"
#include "complements/papier/Nombres.hpp"
#include "foundations/TexteNombre.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace velmaris {
namespace {

constexpr double kRadian = std::numbers::pi / 180;
constexpr double kMinutes = 60;
constexpr double kSecondesHeure = 3600;
constexpr double kTour = 360;
constexpr double kDroit = 180;
constexpr double kParHeure = 900;          ///< minutes of arc
constexpr double kParHeureLune = 859;      ///< 14 degrees 19.0'
constexpr double kParHeureBelier = 902.46; ///< 15 degrees 2.46'

/// Minutes of arc as they are written: to the tenth.
double Dixieme(double minutes) { return std::round(minutes * 10) / 10; }

/// Degrees to the tenth of a minute.
double AuDixieme(double degres) { return Dixieme(degres * kMinutes) / kMinutes; }

double DansLeTour(double degres) { return degres - kTour * std::floor(degres / kTour); }

std::string Decimales(double valeur) { return (valeur < 0 ? "" : "+") + Format(valeur, "0.000000"); }

std::string MinutesSignees(double minutes) { return DixiemesSignes(Dixieme(minutes)) + "'"; }

/// Works down a form, one line under the other.
class Main {
public:
  explicit Main(FicheCalcul &fiche) : fiche_(fiche) {}

  void Donne(EtapeFiche etape, std::string valeur) { Ecrit(etape, std::move(valeur), SourceFiche::Visee); }
  void Table(EtapeFiche etape, std::string valeur) { Ecrit(etape, std::move(valeur), SourceFiche::Tables); }
  void Calcule(EtapeFiche etape, std::string valeur) { Ecrit(etape, std::move(valeur), SourceFiche::Calcul); }

private:
  void Ecrit(EtapeFiche etape, std::string valeur, SourceFiche source) {
    fiche_.lignes.push_back({etape, std::move(valeur), source});
  }
  FicheCalcul &fiche_;
};

void EcritVisee(Main &main, const ViseeTypee &visee) {
  const InstantUTC utc = UTCDe(visee.date);
  main.Donne(EtapeFiche::Jour, TexteDate(utc));
  main.Donne(EtapeFiche::Heure, TexteHeureUtc(utc));
  main.Donne(EtapeFiche::Latitude, TexteLatitude(visee.station.latitude));
  main.Donne(EtapeFiche::Longitude, TexteLongitude(visee.station.longitude));
  if (!visee.lecture.horizonArtificiel) {
    main.Donne(EtapeFiche::Oeil, Dixiemes(visee.lecture.hauteurOeil) + " m");
  }
  if (visee.astre.genre == GenreAstre::Soleil || visee.astre.genre == GenreAstre::Lune) {
    main.Donne(EtapeFiche::Bord, "");
  }
}

/// From the reading to the observed height.
double CorrigeEcrit(Main &main, const ViseeTypee &visee, const RouteActuelle &route) {
  const EtapesHauteur &e = route.etapes;
  double minutes = Dixieme(e.lecture * kMinutes);
  const auto ajoute = [&](EtapeFiche etape, double correction, bool table) {
    const double ecrite = Dixieme(correction);
    minutes += ecrite;
    table ? main.Table(etape, MinutesSignees(ecrite)) : main.Donne(etape, MinutesSignees(ecrite));
  };
  main.Donne(EtapeFiche::Lecture, TexteAngleSigne(minutes / kMinutes));
  if (e.erreurArc != 0) {
    ajoute(EtapeFiche::ErreurArc, e.erreurArc, false);
  }
  ajoute(EtapeFiche::Collimation, e.collimation, false);
  if (visee.lecture.horizonArtificiel) {
    minutes = Dixieme(minutes / 2);
    main.Calcule(EtapeFiche::Moitie, TexteAngleSigne(minutes / kMinutes));
  } else {
    ajoute(EtapeFiche::Depression, -e.depression, true);
    main.Calcule(EtapeFiche::Apparente, TexteAngleSigne(minutes / kMinutes));
  }
  ajoute(EtapeFiche::Refraction, -e.refraction, true);
  if (route.place.parallaxe >= 0.05) {
    main.Table(EtapeFiche::ParallaxeHorizontale, Dixiemes(Dixieme(route.place.parallaxe)) + "'");
  }
  if (std::fabs(e.parallaxe) >= 0.05) {
    ajoute(EtapeFiche::Parallaxe, e.parallaxe, true);
  }
  if (e.demiDiametre != 0) {
    ajoute(EtapeFiche::DemiDiametre, e.demiDiametre, true);
  }
  main.Calcule(EtapeFiche::Observee, TexteAngleSigne(minutes / kMinutes));
  return minutes / kMinutes;
}

/// Places at the whole hours around the sight.
struct Heures {
  PlaceGeocentrique avant;
  PlaceGeocentrique apres;
  double ariesAvant = 0; ///< hour angle of Aries, degrees
  double part = 0;       ///< of the hour that has gone
};

Heures CherchePlaces(const ViseeTypee &visee, double dut1) {
  const InstantUTC utc = UTCDe(visee.date);
  DateCivile pleine = CivileDe(utc);
  pleine.minute = 0;
  pleine.seconde = 0;
  const InstantUTC avant = UTCDe(pleine);
  const InstantUTC apres = PlusTard(avant, kSecondesHeure);
  const auto ciel = [dut1](const InstantUTC &t) { return PrepareCiel({TTDe(t), UT1De(t, dut1)}); };
  const CielDuMoment cielAvant = ciel(avant);
  return {PlaceDe(cielAvant, visee.astre), PlaceDe(ciel(apres), visee.astre), cielAvant.tempsSideral,
          SecondesEntre(avant, utc) / kSecondesHeure};
}

/// Where the body stands overhead, as the hand finds it.
struct SousAstre {
  double angleLocal = 0;  ///< degrees in [0, 360)
  double declinaison = 0; ///< degrees
};

double EcritGha(Main &main, const ViseeTypee &visee, const Heures &heures) {
  const bool etoile = visee.astre.genre == GenreAstre::Etoile;
  const double taux = etoile ? kParHeureBelier : visee.astre.genre == GenreAstre::Lune ? kParHeureLune : kParHeure;
  const double aHeure = AuDixieme(etoile ? heures.ariesAvant : heures.avant.gha);
  const double increment = AuDixieme(taux * heures.part / kMinutes);
  main.Table(EtapeFiche::GhaHeure, TexteAngleSigne(aHeure));
  main.Table(EtapeFiche::Increment, TexteAngleSigne(increment));
  double gha = aHeure + increment;
  if (etoile) {
    const double verse = AuDixieme(DansLeTour(heures.avant.gha - heures.ariesAvant));
    main.Table(EtapeFiche::AscensionVerse, TexteAngleSigne(verse));
    gha += verse;
  } else {
    const double heure = DansLeTour(heures.apres.gha - heures.avant.gha) * kMinutes;
    const double vHoraire = Dixieme(heure - taux);
    const double v = Dixieme(vHoraire * heures.part);
    main.Table(EtapeFiche::VHoraire, MinutesSignees(vHoraire));
    main.Table(EtapeFiche::VariationGha, MinutesSignees(v));
    gha += v / kMinutes;
  }
  gha = DansLeTour(gha);
  main.Calcule(EtapeFiche::Gha, TexteAngleSigne(gha));
  return gha;
}

SousAstre EcritAlmanach(Main &main, const ViseeTypee &visee, double dut1) {
  const Heures heures = CherchePlaces(visee, dut1);
  const double gha = EcritGha(main, visee, heures);
  const double longitude = AuDixieme(visee.station.longitude);
  main.Calcule(EtapeFiche::LongitudeCalcul, TexteLongitude(longitude));
  const double angleLocal = AuDixieme(DansLeTour(gha + longitude));
  main.Calcule(EtapeFiche::AngleLocal, TexteAngleSigne(angleLocal));
  double declinaison = AuDixieme(heures.avant.declinaison);
  if (visee.astre.genre != GenreAstre::Etoile) {
    main.Table(EtapeFiche::DeclinaisonHeure, TexteLatitude(declinaison));
    const double cote = declinaison < 0 ? -1 : 1; // the hand adds to what is written, whichever side it bears
    const double heure = Dixieme((heures.apres.declinaison - heures.avant.declinaison) * kMinutes) * cote;
    const double d = Dixieme(heure * heures.part);
    main.Table(EtapeFiche::DHoraire, MinutesSignees(heure));
    main.Table(EtapeFiche::VariationDeclinaison, MinutesSignees(d));
    declinaison += cote * d / kMinutes;
    main.Calcule(EtapeFiche::Declinaison, TexteLatitude(declinaison));
  } else {
    main.Table(EtapeFiche::Declinaison, TexteLatitude(declinaison));
  }
  return {angleLocal, declinaison};
}

/// A product or a sum to six decimals, as a form holds it.
double SixDecimales(double valeur) { return std::round(valeur * 1e6) / 1e6; }

void EcritReduction(Main &main, FicheCalcul &fiche, const ViseeTypee &visee, const SousAstre &sous) {
  const double latitude = AuDixieme(visee.station.latitude) * kRadian;
  const double declinaison = sous.declinaison * kRadian;
  const double sinus = SixDecimales(std::sin(latitude) * std::sin(declinaison));
  const double cosinus = SixDecimales(std::cos(latitude) * std::cos(declinaison) * std::cos(sous.angleLocal * kRadian));
  const double sinusHauteur = std::clamp(sinus + cosinus, -1.0, 1.0);
  fiche.calculee = AuDixieme(std::asin(sinusHauteur) / kRadian);
  main.Calcule(EtapeFiche::ProduitSinus, Decimales(sinus));
  main.Calcule(EtapeFiche::ProduitCosinus, Decimales(cosinus));
  main.Calcule(EtapeFiche::SinusHauteur, Decimales(sinusHauteur));
  main.Calcule(EtapeFiche::Calculee, TexteAngleSigne(fiche.calculee));
  const double bas = std::cos(latitude) * std::cos(fiche.calculee * kRadian);
  const double haut = std::sin(declinaison) - std::sin(latitude) * std::sin(fiche.calculee * kRadian);
  const double cosinusAzimut = SixDecimales(std::fabs(bas) < 1e-9 ? 1.0 : std::clamp(haut / bas, -1.0, 1.0));
  const double angle = std::round(std::acos(cosinusAzimut) / kRadian * 10) / 10;
  fiche.azimut = DansLeTour(sous.angleLocal < kDroit ? kTour - angle : angle);
  main.Calcule(EtapeFiche::CosinusAzimut, Decimales(cosinusAzimut));
  main.Calcule(EtapeFiche::AngleAzimut, Dixiemes(angle) + "°");
  main.Calcule(EtapeFiche::Azimut, Dixiemes(fiche.azimut) + "°");
}

} // namespace

FicheCalcul FaitFicheCalcul(const ViseeTypee &visee, const std::string &nom, double dut1) {
  const RouteActuelle route = SuitRoute(visee, dut1);
  FicheCalcul fiche;
  fiche.astre = nom;
  fiche.bord = visee.lecture.contact;
  fiche.controle = route.intercept;
  Main main(fiche);
  EcritVisee(main, visee);
  fiche.observee = CorrigeEcrit(main, visee, route);
  EcritReduction(main, fiche, visee, EcritAlmanach(main, visee, dut1));
  fiche.intercept = Dixieme((fiche.observee - fiche.calculee) * kMinutes);
  fiche.vers = fiche.intercept >= 0;
  main.Calcule(EtapeFiche::ObserveeEncore, TexteAngleSigne(fiche.observee));
  main.Calcule(EtapeFiche::Intercept, Dixiemes(std::fabs(fiche.intercept)) + " M");
  return fiche;
}

} // namespace velmaris
