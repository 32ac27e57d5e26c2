#include "calcul/outils/Lot.hpp"

#include <algorithm>
#include <atomic>
#include <future>
#include <span>
#include <thread>

namespace velmaris {
namespace {

constexpr std::size_t kFichiersParLot = 1024; ///< told before anything is written
constexpr std::size_t kParPrise = 8;          ///< that a thread takes at once

/// The files of one lot, each with what is told of it.
struct Lot {
  std::span<const std::string> fichiers;
  std::vector<std::string> sorties;
  std::atomic<std::size_t> suivant{0};
  std::atomic<bool> reussi{true};
};

/// Takes files until none is left.
void Travaille(Lot &lot, const EcritUnFichier &ecrit) {
  for (std::size_t debut = lot.suivant.fetch_add(kParPrise); debut < lot.fichiers.size();
       debut = lot.suivant.fetch_add(kParPrise)) {
    const std::size_t fin = std::min(debut + kParPrise, lot.fichiers.size());
    for (std::size_t i = debut; i < fin; ++i) {
      if (!ecrit(lot.fichiers[i], lot.sorties[i])) {
        lot.reussi = false;
      }
    }
  }
}

/// Works through a lot, this thread among the others.
void Partage(Lot &lot, const EcritUnFichier &ecrit) {
  const std::size_t prises = (lot.fichiers.size() + kParPrise - 1) / kParPrise;
  const std::size_t coeurs =
      std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, std::max<std::size_t>(prises, 1));
  std::vector<std::future<void>> autres;
  for (std::size_t i = 1; i < coeurs; ++i) {
    autres.push_back(std::async(std::launch::async, [&] { Travaille(lot, ecrit); }));
  }
  Travaille(lot, ecrit);
  for (std::future<void> &autre : autres) {
    autre.get();
  }
}

} // namespace

bool TraiteLot(const std::vector<std::string> &fichiers, const EcritUnFichier &ecrit, const VideSortie &vide) {
  bool reussi = true;
  std::span<const std::string> reste(fichiers);
  while (!reste.empty()) {
    Lot lot;
    lot.fichiers = reste.first(std::min(reste.size(), kFichiersParLot));
    lot.sorties.resize(lot.fichiers.size());
    Partage(lot, ecrit);
    std::string sortie;
    for (const std::string &une : lot.sorties) {
      sortie += une;
    }
    reussi = lot.reussi && reussi;
    if (!vide(sortie)) {
      return false;
    }
    reste = reste.subspan(lot.fichiers.size());
  }
  return reussi;
}

} // namespace velmaris
