#include "calcul/Serie.hpp"

#include "calcul/Ciel.hpp"
#include "calcul/outils/Arguments.hpp"
#include "calcul/outils/ViseeReduite.hpp"
#include "complements/point/FichierRoute.hpp"
#include "complements/serie/FichierSerie.hpp"
#include "complements/serie/Serie.hpp"
#include "foundations/Fichiers.hpp"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

namespace velmaris {
namespace {

constexpr int kArgument = 5;
constexpr int kType = 13;

/// The word of what is to be known; empty for what stands elsewhere in the object.
std::string_view Mot(AvisSerie avis) {
  switch (avis) {
  case AvisSerie::SousHorizon:
    return "horizon";
  case AvisSerie::HauteurLoin:
    return "hauteur";
  case AvisSerie::PenteFausse:
    return "pente";
  case AvisSerie::ErreurSansNom:
    return "erreur_sans_nom";
  case AvisSerie::Dispersion:
    return "dispersion";
  default:
    return "";
  }
}

/// Reduces a run, the improbable reading left out as long as there is one.
/// @param ecartees  their places in the file, from 1
FicheSerie ReduitSansEcartees(const BaseLectures &base, std::vector<LectureSerie> &lectures,
                              std::vector<std::size_t> &ecartees) {
  FicheSerie fiche = ReduitSerie(base, lectures);
  while (fiche.improbable && fiche.comptees > kLecturesMin) {
    ecartees.push_back(*fiche.improbable + 1);
    lectures[*fiche.improbable].ecartee = true;
    fiche = ReduitSerie(base, lectures);
  }
  std::sort(ecartees.begin(), ecartees.end());
  return fiche;
}

void AjouteFiche(std::string &sortie, const FicheSerie &fiche, const std::vector<std::size_t> &ecartees) {
  AjouteMembre(sortie, "heure", TexteInstant(fiche.heure));
  AjouteMembre(sortie, "hauteur", fiche.lecture);
  AjouteMembre(sortie, "ecart_type", fiche.ecartType);
  AjouteCle(sortie, "residus");
  AjouteListe(sortie, fiche.residus, [&](const ResiduSerie &r) { AjouteNombre(sortie, r.residu); });
  AjouteCle(sortie, "ecartees");
  AjouteListe(sortie, ecartees, [&](std::size_t place) { sortie += std::to_string(place); });
  std::vector<std::string_view> mots;
  for (const AvisSerie avis : fiche.avis) {
    if (!Mot(avis).empty()) {
      mots.push_back(Mot(avis));
    }
  }
  if (!mots.empty()) {
    AjouteCle(sortie, "avis");
    AjouteListe(sortie, mots, [&](std::string_view mot) { AjouteTexte(sortie, mot); });
  }
}

/// Tells a run, or why there is none.
/// @return whether there is one
bool AjouteSerie(std::string &sortie, const DemandeSerie &demande, const Astre &astre,
                 std::vector<LectureSerie> lectures) {
  BaseLectures base;
  base.astre = astre;
  base.lieu = {demande.latitude, demande.longitude};
  base.dut1 = demande.dut1;
  base.ecartType = demande.ecartType.value_or(base.ecartType);
  std::vector<std::size_t> ecartees;
  const FicheSerie fiche = ReduitSansEcartees(base, lectures, ecartees);
  if (fiche.faite) {
    AjouteFiche(sortie, fiche, ecartees);
  } else if (fiche.refus) {
    AjouteErreur(sortie, NumeroRefus(*fiche.refus), SensRefus(*fiche.refus));
  } else {
    AjouteErreur(sortie, kArgument, "il faut trois à trente lectures");
  }
  return fiche.faite;
}

/// The readings of the file.
/// @param sortie  a line is appended when it can't be read, with the number of a line that isn't a reading
bool LitLectures(const std::string &fichier, std::vector<LectureSerie> &lectures, std::string &sortie) {
  std::string ligne;
  const bool reussi = EcritFichier(ligne, fichier, [&] {
    SerieLue lue = LitSerie(LitFichier(fichier));
    if (lue.ligneFautive > 0) {
      AjouteCle(ligne, "ligne");
      ligne += std::to_string(lue.ligneFautive);
      throw Erreur(kType);
    }
    lectures = std::move(lue.lectures);
  });
  sortie += reussi ? std::string() : ligne;
  return reussi;
}

} // namespace

CLI::App *DeclareSerie(CLI::App &programme, const Langue &dit, DemandeSerie &serie) {
  CLI::App *verbe = programme.add_subcommand("serie", dit("Série de lectures d'un astre, ramenée à une seule",
                                                          "A run of readings of one body, reduced to one"));
  verbe->group(dit("Verbes", "Commands"));
  verbe
      ->add_option(dit("CORPS", "BODY"), serie.corps,
                   dit("Soleil, Lune, Venus, Mars, Jupiter, Saturne, ou une ligne de la table des étoiles",
                       "Soleil, Lune, Venus, Mars, Jupiter, Saturne, or a row of the star table"))
      ->check(CLI::Validator(
          [&dit](const std::string &nom) {
            const auto astre = AstreNomme(nom);
            return astre && astre->genre != GenreAstre::Belier ? "" : nom + dit(" n'est pas un astre", " isn't a body");
          },
          ""))
      ->required()
      ->type_name("");
  AjouteNombreLu(*verbe, dit, "LAT", serie.latitude,
                 dit("Latitude estimée, degrés, nord positif", "Estimated latitude, degrees, north positive"));
  AjouteNombreLu(*verbe, dit, dit("LON_EST", "LON_EAST"), serie.longitude,
                 dit("Longitude estimée, degrés, est positif", "Estimated longitude, degrees, east positive"));
  verbe
      ->add_option(
          dit("FICHIER", "FILE"), serie.fichier,
          dit("Lignes JJ/MM/AAAA HH:MM:SS DEG MIN, hauteurs déjà corrigées de la collimation et de la dépression",
              "Lines DD/MM/YYYY HH:MM:SS DEG MIN, altitudes already corrected for index and dip"))
      ->required()
      ->type_name("");
  AjouteEcartType(*verbe, dit, serie.ecartType,
                  dit("Erreur supposée d'une lecture, minutes (0.7 à défaut)",
                      "Assumed error of a reading, minutes (0.7 by default)"));
  AjouteDut1(*verbe, dit, serie.dut1);
  return verbe;
}

bool EcritSerie(const DemandeSerie &demande, std::string &sortie) {
  const std::optional<Astre> astre = AstreNomme(demande.corps);
  std::vector<LectureSerie> lectures;
  if (!LitLectures(demande.fichier, lectures, sortie)) {
    return false;
  }
  bool faite = false;
  const bool reussi = EcritObjet(sortie, [&] {
    ExigeDut1(demande.dut1);
    if (!astre) {
      throw Erreur(kArgument);
    }
    faite = AjouteSerie(sortie, demande, *astre, std::move(lectures));
  });
  return reussi && faite;
}

} // namespace velmaris
