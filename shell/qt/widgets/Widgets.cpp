#include "shell/qt/widgets/Widgets.hpp"

#include "shell/qt/peinture/Toile.hpp"
#include "sky/LettreGrecque.hpp"

#include <QStyle>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

namespace velmaris::qt {

QString Texte(const std::string &texte) { return QString::fromStdString(texte); }

bool EstLettre(const Controle &c) { return c.nom == "Bayer1"; }

QString Legende(const Controle &c) {
  if (EstLettre(c)) {
    return Texte(std::string(LettreGrecque(c.legende)));
  }
  return c.raccourci ? Texte(c.legende) : Texte(c.legende).replace('&', QLatin1String("&&"));
}

QString CoupeLegende(const QString &texte, const QWidget &widget, double largeur, double hauteur) {
  const QFontMetricsF metrique(widget.font());
  if (texte.contains('\n') || metrique.horizontalAdvance(texte) <= largeur || hauteur < 2 * metrique.height()) {
    return texte;
  }
  for (qsizetype i = texte.lastIndexOf(' '); i > 0; i = texte.lastIndexOf(' ', i - 1)) {
    if (metrique.horizontalAdvance(texte.left(i)) <= largeur) {
      return texte.left(i) + '\n' + texte.mid(i + 1);
    }
  }
  return texte;
}

double LargeurTexte(const QString &texte, const QWidget &widget) {
  const QFontMetricsF metrique(widget.font());
  double largeur = 0;
  for (QString ligne : texte.split('\n')) {
    largeur = std::max(largeur, metrique.horizontalAdvance(ligne.replace(QLatin1String("&&"), QLatin1String("&"))));
  }
  return largeur;
}

QString Infobulle(const std::string &texte) {
  const QString brut = Texte(texte);
  return Qt::mightBeRichText(brut) ? Qt::convertFromPlainText(brut, Qt::WhiteSpaceNormal) : brut;
}

QRect PlaceQt(const Place &place, const QWidget &widget) {
  const double f = PixelsParTwip(widget);
  const int x = static_cast<int>(std::lround(place.gauche * f));
  const int y = static_cast<int>(std::lround(place.haut * f));
  return {x, y, static_cast<int>(std::lround(place.largeur * f)), static_cast<int>(std::lround(place.hauteur * f))};
}

int LargeurMarque(const QWidget &widget) {
  const QStyle &style = *widget.style();
  return style.pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, &widget) +
         style.pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, &widget) + 2;
}

} // namespace velmaris::qt
