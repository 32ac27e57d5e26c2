#include "complements/almanach/Arrondis.hpp"
#include "complements/almanach/TablesAlmanach.hpp"
#include "complements/papier/PartiesAlmanach.hpp"

#include <algorithm>
#include <functional>

namespace velmaris {
namespace {

using Mot = MotAlmanach;

constexpr Encre kFilet{0.25, 0.65};
constexpr int kParDegre = 60 / kPasHaversine; ///< entries

/// The angle of an entry: "15 00" on whole degrees, else its minutes.
std::string NomEntree(int rang) {
  const int minutes = rang % kParDegre * kPasHaversine;
  return minutes == 0 ? std::to_string(rang / kParDegre) + "°" : std::to_string(minutes);
}

std::string TexteLogarithme(long n) { return n == kSansLogarithme ? "" : std::to_string(n); }

/// Entries of a table every ten minutes, in columns of whole degrees.
struct Entrees {
  int de = 0; ///< degrees
  int a = 90; ///< the entry there is the last
  int colonnes = 6;
  double chiffres = 23;       ///< width of a column
  std::vector<double> places; ///< ends of its texts within the column, in figures
  std::vector<std::string> tetes;
  std::function<std::vector<std::string>(int)> textes; ///< of an entry, without its name
};

void PoseEntrees(Feuillet &page, const Entrees &e, const std::string &note) {
  const Boite boite = BoiteDe(page);
  const int degres = (e.a - e.de + e.colonnes - 1) / e.colonnes;
  const double lignes = degres * (kParDegre + 0.4) + 4;
  const double interligne = boite.Hauteur() / lignes;
  const double taille = TailleQuiTient(boite.Largeur(), e.chiffres * e.colonnes, interligne);
  const double pas = boite.Largeur() / e.colonnes;
  page.Mot({boite.gauche, boite.haut + 150}, note, {.taille = 7, .italique = true});
  for (int k = 0; k < e.colonnes; ++k) {
    std::vector<Colonne> places;
    for (const double place : e.places) {
      places.push_back({boite.gauche + k * pas + LargeurChiffres(taille, place)});
    }
    const double tete = boite.haut + 2.7 * interligne;
    PoseRangee(page, tete, places, e.tetes, {.taille = taille, .gras = true});
    page.Trait({boite.gauche + k * pas, tete + 0.3 * interligne}, {places.back().x, tete + 0.3 * interligne}, kFilet);
    const int premier = (e.de + k * degres) * kParDegre;
    const int dernier = std::min(e.a, e.de + (k + 1) * degres) * kParDegre;
    const bool fin = dernier == e.a * kParDegre;
    for (int rang = premier; rang < dernier + (fin ? 1 : 0); ++rang) {
      const int ligne = rang - premier;
      const double y = tete + (1.4 + ligne + 0.4 * (ligne / kParDegre)) * interligne;
      PoseRangee(page, y, {places.front()}, {NomEntree(rang)}, {.taille = taille, .gras = rang % kParDegre == 0});
      PoseRangee(page, y, {places.begin() + 1, places.end()}, e.textes(rang), {.taille = taille});
    }
  }
}

Feuillet PageHaversines(const CadreAlmanach &c, const TableHaversines &table, int de, int a) {
  Feuillet page =
      PageTitree(c.format, c.mots[Mot::TitreHaversines], std::to_string(de) + "° - " + std::to_string(a) + "°");
  Entrees e{de, a, 6, 23.5, {4, 12, 21}, {"", c.mots[Mot::Logarithme], c.mots[Mot::Nombre]}, {}};
  e.textes = [&table](int rang) {
    const auto i = static_cast<std::size_t>(rang);
    return std::vector<std::string>{TexteLogarithme(table.logarithmes[i]), std::to_string(table.naturels[i])};
  };
  PoseEntrees(page, e, c.mots[Mot::NoteHaversines]);
  return page;
}

Feuillet PageCosinus(const CadreAlmanach &c) {
  Feuillet page = PageTitree(c.format, c.mots[Mot::TitreCosinus]);
  const std::vector<long> cosinus = LogarithmesCosinus();
  Entrees e{0, 90, 6, 18, {5, 15}, {"", c.mots[Mot::Logarithme]}, {}};
  e.textes = [&cosinus](int rang) {
    return std::vector<std::string>{TexteLogarithme(cosinus[static_cast<std::size_t>(rang)])};
  };
  PoseEntrees(page, e, c.mots[Mot::NoteCosinus]);
  return page;
}

std::vector<std::string> Entiers(const std::vector<double> &valeurs, const std::string &apres) {
  std::vector<std::string> textes;
  std::transform(valeurs.begin(), valeurs.end(), std::back_inserter(textes),
                 [&](double x) { return TexteCourt(x, '.') + apres; });
  return textes;
}

Feuillet PagePolairePremiere(const CadreAlmanach &c) {
  constexpr std::size_t kLignes = 61;
  Feuillet page = PageTitree(c.format, c.mots[Mot::TitrePolaire]);
  const Boite boite = BoiteDe(page);
  const char virgule = VirguleDe(c.mots);
  const std::vector<long> distances = DistancesPolaire(c.almanach);
  const TableDouble table = TablePolaire(distances);
  const double interligne = boite.Hauteur() / 73;
  const double chiffres = 5 + 6 * static_cast<double>(distances.size());
  const double taille = TailleQuiTient(boite.Largeur(), 3 * chiffres + 8, interligne);
  page.Mot({boite.gauche, boite.haut + interligne}, c.mots[Mot::PolairePremiere], {.taille = taille, .gras = true});
  for (std::size_t k = 0; k < 3; ++k) {
    const double gauche = boite.gauche + static_cast<double>(k) * LargeurChiffres(taille, chiffres + 4);
    TableauPose tableau;
    for (const long distance : distances) {
      tableau.colonnes.push_back(TexteDixiemes(distance, virgule) + "'");
    }
    tableau.chiffres = 6;
    for (std::size_t i = k * (kLignes - 1); i < k * (kLignes - 1) + kLignes; ++i) {
      tableau.rangees.push_back(std::to_string(i) + "°");
      tableau.cellules.push_back(TextesDixiemes({table.z[i]}, virgule).front());
    }
    PoseTableau(page, gauche, boite.haut + 1.2 * interligne, taille, interligne * 0.94, tableau);
  }
  return page;
}

Feuillet PagePolaireSeconde(const CadreAlmanach &c) {
  Feuillet page = PageTitree(c.format, c.mots[Mot::TitrePolaire]);
  const Boite boite = BoiteDe(page);
  const char virgule = VirguleDe(c.mots);
  const std::vector<long> distances = DistancesPolaire(c.almanach);
  constexpr double kDixiemes = 10;
  const double distance = static_cast<double>(distances[distances.size() / 2]) / kDixiemes;
  const double interligne = boite.Hauteur() / 64;
  const double taille = TailleQuiTient(boite.Largeur(), 100, interligne);
  double y = boite.haut;
  const auto pose = [&](const std::string &titre, const TableDouble &table) {
    TableauPose tableau{titre, Entiers(table.y, "°"), Entiers(table.x, "°"), TextesDixiemes(table.z, virgule)};
    tableau.chiffres = 7;
    y = PoseTableau(page, boite.gauche, y, taille, interligne, tableau) + interligne;
  };
  pose(c.mots[Mot::PolaireSeconde], TablePolaireHauteur());
  pose(c.mots[Mot::PolaireAzimut], TablePolaireAzimut(distance));
  for (const Mot mot : {Mot::NotePolaire1, Mot::NotePolaire2, Mot::NotePolaire3}) {
    page.Mot({boite.gauche, y += interligne * 1.2}, c.mots[mot], {.taille = std::min(taille, 8.0), .italique = true});
  }
  return page;
}

} // namespace

std::vector<Feuillet> PagesTriangle(const CadreAlmanach &c) {
  const TableHaversines table = Haversines();
  return {PageHaversines(c, table, 0, 90), PageHaversines(c, table, 90, 180), PageCosinus(c)};
}

std::vector<Feuillet> PagesPolaire(const CadreAlmanach &c) { return {PagePolairePremiere(c), PagePolaireSeconde(c)}; }

} // namespace velmaris
