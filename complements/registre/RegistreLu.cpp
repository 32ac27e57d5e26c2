#include "complements/registre/RegistreLu.hpp"

#include "complements/registre/TexteCsv.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"

#include <algorithm>
#include <system_error>
#include <utility>

namespace velmaris {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kColonneCorps = 1;
constexpr std::size_t kColonneIdentite = 28;

/// Forms of a journal, by its title line.
enum class Forme : std::uint8_t { Inconnue, Ancienne, Neuve };

Forme FormeDe(std::string_view titres) {
  return titres == kAnciensTitres             ? Forme::Ancienne
         : titres.starts_with(kTitresJournal) ? Forme::Neuve
                                              : Forme::Inconnue;
}

/// Whether a line has as many fields as its journal's rows have. A newer line that was cut short may have as many as
/// the older form: in a journal of the newer form that is none.
bool EstEntiere(std::size_t champs, Forme forme) {
  return (champs >= kColonnesJournal && forme != Forme::Ancienne) ||
         (champs == kAnciennesColonnes && forme != Forme::Neuve);
}

/// Size and time of a file.
/// @return false when there is none
bool Etat(const fs::path &chemin, JournalLu &lu) {
  std::error_code refus;
  lu.taille = fs::file_size(chemin, refus);
  if (!refus) {
    lu.date = fs::last_write_time(chemin, refus);
  }
  return !refus;
}

bool EstLeMeme(const JournalLu &a, const JournalLu &b) {
  return a.chemin == b.chemin && a.taille == b.taille && a.date == b.date;
}

std::shared_ptr<const JournalLu> LitJournal(const fs::path &chemin, const RegistreLu *avant) {
  auto lu = std::make_shared<JournalLu>();
  lu->chemin = chemin;
  if (!Etat(chemin, *lu)) {
    return nullptr; // a folder of that name, or a file that has gone since
  }
  if (avant != nullptr) {
    const auto ancien = std::find_if(avant->journaux.begin(), avant->journaux.end(),
                                     [&](const auto &journal) { return EstLeMeme(*journal, *lu); });
    if (ancien != avant->journaux.end()) {
      return *ancien;
    }
  }
  lu->illisible = !Passe([&] { lu->octets = LitFichier(chemin); });
  lu->cassees = IndexeJournal(lu->octets, lu->lignes);
  return lu;
}

/// Brings the rows of all journals into one order.
void Ordonne(RegistreLu &registre) {
  for (std::size_t i = 0; i < registre.journaux.size(); ++i) {
    registre.cassees += registre.journaux[i]->cassees;
    for (LigneIndexee ligne : registre.journaux[i]->lignes) {
      ligne.fichier = static_cast<std::uint16_t>(i);
      registre.lignes.push_back(ligne);
    }
  }
  std::reverse(registre.lignes.begin(), registre.lignes.end());
  std::stable_sort(registre.lignes.begin(), registre.lignes.end(),
                   [](const LigneIndexee &a, const LigneIndexee &b) { return a.instant > b.instant; });
}

} // namespace

std::size_t IndexeJournal(std::string_view octets, std::vector<LigneIndexee> &lignes) {
  constexpr std::string_view kMarqueUtf8 = "\xEF\xBB\xBF";
  std::string_view reste = octets;
  reste.remove_prefix(reste.starts_with(kMarqueUtf8) ? kMarqueUtf8.size() : 0);
  Forme forme = Forme::Inconnue;
  std::size_t cassees = 0;
  PartiesRangee parties;
  while (!reste.empty()) {
    const std::string_view ligne = PrendLigne(reste);
    if (ligne.starts_with("utc,")) {
      forme = FormeDe(ligne);
      continue;
    }
    if (ligne.empty()) {
      continue;
    }
    const std::size_t champs = PartiesCsv(ligne, parties);
    const std::optional<Corps> corps = EstEntiere(champs, forme) ? CorpsEcrit(parties[kColonneCorps]) : std::nullopt;
    const std::optional<std::int64_t> instant = corps ? InstantRangee(parties) : std::nullopt;
    if (!instant) {
      ++cassees;
      continue;
    }
    const bool neuve = champs >= kColonnesJournal;
    lignes.push_back(
        {*instant, static_cast<std::uint32_t>(ligne.data() - octets.data()), static_cast<std::uint32_t>(ligne.size()),
         neuve ? static_cast<std::uint32_t>(parties[kColonneIdentite].data() - ligne.data()) : 0, 0, *corps});
  }
  return cassees;
}

