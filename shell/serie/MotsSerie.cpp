#include "shell/serie/MotsSerie.hpp"

#include "foundations/TexteNombre.hpp"
#include "shell/complements/Mots.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace velmaris {
namespace {

constexpr double kMinute = 60;

template <class Enum> std::size_t Rang(Enum valeur) { return static_cast<std::size_t>(valeur); }

std::string Centiemes(double valeur) { return Format(valeur, "0.00"); }

std::string MotsRefus(const Bureau &bureau, const std::optional<RaisonRefus> &refus) {
  return refus ? bureau.fiche.MotRefus.at(Rang(*refus)).legende : std::string();
}

/// The time of a reading that the core names by its place among those that have their angle.
std::string HeureDeLecture(const SerieOuverte &p, const std::optional<std::size_t> &rang) {
  return rang && *rang < p.rangs.size() ? TexteHeureUtc(p.lectures.at(p.rangs[*rang]).utc) : std::string();
}

std::string MotsPiste(const Bureau &bureau, const Piste &piste) {
  const FenetreSerie &f = bureau.fenetreSerie;
  std::string mots = f.TextePiste.legende + f.MotPiste.at(Rang(piste.genre)).legende;
  if (piste.genre == GenrePiste::AutreAstre) {
    mots += NomDAstre(bureau, piste.astre);
  } else if (piste.genre == GenrePiste::Heure) {
    mots += (piste.heures < 0 ? "-" : "+") + std::to_string(std::abs(piste.heures)) + f.TexteHeures.legende;
  }
  return mots + "   (" + DixiemesSignes(piste.pente) + "'/min)";
}

/// An angle with its side: "47° 10.3' N".
std::string AvecCote(double degres, char plus, char moins) {
  return TexteAngleSigne(std::fabs(degres)) + " " + (degres < 0 ? moins : plus);
}

void AjoutePistes(const Bureau &bureau, std::vector<std::string> &lignes) {
  constexpr std::size_t kMontrees = 3;
  const FicheSerie &fiche = bureau.serie.fiche;
  const bool cherchees = std::any_of(fiche.avis.begin(), fiche.avis.end(), [](AvisSerie avis) {
    return avis == AvisSerie::PenteFausse || avis == AvisSerie::HauteurLoin;
  });
  for (std::size_t i = 0; i < std::min(kMontrees, fiche.pistes.size()); ++i) {
    lignes.push_back(MotsPiste(bureau, fiche.pistes[i]));
  }
  if (cherchees && fiche.pistes.empty()) {
    lignes.push_back(bureau.fenetreSerie.TexteSansPiste.legende);
  }
}

std::string MotsPassage(const FenetreSerie &f, const PassageMeridien &passage, bool parLectures) {
  return TexteHeureUtc(passage.heure) + " UTC   " + TexteAngleSigne(passage.hauteur) + ", " +
         (passage.versNord ? f.TexteNord : f.TexteSud).legende +
         (passage.inferieur ? ", " + f.TexteInferieur.legende : "") +
         (parLectures ? "" : "   (" + f.TexteEnRoute.legende + ")");
}

} // namespace

std::string MotsDuree(double secondes) {
  const double entieres = std::round(std::fabs(secondes));
  const double minutes = std::floor(entieres / kMinute);
  const double reste = entieres - minutes * kMinute;
  return minutes > 0 ? Format(minutes, "0") + " min " + Format(reste, "00") + " s" : Format(reste, "0") + " s";
}

std::string MotsLatitude(const LatitudeMidi &latitude) {
  return AvecCote(latitude.latitude, 'N', 'S') + "   ± " + Dixiemes(latitude.ecartType) + "'";
}

std::string MotsLongitude(const LongitudeMidi &longitude) {
  return AvecCote(longitude.longitude, 'E', 'W') + "   ± " + Dixiemes(longitude.ecartType) + "'";
}

std::vector<std::string> MotsAvisSerie(const Bureau &bureau) {
  const FenetreSerie &f = bureau.fenetreSerie;
  const SerieOuverte &p = bureau.serie;
  if (p.lectures.empty()) {
    return {f.TextePeu.legende};
  }
  std::vector<std::string> lignes;
  for (const AvisSerie avis : p.fiche.avis) {
    std::string mots = f.MotAvis.at(Rang(avis)).legende;
    if (avis == AvisSerie::SansCiel) {
      mots += MotsRefus(bureau, p.fiche.refus);
    } else if (avis == AvisSerie::LectureImprobable) {
      mots += HeureDeLecture(p, p.fiche.improbable);
    }
    const bool alarme = avis == AvisSerie::LectureImprobable || avis == AvisSerie::ErreurSansNom;
    lignes.push_back(mots + (alarme ? f.TexteAlarme.legende : ""));
  }
  AjoutePistes(bureau, lignes);
  return lignes;
}

std::string MotsDoute(const Bureau &bureau) {
  using A = AvisSerie;
  const SerieOuverte &p = bureau.serie;
  const std::vector<AvisSerie> &avis = p.fiche.avis;
  for (const A a :
       {A::LectureImprobable, A::ErreurSansNom, A::Dispersion, A::PenteFausse, A::HauteurLoin, A::SousHorizon}) {
    if (std::find(avis.begin(), avis.end(), a) != avis.end()) {
      return bureau.fenetreSerie.MotAvis.at(Rang(a)).legende +
             (a == A::LectureImprobable ? HeureDeLecture(p, p.fiche.improbable) : "");
    }
  }
  return {};
}

