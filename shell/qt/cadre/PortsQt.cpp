#include "shell/qt/cadre/PortsQt.hpp"

#include "shell/qt/cadre/Dialogue.hpp"
#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/peinture/FeuilletQt.hpp"
#include "shell/qt/peinture/Toile.hpp"
#include "shell/qt/systeme/Images.hpp"
#include "shell/qt/systeme/Imprimante.hpp"
#include "shell/qt/systeme/Liens.hpp"

#include <QApplication>
#include <QClipboard>
#include <QDate>
#include <QEventLoop>
#include <QFile>
#include <QFont>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QWidget>

#include <system_error>
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

/// Puts a file into the desktop's trash, or deletes it where that can't be. A name that isn't UTF-8 the toolkit can't
/// spell: it would take another file for it.
bool Jette(const std::filesystem::path &fichier) {
  const QString nom = QFile::decodeName(fichier.c_str());
  if (QFile::encodeName(nom) == fichier.c_str()) {
    return QFile::moveToTrash(nom) || QFile::remove(nom);
  }
  std::error_code refus;
  return std::filesystem::remove(fichier, refus);
}

/// A key held down answers no question: the one that brought the box up is often still down.
class SansRepetition : public QObject {
public:
  /// @param boite  with all its buttons
  explicit SansRepetition(QMessageBox &boite) {
    boite.installEventFilter(this);
    for (QAbstractButton *bouton : boite.buttons()) {
      bouton->installEventFilter(this);
    }
  }
  bool eventFilter(QObject * /*objet*/, QEvent *event) override {
    return event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->isAutoRepeat();
  }
};

bool MontreBoite(const Bureau &bureau, const Boite &boite, QWidget *parent) {
  const Donnees &d = bureau.donnees;
  AccordeEclairage(bureau.eclairage);
  QMessageBox qt(parent);
  qt.setWindowTitle(QString::fromStdString(boite.titre));
  qt.setTextFormat(Qt::PlainText);
  qt.setText(QString::fromStdString(boite.texte));
  qt.setIcon(IconeQt(boite.icone));
  const QAbstractButton *copier =
      boite.adresse.empty() ? nullptr : MontreAdresse(qt, d, QString::fromStdString(boite.adresse));
  if (!boite.question) {
    auto *ok = qt.addButton(QString::fromStdString(d.TexteOk.legende), QMessageBox::AcceptRole);
    const QAbstractButton *autre =
        boite.autre.empty() ? nullptr : qt.addButton(QString::fromStdString(boite.autre), QMessageBox::ActionRole);
    qt.setDefaultButton(ok);
    qt.setEscapeButton(ok);
    const SansRepetition reponse(qt);
    qt.exec();
    if (autre != nullptr) {
      return qt.clickedButton() == autre;
    }
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
  const SansRepetition reponse(qt);
  qt.exec();
  return qt.clickedButton() == oui;
}

/// The window of that name that is on show beside the main one, or the one that the user is in; the main one at last. A
/// menu that is open is closed first: it goes while a box still stands, and would take the box with it.
QWidget *FenetreDevant(QWidget &principale, std::string_view nom) {
  while (QWidget *menu = QApplication::activePopupWidget()) {
    menu->close();
  }
  const QString objet = QString::fromUtf8(nom.data(), static_cast<qsizetype>(nom.size()));
  QWidget *active = QApplication::activeWindow();
  QWidget *trouvee = active == nullptr || active->windowType() == Qt::Popup ? &principale : active;
  for (QWidget *fille : principale.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
    trouvee = !nom.empty() && fille->isVisible() && fille->objectName() == objet ? fille : trouvee;
  }
  return trouvee;
}

} // namespace

Boites::Boites(Bureau &bureau) : bureau_(bureau) {
  bureau.ports.boite = [this](const Boite &boite) { return Montre(boite); };
  bureau.ports.jette = Jette;
  bureau.ports.copieTexte = [](const std::string &texte) {
    QGuiApplication::clipboard()->setText(QString::fromStdString(texte));
  };
  bureau.ports.copieImage = [](const Surface &surface) { QGuiApplication::clipboard()->setImage(ImageDe(surface)); };
  bureau.ports.image = OctetsImage;
  bureau.ports.pdf = OctetsPdf;
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
  // Beside the main window it would hide under it.
  return MontreBoite(bureau_, boite, fenetre_ == nullptr ? nullptr : FenetreDevant(*fenetre_, boite.fenetre));
}

void Boites::Ouvre(Scene &scene, QWidget &fenetre) {
  fenetre_ = &fenetre;
  bureau_.ports.modale = [&scene, &fenetre](CadreFenetre &cadre) {
    const QPointer<QWidget> avant = FenetreDevant(fenetre, {}); // no menu stays open under it
    Dialogue(scene, cadre, avant).Montre();
    if (QWidget *encore = avant.data(); encore != nullptr && encore->isVisible()) {
      encore->activateWindow(); // the keyboard comes back to where it was
    }
  };
  bureau_.ports.attend = [&scene] {
    scene.Accorde();
    QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  };
  bureau_.ports.respire = [&scene] {
    scene.AccordePointeur();
    // What waits to be painted is painted, and nothing else: a timer, the slider's own among them, or a window that
    // comes to the front would start a second drawing within the first.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
  };
  bureau_.ports.imprime = [this, &scene, &fenetre](const Impression &page) {
    QApplication::restoreOverrideCursor();
    scene.Accorde(); // the page stands as it will be printed while the printer is chosen
    return Imprime(page, FenetreDevant(fenetre, kFenetreImpression), bureau_.dossiers.utilisateur);
  };
  bureau_.ports.imprimeFeuillets = [this, &fenetre](const std::vector<Feuillet> &feuillets) {
    QApplication::restoreOverrideCursor();
    return ImprimeFeuillets(feuillets, FenetreDevant(fenetre, {}), bureau_.dossiers.utilisateur);
  };
  bureau_.ports.ouvre = [&scene, &fenetre](const std::string &adresse, const std::function<void()> &sansProgramme) {
    OuvreLien(fenetre, adresse, [&scene, sansProgramme] { scene.Joue(sansProgramme); });
  };
  bureau_.ports.lecteur = AUnLecteur;
  bureau_.ports.travaille = [this, &scene](std::function<std::function<void()>()> travail) {
    atelier_.Confie(scene, std::move(travail));
  };
  for (const Boite &boite : std::exchange(attente_, {})) {
    MontreBoite(bureau_, boite, fenetre_);
  }
}

} // namespace velmaris::qt
