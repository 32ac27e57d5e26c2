#include "OutilsFenetre.hpp"

#include "shell/bureau/Identite.hpp"
#include "shell/qt/cadre/Dialogue.hpp"
#include "shell/qt/cadre/PortsQt.hpp"
#include "shell/qt/systeme/Commande.hpp"
#include "shell/qt/systeme/Liens.hpp"

#include <QClipboard>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QTimer>

/// The about box in its window, links handed to the desktop, and the command line.
namespace velmaris::essais {
namespace {

/// A desktop of our own: "xdg-open" notes what it is asked and ends as told; "xdg-mime" names a reader or none.
class AvecDesktop : public FenetreOuverte {
protected:
  AvecDesktop() : chemin(qgetenv("PATH")) {
    std::filesystem::create_directories(dossier / "bin");
    qputenv("PATH", QByteArray::fromStdString((dossier / "bin").string()) + ":/usr/bin:/bin");
  }
  ~AvecDesktop() override { qputenv("PATH", chemin); }
  AvecDesktop(const AvecDesktop &) = delete;
  AvecDesktop &operator=(const AvecDesktop &) = delete;
  AvecDesktop(AvecDesktop &&) = delete;
  AvecDesktop &operator=(AvecDesktop &&) = delete;

  void PoseProgramme(const std::string &nom, const std::string &corps) {
    const auto fichier = dossier / "bin" / nom;
    Pose(fichier, "#!/bin/sh\n" + corps + "\n");
    std::filesystem::permissions(fichier, std::filesystem::perms::owner_all);
  }
  void PoseOuvreur(int code) {
    PoseProgramme("xdg-open",
                  "printf '%s' \"$1\" >" + (dossier / "ouvert").string() + "\nexit " + std::to_string(code));
  }

  /// Lives until a condition holds, five seconds at most.
  template <class Condition> static bool Attend(Condition &&condition) {
    QElapsedTimer montre;
    for (montre.start(); !condition() && montre.elapsed() < 5000;) {
      QApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    return condition();
  }

  QByteArray chemin;
};

TEST_F(AvecDesktop, ALinkIsHandedToTheDesktopAsItIs) {
  PoseOuvreur(0);
  QObject parent;
  bool refuse = false;
  qt::OuvreLien(parent, "mailto:a@b.org?subject=Velmaris%20V1.0.0", [&] { refuse = true; });
  EXPECT_TRUE(Attend([this] { return !Contenu(dossier / "ouvert").empty(); }));
  EXPECT_EQ(Contenu(dossier / "ouvert"), "mailto:a@b.org?subject=Velmaris%20V1.0.0");
  QApplication::processEvents(QEventLoop::AllEvents, 100);
  EXPECT_FALSE(refuse);
}

TEST_F(AvecDesktop, ADesktopThatHasNoProgramForItIsHeard) {
  PoseOuvreur(3);
  QObject parent;
  bool refuse = false;
  qt::OuvreLien(parent, "https://www.velmaris.org/", [&] { refuse = true; });
  EXPECT_TRUE(Attend([&] { return refuse; }));
}

TEST_F(AvecDesktop, AnOpenerThatStaysDoesNotHoldTheProgram) {
  PoseProgramme("xdg-open", "exec sleep 1");
  QElapsedTimer montre;
  montre.start();
  {
    QObject parent;
    qt::OuvreLien(parent, "https://www.velmaris.org/", [] {});
  }
  EXPECT_LT(montre.elapsed(), 700);
  QApplication::processEvents(QEventLoop::AllEvents, 1500);
  EXPECT_TRUE(Attend([&] { return montre.elapsed() > 1300; }));
}

TEST_F(AvecDesktop, AReaderIsWhatTheDesktopNames) {
  PoseProgramme("xdg-mime", "[ \"$3\" = application/pdf ] && echo lecteur.desktop");
  EXPECT_TRUE(qt::AUnLecteur("application/pdf"));
  EXPECT_FALSE(qt::AUnLecteur("application/vnd.ms-htmlhelp"));
}

TEST_F(AvecDesktop, AnAddressThatNothingOpensCanBeCopiedFromItsBox) {
  Ouvre(kPetitEcran);
  PoseOuvreur(3);
  qt::Boites ports(bureau);
  ports.Ouvre(scene, *fenetre);
  bool vue = false;
  QTimer minuterie;
  minuterie.callOnTimeout([&] {
    if (auto *boite = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
      vue = true;
      minuterie.stop();
      EXPECT_EQ(boite->informativeText(), QString::fromUtf8(Site().data(), static_cast<qsizetype>(Site().size())));
      EXPECT_TRUE(boite->textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard));
      for (QAbstractButton *bouton : boite->buttons()) {
        if (bouton->text() == "Copier") {
          bouton->click();
        }
      }
    }
  });
  minuterie.start(20);
  Joue([this] { ClicControle(bureau, bureau.apropos.Label5); });
  EXPECT_TRUE(Attend([&] { return vue; }));
  QApplication::processEvents();
  EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), Site());
}

