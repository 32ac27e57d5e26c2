#include "shell/complements/Mots.hpp"

#include "foundations/Angles.hpp"
#include "foundations/TexteNombre.hpp"

#include <cmath>
#include <cstddef>

namespace velmaris {
namespace {

std::string LigneDeListe(const Controle &liste, int rang) {
  return rang >= 0 && static_cast<std::size_t>(rang) < liste.liste.size() ? liste.liste[static_cast<std::size_t>(rang)]
                                                                          : std::string("?");
}

std::string NomDeCorps(const Donnees &donnees, Corps corps) {
  return std::string(SansBlancs(donnees.Option7.at(static_cast<std::size_t>(corps)).legende));
}

} // namespace

std::string TexteLieu(const LieuNavire &lieu) { return TexteTenue(lieu.latitude, -lieu.longitude); }

std::string AngleTape(double degres, int chiffres, char plus, char moins) {
  constexpr double kDixiemes = 600;
  constexpr double kDix = 10;
  const double dixiemes = std::round(std::fabs(degres) * kDixiemes);
  const double entiers = std::floor(dixiemes / kDixiemes);
  return Format(entiers, chiffres == 2 ? "00" : "000") + " " + Format((dixiemes - entiers * kDixiemes) / kDix, "00.0") +
         " " + (degres < 0 ? moins : plus);
}

InstantUTC PresentUTC(const Bureau &bureau) {
  const TempsSysteme t = bureau.horloge.source();
  return UTCDe({t.annee, t.mois, t.jour, t.heure, t.minute, static_cast<double>(t.seconde)});
}

std::string NomDAstre(const Bureau &bureau, const Astre &astre) {
  switch (astre.genre) {
  case GenreAstre::Soleil:
    return NomDeCorps(bureau.donnees, Corps::Soleil);
  case GenreAstre::Lune:
    return NomDeCorps(bureau.donnees, Corps::Lune);
  case GenreAstre::Etoile: {
    const auto rang = static_cast<std::size_t>(astre.rang);
    const std::string_view nom = bureau.etoiles.EtoileNom.at(rang);
    return std::string(nom.empty() ? bureau.etoiles.EtoileBayer.at(rang) : nom);
  }
  case GenreAstre::Belier:
    return "?";
  default:
    return LigneDeListe(bureau.donnees.Combo7, static_cast<int>(astre.genre) - static_cast<int>(GenreAstre::Venus));
  }
}

std::string NomDeVisee(const Donnees &donnees, const Observation &o) {
  switch (o.corps) {
  case Corps::Planetes:
    return LigneDeListe(donnees.Combo7, o.planete);
  case Corps::Etoiles:
    return LigneDeListe(donnees.Combo6, o.etoile);
  case Corps::Soleil:
  case Corps::Lune:
    return NomDeCorps(donnees, o.corps);
  case Corps::Aucun:
    break;
  }
  return "?";
}

} // namespace velmaris
