#include "tools/MesureTheorie.hpp"

#include <charconv>
#include <cstring>
#include <iostream>

/// Writes the table of told figures against the sky of today, of docs/EXACTITUDE.md.
/// Use: table-exactitude [how many sights of each line, 20000]
int main(int argc, char **argv) {
  using namespace velmaris;
  int nombre = 20000;
  if (argc > 1) {
    const char *const fin = argv[1] + std::strlen(argv[1]);
    if (argc > 2 || std::from_chars(argv[1], fin, nombre).ptr != fin || nombre < 1) {
      std::cerr << "Use: table-exactitude [how many sights of each line]\n";
      return 2;
    }
  }
  constexpr std::uint64_t kGraine = 2020;
  std::cout << TeteDeTable();
  for (const GroupeVisees &groupe : GroupesDeLaTable()) {
    // Few sights lose their sign: a tenth as many take as long.
    const int assez = groupe.signePerdu ? (nombre + 9) / 10 : nombre;
    std::cout << LigneDeTable(groupe, Mesure(groupe, assez, kGraine)) << std::flush;
  }
  return 0;
}
