#include "OutilsMortSubite.hpp"

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
#include <cstdlib>

/// The program killed at any moment while it writes: what it had said to be stored is there whole, and it starts again
/// without a word.
namespace velmaris::essais {
namespace {

constexpr useconds_t kEntreSessions = 20000; ///< the session is written some times a second

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
      },
      kEntreSessions);
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
          RetireAnciens();
          Pose(fichier, note + octets);
        }
        return lu;
      });
}

} // namespace
} // namespace velmaris::essais