std::vector<std::string> MotsAvisMidi(const Bureau &bureau) {
  const FenetreSerie &f = bureau.fenetreSerie;
  const SerieOuverte &p = bureau.serie;
  if (p.lectures.empty()) {
    return {f.TextePeu.legende};
  }
  std::vector<std::string> lignes;
  for (const AvisMeridienne avis : p.midi.avis) {
    std::string mots = f.MotAvisMidi.at(Rang(avis)).legende;
    if (avis == AvisMeridienne::SansCiel) {
      mots += MotsRefus(bureau, p.midi.refus);
    } else if (avis == AvisMeridienne::LectureImprobable) {
      mots += HeureDeLecture(p, p.midi.improbable) + f.TexteAlarme.legende;
    }
    lignes.push_back(std::move(mots));
  }
  return lignes;
}

std::vector<std::string> MotsAvisLune(const Bureau &bureau) {
  const FenetreSerie &f = bureau.fenetreSerie;
  const SerieOuverte &p = bureau.serie;
  std::vector<std::string> lignes;
  for (const AvisLunaire avis : p.lune.avis) {
    std::string mots = f.MotAvisLune.at(Rang(avis)).legende;
    if (avis == AvisLunaire::SansCiel) {
      mots += MotsRefus(bureau, p.lune.refus);
    } else if (avis == AvisLunaire::TropLent) {
      mots += Dixiemes(p.lune.cadence) + f.TexteLent.legende;
    } else if (avis == AvisLunaire::MesureImprobable && p.lune.solution && p.lune.solution->improbable) {
      mots += TexteHeureUtc(p.distances.at(*p.lune.solution->improbable).mesure.montre) + f.TexteAlarme.legende;
    }
    lignes.push_back(std::move(mots));
  }
  return lignes;
}

std::array<std::string, 4> MotsResultatSerie(const Bureau &bureau, double ecartType) {
  const FenetreSerie &f = bureau.fenetreSerie;
  const FicheSerie &fiche = bureau.serie.fiche;
  if (!fiche.faite) {
    return {};
  }
  const DouteDispersion &d = fiche.parDispersion;
  return {TexteHeureUtc(fiche.heure) + "   " + TexteAngleSigne(fiche.lecture),
          "± " + Centiemes(fiche.ecartType) + "'   " + f.TexteErreur.legende + Dixiemes(ecartType) + "'   (" +
              std::to_string(fiche.comptees) + f.TexteLectures.legende + ")",
          "± " + Centiemes(d.ecartType) + "'   " + f.TexteStudent.legende + "± " + Centiemes(d.ecartType * d.facteur) +
              "'   (σ " + Centiemes(d.lecture) + "')",
          f.TexteCiel.legende + DixiemesSignes(fiche.pente.ciel) + "'/min, " + f.TexteTrouvee.legende +
              DixiemesSignes(fiche.pente.trouvee) + " ± " + Dixiemes(fiche.pente.ecartType) + "'/min"};
}

std::array<std::string, 5> MotsResultatMidi(const Bureau &bureau) {
  const FenetreSerie &f = bureau.fenetreSerie;
  const FicheMeridienne &midi = bureau.serie.midi;
  std::array<std::string, 5> mots;
  if (midi.passage) {
    const PassageMeridien &passage = *midi.passage;
    mots[0] = MotsPassage(f, passage, midi.longitude.has_value());
    mots[1] = passage.sansSommet ? f.TexteSansSommet.legende
                                 : TexteHeureUtc(passage.sommet) + " UTC   " + f.TexteVersPassage.legende + " " +
                                       (passage.correction < 0 ? "-" : "+") + MotsDuree(passage.correction);
  }
  if (midi.latitude) {
    mots[2] = MotsLatitude(*midi.latitude);
  }
  if (midi.parPlusHaute) {
    mots[3] = MotsLatitude(*midi.parPlusHaute) + "   (" + HeureDeLecture(bureau.serie, midi.plusHaute) + ")";
  }
  if (midi.longitude) {
    mots[4] = MotsLongitude(*midi.longitude);
  }
  return mots;
}

std::string MotsEgales(const Bureau &bureau) {
  const FenetreSerie &f = bureau.fenetreSerie;
  const bool tapees = !f.Text6[0].texte.empty() && !f.Text6[1].texte.empty();
  return bureau.serie.egales ? MotsLongitude(bureau.serie.egales->longitude)
         : tapees            ? f.TexteSansEgales.legende
                             : std::string();
}

std::array<std::string, 3> MotsResultatLune(const Bureau &bureau) {
  const FenetreSerie &f = bureau.fenetreSerie;
  const SerieOuverte &p = bureau.serie;
  if (!p.lune.solution) {
    return {};
  }
  const auto erreur = [&](const SolutionLunaire &s) {
    return (s.retard < 0 ? f.TexteAvance : f.TexteRetarde).legende + MotsDuree(s.retard) + "   ± " +
           MotsDuree(s.ecartType);
  };
  const InstantUTC &montre = p.distances.front().mesure.montre;
  const InstantUTC vraie = PlusTard(montre, p.lune.solution->retard);
  return {erreur(*p.lune.solution),
          TexteDate(vraie) + " " + TexteHeureUtc(vraie) + " UTC   (" + f.Label6[0].legende + " " +
              TexteHeureUtc(montre) + ")   " + Dixiemes(p.lune.solution->cadence) + f.TexteLent.legende,
          p.lune.seconde ? erreur(*p.lune.seconde) : std::string()};
}

} // namespace velmaris
