#include "shell/point/Point.hpp"

#include "complements/point/FichierRoute.hpp"
#include "complements/registre/PointsGardes.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/bureau/Avis.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/complements/Mots.hpp"
#include "shell/complements/Saisies.hpp"
#include "shell/point/CalquePoint.hpp"
#include "shell/point/LecturePoint.hpp"
#include "shell/point/MotsPoint.hpp"
#include "shell/point/SourcesPoint.hpp"
#include "shell/point/TableauxPoint.hpp"
#include "shell/point/TracePoint.hpp"
#include "shell/registre/Registre.hpp"
#include "shell/visee/Annulation.hpp"
#include "shell/visee/Saisie.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace velmaris {
namespace {

/// Where the store keeps the doubts, in the order of their fields.
constexpr std::array<std::string_view, 4> kCles = {"PointHauteur", "PointCap", "PointVitesse", "PointCourant"};
constexpr std::string_view kCleSillage = "Sillage";
constexpr std::string_view kCleRoute = "PointRoute";
constexpr double kJoursSillage = 7;

std::filesystem::path FichierPoints(const Bureau &bureau) { return bureau.dossiers.utilisateur / "points.csv"; }

void PoseResultats(const FenetrePoint &f, const PointOuvert &point, const FichePoint &fiche,
                   std::array<Controle, 4> &rangees) {
  const SolutionPoint *solution = SolutionVue(point, fiche);
  rangees[0].legende = solution != nullptr ? TexteLieu(solution->lieu) : f.TexteSansPoint.legende;
  rangees[1].legende = solution != nullptr ? TexteEllipse(solution->ellipse) : "";
  rangees[2].legende = solution != nullptr && solution->parResidus ? TexteEllipse(*solution->parResidus) : "";
  rangees[3].legende = solution != nullptr ? TexteTrouve(f, *solution) : "";
}

/// Fills the window from the fix.
void Montre(Bureau &bureau) {
  FenetrePoint &f = bureau.fenetrePoint;
  const PointOuvert &p = bureau.point;
  f.cadre.titre = bureau.donnees.PU_Point.legende;
  PoseResultats(f, p, p.actuelle, f.Actuel);
  PoseResultats(f, p, p.dite, f.Dit);
  for (std::size_t i = 2; i < f.Rangee.size(); ++i) { // rows that most fixes haven't
    f.Rangee.at(i).visible = !f.Actuel.at(i).legende.empty() || !f.Dit.at(i).legende.empty();
  }
  constexpr std::size_t kHeureMinute = 5;
  f.Titre[0].legende = p.heure ? TexteDate(*p.heure) + "  " + TexteHeureUtc(*p.heure).substr(0, kHeureMinute) : "";
  const SolutionPoint *actuelle = SolutionVue(p, p.actuelle);
  const SolutionPoint *dite = SolutionVue(p, p.dite);
  f.LabEntre.legende =
      actuelle != nullptr && dite != nullptr ? f.TexteEntre.legende + TexteDistance(actuelle->lieu, dite->lieu) : "";
  std::vector<std::string> avis;
  if (std::string faute = PremiereFaute(Liste(f)); !faute.empty()) {
    avis.push_back(std::move(faute));
  }
  for (std::string &mots : MotsDesAvis(bureau)) {
    avis.push_back(std::move(mots));
  }
  for (std::size_t i = 0; i < f.LabAvis.size(); ++i) {
    f.LabAvis.at(i).legende = i < avis.size() ? avis[i] : "";
  }
  const bool fait = SolutionRetenue(p) != nullptr;
  f.Check4.visible = p.actuelle.seconde || p.dite.seconde;
  f.Check4.valeur = p.seconde ? 1 : 0;
  f.Check3.valeur = p.surFeuille ? 1 : 0;
  for (std::size_t i = 0; i < 3; ++i) {
    f.Command3.at(i).actif = fait;
  }
  PoseTableauVisees(bureau);
  PoseTableauJambes(bureau);
}

Calque CalqueVoulu(const Bureau &bureau) {
  const PointOuvert &p = bureau.point;
  const SolutionPoint *solution = SolutionRetenue(p);
  std::vector<PointTrace> points;
  if (p.surFeuille && solution != nullptr) {
    points.push_back(TraceDe(p, *solution));
  }
  Calque calque;
  if (!points.empty() || !p.sillage.empty()) {
    Passe([&] { calque = CalqueDuPoint(bureau.feuille, bureau.image1, points, p.sillage); });
  }
  return calque;
}

void LitSillage(Bureau &bureau) {
  bureau.point.sillage.clear();
  if (bureau.donnees.PU_Sillage.valeur == 1) {
    Passe([&] { bureau.point.sillage = SillageDe(LitPoints(LitFichier(FichierPoints(bureau))), kJoursSillage); });
  }
}

/// Keeps the legs, a line each as in a route file.
void GardeRoute(Bureau &bureau) {
  std::string texte;
  for (const Jambe &jambe : bureau.point.jambes) {
    texte += TexteInstant(jambe.depuis) + " " + TexteGeneral(jambe.cap) + " " + TexteGeneral(jambe.vitesse) + "\n";
  }
  EcritReglage(bureau, kCleRoute, texte);
}

/// The kept legs, where they are of these days: none that is over two days from the first sight carries a ship.
std::vector<Jambe> RouteGardee(const Bureau &bureau) {
  constexpr double kDeuxJours = 2 * 86400.0;
  const std::vector<ViseeDuPoint> &visees = bureau.point.visees;
  std::vector<Jambe> jambes = LitRoute(LitReglage(bureau, kCleRoute)).jambes;
  std::erase_if(jambes, [&](const Jambe &jambe) {
    return visees.empty() || !visees[0].hauteur ||
           std::fabs(SecondesEntre(jambe.depuis, visees[0].hauteur->utc)) > kDeuxJours;
  });
  return jambes;
}

void PoseSurFeuille(Bureau &bureau, bool montre) {
  bureau.point.surFeuille = montre;
  bureau.fenetrePoint.Check3.valeur = montre ? 1 : 0;
}

/// The fix as the sight's estimated position, whole minutes.
void PrendEstime(Bureau &bureau, const LieuNavire &lieu) {
  PoseLatitudeEstimee(bureau, lieu.latitude);
  PoseLongitudeEstimee(bureau, lieu.longitude);
}

/// Keeps both fixes in the file of fixes.
void Garde(Bureau &bureau) {
  const PointOuvert &p = bureau.point;
  std::vector<std::string> lignes;
  for (const auto &[fiche, theorie] :
       {std::pair(&p.actuelle, TheoriePoint::Actuelle), std::pair(&p.dite, TheoriePoint::Dite)}) {
    if (const SolutionPoint *s = SolutionVue(p, *fiche)) {
      const auto utilisees =
          std::count_if(s->residus.begin(), s->residus.end(), [](const auto &r) { return r.utilisee; });
      lignes.push_back(LignePoint({*p.heure, s->lieu, s->ellipse, static_cast<int>(utilisees), theorie}));
    }
  }
  Patience patience;
  bool libre = false;
  const bool ecrit = Passe([&] { libre = AjouteLignes(FichierPoints(bureau), kTitresPoints, lignes, patience); });
  const FenetrePoint &f = bureau.fenetrePoint;
  Avise(bureau, ecrit && libre ? f.TexteGarde.legende : f.TexteGardeRefuse.legende);
  LitSillage(bureau);
}

} // namespace

