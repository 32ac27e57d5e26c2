#include "OutilsFenetre.hpp"

#include "shell/bureau/Evenements.hpp"

#include <QDialog>

/// The windows of plan and runs on the screen.
namespace velmaris::essais {
namespace {

class FenetresDesVisees : public FenetreOuverte {
protected:
  QDialog *OuvreFenetre(bool anglais, Controle &entree, const char *nom) {
    Ouvre(kPetitEcran, anglais);
    Joue([&] {
      TapeVisee();
      ClicControle(bureau, entree);
    });
    auto *dialogue = fenetre->findChild<QDialog *>(nom);
    EXPECT_NE(dialogue, nullptr) << nom;
    return dialogue;
  }
  /// Brings each page to the front, and looks whether its words have room.
  void ChaquePage(QDialog &dialogue, Controle &onglets, int pages) {
    for (int page = 0; page < pages; ++page) {
      Joue([&] {
        onglets.rang = page;
        Declenche(bureau, onglets, Evenement::Clic);
      });
      RienDeCoupe(dialogue, nullptr);
      const Controle *ecart = scene.Ecart();
      EXPECT_EQ(ecart, nullptr) << ecart->nom;
    }
  }
  void Referme(CadreFenetre &cadre) {
    fenetre.reset();
    cadre.visible = false;
  }
};

TEST_F(FenetresDesVisees, ThePlanHasRoomForItsWordsInBothLanguages) {
  for (const bool anglais : {false, true}) {
    QDialog *dialogue = OuvreFenetre(anglais, d.PU_Preparation, "Preparation");
    ASSERT_NE(dialogue, nullptr);
    ChaquePage(*dialogue, bureau.preparation.Onglets1, static_cast<int>(kPagesPlan));
    Referme(bureau.preparation.cadre);
  }
}

TEST_F(FenetresDesVisees, TheRunsWindowHasRoomForItsWordsInBothLanguages) {
  for (const bool anglais : {false, true}) {
    QDialog *dialogue = OuvreFenetre(anglais, d.PU_Serie, "Serie");
    ASSERT_NE(dialogue, nullptr);
    ChaquePage(*dialogue, bureau.fenetreSerie.Onglets1, static_cast<int>(kPagesSerie));
    Referme(bureau.fenetreSerie.cadre);
  }
}

/// Whatever is to be known stands in one line.
TEST_F(FenetresDesVisees, EveryWarningOfTheRunsWindowHasRoomInItsLine) {
  for (const bool anglais : {false, true}) {
    FenetreSerie &f = bureau.fenetreSerie;
    QDialog *dialogue = OuvreFenetre(anglais, d.PU_Serie, "Serie");
    ASSERT_NE(dialogue, nullptr);
    const auto montre = [&](int page, const auto &mots, Controle &ligne) {
      Joue([&] {
        f.Onglets1.rang = page;
        Declenche(bureau, f.Onglets1, Evenement::Clic);
      });
      for (const Controle &mot : mots) {
        const bool nommee = mot.legende.ends_with(": ");
        Joue([&] { ligne.legende = mot.legende + (nommee ? "12:05:30" + f.TexteAlarme.legende : ""); });
        RienDeCoupe(*dialogue, nullptr);
      }
    };
    montre(0, f.MotAvis, f.LabSerie[0]);
    montre(1, f.MotAvisMidi, f.LabMidi[0]);
    montre(2, f.MotAvisLune, f.LabLune[0]);
    Referme(f.cadre);
  }
}

} // namespace
} // namespace velmaris::essais
