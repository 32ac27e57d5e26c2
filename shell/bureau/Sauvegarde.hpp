#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace velmaris {

/// A text file kept up to date in the background, for the day that the program dies: it is always whole, an old text or
/// a newer one. One program at a time keeps it; another one beside it takes its turn when the first has ended.
class Sauvegarde {
public:
  /// Makes the folder where it is missing. A file that an earlier program left is set aside, so that it can still be
  /// read, unless another program keeps it now.
  /// @param fichier   the file that is kept
  /// @param derniere  the name that an earlier one is set aside under; an older one of that name goes
  Sauvegarde(std::filesystem::path fichier, std::filesystem::path derniere);
  /// Waits until what was given is written; the file stays.
  ~Sauvegarde();
  Sauvegarde(const Sauvegarde &) = delete;
  Sauvegarde &operator=(const Sauvegarde &) = delete;
  Sauvegarde(Sauvegarde &&) = delete;
  Sauvegarde &operator=(Sauvegarde &&) = delete;

  /// Gives the file its new text: a thread writes it beside the file, flushes it and renames it, and of several texts
  /// given meanwhile the last. The caller waits for no disk. The text that was given last is not written again.
  void Donne(std::string texte);

  /// Waits until what was given is on the disk, or has been refused by it.
  void Attend();

  /// The file isn't needed any more: it goes, and nothing more is written.
  void Abandonne();

  /// What was given isn't to be kept: the file goes, and the next text makes it anew.
  void Retire();

  /// Whether a file that an earlier program left was set aside at the start.
  bool misDeCote() const { return misDeCote_; }

  /// Whether this program keeps the file, and no other.
  bool tenue();

  /// How often the file was written.
  std::uint64_t ecritures() const { return ecritures_; }

private:
  /// A text that is ready to be written by a signal's handler, with the names that it needs.
  struct Pret {
    std::string texte;
    std::string fichier;
    std::string provisoire;
  };

  friend void FinitSauvegardes() noexcept;

  bool TientVerrou();
  bool PrendTour();
  std::string NomVerrou() const;
  void Ecrit(std::unique_lock<std::mutex> &verrou);
  void Travaille();
  void Arrete();

  std::filesystem::path fichier_;
  std::filesystem::path derniere_;
  std::string provisoire_;
  bool misDeCote_ = false;
  int numeroVerrou_ = -1; ///< of the lock's file, held while this program keeps the file
  std::mutex mutex_;
  std::condition_variable signal_;
  std::string donnee_;         ///< the text given last
  std::uint64_t donnees_ = 0;  ///< texts given
  std::uint64_t traitees_ = 0; ///< of them, those written, passed over or refused
  std::atomic<std::uint64_t> ecritures_ = 0;
  bool fini_ = false;
  std::atomic<Pret *> aFinir_ = nullptr; ///< given and not yet written
  std::atomic<bool> mourante_ = false;   ///< a handler has taken over: nothing else is renamed
  std::thread ouvrier_;
};

/// Writes what the Sauvegarde that was given a text last hasn't written yet. Calls nothing but what a signal's handler
/// may call.
void FinitSauvegardes() noexcept;

/// From here on a signal that kills (a bad address, an abort, a bad instruction or division) finishes the Sauvegarde
/// first, also where the stack is full, and then kills as ever; so does an exit in the middle of everything.
void PoseSignauxMortels();

} // namespace velmaris
