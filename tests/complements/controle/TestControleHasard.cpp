#include "OutilsControle.hpp"
#include "complements/controle/Parts.hpp"
#include "foundations/Erreur.hpp"

#include "tests/sights/SecondCalculAstre.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <future>
#include <random>
#include <vector>

/// What holds for the check of every sight, on many taken at random; VELMARIS_CONTROLES is how many.
namespace velmaris {
namespace {

using essais::Dite;

constexpr int kVisees = 10000;

int Nombre() {
  const char *voulu = std::getenv("VELMARIS_CONTROLES");
  return voulu == nullptr ? kVisees : std::atoi(voulu);
}

/// Any sight of any body: the Sun, the Moon, a planet (one in eight, since its told figures take long) or a star.
Observation AuHasard(std::mt19937 &alea, int i) {
  constexpr Corps kCorps[] = {Corps::Soleil,  Corps::Lune, Corps::Etoiles, Corps::Soleil,
                              Corps::Etoiles, Corps::Lune, Corps::Etoiles, Corps::Planetes};
  const Corps corps = kCorps[i % 8];
  return essais::ChampsAstre(essais::ViseeAuHasard(alea, corps == Corps::Planetes ? 4 : 156), corps);
}

bool EstNombre(const FicheControle &fiche) {
  bool nombre = std::isfinite(fiche.ecart) && std::isfinite(fiche.inexplique);
  if (fiche.actuel) {
    for (const double x : {fiche.actuel->Ho, fiche.actuel->Hc, fiche.actuel->azimut, fiche.actuel->intercept,
                           fiche.actuel->gha, fiche.actuel->declinaison}) {
      nombre = nombre && std::isfinite(x);
    }
  }
  for (const PartCause &part : fiche.causes) {
    nombre = nombre && std::isfinite(part.minutes);
  }
  for (const Glissade &glissade : fiche.glissades) {
    nombre = nombre && std::isfinite(glissade.intercept) && std::fabs(glissade.intercept) < 2;
  }
  for (const LigneControle &ligne : fiche.lignes) {
    nombre = nombre && std::isfinite(ligne.dit.value_or(0)) && std::isfinite(ligne.actuel.value_or(0));
  }
  return nombre;
}

TEST(EveryCheck, LeavesTheToldFiguresAsTheyAreAndGivesNumbers) {
  std::mt19937 alea(18);
  int actuelles = 0;
  for (int i = 0; i < Nombre(); ++i) {
    const Observation o = AuHasard(alea, i);
    const Dite avant = essais::Reduis(o);
    const Dite garde = avant;
    const FicheControle fiche = ControleVisee(avant.observation, avant.resultat, essais::Table());
    ASSERT_TRUE(avant == garde) << i;
    ASSERT_TRUE(essais::Reduis(o) == garde) << "reduced again, the same bits " << i;
    ASSERT_TRUE(EstNombre(fiche)) << i;
    ASSERT_EQ(fiche.lignes.size(), 15U) << i;
    ASSERT_EQ(fiche.actuel.has_value(), !fiche.refus.has_value()) << i;
    actuelles += fiche.actuel ? 1 : 0;
  }
  EXPECT_GT(actuelles, Nombre() * 0.98) << "but the nova's";
}

TEST(EveryCheck, OfFieldsWithoutSenseTellsWhyAndNeverFails) {
  constexpr const char *kTextes[] = {"",    "0",    "-1", "60",   "61",   "99", "1E300", "-1E300", "abc",   "1,5",
                                     "2.5", "-0,3", "31", "2026", "1582", "90", "NaN",   "inf",    "1E-300"};
  constexpr std::string Observation::*kChamps[] = {&Observation::jour,
                                                   &Observation::mois,
                                                   &Observation::annee,
                                                   &Observation::heure,
                                                   &Observation::minute,
                                                   &Observation::seconde,
                                                   &Observation::longitudeDegres,
                                                   &Observation::longitudeMinutes,
                                                   &Observation::latitudeDegres,
                                                   &Observation::latitudeMinutes,
                                                   &Observation::hauteurOeil,
                                                   &Observation::collimation,
                                                   &Observation::lectureMinutes,
                                                   &Observation::lectureDegres,
                                                   &Observation::lectureFraction};
  std::mt19937 alea(19);
  const auto sort = [&](std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(alea); };
  for (int i = 0; i < Nombre() / 2; ++i) {
    Observation o = AuHasard(alea, i);
    for (std::size_t fois = 0; fois <= i % 3U; ++fois) {
      o.*kChamps[sort(std::size(kChamps))] = kTextes[sort(std::size(kTextes))];
    }
    const FicheControle fiche = ControleVisee(o, {10, 20, 30, 40}, essais::Table());
    ASSERT_TRUE(EstNombre(fiche)) << i;
    ASSERT_EQ(fiche.actuel.has_value(), !fiche.refus.has_value()) << i;
  }
}

TEST(EveryCheck, HasPartsThatAreTogetherTheWholeDifference) {
  std::mt19937 alea(20);
  int jugees = 0;
  for (int i = 0; i < Nombre(); ++i) {
    const Dite dite = essais::Reduis(AuHasard(alea, i));
    const double hauteur = std::fabs(dite.resultat.Hc);
    if (hauteur > 89) {
      continue; // the told theories lose their digits in the zenith
    }
    try {
      const ViseeTypee typee = LitVisee(dite.observation, {});
      const RouteActuelle route = SuitRoute(typee, 0);
      const EtapesDites etapes = RefaitEtapes(dite.observation, typee, essais::Table());
      double somme = 0;
      for (const PartCause &part : PartsDesCauses(typee, route, etapes, essais::Table(), 0)) {
        somme += part.minutes;
      }
      ASSERT_NEAR(somme, route.intercept - dite.resultat.intercept, 0.1)
          << i << " body " << static_cast<int>(dite.observation.corps) << " Hc " << dite.resultat.Hc;
      ++jugees;
    } catch (const Refus &) {
      // No figure of today, no parts.
    }
  }
  EXPECT_GT(jugees, Nombre() * 0.95);
}

TEST(EveryCheck, LeavesOfItsDifferenceWhatTheNamedCausesDoNotExplain) {
  std::mt19937 alea(21);
  for (int i = 0; i < Nombre() / 10; ++i) {
    const FicheControle fiche = essais::Controle(AuHasard(alea, i));
    double reste = fiche.ecart;
    double avant = 1E9;
    for (const PartCause &part : fiche.causes) {
      reste -= part.minutes;
      if (part.cause != Cause::Horizon) {
        ASSERT_GT(std::fabs(part.minutes), 0.3) << i;
        ASSERT_LE(std::fabs(part.minutes), avant) << "the largest first " << i;
        avant = std::fabs(part.minutes);
      }
    }
    ASSERT_NEAR(fiche.inexplique, reste, 1E-6 + std::fabs(fiche.ecart) * 1E-12) << i;
  }
}

/// A check as text, to its last bit.
std::string EnTexte(const FicheControle &fiche) {
  std::string texte;
  const auto ajoute = [&](double x) { texte.append(reinterpret_cast<const char *>(&x), sizeof x); };
  ajoute(fiche.ecart);
  ajoute(fiche.inexplique);
  if (fiche.actuel) {
    ajoute(fiche.actuel->Ho);
    ajoute(fiche.actuel->Hc);
    ajoute(fiche.actuel->azimut);
  }
  for (const PartCause &part : fiche.causes) {
    ajoute(part.minutes);
  }
  for (const Glissade &glissade : fiche.glissades) {
    ajoute(glissade.intercept);
  }
  for (const LigneControle &ligne : fiche.lignes) {
    ajoute(ligne.dit.value_or(-1));
    ajoute(ligne.actuel.value_or(-1));
  }
  return texte;
}

TEST(EveryCheck, OfEightThreadsHasTheBitsOfOne) {
  std::mt19937 alea(22);
  std::vector<Dite> visees;
  for (int i = 0; i < 240; ++i) {
    visees.push_back(essais::Reduis(AuHasard(alea, i)));
  }
  const auto controle = [&] {
    std::string texte;
    for (const Dite &d : visees) {
      texte += EnTexte(ControleVisee(d.observation, d.resultat, essais::Table()));
    }
    return texte;
  };
  std::vector<std::future<std::string>> fils;
  for (int i = 0; i < 8; ++i) {
    fils.push_back(std::async(std::launch::async, controle));
  }
  const std::string seul = controle();
  for (auto &fil : fils) {
    EXPECT_EQ(fil.get(), seul);
  }
}

TEST(EveryCheck, OfAFigureBeyondWhatANumberHoldsLeavesItOut) {
  for (std::string Observation::*champ :
       {&Observation::heure, &Observation::minute, &Observation::seconde, &Observation::latitudeDegres,
        &Observation::longitudeMinutes, &Observation::lectureDegres, &Observation::hauteurOeil,
        &Observation::collimation}) {
    for (const char *trop : {"1E308", "-9E307", "1E4333"}) {
      for (const Corps corps : {Corps::Soleil, Corps::Lune, Corps::Planetes, Corps::Etoiles}) {
        essais::Visee v;
        v.corps = corps;
        v.rang = 3;
        Observation o = essais::Champs(v, 40);
        o.*champ = trop;
        const FicheControle fiche = ControleVisee(o, {10, 20, 30, 40}, essais::Table(), {});
        for (const LigneControle &ligne : fiche.lignes) {
          EXPECT_TRUE(std::isfinite(ligne.dit.value_or(0)) && std::isfinite(ligne.actuel.value_or(0)))
              << trop << " step " << static_cast<int>(ligne.etape) << " body " << static_cast<int>(corps);
        }
      }
    }
  }
}

} // namespace
} // namespace velmaris
