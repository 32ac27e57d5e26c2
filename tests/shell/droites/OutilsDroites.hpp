#pragma once

#include "tests/shell/bureau/OutilsBureau.hpp"

#include "lines/DroiteMemoire.hpp"
#include "shell/droites/MemoireDroites.hpp"
#include "shell/droites/ModesDroite.hpp"
#include "shell/droites/Route.hpp"
#include "shell/visee/ReduitVisee.hpp"
#include "tests/lines/OutilsFeuille.hpp"

#include <array>
#include <cmath>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <vector>

/// What the tests of the four lines share: sights of one day, the store as another program reads it, and where a
/// carried line must lie.
namespace velmaris::essais {

/// A sight of the Sun on 2026 June 21, lower limb, sea horizon, in seconds.
struct Visee {
  std::string heure, minute, seconde;
  std::string latD, latM;
  bool sud = false;
  std::string lonD, lonM;
  bool est = false;
  std::string degres, minutes, secondes;
};

inline const Visee kMatin{"09", "00", "10", "47", "30", false, "05", "10", false, "43", "04", "20"};
inline const Visee kApresMidi{"15", "00", "40", "47", "20", false, "05", "30", false, "50", "25", "50"};
inline const Visee kMidi{"12", "05", "30", "47", "45", false, "05", "00", false, "65", "24", "38"};

/// Colours that lines are drawn in.
inline constexpr Couleur kTraitPremiere = 65535;
inline constexpr Couleur kTraitAjoute = 255;
inline constexpr Couleur kTraitTransporte = 32768;

/// The program with the tools of the lines' module.
class QuatreDroites : public Programme {
protected:
  void TapeSoleil(const Visee &v) {
    Tape(d.TDate[0], "21");
    Tape(d.TDate[1], "06");
    Tape(d.TDate[2], "2026");
    Tape(d.Text3, v.heure);
    Tape(d.Text4, v.minute);
    Tape(d.Text5, v.seconde);
    Tape(d.Text8, v.latD);
    Tape(d.Text9, v.latM);
    ClicOption(bureau, d.OptN[v.sud ? 1 : 0]);
    Tape(d.Text6, v.lonD);
    Tape(d.Text7, v.lonM);
    ClicOption(bureau, d.OptE[v.est ? 0 : 1]);
    Tape(d.Text13, v.degres);
    Tape(d.Text12, v.minutes);
    Tape(d.Text25, v.secondes);
    Tape(d.Text11, "-1.0");
    Tape(d.Text10, "2.5");
  }

  /// Chooses a mode and presses a line's button, as a user does.
  void Presse(ModeDroite mode, int ligne) {
    ClicOption(bureau, d.Option1[static_cast<std::size_t>(mode)]);
    ClicControle(bureau, d.Droite[static_cast<std::size_t>(ligne)]);
  }

  /// Types, reduces and stores a sight.
  void Stocke(int ligne, const Visee &v) {
    TapeSoleil(v);
    Calcule();
    Presse(ModeDroite::Enregistre, ligne);
  }

  /// Morning in line 0, afternoon in line 1, noon in line 2; nothing on the sheet.
  void TroisDroites() {
    DemarreSansCarte();
    Stocke(0, kMatin);
    Stocke(1, kApresMidi);
    Stocke(2, kMidi);
    ClicControle(bureau, d.Command6);
  }

  void Montre(int ligne) { Presse(ModeDroite::Affiche, ligne); }

  /// Chooses a target and carries a line to it.
  void Transporte(int ligne, const std::string &cible) {
    ClicOption(bureau, d.Option1[1]);
    PoseTexte(bureau, d.Combo5, cible);
    ClicControle(bureau, d.Droite[static_cast<std::size_t>(ligne)]);
  }

  /// Chooses the hours of dead reckoning.
  void Intervalle(int heure, int minute, int heureFin, int minuteFin) {
    ChoisitLigne(bureau, d.Combo1, heure);
    ChoisitLigne(bureau, d.Combo2, minute);
    ChoisitLigne(bureau, d.Combo3, heureFin);
    ChoisitLigne(bureau, d.Combo4, minuteFin);
  }

  /// Course and speed of dead reckoning, typed in that order: the position follows the last figure.
  void Route(const std::string &route, const std::string &vitesse) {
    Tape(d.Text1, route);
    Tape(d.Text2, vitesse);
  }

  std::filesystem::path FichierMagasin() const { return dossier.chemin() / "utilisateur" / "valeurs.sqlite"; }

