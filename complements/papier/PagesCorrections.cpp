#include "complements/almanach/Arrondis.hpp"
#include "complements/almanach/TablesAlmanach.hpp"
#include "complements/papier/PartiesAlmanach.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

using Mot = MotAlmanach;

constexpr double kNote = 7.5; ///< points

/// All from the least to the greatest.
std::vector<long> Etendue(const std::vector<long> &valeurs) {
  const auto [bas, haut] = std::minmax_element(valeurs.begin(), valeurs.end());
  std::vector<long> etendue;
  for (long valeur = *bas; valeur <= *haut; ++valeur) {
    etendue.push_back(valeur);
  }
  return etendue;
}

std::vector<std::string> Dixiemes(const std::vector<long> &valeurs, char virgule) {
  std::vector<std::string> textes;
  std::transform(valeurs.begin(), valeurs.end(), std::back_inserter(textes),
                 [virgule](long d) { return TexteDixiemes(d, virgule); });
  return textes;
}

std::vector<std::string> Courts(const std::vector<double> &valeurs, char virgule) {
  std::vector<std::string> textes;
  std::transform(valeurs.begin(), valeurs.end(), std::back_inserter(textes),
                 [virgule](double x) { return TexteCourt(x, virgule); });
  return textes;
}

/// Altitudes of a table, from one of them to before another.
struct Tranche {
  std::size_t de;
  std::size_t a;
};

/// Corrections of Sun and stars, as all their columns share them.
struct CorrectionsSoleil {
  std::vector<long> demis; ///< semidiameters, tenths of a minute
  TableSimple etoiles;
  TableDouble inferieur;
  TableDouble superieur;
  double colonne = 0; ///< width of a semidiameter's column, in figures
  double largeur = 0; ///< of all columns
};

constexpr double kNomHauteur = 6.5;
constexpr double kColonneEtoiles = 7.5;
constexpr double kEntreBords = 2;

CorrectionsSoleil CorrectionsDe(const Almanach &almanach) {
  constexpr double kEtroite = 5.6;
  constexpr double kTete = 10; ///< what a limb's name needs
  CorrectionsSoleil t;
  t.demis = DemiDiametresSoleil(almanach);
  t.etoiles = TableRefraction();
  t.inferieur = TableSoleil(t.demis, false);
  t.superieur = TableSoleil(t.demis, true);
  const auto nombre = static_cast<double>(t.demis.size());
  t.colonne = std::max(kEtroite, kTete / nombre);
  t.largeur = kNomHauteur + kColonneEtoiles + 2 * (kEntreBords + nombre * t.colonne);
  return t;
}

/// Corrections for some altitudes.
/// @param boite  its width isn't looked at
void PoseCorrections(Feuillet &page, const CadreAlmanach &c, const CorrectionsSoleil &t, const Tranche &tranche,
                     const ZonePage &boite, double taille, double interligne) {
  const char virgule = VirguleDe(c.mots);
  std::vector<Tabulation> places = ColonnesDroites(boite.gauche, taille, {kNomHauteur, kColonneEtoiles});
  std::vector<std::string> tetes{c.mots[Mot::HauteurApparente], c.mots[Mot::EtoilesPlanetes]};
  const std::vector<std::string> demis = Dixiemes(t.demis, virgule);
  const double haut = boite.haut + 1.2 * interligne;
  page.Mot({places.back().x + LargeurChiffres(taille, kEntreBords + 1), haut}, c.mots[Mot::SoleilDemiDiametre],
           {.taille = taille, .gras = true});
  for (const Mot bord : {Mot::BordInferieur, Mot::BordSuperieur}) {
    const double gauche = places.back().x + LargeurChiffres(taille, kEntreBords);
    const std::vector<Tabulation> suite = ColonnesDroites(gauche, taille, std::vector<double>(demis.size(), t.colonne));
    page.Mot({gauche + LargeurChiffres(taille, 1), haut + 1.1 * interligne}, c.mots[bord],
             {.taille = taille, .gras = true});
    places.insert(places.end(), suite.begin(), suite.end());
    tetes.insert(tetes.end(), demis.begin(), demis.end());
  }
  double y = haut + 2.2 * interligne;
  std::vector<Tabulation> sousTetes = places;
  sousTetes.front() = {boite.gauche, Ancrage::Gauche}; // the word is wider than its figures
  PoseRangee(page, y, sousTetes, tetes, {.taille = taille, .gras = true});
  page.Trait({boite.gauche, y + 0.3 * interligne}, {places.back().x, y + 0.3 * interligne}, {0.25, 0.65});
  y += 0.3 * interligne;
  for (std::size_t i = tranche.de; i < tranche.a; ++i) {
    y += (i > tranche.de && (i - tranche.de) % 6 == 0 ? 1.35 : 1) * interligne;
    std::vector<std::string> textes{TexteDixiemes(-t.etoiles.y[i], virgule)};
    for (const TableDouble *table : {&t.inferieur, &t.superieur}) {
      const std::vector<std::string> autres = Dixiemes(table->z[i], virgule);
      textes.insert(textes.end(), autres.begin(), autres.end());
    }
    PoseRangee(page, y, {places.front()}, {TexteDegresMinutes(t.etoiles.x[i])}, {.taille = taille, .gras = true});
    PoseRangee(page, y, {places.begin() + 1, places.end()}, textes, {.taille = taille});
  }
}

