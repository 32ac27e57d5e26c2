#pragma once

#include "shell/qt/cadre/Dialogue.hpp"

#include <vector>

namespace velmaris::qt {

/// The print page: painted as it will be printed, with its button over it. A click, Escape and the close button put it
/// away.
class FenetreImpression : public Dialogue {
public:
  FenetreImpression(Scene &scene, QWidget *parent);

  void reject() override;

protected:
  void AccordeFenetre() override;
  double EchelleVoulue() const override;
  void Redimensionne() override;
  void resizeEvent(QResizeEvent *event) override;
  bool VientDevant() override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

private:
  void Centre();
  void AjusteTaille();
  void AccordeTaille();
  void Note(const QWindow *devant);

  Impression &page_;
  std::vector<Controle> peints_;          ///< the controls as they are painted now
  unsigned prise_ = 0;                    ///< the picture that is painted now
  Eclairage eclairage_ = Eclairage::Jour; ///< by which it is painted
  int taille_ = 0;                        ///< the user's size that it goes by
  bool sousBoite_ = false;                ///< what had the keyboard last was a box or a dialog over it
};

} // namespace velmaris::qt
