#include "OutilsReduit.hpp"

#include <algorithm>
#include <filesystem>
#include <sched.h>

/// "controle": saved sights checked against the sky of today, on all cores.
namespace velmaris {
namespace {

using nlohmann::ordered_json;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

/// Runs of "controle"; files as those of "reduit".
class CalculControle : public Reduit {
protected:
  static ordered_json ControleUn(const std::string &fichier, int etat = 0) {
    const Passage p = Lance({"controle", fichier});
    EXPECT_EQ(p.etat, etat) << p.sortie << p.erreurs;
    EXPECT_THAT(p.erreurs, IsEmpty());
    return Objets(p.sortie).at(0);
  }
};

std::vector<std::string> Mots(const ordered_json &o) { return o["avis"].get<std::vector<std::string>>(); }

/// All sample sights, by their names.
std::vector<std::string> Exemples() {
  std::vector<std::string> fichiers;
  for (const auto &entree : std::filesystem::directory_iterator(std::filesystem::path(VELMARIS_DONNEES) / "exemples")) {
    if (entree.path().extension() == ".LoP") {
      fichiers.push_back(entree.path().string());
    }
  }
  std::sort(fichiers.begin(), fichiers.end());
  return fichiers;
}

/// The lines of a star's sight.
std::vector<std::string> LignesEtoile(int rang) {
  auto lignes = LignesSoleil();
  lignes[17] = " 3 ";
  lignes.push_back(" " + std::to_string(rang) + " ");
  return lignes;
}

TEST_F(CalculControle, TellsToldAndTodaysFiguresSideBySide) {
  const std::string fichier = EcritVisee("a.LoP", LignesSoleil());
  const ordered_json o = ControleUn(fichier);
  EXPECT_THAT(Cles(o), ElementsAre("fichier", "corps", "nom", "dit", "actuel", "ecart", "avis"));
  EXPECT_THAT(Cles(o["dit"]), ElementsAre("ho", "hc", "azimut", "intercept"));
  EXPECT_THAT(Cles(o["actuel"]), ElementsAre("ho", "hc", "azimut", "intercept", "gha", "dec"));
  EXPECT_EQ(o["fichier"], fichier);
  EXPECT_EQ(o["corps"], 0);
  EXPECT_EQ(o["nom"], "Soleil");
  EXPECT_NEAR(o["ecart"].get<double>(), o["actuel"]["intercept"].get<double>() - o["dit"]["intercept"].get<double>(),
              1E-6);
  EXPECT_NEAR(o["actuel"]["intercept"].get<double>(),
              (o["actuel"]["ho"].get<double>() - o["actuel"]["hc"].get<double>()) * 60, 1E-9);
}

TEST_F(CalculControle, ToldFiguresAreThoseOfReduitToTheLastDigit) {
  for (const std::string &fichier : Exemples()) {
    const ordered_json controle = ControleUn(fichier);
    const ordered_json reduit = ReduitUn(fichier);
    for (const char *cle : {"ho", "hc", "azimut", "intercept"}) {
      EXPECT_EQ(controle["dit"][cle].dump(), reduit[cle].dump()) << fichier;
    }
    EXPECT_EQ(controle["nom"], reduit["nom"]);
    EXPECT_THAT(Mots(controle), Not(IsEmpty())) << fichier;
  }
}

TEST_F(CalculControle, GradesByAWordAndNamesEveryCauseThatHasOne) {
  const auto exemple = [](const char *nom) {
    return Mots(ControleUn(std::string(VELMARIS_DONNEES) + "/exemples/" + nom));
  };
  EXPECT_THAT(exemple("03MAI26 210540.LoP"), ElementsAre("accord"));
  EXPECT_THAT(exemple("21JUN26 092005.LoP"), ElementsAre("maniere"));
  EXPECT_THAT(exemple("08AVR26 055040.LoP"), ElementsAre("maniere", "refraction"));
  EXPECT_THAT(exemple("12JAN26 194852.LoP"), ElementsAre("accord", "depression"));
  EXPECT_THAT(exemple("28MAI26 081030.LoP"), ElementsAre("accord", "temps"));
  EXPECT_THAT(exemple("12AOU26 224530.LoP"), ElementsAre("artificiel")) << "over 1.5 miles there is no grade's word";
}

TEST_F(CalculControle, TheRowOfAStarTheHorizonAndASlipHaveTheirWords) {
  auto nuit = LignesSoleil();
  nuit[0] = "00"; // the hour
  EXPECT_THAT(Mots(ControleUn(EcritVisee("nuit.LoP", nuit))), Contains("horizon"));
  auto glisse = LignesSoleil();
  glisse[12] = "30"; // minutes of the reading: the ship stands on the estimated position
  EXPECT_THAT(Mots(ControleUn(EcritVisee("juste.LoP", glisse))), Not(Contains("glissade")));
  glisse[13] = "66"; // its degrees, one too many
  EXPECT_THAT(Mots(ControleUn(EcritVisee("glisse.LoP", glisse))), Contains("glissade"));
  // A row of the list, from 0, whose star stands 72 degrees away.
  std::vector<std::string> paon = LignesEtoile(0);
  bool trouve = false;
  for (int rang = 0; rang < 156 && !trouve; ++rang) {
    paon.back() = " " + std::to_string(rang) + " ";
    const ordered_json o = ControleUn(EcritVisee("paon.LoP", paon), rang == 66 ? 1 : 0);
    if (o["nom"] == "Peacock") {
      trouve = true;
      EXPECT_THAT(Mots(o), Contains("etoile"));
    }
  }
  EXPECT_TRUE(trouve);
}

TEST_F(CalculControle, WithoutAFigureOfTodayTheReasonStandsInTheObject) {
  auto lignes = LignesSoleil();
  lignes[0] = "60";
  const ordered_json heure = ControleUn(EcritVisee("heure.LoP", lignes), 1);
  EXPECT_THAT(Cles(heure), ElementsAre("fichier", "corps", "nom", "dit", "actuel", "ecart", "avis", "erreur"));
  EXPECT_TRUE(heure["actuel"].is_null());
  EXPECT_TRUE(heure["ecart"].is_null());
  EXPECT_THAT(Mots(heure), IsEmpty());
  EXPECT_EQ(heure["erreur"]["numero"], 13);
  EXPECT_THAT(heure["erreur"]["texte"].get<std::string>(), HasSubstr("heure"));
  EXPECT_TRUE(heure["dit"]["intercept"].is_number()) << "the told figure stays";
  lignes = LignesSoleil();
  lignes[3] = "31";
  lignes[4] = "02";
  EXPECT_EQ(ControleUn(EcritVisee("date.LoP", lignes), 1)["erreur"]["numero"], 13);
  const ordered_json nova = ControleUn(EcritVisee("nova.LoP", LignesEtoile(66)), 1);
  EXPECT_EQ(nova["nom"], "Galt");
  EXPECT_THAT(nova["erreur"]["texte"].get<std::string>(), HasSubstr("nova"));
}

TEST_F(CalculControle, AReadingOfZeroAndFilesThatFailAreToldAsByReduit) {
  const ordered_json vide = ControleUn(Ecrit("vide.LoP", ""));
  EXPECT_THAT(Cles(vide), ElementsAre("fichier", "corps", "nom", "reduit"));
  EXPECT_EQ(vide["reduit"], false);
  std::vector<std::string> trop(32, "1");
  const std::string grand = EcritVisee("grand.LoP", LignesSoleil());
  std::filesystem::resize_file(grand, (std::uintmax_t{64} << 20U) + 1);
  const std::string bonne = EcritVisee("a.LoP", LignesSoleil());
  const std::vector<std::string> mauvais{(dossier_ / "rien.LoP").string(), dossier_.string(), "",
                                         EcritVisee("32.LoP", trop), grand};
  for (const std::string &fichier : mauvais) {
    const Passage p = Lance({"controle", fichier, bonne});
    EXPECT_EQ(p.etat, 1) << fichier;
    EXPECT_THAT(p.erreurs, IsEmpty());
    const auto objets = Objets(p.sortie);
    ASSERT_THAT(objets, SizeIs(2));
    const Passage r = Lance({"reduit", fichier});
    EXPECT_EQ(objets[0].dump(), Objets(r.sortie).at(0).dump()) << fichier;
    EXPECT_TRUE(objets[1]["actuel"].is_object());
  }
}

TEST_F(CalculControle, Dut1TurnsTheEarthUnderTodaysSkyAlone) {
  const std::string fichier = EcritVisee("a.LoP", LignesSoleil());
  const ordered_json sans = ControleUn(fichier);
  const ordered_json avec = Objets(Lance({"controle", "--dut1", "-0.8", fichier}).sortie).at(0);
  EXPECT_NEAR(avec["actuel"]["gha"].get<double>() - sans["actuel"]["gha"].get<double>(), -0.8 / 240 * 366.24 / 365.24,
              1E-8)
      << "sidereal time gains on the Sun's by a part in 365";
  EXPECT_EQ(avec["dit"], sans["dit"]);
  EXPECT_EQ(Lance({"controle", "--dut1", "3600", fichier}).etat, 1);
  EXPECT_EQ(Lance({"controle", "--dut1", "un", fichier}).etat, 2);
  EXPECT_EQ(Lance({"controle"}).etat, 2);
}

/// The program, and what it starts, on one core for the life of the scope.
class UnCoeur {
public:
  UnCoeur() {
    sched_getaffinity(0, sizeof avant_, &avant_);
    cpu_set_t un;
    CPU_ZERO(&un);
    for (int i = 0; i < CPU_SETSIZE; ++i) {
      if (CPU_ISSET(i, &avant_)) {
        CPU_SET(i, &un);
        break;
      }
    }
    sched_setaffinity(0, sizeof un, &un);
  }
  ~UnCoeur() { sched_setaffinity(0, sizeof avant_, &avant_); }
  UnCoeur(const UnCoeur &) = delete;
  UnCoeur &operator=(const UnCoeur &) = delete;
  UnCoeur(UnCoeur &&) = delete;
  UnCoeur &operator=(UnCoeur &&) = delete;

private:
  cpu_set_t avant_{};
};

TEST_F(CalculControle, ABatchComesOutInTheOrderOfItsFilesAndAlikeOnOneCoreAndOnAll) {
  std::vector<std::string> arguments{"controle"};
  const std::vector<std::string> exemples = Exemples();
  for (int i = 0; i < 2200; ++i) { // more than are told at once
    arguments.push_back(i % 97 == 50 ? "rien" + std::to_string(i)
                                     : exemples[static_cast<std::size_t>(i * 7) % exemples.size()]);
  }
  const Passage tous = Lance(arguments);
  EXPECT_EQ(tous.etat, 1) << "files that aren't there";
  const auto objets = Objets(tous.sortie);
  ASSERT_THAT(objets, SizeIs(2200));
  for (std::size_t i = 0; i < objets.size(); ++i) {
    ASSERT_EQ(objets[i]["fichier"], arguments[i + 1]);
  }
  const UnCoeur un;
  EXPECT_TRUE(Lance(arguments).sortie == tous.sortie);
}

TEST_F(CalculControle, AFullDiskEndsItWithAWord) {
  const Environnement environnement(Variables{{"LANG", "C"}});
  std::vector<std::string> arguments{"controle"};
  arguments.insert(arguments.end(), 3000, EcritVisee("a.LoP", LignesSoleil()));
  const Passage p = Lance(arguments, VELMARIS_CALCUL, "/dev/full");
  EXPECT_EQ(p.etat, 1);
  EXPECT_EQ(p.erreurs, "velmaris-calcul: the output can't be written\n");
}

TEST_F(CalculControle, BinaryNoiseIsReadOrToldButNeverCrashes) {
  std::uint32_t graine = 4321;
  for (int essai = 0; essai < 20; ++essai) {
    std::string octets;
    for (int i = 0; i < 300; ++i) {
      graine = graine * 1664525U + 1013904223U;
      octets += static_cast<char>(graine >> 24U);
    }
    const Passage p = Lance({"controle", Ecrit("bruit.LoP", octets)});
    EXPECT_LE(p.etat, 1) << p.erreurs;
    EXPECT_THAT(Objets(p.sortie), SizeIs(1));
  }
}

} // namespace
} // namespace velmaris