/// Low altitudes left and high ones right, on a page each where the semidiameters are many.
std::vector<Feuillet> PagesSoleil(const CadreAlmanach &c) {
  constexpr std::size_t kBasses = 61; ///< altitudes up to 10 degrees
  constexpr std::size_t kEnsemble = 4;
  const CorrectionsSoleil t = CorrectionsDe(c.almanach);
  const std::size_t toutes = t.etoiles.x.size();
  const bool ensemble = t.demis.size() < kEnsemble;
  std::vector<Feuillet> pages;
  for (const Tranche &tranche : {Tranche{0, kBasses}, Tranche{kBasses - 1, toutes}}) {
    const bool suite = ensemble && !pages.empty();
    if (!suite) {
      pages.push_back(PageTitree(c.format, c.mots[Mot::TitreCorrections]));
    }
    Feuillet &page = pages.back();
    ZonePage boite = ZoneDe(page);
    const double interligne = boite.Hauteur() / 77;
    const double chiffres = ensemble ? 2 * t.largeur + 8 : t.largeur;
    const double taille = TailleQuiTient(boite.Largeur(), chiffres, interligne);
    boite.gauche += suite ? LargeurChiffres(taille, t.largeur + 8) : 0;
    PoseCorrections(page, c, t, tranche, boite, taille, interligne);
    if (!suite) {
      page.Mot({boite.gauche, boite.bas - 1.3 * interligne}, c.mots[Mot::NoteCorrections],
               {.taille = kNote, .italique = true});
      page.Mot({boite.gauche, boite.bas - 0.1 * interligne}, c.mots[Mot::NoteAir], {.taille = kNote, .italique = true});
    }
  }
  return pages;
}

/// A simple table in columns side by side.
/// @return how wide it is
double PoseListe(Feuillet &page, double gauche, double haut, double taille, double interligne,
                 const std::vector<std::string> &noms, const std::vector<std::string> &valeurs, const std::string &tete,
                 const std::string &nom, std::size_t hauteur) {
  constexpr double kLargeur = 5;
  const std::size_t nombre = (noms.size() + hauteur - 1) / hauteur;
  for (std::size_t k = 0; k < nombre; ++k) {
    const double x = gauche + static_cast<double>(k) * LargeurChiffres(taille, 2 * kLargeur + 3);
    const std::vector<Tabulation> colonnes = ColonnesDroites(x, taille, {kLargeur, kLargeur});
    double y = haut;
    PoseRangee(page, y, colonnes, {nom, tete}, {.taille = taille, .gras = true});
    y += 0.3 * interligne;
    for (std::size_t i = k * hauteur; i < std::min(noms.size(), (k + 1) * hauteur); ++i) {
      y += (i > k * hauteur && (i - k * hauteur) % 5 == 0 ? 1.35 : 1) * interligne;
      PoseRangee(page, y, {colonnes[0]}, {noms[i]}, {.taille = taille, .gras = true});
      PoseRangee(page, y, {colonnes[1]}, {valeurs[i]}, {.taille = taille});
    }
  }
  return static_cast<double>(nombre) * LargeurChiffres(taille, 2 * kLargeur + 3);
}

