#include "complements/papier/PagesAlmanach.hpp"

#include "complements/almanach/Arrondis.hpp"
#include "complements/papier/PartiesAlmanach.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace velmaris {
namespace {

using Mot = MotAlmanach;

std::string TexteDate(const DateCivile &date, const MotsAlmanach &mots) {
  return TexteDateAlmanach(date.jour, date.mois, date.annee, mots);
}

/// The foot of all pages, whose number is known at the end.
void PosePieds(std::vector<Feuillet> &pages, const CadreAlmanach &c, const DateCivile &fait) {
  const std::string ligne2 = c.mots[Mot::PiedFait] + ' ' + TexteDate(fait, c.mots) + "   " + c.mots[Mot::PiedUt1] +
                             ' ' + TexteDixiemes(ArrondiDixieme(c.almanach.demande.dut1), VirguleDe(c.mots)) + ' ' +
                             c.mots[Mot::Secondes];
  for (std::size_t i = 0; i < pages.size(); ++i) {
    PosePied(pages[i], c.mots[Mot::PiedTheorie], ligne2,
             c.mots[Mot::Page] + ' ' + std::to_string(i + 1) + '/' + std::to_string(pages.size()));
  }
}

void Ajoute(std::vector<Feuillet> &pages, std::vector<Feuillet> autres) {
  pages.insert(pages.end(), std::make_move_iterator(autres.begin()), std::make_move_iterator(autres.end()));
}

/// Whether a line is a step's heading: a figure and a point.
bool EstTitre(const std::string &ligne) {
  return ligne.size() > 1 && ligne[0] >= '1' && ligne[0] <= '9' && ligne[1] == '.';
}

/// Whether a paragraph begins: with two capitals that are no formula.
bool EstDebut(const std::string &ligne) {
  const auto capitale = [](char c) { return (c >= 'A' && c <= 'Z') || c == '\''; };
  return ligne.size() > 1 && capitale(ligne[0]) && capitale(ligne[1]) && ligne.find('=') > 8;
}

} // namespace

Feuillet PageEmploi(const CadreAlmanach &c) {
  const DemandeAlmanach &d = c.almanach.demande;
  Feuillet page = PageTitree(c.format, c.mots[Mot::Titre],
                             TexteDate(d.debut, c.mots) + ' ' + c.mots[Mot::Au] + ' ' + TexteDate(d.fin, c.mots));
  const ZonePage boite = ZoneDe(page);
  const auto premier = static_cast<std::size_t>(Mot::Emploi01);
  const auto dernier = static_cast<std::size_t>(Mot::Emploi39);
  const double interligne = std::min(boite.Hauteur() / static_cast<double>(dernier - premier + 14), 300.0);
  const double taille = TailleQuiTient(boite.Largeur(), 98, interligne);
  double y = boite.haut + 1.5 * interligne;
  page.Mot({boite.gauche, y}, c.mots[Mot::TitreEmploi], {.taille = taille + 2, .gras = true});
  y += 0.5 * interligne;
  for (std::size_t i = premier; i <= dernier; ++i) {
    const std::string &ligne = c.mots.textes[i];
    const bool titre = EstTitre(ligne);
    y += (titre || EstDebut(ligne) ? 1.5 : 1.05) * interligne;
    page.Mot({boite.gauche, y}, ligne, {.taille = taille, .gras = titre});
  }
  return page;
}

std::optional<std::vector<Feuillet>> PagesAlmanach(const Almanach &almanach, const MotsAlmanach &mots,
                                                   const ReglagesPages &reglages, const Avancement &avancement) {
  const CadreAlmanach c{almanach, mots, reglages.format};
  std::vector<Feuillet> pages{PageEmploi(c)};
  const std::size_t nombre = reglages.jours ? almanach.periodes.size() : 0;
  for (std::size_t i = 0; i < nombre; ++i) {
    if (avancement.Cesse()) {
      return std::nullopt;
    }
    pages.push_back(PagePlanetes(c, almanach.periodes[i]));
    pages.push_back(PageSoleilLune(c, almanach.periodes[i]));
    avancement.Dit(static_cast<double>(i + 1) / static_cast<double>(nombre + 1));
  }
  if (reglages.tables) {
    Ajoute(pages, PagesCorrections(c));
    Ajoute(pages, PagesLune(c));
    Ajoute(pages, PagesPolaire(c));
    Ajoute(pages, PagesTriangle(c));
  }
  if (reglages.increments) {
    Ajoute(pages, PagesIncrements(c));
  }
  if (avancement.Cesse()) {
    return std::nullopt;
  }
  PosePieds(pages, c, reglages.fait);
  avancement.Dit(1);
  return pages;
}

} // namespace velmaris
