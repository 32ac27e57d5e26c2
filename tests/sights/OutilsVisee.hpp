#pragma once

#include "sights/Reduction.hpp"
#include "tests/OutilsTests.hpp"
#include "tests/sights/SecondCalculAstre.hpp"

#include <gtest/gtest.h>

#include <string>

namespace velmaris::essais {

/// Numbered texts that tell their own number.
inline TexteMsg MessagesNumerotes() {
  TexteMsg messages;
  for (std::size_t i = 0; i < messages.size(); ++i) {
    messages[i] = "M" + std::to_string(i) + " ";
  }
  return messages;
}

/// A sight on its way through a reduction, with what stood there before it.
struct Epreuve {
  Epreuve(const ViseeAstre &v, Corps corps) : observation(ChampsAstre(v, corps)) {
    valeurs.LatEstimee = LatitudeALaMain(v);
    valeurs.LonEstimee = LongitudeALaMain(v);
    valeurs.Azimut = 12;
    valeurs.HauteurCalculee = 34;
    valeurs.Intercept = 56;
    affichage.intercept = affichage.azimut = affichage.infobulle = "before";
    affichage.details.fill("before");
  }

  void RienNAChange() const {
    EXPECT_EQ(valeurs.Azimut, 12.0F);
    EXPECT_EQ(valeurs.HauteurCalculee, 34.0F);
    EXPECT_EQ(valeurs.Intercept, 56.0F);
    EXPECT_EQ(affichage.intercept + affichage.azimut + affichage.infobulle, "beforebeforebefore");
    for (const std::string &detail : affichage.details) {
      EXPECT_EQ(detail, "before");
    }
  }

  /// Reading and corrections are those worked by hand; the parallax is in none of these bodies' corrections.
  void LectureEst(const LectureALaMain &lue) const {
    EXPECT_EQ(reduction.lue.H, lue.H);
    EXPECT_EQ(reduction.lue.Depression, lue.Depression);
    EXPECT_EQ(reduction.lue.Refraction, lue.Refraction);
    EXPECT_EQ(reduction.lue.Parallaxe, 0.0);
  }

  Observation observation;
  ValeursVisee valeurs;
  AffichageDroite affichage;
  Reduction reduction;
};

struct CasChamp {
  std::string Observation::*champ;
  const char *texte;
};

/// Texts with which a star and a planet make no sight.
inline const CasChamp kChampsRefuses[] = {
    {&Observation::hauteurOeil, ""}, {&Observation::hauteurOeil, "2.5"}, {&Observation::hauteurOeil, "abc"},
    {&Observation::collimation, ""}, {&Observation::collimation, "1.0"}, {&Observation::minute, ""},
    {&Observation::seconde, ""},     {&Observation::minute, "60"},       {&Observation::seconde, "60"},
    {&Observation::seconde, "5.5"},  {&Observation::heure, "24"},        {&Observation::heure, "60"},
    {&Observation::heure, "12.5"},   {&Observation::heure, "-1"},        {&Observation::jour, "31"},
    {&Observation::jour, "0"},       {&Observation::jour, ""},           {&Observation::mois, "13"},
    {&Observation::mois, ""},        {&Observation::annee, "10000"},     {&Observation::annee, "2026.5"}};

} // namespace velmaris::essais
