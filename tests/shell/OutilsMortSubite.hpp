#pragma once

#include "tests/shell/droites/OutilsDroites.hpp"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <new>
#include <random>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

/// The program killed at any moment while it writes: what it had said to be stored is there whole, and it starts again
/// without a word. VELMARIS_COUPURES is the number of deaths of all kinds together.
namespace velmaris::essais {
namespace fs = std::filesystem;

inline constexpr int kGenres = 10;
inline constexpr int kLigne = 1;

inline int Coupures() {
  const char *voulues = std::getenv("VELMARIS_COUPURES");
  return std::max(1, (voulues == nullptr ? 60 : std::atoi(voulues)) / kGenres);
}

/// What the dying program has said, seen by both processes: that it is there, and the last state that is stored.
class Dit {
public:
  Dit()
      : page_(::mmap(nullptr, sizeof(Mots), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)),
        mots_(new (page_) Mots()) {}
  ~Dit() { ::munmap(page_, sizeof(Mots)); }
  Dit(const Dit &) = delete;
  Dit &operator=(const Dit &) = delete;
  Dit(Dit &&) = delete;
  Dit &operator=(Dit &&) = delete;
  void Note(int etat) { mots_->etat = etat; }
  int etat() const { return mots_->etat; }
  void NotePret(bool pret) { mots_->pret = pret; }
  bool pret() const { return mots_->pret; }

private:
  struct Mots {
    std::atomic<int> etat = 0;
    std::atomic<bool> pret = false;
  };
  void *page_;
  Mots *mots_;
};

/// A sight of which every text tells its number.
inline Observation Numerotee(int n) {
  const std::string s = std::to_string(n);
  Observation o;
  o.jour = "a" + s;
  o.mois = "b" + s;
  o.annee = "c" + s;
  o.heure = "d" + s;
  o.minute = "e" + s;
  o.seconde = "f" + s;
  o.longitudeDegres = "g" + s;
  o.longitudeMinutes = "h" + s;
  o.latitudeDegres = "i" + s;
  o.latitudeMinutes = "j" + s;
  o.hauteurOeil = "k" + s;
  o.collimation = "l" + s;
  o.lectureMinutes = "m" + s;
  o.lectureDegres = "n" + s;
  o.lectureFraction = std::to_string(10 + n % 90); // a field of two characters
  return o;
}

class MortSubite : public QuatreDroites {
protected:
  /// What a program does until it dies: stores state 1, 2, 3...
  using Ecrit = std::function<void(Bureau &, int)>;
  /// The state that stands, told by the last one said and the next: -1 when it is neither.
  using Lit = std::function<int(int)>;

  void SetUp() override {
    LanguesSeules();
    donnees_ = bureau.dossiers;
    fs::create_directories(donnees_.utilisateur);
  }

  /// A program in this very process, on the folder of them all.
  template <class Usage> void AvecProgramme(Usage &&usage) {
    Bureau programme;
    Branche(programme);
    programme.dossiers = donnees_;
    Donnees_Charge(programme, {});
    programme.donnees.Check2.valeur = 0;
    usage(programme);
  }

  /// Runs something in a process of its own and kills it after a while.
  /// @param duree  microseconds that it may live at most, once it has said that it is there
  template <class Travail> void Tue(useconds_t duree, Travail &&travail) {
    const pid_t enfant = fork();
    ASSERT_GE(enfant, 0);
    if (enfant == 0) {
      travail();
      ::pause();
    }
    while (!dit_.pret()) {
      usleep(50);
    }
    std::uniform_int_distribution<useconds_t> attente(0, duree);
    usleep(attente(hasard_));
    kill(enfant, SIGKILL);
    int etat = 0;
    ASSERT_EQ(waitpid(enfant, &etat, 0), enfant);
    ASSERT_TRUE(WIFSIGNALED(etat)) << "killed, not ended";
  }

