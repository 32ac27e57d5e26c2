#include "shell/papier/ClesPapier.hpp"

#include "foundations/TexteNombre.hpp"
#include "shell/point/TracePoint.hpp"
#include "shell/visee/Saisie.hpp"

#include <span>

namespace velmaris {
namespace {

constexpr char kFin = '\n';

std::string Textes(std::span<const Controle> champs) {
  std::string cle;
  for (const Controle &champ : champs) {
    cle += champ.texte + kFin;
  }
  return cle;
}

std::string CleDeLAlmanach(const FenetrePapier &f) {
  std::string cle = std::to_string(f.Combo2.rang) + kFin;
  for (const Controle &coche : f.Check1) {
    cle += std::to_string(coche.valeur) + kFin;
  }
  return cle;
}

std::string CleDesFiches(const Bureau &bureau) {
  const FenetrePapier &f = bureau.fenetrePapier;
  std::string cle = std::to_string(f.Check2.valeur) + kFin;
  if (!f.Option1[1].choisi) {
    const Observation o = LitPanneau(bureau.donnees);
    for (const std::string *texte : {&o.jour, &o.mois, &o.annee, &o.heure, &o.minute, &o.seconde, &o.latitudeDegres,
                                     &o.latitudeMinutes, &o.longitudeDegres, &o.longitudeMinutes, &o.lectureDegres,
                                     &o.lectureMinutes, &o.lectureFraction, &o.hauteurOeil, &o.collimation}) {
      cle += *texte + kFin;
    }
    for (const int choix : {static_cast<int>(o.corps), static_cast<int>(o.bord), static_cast<int>(o.horizon),
                            static_cast<int>(o.fraction), o.etoile, o.planete, o.sud ? 1 : 0, o.est ? 1 : 0}) {
      cle += std::to_string(choix) + kFin;
    }
    return cle;
  }
  const RegistreOuvert &registre = bureau.registreOuvert;
  cle += std::to_string(registre.rendue) + kFin;
  for (const std::size_t ligne : bureau.registre.Table1.tableau.choisies) {
    cle += std::to_string(ligne) + kFin;
  }
  return cle;
}

std::string CleDuJour(const Bureau &bureau) {
  const PointOuvert &p = bureau.point;
  std::string cle = Textes(bureau.fenetrePapier.Text2);
  for (const ViseeDuPoint &visee : p.visees) {
    cle += visee.identite + (visee.cochee ? "+" : "-") + TexteGeneral(visee.ecartType.value_or(0)) + kFin;
  }
  const SolutionPoint *solution = p.heure ? SolutionRetenue(p) : nullptr;
  if (solution != nullptr) {
    cle += TexteGeneral(solution->lieu.latitude) + " " + TexteGeneral(solution->lieu.longitude) + " " +
           TexteGeneral(solution->ellipse.a);
  }
  return cle;
}

} // namespace

std::string CleDesChiffres(const FenetrePapier &fenetre) { return Textes(fenetre.Text1); }

std::string CleDesPages(const Bureau &bureau, OngletPapier onglet) {
  const FenetrePapier &f = bureau.fenetrePapier;
  const ReglagesControle &reglages = bureau.verification.reglages;
  const std::string cle = bureau.FichierLangue + kFin + std::to_string(f.Combo1.rang) + kFin +
                          TexteGeneral(reglages.dut1) + " " + TexteGeneral(reglages.pression) + " " +
                          TexteGeneral(reglages.temperature) + kFin;
  switch (onglet) {
  case OngletPapier::Fiche:
    return cle + CleDesFiches(bureau);
  case OngletPapier::Jour:
    return cle + CleDuJour(bureau);
  case OngletPapier::Vierge:
    return cle + Textes(f.Text3);
  case OngletPapier::Almanach:
  default:
    return cle + CleDesChiffres(f) + CleDeLAlmanach(f);
  }
}

bool SontBonnes(const Bureau &bureau, OngletPapier onglet) {
  const PagesOuvertes &vues = bureau.papier.onglets.at(static_cast<std::size_t>(onglet));
  return vues.pages && vues.pour == CleDesPages(bureau, onglet);
}

} // namespace velmaris
