#include "lines/DroiteMemoire.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

#include <array>

namespace velmaris {
namespace {

constexpr double kMilliemes = 1000.0;
constexpr int kPremiereTouche = 5; ///< F5

/// A field kept as typed: its key and where the sight holds it.
struct ChampGarde {
  const char *champ;
  std::string Observation::*texte;
};

constexpr std::array<ChampGarde, 15> kChampsGardes = {{{"T3(", &Observation::heure},
                                                       {"T4(", &Observation::minute},
                                                       {"T5(", &Observation::seconde},
                                                       {"Td0(", &Observation::jour},
                                                       {"Td1(", &Observation::mois},
                                                       {"Td2(", &Observation::annee},
                                                       {"T6(", &Observation::longitudeDegres},
                                                       {"T7(", &Observation::longitudeMinutes},
                                                       {"T8(", &Observation::latitudeDegres},
                                                       {"T9(", &Observation::latitudeMinutes},
                                                       {"T10(", &Observation::hauteurOeil},
                                                       {"T11(", &Observation::collimation},
                                                       {"T12(", &Observation::lectureMinutes},
                                                       {"T13(", &Observation::lectureDegres},
                                                       {"T25(", &Observation::lectureFraction}}};

std::string EnMilliemes(float valeur) { return TexteGeneral(Simple(valeur * kMilliemes)); }

} // namespace

std::string CleDroite(std::string_view champ, int ligne) { return std::string(champ) + std::to_string(ligne) + ")"; }

std::vector<CleValeur> ClesEnregistrees(int ligne, const Observation &o, const std::string &nom,
                                        const ValeursVisee &valeurs) {
  std::vector<CleValeur> cles;
  const auto garde = [&](const char *champ, std::string valeur) {
    cles.push_back({CleDroite(champ, ligne), std::move(valeur)});
  };
  const auto nombre = [](auto valeur) { return std::to_string(static_cast<int>(valeur)); };
  garde("AS(", nombre(o.corps));
  if (o.corps == Corps::Etoiles) {
    garde("Combo6(", nombre(o.etoile));
  }
  if (o.corps == Corps::Planetes) {
    garde("Combo7(", nombre(o.planete));
  }
  garde("Bord(", nombre(o.bord));
  garde("Hor(", nombre(o.horizon));
  garde("O4(", o.fraction == Fraction::Secondes ? "0" : "1");
  garde("Nom(", nom);
  for (const ChampGarde &c : kChampsGardes) {
    garde(c.champ, o.*c.texte);
  }
  garde("Hem(", o.sud ? "Sud" : "Nord");
  garde("Lon(", o.est ? "Est" : "Ouest");
  garde("In(", EnMilliemes(valeurs.Intercept));
  garde("Az(", EnMilliemes(valeurs.Azimut));
  return cles;
}

void LitTextesEnregistres(int ligne, const std::function<std::string(const std::string &)> &lit, Observation &o) {
  for (const ChampGarde &c : kChampsGardes) {
    o.*c.texte = lit(CleDroite(c.champ, ligne));
  }
  o.sud = lit(CleDroite("Hem(", ligne)) != "Nord";
  o.est = lit(CleDroite("Lon(", ligne)) == "Est";
}

std::vector<CleValeur> ClesEffacees(int ligne) {
  constexpr std::array<const char *, 19> kVides = {"AS(",  "Bord(", "Hor(", "T3(",  "T4(", "T5(", "Td0(",
                                                   "Td1(", "Td2(",  "T6(",  "T7(",  "T8(", "T9(", "T10(",
                                                   "T11(", "T12(",  "T13(", "Hem(", "Lon("};
  std::vector<CleValeur> cles;
  cles.reserve(kVides.size() + 3);
  for (const char *champ : kVides) {
    cles.push_back({CleDroite(champ, ligne), ""});
  }
  cles.push_back({CleDroite("In(", ligne), "0"});
  cles.push_back({CleDroite("Az(", ligne), "0"});
  cles.push_back({CleDroite("Nom(", ligne), ToucheDroite(ligne)});
  return cles;
}

std::vector<std::string> ToutesClesDroite(int ligne) {
  Observation etoile;
  etoile.corps = Corps::Etoiles;
  std::vector<std::string> cles = {CleDroite("Combo7(", ligne)}; // the one key that a star leaves out
  for (CleValeur &gardee : ClesEnregistrees(ligne, etoile, {}, {})) {
    cles.push_back(std::move(gardee.cle));
  }
  return cles;
}

std::string ToucheDroite(int ligne) { return "(F" + std::to_string(ligne + kPremiereTouche) + ")"; }

float LitMillieme(std::string_view texte) { return Simple(Val(texte) / kMilliemes); }

} // namespace velmaris