void AjouteVisee(Bureau &bureau, const std::string &identite, const Observation &observation,
                 const std::optional<ResultatDit> &dit) {
  std::vector<ViseeDuPoint> &visees = bureau.point.visees;
  std::erase_if(visees, [&](const ViseeDuPoint &v) { return v.identite == identite; });
  ViseeDuPoint visee;
  visee.identite = identite;
  visee.observation = observation;
  visee.dit = dit;
  PrepareVisee(bureau, visee);
  visees.push_back(std::move(visee));
  OrdonneVisees(bureau.point);
}

void RefaitPoint(Bureau &bureau) {
  PointOuvert &p = bureau.point;
  ReglagesPoint demande = LitDemande(bureau);
  std::vector<ViseePoint> visees;
  for (std::size_t i = 0; i < p.visees.size(); ++i) {
    const ViseeDuPoint &v = p.visees[i];
    if (v.hauteur) {
      visees.push_back({*v.hauteur, static_cast<std::int64_t>(i), v.cochee, v.ecartType});
    }
  }
  p.heure = demande.heure;
  p.route = demande.route;
  demande.theorie = TheoriePoint::Actuelle;
  p.actuelle = FaitPoint(visees, demande);
  demande.theorie = TheoriePoint::Dite;
  p.dite = FaitPoint(visees, demande);
  if (!p.actuelle.seconde && !p.dite.seconde) {
    p.seconde = false;
  }
}

