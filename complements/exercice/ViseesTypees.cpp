#include "complements/exercice/ViseesTypees.hpp"

#include "complements/ciel/Refus.hpp"
#include "foundations/TexteNombre.hpp"

#include <algorithm>
#include <cmath>
#include <string>

namespace velmaris {
namespace {

constexpr int kSoixante = 60;

/// An angle in whole parts of a degree, without its sign.
int Parties(double degres, int parDegre) { return static_cast<int>(std::lround(std::fabs(degres) * parDegre)); }

std::string Deux(int nombre) { return Format(nombre, "00"); }

std::string AvecVirgule(double valeur) {
  std::string texte = Format(valeur, "0.0");
  std::replace(texte.begin(), texte.end(), '.', ',');
  return texte;
}

void PoseHeure(Observation &o, const DateCivile &utc) {
  o.jour = Deux(utc.jour);
  o.mois = Deux(utc.mois);
  o.annee = Format(utc.annee, "0000");
  o.heure = Deux(utc.heure);
  o.minute = Deux(utc.minute);
  o.seconde = Deux(static_cast<int>(std::lround(utc.seconde)));
}

void PoseEstime(Observation &o, const LieuNavire &estime) {
  const int latitude = Parties(estime.latitude, kSoixante);
  const int longitude = Parties(estime.longitude, kSoixante);
  o.latitudeDegres = Deux(latitude / kSoixante);
  o.latitudeMinutes = Deux(latitude % kSoixante);
  o.sud = estime.latitude < 0;
  o.longitudeDegres = Deux(longitude / kSoixante);
  o.longitudeMinutes = Deux(longitude % kSoixante);
  o.est = estime.longitude > 0;
}

void PoseLecture(Observation &o, double lecture, Fraction fraction) {
  constexpr int kDix = 10;
  constexpr int kSixSecondes = 6;
  const int dixiemes = Parties(lecture, kSoixante * kDix);
  o.lectureDegres = Deux(dixiemes / (kSoixante * kDix));
  o.lectureMinutes = Deux(dixiemes / kDix % kSoixante);
  o.lectureFraction = Deux(dixiemes % kDix * (fraction == Fraction::Secondes ? kSixSecondes : kDix));
  o.fraction = fraction;
}

void PoseAstre(Observation &o, const Astre &astre) {
  switch (astre.genre) {
  case GenreAstre::Soleil:
    o.corps = Corps::Soleil;
    break;
  case GenreAstre::Lune:
    o.corps = Corps::Lune;
    break;
  case GenreAstre::Etoile:
    o.corps = Corps::Etoiles;
    o.etoile = astre.rang - 1;
    break;
  default:
    o.corps = Corps::Planetes;
    o.planete = static_cast<int>(astre.genre) - static_cast<int>(GenreAstre::Venus);
  }
}

/// How well a typed sight agrees with an offered one.
struct Accord {
  int points = 0;   ///< of body, day and reading
  double ecart = 0; ///< seconds between the two
};

/// Seconds from one time to the other; without end where one of them is none.
double Ecart(const DateCivile &a, const DateCivile &b) {
  constexpr double kJamais = 1E12;
  try {
    return std::fabs(SecondesEntre(UTCDe(a), UTCDe(b)));
  } catch (const Refus &) {
    return kJamais;
  }
}

Accord AccordAvec(const ViseeExercice &visee, const ViseeTypee &typee) {
  constexpr double kJour = 86400;
  constexpr double kDixieme = 0.06; ///< minutes: a tenth as whole seconds or hundredths is the same
  Accord accord;
  accord.ecart = Ecart(visee.utc, typee.date);
  const bool memeLecture = std::fabs(visee.lecture - typee.lecture.lecture) * kSoixante < kDixieme;
  accord.points = (visee.astre == typee.astre ? 1 : 0) + (accord.ecart < kJour ? 1 : 0) + (memeLecture ? 1 : 0);
  return accord;
}

/// The fields as numbers. A date or a time that can't be read is left for none, and a list without a choice for the
/// Sun: the other fields still tell which sight it is.
std::optional<ViseeTypee> Lit(Observation typee) {
  for (int essai = 0; essai < 3; ++essai) {
    try {
      return LitVisee(typee, {});
    } catch (const Refus &refus) {
      if (refus.raison == RaisonRefus::RangInconnu) {
        typee.corps = Corps::Soleil;
      } else {
        typee.jour = typee.mois = "1";
        typee.annee = "1800";
        typee.heure = typee.minute = typee.seconde = "0";
      }
    }
  }
  return std::nullopt;
}

} // namespace

Observation SaisieDe(const Exercice &exercice, const ViseeExercice &visee, Fraction fraction) {
  Observation o;
  PoseHeure(o, visee.utc);
  PoseEstime(o, visee.estime);
  PoseLecture(o, visee.lecture, fraction);
  PoseAstre(o, visee.astre);
  o.hauteurOeil = AvecVirgule(exercice.hauteurOeil);
  o.collimation = AvecVirgule(exercice.collimation);
  o.bord = visee.contact == Contact::Inferieur   ? Bord::Inferieur
           : visee.contact == Contact::Superieur ? Bord::Superieur
                                                 : Bord::Centre;
  return o;
}

std::optional<std::size_t> ViseeReconnue(const Exercice &exercice, const Observation &typee, int accord) {
  const std::optional<ViseeTypee> visee = Lit(typee);
  std::optional<std::size_t> reconnue;
  Accord meilleur;
  for (std::size_t i = 0; visee && i < exercice.visees.size(); ++i) {
    const Accord avec = AccordAvec(exercice.visees[i], *visee);
    const bool mieux = avec.points > meilleur.points || (avec.points == meilleur.points && avec.ecart < meilleur.ecart);
    if (avec.points >= accord && (!reconnue || mieux)) {
      reconnue = i;
      meilleur = avec;
    }
  }
  return reconnue;
}

} // namespace velmaris