  /// The rows that another program's query of the store gives.
  std::vector<std::string> Demande(const std::string &requete) const {
    const std::string commande = "sqlite3 -separator '=' '" + FichierMagasin().string() + "' \"" + requete + "\"";
    const std::unique_ptr<std::FILE, int (*)(std::FILE *)> tube(popen(commande.c_str(), "r"), pclose);
    std::vector<std::string> rangees;
    std::string rangee;
    for (int c = std::fgetc(tube.get()); c != EOF; c = std::fgetc(tube.get())) {
      if (c == '\n') {
        rangees.push_back(rangee);
        rangee.clear();
      } else {
        rangee += static_cast<char>(c);
      }
    }
    return rangees;
  }

  /// All that the store holds.
  std::vector<std::string> Magasin() const { return Demande("SELECT cle, valeur FROM valeurs ORDER BY cle"); }

  /// From now on the store notes every write, in its order.
  void NoteLesEcritures() const {
    Demande("CREATE TABLE suivi(n INTEGER PRIMARY KEY, cle, valeur);"
            "CREATE TRIGGER neuve AFTER INSERT ON valeurs BEGIN INSERT INTO suivi(cle, valeur) VALUES(NEW.cle, "
            "NEW.valeur); END;"
            "CREATE TRIGGER changee AFTER UPDATE ON valeurs BEGIN INSERT INTO suivi(cle, valeur) VALUES(NEW.cle, "
            "NEW.valeur); END");
  }
  std::vector<std::string> Ecritures() const { return Demande("SELECT cle, valeur FROM suivi ORDER BY n"); }

  /// Both labels of a line have a colour.
  bool Marque(std::size_t ligne, Couleur couleur) const {
    return bureau.donnees.LHeure.at(ligne).couleur == couleur && bureau.donnees.Ldate.at(ligne).couleur == couleur;
  }

  std::vector<Segment> Traits(Couleur couleur, Style style = Style::Plein) const {
    std::vector<Segment> resultat;
    for (const Segment &s : EnCouleur(bureau.image1, couleur)) {
      if (s.plume.style == style) {
        resultat.push_back(s);
      }
    }
    return resultat;
  }
  std::size_t Milles() const { return Traits(kMagenta).size(); }

  std::vector<CercleTrace> CerclesEn(Couleur couleur) const {
    std::vector<CercleTrace> resultat;
    for (const CercleTrace &c : Cercles(bureau.image1)) {
      if (c.plume.couleur == couleur) {
        resultat.push_back(c);
      }
    }
    return resultat;
  }

  /// Units of the surface in a mile, from the zoom alone.
  double UnitesParMille() const { return bureau.image1.hauteur / bureau.feuille.Zoom; }

  /// Where a place lies on a sheet drawn around another place; degrees, north and west positive.
  Point Lieu(double latitude, double longitude, double latitudeFeuille, double longitudeFeuille) const {
    const double minute = UnitesParMille();
    return {bureau.image1.largeur / 2 +
                (longitudeFeuille - longitude) * 60 * minute * std::cos(latitudeFeuille * kPi / 180),
            bureau.image1.hauteur / 2 + (latitudeFeuille - latitude) * 60 * minute};
  }

  /// A line of position by its compass bearing: across the azimuth, an intercept away from a point, two thirds of the
  /// surface's height long.
  Segment LigneDepuis(Point p, double azimut, double intercept) const {
    const double a = azimut * kPi / 180;
    const double g = intercept * UnitesParMille();
    const double demi = bureau.image1.hauteur / 3;
    const Point pied{p.x + g * std::sin(a), p.y - g * std::cos(a)};
    return {{},
            {pied.x + demi * std::cos(a), pied.y + demi * std::sin(a)},
            {pied.x - demi * std::cos(a), pied.y - demi * std::sin(a)}};
  }

  /// A stored azimuth or intercept, as a second reader of the store takes it.
  double Garde(const std::string &champ, int ligne) {
    return std::stod(Reglage(champ + std::to_string(ligne) + ")", "0")) / 1000;
  }
};

inline constexpr double kPresSurface = 0.5; ///< a two-hundredth of a mile: seven-digit texts and 32-bit scales

inline bool MemeTrait(const Segment &a, const Segment &b) {
  return Pres(a.debut, b.debut, kPresSurface) && Pres(a.fin, b.fin, kPresSurface);
}

inline double LatitudeDe(const Visee &v) { return (v.sud ? -1 : 1) * (std::stod(v.latD) + std::stod(v.latM) / 60); }
/// West positive.
inline double LongitudeDe(const Visee &v) { return (v.est ? -1 : 1) * (std::stod(v.lonD) + std::stod(v.lonM) / 60); }

} // namespace velmaris::essais
