#include "shell/serie/AstresListe.hpp"

#include "shell/complements/Mots.hpp"

#include <algorithm>
#include <array>

namespace velmaris {
namespace {

std::vector<Astre> Astres(bool avecLune) {
  std::vector<Astre> astres = {{GenreAstre::Soleil, 0}};
  if (avecLune) {
    astres.push_back({GenreAstre::Lune, 0});
  }
  for (const GenreAstre genre : {GenreAstre::Venus, GenreAstre::Mars, GenreAstre::Jupiter, GenreAstre::Saturne}) {
    astres.push_back({genre, 0});
  }
  for (int rang = 1; rang <= kNombreEtoiles; ++rang) {
    if (rang != kRangSansPlace) {
      astres.push_back({GenreAstre::Etoile, rang});
    }
  }
  return astres;
}

void PoseNoms(const Bureau &bureau, Controle &liste, bool avecLune) {
  liste.liste.clear();
  for (const Astre &astre : AstresAChoisir(avecLune)) {
    liste.liste.push_back(NomDAstre(bureau, astre));
  }
  PoseChoisi(liste, static_cast<std::size_t>(std::max(0, liste.rang)));
}

void PoseMots(Controle &liste, const std::array<Controle, 3> &mots) {
  liste.liste.clear();
  for (const Controle &mot : mots) {
    liste.liste.push_back(mot.legende);
  }
  PoseChoisi(liste, static_cast<std::size_t>(std::max(0, liste.rang)));
}

} // namespace

const std::vector<Astre> &AstresAChoisir(bool avecLune) {
  static const std::vector<Astre> avec = Astres(true);
  static const std::vector<Astre> sans = Astres(false);
  return avecLune ? avec : sans;
}

std::size_t PlaceDansLaListe(const Astre &astre, bool avecLune) {
  const std::vector<Astre> &astres = AstresAChoisir(avecLune);
  const auto ici = std::find(astres.begin(), astres.end(), astre);
  return ici == astres.end() ? 0 : static_cast<std::size_t>(ici - astres.begin());
}

void PoseListes(Bureau &bureau) {
  FenetreSerie &f = bureau.fenetreSerie;
  PoseNoms(bureau, f.Combo1, true);
  PoseNoms(bureau, f.Combo3, false);
  PoseMots(f.Combo2, f.MotBord);
  PoseMots(f.Combo4, f.MotBordDistance);
  PoseMots(f.Combo5, f.MotBordDistance);
  PoseMots(f.Combo6, f.MotBord);
  PoseMots(f.Combo7, f.MotBord);
}

void PoseChoisi(Controle &liste, std::size_t rang) {
  liste.rang = static_cast<int>(rang);
  liste.texte = rang < liste.liste.size() ? liste.liste[rang] : std::string();
}

Astre AstreDeLaListe(const Controle &liste, bool avecLune) {
  const std::vector<Astre> &astres = AstresAChoisir(avecLune);
  return astres.at(std::min(static_cast<std::size_t>(std::max(0, liste.rang)), astres.size() - 1));
}

} // namespace velmaris
