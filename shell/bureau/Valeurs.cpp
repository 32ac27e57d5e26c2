#include "shell/bureau/Valeurs.hpp"

#include "foundations/Horloge.hpp"
#include "foundations/TexteNombre.hpp"

#include <array>
#include <fcntl.h>
#include <sqlite3.h>
#include <sys/file.h>
#include <system_error>
#include <unistd.h>
#include <utility>
#include <vector>

namespace velmaris {
namespace {

constexpr int kAttenteMs = 5000; ///< for another program that is writing
constexpr std::string_view kCreation = "CREATE TABLE ";
/// The text of the table, as every user's file keeps it: a table of any other text is no store.
constexpr std::string_view kTable = "CREATE TABLE valeurs("
                                    " application TEXT NOT NULL, section TEXT NOT NULL,"
                                    " cle TEXT NOT NULL COLLATE NOCASE, valeur TEXT NOT NULL,"
                                    " PRIMARY KEY(application, section, cle)) WITHOUT ROWID";
constexpr const char *kForme = "SELECT sql FROM sqlite_schema WHERE type='table' AND name='valeurs'";
constexpr const char *kLecture = "SELECT valeur FROM valeurs WHERE application=?1 AND section=?2 AND cle=?3";
constexpr const char *kEcriture =
    "INSERT INTO valeurs VALUES(?1,?2,?3,?4) ON CONFLICT DO UPDATE SET cle=excluded.cle, valeur=excluded.valeur";

/// A prepared statement, finalised with its scope.
class Instruction {
public:
  Instruction(sqlite3 *base, const char *texte) { sqlite3_prepare_v2(base, texte, -1, &instruction_, nullptr); }
  ~Instruction() { sqlite3_finalize(instruction_); }
  Instruction(const Instruction &) = delete;
  Instruction &operator=(const Instruction &) = delete;
  Instruction(Instruction &&) = delete;
  Instruction &operator=(Instruction &&) = delete;

