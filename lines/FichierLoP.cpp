#include "lines/FichierLoP.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"

namespace velmaris {
namespace {

/// Where each line of text goes, by its number; the other numbers are choices.
constexpr std::array<std::string Observation::*, 17> kChampsLoP = {&Observation::heure,
                                                                   &Observation::minute,
                                                                   &Observation::seconde,
                                                                   &Observation::jour,
                                                                   &Observation::mois,
                                                                   &Observation::annee,
                                                                   &Observation::longitudeDegres,
                                                                   &Observation::longitudeMinutes,
                                                                   &Observation::latitudeDegres,
                                                                   &Observation::latitudeMinutes,
                                                                   &Observation::hauteurOeil,
                                                                   &Observation::collimation,
                                                                   &Observation::lectureMinutes,
                                                                   &Observation::lectureDegres,
                                                                   nullptr,
                                                                   nullptr,
                                                                   &Observation::lectureFraction};

constexpr std::size_t kLigneHemisphere = 14;
constexpr std::size_t kLigneCote = 15;
constexpr std::size_t kLigneFraction = 16;
constexpr std::size_t kLigneCorps = 17;
constexpr std::size_t kLigneHorizon = 18;
constexpr std::size_t kLigneBord = 19;
constexpr std::size_t kLigneGenre = 20;
constexpr std::size_t kLigneListe = 21;

constexpr std::array<const char *, 12> kMois = {"JAN", "FEV", "MAR", "AVR", "MAI", "JUN",
                                                "JUI", "AOU", "SEP", "OCT", "NOV", "DEC"};

/// A line's number, absent when it leaves 16 bits.
/// @param absent  what an empty line counts as
std::optional<int> Nombre(const std::string &ligne, int absent) {
  std::optional<int> nombre;
  Passe([&] { nombre = ligne.empty() ? absent : Entier16(Val(ligne)); });
  return nombre;
}

/// Takes a choice among `nombre`; one that doesn't exist is passed over.
template <class Choix> void Choisit(std::optional<int> numero, int nombre, Choix &choix) {
  if (numero && *numero >= 0 && *numero < nombre) {
    choix = static_cast<Choix>(*numero);
  }
}

/// Takes a line of a list of `nombre` entries, -1 being none; an entry that doesn't exist is passed over.
void ChoisitRang(std::optional<int> numero, int nombre, int &rang) {
  if (numero && *numero >= -1 && *numero < nombre) {
    rang = *numero;
  }
}

/// A number as file output prints it: a blank in place of a plus sign and one after it.
std::string NombreDeFichier(int nombre) { return (nombre < 0 ? "" : " ") + std::to_string(nombre) + " "; }

} // namespace

void LitLignesLoP(std::string_view octets, TableLoP &table) {
  const std::string texte = EnUtf8(octets);
  std::size_t numero = 0;
  for (const std::string_view ligne : Lignes(texte, kLignesLoP + 1)) {
    if (numero == kLignesLoP) {
      throw Erreur(9);
    }
    table[numero++] = ligne;
  }
}

ChoixLoP LitChoixLoP(const TableLoP &table) {
  ChoixLoP choix;
  const std::string &horizon = table[kLigneHorizon];
  choix.corps = Nombre(table[kLigneCorps], 0);
  choix.horizonEcrit = horizon == "NATU" || horizon == "ARTI";
  if (choix.horizonEcrit || horizon.empty()) {
    choix.horizon = horizon == "ARTI" ? Horizon::Artificiel : Horizon::Naturel;
  }
  choix.bord = Nombre(table[kLigneBord], 1);
  choix.fraction = Nombre(table[kLigneGenre], 1);
  choix.rang = Nombre(table[kLigneListe], 0);
  return choix;
}

void AppliqueTextesLoP(const TableLoP &table, Observation &observation) {
  for (std::size_t i = 0; i < kChampsLoP.size(); ++i) {
    if (kChampsLoP[i] != nullptr) {
      observation.*kChampsLoP[i] = table[i];
    }
  }
  observation.lectureFraction = Gauche(table[kLigneFraction], 2);
  observation.sud = table[kLigneHemisphere] != "Nord";
  observation.est = table[kLigneCote] == "Est";
}

int AppliqueLoP(const TableLoP &table, Observation &observation) {
  AppliqueTextesLoP(table, observation);
  const ChoixLoP choix = LitChoixLoP(table);
  const int corps = choix.corps.value_or(0);
  Choisit(choix.corps, 4, observation.corps);
  BordDuCorps(observation, corps);
  observation.horizon = choix.horizon.value_or(observation.horizon);
  if (choix.horizonEcrit) {
    BordDeLHorizon(observation);
  }
  Choisit(choix.bord, 3, observation.bord);
  Choisit(choix.fraction, 2, observation.fraction);
  if (corps == static_cast<int>(Corps::Etoiles)) {
    ChoisitRang(choix.rang, kNombreEtoiles, observation.etoile);
  } else if (corps == static_cast<int>(Corps::Planetes)) {
    ChoisitRang(choix.rang, kNombrePlanetes, observation.planete);
  }
  return corps;
}

std::string EcritLoP(const Observation &observation) {
  std::string texte;
  const auto ligne = [&](const std::string &contenu) { texte += contenu + "\r\n"; };
  for (std::size_t i = 0; i < kLigneHemisphere; ++i) {
    ligne(observation.*kChampsLoP[i]);
  }
  ligne(observation.sud ? "Sud" : "Nord");
  ligne(observation.est ? "Est" : "Ouest");
  ligne(observation.lectureFraction);
  ligne(NombreDeFichier(static_cast<int>(observation.corps)));
  ligne(observation.horizon == Horizon::Artificiel ? "ARTI" : "NATU");
  ligne(NombreDeFichier(static_cast<int>(observation.bord)));
  ligne(observation.fraction == Fraction::Secondes ? "0" : "1");
  if (observation.corps == Corps::Etoiles) {
    ligne(NombreDeFichier(observation.etoile));
  } else if (observation.corps == Corps::Planetes) {
    ligne(NombreDeFichier(observation.planete));
  }
  return texte;
}

std::string NomProposeLoP(const Observation &observation) {
  const double mois = Val(observation.mois);
  std::string lettres;
  for (std::size_t i = 0; i < kMois.size(); ++i) {
    if (mois == static_cast<double>(i + 1)) {
      lettres = kMois[i];
    }
  }
  return observation.jour + lettres + Droite(observation.annee, 2) + " " + observation.heure + observation.minute +
         observation.seconde + ".LoP";
}

void ChargeLoP(const std::filesystem::path &chemin, Observation &observation) {
  TableLoP table;
  LitLignesLoP(LitFichier(chemin), table);
  AppliqueLoP(table, observation);
}

void SauveLoP(const std::filesystem::path &chemin, const Observation &observation,
              const std::filesystem::path &registre) {
  EcritFichier(chemin, EnWindows1252(EcritLoP(observation)), registre);
}

} // namespace velmaris
