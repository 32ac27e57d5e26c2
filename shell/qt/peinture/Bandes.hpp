#pragma once

#include <QImage>
#include <QPainter>
#include <QThread>
#include <QThreadPool>

#include <algorithm>
#include <latch>

namespace velmaris::qt {

/// Paints an image in bands that lie under one another, one on each processor; the caller waits for all of them. What
/// is painted must not write anything but its band: it is told the same on each of them.
/// @param peint    paints with a painter whose coordinates are those of the whole image
/// @param voulues  bands; each goes through all lines, so that many of them are of little use
template <class Peinture>
void PeintEnBandes(QImage &image, const Peinture &peint, int voulues = std::min(QThread::idealThreadCount(), 4)) {
  const int bandes = std::clamp(voulues, 1, std::max(1, image.height()));
  uchar *octets = image.bits();
  const auto bande = [&, octets](int rang) {
    const int haut = image.height() * rang / bandes;
    const int bas = image.height() * (rang + 1) / bandes;
    QImage part(octets + haut * image.bytesPerLine(), image.width(), bas - haut, image.bytesPerLine(), image.format());
    part.setDevicePixelRatio(image.devicePixelRatio());
    QPainter painter(&part);
    painter.translate(0, -haut / image.devicePixelRatio());
    peint(painter);
  };
  std::latch faites(bandes - 1);
  for (int rang = 1; rang < bandes; ++rang) {
    const auto travail = [&, rang] {
      bande(rang);
      faites.count_down();
    };
    if (!QThreadPool::globalInstance()->tryStart(travail)) {
      travail();
    }
  }
  bande(0);
  faites.wait();
}

} // namespace velmaris::qt