std::vector<fs::path> Journaux(const fs::path &dossier) {
  std::vector<fs::path> chemins;
  std::error_code refus;
  for (fs::directory_iterator i(dossier, refus), fin; !refus && i != fin; i.increment(refus)) {
    const std::string nom = i->path().filename().string();
    std::error_code inconnu;
    if ((nom == "journal.csv" || (nom.starts_with("journal-") && nom.ends_with(".csv"))) &&
        i->is_regular_file(inconnu)) {
      chemins.push_back(i->path());
    }
  }
  // The one that is written to comes last: of one moment its rows are the newest.
  std::sort(chemins.begin(), chemins.end(), [](const fs::path &a, const fs::path &b) {
    const auto cle = [](const fs::path &p) { return std::pair(p.filename() == "journal.csv", p); };
    return cle(a) < cle(b);
  });
  return chemins;
}

std::shared_ptr<const RegistreLu> LitRegistre(const fs::path &dossier, std::shared_ptr<const RegistreLu> avant) {
  auto registre = std::make_shared<RegistreLu>();
  for (const fs::path &chemin : Journaux(dossier)) {
    if (auto journal = LitJournal(chemin, avant.get())) {
      registre->journaux.push_back(std::move(journal));
    }
  }
  if (avant && avant->journaux == registre->journaux) {
    return avant;
  }
  Ordonne(*registre);
  return registre;
}

bool EstAJour(const fs::path &dossier, const RegistreLu &registre) {
  const std::vector<fs::path> chemins = Journaux(dossier);
  return std::equal(chemins.begin(), chemins.end(), registre.journaux.begin(), registre.journaux.end(),
                    [](const fs::path &chemin, const std::shared_ptr<const JournalLu> &lu) {
                      JournalLu present;
                      present.chemin = chemin;
                      return Etat(chemin, present) && EstLeMeme(present, *lu);
                    });
}

std::string_view LigneBrute(const RegistreLu &registre, std::size_t rang) {
  const LigneIndexee &ligne = registre.lignes.at(rang);
  return std::string_view(registre.journaux.at(ligne.fichier)->octets).substr(ligne.debut, ligne.longueur);
}

std::optional<Rangee> RangeeDe(const RegistreLu &registre, std::size_t rang) {
  return LitRangee(LigneBrute(registre, rang));
}

std::string IdentiteDe(const RegistreLu &registre, std::size_t rang) {
  const std::string_view ligne = LigneBrute(registre, rang);
  const std::uint32_t debut = registre.lignes[rang].identite;
  if (debut == 0) {
    return IdentiteAncienne(ligne);
  }
  std::string_view partie;
  PartiesCsv(ligne.substr(debut), {&partie, 1});
  return TextePartie(partie);
}

std::string EnCsv(const RegistreLu &registre, const std::vector<std::size_t> &rangs) {
  std::string texte = std::string(kTitresJournal) + "\n";
  for (const std::size_t rang : rangs) {
    if (registre.lignes.at(rang).identite != 0) {
      texte.append(LigneBrute(registre, rang)) += '\n';
    } else if (const std::optional<Rangee> rangee = RangeeDe(registre, rang)) {
      texte += EcritRangee(*rangee) + "\n";
    }
  }
  return texte;
}

} // namespace velmaris
