#pragma once

#include "complements/ciel/EtapesHauteur.hpp"
#include "complements/serie/LecturesPretes.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/complements/Mots.hpp"
#include "shell/serie/AstresListe.hpp"
#include "shell/serie/LectureChamps.hpp"
#include "shell/serie/Serie.hpp"
#include "tests/shell/ecran/OutilsDialogue.hpp"

#include <gmock/gmock.h>

#include <cmath>
#include <optional>
#include <string>
#include <vector>

namespace velmaris::essais {

/// The window of runs without a screen: the Sun's lower limb off Brittany on 2026 June 21, unless told otherwise.
class FenetreDeSerie : public AvecDialogue {
protected:
  void Ouvre(const char *heure = "09:00") {
    ClicControle(bureau, d.PU_Serie);
    const std::array<const char *, 4> textes = {"21/06/2026", heure, "47 30.0 N", "5 10.0 W"};
    for (std::size_t i = 0; i < textes.size(); ++i) {
      SaisitTexte(bureau, f.Text1.at(i), textes.at(i));
    }
    SaisitTexte(bureau, f.Text2[2], "2.5");
    SaisitTexte(bureau, f.Text2[3], "-1.0");
    AccordeSerie(bureau);
  }
  void Page(PageSerie page) {
    f.Onglets1.rang = static_cast<int>(page);
    Declenche(bureau, f.Onglets1, Evenement::Clic);
    AccordeSerie(bureau);
  }
  void ChoisitAstre(const Astre &astre) {
    ChoisitLigne(bureau, f.Combo1, static_cast<int>(PlaceDansLaListe(astre, true)));
  }
  /// The instant of a time on that day.
  static InstantUTC A(const char *heure) {
    const std::string t = heure;
    return UTCDe({2026, 6, 21, std::stoi(t.substr(0, 2)), std::stoi(t.substr(3, 2)), std::stod(t.substr(6))});
  }
  /// What the sextant shows at a time from the typed position under way, off by some minutes of height.
  double Lecture(const InstantUTC &utc, double ecart = 0, std::optional<Astre> astre = {}) {
    BaseLectures base = *LitBase(bureau);
    base.astre = astre.value_or(base.astre);
    const Station station = StationDe(base, LieuDeLaBase(base, utc));
    const PlaceGeocentrique place = PlaceA(base.astre, utc, base.dut1);
    return LecturePour(base.corrections, place, station, VueDe(place, station).hauteur + ecart / 60);
  }
  /// An angle as it is typed, to the hundredth of a minute.
  static std::string Angle(double degres) {
    const double centiemes = std::round(degres * 6000);
    const double entiers = std::floor(centiemes / 6000);
    return Format(entiers, "0") + " " + Format((centiemes - entiers * 6000) / 100, "00.00");
  }
  void Tape2(const std::string &heure, const std::string &lecture) {
    SaisitTexte(bureau, f.Text4[0], heure);
    SaisitTexte(bureau, f.Text4[1], lecture);
    ClicControle(bureau, f.Command3[0]);
    AccordeSerie(bureau);
  }
  void TapeLectures(const std::vector<const char *> &heures, const std::vector<double> &ecarts = {},
                    std::optional<Astre> astre = {}) {
    for (std::size_t i = 0; i < heures.size(); ++i) {
      Tape2(heures[i], Angle(Lecture(A(heures[i]), i < ecarts.size() ? ecarts[i] : 0, astre)));
    }
  }
  static std::string Cellule(const Controle &table, std::size_t ligne, std::size_t colonne) {
    return table.tableau.lecteur->texte(ligne, colonne);
  }
  /// The lines of words, one after the other.
  template <std::size_t N> static std::string Lignes(const std::array<Controle, N> &lignes) {
    std::string mots;
    for (const Controle &ligne : lignes) {
      mots += ligne.legende + "\n";
    }
    return mots;
  }

  FenetreSerie &f = bureau.fenetreSerie;
  SerieOuverte &p = bureau.serie;
};

} // namespace velmaris::essais
