#include "Attend.hpp"
#include "Banc.hpp"
#include "shell/Demarrage.hpp"
#include "shell/bureau/Bureau.hpp"
#include "shell/bureau/Valeurs.hpp"

#include <exception>

using namespace velmaris;

namespace {

constexpr std::string_view kMagieJournal("\xD9\xD5\x05\xF9\x20\xA1\x63\xD7", 8); ///< of a rollback journal
constexpr std::string_view kMagieWal("\x37\x7F\x06", 3);                         ///< of a write-ahead log

/// A sound store, made once.
const std::string &Sain() {
  static const std::string octets = [] {
    const Banc banc;
    {
      Valeurs valeurs(banc / "sain.sqlite");
      valeurs.Ensemble([&] {
        for (int i = 0; i < 300; ++i) {
          valeurs.SaveSetting(kApplication, kSection, "cle " + std::to_string(i), "une valeur");
        }
      });
    }
    return Contenu(banc / "sain.sqlite");
  }();
  return octets;
}

/// The input as the store's file, or as what a dead program has left beside a sound one.
void PoseMagasin(const std::filesystem::path &fichier, std::string_view octets) {
  const bool journal = octets.starts_with(kMagieJournal);
  if (journal || octets.starts_with(kMagieWal)) {
    Pose(fichier, Sain());
    Pose(fichier.string() + (journal ? "-journal" : "-wal"), octets);
  } else {
    Pose(fichier, octets);
  }
}

void AttendEcriture(Valeurs &valeurs) {
  valeurs.SaveSetting(kApplication, kSection, "T6", "5");
  valeurs.Ensemble([&] {
    valeurs.SaveSetting(kApplication, kSection, "AS(0)", "3");
    valeurs.SaveSetting(kApplication, kSection, "Nom(0)", "Véga");
  });
}

void AttendLecture(const Valeurs &valeurs) {
  Attend(valeurs.GetSetting(kApplication, kSection, "t6") == "5", "what was stored is read");
  Attend(valeurs.GetSetting(kApplication, kSection, "AS(0)") + valeurs.GetSetting(kApplication, kSection, "NOM(0)") ==
             "3Véga",
         "a stored group is read");
}

/// The program starts on whatever the store's values are.
void AttendDemarrage(const std::filesystem::path &dossier) {
  Bureau bureau;
  bureau.dossiers = {dossier, dossier / "programme", dossier / "partage", dossier};
  bureau.horloge.source = [] { return TempsSysteme{2026, 6, 0, 21, 12, 5, 30, 0}; };
  bureau.horloge.locale = [] { return ValeurDate{2026, 6, 21, 14, 5, 30}; };
  try {
    Donnees_Charge(bureau, {});
  } catch (const std::exception &) {
    Attend(false, "no setting ends the start");
  }
}

} // namespace

/// Whatever the store's file holds, it is opened, set aside whole, or values live in memory; then values are kept.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille) {
  static const Banc banc;
  const std::filesystem::path fichier = banc / "valeurs.sqlite";
  banc.Vide();
  PoseMagasin(fichier, Octets(octets, taille));
  EtatMagasin etat = EtatMagasin::Sain;
  {
    Valeurs valeurs(fichier);
    etat = valeurs.etat();
    Attend(etat != EtatMagasin::Abime || std::filesystem::exists(valeurs.fichierEnCause()),
           "a damaged file is there under its new name");
    if (etat != EtatMagasin::Sain) {
      AttendEcriture(valeurs);
      AttendLecture(valeurs);
      etat = valeurs.etat();
    }
  }
  if (etat == EtatMagasin::Sain) {
    AttendDemarrage(banc.chemin());
  }
  if (etat != EtatMagasin::SansTrace) {
    Valeurs valeurs(fichier);
    Attend(valeurs.etat() != EtatMagasin::Abime, "a file is set aside once");
    AttendEcriture(valeurs);
    AttendLecture(valeurs);
    if (valeurs.etat() == EtatMagasin::Sain) {
      AttendLecture(Valeurs(fichier));
    }
  }
  return 0;
}
