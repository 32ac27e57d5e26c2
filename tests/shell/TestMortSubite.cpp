#include "tests/shell/droites/OutilsDroites.hpp"

#include "complements/registre/PointsGardes.hpp"
#include "foundations/Fichiers.hpp"
#include "shell/Reprise.hpp"
#include "shell/bureau/Sauvegarde.hpp"
#include "shell/carte/FichierObjets.hpp"
#include "shell/carte/Objets.hpp"
#include "shell/droites/FichierVisee.hpp"
#include "shell/registre/LectureRegistre.hpp"
#include "shell/visee/Journal.hpp"

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
namespace {

namespace fs = std::filesystem;

constexpr int kGenres = 10;
constexpr int kLigne = 1;

int Coupures() {
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
Observation Numerotee(int n) {
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
  void Coupe(const Ecrit &ecrit, const Lit &lit) {
    useconds_t duree = 0;
    AvecProgramme([&](Bureau &programme) { duree = Duree([&] { ecrit(programme, 1); }); });
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

TEST_F(MortSubite, AtTheStartAFirstOrALaterOneKeepsAllThatIsStored) {
  const auto ligne = [&] { return Demande("SELECT count(*), sum(length(valeur)) FROM valeurs WHERE cle LIKE '%(1)'"); };
  const auto depart = [&] { AvecProgramme([](Bureau &) {}); };
  const useconds_t duree = Duree(depart);
  for (int n = 0; n < Coupures(); ++n) {
    const bool premier = n % 2 == 0;
    std::vector<std::string> avant;
    if (premier) {
      fs::remove_all(donnees_.utilisateur);
    } else {
      AvecProgramme([&](Bureau &programme) {
        programme.valeurs->Ensemble([&] {
          for (const CleValeur &c : ClesEnregistrees(kLigne, Numerotee(n), "Mars", {})) {
            programme.valeurs->SaveSetting(kApplication, kSection, c.cle, c.valeur);
          }
          programme.valeurs->SaveSetting(kApplication, kSection, "Langue", "?"); // so that the start has one to write
        });
      });
      avant = ligne();
    }
    dit_.NotePret(true); // it is the start that is cut
    Tue(duree, depart);
    AttendDepart();
    ASSERT_FALSE(HasFailure()) << n;
    ASSERT_TRUE(premier || ligne() == avant) << n;
  }
}

TEST_F(MortSubite, InEnregistrerTheLineThatWasStoredStandsWhole) {
  Coupe(EnregistreLigne, [&](int dit) { return LigneEntiere(dit); });
}

TEST_F(MortSubite, AStoredLineThatIsPutBackAndAgainStandsWhole) {
  Coupe(
      [](Bureau &programme, int n) {
        EnregistreLigne(programme, n);
        ClicControle(programme, programme.donnees.PU_Annule);
        ClicControle(programme, programme.donnees.PU_Retablit);
      },
      [&](int dit) { return LigneEntiere(dit); });
}

TEST_F(MortSubite, TheSessionIsAWholeOneOfTheProgramOrOfTheOneBefore) {
  const fs::path ici = donnees_.utilisateur / kFichierReprise;
  const fs::path avant = donnees_.utilisateur / kDerniereReprise;
  Coupe(
      [](Bureau &programme, int n) {
        if (!programme.reprise) {
          OuvreReprise(programme);
          programme.sessionLaissee.clear(); // asked about, and not taken up
        }
        SaisitTexte(programme, programme.donnees.Text6, std::to_string(n));
        GardeSession(programme);
        programme.reprise->Attend();
      },
      [&](int /*dit*/) {
        const std::optional<Session> session = LitSession(Contenu(fs::exists(ici) ? ici : avant));
        if (!session) {
          return -1;
        }
        const auto &champs = session->controles;
        const auto champ = std::find_if(champs.begin(), champs.end(), [](const auto &c) { return c.nom == "Text6"; });
        return champ == champs.end() ? -1 : std::atoi(champ->valeur.c_str());
      });
}

TEST_F(MortSubite, InSauveTheOldFileOrTheNewOneIsWhole) {
  const fs::path fichier = dossier / "visee.LoP";
  Coupe(
      [&](Bureau &programme, int n) {
        PoseChamps(programme, Numerotee(n));
        programme.ports.modale = [&](CadreFenetre &) {
          SaisitTexte(programme, programme.fselect.FName, fichier.string());
          ClicControle(programme, programme.fselect.OK);
        };
        ClicControle(programme, programme.donnees.Command3);
      },
      [&](int dit) {
        const std::string octets = Contenu(fichier);
        for (const int n : {dit, dit + 1}) {
          if (octets == EnWindows1252(EcritLoP(Numerotee(n)))) {
            return n;
          }
        }
        return -1;
      });
}

TEST_F(MortSubite, InTheJournalEveryLineThatWasEnteredStandsInItsOrder) {
  const fs::path journal = donnees_.utilisateur / "journal.csv";
  Coupe(
      [](Bureau &programme, int n) {
        PoseChamps(programme, Numerotee(n));
        programme.NomAstre = std::to_string(n);
        Journalise(programme, Hauteurs{45.0, 44.5});
      },
      [&](int) {
        // The first state is written several times, while its duration is measured.
        std::istringstream texte(Contenu(journal));
        std::string ligne;
        std::getline(texte, ligne);
        EXPECT_EQ(ligne, kTitresJournal);
        int dernier = 0;
        while (std::getline(texte, ligne)) {
          if (std::count(ligne.begin(), ligne.end(), ',') !=
              std::count(kTitresJournal.begin(), kTitresJournal.end(), ',')) {
            continue; // the line under way: cut short, and closed by the next one
          }
          int n = 0;
          std::sscanf(ligne.c_str(), "%*[^,],%*[^,],%d", &n);
          EXPECT_TRUE(n == dernier + 1 || (n == 1 && dernier == 1)) << ligne;
          dernier = n;
        }
        return dernier;
      });
}

TEST_F(MortSubite, OfASightTheLogSaysWhatWasSaidLastAndACutLineSaysNothing) {
  const fs::path masques = donnees_.utilisateur / "masques.csv";
  Coupe(
      [](Bureau &programme, int n) {
        if (programme.registreOuvert.annotations == nullptr) {
          DemandeRegistre(programme);
        }
        Annote(programme, {"aa"}, [&](Annotation &annotation) {
          annotation = {!annotation.masquee, std::to_string(n)}; // said anew each time
        });
      },
      [&](int) {
        const Annotations lues = LitAnnotations(Contenu(masques));
        return lues.empty() ? 0 : std::stoi(lues.at("aa").note);
      });
}

TEST_F(MortSubite, OfTheKeptFixesEachWholeLineStandsAndACutOneIsNone) {
  constexpr std::int64_t kDebut = 1'782'000'000; // a fix each minute from June 2026 on
  const fs::path points = donnees_.utilisateur / "points.csv";
  Coupe(
      [](Bureau &programme, int n) {
        programme.point.heure = UTCDeSecondes(kDebut + 60 * n);
        programme.point.actuelle.solution = SolutionPoint{};
        programme.point.actuelle.solution->lieu = {0.1 * (n % 100), -0.1 * (n % 100)};
        ClicControle(programme, programme.fenetrePoint.Command3[1]);
      },
      [&](int) {
        const std::vector<PointGarde> lus = LitPoints(Contenu(points));
        int n = 0;
        for (const PointGarde &point : lus) {
          n = static_cast<int>((SecondesDe(point.utc) - kDebut) / 60);
          EXPECT_NEAR(point.lieu.latitude, 0.1 * (n % 100), 1E-5);
        }
        return n;
      });
}

TEST_F(MortSubite, AtTheExitAllSettingsAreThoseOfOneExit) {
  reponse = true;
  Coupe(
      [](Bureau &programme, int n) {
        const std::string s = std::to_string(n);
        Donnees &p = programme.donnees;
        for (Controle *champ : {&p.Text6, &p.Text7, &p.Text8, &p.Text9, &p.Text10, &p.Text11}) {
          SaisitTexte(programme, *champ, s);
        }
        ClicControle(programme, p.Sortie);
      },
      [&](int dit) {
        const Valeurs valeurs(FichierMagasin());
        const std::string lu = valeurs.GetSetting(kApplication, kSection, "T6");
        for (const char *cle : {"T7", "T8", "T9", "T10", "T11"}) {
          if (valeurs.GetSetting(kApplication, kSection, cle) != lu) {
            return -1;
          }
        }
        return lu == std::to_string(dit) ? dit : dit + (lu == std::to_string(dit + 1) ? 1 : -2);
      });
}

TEST_F(MortSubite, InTheObjectsTheOldFileOrTheNewOneIsWholeAndNotesAreKept) {
  const fs::path fichier = donnees_.utilisateur / kFichierObjets;
  const std::string note = "; une note\n";
  const auto noteGardee = [&] {
    const auto autres = fs::directory_iterator(donnees_.utilisateur);
    return std::any_of(begin(autres), end(autres), [&](const auto &f) {
      return f.path().extension() == ".txt" && Contenu(f.path()).starts_with(note);
    });
  };
  Pose(fichier, note);
  Coupe(
      [](Bureau &programme, int n) {
        Utilisateur &u = programme.utilisateur;
        programme.donnees.FOptionCarte.visible = true;
        ClicControle(programme, programme.donnees.Command18);
        ChoisitLigne(programme, u.List1, 0);
        for (const auto &[champ, texte] :
             {std::pair{&u.Text4, "objet " + std::to_string(n)}, std::pair{&u.Text3, std::to_string(n % 1000)},
              std::pair{&u.Text8, std::string("47")}, std::pair{&u.Text9, std::string("15")},
              std::pair{&u.Text6, std::string("5")}, std::pair{&u.Text7, std::string("30")}}) {
          SaisitTexte(programme, *champ, texte);
        }
        ClicControle(programme, u.List1.liste.empty() ? u.Command1 : u.Command3);
        ClicControle(programme, u.Command2);
      },
      [&](int dit) {
        EXPECT_TRUE(noteGardee());
        std::string octets = Contenu(fichier);
        int lu = -1;
        for (const int n : {dit, dit + 1}) {
          const std::string s = std::to_string(n);
          // Where "Nouveau" comes after a note was put back, the list had been empty.
          if (octets.ends_with(" " + std::to_string(n % 1000) + " objet " + s + "\n") &&
              std::count(octets.begin(), octets.end(), '\n') <= 2) {
            lu = n;
          }
        }
        // The next one finds a file that isn't the program's own, so that it has to set it aside first.
        if (lu % 2 == 0 && !octets.starts_with(note)) {
          for (const auto &f : fs::directory_iterator(donnees_.utilisateur)) {
            if (f.path().filename().string().find(".ancien") != std::string::npos) {
              fs::remove(f.path());
            }
          }
          Pose(fichier, note + octets);
        }
        return lu;
      });
}

} // namespace
} // namespace velmaris::essais
