#include "Passage.hpp"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ;

namespace velmaris {

using nlohmann::ordered_json;

namespace {

/// Empties two pipes until both are closed.
void LitTuyaux(int sortie, int erreurs, Passage &passage) {
  std::array<pollfd, 2> tuyaux{{{sortie, POLLIN, 0}, {erreurs, POLLIN, 0}}};
  std::array<char, 65536> tampon{};
  while (tuyaux[0].fd >= 0 || tuyaux[1].fd >= 0) {
    ASSERT_GE(poll(tuyaux.data(), tuyaux.size(), 60000), 1) << "the program stays silent for a minute";
    for (std::size_t i = 0; i < tuyaux.size(); ++i) {
      if (tuyaux[i].fd < 0 || tuyaux[i].revents == 0) {
        continue;
      }
      const ssize_t n = read(tuyaux[i].fd, tampon.data(), tampon.size());
      if (n <= 0) {
        close(tuyaux[i].fd);
        tuyaux[i].fd = -1;
      } else {
        (i == 0 ? passage.sortie : passage.erreurs).append(tampon.data(), static_cast<std::size_t>(n));
      }
    }
  }
}

/// Sets a variable of the environment, or takes it away.
void Pose(const std::string &nom, const std::optional<std::string> &valeur) {
  if (valeur) {
    ::setenv(nom.c_str(), valeur->c_str(), 1);
  } else {
    ::unsetenv(nom.c_str());
  }
}

} // namespace

Environnement::Environnement(const Variables &voulu) {
  for (const char *nom : {"LC_ALL", "LC_MESSAGES", "LANG", "LANGUAGE"}) {
    const char *avant = std::getenv(nom);
    avant_[nom] = avant == nullptr ? std::nullopt : std::optional<std::string>(avant);
    const auto trouve = voulu.find(nom);
    Pose(nom, trouve == voulu.end() ? std::nullopt : std::optional(trouve->second));
  }
}

Environnement::~Environnement() {
  for (const auto &[nom, valeur] : avant_) {
    Pose(nom, valeur);
  }
}

Passage Lance(std::vector<std::string> arguments, const std::string &programme, const std::string &versFichier) {
  arguments.insert(arguments.begin(), programme);
  std::vector<char *> argv;
  for (std::string &argument : arguments) {
    argv.push_back(argument.data());
  }
  argv.push_back(nullptr);
  std::array<int, 2> sortie{};
  std::array<int, 2> erreurs{};
  EXPECT_EQ(pipe2(sortie.data(), O_CLOEXEC), 0);
  EXPECT_EQ(pipe2(erreurs.data(), O_CLOEXEC), 0);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  if (versFichier.empty()) {
    posix_spawn_file_actions_adddup2(&actions, sortie[1], STDOUT_FILENO);
  } else {
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, versFichier.c_str(), O_WRONLY, 0);
  }
  posix_spawn_file_actions_adddup2(&actions, erreurs[1], STDERR_FILENO);
  pid_t pid = 0;
  Passage passage;
  const int code = posix_spawn(&pid, programme.c_str(), &actions, nullptr, argv.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  close(sortie[1]);
  close(erreurs[1]);
  if (code != 0) {
    ADD_FAILURE() << programme << " can't be started";
    return passage;
  }
  LitTuyaux(sortie[0], erreurs[0], passage);
  int etat = 0;
  waitpid(pid, &etat, 0);
  passage.etat = WIFEXITED(etat) ? WEXITSTATUS(etat) : 128 + WTERMSIG(etat);
  return passage;
}

std::vector<ordered_json> Objets(const std::string &sortie) {
  std::vector<ordered_json> objets;
  std::size_t debut = 0;
  while (debut < sortie.size()) {
    const std::size_t fin = sortie.find('\n', debut);
    EXPECT_NE(fin, std::string::npos) << "the last line has no end";
    objets.push_back(ordered_json::parse(sortie.substr(debut, fin - debut)));
    debut = fin == std::string::npos ? sortie.size() : fin + 1;
  }
  return objets;
}

std::vector<std::string> Cles(const ordered_json &objet) {
  std::vector<std::string> cles;
  for (const auto &[cle, valeur] : objet.items()) {
    cles.push_back(cle);
  }
  return cles;
}

} // namespace velmaris
