#include "shell/serie/PriseSerie.hpp"

#include "complements/serie/LecturesPretes.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/complements/Mots.hpp"
#include "shell/registre/LectureRegistre.hpp"
#include "shell/serie/GestesSerie.hpp"
#include "shell/serie/LectureChamps.hpp"
#include "shell/serie/MotsSerie.hpp"
#include "shell/visee/Annulation.hpp"
#include "shell/visee/Astres.hpp"
#include "shell/visee/Saisie.hpp"

#include <algorithm>
#include <cmath>
#include <span>
#include <string>

namespace velmaris {
namespace {

constexpr int kSoixante = 60;

void PoseHeure(Bureau &bureau, const InstantUTC &utc) {
  Donnees &d = bureau.donnees;
  const DateCivile date = CivileDe(ALaSeconde(utc));
  PoseTexte(bureau, d.Text3, Format(date.heure, "00"));
  PoseTexte(bureau, d.Text4, Format(date.minute, "00"));
  PoseTexte(bureau, d.Text5, Format(std::floor(date.seconde), "00"));
  PoseTexte(bureau, d.TDate[0], Format(date.jour, "00"));
  PoseTexte(bureau, d.TDate[1], Format(date.mois, "00"));
  PoseTexte(bureau, d.TDate[2], Format(date.annee, "0000"));
}

/// The reading as the panel stands: whole seconds, or hundredths of a minute.
void PoseLecture(Bureau &bureau, double lecture) {
  constexpr int kCentiemes = 100;
  Donnees &d = bureau.donnees;
  const long parts = d.Option4[0].choisi ? kSoixante : kCentiemes; // of a minute
  const long total = std::lround(lecture * kSoixante * static_cast<double>(parts));
  const long minutes = total / parts;
  const long degres = minutes / kSoixante;
  PoseTexte(bureau, d.Text13, Format(static_cast<double>(degres), "00"));
  PoseTexte(bureau, d.Text12, Format(static_cast<double>(minutes % kSoixante), "00"));
  PoseTexte(bureau, d.Text25, Format(static_cast<double>(total % parts), "00"));
}

/// A number of a field that holds a decimal comma; one that holds it already stays as it is typed.
void PoseVirgule(Bureau &bureau, Controle &champ, double valeur) {
  constexpr double kRien = 1E-9;
  if (std::fabs(Val(AvecPoint(champ.texte)) - valeur) > kRien) {
    std::string texte = Format(valeur, "0.0##");
    std::replace(texte.begin(), texte.end(), '.', ',');
    PoseTexte(bureau, champ, texte);
  }
}

/// Horizon and limb; the body's choice has made the usual ones.
void PoseBord(Bureau &bureau, const LectureSextant &sextant) {
  Donnees &d = bureau.donnees;
  if (d.Option5[1].choisi != sextant.horizonArtificiel) {
    PoseOption(bureau, d.Option5.at(sextant.horizonArtificiel ? 1 : 0));
    Option5_Relache(bureau, sextant.horizonArtificiel ? 1 : 0);
  }
  const Bord bord = sextant.contact == Contact::Inferieur   ? Bord::Inferieur
                    : sextant.contact == Contact::Superieur ? Bord::Superieur
                                                            : Bord::Centre;
  PoseOption(bureau, d.Option6.at(static_cast<std::size_t>(bord)));
}

/// The estimated position, each part of it where the panel has none.
void PoseEstimeeVide(Bureau &bureau, const LieuNavire &lieu) {
  const Donnees &d = bureau.donnees;
  const auto vide = [](const Controle &degres, const Controle &minutes) {
    return SansBlancs(degres.texte).empty() && SansBlancs(minutes.texte).empty();
  };
  if (vide(d.Text8, d.Text9)) {
    PoseLatitudeEstimee(bureau, lieu.latitude);
  }
  if (vide(d.Text6, d.Text7)) {
    PoseLongitudeEstimee(bureau, lieu.longitude);
  }
}

} // namespace

void MetSerieAuPanneau(Bureau &bureau) {
  const FenetreSerie &f = bureau.fenetreSerie;
  const FicheSerie &fiche = bureau.serie.fiche;
  const std::optional<BaseLectures> base = LitBase(bureau);
  if (!base || !fiche.faite) {
    DitSerie(bureau, f.TexteSansSerie.legende);
    return;
  }
  const std::string nom = NomDAstre(bureau, base->astre);
  bool connu = false;
  RetientGeste(bureau, f.TexteGeste.legende + ", " + nom, [&] {
    connu = PoseAstre(bureau, base->astre);
    if (connu) {
      PoseBord(bureau, base->corrections);
      PoseHeure(bureau, fiche.heure);
      PoseVirgule(bureau, bureau.donnees.Text10, base->corrections.hauteurOeil);
      PoseVirgule(bureau, bureau.donnees.Text11, base->corrections.collimation);
      PoseLecture(bureau, fiche.lecture);
      PoseEstimeeVide(bureau, LieuDeLaBase(*base, fiche.heure));
    }
  });
  const std::string doute = MotsDoute(bureau);
  DitSerie(bureau, connu ? nom + "   " + TexteHeureUtc(fiche.heure) + "   " + TexteAngleSigne(fiche.lecture) +
                               (doute.empty() ? "" : f.TexteMalgre.legende + doute)
                         : f.TexteHorsListe.legende);
}

void MetMidiAuPanneau(Bureau &bureau) {
  const FenetreSerie &f = bureau.fenetreSerie;
  const FicheMeridienne &midi = bureau.serie.midi;
  if (!midi.latitude) {
    DitSerie(bureau, f.TexteSansMidi.legende);
    return;
  }
  RetientGeste(bureau, f.TexteGesteMidi.legende, [&] {
    PoseLatitudeEstimee(bureau, midi.latitude->latitude);
    if (midi.longitude) {
      PoseLongitudeEstimee(bureau, midi.longitude->longitude);
    }
  });
  const LieuNavire lieu{midi.latitude->latitude, midi.longitude ? midi.longitude->longitude : 0};
  DitSerie(bureau, midi.longitude ? f.TextePrise.legende + TexteLieu(lieu) : f.TexteLatitudeSeule.legende);
}

ReleveMontre ReleveDe(const SolutionLunaire &solution, const InstantUTC &montre,
                      const std::vector<ReleveMontre> &releves) {
  ReleveMontre releve;
  releve.instant = SecondesDe(PlusTard(montre, solution.retard));
  releve.erreur = -solution.retard;
  const auto apres =
      std::find_if(releves.begin(), releves.end(), [&](const ReleveMontre &r) { return r.instant >= releve.instant; });
  releve.marche = apres == releves.begin() ? 0 : (apres - 1)->marche;
  return releve;
}

void GardeALaMontre(Bureau &bureau) {
  const FenetreSerie &f = bureau.fenetreSerie;
  const SerieOuverte &p = bureau.serie;
  if (!p.lune.solution) {
    DitSerie(bureau, f.TexteSansLune.legende);
    return;
  }
  std::vector<LectureSerie> heures;
  heures.reserve(p.distances.size());
  for (const DistanceListee &d : p.distances) {
    heures.push_back({d.mesure.montre, 0, d.mesure.ecartee});
  }
  const InstantUTC milieu =
      MilieuDe(std::span<const LectureSerie>(heures), [](const LectureSerie &l) { return !l.ecartee; });
  LitRegistreAussitot(bureau);
  const std::vector<ReleveMontre> &releves = bureau.registreOuvert.montre;
  const ReleveMontre releve = ReleveDe(*p.lune.solution, milieu, releves);
  const bool deja = std::any_of(releves.begin(), releves.end(), [&](const ReleveMontre &r) {
    return r.instant == releve.instant && r.erreur == releve.erreur;
  });
  if (!deja) {
    AjouteReleve(bureau, releve);
  }
  DitSerie(bureau, (deja ? f.TexteDejaGarde : f.TexteGarde).legende + MotsResultatLune(bureau).front());
}

} // namespace velmaris
