#include "complements/almanach/Arrondis.hpp"
#include "complements/almanach/TablesAlmanach.hpp"
#include "complements/papier/PartiesAlmanach.hpp"

#include <algorithm>
#include <array>

namespace velmaris {
namespace {

using Mot = MotAlmanach;

constexpr int kParPage = 3;
constexpr int kLignes = 61; ///< seconds 0 to 60, and as many values of v or d in a column
constexpr int kColonnesVD = 3;
constexpr double kJeu = 0.35; ///< lines between two groups
constexpr int kGroupe = 5;
constexpr Encre kFilet{0.25, 0.65};

/// Where the columns of a minute stand: seconds, three increments, then v or d and its correction thrice.
std::vector<Tabulation> ColonnesMinute(double gauche, double taille) {
  return ColonnesDroites(gauche, taille, {2.2, 6.9, 6.9, 6.9, 5.2, 4.2, 4.9, 4.2, 4.9, 4.6});
}

double LigneDe(int rang) {
  const int groupe = rang / kGroupe;
  return rang + kJeu * groupe;
}

void PoseMinute(Feuillet &page, const CadreAlmanach &c, int minute, const ZonePage &boite, double taille,
                double interligne) {
  const char virgule = VirguleDe(c.mots);
  const std::vector<Tabulation> colonnes = ColonnesMinute(boite.gauche, taille);
  const double droite = colonnes.back().x;
  page.Mot({boite.gauche, boite.haut + 1.2 * interligne}, std::to_string(minute) + " min",
           {.taille = taille + 2, .gras = true});
  const double tete = boite.haut + 2.6 * interligne;
  PoseRangee(page, tete, colonnes,
             {"s", c.mots[Mot::SoleilPlanetes], c.mots[Mot::Belier], c.mots[Mot::Lune], c.mots[Mot::VouD],
              c.mots[Mot::Correction], c.mots[Mot::VouD], c.mots[Mot::Correction], c.mots[Mot::VouD],
              c.mots[Mot::Correction]},
             {.taille = taille - 0.4, .gras = true});
  page.Trait({boite.gauche, tete + 0.3 * interligne}, {droite, tete + 0.3 * interligne}, kFilet);
  for (int i = 0; i < kLignes; ++i) {
    const double y = tete + (1.4 + LigneDe(i)) * interligne;
    PoseRangee(page, y, {colonnes.front()}, {(i < 10 ? "0" : "") + std::to_string(i)},
               {.taille = taille, .gras = true});
    std::vector<std::string> textes;
    for (const TauxIncrement taux : {TauxIncrement::Soleil, TauxIncrement::Belier, TauxIncrement::Lune}) {
      textes.push_back(TexteAngle(Increment(taux, minute * 60 + i), virgule, 1));
    }
    for (int k = 0; k < kColonnesVD; ++k) {
      const long vd = i + static_cast<long>(k) * (kLignes - 1);
      textes.push_back(TexteDixiemes(vd, virgule));
      textes.push_back(TexteDixiemes(CorrectionVD(minute, vd), virgule));
    }
    PoseRangee(page, y, {colonnes.begin() + 1, colonnes.end()}, textes, {.taille = taille});
  }
}

} // namespace

std::vector<Feuillet> PagesIncrements(const CadreAlmanach &c) {
  constexpr int kMinutes = 60;
  constexpr double kChiffres = 157; ///< three minutes and what is between them
  std::vector<Feuillet> pages;
  for (int premiere = 0; premiere < kMinutes; premiere += kParPage) {
    Feuillet page = PageTitree(c.format, c.mots[Mot::TitreIncrements],
                               std::to_string(premiere) + " - " + std::to_string(premiere + kParPage - 1) + " min");
    ZonePage boite = ZoneDe(page);
    const double interligne = boite.Hauteur() / (LigneDe(kLignes) + 7);
    const double taille = TailleQuiTient(boite.Largeur(), kChiffres, interligne);
    const Graphie note{.taille = 7, .italique = true};
    page.Mot({boite.gauche, boite.bas - 1.1 * interligne}, c.mots[Mot::NoteIncrements], note);
    page.Mot({boite.gauche, boite.bas - 0.2 * interligne}, c.mots[Mot::NoteIncrements2], note);
    const double pas = boite.Largeur() / kParPage;
    for (int k = 0; k < kParPage; ++k) {
      PoseMinute(page, c, premiere + k, boite, taille, interligne);
      if (k > 0) {
        const double x = boite.gauche - 0.02 * pas;
        page.Trait({x, boite.haut}, {x, boite.bas - 2.3 * interligne}, kFilet);
      }
      boite.gauche += pas;
    }
    pages.push_back(std::move(page));
  }
  return pages;
}

} // namespace velmaris
