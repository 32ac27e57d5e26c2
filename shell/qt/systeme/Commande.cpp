#include "shell/qt/systeme/Commande.hpp"

#include "shell/bureau/Identite.hpp"

#include <algorithm>
#include <span>
#include <string_view>
#include <system_error>
#include <unistd.h>

namespace velmaris::qt {
namespace {

constexpr const char *kUsageAnglais = R"(Usage: velmaris [OPTION] [FILE.LoP]

Celestial navigation: reduces sextant sights and draws lines of position.
With a file, the sight in it is loaded, reduced and drawn.

  --resume       take the last session up that was not left by its exit
  -h, --help     print this and end
  -v, --version  print the version and end

Options of the toolkit, such as -platform, are taken too.
)";

constexpr const char *kUsage = R"(Usage : velmaris [OPTION] [FICHIER.LoP]

Navigation astronomique : réduit des visées au sextant et trace les droites.
Avec un fichier, la visée qu'il contient est chargée, réduite et tracée.

  --resume       reprendre la dernière séance qui n'a pas été quittée
  -h, --help     dire ceci, et finir
  -v, --version  dire la version, et finir

Les options de la boîte à outils, comme -platform, sont acceptées aussi.
)";

/// Where an option would stand that is an argument all the same.
constexpr std::string_view kFinOptions = "--";

/// Takes the last session up without a question.
constexpr std::string_view kReprend = "--resume";

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
    } else if (options && argument == kReprend) {
      commande.reprend = true;
    } else if (options && argument.size() > 1 && argument.front() == '-') {
      commande.inconnue = argument;
    } else if (!argument.empty() && commande.fichier.empty()) {
      commande.fichier = Absolu(argument);
    }
  }
  return commande;
}

void Recommence(const std::vector<std::string> &ligne) {
  std::vector<std::string> mots = {ligne.empty() ? "velmaris" : ligne.front()};
  if (std::find(ligne.begin(), ligne.end(), kReprend) == ligne.end()) {
    mots.emplace_back(kReprend);
  }
  const std::span<const std::string> toute(ligne);
  for (const std::string &mot : toute.subspan(std::min<std::size_t>(1, toute.size()))) {
    mots.push_back(mot);
  }
  std::vector<char *> arguments;
  arguments.reserve(mots.size() + 1);
  for (std::string &mot : mots) {
    arguments.push_back(mot.data());
  }
  arguments.push_back(nullptr);
  ::execv("/proc/self/exe", arguments.data());
}

} // namespace velmaris::qt
