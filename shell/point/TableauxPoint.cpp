#include "shell/point/TableauxPoint.hpp"

#include "foundations/TexteNombre.hpp"
#include "shell/complements/Mots.hpp"
#include "shell/complements/RangeesTexte.hpp"
#include "shell/point/MotsPoint.hpp"

#include <cmath>
#include <memory>
#include <utility>
#include <vector>

namespace velmaris {
namespace {

/// A residual with its sign, unless it is nothing.
std::string Ecart(double milles) {
  constexpr double kDemiDixieme = 0.05;
  return std::fabs(milles) < kDemiDixieme ? "0.0" : (milles < 0 ? "" : "+") + Dixiemes(milles);
}

/// What the likelier theory says of a sight.
const ResiduPoint *ResiduDe(const PointOuvert &point, std::size_t rang) {
  for (const FichePoint *fiche : {&point.actuelle, &point.dite}) {
    if (fiche->solution && rang < fiche->solution->residus.size() && fiche->solution->residus[rang].mesuree) {
      return &fiche->solution->residus[rang];
    }
  }
  return nullptr;
}

RangeeTexte RangeeDe(const Bureau &bureau, std::size_t rang) {
  constexpr double kTour = 360;
  constexpr double kCent = 100;
  const ViseeDuPoint &visee = bureau.point.visees[rang];
  const Observation &o = visee.observation;
  RangeeTexte r{std::vector<std::string>(bureau.fenetrePoint.MotColonne.size()), visee.cochee};
  r.textes[0] = visee.hauteur
                    ? TexteDate(visee.hauteur->utc) + "  " + TexteHeureUtc(visee.hauteur->utc)
                    : o.jour + "/" + o.mois + "/" + o.annee + "  " + o.heure + ":" + o.minute + ":" + o.seconde;
  r.textes[1] = NomDeVisee(bureau.donnees, o);
  if (const ResiduPoint *residu = ResiduDe(bureau.point, rang)) {
    r.textes[2] = Format(std::fmod(std::round(residu->azimut), kTour), "000") + "°";
    r.textes[3] = Ecart(residu->residu);
    r.textes[4] = Dixiemes(residu->ecartType);
    r.textes[5] = residu->utilisee ? Format(std::round(residu->redondance * kCent), "0") + " %" : "";
  } else if (visee.ecartType) {
    r.textes[4] = Dixiemes(*visee.ecartType);
  }
  r.textes[6] = RemarqueDeVisee(bureau, rang);
  r.ton = !visee.cochee || visee.refus ? TonLigne::Faible
          : !r.textes[6].empty()       ? TonLigne::Alerte
                                       : TonLigne::Ordinaire;
  return r;
}

} // namespace

void PoseTableauVisees(Bureau &bureau) {
  constexpr std::array<double, 7> kLargeurs = {2550, 1800, 960, 1080, 1080, 1080, 3000};
  FenetrePoint &f = bureau.fenetrePoint;
  std::vector<Colonne> colonnes;
  colonnes.reserve(kLargeurs.size());
  for (std::size_t i = 0; i < kLargeurs.size(); ++i) {
    const bool nombre = i >= 2 && i <= 5;
    colonnes.push_back({f.MotColonne.at(i).legende, kLargeurs.at(i), nombre ? Cote::Droite : Cote::Gauche});
  }
  std::vector<RangeeTexte> rangees;
  rangees.reserve(bureau.point.visees.size());
  for (std::size_t i = 0; i < bureau.point.visees.size(); ++i) {
    rangees.push_back(RangeeDe(bureau, i));
  }
  f.Visees.tableau.coches = true;
  PoseRangees(f.Visees.tableau, std::move(colonnes), std::move(rangees));
}

void PoseTableauJambes(Bureau &bureau) {
  constexpr std::array<double, 3> kLargeurs = {1980, 780, 900};
  FenetrePoint &f = bureau.fenetrePoint;
  std::vector<Colonne> colonnes;
  colonnes.reserve(kLargeurs.size());
  for (std::size_t i = 0; i < kLargeurs.size(); ++i) {
    colonnes.push_back({f.MotColonneRoute.at(i).legende, kLargeurs.at(i), i == 0 ? Cote::Gauche : Cote::Droite});
  }
  std::vector<RangeeTexte> rangees;
  rangees.reserve(bureau.point.jambes.size());
  for (const Jambe &jambe : bureau.point.jambes) {
    rangees.push_back({{TexteDate(jambe.depuis) + "  " + TexteHeureUtc(jambe.depuis).substr(0, 5),
                        Format(jambe.cap, "000") + "°", Dixiemes(jambe.vitesse)}});
  }
  PoseRangees(f.Jambes.tableau, std::move(colonnes), std::move(rangees));
}

} // namespace velmaris