/// Parallax of planets and what another air changes.
void PoseAir(Feuillet &page, const CadreAlmanach &c, double gauche, double haut, double taille, double interligne) {
  constexpr double kColonne = 4.7;
  const char virgule = VirguleDe(c.mots);
  const TableDouble parallaxe = TableParallaxe();
  TableauPose tableau{c.mots[Mot::ParallaxePlanetes], {}, {}, TextesDixiemes(parallaxe.z, virgule), 5, kColonne};
  for (const double hp : parallaxe.y) {
    tableau.colonnes.push_back(TexteDixiemes(std::lround(hp), virgule));
  }
  for (const double h : parallaxe.x) {
    tableau.rangees.push_back(TexteCourt(h, virgule) + "°");
  }
  double y = PoseTableau(page, gauche, haut, taille, interligne, tableau) + interligne;
  const TableDouble air = TableAir();
  TableauPose pourCent{c.mots[Mot::AirPourCent], Courts(air.y, virgule), Courts(air.x, virgule), {}, 5, kColonne};
  for (const std::vector<long> &rangee : air.z) {
    pourCent.cellules.emplace_back();
    for (const long n : rangee) {
      pourCent.cellules.back().push_back((n > 0 ? "+" : "") + std::to_string(n));
    }
  }
  y = PoseTableau(page, gauche, y, taille, interligne, pourCent) + interligne;
  const TableDouble correction = TableCorrectionAir();
  TableauPose suite{c.mots[Mot::AirCorrection],
                    Courts(correction.y, virgule),
                    Courts(correction.x, virgule),
                    TextesDixiemes(correction.z, virgule),
                    5,
                    kColonne};
  for (std::string &nom : suite.colonnes) {
    nom.insert(0, 1, '+');
  }
  y = PoseTableau(page, gauche, y, taille, interligne, suite);
  page.Mot({gauche, y + 0.5 * interligne}, c.mots[Mot::NoteAirNegatif], {.taille = kNote, .italique = true});
}

Feuillet PageDepression(const CadreAlmanach &c) {
  constexpr std::size_t kLignes = 45;
  Feuillet page = PageTitree(c.format, c.mots[Mot::TitreDepression]);
  const ZonePage boite = ZoneDe(page);
  const char virgule = VirguleDe(c.mots);
  const double interligne = boite.Hauteur() / 76;
  const double taille = TailleQuiTient(boite.Largeur(), 118, interligne);
  double y = boite.haut + interligne;
  page.Mot({boite.gauche, y}, c.mots[Mot::Depression], {.taille = taille + 0.5, .gras = true});
  page.Mot({boite.gauche + LargeurChiffres(taille, 12), y}, c.mots[Mot::NoteDepression],
           {.taille = taille, .italique = true});
  y += 1.5 * interligne;
  const TableSimple metres = TableDepression();
  const TableSimple pieds = TableDepressionPieds();
  const double large = PoseListe(page, boite.gauche, y, taille, interligne, Courts(metres.x, virgule),
                                 Dixiemes(metres.y, virgule), "'", c.mots[Mot::Metres], kLignes);
  const double suite = boite.gauche + large;
  const double pris = PoseListe(page, suite, y, taille, interligne, Courts(pieds.x, virgule),
                                Dixiemes(pieds.y, virgule), "'", c.mots[Mot::Pieds], kLignes);
  PoseAir(page, c, suite + pris + LargeurChiffres(taille, 1), boite.haut, taille, interligne);
  return page;
}

/// The Moon's first part: each column five degrees, each row ten minutes.
double PoseLunePremiere(Feuillet &page, const CadreAlmanach &c, const ZonePage &boite, double taille,
                        double interligne) {
  constexpr std::size_t kParDegre = 6;
  constexpr std::size_t kParColonne = 30;
  const char virgule = VirguleDe(c.mots);
  const TableSimple lune = TableBordLune();
  const double pas = boite.Largeur() / 18;
  double fin = boite.haut;
  page.Mot({boite.gauche, boite.haut + interligne}, c.mots[Mot::LunePremiere], {.taille = taille + 0.5, .gras = true});
  for (std::size_t i = 0; i < lune.x.size(); ++i) {
    const std::size_t rang = i % kParColonne;
    const std::size_t colonne = i / kParColonne;
    const std::size_t groupe = rang / kParDegre;
    const double x = boite.gauche + static_cast<double>(colonne) * pas;
    const double y = boite.haut + (2.3 + static_cast<double>(rang) + 0.4 * static_cast<double>(groupe)) * interligne;
    const bool degre = i % kParDegre == 0;
    const std::string nom = degre ? TexteCourt(lune.x[i], virgule) + "°" : std::to_string(i % kParDegre * 10);
    page.Mot({x + LargeurChiffres(taille, 2.9), y}, nom, {.taille = taille, .gras = degre, .ancrage = Ancrage::Droite});
    page.Mot({x + pas * 0.9, y}, TexteDixiemes(lune.y[i], virgule), {.taille = taille, .ancrage = Ancrage::Droite});
    fin = std::max(fin, y);
  }
  for (int k = 1; k < 18; ++k) {
    const double x = boite.gauche + (k - 0.02) * pas;
    page.Trait({x, boite.haut + 1.5 * interligne}, {x, fin + 0.3 * interligne}, {0.25, 0.65});
  }
  return fin + 1.5 * interligne;
}

