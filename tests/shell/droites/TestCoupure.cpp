#include "tests/shell/droites/OutilsDroites.hpp"

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace velmaris::essais {
namespace {

constexpr int kCoupures = 200;
constexpr int kLigne = 2;

using Cles = std::map<std::string, std::string>;

/// Two sights of a line that differ in every field. A star and a planet also write a number of their own, which the
/// other one leaves.
Observation Singuliere(bool seconde) {
  const std::string s = seconde ? "2" : "1";
  Observation o;
  o.jour = "1" + s;
  o.mois = "0" + s;
  o.annee = "200" + s;
  o.heure = "0" + s;
  o.minute = "3" + s;
  o.seconde = "4" + s;
  o.longitudeDegres = "10" + s;
  o.longitudeMinutes = "2" + s;
  o.latitudeDegres = "6" + s;
  o.latitudeMinutes = "5" + s;
  o.hauteurOeil = s + ",5";
  o.collimation = "-" + s + ",0";
  o.lectureMinutes = "1" + s;
  o.lectureDegres = "4" + s;
  o.lectureFraction = "3" + s;
  o.sud = seconde;
  o.est = !seconde;
  o.fraction = seconde ? Fraction::Centiemes : Fraction::Secondes;
  o.bord = seconde ? Bord::Superieur : Bord::Centre;
  o.horizon = seconde ? Horizon::Artificiel : Horizon::Naturel;
  o.corps = seconde ? Corps::Etoiles : Corps::Planetes;
  o.planete = 1;
  o.etoile = 40;
  return o;
}

ValeursVisee Resultat(bool seconde) {
  ValeursVisee v;
  v.Azimut = seconde ? 200.25F : 100.5F;
  v.Intercept = seconde ? -2.25F : 1.5F;
  return v;
}

const char *Nom(bool seconde) { return seconde ? "Sirius" : "Mars"; }

/// Puts a sight into the panel and its result beside it.
void Prepare(Bureau &bureau, bool seconde) {
  Donnees &d = bureau.donnees;
  const Observation o = Singuliere(seconde);
  PoseChoix(bureau, d.Option7, static_cast<int>(o.corps));
  PoseRang(bureau, d.Combo6, o.etoile, kNombreEtoiles);
  PoseRang(bureau, d.Combo7, o.planete, kNombrePlanetes);
  PoseChoix(bureau, d.Option5, static_cast<int>(o.horizon));
  PoseChoix(bureau, d.Option6, static_cast<int>(o.bord));
  for (std::size_t i = 0; i < d.Option4.size(); ++i) {
    d.Option4[i].choisi = i == static_cast<std::size_t>(o.fraction);
  }
  PoseChamps(bureau, o);
  bureau.visee = Resultat(seconde);
  bureau.NomAstre = Nom(seconde);
}

void Enregistre(Bureau &bureau, int ligne, bool seconde) {
  Prepare(bureau, seconde);
  PoseMode(bureau, ModeDroite::Enregistre);
  Droite_Click(bureau, ligne);
}

/// What a line holds once one of the sights is stored in it.
Cles ClesDe(int ligne, bool seconde) {
  Cles cles;
  for (const CleValeur &c : ClesEnregistrees(ligne, Singuliere(seconde), Nom(seconde), Resultat(seconde))) {
    cles[c.cle] = c.valeur;
  }
  return cles;
}

enum class Restes : std::uint8_t { Vide, Premiere, Seconde, Melange };

Restes RestesDe(const Valeurs &valeurs, int ligne) {
  const std::array<Cles, 2> attendues = {ClesDe(ligne, false), ClesDe(ligne, true)};
  const auto tient = [&](const Cles &cles) {
    return std::all_of(cles.begin(), cles.end(), [&](const auto &c) {
      return valeurs.GetSetting(kApplication, kSection, c.first, "absent") == c.second;
    });
  };
  if (tient(attendues[0])) {
    return Restes::Premiere;
  }
  if (tient(attendues[1])) {
    return Restes::Seconde;
  }
  const bool vide = std::all_of(attendues.begin(), attendues.end(), [&](const Cles &cles) {
    return std::all_of(cles.begin(), cles.end(), [&](const auto &c) {
      return valeurs.GetSetting(kApplication, kSection, c.first, "absent") == "absent";
    });
  });
  return vide ? Restes::Vide : Restes::Melange;
}

/// A started program whose store is in memory until a child gives it the file.
class Coupure : public QuatreDroites {
protected:
  void SetUp() override {
    bureau.valeurs = std::make_unique<Valeurs>(std::filesystem::path());
    DemarreSansCarte();
  }

  void OuvreMagasin(const std::filesystem::path &fichier) {
    bureau.valeurs.reset();
    bureau.valeurs = std::make_unique<Valeurs>(fichier);
  }

  /// The shortest time of three in which a process opens a store and writes two lines: deaths are spread over twice
  /// that.
  useconds_t Duree() {
    using Temps = std::chrono::steady_clock;
    auto duree = Temps::duration::max();
    for (int n = 0; n < 3; ++n) {
      const auto debut = Temps::now();
      Attend(Lance([&] {
        OuvreMagasin(dossier / "mesure.sqlite");
        Enregistre(bureau, kLigne, false);
        Enregistre(bureau, kLigne, true);
        return 0;
      }));
      duree = std::min(duree, Temps::now() - debut);
    }
    return static_cast<useconds_t>(std::chrono::duration_cast<std::chrono::microseconds>(duree).count());
  }

  /// Runs in a process of its own, which ends with the result.
  template <class Travail> pid_t Lance(Travail &&travail) {
    const pid_t enfant = fork();
    if (enfant == 0) {
      _exit(travail());
    }
    return enfant;
  }

  /// @return the status that a process ended with, -1 when it was killed
  static int Attend(pid_t enfant) {
    int etat = 0;
    waitpid(enfant, &etat, 0);
    return WIFEXITED(etat) ? WEXITSTATUS(etat) : -1;
  }

  std::size_t FichiersAbimes() const {
    std::size_t nombre = 0;
    for (const auto &f : std::filesystem::directory_iterator(FichierMagasin().parent_path())) {
      nombre += f.path().filename().string().find(".abime") != std::string::npos ? 1U : 0U;
    }
    return nombre;
  }
};

TEST_F(Coupure, TheTwoSightsDifferInEveryKeyTheyShare) {
  const Cles premiere = ClesDe(kLigne, false);
  const Cles seconde = ClesDe(kLigne, true);
  EXPECT_EQ(premiere.size(), 25U);
  EXPECT_EQ(seconde.size(), 25U);
  std::size_t communes = 0;
  for (const auto &[cle, valeur] : premiere) {
    if (const auto autre = seconde.find(cle); autre != seconde.end()) {
      EXPECT_NE(autre->second, valeur) << cle;
      ++communes;
    }
  }
  EXPECT_EQ(communes, 24U) << "all but the planet's and the star's number";
}

TEST_F(Coupure, AStoredLineIsWhollyOneSightHoweverTheProgramDies) {
  std::mt19937 hasard(20260621);
  std::uniform_int_distribution<useconds_t> attente(0, 2 * Duree());
  std::map<Restes, int> vus;
  bool garde = false;
  for (int n = 0; n < kCoupures; ++n) {
    const pid_t enfant = Lance([&] {
      OuvreMagasin(FichierMagasin());
      for (bool seconde = n % 2 == 0;; seconde = !seconde) {
        Enregistre(bureau, kLigne, seconde);
      }
      return 0;
    });
    usleep(attente(hasard));
    kill(enfant, SIGKILL);
    ASSERT_EQ(Attend(enfant), -1) << "killed, not ended";
    const Valeurs valeurs(FichierMagasin());
    ASSERT_EQ(valeurs.etat(), EtatMagasin::Sain) << n;
    const Restes restes = RestesDe(valeurs, kLigne);
    ASSERT_NE(restes, Restes::Melange) << n;
    ASSERT_FALSE(garde && restes == Restes::Vide) << "what was kept is lost, " << n;
    garde = garde || restes != Restes::Vide;
    ++vus[restes];
  }
  EXPECT_GT(vus[Restes::Premiere], 10) << "both sights are met, so that a mixture could have been";
  EXPECT_GT(vus[Restes::Seconde], 10);
  EXPECT_EQ(FichiersAbimes(), 0U);
  EXPECT_EQ(Demande("PRAGMA integrity_check"), std::vector<std::string>{"ok"});
}

TEST_F(Coupure, AnErasureIsWholeOrNotAtAllHoweverTheProgramDies) {
  std::mt19937 hasard(20261221);
  std::uniform_int_distribution<useconds_t> attente(0, 2 * Duree());
  bureau.sansQuestion = true;
  {
    Valeurs valeurs(FichierMagasin());
    for (const auto &[cle, valeur] : ClesDe(kLigne, true)) {
      valeurs.SaveSetting(kApplication, kSection, cle, valeur);
    }
  }
  int effacees = 0;
  int gardees = 0;
  for (int n = 0; n < kCoupures / 4; ++n) {
    const pid_t enfant = Lance([&] {
      OuvreMagasin(FichierMagasin());
      for (;;) {
        PoseMode(bureau, ModeDroite::Efface);
        Droite_Click(bureau, kLigne);
        Enregistre(bureau, kLigne, true);
      }
      return 0;
    });
    usleep(attente(hasard));
    kill(enfant, SIGKILL);
    Attend(enfant);
    const Valeurs valeurs(FichierMagasin());
    ASSERT_EQ(valeurs.etat(), EtatMagasin::Sain);
    const bool effacee = valeurs.GetSetting(kApplication, kSection, "AS(2)").empty();
    for (const CleValeur &c : ClesEffacees(kLigne)) {
      const std::string attendue = effacee ? c.valeur : ClesDe(kLigne, true).at(c.cle);
      ASSERT_EQ(valeurs.GetSetting(kApplication, kSection, c.cle), attendue) << c.cle << " " << n;
    }
    ++(effacee ? effacees : gardees);
  }
  EXPECT_GT(effacees, 2);
  EXPECT_GT(gardees, 2);
}

/// One of two programs at work at once: keys of its own, and whole lines in two lines of its own.
int Travaille(Bureau &bureau, int programme) {
  for (int n = 0; n < 100; ++n) {
    EcritReglage(bureau, "p" + std::to_string(programme) + " " + std::to_string(n), std::to_string(n));
    if (n % 5 == 0) {
      const int rang = n / 5;
      Enregistre(bureau, 2 * programme + rang % 2, rang >= 10);
    }
  }
  AttendEcrit(*bureau.valeurs);
  return bureau.valeurs->etat() == EtatMagasin::Sain && !bureau.valeurs->enAttente() ? 0 : 1;
}

TEST_F(Coupure, TwoProgramsOnOneStoreKeepAllTheirKeysAndLines) {
  std::array<int, 2> depart{};
  ASSERT_EQ(pipe(depart.data()), 0);
  std::array<pid_t, 2> enfants{};
  for (int programme = 0; programme < 2; ++programme) {
    enfants.at(static_cast<std::size_t>(programme)) = Lance([&] {
      char signal = 0;
      if (read(depart[0], &signal, 1) != 1) { // both start at once, on a store that isn't there yet
        return 2;
      }
      OuvreMagasin(FichierMagasin());
      return Travaille(bureau, programme);
    });
  }
  ASSERT_EQ(write(depart[1], "dd", 2), 2);
  for (const pid_t enfant : enfants) {
    EXPECT_EQ(Attend(enfant), 0);
  }
  close(depart[0]);
  close(depart[1]);

  const Valeurs valeurs(FichierMagasin());
  EXPECT_EQ(valeurs.etat(), EtatMagasin::Sain);
  EXPECT_EQ(FichiersAbimes(), 0U);
  for (int n = 0; n < 100; ++n) {
    for (const char *prefixe : {"p0 ", "p1 "}) {
      const std::string cle = prefixe + std::to_string(n);
      EXPECT_EQ(valeurs.GetSetting(kApplication, kSection, cle), std::to_string(n)) << cle;
    }
  }
  for (int ligne = 0; ligne < kNombreDroites; ++ligne) {
    EXPECT_EQ(RestesDe(valeurs, ligne), Restes::Seconde) << "line " << ligne << " as it was stored last";
  }
}

} // namespace
} // namespace velmaris::essais
