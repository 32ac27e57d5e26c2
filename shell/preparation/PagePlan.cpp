#include "shell/preparation/PagePlan.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/complements/Mots.hpp"
#include "shell/ecran/ChoixSortie.hpp"
#include "shell/ecran/Copie.hpp"
#include "shell/preparation/CalculPlan.hpp"
#include "shell/preparation/MotsPlan.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace velmaris {
namespace {

constexpr double kLargeur = 11906; ///< A4, 1/1440 inch
constexpr double kHauteur = 15840; ///< of letter, which is the shorter one
constexpr double kMarge = 720;
constexpr double kPas = 265;           ///< from line to line
constexpr double kCarte = 5400;        ///< side of the sky's chart
constexpr std::size_t kAstresMax = 18; ///< that have room

/// Writes lines of words in columns, one under the other.
class Colonnes {
public:
  Colonnes(Surface &page, double haut) : page_(page), haut_(haut) {}

  void Ligne(const std::vector<std::pair<double, std::string>> &mots, bool gras = false, double taille = 9) {
    page_.police.gras = gras;
    page_.police.taille = taille;
    for (const auto &[gauche, texte] : mots) {
      EcritEn(page_, {gauche, haut_}, texte);
    }
    haut_ += kPas * taille / 9;
  }
  void Saute() { haut_ += kPas / 2; }
  double haut() const { return haut_; }

private:
  Surface &page_;
  double haut_;
};

/// Puts a drawing onto the page with its upper left corner at a place.
void Pose(Surface &page, const Surface &dessin, Point coin) {
  for (Trace trace : dessin.traces) {
    if (auto *ligne = std::get_if<Polyligne>(&trace)) {
      for (Point &p : ligne->points) {
        p = {p.x + coin.x, p.y + coin.y};
      }
    } else if (auto *cercle = std::get_if<CercleTrace>(&trace)) {
      cercle->centre = {cercle->centre.x + coin.x, cercle->centre.y + coin.y};
    } else if (auto *texte = std::get_if<TexteTrace>(&trace)) {
      texte->position = {texte->position.x + coin.x, texte->position.y + coin.y};
    }
    page.traces.push_back(std::move(trace));
  }
}

std::string Titre(const Bureau &bureau) {
  const Preparation &f = bureau.preparation;
  const NavirePrevu &navire = bureau.plan.demande.navire;
  std::string titre = TexteLieu(navire.lieu) + "  " + TexteHeureMinute(navire.heure) + " UTC";
  if (!navire.route.jambes.empty()) {
    const Jambe &jambe = navire.route.jambes.front();
    titre +=
        "   " + f.TexteCap.legende + TexteDirection(jambe.cap) + ", " + Dixiemes(jambe.vitesse) + f.TexteNoeuds.legende;
  }
  return titre + "   " + f.TexteOeil.legende + Dixiemes(navire.hauteurOeil) + " m   " +
         MotsFuseau(f, *bureau.plan.journee);
}

void EcritJour(Surface &page, const Bureau &bureau) {
  const Preparation &f = bureau.preparation;
  const Journee &journee = *bureau.plan.journee;
  Colonnes c(page, 1560);
  c.Ligne({{kMarge, f.MotColonneJour[0].legende}, {4000, "UTC"}, {4900, f.MotColonneJour[2].legende}}, true);
  for (const EvenementDuPlan &e : EvenementsDuJour(journee)) {
    if (e.moment) {
      c.Ligne({{kMarge, NomEvenement(f, e.genre)},
               {4000, TexteHeureMinute(e.moment->utc)},
               {4900, HeureDuBord(journee, e.moment->utc)}});
    } else {
      c.Ligne(
          {{kMarge, NomEvenement(f, e.genre)}, {4000, f.MotAbsence.at(static_cast<std::size_t>(e.absence)).legende}});
    }
  }
}

void EcritAstres(Surface &page, const Bureau &bureau) {
  const Preparation &f = bureau.preparation;
  const PlanOuvert &p = bureau.plan;
  Colonnes c(page, 7260);
  c.Ligne({{kMarge, MotsInstant(f, p)}, {7000, MotsLune(f, p)}}, true);
  c.Saute();
  const std::array<double, 7> gauches = {kMarge, 2700, 4000, 5000, 5900, 7400, 8300};
  std::vector<std::pair<double, std::string>> titres;
  titres.reserve(gauches.size());
  for (std::size_t i = 0; i < gauches.size(); ++i) {
    titres.emplace_back(gauches.at(i), f.MotColonne.at(i).legende);
  }
  c.Ligne(titres, true);
  std::size_t ecrits = 0;
  for (const std::size_t rang : p.montres) {
    const AstreDuPlan &a = p.vue.astres.at(rang);
    if (a.raisons.any() || ++ecrits > kAstresMax) {
      continue;
    }
    c.Ligne({{gauches[0], NomDAstre(bureau, a.astre)},
             {gauches[1], TexteAngleSigne(a.apparente)},
             {gauches[2], TexteDirection(a.azimut)},
             {gauches[3], Dixiemes(a.magnitude)},
             {gauches[4], a.prereglage ? TexteAngleSigne(*a.prereglage) : ""},
             {gauches[5], DixiemesSignes(a.mouvement)},
             {gauches[6], MotsRemarque(f, p.vue, a)}});
  }
}

void EcritJeux(Surface &page, const Bureau &bureau) {
  constexpr std::size_t kParNombre = 2;
  const Preparation &f = bureau.preparation;
  Colonnes c(page, kHauteur - kMarge - 8 * kPas);
  std::string mieux;
  for (const MeilleurMoment &moment : bureau.plan.meilleurs) {
    mieux += MotsMeilleur(f, moment) + "    ";
  }
  c.Ligne({{kMarge, f.MotOnglet[2].legende}, {2100, mieux}, {9600, f.MotColonneJeux[1].legende}}, true);
  for (const auto &jeux : bureau.plan.jeux) {
    for (std::size_t i = 0; i < std::min(kParNombre, jeux.size()); ++i) {
      c.Ligne({{kMarge, MotsJeu(bureau, jeux[i])}, {9600, Format(std::sqrt(jeux[i].trace), "0.00")}});
    }
  }
}

} // namespace