  void Lie(int rang, std::string_view texte) {
    sqlite3_bind_text(instruction_, rang, texte.data() == nullptr ? "" : texte.data(), static_cast<int>(texte.size()),
                      SQLITE_TRANSIENT);
  }
  int Avance() { return instruction_ == nullptr ? SQLITE_ERROR : sqlite3_step(instruction_); }
  std::string Colonne(int rang) const {
    const auto *texte = reinterpret_cast<const char *>(sqlite3_column_text(instruction_, rang));
    return texte == nullptr ? std::string()
                            : std::string(texte, static_cast<std::size_t>(sqlite3_column_bytes(instruction_, rang)));
  }

private:
  sqlite3_stmt *instruction_ = nullptr;
};

/// Whether a refusal can come from the file's own bytes, not from the disk, a permission or another program.
bool VientDesOctets(int code) { return code == SQLITE_CORRUPT || code == SQLITE_NOTADB || code == SQLITE_ERROR; }

/// Makes the table where there is none.
int Prepare(sqlite3 *base) {
  const std::string instructions =
      "PRAGMA synchronous=EXTRA; CREATE TABLE IF NOT EXISTS " + std::string(kTable.substr(kCreation.size()));
  return sqlite3_exec(base, instructions.c_str(), nullptr, nullptr, nullptr);
}

bool EstAbime(sqlite3 *base) {
  // The quick check would pass over keys out of their order, which are then no longer found.
  Instruction controle(base, "PRAGMA integrity_check(1)");
  const int code = controle.Avance();
  if (code != SQLITE_ROW) {
    return VientDesOctets(code);
  }
  if (controle.Colonne(0) != "ok") {
    return true;
  }
  Instruction forme(base, kForme);
  const int trouvee = forme.Avance();
  if (trouvee != SQLITE_ROW) {
    return trouvee == SQLITE_DONE || VientDesOctets(trouvee);
  }
  if (forme.Colonne(0) != kTable) {
    return true;
  }
  Instruction lecture(base, kLecture);
  return VientDesOctets(lecture.Avance());
}

/// Holds a folder until its scope ends: shared with others that hold it shared, or alone.
class VerrouDossier {
public:
  VerrouDossier(const std::filesystem::path &dossier, bool seul)
      : numero_(::open(dossier.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (numero_ >= 0) {
      ::flock(numero_, seul ? LOCK_EX : LOCK_SH);
    }
  }
  ~VerrouDossier() {
    if (numero_ >= 0) {
      ::close(numero_);
    }
  }
  VerrouDossier(const VerrouDossier &) = delete;
  VerrouDossier &operator=(const VerrouDossier &) = delete;
  VerrouDossier(VerrouDossier &&) = delete;
  VerrouDossier &operator=(VerrouDossier &&) = delete;

private:
  int numero_;
};

} // namespace

void Valeurs::Fermeture::operator()(sqlite3 *base) const { sqlite3_close_v2(base); }
void Valeurs::Fermeture::operator()(sqlite3_stmt *instruction) const { sqlite3_finalize(instruction); }

Valeurs::Valeurs(std::filesystem::path fichier) : fichier_(std::move(fichier)) {
  std::error_code refus;
  if (!fichier_.empty()) {
    std::filesystem::create_directories(fichier_.parent_path(), refus);
  }
  // Nobody may set the file aside while another program has it open to look at it: the base would take the journal of
  // the new file for its own, and roll the damaged one back with it.
  {
    const VerrouDossier verrou(fichier_.parent_path(), false);
    if (Ouvre()) {
      return;
    }
    base_.reset();
  }
  // Of two programs that find the damage at once, the second must not set the first one's new file aside.
  const VerrouDossier verrou(fichier_.parent_path(), true);
  if (Ouvre()) {
    return;
  }
  MetDeCote();
  if (!Ouvre()) {
    PasseEnMemoire();
  }
}

Valeurs::~Valeurs() = default;

/// Opens or makes the base.
/// @return false when the file there is no sound base
bool Valeurs::Ouvre() {
  sqlite3 *base = nullptr;
  const std::string nom = fichier_.empty() ? ":memory:" : fichier_.string();
  const int code = sqlite3_open_v2(nom.c_str(), &base, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
  lecture_.reset();
  base_.reset(base);
  if (code != SQLITE_OK) {
    PasseEnMemoire();
    return true;
  }
  sqlite3_busy_timeout(base, kAttenteMs);
  const int preparation = Prepare(base);
  if (preparation == SQLITE_NOTADB || preparation == SQLITE_CORRUPT) {
    return false;
  }
  if (preparation != SQLITE_OK && EstAbime(base)) {
    // Neither a base that can be read nor a place where one can be made.
    PasseEnMemoire();
    return true;
  }
  return !EstAbime(base);
}

void Valeurs::MetDeCote() {
  lecture_.reset();
  base_.reset();
  const TempsSysteme t = GetSystemTime();
  fichierEnCause_ = fichier_;
  fichierEnCause_ += ".abime-" + Format(t.annee, "0000") + Format(t.mois, "00") + Format(t.jour, "00") + "-" +
                     Format(t.heure, "00") + Format(t.minute, "00") + Format(t.seconde, "00") +
                     Format(t.millisecondes, "000");
  std::error_code refus;
  std::filesystem::rename(fichier_, fichierEnCause_, refus);
  etat_ = EtatMagasin::Abime;
}

/// Goes on in memory with the values that can be read.
void Valeurs::PasseEnMemoire() {
  std::vector<std::array<std::string, 4>> lignes;
  if (base_) {
    Instruction lecture(base_.get(), "SELECT application, section, cle, valeur FROM valeurs");
    while (lecture.Avance() == SQLITE_ROW) {
      lignes.push_back({lecture.Colonne(0), lecture.Colonne(1), lecture.Colonne(2), lecture.Colonne(3)});
    }
  }
  sqlite3 *memoire = nullptr;
  sqlite3_open(":memory:", &memoire);
  Prepare(memoire);
  lecture_.reset();
  base_.reset(memoire);
  etat_ = EtatMagasin::SansTrace;
  fichierEnCause_ = fichier_;
  for (const auto &l : lignes) {
    SaveSetting(l[0], l[1], l[2], l[3]);
  }
}

bool Valeurs::Execute(const char *instruction) {
  return sqlite3_exec(base_.get(), instruction, nullptr, nullptr, nullptr) == SQLITE_OK;
}

/// @param valeur  what the store holds, when it holds the key
bool Valeurs::Lit(std::string_view application, std::string_view section, std::string_view cle,
                  std::string &valeur) const {
  if (!lecture_) {
    sqlite3_stmt *preparee = nullptr;
    sqlite3_prepare_v3(base_.get(), kLecture, -1, SQLITE_PREPARE_PERSISTENT, &preparee, nullptr);
    lecture_.reset(preparee);
  }
  sqlite3_stmt *lecture = lecture_.get();
  int rang = 0;
  for (const std::string_view texte : {application, section, cle}) {
    sqlite3_bind_text(lecture, ++rang, texte.data(), static_cast<int>(texte.size()), SQLITE_STATIC);
  }
  const bool la = lecture != nullptr && sqlite3_step(lecture) == SQLITE_ROW;
  if (la) {
    const auto *texte = reinterpret_cast<const char *>(sqlite3_column_text(lecture, 0));
    valeur.assign(texte == nullptr ? "" : texte, static_cast<std::size_t>(sqlite3_column_bytes(lecture, 0)));
  }
  sqlite3_reset(lecture);
  sqlite3_clear_bindings(lecture);
  return la;
}

std::string Valeurs::GetSetting(std::string_view application, std::string_view section, std::string_view cle,
                                std::string_view defaut) const {
  std::string valeur;
  return Lit(application, section, cle, valeur) ? valeur : std::string(defaut);
}

void Valeurs::SaveSetting(std::string_view application, std::string_view section, std::string_view cle,
                          std::string_view valeur) {
  int code = SQLITE_OK;
  {
    Instruction ecriture(base_.get(), kEcriture);
    ecriture.Lie(1, application);
    ecriture.Lie(2, section);
    ecriture.Lie(3, cle);
    ecriture.Lie(4, valeur);
    code = ecriture.Avance();
  }
  if (code != SQLITE_DONE && etat_ != EtatMagasin::SansTrace) {
    PasseEnMemoire();
    SaveSetting(application, section, cle, valeur);
  }
}

} // namespace velmaris
