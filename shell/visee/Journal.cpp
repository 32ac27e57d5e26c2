#include "shell/visee/Journal.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/complements/ExerciceEnCours.hpp"
#include "shell/complements/Verification.hpp"
#include "shell/visee/Saisie.hpp"

#include <algorithm>
#include <cctype>
#include <chrono>
#include <cstdint>
#include <system_error>
#include <utility>

namespace velmaris {

namespace {

constexpr std::uintmax_t kTailleMax = std::uintmax_t{16} << 20; ///< octets, from which on a new file begins

/// What became of the lines that were to be entered.
enum class Inscription : std::uint8_t { Faite, Retenue, Refusee };

/// The first name that no file has: of "journal-2026", "journal-2026-2", "journal-2026-3"...
std::filesystem::path NomLibre(const std::filesystem::path &premier) {
  std::error_code refus;
  std::filesystem::path nom = premier;
  for (int n = 2; std::filesystem::exists(nom, refus); ++n) {
    nom = premier.parent_path() / (premier.stem().string() + "-" + std::to_string(n) + premier.extension().string());
  }
  return nom;
}

/// Where the journal goes when a new one begins: one of the old form, of another year, or too large.
std::filesystem::path Place(const Bureau &bureau, std::string_view debut, std::uintmax_t taille) {
  constexpr std::size_t kChiffresAnnee = 4;
  const std::size_t fin = std::min(debut.find('\n'), debut.size());
  const std::string_view titres = debut.substr(0, fin);
  const std::filesystem::path &dossier = bureau.dossiers.utilisateur;
  if (titres == kAnciensTitres) {
    return NomLibre(dossier / "journal-1.csv");
  }
  const std::string annee(debut.substr(std::min(fin + 1, debut.size()), kChiffresAnnee));
  const bool datee = annee.size() == kChiffresAnnee &&
                     std::all_of(annee.begin(), annee.end(), [](unsigned char c) { return std::isdigit(c) != 0; });
  const std::string presente = Format(bureau.horloge.source().annee, "0000");
  if (titres != kTitresJournal || !datee || (annee == presente && taille < kTailleMax)) {
    return {};
  }
  return NomLibre(dossier / ("journal-" + annee + ".csv"));
}

std::filesystem::path Fichier(const Bureau &bureau) { return bureau.dossiers.utilisateur / "journal.csv"; }

/// Enters all lines that wait, in their order; they go on waiting unless that is done.
Inscription Ajoute(Bureau &bureau, Patience &patience) {
  const std::filesystem::path fichier = Fichier(bureau);
  std::error_code refus;
  std::filesystem::create_directories(fichier.parent_path(), refus);
  bool libre = false;
  const Releve releve = [&](std::string_view debut, std::uintmax_t taille) { return Place(bureau, debut, taille); };
  if (!Passe([&] { libre = AjouteLignes(fichier, kTitresJournal, bureau.journalEnAttente, patience, releve); })) {
    return Inscription::Refusee;
  }
  if (!libre) {
    return Inscription::Retenue;
  }
  bureau.journalEnAttente.clear();
  bureau.patienceJournal.Refait();
  return Inscription::Faite;
}

/// Tells the user once.
void Signale(Bureau &bureau, const Controle &texte, bool &signale) {
  if (!signale) {
    signale = true;
    bureau.ports.boite({.texte = texte.legende + "\n" + Fichier(bureau).string(), .icone = Icone::Attention});
  }
}

} // namespace

std::string LigneJournal(Bureau &bureau, const Hauteurs &hauteurs) {
  const FicheControle *controle = ControleDuResultat(bureau);
  Rangee r;
  r.utc = EcritInstant(
      std::chrono::floor<std::chrono::seconds>(MomentDe(bureau.horloge.source())).time_since_epoch().count());
  r.astre = bureau.NomAstre;
  r.observation = LitPanneau(bureau.donnees);
  r.Ho = hauteurs.Ho;
  r.Hc = hauteurs.Hc;
  r.intercept = bureau.visee.Intercept;
  r.azimut = bureau.visee.Azimut;
  r.identite = IdentiteNeuve();
  if (controle != nullptr && controle->actuel) {
    r.actuel = controle->actuel->intercept;
    r.ecart = controle->ecart;
  }
  return EcritRangee(r);
}

void JournaliseLigne(Bureau &bureau, std::string ligne) {
  bureau.journalEnAttente.push_back(std::move(ligne));
  switch (Ajoute(bureau, bureau.patienceJournal)) {
  case Inscription::Faite:
    break;
  case Inscription::Retenue:
    Signale(bureau, bureau.donnees.TexteJournalRetenu, bureau.retenueJournalSignalee);
    break;
  case Inscription::Refusee:
    bureau.journalEnAttente.pop_back();
    Signale(bureau, bureau.donnees.TexteJournalMuet, bureau.journalSignale);
    break;
  }
}

void Journalise(Bureau &bureau, const Hauteurs &hauteurs) {
  if (!NoteViseeExercice(bureau, LitPanneau(bureau.donnees))) {
    JournaliseLigne(bureau, LigneJournal(bureau, hauteurs));
  }
}

void RetenteJournal(Bureau &bureau, Patience &patience) {
  if (!bureau.journalEnAttente.empty()) {
    Ajoute(bureau, patience);
  }
}

} // namespace velmaris
