#include "shell/qt/cadre/FenetreEtiree.hpp"

#include "shell/ecran/Echelle.hpp"

#include <QResizeEvent>
#include <QScreen>

#include <cmath>

namespace velmaris::qt {

FenetreEtiree::FenetreEtiree(Scene &scene, CadreFenetre &cadre, QWidget *parent, Qt::WindowFlags genre)
    : Dialogue(scene, cadre, parent, Etirable::MontrePlus), record_(cadre) {
  if (genre != Qt::Dialog) {
    setWindowFlags(genre);
  }
  Echelonne();
  setMinimumSize(PlusPetite());
  resize(Taille().boundedTo(screen()->availableSize() - QSize(0, kBarreTitre)).expandedTo(minimumSize()));
  ReprendSaTaille();
  const double f = PixelsParTwip(*this);
  Dispose(width() / f, height() / f);
}

double FenetreEtiree::EchelleVoulue() const {
  CadreFenetre moindre = record_;
  moindre.largeur = record_.moindreLargeur;
  moindre.hauteur = record_.moindreHauteur;
  const QSize libre = screen()->availableSize();
  return EchelleDialogue(scene().bureau(), moindre, libre.width(), libre.height());
}

QSize FenetreEtiree::PlusPetite() const {
  const double f = PixelsParTwip(*this);
  return {static_cast<int>(std::ceil(record_.moindreLargeur * f)),
          static_cast<int>(std::ceil(record_.moindreHauteur * f))};
}

void FenetreEtiree::Dispose(double largeur, double hauteur) {
  Etire(ControlesDe(scene().bureau(), record_.nom), record_, largeur, hauteur);
}

void FenetreEtiree::Redimensionne() {
  setMinimumSize(PlusPetite());
  Redispose([this](double largeur, double hauteur) { Dispose(largeur, hauteur); });
}

void FenetreEtiree::resizeEvent(QResizeEvent *event) {
  Dialogue::resizeEvent(event);
  Redimensionne();
}

} // namespace velmaris::qt
