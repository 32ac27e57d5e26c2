#include "shell/qt/widgets/GenreDe.hpp"

#include "shell/bureau/Evenements.hpp"
#include "shell/ecran/Modules.hpp"
#include "shell/qt/peinture/Icones.hpp"
#include "shell/qt/peinture/Toile.hpp"
#include "shell/qt/peinture/ToileCiel.hpp"
#include "shell/qt/widgets/Elements.hpp"
#include "shell/qt/widgets/GenresListes.hpp"
#include "shell/qt/widgets/Papier.hpp"
#include "shell/qt/widgets/Table.hpp"
#include "shell/qt/widgets/Widgets.hpp"

#include <QCheckBox>
#include <QGroupBox>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTimer>

#include <algorithm>

/// The kinds of controls, each with its widget.
namespace velmaris::qt {
namespace {

constexpr int kMargePoussoir = 8; ///< pixels that a button keeps around its caption, at scale 1
constexpr int kEcartIcone = 4;    ///< between its picture and its caption
constexpr int kClicLong = 600;    ///< milliseconds
constexpr int kGrandeIcone = 26;  ///< and of the side of its picture, at most

Qt::Alignment Alignement(Cote cote) {
  switch (cote) {
  case Cote::Centre:
    return Qt::AlignCenter;
  case Cote::Droite:
    return Qt::AlignRight | Qt::AlignVCenter;
  case Cote::Gauche:
  default:
    return Qt::AlignLeft | Qt::AlignVCenter;
  }
}

/// A click, as the core takes it.
auto Clic(Bureau &bureau, Controle &c, const Joueur &joue) {
  return [&bureau, &c, joue] { joue([&] { ClicControle(bureau, c); }); };
}

class ASurface : public De<Toile> {
public:
  using De::De;
  void Ecoute(Bureau &bureau, Controle &c, const Joueur &joue) override {
    w.auClic = Clic(bureau, c, joue);
    if (velmaris::Ecoute(c, Evenement::Presse)) {
      w.auPresse = [&bureau, &c, joue](bool gauche, double x, double y) {
        if (gauche) {
          joue([&] { PresseSurface(bureau, c, {x, y}); });
        }
      };
    }
  }
};

class ACadre : public De<Volet> {
public:
  using De::De;
  void Ecoute(Bureau &bureau, Controle &c, const Joueur &joue) override {
    w.auClic = [this, clic = Clic(bureau, c, joue)] {
      w.raise();
      clic();
    };
    w.auTrait = [this, &bureau, &c, joue](QPoint place) {
      const double f = PixelsParTwip(w);
      joue([&] { TireModule(bureau, c, place.x() / f, place.y() / f); });
    };
    w.auLache = [&bureau, joue] { joue([&] { LacheModule(bureau); }); };
  }
};

/// A plain part of a module: a click on it is none on the module.
class APlan : public De<QWidget> {
public:
  explicit APlan(QWidget *plan) : De(plan) { w.setAttribute(Qt::WA_NoMousePropagation); }
};

class AGroupe : public De<QGroupBox> {
public:
  explicit AGroupe(QGroupBox *groupe) : De(groupe) { w.setAttribute(Qt::WA_NoMousePropagation); }

protected:
  void PoseLegende(const Controle &c) override { w.setTitle(Legende(c)); }
};

/// The captions at the edges of the chart are written upon it; one that comes and goes over it has a ground of its own,
/// to be read at a glance.
bool EstInscription(const Controle &c) { return c.opaque && c.cote == Cote::Centre && c.parent == "Image1"; }

class AEtiquette : public De<QLabel> {
public:
  AEtiquette(QLabel *label, const Controle &c) : De(label) {
    w.setTextFormat(Qt::PlainText);
    w.setAlignment(Alignement(c.cote));
    if (c.cadre) {
      w.setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken));
    }
    if ((c.opaque && !EstInscription(c)) || c.cadre) {
      w.setAutoFillBackground(true);
      w.setBackgroundRole(QPalette::Base);
    }
    // A click on a plain caption or a result is none on the module that it lies in.
    w.setAttribute(Qt::WA_NoMousePropagation, !c.titre && !velmaris::Ecoute(c, Evenement::Clic));
  }

protected:
  void PoseLegende(const Controle &c) override {
    QString mots = EstLettre(c) ? Legende(c) : Texte(c.legende);
    if (!c.marque.empty() && !mots.isEmpty()) {
      mots += "   " + Texte(c.marque);
    }
    w.setText(CoupeLegende(mots, w, w.width(), w.height()));
  }
  double Depasse() const override { return LargeurTexte(w.text(), w) - w.width(); }
  void PoseImage(const Controle &c) override { w.setPixmap(Icone(c.image).pixmap(w.size(), w.devicePixelRatioF())); }
};

