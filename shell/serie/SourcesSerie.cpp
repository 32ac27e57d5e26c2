#include "shell/serie/SourcesSerie.hpp"

#include "complements/ciel/Refus.hpp"
#include "complements/controle/ViseeTypee.hpp"
#include "complements/registre/FiltreRegistre.hpp"
#include "complements/registre/RegistreLu.hpp"
#include "complements/serie/FichierSerie.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/complements/Mots.hpp"
#include "shell/ecran/ChoixSortie.hpp"
#include "shell/point/SourcesPoint.hpp"
#include "shell/registre/LectureRegistre.hpp"
#include "shell/serie/CalculSerie.hpp"
#include "shell/serie/GestesSerie.hpp"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <numeric>

namespace velmaris {
namespace {

constexpr double kHeure = 3600; ///< seconds

/// A sight of the log as a reading, with its fields.
struct LectureDuRegistre {
  LectureListee lecture;
  Observation observation;
};

/// The readings of a body among rows of the log.
std::vector<LectureDuRegistre> LecturesDe(const Bureau &bureau, const std::vector<std::size_t> &rangs,
                                          const Astre &astre) {
  std::vector<LectureDuRegistre> lectures;
  for (const std::size_t rang : rangs) {
    std::optional<Rangee> rangee = RangeeDe(*bureau.registreOuvert.lu, rang);
    if (!rangee || !ChoisitAstre(*rangee, bureau.etoiles)) {
      continue;
    }
    try {
      const ViseeTypee typee = LitVisee(rangee->observation, bureau.verification.reglages);
      if (typee.astre == astre) {
        lectures.push_back({{UTCDe(typee.date), typee.lecture.lecture, false}, rangee->observation});
      }
    } catch (const Refus &) {
      continue; // a row that is no sight of today's calendar
    }
  }
  std::stable_sort(lectures.begin(), lectures.end(),
                   [](const auto &a, const auto &b) { return SecondesEntre(a.lecture.utc, b.lecture.utc) > 0; });
  return lectures;
}

/// Rows of the log that are ticked for the fix.
std::vector<std::size_t> Cochees(const Bureau &bureau) {
  const RegistreLu &registre = *bureau.registreOuvert.lu;
  std::vector<std::size_t> tous(registre.lignes.size());
  std::iota(tous.begin(), tous.end(), std::size_t{0});
  return RangsDe(registre, tous, bureau.registreOuvert.auPoint);
}

void DitRefuse(Bureau &bureau, const std::string &mots, const std::filesystem::path &chemin) {
  bureau.ports.boite({.texte = mots + "\n" + chemin.string(), .icone = Icone::Erreur, .fenetre = kFenetreSerie});
}

} // namespace

std::size_t ReprendDuRegistre(Bureau &bureau, const Astre &astre) {
  LitRegistreAussitot(bureau);
  SerieOuverte &p = bureau.serie;
  std::vector<LectureDuRegistre> venues = LecturesDe(bureau, Cochees(bureau), astre);
  if (venues.empty()) {
    const std::vector<std::size_t> quart = DernierQuart(*bureau.registreOuvert.lu, *bureau.registreOuvert.annotations);
    venues = LecturesDe(bureau, quart, astre);
  }
  if (venues.empty()) {
    return 0;
  }
  const LectureDuRegistre derniere = venues.back();
  std::erase_if(
      venues, [&](const LectureDuRegistre &l) { return SecondesEntre(l.lecture.utc, derniere.lecture.utc) > kHeure; });
  FenetreSerie &f = bureau.fenetreSerie;
  f.Text2[2].texte = derniere.observation.hauteurOeil;
  f.Text2[3].texte = derniere.observation.collimation;
  for (const LectureDuRegistre &l : venues) {
    if (p.lectures.size() < kLecturesMidiMax) {
      p.lectures.push_back(l.lecture);
    }
  }
  OrdonneLectures(p.lectures, p.choisie);
  return venues.size();
}

bool OuvreLectures(Bureau &bureau) {
  FenetreSerie &f = bureau.fenetreSerie;
  const std::filesystem::path chemin = ChoisitSansTitre(bureau, f.Command3[5].legende, "*.txt", "*.txt", kFenetreSerie);
  if (chemin.empty()) {
    return false;
  }
  SerieLue lue;
  try {
    lue = LitSerie(LitFichier(chemin));
  } catch (const Erreur &erreur) {
    DitRefuse(bureau, MotsErreur(bureau.donnees, erreur.numero), chemin);
    return false;
  }
  if (lue.ligneFautive > 0 || lue.lectures.size() > kLecturesMidiMax) {
    DitRefuse(bureau,
              lue.ligneFautive > 0 ? f.TexteLigne.legende + std::to_string(lue.ligneFautive) : f.TextePleine.legende,
              chemin);
    return false;
  }
  SerieOuverte &p = bureau.serie;
  p.lectures.clear();
  for (const LectureSerie &l : lue.lectures) {
    p.lectures.push_back({l.utc, l.lecture, l.ecartee});
  }
  p.choisie = p.lectures.size();
  OrdonneLectures(p.lectures, p.choisie);
  return true;
}

std::string TexteLectures(const std::vector<LectureListee> &lectures) {
  constexpr double kMillieme = 1000;
  constexpr double kMinutes = 60;
  std::string texte;
  for (const LectureListee &l : lectures) {
    if (l.lecture) {
      const double milliemes = std::round(*l.lecture * kMinutes * kMillieme);
      const double degres = std::floor(milliemes / (kMinutes * kMillieme));
      texte += TexteDate(l.utc) + " " + TexteHeureUtc(l.utc) + " " + Format(degres, "0") + " " +
               Format((milliemes - degres * kMinutes * kMillieme) / kMillieme, "00.0##") + "\n";
    }
  }
  return texte;
}

void EcritLectures(Bureau &bureau) {
  const FenetreSerie &f = bureau.fenetreSerie;
  const std::string texte = TexteLectures(bureau.serie.lectures);
  if (texte.empty()) {
    DitSerie(bureau, f.TextePeu.legende);
    return;
  }
  std::string jour = texte.substr(0, 10);
  std::replace(jour.begin(), jour.end(), '/', '-');
  const std::filesystem::path chemin =
      ChoisitSortie(bureau, f.Command3[6].legende, "serie-" + jour + ".txt", "*.txt", kFenetreSerie);
  if (chemin.empty()) {
    return;
  }
  try {
    EcritFichier(chemin, texte, bureau.dossiers.utilisateur);
    DitSerie(bureau, f.TexteEcrit.legende + chemin.string());
  } catch (const Erreur &erreur) {
    DitRefuse(bureau, MotsErreur(bureau.donnees, erreur.numero) + "\n\n" + bureau.donnees.TexteNonEcrit.legende,
              chemin);
  }
}

} // namespace velmaris
