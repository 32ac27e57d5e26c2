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
  const ZonePage boite = ZoneDe(page);
  const int degres = (e.a - e.de + e.colonnes - 1) / e.colonnes;
  const double lignes = degres * (kParDegre + 0.4) + 4;
  const double interligne = boite.Hauteur() / lignes;
  const double taille = TailleQuiTient(boite.Largeur(), e.chiffres * e.colonnes, interligne);
  const double pas = boite.Largeur() / e.colonnes;
  page.Mot({boite.gauche, boite.haut + 150}, note, {.taille = 7, .italique = true});
  for (int k = 0; k < e.colonnes; ++k) {
    std::vector<Tabulation> places;
    places.reserve(e.places.size());
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
      const int groupe = ligne / kParDegre;
      const double y = tete + (1.4 + ligne + 0.4 * groupe) * interligne;
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

constexpr double kColonneDistance = 6;
constexpr double kNomAngle = 5;

/// The part that goes by the distance from the pole: three columns of sixty degrees.
/// @return how wide it is
double PosePolairePremiere(Feuillet &page, const CadreAlmanach &c, const std::vector<long> &distances,
                           const ZonePage &boite, double taille, double interligne) {
  constexpr std::size_t kLignes = 61;
  const char virgule = VirguleDe(c.mots);
  const TableDouble table = TablePolaire(distances);
  const double pas = LargeurChiffres(taille, kNomAngle + kColonneDistance * static_cast<double>(distances.size()) + 3);
  for (std::size_t k = 0; k < 3; ++k) {
    TableauPose tableau;
    for (const long distance : distances) {
      tableau.colonnes.push_back(TexteDixiemes(distance, virgule) + "'");
    }
    tableau.chiffresNom = kNomAngle;
    tableau.chiffres = kColonneDistance;
    for (std::size_t i = k * (kLignes - 1); i < k * (kLignes - 1) + kLignes; ++i) {
      tableau.rangees.push_back(std::to_string(i) + "°");
      tableau.cellules.push_back(TextesDixiemes({table.z[i]}, virgule).front());
    }
    PoseTableau(page, boite.gauche + static_cast<double>(k) * pas, boite.haut + 2.2 * interligne, taille, interligne,
                tableau);
  }
  return 3 * pas;
}

/// The part that goes by the altitude, the azimuth, and how both are used.
void PosePolaireSeconde(Feuillet &page, const CadreAlmanach &c, const std::vector<long> &distances,
                        const ZonePage &boite, double taille, double interligne) {
  constexpr double kDixiemes = 10;
  const char virgule = VirguleDe(c.mots);
  const double distance = static_cast<double>(distances[distances.size() / 2]) / kDixiemes;
  double y = boite.haut + 2.2 * interligne;
  const auto pose = [&](const std::string &titre, const TableDouble &table) {
    TableauPose tableau{titre, Entiers(table.y, "°"), Entiers(table.x, "°"), TextesDixiemes(table.z, virgule)};
    y = PoseTableau(page, boite.gauche, y, taille, interligne, tableau) + interligne;
  };
  pose(c.mots[Mot::PolaireSeconde], TablePolaireHauteur());
  pose(c.mots[Mot::PolaireAzimut], TablePolaireAzimut(distance));
}

void PoseNotesPolaire(Feuillet &page, const CadreAlmanach &c) {
  constexpr double kNote = 7.5;
  constexpr double kInterligne = 190;
  const ZonePage boite = ZoneDe(page);
  double y = boite.bas - 3.3 * kInterligne;
  for (const Mot mot : {Mot::NotePolaire1, Mot::NotePolaire2, Mot::NotePolaire3}) {
    page.Mot({boite.gauche, y += kInterligne}, c.mots[mot], {.taille = kNote, .italique = true});
  }
}

} // namespace

std::vector<Feuillet> PagesTriangle(const CadreAlmanach &c) {
  const TableHaversines table = Haversines();
  return {PageHaversines(c, table, 0, 90), PageHaversines(c, table, 90, 180), PageCosinus(c)};
}

std::vector<Feuillet> PagesPolaire(const CadreAlmanach &c) {
  constexpr std::size_t kEnsemble = 3; ///< so many distances leave no room for the second part beside the first
  const std::vector<long> distances = DistancesPolaire(c.almanach);
  const bool ensemble = distances.size() < kEnsemble;
  std::vector<Feuillet> pages{PageTitree(c.format, c.mots[Mot::TitrePolaire])};
  ZonePage boite = ZoneDe(pages.back());
  const double interligne = boite.Hauteur() / 82;
  const double premiere = 3 * (kNomAngle + kColonneDistance * static_cast<double>(distances.size()) + 3);
  const double taille = TailleQuiTient(boite.Largeur(), ensemble ? 118 : premiere, interligne);
  pages.back().Mot({boite.gauche, boite.haut + interligne}, c.mots[Mot::PolairePremiere],
                   {.taille = taille, .gras = true});
  const double largeur = PosePolairePremiere(pages.back(), c, distances, boite, taille, interligne);
  if (ensemble) {
    boite.gauche += largeur + LargeurChiffres(taille, 3);
  } else {
    pages.push_back(PageTitree(c.format, c.mots[Mot::TitrePolaire]));
  }
  PosePolaireSeconde(pages.back(), c, distances, boite,
                     ensemble ? taille : TailleQuiTient(boite.Largeur(), 100, interligne), interligne);
  PoseNotesPolaire(pages.back(), c);
  return pages;
}

} // namespace velmaris