  /// Microseconds that something takes: the shortest of three times.
  template <class Travail> static useconds_t Duree(Travail &&travail) {
    using Temps = std::chrono::steady_clock;
    auto duree = Temps::duration::max();
    for (int n = 0; n < 3; ++n) {
      const auto debut = Temps::now();
      travail();
      duree = std::min(duree, Temps::now() - debut);
    }
    return static_cast<useconds_t>(std::chrono::duration_cast<std::chrono::microseconds>(duree).count());
  }

  /// The program starts, tells nothing, and its store is sound.
  void AttendDepart() {
    boites.clear();
    AvecProgramme([&](Bureau &programme) {
      EXPECT_EQ(programme.valeurs->etat(), EtatMagasin::Sain);
      EXPECT_TRUE(boites.empty()) << boites[0].texte;
    });
    for (const auto &f : fs::directory_iterator(donnees_.utilisateur)) {
      EXPECT_EQ(f.path().filename().string().find(".abime"), std::string::npos) << f.path();
    }
  }

  /// What was set aside goes.
  void RetireAnciens() const {
    for (const auto &f : fs::directory_iterator(donnees_.utilisateur)) {
      if (f.path().filename().string().find(".ancien") != std::string::npos) {
        fs::remove(f.path());
      }
    }
  }

  /// Stores line number n, of which every text tells n.
  static void EnregistreLigne(Bureau &programme, int n) {
    PoseChamps(programme, Numerotee(n));
    programme.visee.Azimut = static_cast<float>(n % 360);
    programme.visee.Intercept = 1.5F;
    programme.NomAstre = "astre " + std::to_string(n);
    PoseMode(programme, ModeDroite::Enregistre);
    Droite_Click(programme, kLigne);
  }

  /// The number of the line that is stored: the one said or the next, -1 where neither is there whole.
  int LigneEntiere(int dit) const {
    const Valeurs valeurs(FichierMagasin());
    for (const int n : {dit, dit + 1}) {
      ValeursVisee v;
      v.Azimut = static_cast<float>(n % 360);
      v.Intercept = 1.5F;
      const auto attendues = ClesEnregistrees(kLigne, Numerotee(n), "astre " + std::to_string(n), v);
      if (std::all_of(attendues.begin(), attendues.end(), [&](const CleValeur &c) {
            return valeurs.GetSetting(kApplication, kSection, c.cle) == c.valeur;
          })) {
        return n;
      }
    }
    return -1;
  }

  /// Kills a program that stores one state after the other; each time the last one said stands, or the one under way.
  /// @param moindre  microseconds that storing takes at least, where it isn't asked for at any time
  void Coupe(const Ecrit &ecrit, const Lit &lit, useconds_t moindre = 0) {
    useconds_t duree = 0;
    AvecProgramme([&](Bureau &programme) { duree = std::max(moindre, Duree([&] { ecrit(programme, 1); })); });
    ASSERT_EQ(lit(1), 1) << "a state is told from others";
    int etat = 1;
    int enRoute = 0;
    for (int n = 0; n < Coupures(); ++n) {
      dit_.Note(etat);
      dit_.NotePret(false);
      Tue(8 * duree, [&] {
        AvecProgramme([&](Bureau &programme) {
          dit_.NotePret(true);
          for (int suivant = etat + 1;; ++suivant) {
            ecrit(programme, suivant);
            dit_.Note(suivant);
          }
        });
      });
      const int avant = etat;
      etat = lit(dit_.etat());
      ASSERT_TRUE(etat == dit_.etat() || etat == dit_.etat() + 1)
          << etat << " where " << dit_.etat() << " was said, " << n;
      enRoute += etat > avant ? 1 : 0;
      AttendDepart();
      ASSERT_FALSE(HasFailure());
    }
    EXPECT_GE(enRoute, Coupures() / 10) << "programs have died at work";
    RecordProperty("deaths", Coupures());
    RecordProperty("at_work", enRoute);
    RecordProperty("states", etat);
  }

  Dit dit_;
  Dossiers donnees_;
  std::mt19937 hasard_{20261121};
};

} // namespace velmaris::essais
