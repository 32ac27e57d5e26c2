#include "shell/qt/systeme/EcranLibre.hpp"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QScreen>
#include <QThread>

#include <chrono>
#include <cmath>

namespace velmaris::qt {
namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 2s;
constexpr auto kEntreDeux = 5ms;
constexpr QSize kPetit(1024, 768);

bool EcranConnu() {
  const QScreen *ecran = QGuiApplication::primaryScreen();
  return ecran != nullptr && !ecran->availableSize().isEmpty();
}

} // namespace

void AttendEcran() {
  const QDeadlineTimer fin(kPatience);
  while (!EcranConnu() && !fin.hasExpired()) {
    QThread::usleep(std::chrono::microseconds(kEntreDeux).count());
    QCoreApplication::processEvents();
  }
}

QSize EcranLibre() { return EcranConnu() ? QGuiApplication::primaryScreen()->availableSize() : kPetit; }

int HauteurEcran() {
  const QScreen *ecran = QGuiApplication::primaryScreen();
  return EcranConnu() ? static_cast<int>(std::lround(ecran->geometry().height() * ecran->devicePixelRatio()))
                      : kPetit.height();
}

} // namespace velmaris::qt
