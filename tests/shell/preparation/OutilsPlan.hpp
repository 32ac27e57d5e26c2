#pragma once

#include "shell/complements/Mots.hpp"
#include "shell/preparation/Preparation.hpp"
#include "tests/shell/ecran/OutilsDialogue.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

namespace velmaris::essais {

/// The plan's window without a screen.
class PlanFait : public AvecDialogue {
protected:
  /// The plan of an evening off Brittany.
  void OuvrePlan(const char *date = "21/06/2026", const char *heure = "20:30") {
    ClicControle(bureau, d.PU_Preparation);
    Pose({date, heure, "47 10.3 N", "4 44.1 W"});
    AccordePreparation(bureau);
  }
  void Pose(const std::array<const char *, 4> &champs) {
    for (std::size_t i = 0; i < champs.size(); ++i) {
      SaisitTexte(bureau, pr.Text1.at(i), champs.at(i));
    }
  }
  /// The place in the sky of a star by its name.
  std::size_t Etoile(const std::string &nom) const {
    const auto ici = std::find_if(plan.vue.astres.begin(), plan.vue.astres.end(),
                                  [&](const AstreDuPlan &a) { return NomDAstre(bureau, a.astre) == nom; });
    EXPECT_NE(ici, plan.vue.astres.end()) << nom;
    return static_cast<std::size_t>(ici - plan.vue.astres.begin());
  }
  static std::string Cellule(const Controle &table, std::size_t ligne, std::size_t colonne) {
    return table.tableau.lecteur->texte(ligne, colonne);
  }
  void VaA(int minute) { BougeCurseur(bureau, pr.HScroll1, minute); }

  Preparation &pr = bureau.preparation;
  PlanOuvert &plan = bureau.plan;
};

} // namespace velmaris::essais