void AccordePoint(Bureau &bureau) {
  if (bureau.fenetrePoint.cadre.visible) {
    const bool suivi = SuitRegistre(bureau);
    const bool relevee =
        bureau.point.montreComptee && bureau.point.versionMontre != bureau.registreOuvert.versionMontre;
    if (relevee) {
      PrepareVisees(bureau);
    }
    if (suivi || relevee) {
      RefaitPoint(bureau);
    }
    Montre(bureau);
  }
  bureau.donnees.PU_PointTrace.valeur = bureau.point.surFeuille ? 1 : 0;
  Calque calque = CalqueVoulu(bureau);
  if (bureau.image1.calque != calque) {
    bureau.image1.calque = std::move(calque);
  }
}

void PreparePoint(Bureau &bureau) {
  PointOuvert &p = bureau.point;
  if (p.visees.empty() && bureau.registreOuvert.auPoint.empty()) {
    ReprendVisees(bureau);
  } else if (SuitRegistre(bureau); !bureau.fenetrePoint.cadre.visible) {
    ReprendDroites(bureau, false);
  }
  if (p.jambes.empty()) {
    p.jambes = RouteGardee(bureau);
  }
  if (p.jambes.empty()) {
    p.jambes = JambesDEstime(bureau);
  }
  RefaitPoint(bureau);
}

void OuvrePoint_Click(Bureau &bureau, int /*indice*/) {
  PreparePoint(bureau);
  bureau.fenetrePoint.cadre.visible = true;
  bureau.premierPlan = kFenetrePoint;
  bureau.focus = &bureau.fenetrePoint.Visees;
}

void LitReglagesPoint(Bureau &bureau) {
  for (std::size_t i = 0; i < kCles.size(); ++i) {
    bureau.fenetrePoint.Text5.at(i).texte = LitReglage(bureau, kCles.at(i));
  }
  bureau.donnees.PU_Sillage.valeur = LitReglage(bureau, kCleSillage) == "1" ? 1 : 0;
  LitSillage(bureau);
}

void RetirePoint(Bureau &bureau) { PoseSurFeuille(bureau, false); }

void PU_PointTrace_Click(Bureau &bureau, int /*indice*/) { PoseSurFeuille(bureau, !bureau.point.surFeuille); }

void PU_Sillage_Click(Bureau &bureau, int /*indice*/) {
  Controle &entree = bureau.donnees.PU_Sillage;
  entree.valeur = entree.valeur == 1 ? 0 : 1;
  EcritReglage(bureau, kCleSillage, entree.valeur == 1 ? "1" : "0");
  LitSillage(bureau);
}

