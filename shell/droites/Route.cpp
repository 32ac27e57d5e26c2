#include "shell/droites/Route.hpp"

#include "foundations/TexteNombre.hpp"
#include "foundations/ValeurDate.hpp"
#include "lines/CapsDistances.hpp"
#include "lines/Estime.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/bureau/Explication.hpp"
#include "shell/droites/MemoireDroites.hpp"
#include "shell/visee/Saisie.hpp"

namespace velmaris {
namespace {

constexpr int kArgument = 5;
constexpr int kDivision = 11;

std::string HeureDesListes(const Controle &heures, const Controle &minutes) {
  return Format(heures.texte, "00") + ":" + Format(minutes.texte, "00");
}

/// Degrees of a caption: what stands between its letter and the point.
std::string DegresDeLegende(const std::string &legende) { return legende.substr(1, legende.find('.') - 1); }

/// The controls of one end of a track.
struct Bout {
  Controle &latitudeDegres, &latitudeMinutes, &longitudeDegres, &longitudeMinutes;
  Controle &nord, &sud, &est, &ouest;
};

Bout BoutDepart(Donnees &d) {
  return {d.Text14, d.Text16, d.Text17, d.Text18, d.OptN[2], d.OptN[3], d.OptE[2], d.OptE[3]};
}

/// In the arrival's rows the minutes have the lower numbers.
Bout BoutArrivee(Donnees &d) {
  return {d.Text20, d.Text19, d.Text22, d.Text21, d.OptN[5], d.OptN[4], d.OptE[5], d.OptE[4]};
}

PlaceRoute Lit(const Bout &b) {
  return LitBout({b.latitudeDegres.texte, b.latitudeMinutes.texte, b.longitudeDegres.texte, b.longitudeMinutes.texte,
                  b.sud.choisi, b.ouest.choisi});
}

/// The place in decimal degrees, as tool tips of its degrees.
void MontreDegres(const Bout &b, const PlaceRoute &place) {
  b.latitudeDegres.infobulle = TexteGeneral(place.latitude);
  b.longitudeDegres.infobulle = TexteGeneral(place.longitude);
}

void Remplit(Bureau &bureau, const Bout &b, int ligne) {
  const auto lit = [&](const char *champ) { return LitChampDroite(bureau, champ, ligne); };
  PoseTexte(bureau, b.latitudeDegres, lit("T8("));
  PoseTexte(bureau, b.latitudeMinutes, lit("T9("));
  PoseTexte(bureau, b.longitudeDegres, lit("T6("));
  PoseTexte(bureau, b.longitudeMinutes, lit("T7("));
  PoseOption(bureau, lit("Hem(") == "Nord" ? b.nord : b.sud);
  PoseOption(bureau, lit("Lon(") == "Est" ? b.est : b.ouest);
}

/// Course and distance; two places that have none are told as such.
CapDistance CalculeOuExplique(const Donnees &d, const PlaceRoute &depart, const PlaceRoute &arrivee) {
  try {
    return CalculeCapDistance(depart, arrivee);
  } catch (const Erreur &erreur) {
    throw ErreurExpliquee(erreur.numero, erreur.numero == kArgument || erreur.numero == kDivision
                                             ? d.TexteDeuxPoints.legende
                                             : std::string());
  }
}

} // namespace

void Text2_Entre(Bureau &bureau, int /*indice*/) {
  bureau.donnees.Text2.couleur = kBleu;
  bureau.donnees.Text15.couleur = kNoir;
}

void Text15_Entre(Bureau &bureau, int /*indice*/) {
  bureau.donnees.Text15.couleur = kBleu;
  bureau.donnees.Text2.couleur = kNoir;
}

void CalculEstime(Bureau &bureau, int /*indice*/) {
  Donnees &d = bureau.donnees;
  const RouteEstimee route{d.Text1.texte,
                           d.Text2.texte,
                           d.Text15.texte,
                           HeureDesListes(d.Combo1, d.Combo2),
                           HeureDesListes(d.Combo3, d.Combo4),
                           d.Text2.couleur == kBleu};
  const std::optional<PointEstime> point = EstimePoint(route, LitPanneau(d));
  if (!point) {
    return;
  }
  if (point->distance) {
    PoseTexte(bureau, d.Text15, *point->distance);
  }
  if (point->vitesse) {
    PoseTexte(bureau, d.Text2, *point->vitesse);
  }
  d.Command15.infobulle = d.TexteTempsRoute.legende + TexteHeure(point->Duree);
  bureau.transports.LatEstimeTransport = point->LatEstimeTransport;
  bureau.transports.LonEstimeTransport = point->LonEstimeTransport;
  d.LabLatEst.legende = LegendeLatitude(point->LatEstimeTransport);
  d.LabLonEst.legende = LegendeLongitude(point->LonEstimeTransport);
  d.Option1[4].actif = true;
}

void PositionEstimee_Click(Bureau &bureau, int /*indice*/) {
  Donnees &d = bureau.donnees;
  std::string &latitude = d.LabLatEst.legende;
  std::string &longitude = d.LabLonEst.legende;
  if (latitude.empty() || longitude.empty()) {
    return;
  }
  PoseOption(bureau, d.OptN[latitude[0] == 'N' ? 0 : 1]);
  PoseTexte(bureau, d.Text8, DegresDeLegende(latitude));
  PoseTexte(bureau, d.Text9, Droite(latitude, 2));
  PoseOption(bureau, d.OptE[longitude[0] == 'E' ? 0 : 1]);
  PoseTexte(bureau, d.Text6, Format(Val(DegresDeLegende(longitude)), "00"));
  PoseTexte(bureau, d.Text7, Droite(longitude, 2));
  latitude.clear();
  longitude.clear();
  d.Option1[4].actif = false;
}

void Command10_Click(Bureau &bureau, int /*indice*/) {
  Donnees &d = bureau.donnees;
  const PlaceRoute depart = Lit(BoutDepart(d));
  const PlaceRoute arrivee = Lit(BoutArrivee(d));
  MontreDegres(BoutDepart(d), depart);
  MontreDegres(BoutArrivee(d), arrivee);
  const CapDistance resultat = CalculeOuExplique(d, depart, arrivee);
  if (resultat.memePoint) {
    bureau.ports.boite({.texte = bureau.messages[4], .titre = bureau.messages[5], .icone = Icone::Attention});
    return;
  }
  PoseTexte(bureau, d.Text24, Format(resultat.cap, "000"));
  PoseTexte(bureau, d.Text23, Format(resultat.milles, "000.0"));
}

void RemplitBoutRoute(Bureau &bureau, int ligne) {
  Donnees &d = bureau.donnees;
  if (d.Option2.choisi) {
    Remplit(bureau, BoutDepart(d), ligne);
    PoseOption(bureau, d.Option3);
  } else {
    Remplit(bureau, BoutArrivee(d), ligne);
  }
}

} // namespace velmaris