class ARenvoi : public AEtiquette {
public:
  ARenvoi(Renvoi *renvoi, const Controle &c) : AEtiquette(renvoi, c), renvoi_(*renvoi) {
    if (c.indice > 0) { // links of one name lead to one place: the keyboard stops at the first
      renvoi_.setFocusPolicy(Qt::NoFocus);
    }
  }
  void Ecoute(Bureau &bureau, Controle &c, const Joueur &joue) override { renvoi_.auClic = Clic(bureau, c, joue); }

private:
  Renvoi &renvoi_;
};

class AImage : public De<QLabel> {
public:
  using De::De;

protected:
  void PoseImage(const Controle &c) override { w.setPixmap(Icone(c.image).pixmap(w.size(), w.devicePixelRatioF())); }
};

class AFigure : public De<Figure> {
public:
  using De::De;
  void Ecoute(Bureau &bureau, Controle &c, const Joueur &joue) override {
    w.auSurvol = [&bureau, &c, joue] { joue([&] { SurvoleControle(bureau, c); }); };
  }

protected:
  void PoseImage(const Controle &c) override { w.setPixmap(Icone(c.image).pixmap(w.size(), w.devicePixelRatioF())); }
};

class ABouton : public De<QAbstractButton> {
public:
  /// @param marque  whether a mark stands before the caption
  ABouton(QAbstractButton *bouton, bool marque) : De(bouton), marque_(marque) {}
  void Ecoute(Bureau &bureau, Controle &c, const Joueur &joue) override {
    QObject::connect(&w, &QAbstractButton::clicked, &w, Clic(bureau, c, joue));
    if (velmaris::Ecoute(c, Evenement::ClicLong)) {
      EcouteLong(bureau, c, joue);
    }
  }

protected:
  void PoseLegende(const Controle &c) override { w.setText(CoupeLegende(Legende(c), w, Place(), w.height())); }
  double Depasse() const override { return LargeurTexte(w.text(), w) - Place(); }
  void PoseImage(const Controle &c) override {
    const int cote = std::min(w.height() - Pixels(kMargePoussoir, w), Pixels(kGrandeIcone, w));
    w.setIcon(Icone(c.image));
    w.setIconSize(c.genre == Genre::Image ? w.size() - QSize(4, 4) : QSize(cote, cote));
  }

private:
  /// Held down for a while: the press is then no click any more.
  void EcouteLong(Bureau &bureau, Controle &c, const Joueur &joue) {
    auto *tenue = new QTimer(&w);
    tenue->setSingleShot(true);
    tenue->setInterval(kClicLong);
    QObject::connect(&w, &QAbstractButton::pressed, tenue, qOverload<>(&QTimer::start));
    QObject::connect(&w, &QAbstractButton::released, tenue, &QTimer::stop);
    tenue->callOnTimeout(&w, [this, &bureau, &c, joue] {
      if (w.isDown()) {
        w.setDown(false);
        joue([&] { ClicLongControle(bureau, c); });
      }
    });
  }

