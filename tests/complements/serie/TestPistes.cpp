#include "OutilsSerie.hpp"

#include <gmock/gmock.h>

#include <cmath>

/// Runs whose slope or height isn't the sky's: planted faults are told.
namespace velmaris {
namespace {

using essais::Livre;
using essais::Sort;

bool Dit(const FicheSerie &fiche, AvisSerie avis) {
  return std::find(fiche.avis.begin(), fiche.avis.end(), avis) != fiche.avis.end();
}

/// Twelve clean readings over five minutes.
Livre Serie(const BaseLectures &base) {
  Livre livre;
  livre.base = base;
  for (int i = 0; i < 12; ++i) {
    livre.lectures.push_back(essais::LectureVraie(base, PlusTard(base.heureLieu, 27 * i - 150)));
  }
  return livre;
}

/// Whether an explanation is among the first.
bool ParmiPremieres(const FicheSerie &fiche, std::size_t combien, const auto &juge) {
  const std::size_t n = std::min(combien, fiche.pistes.size());
  return std::any_of(fiche.pistes.begin(), fiche.pistes.begin() + static_cast<std::ptrdiff_t>(n), juge);
}

TEST(RunSlope, ABodyTakenForAnotherIsNamed) {
  std::mt19937_64 alea(2020);
  int essayes = 0;
  int nommes = 0;
  while (essayes < 60) {
    BaseLectures base = essais::BaseAuHasard(alea, 60);
    base.corrections.contact = Contact::Centre;
    essais::ChoisitAstre(alea, base, 15, 70);
    BaseLectures autre = base;
    autre.astre = {GenreAstre::Etoile, 1 + static_cast<int>(alea() % 60)};
    const auto pente = [&](const BaseLectures &b) {
      return (essais::HauteurVraie(b, PlusTard(b.heureLieu, 30)) - essais::HauteurVraie(b, b.heureLieu)) * 120;
    };
    const double ecart =
        std::fabs(essais::HauteurVraie(autre, base.heureLieu) - essais::HauteurVraie(base, base.heureLieu));
    const bool permise = base.astre.genre != GenreAstre::Etoile || base.astre.rang <= 156;
    if (autre.astre == base.astre || !permise || ecart > 5 || std::fabs(pente(autre) - pente(base)) < 3) {
      continue;
    }
    Livre livre = Serie(base);
    livre.base.astre = autre.astre;
    const FicheSerie fiche = ReduitSerie(livre.base, livre.lectures);
    EXPECT_TRUE(Dit(fiche, AvisSerie::PenteFausse));
    ++essayes;
    nommes += ParmiPremieres(
        fiche, 3, [&](const Piste &p) { return p.genre == GenrePiste::AutreAstre && p.astre == base.astre; });
  }
  EXPECT_GE(nommes, 55) << "of " << essayes;
}

TEST(RunSlope, AnHourThatIsOffIsTold) {
  std::mt19937_64 alea(2021);
  int trouvees = 0;
  for (int i = 0; i < 60; ++i) {
    BaseLectures base = essais::BaseAuHasard(alea, 55);
    essais::ChoisitAstre(alea, base, 15, 70);
    Livre livre = Serie(base);
    const int heures = i % 3 == 0 ? 12 : i % 3 == 1 ? 1 : -2;
    for (LectureSerie &l : livre.lectures) {
      l.utc = PlusTard(l.utc, heures * 3600);
    }
    // The ship's reckoning goes by the same clock.
    livre.base.heureLieu = PlusTard(base.heureLieu, heures * 3600);
    for (Jambe &jambe : livre.base.route.jambes) {
      jambe.depuis = livre.base.heureLieu;
    }
    const FicheSerie fiche = ReduitSerie(livre.base, livre.lectures);
    EXPECT_TRUE(Dit(fiche, AvisSerie::PenteFausse) || Dit(fiche, AvisSerie::HauteurLoin) ||
                std::fabs(fiche.decalage) < 60);
    trouvees += ParmiPremieres(fiche, 8, [&](const Piste &p) {
      return p.genre == GenrePiste::Heure && p.heures == -heures && std::fabs(p.ecartHauteur) < 1 &&
             std::fabs(p.ecartPente) < 0.02;
    });
  }
  EXPECT_GE(trouvees, 56);
}

TEST(RunSlope, ASignOfThePositionIsTold) {
  std::mt19937_64 alea(2022);
  int trouvees = 0;
  for (int i = 0; i < 60; ++i) {
    BaseLectures base = essais::BaseAuHasard(alea, 60);
    base.lieu.latitude = std::copysign(std::max(std::fabs(base.lieu.latitude), 15.0), base.lieu.latitude);
    base.lieu.longitude = std::copysign(std::clamp(std::fabs(base.lieu.longitude), 15.0, 165.0), base.lieu.longitude);
    essais::ChoisitAstre(alea, base, 15, 70);
    Livre livre = Serie(base);
    const GenrePiste genre = i % 3 == 0   ? GenrePiste::CoteLatitude
                             : i % 3 == 1 ? GenrePiste::CoteLongitude
                                          : GenrePiste::DeuxCotes;
    livre.base.lieu.latitude *= genre == GenrePiste::CoteLongitude ? 1 : -1;
    livre.base.lieu.longitude *= genre == GenrePiste::CoteLatitude ? 1 : -1;
    const FicheSerie fiche = ReduitSerie(livre.base, livre.lectures);
    trouvees += ParmiPremieres(fiche, 8, [&](const Piste &p) { return p.genre == genre; });
  }
  EXPECT_GE(trouvees, 56);
}

TEST(RunSlope, OfARunThatFitsNothingElseIsProposed) {
  std::mt19937_64 alea(2023);
  for (int i = 0; i < 20; ++i) {
    BaseLectures base = essais::BaseAuHasard(alea, 60);
    essais::ChoisitAstre(alea, base, 15, 70);
    const Livre livre = Serie(base);
    EXPECT_TRUE(ReduitSerie(livre.base, livre.lectures).pistes.empty());
  }
}

} // namespace
} // namespace velmaris
