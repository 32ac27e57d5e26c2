#include "calcul/Ciel.hpp"
#include "calcul/Controle.hpp"
#include "calcul/Point.hpp"
#include "calcul/Prepare.hpp"
#include "calcul/Reduit.hpp"
#include "calcul/Serie.hpp"
#include "calcul/VerbePoint.hpp"
#include "calcul/VerbePrepare.hpp"
#include "calcul/dit/Etoile.hpp"
#include "calcul/dit/Horizon.hpp"
#include "calcul/dit/Lune.hpp"
#include "calcul/dit/Planetes.hpp"
#include "calcul/outils/Arguments.hpp"
#include "calcul/outils/Langue.hpp"
#include "calcul/outils/Lot.hpp"
#include "ephemerides/TableEtoiles.hpp"
#include "foundations/Erreur.hpp"
#include "shell/bureau/FichierLangue.hpp"
#include "shell/bureau/Ports.hpp"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <iostream>
#include <sstream>
#include <vector>

namespace {

using namespace velmaris;

constexpr int kReussi = 0;
constexpr int kEchec = 1;
constexpr int kUsage = 2;
constexpr std::size_t kLabelAD = 33;       ///< numbered text before a right ascension
constexpr std::size_t kTampon = 1U << 20U; ///< bytes gathered before they are written

/// What the command line asks for.
struct Demande {
  Langue dit;                ///< of help and errors
  std::string langue = "fr"; ///< of the numbered texts in the results
  std::vector<std::string> fichiers;
  DemandeHorizon horizon;
  DemandeEtoile etoile;
  DemandeLune lune;
  DemandePlanete planete;
  DemandeCiel ciel;
  DemandePointDit point;
  DemandePrepare prepare;
  DemandeSerie serie;
  double dut1 = 0.0; ///< UT1 - UTC of the sights that are checked, seconds
};

/// Writes what has been gathered and empties it. Output that isn't taken, by a full disk say, is told on standard
/// error, in the user's language.
/// @return false then
bool Vide(std::string &sortie, const Langue &dit) {
  const bool ecrit = std::fwrite(sortie.data(), 1, sortie.size(), stdout) == sortie.size() && std::fflush(stdout) == 0;
  sortie.clear();
  if (!ecrit) {
    std::cerr << "velmaris-calcul: " << dit("la sortie ne peut pas être écrite", "the output can't be written") << "\n";
  }
  return ecrit;
}

/// The program's own folder, links followed.
std::filesystem::path DossierProgramme(const std::string &argv0) {
  std::error_code code;
  std::filesystem::path programme = std::filesystem::read_symlink("/proc/self/exe", code);
  if (code) {
    programme = std::filesystem::weakly_canonical(argv0, code);
  }
  return programme.parent_path();
}

/// The numbered texts of a language: beside the program, else in the share folder; empty when neither has them.
TexteMsg MessagesDeLangue(const std::string &langue, const std::filesystem::path &dossier) {
  TexteMsg messages;
  if (langue == "aucune") {
    return messages;
  }
  const std::string nom = langue == "en" ? "EN.txt" : "FR.txt";
  if (!Passe([&] { ChargeMessages(dossier / nom, messages); })) {
    Passe([&] { ChargeMessages(DossierPartage(dossier) / nom, messages); });
  }
  return messages;
}

int Reduit(const Demande &demande, const std::filesystem::path &dossier) {
  const TexteMsg messages = MessagesDeLangue(demande.langue, dossier);
  bool reussi = true;
  std::string sortie;
  sortie.reserve(kTampon * 2);
  for (const std::string &fichier : demande.fichiers) {
    reussi = ReduitFichier(fichier, messages, sortie) && reussi;
    if (sortie.size() >= kTampon && !Vide(sortie, demande.dit)) {
      return kEchec;
    }
  }
  return Vide(sortie, demande.dit) && reussi ? kReussi : kEchec;
}

int Controle(const Demande &demande) {
  const auto ecrit = [&](const std::string &fichier, std::string &sortie) {
    return ControleFichier(fichier, demande.dut1, sortie);
  };
  const auto vide = [&](std::string &sortie) { return Vide(sortie, demande.dit); };
  return TraiteLot(demande.fichiers, ecrit, vide) ? kReussi : kEchec;
}

int Horizon(const Demande &demande) {
  std::string sortie;
  const bool reussi = EcritHorizon(demande.horizon, sortie);
  return Vide(sortie, demande.dit) && reussi ? kReussi : kEchec;
}

int Etoile(const Demande &demande) {
  std::string sortie;
  const bool reussi = EcritEtoile(demande.etoile, sortie);
  return Vide(sortie, demande.dit) && reussi ? kReussi : kEchec;
}

int Lune(const Demande &demande, const std::filesystem::path &dossier) {
  std::string sortie;
  const bool reussi = EcritLune(demande.lune, MessagesDeLangue(demande.lune.langue, dossier)[kLabelAD], sortie);
  return Vide(sortie, demande.dit) && reussi ? kReussi : kEchec;
}

int Planete(const Demande &demande, EcritPlanete ecrit) {
  std::string sortie;
  const bool reussi = ecrit(demande.planete, sortie);
  return Vide(sortie, demande.dit) && reussi ? kReussi : kEchec;
}

int Ciel(const Demande &demande) {
  std::string sortie;
  const bool reussi = EcritCiel(demande.ciel, sortie);
  return Vide(sortie, demande.dit) && reussi ? kReussi : kEchec;
}

int Point(const Demande &demande) {
  std::string sortie;
  const bool reussi = EcritPoint(demande.point, sortie);
  return Vide(sortie, demande.dit) && reussi ? kReussi : kEchec;
}

int Prepare(const Demande &demande) {
  std::string sortie;
  const bool reussi = EcritPrepare(demande.prepare, sortie);
  return Vide(sortie, demande.dit) && reussi ? kReussi : kEchec;
}

int Serie(const Demande &demande) {
  std::string sortie;
  const bool reussi = EcritSerie(demande.serie, sortie);
  return Vide(sortie, demande.dit) && reussi ? kReussi : kEchec;
}

/// The choice of the language of the texts.
void AjouteLangue(CLI::App &verbe, const Langue &dit, std::string &langue) {
  verbe
      .add_option("--langue", langue,
                  dit("Langue des textes : fr, en ou aucune", "Language of the texts: fr, en, or aucune for none"))
      ->check(CLI::Validator(
          [&dit](const std::string &mot) {
            return mot == "fr" || mot == "en" || mot == "aucune" ? "" : mot + dit(" n'en est pas une", " isn't one");
          },
          ""))
      ->type_name(dit("LANGUE", "LANGUAGE"))
      ->capture_default_str();
}

CLI::App *DeclareReduit(CLI::App &programme, const Langue &dit, Demande &demande) {
  CLI::App *verbe = programme.add_subcommand(
      "reduit", dit("Réduit des visées enregistrées, dans l'ordre", "Reduces saved sights, in their order"));
  verbe->group(dit("Verbes", "Commands"));
  AjouteLangue(*verbe, dit, demande.langue);
  AjouteFichiersLoP(*verbe, dit, demande.fichiers);
  return verbe;
}

CLI::App *DeclareControle(CLI::App &programme, const Langue &dit, Demande &demande) {
  CLI::App *verbe = programme.add_subcommand(
      "controle", dit("Contrôle des visées enregistrées par le ciel d'aujourd'hui, dans l'ordre",
                      "Checks saved sights against the sky of today, in their order"));
  verbe->group(dit("Verbes", "Commands"));
  AjouteFichiersLoP(*verbe, dit, demande.fichiers);
  AjouteDut1(*verbe, dit, demande.dut1);
  return verbe;
}

CLI::App *DeclareHorizon(CLI::App &programme, const Langue &dit, Demande &demande) {
  CLI::App *verbe = programme.add_subcommand("horizon", dit("Azimut et hauteur d'un lieu équatorial, \"azXalt\"",
                                                            "Azimuth and altitude of an equatorial place, \"azXalt\""));
  verbe->group(dit("Verbes", "Commands"));
  verbe->add_option(dit("JJ/MM/AAAA", "DD/MM/YYYY"), demande.horizon.date, dit("Date UTC", "Date, UTC"))
      ->required()
      ->type_name("");
  verbe->add_option("HH:MM:SS", demande.horizon.heure, dit("Heure UTC", "Time, UTC"))->required()->type_name("");
  AjouteNombreLu(*verbe, dit, dit("AD", "RA"), demande.horizon.AD,
                 dit("Ascension droite, degrés", "Right ascension, degrees"));
  AjouteNombreLu(*verbe, dit, "DEC", demande.horizon.Dec,
                 dit("Déclinaison, degrés, nord positif", "Declination, degrees, north positive"));
  AjouteNombreLu(*verbe, dit, "LAT", demande.horizon.latitude,
                 dit("Latitude, degrés, nord positif", "Latitude, degrees, north positive"));
  AjouteNombreLu(*verbe, dit, dit("LON_EST", "LON_EAST"), demande.horizon.lonEst,
                 dit("Longitude, degrés, est positif", "Longitude, degrees, east positive"));
  return verbe;
}

CLI::App *DeclareEtoile(CLI::App &programme, const Langue &dit, Demande &demande) {
  CLI::App *verbe =
      programme.add_subcommand("etoile", dit("Place d'une étoile de la table à une date, \"adXdec\" en degrés",
                                             "Place of a star of the table on a date, \"adXdec\" in degrees"));
  verbe->group(dit("Verbes", "Commands"));
  verbe
      ->add_option(dit("RANG", "ROW"), demande.etoile.rang,
                   dit("Ligne de la table, 1 à 246", "Row of the table, 1 to 246"))
      ->check(CLI::Validator(
          [&dit](const std::string &texte) {
            int rang = 0;
            const char *const fin = texte.data() + texte.size();
            const auto lu = std::from_chars(texte.data(), fin, rang);
            const bool bon = lu.ec == std::errc() && lu.ptr == fin && rang >= 1 && rang <= kNombreLignesEtoiles;
            return bon ? "" : texte + dit(" n'est pas une ligne de la table", " isn't a row of the table");
          },
          ""))
      ->required()
      ->type_name("");
  AjouteNombreLu(*verbe, dit, dit("JOUR", "DAY"), demande.etoile.jour, dit("Jour", "Day"));
  AjouteNombreLu(*verbe, dit, dit("MOIS", "MONTH"), demande.etoile.mois, dit("Mois", "Month"));
  AjouteNombreLu(*verbe, dit, dit("AN", "YEAR"), demande.etoile.an, dit("Année", "Year"));
  return verbe;
}

/// A verb that gives one place of a planet.
CLI::App *DeclarePlanete(CLI::App &programme, const Langue &dit, Demande &demande, const std::string &nom,
                         const std::string &aide) {
  CLI::App *verbe = programme.add_subcommand(nom, aide);
  verbe->group(dit("Verbes", "Commands"));
  verbe
      ->add_option(dit("PLANETE", "PLANET"), demande.planete.nom,
                   dit("Venus, Mars, Jupiter, Saturne ou Earth", "Venus, Mars, Jupiter, Saturne or Earth"))
      ->required()
      ->type_name("");
  AjouteNombreLu(*verbe, dit, "JD", demande.planete.JD, dit("Jour julien, UTC", "Julian day, UTC"));
  return verbe;
}

CLI::App *DeclareLune(CLI::App &programme, const Langue &dit, Demande &demande) {
  CLI::App *verbe =
      programme.add_subcommand("lune", dit("Place de la Lune, du centre de la Terre et d'un lieu",
                                           "The Moon's place, from the Earth's centre and from a place on it"));
  verbe->group(dit("Verbes", "Commands"));
  AjouteLangue(*verbe, dit, demande.lune.langue);
  AjouteNombreLu(*verbe, dit, dit("AN", "YEAR"), demande.lune.an, dit("Année UTC", "Year, UTC"));
  AjouteNombreLu(*verbe, dit, dit("MOIS", "MONTH"), demande.lune.mois, dit("Mois", "Month"));
  AjouteNombreLu(*verbe, dit, dit("JOUR", "DAY"), demande.lune.jour, dit("Jour", "Day"));
  AjouteNombreLu(*verbe, dit, "H", demande.lune.heure, dit("Heure UTC", "Hour, UTC"));
  AjouteNombreLu(*verbe, dit, "M", demande.lune.minute, "Minute");
  AjouteNombreLu(*verbe, dit, "S", demande.lune.seconde, dit("Seconde", "Second"));
  AjouteNombreLu(*verbe, dit, "LAT", demande.lune.latitude,
                 dit("Latitude, degrés, nord positif", "Latitude, degrees, north positive"));
  AjouteNombreLu(*verbe, dit, dit("LON_EST", "LON_EAST"), demande.lune.lonEst,
                 dit("Longitude, degrés, est positif", "Longitude, degrees, east positive"));
  return verbe;
}

CLI::App *DeclareCiel(CLI::App &programme, const Langue &dit, Demande &demande) {
  CLI::App *verbe = programme.add_subcommand(
      "ciel", dit("Ciel d'aujourd'hui : place d'un astre, et sa hauteur d'un lieu",
                  "The sky of today: a body's place, and its height from a place on the Earth"));
  verbe->group(dit("Verbes", "Commands"));
  verbe
      ->add_option(dit("CORPS", "BODY"), demande.ciel.corps,
                   dit("Soleil, Lune, Venus, Mars, Jupiter, Saturne, Aries, ou une ligne de la table des étoiles",
                       "Soleil, Lune, Venus, Mars, Jupiter, Saturne, Aries, or a row of the star table"))
      ->check(CLI::Validator(
          [&dit](const std::string &nom) {
            return AstreNomme(nom) ? "" : nom + dit(" n'est pas un astre", " isn't a body");
          },
          ""))
      ->required()
      ->type_name("");
  verbe->add_option(dit("JJ/MM/AAAA", "DD/MM/YYYY"), demande.ciel.date, dit("Date UTC", "Date, UTC"))
      ->required()
      ->type_name("");
  verbe->add_option("HH:MM:SS", demande.ciel.heure, dit("Heure UTC", "Time, UTC"))->required()->type_name("");
  CLI::Option *latitude =
      AjouteNombreLibre(*verbe, dit, "LAT", dit("Latitude, degrés, nord positif", "Latitude, degrees, north positive"),
                        [&](double lue) { demande.ciel.latitude = lue; });
  CLI::Option *longitude = AjouteNombreLibre(*verbe, dit, dit("LON_EST", "LON_EAST"),
                                             dit("Longitude, degrés, est positif", "Longitude, degrees, east positive"),
                                             [&](double lue) { demande.ciel.longitude = lue; });
  AjouteDut1(*verbe, dit, demande.ciel.dut1);
  verbe->parse_complete_callback([latitude, longitude, &dit] {
    if (!latitude->empty() && longitude->empty()) {
      throw CLI::RequiredError(dit("LON_EST", "LON_EAST"));
    }
  });
  return verbe;
}

/// The arguments, last first as the parser takes them; "-.5" becomes "-0.5" so that it isn't taken for an option. What
/// comes after "--" is taken as it stands.
std::vector<std::string> Arguments(int argc, char **argv) {
  std::vector<std::string> arguments;
  bool options = true;
  for (int i = 1; i < argc; ++i) {
    std::string argument = argv[i];
    options = options && argument != "--";
    if (options && argument.starts_with("-.")) {
      argument.insert(1, "0");
    }
    arguments.push_back(std::move(argument));
  }
  std::reverse(arguments.begin(), arguments.end());
  return arguments;
}

/// What a usage error means, in front of the parser's own words.
std::string SensUsage(const CLI::ParseError &erreur, const Langue &dit) {
  switch (static_cast<CLI::ExitCodes>(erreur.get_exit_code())) {
  case CLI::ExitCodes::RequiredError:
    return dit("argument manquant", "missing argument");
  case CLI::ExitCodes::ExtrasError:
    return dit("argument en trop", "argument too many");
  case CLI::ExitCodes::ValidationError:
  case CLI::ExitCodes::ConversionError:
    return dit("valeur incorrecte", "wrong value");
  default:
    return dit("ligne de commande incorrecte", "wrong command line");
  }
}

/// The words of the help page.
void NommeAide(const CLI::App &programme, const Langue &dit) {
  const auto formateur = programme.get_formatter();
  formateur->label("Usage", dit("Usage ", "Usage"));
  formateur->label("SUBCOMMAND", dit("VERBE", "COMMAND"));
  formateur->label("Positionals", "Arguments");
  formateur->label("REQUIRED", dit("(obligatoire)", "(required)"));
}

/// A verb and what does it.
struct Verbe {
  const CLI::App *commande;
  std::function<int()> fait;
};

/// All verbs, declared.
std::vector<Verbe> DeclareVerbes(CLI::App &programme, Demande &demande, const std::filesystem::path &dossier) {
  const Langue &dit = demande.dit;
  return {
      {DeclareReduit(programme, dit, demande), [&] { return Reduit(demande, dossier); }},
      {DeclareControle(programme, dit, demande), [&] { return Controle(demande); }},
      {DeclarePoint(programme, dit, demande.point), [&] { return Point(demande); }},
      {DeclarePrepare(programme, dit, demande.prepare), [&] { return Prepare(demande); }},
      {DeclareSerie(programme, dit, demande.serie), [&] { return Serie(demande); }},
      {DeclarePlanete(programme, dit, demande, "helio",
                      dit("Lieu héliocentrique d'une planète, \"L|B|R\"", "Heliocentric place of a planet, \"L|B|R\"")),
       [&] { return Planete(demande, EcritHelio); }},
      {DeclarePlanete(programme, dit, demande, "place",
                      dit("Lieu apparent d'une planète, cinq champs entre des barres",
                          "Apparent place of a planet, five fields between bars")),
       [&] { return Planete(demande, EcritPlace); }},
      {DeclareEtoile(programme, dit, demande), [&] { return Etoile(demande); }},
      {DeclareLune(programme, dit, demande), [&] { return Lune(demande, dossier); }},
      {DeclareCiel(programme, dit, demande), [&] { return Ciel(demande); }},
      {DeclareHorizon(programme, dit, demande), [&] { return Horizon(demande); }}};
}

int Execute(int argc, char **argv) {
  Demande demande;
  const Langue &dit = demande.dit =
      LangueDuSysteme(std::getenv("LC_ALL"), std::getenv("LC_MESSAGES"), std::getenv("LANG"));
  CLI::App programme(dit("Réduit des visées au sextant et donne des places dans le ciel, un objet JSON par ligne",
                         "Reduces sextant sights and gives places in the sky, one JSON object a line"),
                     "velmaris-calcul");
  programme.set_version_flag("--version", "velmaris-calcul " VELMARIS_VERSION,
                             dit("Montre la version", "Tells the version"));
  programme.set_help_flag("-h,--help", dit("Montre cette aide", "Tells this help"));
  programme.require_subcommand(1);
  NommeAide(programme, dit);
  const std::filesystem::path dossier = DossierProgramme(argv[0]);
  const std::vector<Verbe> verbes = DeclareVerbes(programme, demande, dossier);
  try {
    programme.parse(Arguments(argc, argv));
  } catch (const CLI::Success &demandee) {
    std::ostringstream page;
    programme.exit(demandee, page, page);
    std::string sortie = page.str();
    return Vide(sortie, demande.dit) ? kReussi : kEchec;
  } catch (const CLI::ParseError &erreur) {
    std::cerr << "velmaris-calcul: " << SensUsage(erreur, dit) << " (" << DitEnLangue(erreur.what(), dit) << ")\n"
              << dit("Usage : ", "Usage: ") << "velmaris-calcul --help\n";
    return kUsage;
  }
  const auto dite =
      std::find_if(verbes.begin(), verbes.end(), [](const Verbe &verbe) { return verbe.commande->parsed(); });
  return dite == verbes.end() ? kUsage : dite->fait(); // one is required
}

} // namespace

int main(int argc, char **argv) {
  try {
    return Execute(argc, argv);
  } catch (const std::exception &erreur) {
    std::fprintf(stderr, "velmaris-calcul: %s\n", erreur.what());
    return kEchec;
  }
}