  /// Pixels beside mark and picture.
  double Place() const {
    const int marge = marque_ ? LargeurMarque(w) : Pixels(kMargePoussoir, w);
    return w.width() - marge - (w.icon().isNull() ? 0 : w.iconSize().width() + Pixels(kEcartIcone, w));
  }

  bool marque_;
};

class AOption : public ABouton {
public:
  explicit AOption(QRadioButton *option) : ABouton(option, true) {}
  void Ecoute(Bureau &bureau, Controle &c, const Joueur &joue) override {
    QObject::connect(&w, &QAbstractButton::clicked, &w, [&bureau, &c, joue] { joue([&] { ClicOption(bureau, c); }); });
  }
  Contenu Montre() const override { return {{}, w.isChecked() ? 1 : 0}; }
  Contenu Voulu(const Controle &c) const override { return {{}, c.choisi ? 1 : 0}; }

protected:
  void PoseContenu(const Controle &c, const Controle & /*vu*/, bool /*tout*/) override { w.setChecked(c.choisi); }
};

class ACase : public ABouton {
public:
  explicit ACase(QCheckBox *coche) : ABouton(coche, true), coche_(*coche) {}
  void Ecoute(Bureau &bureau, Controle &c, const Joueur &joue) override {
    QObject::connect(&w, &QAbstractButton::clicked, &w, [&bureau, &c, joue] { joue([&] { ClicCase(bureau, c); }); });
  }
  Contenu Montre() const override { return {{}, static_cast<int>(coche_.checkState())}; }
  Contenu Voulu(const Controle &c) const override { return {{}, static_cast<int>(Etat(c))}; }

protected:
  void PoseContenu(const Controle &c, const Controle & /*vu*/, bool /*tout*/) override {
    coche_.setCheckState(Etat(c));
  }

private:
  static Qt::CheckState Etat(const Controle &c) {
    return c.valeur == 2 ? Qt::PartiallyChecked : c.valeur == 0 ? Qt::Unchecked : Qt::Checked;
  }
  QCheckBox &coche_;
};

class AChamp : public De<Champ> {
public:
  AChamp(Champ *champ, const Controle &c) : De(champ) {
    w.setAlignment(Alignement(c.cote));
    w.setReadOnly(c.lectureSeule);
  }
  void Ecoute(Bureau &bureau, Controle &c, const Joueur &joue) override {
    QObject::connect(&w, &QLineEdit::textEdited, &w, [&bureau, &c, joue](const QString &texte) {
      joue([&] { SaisitTexte(bureau, c, texte.toStdString()); });
    });
  }
  bool EstChamp() const override { return true; }
  void SelectionneTout() override { w.selectAll(); }
  Contenu Montre() const override { return {w.text()}; }
  Contenu Voulu(const Controle &c) const override { return {Texte(c.texte)}; }

protected:
  void PoseContenu(const Controle &c, const Controle & /*vu*/, bool /*tout*/) override {
    // Where the core has only cut what was typed, the cursor stays by it.
    const int curseur = w.cursorPosition();
    w.setText(Texte(c.texte));
    if (w.hasFocus()) {
      w.setCursorPosition(curseur);
    }
  }
  void PoseAlerte(bool alerte) override { w.PoseAlerte(alerte); }
};

class ACurseur : public De<QSlider> {
public:
  ACurseur(QSlider *curseur, const Controle &c) : De(curseur) {
    w.setRange(c.minimum, c.maximum);
    w.setSingleStep(c.petitPas);
    w.setPageStep(c.grandPas);
  }
  void Ecoute(Bureau &bureau, Controle &c, const Joueur &joue) override {
    QObject::connect(&w, &QSlider::valueChanged, &w,
                     [&bureau, &c, joue](int valeur) { joue([&] { BougeCurseur(bureau, c, valeur); }); });
  }
  Contenu Montre() const override { return {{}, w.value()}; }
  Contenu Voulu(const Controle &c) const override { return {{}, std::clamp(c.valeur, c.minimum, c.maximum)}; }

protected:
  void PoseContenu(const Controle &c, const Controle & /*vu*/, bool /*tout*/) override { w.setValue(c.valeur); }
};

