#include "shell/bureau/Magasin.hpp"

#include "foundations/Fichiers.hpp"
#include "foundations/Horloge.hpp"
#include "foundations/TexteNombre.hpp"

#include <fcntl.h>
#include <optional>
#include <sqlite3.h>
#include <string_view>
#include <system_error>
#include <unistd.h>

namespace velmaris {
namespace {

namespace fs = std::filesystem;

constexpr const char *kPreparation = "PRAGMA synchronous=EXTRA; CREATE TABLE IF NOT EXISTS valeurs("
                                     " application TEXT NOT NULL, section TEXT NOT NULL,"
                                     " cle TEXT NOT NULL COLLATE NOCASE, valeur TEXT NOT NULL,"
                                     " PRIMARY KEY(application, section, cle)) WITHOUT ROWID";
/// The four columns; a table of a later release may have others beside them.
constexpr const char *kColonnes = "SELECT count(*) FROM pragma_table_xinfo('valeurs') WHERE type='TEXT' AND \"notnull\""
                                  " AND hidden=0 AND name IN ('application','section','cle','valeur')";
/// What the values are found by, in its order, with how it is compared.
constexpr const char *kAdresse = "SELECT group_concat(name || ' ' || coll) FROM (SELECT x.name, x.coll FROM"
                                 " pragma_index_list('valeurs') l, pragma_index_xinfo(l.name) x"
                                 " WHERE l.origin='pk' AND x.\"key\" ORDER BY x.seqno)";
constexpr std::string_view kAdresseVoulue = "application BINARY,section BINARY,cle NOCASE";
constexpr const char *kVersion = "PRAGMA data_version";
constexpr const char *kLecture = "SELECT application, section, cle, valeur FROM valeurs";
constexpr const char *kEcriture = "INSERT INTO valeurs(application, section, cle, valeur) VALUES(?1,?2,?3,?4)"
                                  " ON CONFLICT DO UPDATE SET cle=excluded.cle, valeur=excluded.valeur";

/// A prepared statement, finalised with its scope.
class Instruction {
public:
  Instruction(sqlite3 *base, const char *texte)
      : preparation_(sqlite3_prepare_v2(base, texte, -1, &instruction_, nullptr)) {}
  ~Instruction() { sqlite3_finalize(instruction_); }
  Instruction(const Instruction &) = delete;
  Instruction &operator=(const Instruction &) = delete;
  Instruction(Instruction &&) = delete;
  Instruction &operator=(Instruction &&) = delete;

