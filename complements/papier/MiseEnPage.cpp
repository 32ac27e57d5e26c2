#include "complements/papier/MiseEnPage.hpp"

#include "complements/almanach/Arrondis.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmaris {
namespace {

constexpr double kMarge = 640;
constexpr double kTitre = 11;        ///< points
constexpr double kPied = 6.5;        ///< points
constexpr double kHautTitre = 260;   ///< from the margin to the title's base line
constexpr double kSousTitre = 100;   ///< from there to the rule
constexpr double kHauteurPied = 380; ///< above the lower margin
constexpr double kInterlignePied = 150;
constexpr double kChiffre = 0.556; ///< width of a figure of the type family, in its size
constexpr double kPart = 0.86;     ///< of a line's height that a size may take
constexpr Encre kFilet{0.5, 0.45};
constexpr Encre kFiletFin{0.25, 0.65};

} // namespace

Feuillet PageTitree(FormatPapier format, const std::string &gauche, const std::string &droite) {
  Feuillet page = FeuilletVide(format);
  page.titre = droite.empty() ? gauche : gauche + " - " + droite;
  const double y = kMarge + kHautTitre;
  page.Mot({kMarge, y}, gauche, {.taille = kTitre, .gras = true});
  if (!droite.empty()) {
    page.Mot({page.largeur - kMarge, y}, droite, {.taille = kTitre, .ancrage = Ancrage::Droite});
  }
  page.Trait({kMarge, y + kSousTitre}, {page.largeur - kMarge, y + kSousTitre}, kFilet);
  return page;
}

ZonePage ZoneDe(const Feuillet &page) {
  return {kMarge, kMarge + kHautTitre + kSousTitre + 60, page.largeur - kMarge, page.hauteur - kMarge - kHauteurPied};
}

void PosePied(Feuillet &page, const std::string &ligne1, const std::string &ligne2, const std::string &numero) {
  const double y = page.hauteur - kMarge;
  const double filet = y - kHauteurPied + 60;
  page.Trait({kMarge, filet}, {page.largeur - kMarge, filet}, kFilet);
  page.Mot({kMarge, y - kInterlignePied}, ligne1, {.taille = kPied});
  page.Mot({kMarge, y}, ligne2, {.taille = kPied});
  page.Mot({page.largeur - kMarge, y}, numero, {.taille = 8, .gras = true, .ancrage = Ancrage::Droite});
}

double LargeurChiffres(double taille, double nombre) { return taille * kTwipsParPoint * kChiffre * nombre; }

double TailleQuiTient(double largeur, double chiffres, double interligne) {
  return std::min(largeur / (kTwipsParPoint * kChiffre * chiffres), interligne / kTwipsParPoint * kPart);
}

void PoseRangee(Feuillet &page, double y, const std::vector<Tabulation> &colonnes,
                const std::vector<std::string> &textes, Graphie graphie) {
  const std::size_t nombre = std::min(colonnes.size(), textes.size());
  for (std::size_t i = 0; i < nombre; ++i) {
    if (!textes[i].empty()) {
      graphie.ancrage = colonnes[i].ancrage;
      page.Mot({colonnes[i].x, y}, textes[i], graphie);
    }
  }
}

std::vector<Tabulation> ColonnesDroites(double gauche, double taille, const std::vector<double> &chiffres) {
  std::vector<Tabulation> colonnes;
  double x = gauche;
  for (const double nombre : chiffres) {
    x += LargeurChiffres(taille, nombre);
    colonnes.push_back({x});
  }
  return colonnes;
}

double PoseTableau(Feuillet &page, double gauche, double haut, double taille, double interligne,
                   const TableauPose &tableau) {
  constexpr double kJeu = 0.35; ///< lines between two groups of rows
  std::vector<double> chiffres(tableau.colonnes.size() + 1, tableau.chiffres);
  chiffres.front() = tableau.chiffresNom;
  const std::vector<Tabulation> colonnes = ColonnesDroites(gauche, taille, chiffres);
  double y = haut;
  if (!tableau.titre.empty()) {
    page.Mot({gauche, y += interligne}, tableau.titre, {.taille = taille + 0.5, .gras = true});
  }
  std::vector<std::string> textes{""};
  textes.insert(textes.end(), tableau.colonnes.begin(), tableau.colonnes.end());
  PoseRangee(page, y += interligne * 1.15, colonnes, textes, {.taille = taille, .gras = true});
  const double filet = y + interligne * 0.3;
  page.Trait({gauche, filet}, {colonnes.back().x, filet}, kFiletFin);
  y += interligne * 0.3;
  for (std::size_t i = 0; i < tableau.rangees.size(); ++i) {
    y += i > 0 && i % tableau.groupe == 0 ? interligne * (1 + kJeu) : interligne;
    PoseRangee(page, y, {colonnes.front()}, {tableau.rangees[i]}, {.taille = taille, .gras = true});
    PoseRangee(page, y, {colonnes.begin() + 1, colonnes.end()}, tableau.cellules[i], {.taille = taille});
  }
  return y + interligne * 0.6;
}

std::vector<std::vector<std::string>> TextesDixiemes(const std::vector<std::vector<long>> &z, char virgule) {
  std::vector<std::vector<std::string>> textes;
  for (const std::vector<long> &rangee : z) {
    textes.emplace_back();
    for (const long dixiemes : rangee) {
      textes.back().push_back(TexteDixiemes(dixiemes, virgule));
    }
  }
  return textes;
}

std::string TexteCourt(double x, char virgule) {
  const long dixiemes = ArrondiDixieme(x);
  return dixiemes % 10 == 0 ? std::to_string(dixiemes / 10) : TexteDixiemes(dixiemes, virgule);
}

std::string TexteDegresMinutes(double degres) {
  const long minutes = std::lround(degres * 60);
  const std::string reste = std::to_string(minutes % 60);
  return std::to_string(minutes / 60) + (reste.size() < 2 ? " 0" : " ") + reste;
}

std::string TexteDateAlmanach(int jour, int mois, int annee, const MotsAlmanach &mots) {
  const auto premier = static_cast<std::size_t>(MotAlmanach::Janvier);
  return std::to_string(jour) + ' ' + mots.textes[premier + static_cast<std::size_t>(mois) - 1] + ' ' +
         std::to_string(annee);
}

char VirguleDe(const MotsAlmanach &mots) {
  const std::string &virgule = mots[MotAlmanach::Virgule];
  return virgule.empty() ? '.' : virgule.front();
}

} // namespace velmaris
