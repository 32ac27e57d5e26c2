#include "complements/controle/RouteActuelle.hpp"
#include "complements/papier/FicheCalcul.hpp"
#include "complements/papier/PageFiche.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <random>
#include <string>

/// A sight worked by hand.
namespace velmaris {
namespace {

using testing::HasSubstr;

constexpr double kRadian = std::numbers::pi / 180;

/// A sight that shows its body where it is, the reading found by going the way up twice.
ViseeTypee ViseeVraie(const Astre &astre, const DateCivile &date, const Station &station, Contact contact,
                      bool artificiel) {
  ViseeTypee visee{.astre = astre, .date = date, .station = station, .lecture = {}};
  visee.lecture = {.lecture = 40, .collimation = -1.5, .hauteurOeil = station.hauteur};
  visee.lecture.contact = contact;
  visee.lecture.horizonArtificiel = artificiel;
  for (int i = 0; i < 8; ++i) {
    const RouteActuelle route = SuitRoute(visee, 0);
    const double manque = route.vue.hauteurCentre - route.etapes.observee;
    visee.lecture.lecture += artificiel ? 2 * manque : manque;
  }
  return visee;
}

const std::string &Valeur(const FicheCalcul &fiche, EtapeFiche etape) {
  const auto ligne = std::find_if(fiche.lignes.begin(), fiche.lignes.end(),
                                  [etape](const LigneCalcul &l) { return l.etape == etape; });
  static const std::string absente;
  return ligne == fiche.lignes.end() ? absente : ligne->valeur;
}

/// Minutes of arc of an angle as it is written: "123° 45.6' S", "-0° 03.2'", "+12.3'".
double Minutes(const std::string &texte) {
  const std::size_t degre = texte.find("°");
  double minutes = 0;
  double signe = 1;
  if (degre == std::string::npos) {
    return std::stod(texte);
  }
  const double degres = std::stod(texte.substr(0, degre));
  minutes = std::stod(texte.substr(degre + std::string("°").size()));
  signe = texte.front() == '-' || texte.back() == 'S' || texte.back() == 'W' ? -1 : 1;
  return signe * (std::fabs(degres) * 60 + minutes);
}

struct SortDeVisee {
  FicheCalcul fiche;
  ViseeTypee visee;
};

/// Sights of all kinds of bodies, at any time and place where the body is up.
class Fiches : public testing::Test {
protected:
  SortDeVisee Tire() {
    for (;;) {
      const Astre astre = std::array<Astre, 7>{
          {{GenreAstre::Soleil},
           {GenreAstre::Lune},
           {GenreAstre::Venus},
           {GenreAstre::Mars},
           {GenreAstre::Jupiter},
           {GenreAstre::Saturne},
           {GenreAstre::Etoile,
            Entier(1, 60)}}}.at(static_cast<std::size_t>(Entier(0, 6)));
      const DateCivile date{Entier(1990, 2050), Entier(1, 12), Entier(1, 28),
                            Entier(0, 23),      Entier(0, 59), static_cast<double>(Entier(0, 59))};
      const Station station{Entier(-3900, 3900) / 60.0, Entier(-10800, 10799) / 60.0, Entier(0, 120) / 10.0};
      const bool disque = astre.genre == GenreAstre::Soleil || astre.genre == GenreAstre::Lune;
      const Contact contact = disque ? static_cast<Contact>(Entier(0, 1) * 2) : Contact::Centre;
      ViseeTypee visee{.astre = astre, .date = date, .station = station, .lecture = {.lecture = 40}};
      const double haut = SuitRoute(visee, 0).vue.hauteurCentre;
      if (haut < 8 || haut > 80) {
        continue;
      }
      visee = ViseeVraie(astre, date, station, contact, haut < 55 && Entier(0, 9) == 0);
      visee.lecture.lecture += Entier(-300, 300) / 600.0; // an intercept of up to half a degree
      return {FaitFicheCalcul(visee, "Astre"), visee};
    }
  }
  int Entier(int de, int a) { return std::uniform_int_distribution<int>(de, a)(alea); }
  std::mt19937 alea{20261123};
};

TEST_F(Fiches, ASightWorkedByHandAgreesWithTheCheckToThreeTenths) {
  constexpr int kVisees = 3000;
  int loin = 0;
  double pire = 0;
  for (int i = 0; i < kVisees; ++i) {
    const SortDeVisee s = Tire();
    const double ecart = std::fabs(s.fiche.intercept - s.fiche.controle);
    pire = std::max(pire, ecart);
    loin += ecart > 0.3 ? 1 : 0;
    EXPECT_DOUBLE_EQ(s.fiche.controle, SuitRoute(s.visee, 0).intercept);
  }
  RecordProperty("pire", std::to_string(pire));
  EXPECT_LT(pire, 0.45);
  EXPECT_LE(loin, kVisees / 500) << "each figure is rounded to a tenth, so that seldom a few add up";
}

TEST_F(Fiches, EachSumIsThatOfTheFiguresWrittenAboveIt) {
  for (int i = 0; i < 500; ++i) {
    const SortDeVisee s = Tire();
    const auto minutes = [&](EtapeFiche etape) {
      const std::string &texte = Valeur(s.fiche, etape);
      return texte.empty() ? 0.0 : Minutes(texte);
    };
    double haut = minutes(EtapeFiche::Lecture) + minutes(EtapeFiche::Collimation);
    if (s.visee.lecture.horizonArtificiel) {
      EXPECT_NEAR(minutes(EtapeFiche::Moitie), haut / 2, 0.051);
      haut = minutes(EtapeFiche::Moitie);
    } else {
      haut += minutes(EtapeFiche::Depression);
      EXPECT_NEAR(minutes(EtapeFiche::Apparente), haut, 1e-6);
    }
    haut += minutes(EtapeFiche::Refraction) + minutes(EtapeFiche::Parallaxe) + minutes(EtapeFiche::DemiDiametre);
    EXPECT_NEAR(minutes(EtapeFiche::Observee), haut, 1e-6);
    const double gha = minutes(EtapeFiche::GhaHeure) + minutes(EtapeFiche::Increment) +
                       minutes(EtapeFiche::VariationGha) + minutes(EtapeFiche::AscensionVerse);
    EXPECT_NEAR(std::remainder(minutes(EtapeFiche::Gha) - gha, 21600.0), 0, 1e-6);
    const double local = minutes(EtapeFiche::Gha) + minutes(EtapeFiche::LongitudeCalcul);
    EXPECT_NEAR(std::remainder(minutes(EtapeFiche::AngleLocal) - local, 21600.0), 0, 1e-6);
    if (!Valeur(s.fiche, EtapeFiche::DeclinaisonHeure).empty()) {
      // The hand adds d to the figure that stands above it, whichever side that bears.
      const double cote = Valeur(s.fiche, EtapeFiche::DeclinaisonHeure).back() == 'S' ? -1 : 1;
      EXPECT_NEAR(minutes(EtapeFiche::Declinaison),
                  minutes(EtapeFiche::DeclinaisonHeure) + cote * minutes(EtapeFiche::VariationDeclinaison), 1e-6);
      const double part = (s.visee.date.minute + s.visee.date.seconde / 60) / 60;
      EXPECT_NEAR(minutes(EtapeFiche::VariationDeclinaison), minutes(EtapeFiche::DHoraire) * part, 0.051);
      EXPECT_NEAR(minutes(EtapeFiche::VariationGha), minutes(EtapeFiche::VHoraire) * part, 0.051);
    }
    const double produits =
        std::stod(Valeur(s.fiche, EtapeFiche::ProduitSinus)) + std::stod(Valeur(s.fiche, EtapeFiche::ProduitCosinus));
    EXPECT_NEAR(std::stod(Valeur(s.fiche, EtapeFiche::SinusHauteur)), produits, 1e-9);
    EXPECT_NEAR(std::fabs(s.fiche.intercept),
                std::fabs(minutes(EtapeFiche::ObserveeEncore) - minutes(EtapeFiche::Calculee)), 0.051);
  }
}

TEST_F(Fiches, HeightAndAzimuthAreThoseOfTheWrittenHourAngleAndDeclination) {
  for (int i = 0; i < 500; ++i) {
    const SortDeVisee s = Tire();
    const double local = Minutes(Valeur(s.fiche, EtapeFiche::AngleLocal)) / 60 * kRadian;
    const double declinaison = Minutes(Valeur(s.fiche, EtapeFiche::Declinaison)) / 60 * kRadian;
    const double latitude = Minutes(Valeur(s.fiche, EtapeFiche::Latitude)) / 60 * kRadian;
    const double hauteur = std::asin(std::sin(latitude) * std::sin(declinaison) +
                                     std::cos(latitude) * std::cos(declinaison) * std::cos(local));
    EXPECT_NEAR(s.fiche.calculee, hauteur / kRadian, 0.1 / 60);
    const double azimut = std::atan2(-std::sin(local) * std::cos(declinaison),
                                     std::sin(declinaison) * std::cos(latitude) -
                                         std::cos(declinaison) * std::sin(latitude) * std::cos(local));
    EXPECT_NEAR(std::remainder(s.fiche.azimut - azimut / kRadian, 360.0), 0, 0.7);
  }
}

TEST(FicheCalcul, AStarGoesByAriesAndOthersByTheirOwnHourAngle) {
  const DateCivile date{2026, 6, 21, 4, 30, 15};
  const Station station{47.5, -5, 2.5};
  const FicheCalcul etoile =
      FaitFicheCalcul(ViseeVraie({GenreAstre::Etoile, 4}, date, station, Contact::Centre, false), "Étoile");
  EXPECT_NE(Valeur(etoile, EtapeFiche::AscensionVerse), "");
  EXPECT_EQ(Valeur(etoile, EtapeFiche::VariationGha), "");
  EXPECT_EQ(Valeur(etoile, EtapeFiche::DemiDiametre), "");
  const FicheCalcul lune =
      FaitFicheCalcul(ViseeVraie({GenreAstre::Lune}, date, station, Contact::Superieur, false), "Lune");
  EXPECT_EQ(Valeur(lune, EtapeFiche::AscensionVerse), "");
  EXPECT_EQ(Valeur(lune, EtapeFiche::DemiDiametre).front(), '-') << "an upper limb";
  EXPECT_GT(Minutes(Valeur(lune, EtapeFiche::Parallaxe)), 5);
}

TEST(FicheCalcul, AnArtificialHorizonHasNoDipAndHalvesTheReading) {
  const FicheCalcul fiche = FaitFicheCalcul(
      ViseeVraie({GenreAstre::Soleil}, {2026, 3, 20, 13, 0, 0}, {20, -5, 3}, Contact::Inferieur, true), "Soleil");
  EXPECT_EQ(Valeur(fiche, EtapeFiche::Depression), "");
  EXPECT_EQ(Valeur(fiche, EtapeFiche::Oeil), "");
  EXPECT_NE(Valeur(fiche, EtapeFiche::Moitie), "");
}

TEST(FicheCalcul, AnHourThatCrossesMidnightOrTheYearIsOneHour) {
  const ViseeTypee visee =
      ViseeVraie({GenreAstre::Soleil}, {2026, 12, 31, 23, 59, 59}, {-20, 175, 2}, Contact::Inferieur, false);
  const FicheCalcul fiche = FaitFicheCalcul(visee, "Soleil");
  EXPECT_NEAR(fiche.intercept, fiche.controle, 0.3);
  EXPECT_NEAR(Minutes(Valeur(fiche, EtapeFiche::Increment)), 900, 0.5);
}

MotsFiche Mots() {
  MotsFiche mots;
  mots.titre = "Titre";
  mots.reponses = "Réponses";
  for (std::size_t i = 0; i < kEtapesCalcul; ++i) {
    mots.etapes.at(i) = "étape " + std::to_string(i);
  }
  mots.vers = "vers";
  mots.depuis = "depuis";
  return mots;
}

std::string TousMots(const Feuillet &page) {
  std::string tous;
  for (const ElementFeuillet &e : page.elements) {
    if (const auto *mot = std::get_if<MotFeuillet>(&e)) {
      tous += mot->texte + "\n";
    }
  }
  return tous;
}

TEST(PagesFiche, AFormWithBlanksHasTheSightAndNoResult) {
  const FicheCalcul fiche = FaitFicheCalcul(
      ViseeVraie({GenreAstre::Soleil}, {2026, 6, 21, 12, 5, 30}, {47.5, -5, 2.5}, Contact::Inferieur, false), "Soleil");
  const std::vector<Feuillet> pages = PagesFiche(fiche, true, FormatPapier::A4, Mots());
  ASSERT_EQ(pages.size(), 2U);
  const std::string blanche = TousMots(pages[0]);
  const std::string reponses = TousMots(pages[1]);
  for (const LigneCalcul &ligne : fiche.lignes) {
    EXPECT_THAT(reponses, HasSubstr(ligne.valeur));
    const bool donnee = std::any_of(fiche.lignes.begin(), fiche.lignes.end(), [&](const LigneCalcul &autre) {
      return autre.source == SourceFiche::Visee && autre.valeur == ligne.valeur; // as the longitude comes again
    });
    EXPECT_EQ(blanche.find("\n" + ligne.valeur + "\n") != std::string::npos, donnee) << ligne.valeur;
  }
  EXPECT_THAT(reponses, HasSubstr("Réponses"));
  EXPECT_EQ(PagesFiche(fiche, false, FormatPapier::A4, Mots()).size(), 1U);
}

TEST(PagesFiche, TheLongestFormFitsBothPapers) {
  ViseeTypee visee = ViseeVraie({GenreAstre::Lune}, {2026, 6, 21, 16, 5, 30}, {30, 5, 2.5}, Contact::Inferieur, false);
  const std::vector<ErreurArc> arc = {{0, 0.3}, {90, 0.5}};
  visee.lecture.erreursArc = arc;
  const FicheCalcul fiche = FaitFicheCalcul(visee, "Lune");
  for (const FormatPapier format : {FormatPapier::A4, FormatPapier::Lettre}) {
    const Feuillet page = PagesFiche(fiche, false, format, Mots()).front();
    for (const ElementFeuillet &e : page.elements) {
      if (const auto *mot = std::get_if<MotFeuillet>(&e)) {
        EXPECT_LE(mot->pied.y, page.hauteur - 500) << mot->texte;
        EXPECT_GE(mot->pied.y, 500) << mot->texte;
      }
    }
  }
}

} // namespace
} // namespace velmaris