class AJauge : public De<QProgressBar> {
public:
  explicit AJauge(QProgressBar *jauge) : De(jauge) {}
  Contenu Montre() const override { return {{}, w.value(), w.maximum()}; }
  Contenu Voulu(const Controle &c) const override { return {{}, c.valeur, c.maximum}; }

protected:
  void PoseContenu(const Controle &c, const Controle & /*vu*/, bool /*tout*/) override {
    w.setRange(0, c.maximum);
    w.setValue(c.valeur);
  }
};

std::unique_ptr<Adaptateur> CreeSurface(Bureau &bureau, const Controle &c, QWidget *parent) {
  return &c == &bureau.ciel.Picture1 ? std::make_unique<ASurface>(new ToileCiel(bureau.ciel, parent))
                                     : std::make_unique<ASurface>(new Toile(*SurfaceDe(bureau, c), parent));
}

std::unique_ptr<Adaptateur> CreeImage(const Controle &c, QWidget *parent) {
  if (velmaris::Ecoute(c, Evenement::Clic)) {
    return std::make_unique<ABouton>(new Poussoir(parent), true);
  }
  if (velmaris::Ecoute(c, Evenement::Survol)) {
    return std::make_unique<AFigure>(new Figure(parent));
  }
  return std::make_unique<AImage>(new QLabel(parent));
}

std::unique_ptr<Adaptateur> CreeEtiquette(const Controle &c, QWidget *parent) {
  if (c.renvoi) {
    return std::make_unique<ARenvoi>(new Renvoi(parent), c);
  }
  if (!EstInscription(c)) {
    return std::make_unique<AEtiquette>(new QLabel(parent), c);
  }
  auto *inscription = new Inscription(parent);
  if (auto *toile = dynamic_cast<Toile *>(parent)) {
    toile->Reserve(*inscription);
  }
  return std::make_unique<AEtiquette>(inscription, c);
}

} // namespace

std::unique_ptr<Adaptateur> CreeAdaptateur(Bureau &bureau, const Controle &c, QWidget *parent) {
  switch (c.genre) {
  case Genre::Surface:
    return CreeSurface(bureau, c, parent);
  case Genre::Cadre:
    return std::make_unique<ACadre>(new Volet(c.titre, parent));
  case Genre::Groupe:
    if (c.legende.empty()) {
      return std::make_unique<APlan>(new QWidget(parent));
    }
    return std::make_unique<AGroupe>(new QGroupBox(parent));
  case Genre::Etiquette:
    return CreeEtiquette(c, parent);
  case Genre::Champ:
    return std::make_unique<AChamp>(new Champ(parent), c);
  case Genre::Bouton:
    return std::make_unique<ABouton>(new QPushButton(parent), false);
  case Genre::Option:
    return std::make_unique<AOption>(new QRadioButton(parent));
  case Genre::Case:
    return std::make_unique<ACase>(new QCheckBox(parent));
  case Genre::Liste:
    return CreeListe(parent);
  case Genre::ListeBoite:
    return CreeListeBoite(parent);
  case Genre::Table:
    return CreeTable(parent);
  case Genre::Onglets:
    return CreeOnglets(parent);
  case Genre::Curseur:
    return std::make_unique<ACurseur>(new QSlider(Qt::Horizontal, parent), c);
  case Genre::Jauge:
    return std::make_unique<AJauge>(new QProgressBar(parent));
  case Genre::Image:
    return CreeImage(c, parent);
  case Genre::Papier:
    return CreePapier(parent);
  case Genre::Marque: // the sky's chart paints its own
  case Genre::Texte:
  case Genre::Menu:
  case Genre::Entree:
  case Genre::Separateur:
  default:
    return nullptr;
  }
}

} // namespace velmaris::qt