Feuillet PageLunePremiere(const CadreAlmanach &c) {
  Feuillet page = PageTitree(c.format, c.mots[Mot::TitreLune]);
  const ZonePage boite = ZoneDe(page);
  const char virgule = VirguleDe(c.mots);
  const double interligne = boite.Hauteur() / 59;
  const double taille = TailleQuiTient(boite.Largeur(), 145, interligne);
  double y = PoseLunePremiere(page, c, boite, taille, interligne);
  page.Mot({boite.gauche, y += interligne}, c.mots[Mot::FormeTerre], {.taille = taille, .gras = true});
  const std::vector<double> latitudes = LatitudesFormeTerre();
  const double pas = boite.Largeur() / 3;
  double fin = y;
  for (std::size_t i = 0; i < latitudes.size(); ++i) {
    const TableDouble forme = TableFormeTerre(latitudes[i]);
    TableauPose tableau{c.mots[Mot::Latitude] + ' ' + TexteCourt(latitudes[i], virgule) + "°", Courts(forme.y, virgule),
                        Courts(forme.x, virgule), TextesDixiemes(forme.z, virgule)};
    const std::size_t etage = i / 3;
    const double haut = y + static_cast<double>(etage) * 8.5 * interligne;
    fin = std::max(
        fin, PoseTableau(page, boite.gauche + static_cast<double>(i % 3) * pas, haut, taille, interligne, tableau));
  }
  page.Mot({boite.gauche, fin + 1.2 * interligne}, c.mots[Mot::NoteLune], {.taille = taille, .italique = true});
  return page;
}

Feuillet PageLuneSeconde(const CadreAlmanach &c) {
  Feuillet page = PageTitree(c.format, c.mots[Mot::TitreLune]);
  const ZonePage boite = ZoneDe(page);
  const char virgule = VirguleDe(c.mots);
  const double interligne = boite.Hauteur() / 68;
  const double taille = TailleQuiTient(boite.Largeur(), 5.5 + 19 * 6.2, interligne);
  double y = boite.haut;
  for (const bool superieur : {false, true}) {
    const TableDouble seconde = TableLuneParallaxe(superieur);
    TableauPose tableau{c.mots[superieur ? Mot::LuneSecondeSup : Mot::LuneSeconde],
                        {},
                        {},
                        TextesDixiemes(seconde.z, virgule),
                        5.5,
                        6.2};
    for (const double h : seconde.y) {
      tableau.colonnes.push_back(TexteCourt(h, virgule) + "°");
    }
    for (const double hp : seconde.x) {
      tableau.rangees.push_back(TexteDixiemes(ArrondiDixieme(hp), virgule));
    }
    y = PoseTableau(page, boite.gauche, y, taille, interligne, tableau) + 0.5 * interligne;
  }
  return page;
}

} // namespace

std::vector<long> DemiDiametresSoleil(const Almanach &almanach) {
  std::vector<long> demis;
  demis.reserve(almanach.jours.size());
  for (const JourAlmanach &jour : almanach.jours) {
    demis.push_back(ArrondiDixieme(jour.astres[kSoleilAlmanach].demiDiametre));
  }
  return Etendue(demis);
}

std::vector<long> DistancesPolaire(const Almanach &almanach) {
  constexpr long kPole = 54000;
  std::vector<long> distances;
  distances.reserve(almanach.periodes.size());
  for (const PeriodeAlmanach &periode : almanach.periodes) {
    distances.push_back(kPole - DixiemesDe(periode.etoiles.back().declinaison));
  }
  return Etendue(distances);
}

std::vector<Feuillet> PagesCorrections(const CadreAlmanach &c) {
  std::vector<Feuillet> pages = PagesSoleil(c);
  pages.push_back(PageDepression(c));
  return pages;
}

std::vector<Feuillet> PagesLune(const CadreAlmanach &c) { return {PageLunePremiere(c), PageLuneSeconde(c)}; }

} // namespace velmaris
