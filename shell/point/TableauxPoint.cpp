#include "shell/point/TableauxPoint.hpp"

#include "foundations/TexteNombre.hpp"
#include "shell/point/MotsPoint.hpp"

#include <cmath>
#include <memory>
#include <utility>
#include <vector>

namespace velmaris {
namespace {

/// One row as it is shown.
struct RangeeMontree {
  std::vector<std::string> textes;
  bool cochee = false;
  TonLigne ton = TonLigne::Ordinaire;
  bool operator==(const RangeeMontree &) const = default;
};

class Rangees : public LecteurLignes {
public:
  explicit Rangees(std::vector<RangeeMontree> rangees) : rangees_(std::move(rangees)) {}
  std::string texte(std::size_t ligne, std::size_t colonne) const override {
    return rangees_.at(ligne).textes.at(colonne);
  }
  bool coche(std::size_t ligne) const override { return rangees_.at(ligne).cochee; }
  TonLigne ton(std::size_t ligne) const override { return rangees_.at(ligne).ton; }
  const std::vector<RangeeMontree> &rangees() const { return rangees_; }

private:
  std::vector<RangeeMontree> rangees_;
};

/// Gives a table its rows, where they differ from those that it has; the row that the keyboard is at stays.
void Pose(Tableau &tableau, std::vector<Colonne> colonnes, std::vector<RangeeMontree> rangees) {
  const auto *avant = dynamic_cast<const Rangees *>(tableau.lecteur.get());
  if (avant != nullptr && avant->rangees() == rangees && tableau.colonnes == colonnes) {
    return;
  }
  tableau.colonnes = std::move(colonnes);
  if (tableau.lignes != rangees.size()) {
    const std::size_t nombre = rangees.size();
    PoseLignes(tableau, nombre, std::make_shared<Rangees>(std::move(rangees)));
    return;
  }
  tableau.lecteur = std::make_shared<Rangees>(std::move(rangees));
  ++tableau.version;
}

std::string Dixiemes(double valeur) { return Format(valeur, "0.0"); }

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

RangeeMontree RangeeDe(const Bureau &bureau, std::size_t rang) {
  constexpr double kTour = 360;
  constexpr double kCent = 100;
  const ViseeDuPoint &visee = bureau.point.visees[rang];
  const Observation &o = visee.observation;
  RangeeMontree r{std::vector<std::string>(bureau.fenetrePoint.MotColonne.size()), visee.cochee};
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
  for (std::size_t i = 0; i < kLargeurs.size(); ++i) {
    const bool nombre = i >= 2 && i <= 5;
    colonnes.push_back({f.MotColonne.at(i).legende, kLargeurs.at(i), nombre ? Cote::Droite : Cote::Gauche});
  }
  std::vector<RangeeMontree> rangees;
  for (std::size_t i = 0; i < bureau.point.visees.size(); ++i) {
    rangees.push_back(RangeeDe(bureau, i));
  }
  f.Visees.tableau.coches = true;
  Pose(f.Visees.tableau, std::move(colonnes), std::move(rangees));
}

void PoseTableauJambes(Bureau &bureau) {
  constexpr std::array<double, 3> kLargeurs = {1980, 780, 900};
  FenetrePoint &f = bureau.fenetrePoint;
  std::vector<Colonne> colonnes;
  for (std::size_t i = 0; i < kLargeurs.size(); ++i) {
    colonnes.push_back({f.MotColonneRoute.at(i).legende, kLargeurs.at(i), i == 0 ? Cote::Gauche : Cote::Droite});
  }
  std::vector<RangeeMontree> rangees;
  for (const Jambe &jambe : bureau.point.jambes) {
    rangees.push_back({{TexteDate(jambe.depuis) + "  " + TexteHeureUtc(jambe.depuis).substr(0, 5),
                        Format(jambe.cap, "000") + "°", Dixiemes(jambe.vitesse)}});
  }
  Pose(f.Jambes.tableau, std::move(colonnes), std::move(rangees));
}

} // namespace velmaris
