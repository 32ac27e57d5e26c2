#include "foundations/Fichiers.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <random>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace velmaris {
namespace {

namespace fs = std::filesystem;

/// Characters 0x80 to 0x9F of Windows-1252; 0 where it has none.
constexpr std::array<std::uint16_t, 32> kWindows1252 = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                        0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                                        0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                        0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

unsigned Octet(char c) { return static_cast<unsigned char>(c); }

/// An open file, closed with its scope.
class Descripteur {
public:
  explicit Descripteur(int numero) : numero_(numero) {}
  ~Descripteur() {
    if (numero_ >= 0) {
      ::close(numero_);
    }
  }
  Descripteur(const Descripteur &) = delete;
  Descripteur &operator=(const Descripteur &) = delete;
  Descripteur(Descripteur &&) = delete;
  Descripteur &operator=(Descripteur &&) = delete;
  int numero() const { return numero_; }

private:
  int numero_;
};

void EcritTout(int numero, std::string_view octets) {
  while (!octets.empty()) {
    const ssize_t n = ::write(numero, octets.data(), octets.size());
    if (n < 0 && errno == EINTR) {
      continue;
    }
    if (n < 0) {
      throw Erreur(75);
    }
    octets.remove_prefix(static_cast<std::size_t>(n));
  }
}

// An unfinished file, and the note that tells where it lies, bear names that nobody else gives: the start, sixteen
// hexadecimal digits, the end.
constexpr std::string_view kDebutProvisoire = ".velmaris-";
constexpr std::string_view kFinProvisoire = ".provisoire";
constexpr std::string_view kFinNote = ".note";
constexpr std::size_t kChiffres = 16;
constexpr int kEssaisNom = 100;
constexpr mode_t kModeNeuf = 0666;     ///< less what the user's mask takes away
constexpr std::chrono::hours kAge{24}; ///< after which nobody is writing any more
constexpr std::string_view kHexa = "0123456789abcdef";

bool PorteLeNom(const fs::path &chemin, std::string_view fin) {
  const std::string nom = chemin.filename().string();
  return nom.size() == kDebutProvisoire.size() + kChiffres + fin.size() && nom.starts_with(kDebutProvisoire) &&
         nom.ends_with(fin) &&
         nom.find_first_not_of(kHexa, kDebutProvisoire.size()) == kDebutProvisoire.size() + kChiffres;
}

/// Whether there is a regular file, no link, that was last written more than a day ago.
bool EstVieux(const fs::path &chemin) {
  struct stat etat {};
  return ::lstat(chemin.c_str(), &etat) == 0 && S_ISREG(etat.st_mode) &&
         std::chrono::system_clock::now() - std::chrono::system_clock::from_time_t(etat.st_mtime) > kAge;
}

/// Removes the unfinished file that a note names.
/// @return whether the note has served: nothing is left, and the folder is there, not on a volume that was taken out
bool OteNotee(const fs::path &note) {
  fs::path lieu;
  Passe([&] { lieu = LitFichier(note); });
  if (!lieu.is_absolute() || !PorteLeNom(lieu, kFinProvisoire)) {
    return true;
  }
  if (EstVieux(lieu)) {
    ::unlink(lieu.c_str());
  }
  struct stat etat {};
  return ::lstat(lieu.c_str(), &etat) != 0 && ::stat(lieu.parent_path().c_str(), &etat) == 0;
}

/// A new file while it is being written, and its note; both go with the scope, unless the file has been renamed.
class Provisoire {
public:
  /// @throws Erreur 75 when no file can be made in that folder
  Provisoire(const fs::path &dossier, const fs::path &registre, mode_t mode) {
    std::random_device hasard;
    for (int essai = 0; essai < kEssaisNom && numero_ < 0; ++essai) {
      std::string nom(kDebutProvisoire);
      for (std::size_t i = 0; i < kChiffres; ++i) {
        nom += kHexa[hasard() % kHexa.size()];
      }
      chemin_ = dossier / (nom + std::string(kFinProvisoire));
      if (!registre.empty()) {
        Note(registre / (nom + std::string(kFinNote)));
      }
      numero_ = ::open(chemin_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
      if (numero_ < 0) {
        const bool pris = errno == EEXIST;
        OteNote();
        if (!pris) {
          throw Erreur(75);
        }
      }
    }
    if (numero_ < 0) {
      throw Erreur(75);
    }
  }
  ~Provisoire() {
    ::close(numero_);
    ::unlink(chemin_.c_str()); // nothing is there any more once it was renamed
    OteNote();
  }
  Provisoire(const Provisoire &) = delete;
  Provisoire &operator=(const Provisoire &) = delete;
  Provisoire(Provisoire &&) = delete;
  Provisoire &operator=(Provisoire &&) = delete;
  int numero() const { return numero_; }
  const fs::path &chemin() const { return chemin_; }

private:
  /// Without a note the file is written all the same.
  void Note(const fs::path &note) {
    std::error_code refus;
    fs::create_directories(note.parent_path(), refus);
    const std::string lieu = fs::absolute(chemin_, refus).string();
    const Descripteur fichier(::open(note.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kModeNeuf));
    if (fichier.numero() >= 0) {
      note_ = note;
      Passe([&] { EcritTout(fichier.numero(), lieu); });
    }
  }
  void OteNote() {
    if (!note_.empty()) {
      ::unlink(note_.c_str());
      note_.clear();
    }
  }

  int numero_ = -1;
  fs::path chemin_;
  fs::path note_;
};

/// Permissions of the file that is to be replaced, none where there is no file.
/// @throws Erreur 75 when what is there is no file, or may not be written
std::optional<mode_t> ModeDeLAncien(const fs::path &cible) {
  const Descripteur fichier(::open(cible.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK));
  if (fichier.numero() < 0) {
    if (errno == ENOENT) {
      return std::nullopt;
    }
    throw Erreur(75);
  }
  struct stat etat {};
  if (::fstat(fichier.numero(), &etat) != 0 || !S_ISREG(etat.st_mode)) {
    throw Erreur(75);
  }
  return etat.st_mode & 07777U;
}

/// Code point that a well-formed UTF-8 sequence of `longueur` bytes stands for.
std::uint32_t CodeUtf8(std::string_view sequence) {
  std::uint32_t code = Octet(sequence[0]);
  if (sequence.size() > 1) {
    code &= 0x7FU >> sequence.size();
  }
  for (std::size_t i = 1; i < sequence.size(); ++i) {
    code = (code << 6U) | (Octet(sequence[i]) & 0x3FU);
  }
  return code;
}

/// Bytes of the UTF-8 sequence at the start of a text, 0 when it is malformed.
std::size_t LongueurUtf8(std::string_view texte) {
  const unsigned tete = Octet(texte[0]);
  const std::size_t n = tete < 0x80U ? 1 : tete >= 0xF0U ? 4 : tete >= 0xE0U ? 3 : 2;
  if ((tete >= 0x80U && tete < 0xC2U) || tete > 0xF4U || texte.size() < n) {
    return 0;
  }
  for (std::size_t i = 1; i < n; ++i) {
    if ((Octet(texte[i]) & 0xC0U) != 0x80U) {
      return 0;
    }
  }
  const std::uint32_t code = CodeUtf8(texte.substr(0, n));
  const bool tropLong = (n == 3 && code < 0x800U) || (n == 4 && (code < 0x10000U || code > 0x10FFFFU));
  return tropLong || (code >= 0xD800U && code < 0xE000U) ? 0 : n;
}

bool EstUtf8(std::string_view texte) {
  while (!texte.empty()) {
    const std::size_t n = LongueurUtf8(texte);
    if (n == 0) {
      return false;
    }
    texte.remove_prefix(n);
  }
  return true;
}

void AjouteUtf8(std::string &texte, std::uint32_t code) {
  const auto suite = [](std::uint32_t bits) { return static_cast<char>(0x80U | (bits & 0x3FU)); };
  if (code < 0x80U) {
    texte += static_cast<char>(code);
  } else if (code < 0x800U) {
    texte += static_cast<char>(0xC0U | (code >> 6U));
    texte += suite(code);
  } else {
    texte += static_cast<char>(0xE0U | (code >> 12U));
    texte += suite(code >> 6U);
    texte += suite(code);
  }
}

/// Appends lines to an open file of that size, all or none.
void AjouteA(int numero, off_t taille, std::string_view titre, const std::vector<std::string> &lignes) {
  std::string octets;
  if (taille == 0) {
    octets = std::string(titre) + "\n";
  } else if (char dernier = 0; ::pread(numero, &dernier, 1, taille - 1) == 1 && dernier != '\n') {
    octets = "\n";
  }
  for (const std::string &ligne : lignes) {
    octets.append(ligne) += '\n';
  }
  try {
    EcritTout(numero, octets);
    if (::fdatasync(numero) != 0) {
      throw Erreur(75);
    }
  } catch (const Erreur &) {
    // Half a line is no line: what was there before stays.
    if (::ftruncate(numero, taille) != 0) {
      throw Erreur(75);
    }
    throw;
  }
}

/// Whether a path still leads to a file that was opened by it: another program may have given the file another name.
bool PorteEncore(const fs::path &chemin, const struct stat &ouvert) {
  struct stat etat {};
  return ::stat(chemin.c_str(), &etat) == 0 && etat.st_ino == ouvert.st_ino && etat.st_dev == ouvert.st_dev;
}

/// Gives a file another name, which no file has.
bool Renomme(const fs::path &chemin, const fs::path &voulu) {
  if (::renameat2(AT_FDCWD, chemin.c_str(), AT_FDCWD, voulu.c_str(), RENAME_NOREPLACE) == 0) {
    return true;
  }
  // Not every file system can promise that.
  const bool promis = errno != EINVAL && errno != ENOSYS;
  std::error_code refus;
  return !promis && !fs::exists(voulu, refus) && ::rename(chemin.c_str(), voulu.c_str()) == 0;
}

/// Relieves an open file, where that is due.
bool ReleveFichier(const fs::path &chemin, int numero, const struct stat &etat, const Releve &releve) {
  constexpr std::size_t kDebut = 4096;
  std::string debut(std::min(static_cast<std::size_t>(etat.st_size), kDebut), '\0');
  const ssize_t lus = debut.empty() ? 0 : ::pread(numero, debut.data(), debut.size(), 0);
  debut.resize(lus < 0 ? 0 : static_cast<std::size_t>(lus));
  const fs::path voulu = debut.empty() ? fs::path() : releve(debut, static_cast<std::uintmax_t>(etat.st_size));
  return !voulu.empty() && Renomme(chemin, voulu);
}

} // namespace

std::string LitFichier(const std::filesystem::path &chemin) {
  const Descripteur fichier(::open(chemin.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (fichier.numero() < 0) {
    throw Erreur(errno == ENOENT ? 53 : 75);
  }
  struct stat etat {};
  if (::fstat(fichier.numero(), &etat) != 0 || !S_ISREG(etat.st_mode)) {
    throw Erreur(75);
  }
  if (std::cmp_greater(etat.st_size, kTailleLue)) {
    throw FichierTropGrand();
  }
  std::string octets(static_cast<std::size_t>(etat.st_size), '\0');
  std::size_t lus = 0;
  while (lus < octets.size()) {
    const ssize_t n = ::read(fichier.numero(), octets.data() + lus, octets.size() - lus);
    if (n < 0 && errno == EINTR) {
      continue;
    }
    if (n < 0) {
      throw Erreur(75);
    }
    if (n == 0) {
      break;
    }
    lus += static_cast<std::size_t>(n);
  }
  octets.resize(lus);
  return octets;
}

void EcritFichier(const fs::path &chemin, std::string_view octets, const fs::path &registre) {
  // Behind a link it is the file that is replaced; a file keeps its permissions.
  std::error_code absent;
  const fs::path vrai = fs::canonical(chemin, absent);
  const fs::path cible = absent ? chemin : vrai;
  const std::optional<mode_t> ancien = ModeDeLAncien(cible);
  const fs::path dossier = cible.parent_path().empty() ? "." : cible.parent_path();
  const Provisoire provisoire(dossier, registre, ancien.value_or(kModeNeuf));
  EcritTout(provisoire.numero(), octets);
  if ((ancien && ::fchmod(provisoire.numero(), *ancien) != 0) || ::fsync(provisoire.numero()) != 0 ||
      ::rename(provisoire.chemin().c_str(), cible.c_str()) != 0) {
    throw Erreur(75);
  }
  const Descripteur parent(::open(dossier.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (parent.numero() >= 0) {
    ::fsync(parent.numero());
  }
}

void BalaieProvisoires(const fs::path &registre) {
  std::error_code refus;
  std::vector<fs::path> vieux;
  for (fs::directory_iterator i(registre, refus), fin; !refus && i != fin; i.increment(refus)) {
    if ((PorteLeNom(i->path(), kFinProvisoire) || PorteLeNom(i->path(), kFinNote)) && EstVieux(i->path())) {
      vieux.push_back(i->path());
    }
  }
  for (const fs::path &trouve : vieux) {
    if (!PorteLeNom(trouve, kFinNote) || OteNotee(trouve)) {
      ::unlink(trouve.c_str());
    }
  }
}

bool AjouteLignes(const fs::path &chemin, std::string_view titre, const std::vector<std::string> &lignes,
                  Patience &patience, const Releve &releve) {
  // Others may relieve it meanwhile, and again before this program has its turn on a busy machine. A file system whose
  // files never bear the same number twice ends it all the same.
  constexpr int kEssais = 1000;
  for (int essai = 0; essai < kEssais; ++essai) {
    const Descripteur fichier(::open(chemin.c_str(), O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK, kModeNeuf));
    // The lock, which goes with the descriptor, keeps two programs from both writing the title.
    const Verrou verrou = fichier.numero() < 0 ? Verrou::Impossible : Verrouille(fichier.numero(), true, patience);
    if (verrou == Verrou::Retenu) {
      return false;
    }
    struct stat etat {};
    if (verrou == Verrou::Impossible || ::fstat(fichier.numero(), &etat) != 0 || !S_ISREG(etat.st_mode)) {
      throw Erreur(75);
    }
    if (releve && (!PorteEncore(chemin, etat) || ReleveFichier(chemin, fichier.numero(), etat, releve))) {
      continue;
    }
    AjouteA(fichier.numero(), etat.st_size, titre, lignes);
    return true;
  }
  throw Erreur(75);
}

std::string EnUtf8(std::string_view octets) {
  if (EstUtf8(octets)) {
    return std::string(octets.substr(octets.starts_with("\xEF\xBB\xBF") ? 3 : 0));
  }
  std::string texte;
  texte.reserve(octets.size() * 2);
  for (const char c : octets) {
    const unsigned o = Octet(c);
    const std::uint32_t code = o >= 0x80U && o < 0xA0U ? kWindows1252[o - 0x80U] : o;
    AjouteUtf8(texte, code == 0 && o != 0 ? o : code);
  }
  return texte;
}

std::string EnWindows1252(std::string_view texte) {
  std::string octets;
  octets.reserve(texte.size());
  while (!texte.empty()) {
    const std::size_t n = LongueurUtf8(texte);
    const std::uint32_t code = n == 0 ? 0xFFFFU : CodeUtf8(texte.substr(0, n));
    const auto *rang = std::find(kWindows1252.begin(), kWindows1252.end(), code);
    if (code < 0x80U || (code >= 0x80U && code < 0x100U && (code >= 0xA0U || kWindows1252[code - 0x80U] == 0))) {
      octets += static_cast<char>(code);
    } else if (rang != kWindows1252.end()) {
      octets += static_cast<char>(0x80 + (rang - kWindows1252.begin()));
    } else {
      octets += '?';
    }
    texte.remove_prefix(std::max<std::size_t>(n, 1));
  }
  return octets;
}

std::vector<std::string_view> Lignes(std::string_view texte, std::size_t auPlus) {
  std::vector<std::string_view> lignes;
  while (!texte.empty() && lignes.size() < auPlus) {
    const std::size_t fin = texte.find_first_of("\r\n");
    lignes.push_back(texte.substr(0, fin));
    if (fin == std::string_view::npos) {
      break;
    }
    const bool paire = texte[fin] == '\r' && fin + 1 < texte.size() && texte[fin + 1] == '\n';
    texte.remove_prefix(fin + (paire ? 2 : 1));
  }
  return lignes;
}

} // namespace velmaris
