#include "OutilsFenetre.hpp"

#include "shell/qt/cadre/Dialogue.hpp"
#include "shell/qt/peinture/Toile.hpp"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialog>
#include <QListWidget>
#include <QPointer>
#include <QSlider>
#include <QTimer>
#include <QWheelEvent>

#include <cstdlib>
#include <functional>
#include <random>
#include <utility>

/// What stands on the screen is what is worked with: every widget shows what its control holds.
namespace velmaris::essais {
namespace {

/// How many random events are sent to each window; a long run sets the variable.
int Evenements() {
  const char *nombre = std::getenv("VELMARIS_EVENEMENTS");
  return nombre == nullptr ? 1500 : std::atoi(nombre);
}

class Accord : public FenetreOuverte {
protected:
  void Verifie(const std::string &apres) {
    for (const Boite &boite : std::exchange(boites, {})) {
      if (boite.texte.starts_with(d.TexteErreur.legende + "\n")) {
        ADD_FAILURE() << boite.texte << " after " << apres;
        fin = true;
      }
    }
    if (bureau.termine) {
      return; // a program that ends shows nothing any more
    }
    if (const Controle *ecart = scene.Ecart()) {
      ADD_FAILURE() << ecart->fenetre << " " << ecart->nom << " " << ecart->indice << " after " << apres << "; rows "
                    << ecart->tableau.lignes << ", current " << ecart->tableau.courante << ", chosen "
                    << ::testing::PrintToString(ecart->tableau.choisies);
      scene.Accorde();
      fin = true;
    }
  }

  void Lettre(QWidget *widget, QChar lettre) {
    const int touche = lettre.isLetterOrNumber() ? lettre.toUpper().unicode() : lettre.unicode();
    Touche(widget, touche, lettre);
  }

  /// Types a text into a field key by key, in the place of what is there, and leaves it.
  void TapeDans(QLineEdit *champ, const QString &texte) {
    champ->setFocus(Qt::TabFocusReason);
    champ->selectAll();
    for (const QChar lettre : texte) {
      Lettre(champ, lettre);
      Verifie(champ->objectName().toStdString() + " " + texte.toStdString());
    }
    champ->clearFocus();
    QApplication::processEvents();
    Verifie(champ->objectName().toStdString() + " left");
  }

  std::size_t Tire(std::size_t nombre) { return std::uniform_int_distribution<std::size_t>(0, nombre - 1)(hasard); }

  void Souris(QWidget *widget, QEvent::Type genre, QPointF place, Qt::MouseButton bouton) {
    const Qt::MouseButtons boutons = genre == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(bouton);
    QMouseEvent souris(genre, place, widget->mapToGlobal(place), bouton, boutons, Qt::NoModifier);
    QApplication::sendEvent(widget, &souris);
  }

