#include "shell/qt/systeme/Commande.hpp"

#include "shell/bureau/Identite.hpp"

#include <algorithm>
#include <string_view>
#include <system_error>

namespace velmaris::qt {
namespace {

constexpr const char *kUsageAnglais = R"(Usage: velmaris [OPTION] [FILE.LoP]

Celestial navigation: reduces sextant sights and draws lines of position.
With a file, the sight in it is loaded, reduced and drawn.

  -h, --help     print this and end
  -v, --version  print the version and end

Options of the toolkit, such as -platform, are taken too.
)";

constexpr const char *kUsage = R"(Usage : velmaris [OPTION] [FICHIER.LoP]

Navigation astronomique : réduit des visées au sextant et trace les droites.
Avec un fichier, la visée qu'il contient est chargée, réduite et tracée.

  -h, --help     dire ceci, et finir
  -v, --version  dire la version, et finir

Les options de la boîte à outils, comme -platform, sont acceptées aussi.
)";

/// Where an option would stand that is an argument all the same.
constexpr std::string_view kFinOptions = "--";

std::filesystem::path Absolu(const std::string &fichier) {
  std::error_code refus;
  const std::filesystem::path absolu = std::filesystem::absolute(fichier, refus);
  return refus ? std::filesystem::path(fichier) : absolu;
}

} // namespace

std::optional<std::string> ReponseSansFenetre(const std::vector<std::string> &arguments, const Langue &dit) {
  const auto fin = std::find(arguments.begin(), arguments.end(), kFinOptions);
  const auto demande = [&](const char *court, const char *longue) {
    return std::any_of(arguments.begin(), fin, [&](const std::string &a) { return a == court || a == longue; });
  };
  if (demande("-h", "--help")) {
    return dit(kUsage, kUsageAnglais);
  }
  if (demande("-v", "--version")) {
    return "velmaris " + std::string(TexteVersion()) + "\n";
  }
  return std::nullopt;
}

Commande LitCommande(const std::vector<std::string> &arguments) {
  Commande commande;
  bool options = true;
  for (const std::string &argument : arguments) {
    if (options && argument == kFinOptions) {
      options = false;
    } else if (options && argument.size() > 1 && argument.front() == '-') {
      commande.inconnue = argument;
    } else if (!argument.empty() && commande.fichier.empty()) {
      commande.fichier = Absolu(argument);
    }
  }
  return commande;
}

} // namespace velmaris::qt
