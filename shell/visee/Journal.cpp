#include "shell/visee/Journal.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/visee/Saisie.hpp"

#include <system_error>

namespace velmaris {

const std::string_view kTitresJournal =
    "utc,corps,astre,jour,mois,annee,heure,minute,seconde,latitude_degres,latitude_minutes,hemisphere,"
    "longitude_degres,longitude_minutes,cote,lecture_degres,lecture_minutes,lecture_fraction,fraction,collimation,"
    "hauteur_oeil,bord,horizon,ho,hc,intercept,azimut";

namespace {

/// A text as one field: in quotes when it holds what separates fields or lines.
std::string Champ(const std::string &texte) {
  if (texte.find_first_of(",\"\r\n") == std::string::npos) {
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

} // namespace

std::string LigneJournal(const Bureau &bureau, const Hauteurs &hauteurs) {
  const Observation o = LitPanneau(bureau.donnees);
  constexpr std::array<const char *, 4> kBords = {"superieur", "inferieur", "centre", ""};
  const std::array<std::string, 27> champs = {Instant(bureau.horloge.source()),
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
                                              TexteGeneral(bureau.visee.Azimut)};
  std::string ligne;
  for (const std::string &champ : champs) {
    ligne += (ligne.empty() ? "" : ",") + Champ(champ);
  }
  return ligne;
}

void Journalise(Bureau &bureau, const Hauteurs &hauteurs) {
  const std::filesystem::path fichier = bureau.dossiers.utilisateur / "journal.csv";
  std::error_code refus;
  std::filesystem::create_directories(fichier.parent_path(), refus);
  const bool ecrit = Passe([&] { AjouteLigne(fichier, kTitresJournal, LigneJournal(bureau, hauteurs)); });
  if (!ecrit && !bureau.journalSignale) {
    bureau.journalSignale = true;
    bureau.ports.boite(
        {.texte = bureau.donnees.TexteJournalMuet.legende + "\n" + fichier.string(), .icone = Icone::Attention});
  }
}

} // namespace velmaris
