#include "OutilsReduit.hpp"
#include "foundations/Fichiers.hpp"
#include "lines/FichierLoP.hpp"
#include "sights/DroiteSOL.hpp"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <gmock/gmock.h>
#include <set>

namespace velmaris {
namespace {

namespace fs = std::filesystem;
using nlohmann::ordered_json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

/// The text of a member's figure, as it stands in the output.
std::string TexteFigure(const std::string &ligne, const std::string &cle) {
  const std::size_t debut = ligne.find("\"" + cle + "\":") + cle.size() + 3;
  return ligne.substr(debut, ligne.find_first_of(",}", debut) - debut);
}

// ---------------------------------------------------------------- reduit: the object

TEST_F(Reduit, AReducedSightTellsItsMembersInOrder) {
  const std::string fichier = EcritVisee("a.LoP", LignesSoleil());
  const ordered_json o = ReduitUn(fichier);
  EXPECT_THAT(Cles(o), ElementsAre("fichier", "corps", "nom", "reduit", "ho", "hc", "azimut", "intercept",
                                   "affiche_intercept", "affiche_azimut", "infobulle", "details"));
  EXPECT_EQ(o["fichier"], fichier);
  EXPECT_EQ(o["corps"], 0);
  EXPECT_EQ(o["nom"], "Soleil");
  EXPECT_EQ(o["reduit"], true);
  EXPECT_THAT(o["details"], SizeIs(8));
  EXPECT_THAT(o["infobulle"].get<std::string>(), StartsWith("He =  "));
}

TEST_F(Reduit, TheFiguresAreThoseOfTheReduction) {
  const std::string fichier = EcritVisee("a.LoP", LignesSoleil());
  Observation observation;
  ChargeLoP(fichier, observation);
  ValeursVisee valeurs;
  valeurs.HeureDecimale = HeureDesChamps(observation);
  LitEstime(observation, valeurs);
  AffichageDroite affichage;
  const ReductionSoleil r = Calcul_DroiteSOL(observation, valeurs, affichage, {});
  const ordered_json o = ReduitUn(fichier);
  EXPECT_EQ(o["ho"].get<float>(), r.lue.Ho);
  EXPECT_EQ(o["hc"].get<double>(), r.Hc);
  EXPECT_EQ(o["azimut"].get<float>(), valeurs.Azimut);
  EXPECT_EQ(o["intercept"].get<float>(), valeurs.Intercept);
  EXPECT_EQ(o["affiche_intercept"], affichage.intercept);
  EXPECT_EQ(o["affiche_azimut"], affichage.azimut);
  EXPECT_EQ(o["details"].get<std::vector<std::string>>(),
            std::vector<std::string>(affichage.details.begin(), affichage.details.end()));
}

TEST_F(Reduit, ThirtyTwoBitFiguresReadBackAndNoShorterTextDoes) {
  for (int minute = 0; minute < 60; minute += 7) {
    auto lignes = LignesSoleil();
    lignes[1] = std::to_string(minute);
    const Passage p = Lance({"reduit", EcritVisee("a.LoP", lignes)});
    for (const char *cle : {"ho", "azimut", "intercept"}) {
      const std::string texte = TexteFigure(p.sortie, cle);
      float valeur = 0.0F;
      const auto lu = std::from_chars(texte.data(), texte.data() + texte.size(), valeur);
      ASSERT_EQ(lu.ptr, texte.data() + texte.size()) << texte;
      std::size_t chiffres = 0;
      for (const char c : texte) {
        chiffres += c >= '0' && c <= '9' ? 1U : 0U;
      }
      EXPECT_LE(chiffres, 10U) << cle << ' ' << texte;
      for (int precision = 1; precision < static_cast<int>(chiffres); ++precision) {
        std::array<char, 64> tampon{};
        const auto fin = std::to_chars(tampon.data(), tampon.data() + tampon.size(), static_cast<double>(valeur),
                                       std::chars_format::general, precision);
        const std::string court(tampon.data(), fin.ptr);
        if (court.size() < texte.size()) {
          EXPECT_NE(std::strtof(court.c_str(), nullptr), valeur) << cle << ' ' << texte << " could be " << court;
        }
      }
    }
  }
}

TEST_F(Reduit, FilesAreReducedInTheOrderGiven) {
  const std::string a = EcritVisee("a.LoP", LignesSoleil());
  const std::string b = EcritVisee("b b.LoP", LignesSoleil());
  const Passage p = Lance({"reduit", "--langue", "aucune", b, a, b});
  EXPECT_EQ(p.etat, 0);
  const auto objets = Objets(p.sortie);
  ASSERT_THAT(objets, SizeIs(3));
  EXPECT_EQ(objets[0]["fichier"], b);
  EXPECT_EQ(objets[1]["fichier"], a);
  EXPECT_EQ(objets[2]["fichier"], b);
}

TEST_F(Reduit, NothingOfASightReachesTheNext) {
  const std::string entier = EcritVisee("a.LoP", LignesSoleil());
  auto artificiel = LignesSoleil();
  artificiel[18] = "ARTI";
  artificiel[19] = " 2 ";
  const std::string autre = EcritVisee("b.LoP", artificiel);
  const std::string court = Ecrit("c.LoP", Assemble(LignesSoleil(), "\r\n").substr(0, 61));
  const auto seul = Objets(Lance({"reduit", "--langue", "aucune", court}).sortie);
  const auto suite = Objets(Lance({"reduit", "--langue", "aucune", entier, autre, court}).sortie);
  ASSERT_THAT(suite, SizeIs(3));
  EXPECT_EQ(seul.at(0), suite[2]);
}

TEST_F(Reduit, AReadingOfZeroIsNotReduced) {
  auto lignes = LignesSoleil();
  lignes[12] = lignes[13] = lignes[16] = "00";
  const ordered_json o = ReduitUn(EcritVisee("zero.LoP", lignes));
  EXPECT_THAT(Cles(o), ElementsAre("fichier", "corps", "nom", "reduit"));
  EXPECT_EQ(o["reduit"], false);
  EXPECT_EQ(o["corps"], 0);
}

TEST_F(Reduit, AFractionOfOneDigitIsTakenAsItStands) {
  auto lignes = LignesSoleil();
  lignes[16] = "5";
  lignes[20] = "1";
  const double cinq = ReduitUn(EcritVisee("a.LoP", lignes))["ho"].get<double>();
  lignes[16] = "05";
  EXPECT_EQ(cinq, ReduitUn(EcritVisee("a.LoP", lignes))["ho"].get<double>());
}

TEST_F(Reduit, EveryBodyIsReducedUnderItsNumberAndName) {
  constexpr std::array<const char *, 3> kNoms = {"Lune", "Mars", "Achenar"};
  for (int corps = 1; corps <= 3; ++corps) {
    auto lignes = LignesSoleil();
    lignes[17] = " " + std::to_string(corps) + " ";
    lignes.push_back(" 1 ");
    const ordered_json o = ReduitUn(EcritVisee("a.LoP", lignes));
    EXPECT_EQ(o["corps"], corps);
    EXPECT_EQ(o["nom"], kNoms.at(static_cast<std::size_t>(corps) - 1));
    EXPECT_EQ(o["reduit"], true);
    EXPECT_NEAR(o["intercept"].get<double>(), (o["ho"].get<double>() - o["hc"].get<double>()) * 60, 1E-3);
  }
}

TEST_F(Reduit, AStarOrAPlanetThatIsNotChosenIsAnInvalidArgument) {
  for (const char *corps : {" 2 ", " 3 "}) {
    auto lignes = LignesSoleil();
    lignes[17] = corps;
    lignes.push_back("-1 ");
    AttendErreur(EcritVisee("a.LoP", lignes), 5);
  }
}

TEST_F(Reduit, AnEmptyEyeHeightFailsForAStarAndNotForTheMoon) {
  auto lignes = LignesSoleil();
  lignes[10] = "";
  lignes[17] = " 3 ";
  lignes.push_back(" 1 ");
  AttendErreur(EcritVisee("a.LoP", lignes), 13);
  lignes[17] = " 1 ";
  EXPECT_EQ(ReduitUn(EcritVisee("b.LoP", lignes))["reduit"], true);
}

TEST_F(Reduit, ABodyThatDoesNotExistLeavesTheSun) {
  auto lignes = LignesSoleil();
  lignes[17] = " 7 ";
  EXPECT_EQ(ReduitUn(EcritVisee("a.LoP", lignes))["corps"], 0);
}

// ---------------------------------------------------------------- reduit: languages

/// A copy of the program in a folder of its own, with language files beside it.
class ReduitLangue : public Reduit {
protected:
  void SetUp() override {
    fs::create_directory(dossier_ / "bin");
    fs::copy_file(VELMARIS_CALCUL, dossier_ / "bin/velmaris-calcul");
    programme_ = (dossier_ / "bin/velmaris-calcul").string();
    visee_ = EcritVisee("a.LoP", LignesSoleil());
  }
  std::string Detail(const std::vector<std::string> &langue, std::size_t rang) const {
    std::vector<std::string> arguments{"reduit"};
    arguments.insert(arguments.end(), langue.begin(), langue.end());
    arguments.push_back(visee_);
    const Passage p = Lance(arguments, programme_);
    EXPECT_EQ(p.etat, 0);
    return Objets(p.sortie).at(0)["details"].at(rang).get<std::string>();
  }
  std::string programme_;
  std::string visee_;
};

TEST_F(ReduitLangue, TextsComeFromTheFileBesideTheProgram) {
  Ecrit("bin/FR.txt", "MSG\\avant\\14\r\nForm=Donn\xE9"
                      "es\r\nMSG\\D\xE9pression : \\14\r\nMSG\\hors\\101\r\n"
                      "MSG\\moins\\-1\r\nMSG\\sans\r\nLabel1\\x\\\\\\\r\nForm=Ciel\r\nMSG\\ciel\\14\r\n");
  Ecrit("bin/EN.txt", "Form=Données\nMSG\\Dip: \\14\n");
  EXPECT_THAT(Detail({}, 0), StartsWith("Dépression : 0"));
  EXPECT_THAT(Detail({"--langue", "fr"}, 0), StartsWith("Dépression : 0"));
  EXPECT_THAT(Detail({"--langue", "en"}, 0), StartsWith("Dip: 0"));
  EXPECT_THAT(Detail({"--langue", "aucune"}, 0), StartsWith("0"));
  EXPECT_THAT(Detail({"--langue=en"}, 0), StartsWith("Dip: 0"));
}

TEST_F(ReduitLangue, AMissingOrUnreadableLanguageFileLeavesTheFigures) {
  const std::string figure = Detail({"--langue", "aucune"}, 1);
  EXPECT_THAT(Detail({"--langue", "en"}, 1), testing::EndsWith(figure));
  fs::create_directory(dossier_ / "bin/FR.txt");
  EXPECT_THAT(Detail({}, 1), testing::EndsWith(figure));
}

TEST_F(ReduitLangue, TheProgramsOwnFolderIsFoundThroughALink) {
  Ecrit("bin/FR.txt", "Form=Données\nMSG\\Ici \\14\n");
  fs::create_symlink(programme_, dossier_ / "lien");
  const Passage p = Lance({"reduit", visee_}, (dossier_ / "lien").string());
  EXPECT_THAT(p.sortie, HasSubstr("\"Ici 0"));
}

// ---------------------------------------------------------------- the sample sights

std::vector<fs::path> Exemples() {
  std::vector<fs::path> fichiers;
  for (const auto &entree : fs::directory_iterator(fs::path(VELMARIS_DONNEES) / "exemples")) {
    if (entree.path().extension() == ".LoP") {
      fichiers.push_back(entree.path());
    }
  }
  return fichiers;
}

TEST_F(Reduit, TheSampleSightsGiveInterceptsOfAFewMiles) {
  std::set<std::string> vus;
  for (const fs::path &fichier : Exemples()) {
    const ordered_json o = ReduitUn(fichier.string());
    const double intercept = std::fabs(o["intercept"].get<double>());
    EXPECT_GT(intercept, 0.5) << fichier;
    EXPECT_LT(intercept, 15.0) << fichier;
    Observation observation;
    ChargeLoP(fichier, observation);
    EXPECT_EQ(fichier.filename(), NomProposeLoP(observation));
    vus.insert(observation.sud ? "sud" : "nord");
    vus.insert(observation.est ? "est" : "ouest");
    vus.insert(observation.horizon == Horizon::Naturel ? "naturel" : "artificiel");
    vus.insert(observation.bord == Bord::Superieur ? "haut" : observation.bord == Bord::Inferieur ? "bas" : "centre");
    vus.insert(observation.fraction == Fraction::Secondes ? "secondes" : "centiemes");
    const double azimut = o["azimut"].get<double>();
    vus.insert(std::fabs(azimut - 180) < 1.0 && azimut != 180.0 ? "meridien" : "");
    vus.insert(LongitudeEstimee(observation) > 179 || LongitudeEstimee(observation) < -179 ? "antimeridien" : "");
  }
  EXPECT_GE(Exemples().size(), 8U);
  for (const char *cas : {"sud", "nord", "est", "ouest", "naturel", "artificiel", "haut", "bas", "centre", "secondes",
                          "centiemes", "meridien", "antimeridien"}) {
    EXPECT_TRUE(vus.contains(cas)) << cas;
  }
}

TEST_F(Reduit, TheSampleSightsAreWrittenAsTheProgramWritesThem) {
  for (const fs::path &fichier : Exemples()) {
    Observation observation;
    ChargeLoP(fichier, observation);
    EXPECT_EQ(LitFichier(fichier), EcritLoP(observation)) << fichier;
  }
}

} // namespace
} // namespace velmaris
