#include "calcul/Etoile.hpp"
#include "calcul/Horizon.hpp"
#include "calcul/Lune.hpp"
#include "calcul/Planetes.hpp"
#include "calcul/Reduit.hpp"
#include "ephemerides/TableEtoiles.hpp"
#include "foundations/Erreur.hpp"
#include "shell/bureau/FichierLangue.hpp"
#include "shell/bureau/Ports.hpp"

#include <CLI/CLI.hpp>

#include <charconv>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <iostream>

namespace {

using namespace velmaris;

constexpr int kReussi = 0;
constexpr int kEchec = 1;
constexpr int kUsage = 2;
constexpr std::size_t kLabelAD = 33;       ///< numbered text before a right ascension
constexpr std::size_t kTampon = 1U << 20U; ///< bytes gathered before they are written

/// What the command line asks for.
struct Demande {
  std::string langue = "fr";
  std::vector<std::string> fichiers;
  DemandeHorizon horizon;
  DemandeEtoile etoile;
  DemandeLune lune;
  DemandePlanete planete;
};

/// Writes what has been gathered and empties it.
/// @return false when standard output doesn't take it
bool Vide(std::string &sortie) {
  const bool ecrit = std::fwrite(sortie.data(), 1, sortie.size(), stdout) == sortie.size() && std::fflush(stdout) == 0;
  sortie.clear();
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
  bool ecrit = true;
  std::string sortie;
  sortie.reserve(kTampon * 2);
  for (const std::string &fichier : demande.fichiers) {
    reussi = ReduitFichier(fichier, messages, sortie) && reussi;
    if (sortie.size() >= kTampon) {
      ecrit = Vide(sortie) && ecrit;
    }
  }
  ecrit = Vide(sortie) && ecrit;
  if (!ecrit) {
    std::cerr << "velmaris-calcul: la sortie ne peut pas être écrite\n";
  }
  return reussi && ecrit ? kReussi : kEchec;
}

int Horizon(const Demande &demande) {
  std::string sortie;
  const bool reussi = EcritHorizon(demande.horizon, sortie);
  return Vide(sortie) && reussi ? kReussi : kEchec;
}

int Etoile(const Demande &demande) {
  std::string sortie;
  const bool reussi = EcritEtoile(demande.etoile, sortie);
  return Vide(sortie) && reussi ? kReussi : kEchec;
}

int Lune(const Demande &demande, const std::filesystem::path &dossier) {
  std::string sortie;
  const bool reussi = EcritLune(demande.lune, MessagesDeLangue(demande.lune.langue, dossier)[kLabelAD], sortie);
  return Vide(sortie) && reussi ? kReussi : kEchec;
}

int Planete(const Demande &demande, EcritPlanete ecrit) {
  std::string sortie;
  const bool reussi = ecrit(demande.planete, sortie);
  return Vide(sortie) && reussi ? kReussi : kEchec;
}

/// A whole argument as a number, "." being the decimal point; an infinity is none.
/// @param valeur  left alone when the argument is not a number
bool LitFigure(std::string_view texte, double &valeur) {
  if (texte.starts_with('+') && !texte.starts_with("+-")) {
    texte.remove_prefix(1);
  }
  double lu = 0.0;
  const auto [fin, code] = std::from_chars(texte.data(), texte.data() + texte.size(), lu);
  if (code != std::errc() || fin != texte.data() + texte.size() || !std::isfinite(lu)) {
    return false;
  }
  valeur = lu;
  return true;
}

/// A positional argument that must be a number.
void AjouteNombreLu(CLI::App &verbe, const std::string &nom, double &valeur, const std::string &aide) {
  verbe
      .add_option_function<std::string>(
          nom,
          [&valeur, nom](const std::string &texte) {
            if (!LitFigure(texte, valeur)) {
              throw CLI::ValidationError(nom, texte + " n'est pas un nombre");
            }
          },
          aide)
      ->required()
      ->type_name("");
}

/// The choice of the language of the texts.
void AjouteLangue(CLI::App &verbe, std::string &langue) {
  verbe.add_option("--langue", langue, "Langue des textes : fr, en ou aucune")
      ->check(CLI::IsMember({"fr", "en", "aucune"}))
      ->type_name("LANGUE")
      ->capture_default_str();
}

CLI::App *DeclareReduit(CLI::App &programme, Demande &demande) {
  CLI::App *verbe = programme.add_subcommand("reduit", "Réduit des visées enregistrées, dans l'ordre");
  verbe->group("Verbes");
  AjouteLangue(*verbe, demande.langue);
  verbe->add_option("FICHIER.LoP", demande.fichiers, "Fichiers de visée")->required()->type_name("");
  return verbe;
}

CLI::App *DeclareHorizon(CLI::App &programme, Demande &demande) {
  CLI::App *verbe = programme.add_subcommand("horizon", "Azimut et hauteur d'un lieu équatorial, \"azXalt\"");
  verbe->group("Verbes");
  verbe->add_option("JJ/MM/AAAA", demande.horizon.date, "Date UTC")->required()->type_name("");
  verbe->add_option("HH:MM:SS", demande.horizon.heure, "Heure UTC")->required()->type_name("");
  AjouteNombreLu(*verbe, "AD", demande.horizon.AD, "Ascension droite, degrés");
  AjouteNombreLu(*verbe, "DEC", demande.horizon.Dec, "Déclinaison, degrés, nord positif");
  AjouteNombreLu(*verbe, "LAT", demande.horizon.latitude, "Latitude, degrés, nord positif");
  AjouteNombreLu(*verbe, "LON_EST", demande.horizon.lonEst, "Longitude, degrés, est positif");
  return verbe;
}

CLI::App *DeclareEtoile(CLI::App &programme, Demande &demande) {
  CLI::App *verbe =
      programme.add_subcommand("etoile", "Place d'une étoile de la table à une date, \"adXdec\" en degrés");
  verbe->group("Verbes");
  verbe->add_option("RANG", demande.etoile.rang, "Ligne de la table, 1 à 246")
      ->check(CLI::Range(1, kNombreLignesEtoiles))
      ->required()
      ->type_name("");
  AjouteNombreLu(*verbe, "JOUR", demande.etoile.jour, "Jour");
  AjouteNombreLu(*verbe, "MOIS", demande.etoile.mois, "Mois");
  AjouteNombreLu(*verbe, "AN", demande.etoile.an, "Année");
  return verbe;
}

/// A verb that gives one place of a planet.
CLI::App *DeclarePlanete(CLI::App &programme, Demande &demande, const std::string &nom, const std::string &aide) {
  CLI::App *verbe = programme.add_subcommand(nom, aide);
  verbe->group("Verbes");
  verbe->add_option("PLANETE", demande.planete.nom, "Venus, Mars, Jupiter, Saturne ou Earth")
      ->required()
      ->type_name("");
  AjouteNombreLu(*verbe, "JD", demande.planete.JD, "Jour julien, UTC");
  return verbe;
}

CLI::App *DeclareLune(CLI::App &programme, Demande &demande) {
  CLI::App *verbe = programme.add_subcommand("lune", "Place de la Lune, du centre de la Terre et d'un lieu");
  verbe->group("Verbes");
  AjouteLangue(*verbe, demande.lune.langue);
  AjouteNombreLu(*verbe, "AN", demande.lune.an, "Année UTC");
  AjouteNombreLu(*verbe, "MOIS", demande.lune.mois, "Mois");
  AjouteNombreLu(*verbe, "JOUR", demande.lune.jour, "Jour");
  AjouteNombreLu(*verbe, "H", demande.lune.heure, "Heure UTC");
  AjouteNombreLu(*verbe, "M", demande.lune.minute, "Minute");
  AjouteNombreLu(*verbe, "S", demande.lune.seconde, "Seconde");
  AjouteNombreLu(*verbe, "LAT", demande.lune.latitude, "Latitude, degrés, nord positif");
  AjouteNombreLu(*verbe, "LON_EST", demande.lune.lonEst, "Longitude, degrés, est positif");
  return verbe;
}

/// The arguments, last first as the parser takes them; "-.5" becomes "-0.5" so that it isn't taken for an option.
std::vector<std::string> Arguments(int argc, char **argv) {
  std::vector<std::string> arguments;
  for (int i = argc - 1; i > 0; --i) {
    std::string argument = argv[i];
    if (argument.starts_with("-.")) {
      argument.insert(1, "0");
    }
    arguments.push_back(std::move(argument));
  }
  return arguments;
}

/// What a usage error means, in front of the parser's own words.
std::string SensUsage(const CLI::ParseError &erreur) {
  switch (static_cast<CLI::ExitCodes>(erreur.get_exit_code())) {
  case CLI::ExitCodes::RequiredError:
    return "argument manquant";
  case CLI::ExitCodes::ExtrasError:
    return "argument en trop";
  case CLI::ExitCodes::ValidationError:
  case CLI::ExitCodes::ConversionError:
    return "valeur incorrecte";
  default:
    return "ligne de commande incorrecte";
  }
}

/// The words of the help page.
void NommeAide(const CLI::App &programme) {
  const auto formateur = programme.get_formatter();
  formateur->label("SUBCOMMAND", "VERBE");
  formateur->label("Positionals", "Arguments");
  formateur->label("REQUIRED", "(obligatoire)");
}

int Execute(int argc, char **argv) {
  Demande demande;
  CLI::App programme("Réduit des visées au sextant et donne des places dans le ciel, un objet JSON par ligne",
                     "velmaris-calcul");
  programme.set_version_flag("--version", "velmaris-calcul " VELMARIS_VERSION, "Montre la version");
  programme.set_help_flag("-h,--help", "Montre cette aide");
  programme.require_subcommand(1);
  NommeAide(programme);
  const CLI::App *reduit = DeclareReduit(programme, demande);
  const CLI::App *helio = DeclarePlanete(programme, demande, "helio", "Lieu héliocentrique d'une planète, \"L|B|R\"");
  const CLI::App *place =
      DeclarePlanete(programme, demande, "place", "Lieu apparent d'une planète, cinq champs entre des barres");
  const CLI::App *etoile = DeclareEtoile(programme, demande);
  const CLI::App *lune = DeclareLune(programme, demande);
  DeclareHorizon(programme, demande);
  try {
    programme.parse(Arguments(argc, argv));
  } catch (const CLI::Success &demandee) {
    return programme.exit(demandee);
  } catch (const CLI::ParseError &erreur) {
    std::cerr << "velmaris-calcul: " << SensUsage(erreur) << " (" << erreur.what()
              << ")\nUsage : velmaris-calcul --help\n";
    return kUsage;
  }
  if (reduit->parsed()) {
    return Reduit(demande, DossierProgramme(argv[0]));
  }
  if (helio->parsed()) {
    return Planete(demande, EcritHelio);
  }
  if (place->parsed()) {
    return Planete(demande, EcritPlace);
  }
  if (etoile->parsed()) {
    return Etoile(demande);
  }
  return lune->parsed() ? Lune(demande, DossierProgramme(argv[0])) : Horizon(demande);
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
