#pragma once

#include "sights/DroitePLA.hpp"
#include "sights/DroiteSTAR.hpp"
#include "tests/ephemerides/OutilsEtoiles.hpp"
#include "tests/sights/OutilsVisee.hpp"

namespace velmaris::essais {

inline const TableLue &TableDesVisees() {
  static const TableLue table;
  return table;
}

/// A planet's sight and its reduction.
struct ViseePlanete : Epreuve {
  static constexpr int Observation::*kAstre = &Observation::planete;

  explicit ViseePlanete(const ViseeAstre &v) : Epreuve(v, Corps::Planetes) {}

  EtatReduction Reduit() {
    reduction = Calcul_DroitePLA(observation, valeurs, affichage, MessagesNumerotes());
    return reduction.etat;
  }

  int Echoue() {
    return NumeroErreur([this] { Reduit(); });
  }
};

/// A star's sight and its reduction.
struct ViseeEtoile : Epreuve {
  static constexpr int Observation::*kAstre = &Observation::etoile;

  explicit ViseeEtoile(const ViseeAstre &v) : Epreuve(v, Corps::Etoiles) {}

  EtatReduction Reduit() {
    reduction = Calcul_DroiteSTAR(observation, valeurs, TableDesVisees().etoiles, affichage, MessagesNumerotes());
    return reduction.etat;
  }

  int Echoue() {
    return NumeroErreur([this] { Reduit(); });
  }
};

} // namespace velmaris::essais
