#pragma once

#include "ephemerides/Etoiles.hpp"
#include "ephemerides/TableEtoiles.hpp"
#include "tests/ephemerides/SecondCalculEtoile.hpp"

#include <map>

namespace velmaris::essais {

/// The table, split, with the list of stars that it leaves.
struct TableLue {
  TableLue() { ChargeEtoiles(etoiles, liste); }
  Etoiles etoiles;
  std::vector<std::string> liste;

  /// Number of the row of a name, 0 for none.
  std::int16_t rang(std::string_view nom) const {
    for (std::int16_t i = 1; i <= kNombreLignesEtoiles; ++i) {
      if (etoiles.EtoileNom[static_cast<std::size_t>(i)] == nom) {
        return i;
      }
    }
    return 0;
  }

  std::string texte(int rang, int jour, int mois, int annee) const {
    const std::string j = std::to_string(jour);
    const std::string m = std::to_string(mois);
    const std::string a = std::to_string(annee);
    return CoordEtoile(etoiles, static_cast<std::int16_t>(rang), -1, {j, m, a});
  }

  PaireX place(int rang, int jour, int mois, int annee) const { return LitPaireX(texte(rang, jour, mois, annee)); }
};

inline LigneEtoile Ligne(int rang) {
  return DecoupeALaMain(std::string(kLignesEtoiles[static_cast<std::size_t>(rang) - 1]));
}

struct MouvementConnu {
  double ad, dec; ///< seconds of time and of arc a year
};

/// The motions once more, by name.
inline const std::map<std::string, MouvementConnu> &Mouvements() {
  static const std::map<std::string, MouvementConnu> mouvements = {
      {"Regulus", {-0.0171, 0.004}},   {"Vega", {0.0173, 0.286}},       {"Dubhe", {-0.168, -0.066}},
      {"Arcturus", {-0.0771, -1.998}}, {"Altair", {0.0363, 0.386}},     {"Capella", {0.0073, -0.425}},
      {"Canopus", {0.0024, 0.021}},    {"Sirius", {-0.0385, -1.205}},   {"Rigil Kentaurus", {-0.4983, 0.699}},
      {"Rigel", {0, -0.001}},          {"Procyon", {-0.0475, -1.023}},  {"Achernar", {0.0117, -0.035}},
      {"Pollux", {-0.0474, -0.046}},   {"Fomalhaut", {0.0255, -0.165}}, {"Deneb", {0.0003, 0.002}},
      {"Acrux", {-0.0052, -0.012}},    {"Betelgeuse", {0.0017, 0.009}}, {"Polaris", {0.1988, -0.015}},
      {"Aldebaran", {0.0044, -0.19}},  {"Mirfak", {0.0025, -0.025}},    {"Albireo", {0.0002, -0.002}},
      {"Denebola", {-0.0342, -0.114}}, {"Alpheratz", {0.0104, -0.163}}, {"Antares", {-0.0007, -0.002}},
      {"Spica", {-0.0028, -0.0028}},   {"Castor", {-0.0135, -0.099}}};
  return mouvements;
}

inline MouvementConnu MouvementDe(const std::string &nom) {
  const auto trouve = Mouvements().find(nom);
  return trouve == Mouvements().end() ? MouvementConnu{0, 0} : trouve->second;
}

} // namespace velmaris::essais
