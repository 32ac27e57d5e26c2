#include "shell/bureau/Sauvegarde.hpp"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace velmaris {
namespace {

namespace fs = std::filesystem;

constexpr auto kEntreEcritures = std::chrono::milliseconds(50);
constexpr mode_t kPourSoi = 0600;
constexpr std::size_t kPileSecours = 65536; ///< bytes: a handler must run where the stack is full
constexpr std::array<int, 5> kMortels = {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL};

/// The one door of a signal's handler, which is given nothing but a number: the record that it finishes. Set when a
/// text is ready, empty again once the record goes or the handler has taken it.
std::atomic<Sauvegarde *> gardee = nullptr;

/// Replaces a file by calls that a signal's handler may make.
bool Remplace(const char *provisoire, const char *fichier, std::string_view octets) noexcept {
  const int numero = ::open(provisoire, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, kPourSoi);
  if (numero < 0) {
    return false;
  }
  bool bien = true;
  while (bien && !octets.empty()) {
    const ssize_t n = ::write(numero, octets.data(), octets.size());
    bien = n > 0 || (n < 0 && errno == EINTR);
    octets.remove_prefix(n > 0 ? static_cast<std::size_t>(n) : 0);
  }
  bien = bien && ::fsync(numero) == 0;
  ::close(numero);
  bien = bien && ::rename(provisoire, fichier) == 0;
  if (!bien) {
    ::unlink(provisoire); // on a full disk it takes room from what the user writes
  }
  return bien;
}

void Meurt(int signal) {
  const int raison = errno;
  FinitSauvegardes();
  errno = raison;
  // The handler has been put back to what it was: the program dies of the signal that it got.
  ::raise(signal);
}

} // namespace

Sauvegarde::Sauvegarde(fs::path fichier, fs::path derniere)
    : fichier_(std::move(fichier)), derniere_(std::move(derniere)), provisoire_(fichier_.string() + ".ecrit") {
  std::error_code refus;
  fs::create_directories(fichier_.parent_path(), refus);
  if (PrendTour()) {
    misDeCote_ = true;
  }
  ouvrier_ = std::thread([this] { Travaille(); });
}

Sauvegarde::~Sauvegarde() {
  Arrete();
  Sauvegarde *moi = this;
  const bool derniere = gardee.compare_exchange_strong(moi, nullptr);
  const std::unique_ptr<Pret> reste(aFinir_.exchange(nullptr));
  if (derniere && reste != nullptr) { // the disk has refused it: once more, as an exit would
    Remplace(reste->provisoire.c_str(), reste->fichier.c_str(), reste->texte);
  }
  if (numeroVerrou_ >= 0) {
    ::close(numeroVerrou_);
  }
}

/// Takes the turn of keeping the file, without waiting for it. A lock on a file that has been put away meanwhile is
/// none.
bool Sauvegarde::TientVerrou() {
  if (numeroVerrou_ >= 0) {
    return true;
  }
  const std::string nom = NomVerrou();
  const int numero = ::open(nom.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, kPourSoi);
  struct stat tenu {};
  struct stat present {};
  if (numero >= 0 && ::flock(numero, LOCK_EX | LOCK_NB) == 0 && ::fstat(numero, &tenu) == 0 &&
      ::stat(nom.c_str(), &present) == 0 && tenu.st_ino == present.st_ino) {
    numeroVerrou_ = numero;
  } else if (numero >= 0) {
    ::close(numero);
  }
  return numeroVerrou_ >= 0;
}

/// Takes the turn of keeping the file where that is free; what another program has left there is set aside.
/// @return whether there was something
bool Sauvegarde::PrendTour() {
  if (numeroVerrou_ >= 0 || !TientVerrou()) {
    return false;
  }
  std::error_code refus;
  fs::rename(fichier_, derniere_, refus);
  return !refus;
}

bool Sauvegarde::tenue() {
  const std::scoped_lock verrou(mutex_);
  return numeroVerrou_ >= 0;
}

