#include "shell/qt/PortsQt.hpp"

#include "shell/qt/Dialogue.hpp"
#include "shell/qt/Imprimante.hpp"
#include "shell/qt/Liens.hpp"
#include "shell/qt/Nuit.hpp"
#include "shell/qt/Toile.hpp"

#include <QApplication>
#include <QClipboard>
#include <QDate>
#include <QEventLoop>
#include <QFile>
#include <QFont>
#include <QFontMetricsF>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QWidget>

#include <utility>

namespace velmaris::qt {
namespace {

QLocale Langue(const Bureau &bureau) {
  const QLocale systeme = QLocale::system();
  if (systeme.language() != QLocale::C && systeme.name() != QLatin1String("en_US_POSIX")) {
    return systeme;
  }
  return {bureau.FichierLangue == "\\EN.txt" ? QLocale::English : QLocale::French};
}

QMessageBox::Icon IconeQt(Icone icone) {
  switch (icone) {
  case Icone::Information:
    return QMessageBox::Information;
  case Icone::Question:
    return QMessageBox::Question;
  case Icone::Attention:
    return QMessageBox::Warning;
  case Icone::Erreur:
    return QMessageBox::Critical;
  case Icone::Aucune:
  default:
    return QMessageBox::NoIcon;
  }
}

/// Puts an address into a box, to be selected or copied by the button given back.
QAbstractButton *MontreAdresse(QMessageBox &qt, const Donnees &d, const QString &adresse) {
  qt.setInformativeText(adresse);
  qt.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  return qt.addButton(QString::fromStdString(d.TexteCopier.legende), QMessageBox::ActionRole);
}

bool MontreBoite(const Bureau &bureau, const Boite &boite, QWidget *parent) {
  const Donnees &d = bureau.donnees;
  AccordeNuit(bureau.nuit);
  QMessageBox qt(parent);
  qt.setWindowTitle(QString::fromStdString(boite.titre));
  qt.setTextFormat(Qt::PlainText);
  qt.setText(QString::fromStdString(boite.texte));
  qt.setIcon(IconeQt(boite.icone));
  const QAbstractButton *copier =
      boite.adresse.empty() ? nullptr : MontreAdresse(qt, d, QString::fromStdString(boite.adresse));
  if (!boite.question) {
    qt.addButton(QString::fromStdString(d.TexteOk.legende), QMessageBox::AcceptRole);
    qt.exec();
    if (copier != nullptr && qt.clickedButton() == copier) {
      QGuiApplication::clipboard()->setText(QString::fromStdString(boite.adresse));
    }
    return true;
  }
  const auto *oui = qt.addButton(QString::fromStdString(d.TexteOui.legende), QMessageBox::YesRole);
  auto *non = qt.addButton(QString::fromStdString(d.TexteNon.legende), QMessageBox::NoRole);
  qt.setEscapeButton(non);
  if (boite.nonParDefaut) {
    qt.setDefaultButton(non);
  }
  qt.exec();
  return qt.clickedButton() == oui;
}

} // namespace

Boites::Boites(Bureau &bureau) : bureau_(bureau) {
  bureau.ports.boite = [this](const Boite &boite) { return Montre(boite); };
  bureau.ports.jette = [](const std::filesystem::path &fichier) {
    const QString nom = QString::fromStdString(fichier.string());
    return QFile::moveToTrash(nom) || QFile::remove(nom);
  };
  bureau.ports.largeurTexte = [](const std::string &texte, double taille, bool gras) {
    QFont police = QApplication::font();
    police.setPointSizeF(taille);
    police.setBold(gras);
    const QScreen *ecran = QGuiApplication::primaryScreen();
    return QFontMetricsF(police).horizontalAdvance(QString::fromStdString(texte)) * kTwipsParPouce /
           ecran->logicalDotsPerInch();
  };
  bureau.ports.nomJour = [&bureau](const ValeurDate &date) {
    return Langue(bureau).dayName(JourSemaine(date) == 0 ? 7 : JourSemaine(date)).toStdString();
  };
  bureau.ports.nomMois = [&bureau](const ValeurDate &date) {
    return Langue(bureau).monthName(date.mois).toStdString();
  };
}

bool Boites::Montre(const Boite &boite) {
  if (fenetre_ == nullptr && !boite.question && boite.icone != Icone::Erreur) {
    attente_.push_back(boite);
    return true;
  }
  QApplication::restoreOverrideCursor(); // a question is asked with the usual pointer
  // Over the window that the user is in: beside the main one it would hide under it.
  QWidget *devant = fenetre_ == nullptr ? nullptr : QApplication::activeWindow();
  return MontreBoite(bureau_, boite, devant == nullptr ? fenetre_ : devant);
}

void Boites::Ouvre(Scene &scene, QWidget &fenetre) {
  fenetre_ = &fenetre;
  bureau_.ports.modale = [&scene, &fenetre](CadreFenetre &cadre) { Dialogue(scene, cadre, &fenetre).Montre(); };
  bureau_.ports.attend = [&scene] {
    scene.Accorde();
    QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  };
  bureau_.ports.respire = [&scene] {
    scene.AccordePointeur();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  };
  bureau_.ports.imprime = [this, &scene](const Impression &page) {
    QApplication::restoreOverrideCursor();
    scene.Accorde(); // the page stands as it will be printed while the printer is chosen
    return Imprime(page, QApplication::activeWindow());
  };
  bureau_.ports.ouvre = [&scene, &fenetre](const std::string &adresse, const std::function<void()> &sansProgramme) {
    OuvreLien(fenetre, adresse, [&scene, sansProgramme] { scene.Joue(sansProgramme); });
  };
  bureau_.ports.lecteur = AUnLecteur;
  for (const Boite &boite : std::exchange(attente_, {})) {
    MontreBoite(bureau_, boite, fenetre_);
  }
}

} // namespace velmaris::qt