Surface PageDuPlan(const Bureau &bureau, const CarteDuPlan &carte) {
  const Preparation &f = bureau.preparation;
  Surface page;
  page.largeur = kLargeur;
  page.hauteur = kHauteur;
  page.police.gras = false;
  Colonnes tete(page, kMarge);
  tete.Ligne({{kMarge, f.TexteTitrePage.legende + f.Text1[0].texte}}, true, 14);
  tete.Ligne({{kMarge, Titre(bureau)}});
  EcritJour(page, bureau);
  Surface ciel;
  ciel.largeur = kCarte;
  ciel.hauteur = kCarte;
  ciel.police = page.police;
  DessineCarte(ciel, bureau.plan.vue, carte);
  Pose(page, ciel, {kLargeur - kMarge - kCarte + 200, 1480});
  EcritAstres(page, bureau);
  EcritJeux(page, bureau);
  page.police.gras = false;
  page.police.taille = 7;
  EcritEn(page, {kMarge, kHauteur - kMarge}, "Velmaris   " + f.TextePied.legende);
  return page;
}

void EmportePlan(Bureau &bureau, const CarteDuPlan &carte) {
  const Preparation &f = bureau.preparation;
  const InstantUTC &jour = bureau.plan.demande.navire.heure;
  const DateCivile d = CivileDe(jour);
  const std::string nom =
      "plan-" + Format(d.annee, "0000") + "-" + Format(d.mois, "00") + "-" + Format(d.jour, "00") + ".pdf";
  const std::filesystem::path chemin =
      ChoisitSortie(bureau, f.Command2[0].legende, nom, "*.pdf;*.svg;*.png", kFenetrePreparation);
  if (chemin.empty()) {
    return;
  }
  const bool ecrit = EcritImageDe(bureau, PageDuPlan(bureau, carte), chemin, kFenetrePreparation);
  DitPlan(bureau, (ecrit ? f.TexteEcrit : f.TexteNonEcrit).legende + chemin.string());
}

} // namespace velmaris
