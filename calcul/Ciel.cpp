#include "calcul/Ciel.hpp"

#include "calcul/outils/Json.hpp"
#include "complements/ciel/Places.hpp"
#include "ephemerides/TableEtoiles.hpp"
#include "foundations/TexteNombre.hpp"
#include "foundations/ValeurDate.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace velmaris {
namespace {

constexpr double kInconnu = std::numeric_limits<double>::quiet_NaN(); ///< told as null
constexpr std::size_t kChiffresHeure = 2;

struct NomAstre {
  std::string_view nom; ///< as it is told
  GenreAstre genre;
};

constexpr std::array kNoms{NomAstre{"Soleil", GenreAstre::Soleil},   NomAstre{"Lune", GenreAstre::Lune},
                           NomAstre{"Venus", GenreAstre::Venus},     NomAstre{"Mars", GenreAstre::Mars},
                           NomAstre{"Jupiter", GenreAstre::Jupiter}, NomAstre{"Saturne", GenreAstre::Saturne},
                           NomAstre{"Aries", GenreAstre::Belier}};

/// A number that fills its text.
template <class Nombre> Nombre LitTout(std::string_view texte) {
  Nombre valeur{};
  const auto [fin, code] = std::from_chars(texte.data(), texte.data() + texte.size(), valeur);
  if (code != std::errc() || fin != texte.data() + texte.size() || texte.front() == '-') {
    throw Erreur(13);
  }
  return valeur;
}

/// @throws Erreur 13 for what is no date or no time by its form
DateCivile LitMoment(const DemandeCiel &demande) {
  const ValeurDate jour = LitDate(demande.date);
  const std::string_view heure = demande.heure;
  const std::size_t premier = heure.find(':');
  const std::size_t second = premier == std::string_view::npos ? premier : heure.find(':', premier + 1);
  if (second == std::string_view::npos || premier > kChiffresHeure || second - premier - 1 > kChiffresHeure) {
    throw Erreur(13);
  }
  return {jour.annee,
          jour.mois,
          jour.jour,
          LitTout<int>(heure.substr(0, premier)),
          LitTout<int>(heure.substr(premier + 1, second - premier - 1)),
          LitTout<double>(heure.substr(second + 1))};
}

void AjoutePlace(std::string &sortie, const PlaceGeocentrique &place) {
  AjouteMembre(sortie, "gha", place.gha);
  AjouteMembre(sortie, "dec", place.declinaison);
  AjouteMembre(sortie, "distance", place.distance > 0 ? place.distance : kInconnu);
  AjouteMembre(sortie, "demi_diametre", place.demiDiametre);
  AjouteMembre(sortie, "parallaxe", place.parallaxe);
}

void AjouteVue(std::string &sortie, const PlaceTopocentrique &vue) {
  AjouteMembre(sortie, "hauteur", vue.hauteurCentre);
  AjouteMembre(sortie, "azimut", vue.azimutCentre);
  AjouteMembre(sortie, "hauteur_topo", vue.hauteur);
  AjouteMembre(sortie, "azimut_topo", vue.azimut);
}

/// The members after the body's name.
void AjouteReponse(std::string &sortie, const DemandeCiel &demande, const Astre &astre) {
  ExigeDut1(demande.dut1);
  const Moment moment = MomentDe(LitMoment(demande), demande.dut1);
  const PlaceGeocentrique place = PlaceDe(PrepareCiel(moment), astre);
  std::optional<PlaceTopocentrique> vue;
  if (demande.latitude && demande.longitude) {
    vue = VueDe(place, {*demande.latitude, *demande.longitude, 0});
  }
  // The sum of two parts of a day holds no more than microseconds.
  AjouteMembre(sortie, "tt_moins_ut", std::round(EcartTT(moment.tt, moment.ut1) * 1E6) / 1E6);
  AjoutePlace(sortie, place);
  if (vue) {
    AjouteVue(sortie, *vue);
  }
}

} // namespace

std::optional<Astre> AstreNomme(std::string_view nom) {
  const std::string capitales = EnCapitales(nom);
  for (const NomAstre &connu : kNoms) {
    if (capitales == EnCapitales(connu.nom)) {
      return Astre{connu.genre, 0};
    }
  }
  int rang = 0;
  const auto [fin, code] = std::from_chars(nom.data(), nom.data() + nom.size(), rang);
  if (nom.empty() || code != std::errc() || fin != nom.data() + nom.size() || rang < 1 || rang > kNombreLignesEtoiles) {
    return std::nullopt;
  }
  return Astre{GenreAstre::Etoile, rang};
}

std::string NomDe(const Astre &astre) {
  const auto *const connu =
      std::find_if(kNoms.begin(), kNoms.end(), [&](const NomAstre &nom) { return nom.genre == astre.genre; });
  return connu == kNoms.end() ? std::to_string(astre.rang) : std::string(connu->nom);
}

std::string_view SensRefus(RaisonRefus raison) {
  switch (raison) {
  case RaisonRefus::DateImpossible:
    return "le calendrier n'a pas ce jour";
  case RaisonRefus::HeureImpossible:
    return "ce jour n'a pas cette heure";
  case RaisonRefus::AnneeHorsLimites:
    return "le ciel est connu de 1800 à 2199";
  case RaisonRefus::LuneHorsTable:
    return "la Lune est connue de 1900 à 2100";
  case RaisonRefus::EtoileSansPlace:
    return "la ligne 67 est une nova, qu'aucun catalogue d'étoiles brillantes ne place";
  case RaisonRefus::RangInconnu:
    return "la table des étoiles a les lignes 1 à 246";
  case RaisonRefus::LieuImpossible:
    return "ce lieu n'est pas sur la Terre";
  }
  return SensErreur(5);
}

int NumeroRefus(RaisonRefus raison) {
  return raison == RaisonRefus::DateImpossible || raison == RaisonRefus::HeureImpossible ? 13 : 5;
}

void ExigeDut1(double dut1) {
  constexpr double kDut1Max = 60;
  if (std::fabs(dut1) > kDut1Max) {
    throw Erreur(5);
  }
}

bool EcritCiel(const DemandeCiel &demande, std::string &sortie) {
  bool refuse = false;
  const bool reussi = EcritObjet(sortie, [&] {
    const std::optional<Astre> astre = AstreNomme(demande.corps);
    AjouteMembre(sortie, "corps", astre ? NomDe(*astre) : demande.corps);
    if (!astre) {
      throw Erreur(5);
    }
    try {
      AjouteReponse(sortie, demande, *astre);
    } catch (const Refus &refus) {
      refuse = true;
      AjouteErreur(sortie, NumeroRefus(refus.raison), SensRefus(refus.raison));
    }
  });
  return reussi && !refuse;
}

} // namespace velmaris