  void Lie(int rang, std::string_view texte) {
    sqlite3_bind_text(instruction_, rang, texte.data() == nullptr ? "" : texte.data(), static_cast<int>(texte.size()),
                      SQLITE_TRANSIENT);
  }
  int Avance() { return preparation_ == SQLITE_OK ? sqlite3_step(instruction_) : preparation_; }
  void Recommence() { sqlite3_reset(instruction_); }
  std::string Colonne(int rang) const {
    const auto *texte = reinterpret_cast<const char *>(sqlite3_column_text(instruction_, rang));
    return texte == nullptr ? std::string()
                            : std::string(texte, static_cast<std::size_t>(sqlite3_column_bytes(instruction_, rang)));
  }

private:
  sqlite3_stmt *instruction_ = nullptr;
  int preparation_;
};

/// Asked by the base whether to go on waiting for another program.
int Attend(void *patience, int /*fois*/) { return (*static_cast<Patience **>(patience))->Attend() ? 1 : 0; }

/// What a refusal comes from: another program, the file's own bytes, or the disk.
Acces SensRefus(int code) {
  switch (code) {
  case SQLITE_BUSY:
  case SQLITE_LOCKED:
  case SQLITE_PROTOCOL:
    return Acces::Retenu;
  case SQLITE_CORRUPT:
  case SQLITE_NOTADB:
  case SQLITE_ERROR:
    return Acces::Abime;
  default:
    return Acces::Refuse;
  }
}

/// Runs an instruction that gives one text.
Acces LitTexte(sqlite3 *base, const char *instruction, std::string &texte) {
  Instruction lecture(base, instruction);
  const int code = lecture.Avance();
  if (code != SQLITE_ROW) {
    return code == SQLITE_DONE ? Acces::Abime : SensRefus(code);
  }
  texte = lecture.Colonne(0);
  return Acces::Fait;
}

/// Whether the base is whole and has the program's table.
Acces Controle(sqlite3 *base) {
  // The quick check would pass over keys out of their order, which are then no longer found.
  for (const auto &[instruction, voulu] : {std::pair<const char *, std::string_view>{"PRAGMA integrity_check(1)", "ok"},
                                           {kColonnes, "4"},
                                           {kAdresse, kAdresseVoulue}}) {
    std::string texte;
    if (const Acces lu = LitTexte(base, instruction, texte); lu != Acces::Fait) {
      return lu;
    }
    if (texte != voulu) {
      return Acces::Abime;
    }
  }
  return Acces::Fait;
}

/// Holds a folder until its scope ends: shared with others that hold it shared, or alone. A folder that can't be locked
/// counts as held by us.
class VerrouDossier {
public:
  VerrouDossier(const fs::path &dossier, bool seul, Patience &patience)
      : numero_(::open(dossier.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK)),
        retenu_(numero_ >= 0 && Verrouille(numero_, seul, patience) == Verrou::Retenu) {}
  ~VerrouDossier() {
    if (numero_ >= 0) {
      ::close(numero_);
    }
  }
  VerrouDossier(const VerrouDossier &) = delete;
  VerrouDossier &operator=(const VerrouDossier &) = delete;
  VerrouDossier(VerrouDossier &&) = delete;
  VerrouDossier &operator=(VerrouDossier &&) = delete;
  bool retenu() const { return retenu_; }

private:
  int numero_;
  bool retenu_;
};

/// Gives what is in the store's place a name that tells the moment.
/// @return that name
fs::path MetDeCote(const fs::path &fichier) {
  const TempsSysteme t = GetSystemTime();
  fs::path deCote = fichier;
  deCote += ".abime-" + Format(t.annee, "0000") + Format(t.mois, "00") + Format(t.jour, "00") + "-" +
            Format(t.heure, "00") + Format(t.minute, "00") + Format(t.seconde, "00") + Format(t.millisecondes, "000");
  std::error_code refus;
  fs::rename(fichier, deCote, refus);
  return deCote;
}

} // namespace

void Magasin::Fermeture::operator()(sqlite3 *base) const { sqlite3_close_v2(base); }
void Magasin::Fermeture::operator()(sqlite3_stmt *instruction) const { sqlite3_finalize(instruction); }

Magasin::~Magasin() = default;

void Magasin::Ferme() {
  version_.reset();
  base_.reset();
  jamaisLu_ = true;
}

Acces Magasin::Ouvre(const fs::path &fichier, Patience &patience) {
  patience_ = &patience;
  std::error_code refus;
  fs::create_directories(fichier.parent_path(), refus);
  // Nobody may set the file aside while another program has it open to look at it: the base would take the journal of
  // the new file for its own, and roll the damaged one back with it.
  {
    const VerrouDossier verrou(fichier.parent_path(), false, patience);
    const Acces ouvert = verrou.retenu() ? Acces::Retenu : OuvreBase(fichier);
    if (ouvert != Acces::Abime) {
      return ouvert;
    }
  }
  // Of two programs that find the damage at once, the second must not set the first one's new file aside.
  const VerrouDossier verrou(fichier.parent_path(), true, patience);
  Acces ouvert = verrou.retenu() ? Acces::Retenu : OuvreBase(fichier);
  if (ouvert == Acces::Abime) {
    misDeCote_ = MetDeCote(fichier);
    ouvert = OuvreBase(fichier);
  }
  return ouvert == Acces::Abime ? Acces::Refuse : ouvert;
}

/// Opens or makes the base; what isn't opened is closed again.
Acces Magasin::OuvreBase(const fs::path &fichier) {
  Ferme();
  std::error_code absent;
  if (const auto taille = fs::file_size(fichier, absent); !absent && taille > kTailleLue) {
    return Acces::Abime;
  }
  sqlite3 *base = nullptr;
  const int code = sqlite3_open_v2(fichier.c_str(), &base, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
  base_.reset(base);
  Acces ouvert = Acces::Refuse;
  if (code == SQLITE_OK) {
    sqlite3_busy_handler(base, Attend, static_cast<void *>(&patience_));
    const int preparation = sqlite3_exec(base, kPreparation, nullptr, nullptr, nullptr);
    if (preparation == SQLITE_NOTADB || preparation == SQLITE_CORRUPT) {
      ouvert = Acces::Abime;
    } else if (SensRefus(preparation) == Acces::Retenu) {
      ouvert = Acces::Retenu;
    } else {
      ouvert = Controle(base);
      // Neither a base that can be read nor a place where one can be made.
      ouvert = preparation != SQLITE_OK && ouvert == Acces::Abime ? Acces::Refuse : ouvert;
    }
  }
  if (ouvert != Acces::Fait) {
    Ferme();
  }
  return ouvert;
}

Acces Magasin::Lit(std::vector<ValeurGardee> &valeurs, bool &lues, Patience &patience) {
  patience_ = &patience;
  lues = false;
  if (!version_) {
    sqlite3_stmt *preparee = nullptr;
    const int code = sqlite3_prepare_v3(base_.get(), kVersion, -1, SQLITE_PREPARE_PERSISTENT, &preparee, nullptr);
    if (code != SQLITE_OK) {
      return SensRefus(code);
    }
    version_.reset(preparee);
  }
  const int code = sqlite3_step(version_.get());
  const int version = code == SQLITE_ROW ? sqlite3_column_int(version_.get(), 0) : 0;
  sqlite3_reset(version_.get());
  if (code != SQLITE_ROW) {
    return SensRefus(code);
  }
  if (!jamaisLu_ && version == versionLue_) {
    return Acces::Fait;
  }
  Instruction lecture(base_.get(), kLecture);
  std::vector<ValeurGardee> presentes;
  int ligne = lecture.Avance();
  for (; ligne == SQLITE_ROW; ligne = lecture.Avance()) {
    presentes.push_back({lecture.Colonne(0), lecture.Colonne(1), lecture.Colonne(2), lecture.Colonne(3)});
  }
  if (ligne != SQLITE_DONE) {
    return SensRefus(ligne);
  }
  valeurs = std::move(presentes);
  lues = true;
  jamaisLu_ = false;
  versionLue_ = version;
  return Acces::Fait;
}

Acces Magasin::Execute(const char *instruction) {
  const int code = sqlite3_exec(base_.get(), instruction, nullptr, nullptr, nullptr);
  return code == SQLITE_OK ? Acces::Fait : SensRefus(code);
}

Acces Magasin::EcritDans(const std::vector<ValeurGardee> &valeurs) {
  Instruction ecriture(base_.get(), kEcriture);
  for (const ValeurGardee &v : valeurs) {
    ecriture.Lie(1, v.application);
    ecriture.Lie(2, v.section);
    ecriture.Lie(3, v.cle);
    ecriture.Lie(4, v.texte);
    if (const int code = ecriture.Avance(); code != SQLITE_DONE) {
      return SensRefus(code);
    }
    ecriture.Recommence();
  }
  return Acces::Fait;
}

Acces Magasin::Ecrit(const std::vector<ValeurGardee> &valeurs, Patience &patience) {
  patience_ = &patience;
  // Alone from the start: else a reader would be met at the end, when all has been done in vain.
  Acces ecrit = Execute("BEGIN EXCLUSIVE");
  if (ecrit != Acces::Fait) {
    return ecrit;
  }
  ecrit = EcritDans(valeurs);
  if (ecrit == Acces::Fait) {
    ecrit = Execute("COMMIT");
  }
  if (ecrit != Acces::Fait) {
    Execute("ROLLBACK");
  }
  return ecrit;
}

} // namespace velmaris
