#include "shell/visee/Journal.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/complements/Verification.hpp"
#include "shell/visee/Saisie.hpp"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <random>
#include <system_error>

namespace velmaris {

namespace {

constexpr std::string_view kTitres =
    "utc,corps,astre,jour,mois,annee,heure,minute,seconde,latitude_degres,latitude_minutes,hemisphere,"
    "longitude_degres,longitude_minutes,cote,lecture_degres,lecture_minutes,lecture_fraction,fraction,collimation,"
    "hauteur_oeil,bord,horizon,ho,hc,intercept,azimut,forme,identite,intercept_actuel,ecart";

} // namespace

const std::string_view kTitresJournal = kTitres;
const std::string_view kAnciensTitres = kTitres.substr(0, kTitres.find(",forme"));

namespace {

constexpr const char *kForme = "2"; ///< of the journal: what has no such column is of the first

constexpr std::uintmax_t kTailleMax = std::uintmax_t{16} << 20; ///< octets, from which on a new file begins

/// A text without its control characters, those of the upper half of Latin-1 included.
std::string SansControles(std::string_view texte) {
  std::string reste;
  for (std::size_t i = 0; i < texte.size(); ++i) {
    const auto octet = static_cast<unsigned char>(texte[i]);
    const auto suivant = static_cast<unsigned char>(i + 1 < texte.size() ? texte[i + 1] : 0);
    if (octet == 0xC2 && suivant >= 0x80 && suivant <= 0x9F) {
      ++i;
    } else if (octet >= 0x20 && octet != 0x7F) {
      reste += texte[i];
    }
  }
  return reste;
}

/// Whether a text is wholly a number, with a point or a comma.
bool EstNombre(std::string_view texte) {
  std::string chiffres(texte.substr(texte.starts_with('+') || texte.starts_with('-') ? 1 : 0));
  std::replace(chiffres.begin(), chiffres.end(), ',', '.');
  if (chiffres.find_first_of("0123456789.") != 0) {
    return false;
  }
  double nombre = 0.0;
  const char *const bout = chiffres.data() + chiffres.size();
  const auto [fin, code] = std::from_chars(chiffres.data(), bout, nombre);
  return fin == bout && code != std::errc::invalid_argument;
}

/// Whether a table program would reckon a text out instead of showing it. The wide signs are those of East Asian ones.
bool PasseraitPourFormule(std::string_view texte) {
  constexpr std::array<std::string_view, 8> kSignes = {"=", "+", "-", "@", "＝", "＋", "－", "＠"};
  const std::string_view debut = SansBlancs(texte);
  return std::any_of(kSignes.begin(), kSignes.end(), [&](auto signe) { return debut.starts_with(signe); }) &&
         !EstNombre(debut);
}

/// A text as one field: in one line, shown as it stands by a table program, and in quotes when it holds what separates
/// fields.
std::string Champ(const std::string &brut) {
  const std::string ligne = SansControles(brut);
  std::string texte = PasseraitPourFormule(ligne) ? "'" + ligne : ligne;
  if (texte.find_first_of(",\"") == std::string::npos) {
    return texte;
  }
  std::string entre = "\"";
  for (const char c : texte) {
    entre += c == '"' ? "\"\"" : std::string(1, c);
  }
  return entre + "\"";
}

std::string Instant(const TempsSysteme &t) {
  const auto deux = [](int n) { return Format(n, "00"); };
  return Format(t.annee, "0000") + "-" + deux(t.mois) + "-" + deux(t.jour) + "T" + deux(t.heure) + ":" +
         deux(t.minute) + ":" + deux(t.seconde) + "Z";
}

const char *NomCorps(Corps corps) {
  constexpr std::array<const char *, 4> kNoms = {"Soleil", "Lune", "Planètes", "Etoiles"};
  return kNoms.at(static_cast<std::size_t>(corps));
}

/// What became of the lines that were to be entered.
enum class Inscription : std::uint8_t { Faite, Retenue, Refusee };

/// A number that no other row bears.
std::string Identite() {
  std::random_device hasard;
  std::array<char, 17> texte{};
  std::snprintf(texte.data(), texte.size(), "%08x%08x", static_cast<unsigned>(hasard()),
                static_cast<unsigned>(hasard()));
  return texte.data();
}

/// A figure of the check, thousandths of a mile.
std::string Milliemes(double milles) { return TexteGeneral(std::round(milles * 1000) / 1000); }

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
  const bool actuel = controle != nullptr && controle->actuel;
  const Observation o = LitPanneau(bureau.donnees);
  constexpr std::array<const char *, 4> kBords = {"superieur", "inferieur", "centre", ""};
  const std::array<std::string, 31> champs = {Instant(bureau.horloge.source()),
                                              NomCorps(o.corps),
                                              bureau.NomAstre,
                                              o.jour,
                                              o.mois,
                                              o.annee,
                                              o.heure,
                                              o.minute,
                                              o.seconde,
                                              o.latitudeDegres,
                                              o.latitudeMinutes,
                                              o.sud ? "S" : "N",
                                              o.longitudeDegres,
                                              o.longitudeMinutes,
                                              o.est ? "E" : "W",
                                              o.lectureDegres,
                                              o.lectureMinutes,
                                              o.lectureFraction,
                                              o.fraction == Fraction::Secondes ? "secondes" : "centiemes",
                                              o.collimation,
                                              o.hauteurOeil,
                                              kBords.at(static_cast<std::size_t>(o.bord)),
                                              o.horizon == Horizon::Naturel ? "naturel" : "artificiel",
                                              TexteGeneral(hauteurs.Ho),
                                              TexteGeneral(hauteurs.Hc),
                                              TexteGeneral(bureau.visee.Intercept),
                                              TexteGeneral(bureau.visee.Azimut),
                                              kForme,
                                              Identite(),
                                              actuel ? Milliemes(controle->actuel->intercept) : "",
                                              actuel ? Milliemes(controle->ecart) : ""};
  std::string ligne;
  for (const std::string &champ : champs) {
    ligne += (ligne.empty() ? "" : ",") + Champ(champ);
  }
  return ligne;
}

void Journalise(Bureau &bureau, const Hauteurs &hauteurs) {
  bureau.journalEnAttente.push_back(LigneJournal(bureau, hauteurs));
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

void RetenteJournal(Bureau &bureau, Patience &patience) {
  if (!bureau.journalEnAttente.empty()) {
    Ajoute(bureau, patience);
  }
}

} // namespace velmaris