namespace point {
namespace {

/// The sight that the keyboard is at.
ViseeDuPoint *Courante(Bureau &bureau) {
  const int rang = bureau.fenetrePoint.Visees.tableau.courante;
  std::vector<ViseeDuPoint> &visees = bureau.point.visees;
  return rang >= 0 && static_cast<std::size_t>(rang) < visees.size() ? &visees[static_cast<std::size_t>(rang)]
                                                                     : nullptr;
}

void PoseJambe(Bureau &bureau) {
  FenetrePoint &f = bureau.fenetrePoint;
  const std::optional<Jambe> jambe = LitJambeTapee(f);
  if (!jambe) {
    Avise(bureau, f.TexteJambe.legende);
    return;
  }
  std::vector<Jambe> &jambes = bureau.point.jambes;
  std::erase_if(jambes, [&](const Jambe &j) { return SecondesEntre(j.depuis, jambe->depuis) == 0; });
  const auto place = std::find_if(jambes.begin(), jambes.end(),
                                  [&](const Jambe &j) { return SecondesEntre(jambe->depuis, j.depuis) > 0; });
  jambes.insert(place, *jambe);
}

void OteJambe(Bureau &bureau) {
  std::vector<Jambe> &jambes = bureau.point.jambes;
  const int rang = bureau.fenetrePoint.Jambes.tableau.courante;
  if (rang >= 0 && static_cast<std::size_t>(rang) < jambes.size()) {
    jambes.erase(jambes.begin() + rang);
  }
}

} // namespace

void Visees_Coche(Bureau &bureau, int /*indice*/) {
  if (ViseeDuPoint *visee = Courante(bureau)) {
    visee->cochee = !visee->cochee;
    RefaitPoint(bureau);
  }
}

void Visees_Click(Bureau &bureau, int /*indice*/) {
  const ViseeDuPoint *visee = Courante(bureau);
  Controle &champ = bureau.fenetrePoint.Text2;
  champ.texte = visee != nullptr && visee->ecartType ? TexteGeneral(*visee->ecartType) : "";
  champ.alerte.clear();
}

void Champ_Change(Bureau &bureau, int /*indice*/) {
  RefaitPoint(bureau);
  const FenetrePoint &f = bureau.fenetrePoint;
  for (std::size_t i = 0; i < kCles.size(); ++i) {
    if (f.Text5.at(i).alerte.empty()) {
      EcritReglage(bureau, kCles.at(i), f.Text5.at(i).texte);
    }
  }
}

void Text2_Change(Bureau &bureau, int /*indice*/) {
  if (ViseeDuPoint *visee = Courante(bureau)) {
    visee->ecartType = LitEcartTape(bureau.fenetrePoint);
    RefaitPoint(bureau);
  }
}

void Case_Click(Bureau &bureau, int /*indice*/) {
  const bool comptee = bureau.fenetrePoint.Check1.valeur == 1;
  if (comptee != bureau.point.montreComptee) {
    bureau.point.montreComptee = comptee;
    PrepareVisees(bureau);
  }
  RefaitPoint(bureau);
}

void Command1_Click(Bureau &bureau, int indice) {
  if (indice == 0) {
    if (!bureau.point.visees.empty() && ListeFaiteMain(bureau) &&
        !bureau.ports.boite({.texte = bureau.fenetrePoint.TexteRemplace.legende,
                             .icone = Icone::Question,
                             .question = true,
                             .fenetre = kFenetrePoint})) {
      return;
    }
    ReprendVisees(bureau);
  } else if (indice == 1) {
    const int rang = bureau.fenetrePoint.Visees.tableau.courante;
    if (const ViseeDuPoint *visee = Courante(bureau)) {
      std::erase(bureau.registreOuvert.auPoint, visee->identite);
      ++bureau.registre.Table1.tableau.version;
      bureau.point.visees.erase(bureau.point.visees.begin() + rang);
    }
  } else {
    OuvreRegistre_Click(bureau, -1);
    return;
  }
  RefaitPoint(bureau);
}

void Jambes_Click(Bureau &bureau, int /*indice*/) {
  FenetrePoint &f = bureau.fenetrePoint;
  const int rang = f.Jambes.tableau.courante;
  if (rang >= 0 && static_cast<std::size_t>(rang) < bureau.point.jambes.size()) {
    const Jambe &jambe = bureau.point.jambes[static_cast<std::size_t>(rang)];
    constexpr std::size_t kHeureMinute = 5;
    f.Text3[0].texte = TexteDate(jambe.depuis);
    f.Text3[1].texte = TexteHeureUtc(jambe.depuis).substr(0, kHeureMinute);
    f.Text3[2].texte = TexteGeneral(jambe.cap);
    f.Text3[3].texte = TexteGeneral(jambe.vitesse);
  }
}

void Command2_Click(Bureau &bureau, int indice) {
  indice == 0 ? PoseJambe(bureau) : OteJambe(bureau);
  GardeRoute(bureau);
  RefaitPoint(bureau);
}

void Text3_Valide(Bureau &bureau, int /*indice*/) { Command2_Click(bureau, 0); }

void Check3_Click(Bureau &bureau, int /*indice*/) { PoseSurFeuille(bureau, bureau.fenetrePoint.Check3.valeur == 1); }

void Check4_Click(Bureau &bureau, int /*indice*/) { bureau.point.seconde = bureau.fenetrePoint.Check4.valeur == 1; }

void Command3_Click(Bureau &bureau, int indice) {
  const SolutionPoint *solution = SolutionRetenue(bureau.point);
  if (indice == 3) {
    bureau.fenetrePoint.cadre.visible = false;
    bureau.premierPlan = kFenetreDonnees;
  } else if (solution == nullptr) {
    return;
  } else if (indice == 0) {
    const LieuNavire lieu = solution->lieu;
    const FenetrePoint &f = bureau.fenetrePoint;
    const bool actuelle = solution == SolutionVue(bureau.point, bureau.point.actuelle);
    RetientGeste(bureau, f.Command3[0].infobulle, [&] { PrendEstime(bureau, lieu); });
    Avise(bureau, f.Titre.at(actuelle ? 1 : 2).legende + " : " + TexteLieu(lieu)); // which of the two it was
  } else if (indice == 1) {
    Garde(bureau);
  } else {
    bureau.ports.copieTexte(TexteDuPoint(bureau));
    Avise(bureau, bureau.etat.TexteCopie.legende + bureau.donnees.PU_Point.legende);
  }
}

} // namespace point
} // namespace velmaris