void Sauvegarde::Donne(std::string texte) {
  const std::scoped_lock verrou(mutex_);
  if (fini_ || (donnees_ > 0 && texte == donnee_)) {
    return;
  }
  donnee_ = std::move(texte);
  ++donnees_;
  if (numeroVerrou_ >= 0) {
    delete aFinir_.exchange(new Pret{donnee_, fichier_.string(), fichier_.string() + ".mort"});
    gardee = this;
  }
  signal_.notify_all();
}

void Sauvegarde::Attend() {
  std::unique_lock verrou(mutex_);
  signal_.wait(verrou, [this] { return fini_ || traitees_ == donnees_; });
}

void Sauvegarde::Retire() {
  std::unique_lock verrou(mutex_);
  signal_.wait(verrou, [this] { return fini_ || traitees_ == donnees_; });
  delete aFinir_.exchange(nullptr);
  donnee_.clear();
  if (numeroVerrou_ >= 0) {
    std::error_code refus;
    fs::remove(fichier_, refus);
  }
}

void Sauvegarde::Abandonne() {
  {
    const std::scoped_lock verrou(mutex_);
    traitees_ = donnees_;
    delete aFinir_.exchange(nullptr);
  }
  Arrete();
  if (numeroVerrou_ >= 0) {
    std::error_code refus;
    fs::remove(fichier_, refus);
    fs::remove(NomVerrou(), refus);
  }
}

std::string Sauvegarde::NomVerrou() const { return fichier_.string() + ".verrou"; }

void Sauvegarde::Arrete() {
  {
    const std::scoped_lock verrou(mutex_);
    fini_ = true;
  }
  signal_.notify_all();
  if (ouvrier_.joinable()) {
    ouvrier_.join();
  }
}

/// Writes the text given last, with the lock open meanwhile.
void Sauvegarde::Ecrit(std::unique_lock<std::mutex> &verrou) {
  const std::uint64_t rang = donnees_;
  const std::string texte = donnee_;
  PrendTour();
  const bool tenu = numeroVerrou_ >= 0;
  verrou.unlock();
  const bool ecrit = tenu && !mourante_ && Remplace(provisoire_.c_str(), fichier_.c_str(), texte);
  verrou.lock();
  ecritures_ += ecrit ? 1 : 0;
  traitees_ = rang;
  if (ecrit && donnees_ == rang) {
    delete aFinir_.exchange(nullptr);
  }
}

void Sauvegarde::Travaille() {
  std::unique_lock verrou(mutex_);
  while (true) {
    signal_.wait(verrou, [this] { return fini_ || traitees_ < donnees_; });
    if (traitees_ < donnees_) {
      Ecrit(verrou);
      signal_.notify_all();
    }
    if (fini_ && traitees_ == donnees_) {
      return;
    }
    // Typing comes key by key: a disk is asked twenty times a second at most.
    signal_.wait_for(verrou, kEntreEcritures, [this] { return fini_; });
  }
}

void FinitSauvegardes() noexcept {
  Sauvegarde *sauvegarde = gardee.exchange(nullptr);
  if (sauvegarde == nullptr) {
    return;
  }
  sauvegarde->mourante_ = true;
  if (const auto *pret = sauvegarde->aFinir_.exchange(nullptr)) {
    Remplace(pret->provisoire.c_str(), pret->fichier.c_str(), pret->texte);
    // Its memory is left alone: the program dies, and a handler frees nothing.
  }
}

void PoseSignauxMortels() {
  static std::array<std::byte, kPileSecours> pile;
  stack_t secours{};
  secours.ss_sp = pile.data();
  secours.ss_size = pile.size();
  ::sigaltstack(&secours, nullptr);
  struct sigaction action {};
  action.sa_handler = Meurt;
  action.sa_flags = static_cast<int>(SA_ONSTACK | SA_RESETHAND | SA_NODEFER);
  ::sigemptyset(&action.sa_mask);
  for (const int signal : kMortels) {
    ::sigaction(signal, &action, nullptr);
  }
  std::atexit([] { FinitSauvegardes(); });
}

} // namespace velmaris