  /// One event that a user could bring about in a window.
  void EvenementAuHasard(QWidget &dans) {
    QList<QWidget *> widgets;
    for (auto *widget : dans.findChildren<QWidget *>()) {
      if (widget->isVisible() && widget->isEnabled()) {
        widgets << widget;
      }
    }
    if (widgets.isEmpty()) {
      return;
    }
    QWidget *widget = widgets[static_cast<qsizetype>(Tire(static_cast<std::size_t>(widgets.size())))];
    const QPointer<QObject> vie = widget;
    dernier = widget->objectName().toStdString() + " of " + widget->metaObject()->className();
    const QPointF place(static_cast<double>(Tire(static_cast<std::size_t>(widget->width() + 1))),
                        static_cast<double>(Tire(static_cast<std::size_t>(widget->height() + 1))));
    constexpr std::array kTouches = {Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Up,     Qt::Key_Down, Qt::Key_Space,
                                     Qt::Key_Home, Qt::Key_End,     Qt::Key_Delete, Qt::Key_F3,   Qt::Key_Backspace};
    switch (Tire(7)) {
    case 0:
    case 1:
      Souris(widget, QEvent::MouseButtonPress, place, Qt::LeftButton);
      if (!vie.isNull()) {
        Souris(widget, QEvent::MouseButtonRelease, place, Qt::LeftButton);
      }
      break;
    case 2:
      widget->setFocus(Qt::MouseFocusReason);
      break;
    case 3: {
      QWheelEvent molette(place, widget->mapToGlobal(place), {}, QPoint(0, Tire(2) == 0 ? 120 : -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
      QApplication::sendEvent(widget, &molette);
      break;
    }
    case 4:
      Touche(widget, kTouches.at(Tire(kTouches.size())));
      break;
    default:
      if (QWidget *actif = dans.focusWidget(); actif != nullptr) {
        constexpr std::string_view kSignes = "0123456789.,-NSaZ ";
        Lettre(actif, QLatin1Char(kSignes.at(Tire(kSignes.size()))));
      }
    }
    QApplication::processEvents();
  }

  /// Events in a window, until all have been sent or it is put away.
  void AuHasard(QWidget &dans) {
    const QPointer<QWidget> vie = &dans; // put away, it may be deleted at once
    for (; envoyes < Evenements() && !vie.isNull() && dans.isVisible() && !bureau.termine && !fin; ++envoyes) {
      EvenementAuHasard(dans);
      Verifie(dernier);
    }
  }

  /// All events in the windows that something opens, again and again where a click puts them away.
  void AuHasardEncore(const std::function<QWidget *()> &ouvre) {
    for (envoyes = 0; envoyes < Evenements() && !fin;) {
      QWidget *ouverte = ouvre();
      ASSERT_NE(ouverte, nullptr);
      AuHasard(*ouverte);
      QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
  }

  /// The window of a frame beside the main one.
  QWidget *Libre(const CadreFenetre &cadre) {
    for (auto *fille : fenetre->findChildren<QDialog *>(QString(), Qt::FindDirectChildrenOnly)) {
      if (fille->isVisible() && fille->windowTitle().toStdString() == cadre.titre) {
        return fille;
      }
    }
    return nullptr;
  }

  std::mt19937 hasard{20261122};
  std::string dernier;
  int envoyes = 0;
  bool fin = false;
};

TEST_F(Accord, AFieldShowsWhatTheSightIsReducedWith) {
  Ouvre(kGrandEcran);
  auto *fraction = Trouve<QLineEdit>("Text25");
  TapeDans(fraction, "345");
  EXPECT_EQ(d.Text25.texte, "34");
  EXPECT_EQ(fraction->text(), "34");
}

TEST_F(Accord, EveryFieldOfTheMainWindowShowsItsControlWhateverIsTyped) {
  Ouvre(kGrandEcran);
  for (Controle *module : {&d.Frame4, &d.Frame2}) {
    module->visible = true;
  }
  scene.Accorde();
  for (auto *champ : fenetre->findChildren<QLineEdit *>()) {
    if (!champ->isVisible() || champ->isReadOnly()) {
      continue;
    }
    for (const char *texte : {"345", "0", "61", "-7", "12,5", "12.5", "abc", "1e3", "99999", "  8"}) {
      TapeDans(champ, texte);
    }
  }
}

TEST_F(Accord, RandomEventsInTheMainWindowLeaveNoDifference) {
  Ouvre(kGrandEcran);
  reponse = false; // questions are answered with No
  for (Controle *module : {&d.Frame10, &d.Frame4, &d.Frame2, &d.Frame8, &d.FOptionCarte}) {
    module->visible = true;
  }
  d.Check2.valeur = 0;
  AuHasardEncore([this] {
    // A star's sight that fails ends the program: it goes on with the Sun.
    if (std::exchange(bureau.termine, false)) {
      PoseOption(bureau, d.Option7[0]);
    }
    scene.Accorde();
    fenetre->show();
    return fenetre.get();
  });
}

TEST_F(Accord, RandomEventsInTheEditorOfObjectsLeaveNoDifference) {
  Ouvre(kGrandEcran);
  AuHasardEncore([this] {
    d.FOptionCarte.visible = true;
    Joue([this] { ClicControle(bureau, d.Command18); });
    return Libre(bureau.utilisateur.cadre);
  });
}

TEST_F(Accord, RandomEventsInTheSkyLeaveNoDifference) {
  Ouvre(kGrandEcran);
  AuHasardEncore([this] {
    Joue([this] { ClicControle(bureau, d.Command13); });
    return Libre(bureau.ciel.cadre);
  });
}

TEST_F(Accord, RandomEventsInTheWindowsOfTheComplementsLeaveNoDifference) {
  Ouvre(kGrandEcran);
  reponse = false;
  Joue([this] {
    TapeVisee();
    Calcule();
    Tape(d.Text3, "09");
    Calcule();
  });
  struct Fenetre {
    Controle Donnees::*entree;
    CadreFenetre *cadre;
  };
  const std::array<Fenetre, 7> fenetres = {{{&Donnees::PU_Fiche, &bureau.fiche.cadre},
                                            {&Donnees::PU_Registre, &bureau.registre.cadre},
                                            {&Donnees::PU_Point, &bureau.fenetrePoint.cadre},
                                            {&Donnees::PU_Preparation, &bureau.preparation.cadre},
                                            {&Donnees::PU_Serie, &bureau.fenetreSerie.cadre},
                                            {&Donnees::PU_Exercice, &bureau.fenetreExercice.cadre},
                                            {&Donnees::PU_Papier, &bureau.fenetrePapier.cadre}}};
  for (const Fenetre &ici : fenetres) {
    SCOPED_TRACE(std::string(ici.cadre->nom));
    AuHasardEncore([&] {
      EXPECT_FALSE(std::exchange(bureau.termine, false));
      Joue([&] { ClicControle(bureau, d.*ici.entree); });
      return Libre(*ici.cadre);
    });
    Joue([&] { ici.cadre->visible = false; });
  }
}

TEST_F(Accord, RandomEventsInTheDialogsLeaveNoDifference) {
  Ouvre(kGrandEcran);
  for (const char *nom : {"a.LoP", "b.LoP", "c.txt"}) {
    Pose(bureau.dossiers.accueil / nom, "x");
  }
  std::filesystem::create_directories(bureau.dossiers.accueil / "dossier");
  bureau.ports.ouvre = [](const std::string &, const std::function<void()> &) {};
  bureau.ports.modale = [this](CadreFenetre &cadre) {
    for (envoyes = 0; envoyes < Evenements() && !fin;) {
      cadre.visible = true;
      qt::Dialogue dialogue(scene, cadre, fenetre.get());
      dialogue.MontreACote();
      AuHasard(dialogue);
    }
    cadre.visible = false;
  };
  Joue([this] { ClicControle(bureau, d.Command3); });
  Joue([this] { ClicControle(bureau, d.Command4); });
  Joue([this] { ClicControle(bureau, d.PU_Apropos); });
}

TEST_F(Accord, TheWheelOverAClosedListChoosesNothing) {
  Ouvre(kGrandEcran);
  Joue([this] {
    ClicOption(bureau, d.Option7[3]);
    d.Combo6.visible = true;
    d.Combo8.visible = false;
  });
  auto *liste = Trouve<QComboBox>("Combo6");
  ASSERT_TRUE(liste->isVisible());
  const int rang = d.Combo6.rang;
  Trouve<QLineEdit>("Text13")->setFocus();
  QWheelEvent molette(QPointF(5, 5), liste->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(liste, &molette);
  EXPECT_EQ(d.Combo6.rang, rang);
  liste->setFocus();
  QApplication::sendEvent(liste, &molette);
  EXPECT_EQ(d.Combo6.rang, rang + 1);
}

TEST_F(Accord, ARowFarFromItsStarBearsASignInTheListAndItsNameStays) {
  Ouvre(kGrandEcran);
  Joue([this] { ClicOption(bureau, d.Option7[3]); });
  const auto *liste = Trouve<QComboBox>("Combo6");
  int marquees = 0;
  for (int i = 0; i < liste->count(); ++i) {
    const auto rang = static_cast<std::size_t>(i);
    EXPECT_EQ(liste->itemText(i).toStdString(), d.Combo6.liste[rang]);
    EXPECT_EQ(liste->itemIcon(i).isNull(), !d.Combo6.loin[rang]) << d.Combo6.liste[rang];
    marquees += liste->itemIcon(i).isNull() ? 0 : 1;
  }
  EXPECT_GT(marquees, 50);
}

TEST_F(Accord, TheCheckSheetHasRoomForItsWordsInBothLanguagesAndGoesByEscape) {
  for (const bool anglais : {false, true}) {
    Ouvre(kPetitEcran, anglais);
    TapeVisee();
    Joue([this] {
      ClicOption(bureau, d.Option7[3]);
      PoseRang(bureau, d.Combo6, 9, kNombreEtoiles);
      Tape(d.Text3, "23");
      Calcule();
      ClicControle(bureau, d.PU_Fiche);
    });
    auto *fiche = fenetre->findChild<QDialog *>("Fiche");
    ASSERT_NE(fiche, nullptr);
    EXPECT_TRUE(fiche->isVisible());
    RienDeCoupe(*fiche, nullptr);
    for (const Controle *c : ControlesDe(bureau, kFenetreFiche)) {
      const auto *label = fiche->findChild<QLabel *>(QString::fromStdString(c->nom) +
                                                     (c->indice < 0 ? QString() : QString::number(c->indice)));
      if (label != nullptr && c->visible) {
        EXPECT_EQ(label->text().toStdString(), c->legende) << "cut";
      }
    }
    QKeyEvent echap(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(fiche, &echap);
    QApplication::processEvents();
    EXPECT_FALSE(bureau.fiche.cadre.visible);
    fenetre.reset();
  }
}

TEST_F(Accord, NamesForAScreenReaderFollowTheLanguage) {
  Ouvre(kGrandEcran);
  const QString francais = Trouve<QLineEdit>("Text13")->accessibleName();
  Joue([this] { ClicControle(bureau, d.Image10[1]); });
  EXPECT_NE(Trouve<QLineEdit>("Text13")->accessibleName(), francais);
  Verifie("the flag");
}

} // namespace
} // namespace velmaris::essais