TEST_F(AvecDesktop, TheAboutBoxFitsInBothLanguagesAndItsLinksTakeTheKeyboard) {
  for (const bool anglais : {false, true}) {
    Ouvre(kPetitEcran, anglais);
    bureau.ports.modale = [&](CadreFenetre &cadre) {
      qt::Dialogue dialogue(scene, cadre, fenetre.get());
      QTimer::singleShot(0, &dialogue, [&] {
        RienDeCoupe(dialogue, nullptr);
        dialogue.grab().save(QString(VELMARIS_IMAGES) + (anglais ? "/apropos-en.png" : "/apropos-fr.png"));
        auto *jour = dialogue.findChild<QLabel *>("Image10");
        auto *nuit = dialogue.findChild<QLabel *>("Image11");
        EXPECT_TRUE(jour->isVisible() && !nuit->isVisible());
        QMouseEvent bouge(QEvent::MouseMove, {5, 5}, jour->mapToGlobal(QPointF(5, 5)), Qt::NoButton, Qt::NoButton,
                          Qt::NoModifier);
        QApplication::sendEvent(jour, &bouge);
        EXPECT_TRUE(!jour->isVisible() && nuit->isVisible());
        PoseOuvreur(0);
        std::filesystem::remove(dossier / "ouvert");
        bureau.ports.ouvre = [&](const std::string &adresse, const std::function<void()> &) {
          Pose(dossier / "ouvert", adresse);
        };
        Touche(dialogue.findChild<QWidget *>("Label3"), Qt::Key_Space);
        EXPECT_EQ(Contenu(dossier / "ouvert").find("mailto:"), 0U);
        Touche(&dialogue, Qt::Key_Escape);
        EXPECT_FALSE(dialogue.isVisible());
      });
      dialogue.Montre();
    };
    Joue([this] { ClicControle(bureau, d.PU_Apropos); });
    EXPECT_FALSE(bureau.apropos.cadre.visible);
    fenetre.reset();
  }
}

TEST(LigneDeCommande, HelpAndVersionNeedNoWindow) {
  for (const auto &[dit, usage] : {std::pair(Langue{false}, "Usage: velmaris [OPTION] [FILE.LoP]"),
                                   std::pair(Langue{true}, "Usage : velmaris [OPTION] [FICHIER.LoP]")}) {
    const auto aide = qt::ReponseSansFenetre({"--help"}, dit);
    ASSERT_TRUE(aide.has_value());
    EXPECT_EQ(aide->find(usage), 0U);
  }
  EXPECT_EQ(qt::ReponseSansFenetre({"a.LoP", "-v"}, {}), "velmaris " + std::string(TexteVersion()) + "\n");
  EXPECT_FALSE(qt::ReponseSansFenetre({"a.LoP"}, {}).has_value());
  EXPECT_FALSE(qt::ReponseSansFenetre({"--", "--help"}, {}).has_value()) << "a file of that name";
}

TEST(LigneDeCommande, TheFirstArgumentThatIsNoOptionNamesTheSight) {
  const auto ici = std::filesystem::current_path();
  EXPECT_EQ(qt::LitCommande({"été à Brest.LoP", "b.LoP"}).fichier, ici / "été à Brest.LoP");
  EXPECT_EQ(qt::LitCommande({"/tmp/a b.LoP"}).fichier, "/tmp/a b.LoP");
  EXPECT_EQ(qt::LitCommande({"--", "-a.LoP"}).fichier, ici / "-a.LoP");
  EXPECT_EQ(qt::LitCommande({""}).fichier, "");
  EXPECT_EQ(qt::LitCommande({}).inconnue, "");
  EXPECT_EQ(qt::LitCommande({"--voile", "a.LoP"}).inconnue, "--voile");
  EXPECT_TRUE(qt::LitCommande({"--resume", "a.LoP"}).reprend);
  EXPECT_EQ(qt::LitCommande({"--resume"}).inconnue, "");
  EXPECT_FALSE(qt::LitCommande({"--", "--resume"}).reprend);
}

} // namespace
} // namespace velmaris::essais
