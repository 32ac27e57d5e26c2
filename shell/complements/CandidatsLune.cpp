#include "shell/complements/CandidatsLune.hpp"

#include "complements/ciel/Refus.hpp"
#include "complements/ciel/TablesCiel.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/complements/Mots.hpp"
#include "shell/complements/RangeesTexte.hpp"

#include <string>
#include <utility>

namespace velmaris {
namespace {

/// The Sun, planets, and the stars that shine enough to be brought to the Moon.
std::vector<Astre> AstresPourLaLune() {
  constexpr double kMagnitudeMax = 2;
  std::vector<Astre> astres;
  for (const GenreAstre genre :
       {GenreAstre::Soleil, GenreAstre::Venus, GenreAstre::Mars, GenreAstre::Jupiter, GenreAstre::Saturne}) {
    astres.push_back({genre, 0});
  }
  for (int rang = 1; rang <= kNombreEtoiles; ++rang) {
    const std::optional<EtoileIcrs> &etoile = kEtoilesIcrs.at(static_cast<std::size_t>(rang) - 1);
    if (etoile && etoile->magnitude <= kMagnitudeMax) {
      astres.push_back({GenreAstre::Etoile, rang});
    }
  }
  return astres;
}

/// Near the horizon the air makes any pace of a distance, and below it there is none.
bool DitSaCadence(const CandidatLunaire &c) {
  return c.raison != RaisonSansLunaire::LuneBasse && c.raison != RaisonSansLunaire::AstreBas;
}

} // namespace

std::vector<CandidatLunaire> CandidatsLune(const InstantUTC &utc, const LieuNavire &lieu, double hauteurOeil,
                                           const AirMesure &air, double dut1) {
  static const std::vector<Astre> astres = AstresPourLaLune();
  try {
    return ClasseLunaires(utc, lieu, hauteurOeil, astres, air, dut1);
  } catch (const Refus &) {
    return {};
  }
}

void PoseCandidatsLune(const Bureau &bureau, const std::vector<CandidatLunaire> &candidats, Tableau &tableau) {
  const FenetreSerie &f = bureau.fenetreSerie;
  std::vector<RangeeTexte> rangees;
  for (const CandidatLunaire &c : candidats) {
    RangeeTexte r;
    r.textes = {NomDAstre(bureau, c.astre), TexteAngleSigne(c.vue.distance),
                DitSaCadence(c) ? DixiemesSignes(c.cadence) : std::string(),
                c.raison ? f.MotRaison.at(static_cast<std::size_t>(*c.raison)).legende
                         : f.MotBordDistance.at(static_cast<std::size_t>(c.bordLune)).legende +
                               ", 1' : " + Format(c.secondes, "0") + " s"};
    r.ton = c.raison ? TonLigne::Faible : TonLigne::Ordinaire;
    rangees.push_back(std::move(r));
  }
  PoseRangees(tableau, ColonnesDe<4>(f.MotColonneCandidat, {1500, 1080, 720, 1500}, 1, 2), std::move(rangees));
}

} // namespace velmaris
