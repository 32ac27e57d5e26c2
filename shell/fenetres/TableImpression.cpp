#include "shell/fenetres/Acces.hpp"
#include "shell/fenetres/Impression.hpp"

#include <utility>

namespace velmaris {
namespace {

using Fenetre = Impression;

constexpr std::size_t kRangees = 4;
constexpr std::string_view kRangee = "Frame4";
constexpr double kHautEntetes = 300; ///< of a row's first heading, 1/1440 inch under the row's top
constexpr double kPasEntetes = 240;  ///< from one heading to the next
constexpr std::array<std::string_view, kEntetesRangee> kEntetes = {"heure", "Latitude", "Longitude", "Azimuth ",
                                                                   "Intercept"};

// One control a line.
// clang-format off
// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr LigneImpression kPage[] = {
    {SEUL(Image1), Genre::Surface, "", {15, 15, 15120, 9330}, "", "", {.peint = true, .par = "TextePage"}},
    {SEUL(Frame1), Genre::Groupe, "", {12810, 2910, 1995, 750}},
    {SEUL(Command1), Genre::Bouton, "Frame1", {120, 120, 1755, 510}, "Imprimer", "", {.role = Role::Defaut, .image = "imprime"}},
    {RANG(Frame4, 0), Genre::Groupe, "", {60, 9240, 2660, 1600}, "", "", {.visible = false, .peint = true}},
    {RANG(Frame4, 1), Genre::Groupe, "", {2850, 9240, 2660, 1600}, "", "", {.visible = false, .peint = true}},
    {RANG(Frame4, 2), Genre::Groupe, "", {5610, 9240, 2660, 1600}, "", "", {.visible = false, .peint = true}},
    {RANG(Frame4, 3), Genre::Groupe, "", {8355, 9240, 2660, 1600}, "", "", {.visible = false, .peint = true}},
    {SEUL(TextePage), Genre::Texte, "", {}, "Page à imprimer"},
};
// clang-format on

using Entetes = std::array<LigneImpression, kRangees * kEntetesRangee>;

constexpr Place PlaceEntete(std::size_t rang, double gauche, double largeur) {
  return {gauche, kHautEntetes + kPasEntetes * static_cast<double>(rang % kEntetesRangee), largeur, 225};
}

template <std::size_t... I> constexpr Entetes LignesEntetes(std::index_sequence<I...> /*rangs*/) {
  return {LigneImpression{RANG(Entete, I),
                          Genre::Etiquette,
                          kRangee,
                          PlaceEntete(I, 120, 840),
                          kEntetes[I % kEntetesRangee],
                          "",
                          {.peint = true}}...};
}

template <std::size_t... I> constexpr Entetes LignesEgalites(std::index_sequence<I...> /*rangs*/) {
  return {LigneImpression{
      RANG(Egalite, I), Genre::Etiquette, kRangee, PlaceEntete(I, 960, 240), "  =", "", {.peint = true}}...};
}

using Valeurs = std::array<LigneImpression, kRangees>;

constexpr Place PlaceValeur(std::size_t entete) { return PlaceEntete(entete, 1200, 1400); }

template <std::size_t... I>
constexpr std::array<Valeurs, kEntetesRangee> LignesValeurs(std::index_sequence<I...> /*rangs*/) {
  constexpr Genre kGenre = Genre::Etiquette;
  constexpr Traits kPeint{.peint = true};
  return {
      Valeurs{LigneImpression{RANG(Label32, I), kGenre, kRangee, PlaceValeur(0), "00:00:00", "", kPeint}...},
      Valeurs{LigneImpression{RANG(Label33, I), kGenre, kRangee, PlaceValeur(1), "00°00' N", "", kPeint}...},
      Valeurs{LigneImpression{RANG(Label34, I), kGenre, kRangee, PlaceValeur(2), "000°00' W", "", kPeint}...},
      Valeurs{LigneImpression{RANG(Label35, I), kGenre, kRangee, PlaceValeur(3), "000°", "", kPeint}...},
      Valeurs{LigneImpression{RANG(Label36, I), kGenre, kRangee, PlaceValeur(4), "00.0'", "", kPeint}...},
  };
}

constexpr Entetes kLignesEntetes = LignesEntetes(std::make_index_sequence<kRangees * kEntetesRangee>());
constexpr Entetes kLignesEgalites = LignesEgalites(std::make_index_sequence<kRangees * kEntetesRangee>());
constexpr std::array<Valeurs, kEntetesRangee> kLignesValeurs = LignesValeurs(std::make_index_sequence<kRangees>());

} // namespace

std::span<const std::span<const LigneImpression>> TableImpression() {
  static const std::array<std::span<const LigneImpression>, 3 + kEntetesRangee> morceaux = {kPage,
                                                                                            kLignesEntetes,
                                                                                            kLignesEgalites,
                                                                                            kLignesValeurs[0],
                                                                                            kLignesValeurs[1],
                                                                                            kLignesValeurs[2],
                                                                                            kLignesValeurs[3],
                                                                                            kLignesValeurs[4]};
  return morceaux;
}

void InitialiseImpression(Impression &page) {
  PourChaque(page, [](const LigneImpression &ligne, Controle &c) { c = ControleNeuf(ligne, kFenetreImpression); });
}

std::array<const Controle *, kEtiquettesRangee> EtiquettesDe(const Impression &page, std::size_t rangee) {
  std::array<const Controle *, kEtiquettesRangee> etiquettes = {&page.Label32.at(rangee), &page.Label33.at(rangee),
                                                                &page.Label34.at(rangee), &page.Label35.at(rangee),
                                                                &page.Label36.at(rangee)};
  for (std::size_t i = 0; i < kEntetesRangee; ++i) {
    etiquettes.at(kEntetesRangee + i) = &page.Entete.at(rangee * kEntetesRangee + i);
    etiquettes.at(2 * kEntetesRangee + i) = &page.Egalite.at(rangee * kEntetesRangee + i);
  }
  return etiquettes;
}

} // namespace velmaris
