#include "sights/ChampFautif.hpp"

#include "tests/sights/OutilsAstres.hpp"

#include <gtest/gtest.h>

#include <array>

namespace velmaris {
namespace {

using essais::ViseeAstre;

struct Cas {
  std::string Observation::*membre;
  const char *texte;
  ChampVisee champ;
  Defaut defaut;
};

const Cas kCas[] = {{&Observation::hauteurOeil, "", ChampVisee::HauteurOeil, Defaut::Vide},
                    {&Observation::hauteurOeil, "2.5", ChampVisee::HauteurOeil, Defaut::PasUnNombre},
                    {&Observation::hauteurOeil, "-1,0", ChampVisee::HauteurOeil, Defaut::SousLaMer},
                    {&Observation::collimation, "", ChampVisee::Collimation, Defaut::Vide},
                    {&Observation::collimation, "abc", ChampVisee::Collimation, Defaut::PasUnNombre},
                    {&Observation::jour, "", ChampVisee::Jour, Defaut::Vide},
                    {&Observation::jour, "31", ChampVisee::Jour, Defaut::DateImpossible},
                    {&Observation::mois, "", ChampVisee::Mois, Defaut::Vide},
                    {&Observation::mois, "13", ChampVisee::Jour, Defaut::DateImpossible},
                    {&Observation::annee, "", ChampVisee::Annee, Defaut::Vide},
                    {&Observation::annee, "10000", ChampVisee::Jour, Defaut::DateImpossible},
                    {&Observation::heure, "", ChampVisee::Heure, Defaut::Vide},
                    {&Observation::heure, "24", ChampVisee::Heure, Defaut::HorsDuJour},
                    {&Observation::heure, "12.5", ChampVisee::Heure, Defaut::HorsDuJour},
                    {&Observation::minute, "", ChampVisee::Minute, Defaut::Vide},
                    {&Observation::minute, "60", ChampVisee::Minute, Defaut::HorsDeLHeure},
                    {&Observation::seconde, "", ChampVisee::Seconde, Defaut::Vide},
                    {&Observation::seconde, "5.5", ChampVisee::Seconde, Defaut::HorsDeLHeure}};

template <class Visee> void NommeLeChamp() {
  for (const Cas &cas : kCas) {
    Visee s{ViseeAstre{}};
    s.observation.*cas.membre = cas.texte;
    const auto fautif = TrouveChampFautif(s.observation);
    ASSERT_TRUE(fautif.has_value()) << cas.texte;
    EXPECT_EQ(fautif->champ, cas.champ) << cas.texte;
    EXPECT_EQ(fautif->defaut, cas.defaut) << cas.texte;
    EXPECT_EQ(s.Echoue(), cas.defaut == Defaut::SousLaMer ? 5 : 13) << "the sight does fail";
  }
}

TEST(FieldAtFault, OfAPlanetsAndAStarsSightIsTheOneThatWasSpoiled) {
  NommeLeChamp<essais::ViseePlanete>();
  NommeLeChamp<essais::ViseeEtoile>();
}

TEST(FieldAtFault, IsFoundForEveryTextThatASightRefusesAndForNoOther) {
  int refus = 0;
  for (const essais::CasChamp &cas : essais::kChampsRefuses) {
    essais::ViseePlanete s{ViseeAstre{}};
    s.observation.*cas.champ = cas.texte;
    EXPECT_EQ(TrouveChampFautif(s.observation).has_value(), s.Echoue() == 13) << cas.texte;
    ++refus;
  }
  EXPECT_GT(refus, 15);
  EXPECT_FALSE(TrouveChampFautif(essais::ViseeEtoile(ViseeAstre{}).observation)) << "a whole sight has none";
}

TEST(FieldAtFault, ComesInTheOrderInWhichTheSightReadsItsFields) {
  Observation o = essais::ViseePlanete(ViseeAstre{}).observation;
  o.hauteurOeil = o.collimation = o.jour = o.heure = o.seconde = "";
  constexpr std::array kOrdre = {ChampVisee::HauteurOeil, ChampVisee::Collimation, ChampVisee::Jour, ChampVisee::Heure,
                                 ChampVisee::Seconde};
  constexpr std::array<std::string Observation::*, 5> kMembres = {&Observation::hauteurOeil, &Observation::collimation,
                                                                  &Observation::jour, &Observation::heure,
                                                                  &Observation::seconde};
  constexpr std::array<const char *, 5> kJustes = {"2,5", "0,0", "1", "1", "1"};
  for (std::size_t i = 0; i < kOrdre.size(); ++i) {
    const auto fautif = TrouveChampFautif(o);
    ASSERT_TRUE(fautif.has_value());
    EXPECT_EQ(fautif->champ, kOrdre.at(i));
    o.*kMembres.at(i) = kJustes.at(i);
  }
}

TEST(FieldAtFault, NoneIsToldOfTheSunAndTheMoonThatPassOverAnyText) {
  Observation o;
  for (const Corps corps : {Corps::Soleil, Corps::Lune}) {
    o.corps = corps;
    EXPECT_FALSE(TrouveChampFautif(o));
  }
}

} // namespace
} // namespace velmaris
