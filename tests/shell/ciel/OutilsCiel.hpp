#pragma once

#include "tests/shell/bureau/OutilsBureau.hpp"

#include "ephemerides/pLANETE.hpp"
#include "foundations/CelHor.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/ciel/DessinCiel.hpp"
#include "shell/ciel/EcranCiel.hpp"
#include "shell/ciel/SourisCiel.hpp"
#include "sights/DroitePLA.hpp"
#include "sights/PositionDirecte.hpp"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris::essais {

/// The program, started off Brittany (47°30' N, 5°10' W), with a user at the sky window.
class AvecCiel : public Programme {
protected:
  AvecCiel() {
    LanguesSeules();
    Demarre();
    TapeVisee();
  }

  void Ouvre() { ClicControle(bureau, d.Command13); }
  void Rafraichit() { ClicControle(bureau, c.Command1); }
  void Equatoriale() { ClicOption(bureau, c.Option1[0]); }
  void Horizontale() { ClicOption(bureau, c.Option1[1]); }

  /// The moment of the clock and of the sight's date, which the stars' places take.
  void Moment(int annee, int mois, int jour, int heure, int minute, int seconde) {
    temps = {static_cast<std::uint16_t>(annee),
             static_cast<std::uint16_t>(mois),
             0,
             static_cast<std::uint16_t>(jour),
             static_cast<std::uint16_t>(heure),
             static_cast<std::uint16_t>(minute),
             static_cast<std::uint16_t>(seconde),
             0};
    locale = {annee, mois, jour, heure, minute, seconde};
    Tape(d.TDate[0], std::to_string(jour));
    Tape(d.TDate[1], std::to_string(mois));
    Tape(d.TDate[2], std::to_string(annee));
  }
  ValeurDate Maintenant() const {
    return {temps.annee, temps.mois, temps.jour, temps.heure, temps.minute, temps.seconde};
  }

  std::size_t Rang(std::string_view nom) const {
    const auto &noms = bureau.etoiles.EtoileNom;
    return static_cast<std::size_t>(std::find(noms.begin(), noms.end(), nom) - noms.begin());
  }
  int Etoile(std::string_view nom) const { return static_cast<int>(Rang(nom)); }

  /// What the routines of places say of a star, called by themselves: right ascension and declination.
  PaireX Equateur(std::size_t i) const {
    return LitPaireX(CoordEtoile(bureau.etoiles, static_cast<std::int16_t>(i), -1,
                                 {d.TDate[0].texte, d.TDate[1].texte, d.TDate[2].texte}));
  }
  /// Azimuth and height of a place now, from the position of the panel.
  PaireX Horizon(PaireX place) const {
    double latitude = 47.5F;
    return LitPaireX(CelesteVersHorizon(Maintenant(), place.gauche, place.droite, latitude, -lon));
  }

  double W() const { return c.Picture1.place.largeur; }
  double H() const { return c.Picture1.place.hauteur; }
  /// A place across the chart, turned by the slider.
  double Tourne(double x) const {
    x += c.HScroll1.valeur / 100.0 * W() / 2;
    return x > W() ? x - W() : x;
  }
  static Point Milieu(const Controle &astre) {
    return {astre.place.gauche + astre.place.largeur / 2, astre.place.haut + astre.place.hauteur / 2};
  }
  /// The middle of a body is there.
  static void EstEn(const Controle &astre, double x, double y) {
    EXPECT_NEAR(Milieu(astre).x, x, 0.02) << astre.nom << " " << astre.indice;
    EXPECT_NEAR(Milieu(astre).y, y, 0.02) << astre.nom << " " << astre.indice;
  }
  /// The middle of a body is where the horizontal chart has an azimuth and a height.
  void EstAHorizon(const Controle &astre, double az, double h) const {
    EstEn(astre, az / 360 * W(), H() - h / 90 * H());
  }
  /// The middle of a body is where the equatorial chart has a right ascension, degrees, and a declination.
  void EstAEquateur(const Controle &astre, double a, double dec) const {
    EstEn(astre, W() - a / 360 * W(), H() - (dec + 90) / 180 * H());
  }
  /// A star that stands above the horizon, or one under it, from a rank on.
  std::size_t Premiere(bool levee, std::size_t depuis = 1) const {
    for (std::size_t i = depuis; i <= 246; ++i) {
      if ((Horizon(Equateur(i)).droite > 0) == levee) {
        return i;
      }
    }
    return 0;
  }
  static std::string Dans(const Controle &liste) {
    return liste.rang < 0 ? "" : liste.liste.at(static_cast<std::size_t>(liste.rang));
  }

  Ciel &c = bureau.ciel;
  float lon = static_cast<float>(5 + 10 / 60.0); ///< of the panel, west positive
};

} // namespace velmaris::essais
