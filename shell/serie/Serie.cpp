#include "shell/serie/Serie.hpp"

#include "foundations/TexteNombre.hpp"
#include "shell/complements/Mots.hpp"
#include "shell/complements/Saisies.hpp"
#include "shell/serie/AstresListe.hpp"
#include "shell/serie/CalculSerie.hpp"
#include "shell/serie/GardeSerie.hpp"
#include "shell/serie/GestesSerie.hpp"
#include "shell/serie/LectureChamps.hpp"
#include "shell/serie/PriseSerie.hpp"
#include "shell/serie/SourcesSerie.hpp"

#include <algorithm>
#include <string>

namespace velmaris {
namespace {

/// The limb that a body is shot by as a rule.
void PoseBordUsuel(FenetreSerie &f) {
  const GenreAstre genre = AstreDeLaListe(f.Combo1, true).genre;
  const bool disque = genre == GenreAstre::Soleil || genre == GenreAstre::Lune;
  PoseChoisi(f.Combo2, static_cast<std::size_t>(disque ? Contact::Inferieur : Contact::Centre));
}

/// The first reading that waits for its angle comes into the fields; without one they are empty for a new one.
void Enchaine(Bureau &bureau) {
  FenetreSerie &f = bureau.fenetreSerie;
  SerieOuverte &p = bureau.serie;
  const auto attend = std::find_if(p.lectures.begin(), p.lectures.end(), [](const auto &l) { return !l.lecture; });
  if (attend != p.lectures.end()) {
    p.choisie = static_cast<std::size_t>(attend - p.lectures.begin());
    MontreLecture(bureau, *attend);
    bureau.focus = &f.Text4[1];
  } else {
    f.Text4[0].texte.clear();
    f.Text4[1].texte.clear();
    bureau.focus = &f.Text4[0];
  }
}

/// Puts a reading into the list, in its order.
/// @return false when there is no room
bool Ajoute(SerieOuverte &p, const LectureListee &lecture) {
  if (p.lectures.size() >= kLecturesMidiMax) {
    return false;
  }
  p.lectures.push_back(lecture);
  p.choisie = p.lectures.size() - 1;
  OrdonneLectures(p.lectures, p.choisie);
  return true;
}

/// The reading in the fields: as one more, or in the chosen row's place.
void AjouteTapee(Bureau &bureau, bool remplace) {
  FenetreSerie &f = bureau.fenetreSerie;
  SerieOuverte &p = bureau.serie;
  const std::optional<BaseLectures> base = LitBase(bureau);
  const InstantUTC proche = !p.lectures.empty() ? p.lectures.back().utc : base ? base->heureLieu : PresentUTC(bureau);
  const std::optional<LectureListee> lecture = LitLectureTapee(bureau, proche);
  if (!lecture) {
    ViseFaute(bureau.focus, {&f.Text4[0], &f.Text4[1]});
    p.aMontrer = true;
    return;
  }
  if (remplace && p.choisie < p.lectures.size()) {
    p.lectures.erase(p.lectures.begin() + static_cast<std::ptrdiff_t>(p.choisie));
  }
  const bool place = Ajoute(p, *lecture);
  if (place) {
    Enchaine(bureau);
  }
  RefaitSerie(bureau);
  if (!place) {
    DitSerie(bureau, f.TextePleine.legende);
  }
}

void OteLecture(Bureau &bureau, bool toutes) {
  SerieOuverte &p = bureau.serie;
  if (toutes) {
    p.lectures.clear();
    for (Controle &champ : bureau.fenetreSerie.Text4) {
      champ.texte.clear();
      champ.alerte.clear();
    }
  } else if (p.choisie < p.lectures.size()) {
    p.lectures.erase(p.lectures.begin() + static_cast<std::ptrdiff_t>(p.choisie));
  }
  p.choisie = p.lectures.size();
  RefaitSerie(bureau);
}

void ViensDuRegistre(Bureau &bureau) {
  const FenetreSerie &f = bureau.fenetreSerie;
  const std::size_t venues = ReprendDuRegistre(bureau, AstreDeLaListe(f.Combo1, true));
  RefaitSerie(bureau);
  DitSerie(bureau, venues > 0 ? f.TexteVenues.legende + std::to_string(venues) : f.TexteRien.legende);
}

/// "Ajouter", "Changer", "Ôter", "Tout ôter", "Du registre", "Ouvrir...".
void ChangeLectures(Bureau &bureau, int indice) {
  switch (indice) {
  case 0:
  case 1:
    AjouteTapee(bureau, indice == 1);
    break;
  case 2:
  case 3:
    OteLecture(bureau, indice == 3);
    break;
  case 4:
    ViensDuRegistre(bureau);
    break;
  default:
    if (OuvreLectures(bureau)) {
      RefaitSerie(bureau);
    }
    break;
  }
}

} // namespace

void OuvreSerie_Click(Bureau &bureau, int /*indice*/) {
  FenetreSerie &f = bureau.fenetreSerie;
  SerieOuverte &p = bureau.serie;
  if (!p.reprise) {
    p.reprise = true;
    PoseListes(bureau);
    if (!ReprendSerieGardee(bureau)) {
      ReprendPanneauSerie(bureau);
    }
    p.choisie = p.lectures.size();
    p.choisieLune = p.distances.size();
  }
  f.cadre.visible = true;
  bureau.premierPlan = kFenetreSerie;
  bureau.focus = f.Onglets1.rang == static_cast<int>(PageSerie::Lune) ? &f.Text5[0] : &f.Marque;
  RefaitSerie(bureau);
}

namespace serie {

void Champ_Change(Bureau &bureau, int /*indice*/) { RefaitSerie(bureau); }

void Combo1_Click(Bureau &bureau, int /*indice*/) {
  PoseBordUsuel(bureau.fenetreSerie);
  RefaitSerie(bureau);
}

void Check1_Click(Bureau &bureau, int /*indice*/) {
  FenetreSerie &f = bureau.fenetreSerie;
  PoseBordUsuel(f);
  if (f.Check1.valeur == 1) {
    PoseChoisi(f.Combo2, static_cast<std::size_t>(Contact::Centre));
  }
  RefaitSerie(bureau);
}

void Command1_Click(Bureau &bureau, int /*indice*/) {
  ReprendPanneauSerie(bureau);
  RefaitSerie(bureau);
}

void Onglets1_Click(Bureau &bureau, int /*indice*/) {
  OublieFautes(Liste(bureau.fenetreSerie));
  RefaitSerie(bureau);
}

void Lectures_Click(Bureau &bureau, int /*indice*/) {
  SerieOuverte &p = bureau.serie;
  const int ligne = bureau.fenetreSerie.Lectures.tableau.courante;
  if (ligne >= 0 && static_cast<std::size_t>(ligne) < p.lectures.size()) {
    p.choisie = static_cast<std::size_t>(ligne);
    MontreLecture(bureau, p.lectures[p.choisie]);
    p.aMontrer = true;
  }
}

void Lectures_Coche(Bureau &bureau, int /*indice*/) {
  SerieOuverte &p = bureau.serie;
  const int ligne = bureau.fenetreSerie.Lectures.tableau.courante;
  if (ligne >= 0 && static_cast<std::size_t>(ligne) < p.lectures.size()) {
    RetientGesteSerie(bureau,
                      bureau.fenetreSerie.TexteEcartee.legende + ", " +
                          TexteHeureUtc(p.lectures[static_cast<std::size_t>(ligne)].utc),
                      [&] {
                        p.choisie = static_cast<std::size_t>(ligne);
                        p.lectures[p.choisie].ecartee = !p.lectures[p.choisie].ecartee;
                        RefaitSerie(bureau);
                      });
  }
}

void Text4_Valide(Bureau &bureau, int indice) {
  FenetreSerie &f = bureau.fenetreSerie;
  if (indice != 0) {
    Command3_Click(bureau, 0);
    return;
  }
  MarqueChamp(f.Text4[0], LitHeureProche(f.Text4[0].texte, PresentUTC(bureau)).has_value(), f.TexteHors.legende);
  if (!ViseFaute(bureau.focus, {&f.Text4[0]})) {
    f.Text4[1].toutSelectionne = true;
    bureau.focus = &f.Text4[1];
  }
  bureau.serie.aMontrer = true;
}

void Command3_Click(Bureau &bureau, int indice) {
  constexpr int kGarde = 6;
  if (indice == kGarde) {
    EcritLectures(bureau);
    return;
  }
  RetientGesteSerie(bureau, bureau.fenetreSerie.Command3.at(static_cast<std::size_t>(indice)).legende,
                    [&] { ChangeLectures(bureau, indice); });
}

void Marque_Click(Bureau &bureau, int /*indice*/) {
  SerieOuverte &p = bureau.serie;
  const LectureListee marque{PresentUTC(bureau), std::nullopt, false};
  const bool connue = std::any_of(p.lectures.begin(), p.lectures.end(),
                                  [&](const LectureListee &l) { return SecondesDe(l.utc) == SecondesDe(marque.utc); });
  if (connue) {
    return;
  }
  RetientGesteSerie(bureau, bureau.fenetreSerie.Marque.legende + ", " + TexteHeureUtc(marque.utc), [&] {
    if (Ajoute(p, marque)) {
      // The keyboard stays, so that the next press marks again; the fields are those of the first that waits.
      const Controle *avant = bureau.focus;
      Enchaine(bureau);
      bureau.focus = avant;
      RefaitSerie(bureau);
    } else {
      DitSerie(bureau, bureau.fenetreSerie.TextePleine.legende);
    }
  });
}

void Prend_Click(Bureau &bureau, int /*indice*/) {
  const std::size_t avant = bureau.annulations.faits.size();
  MetSerieAuPanneau(bureau);
  NoteGesteAuPanneau(bureau, avant);
}

void PrendMidi_Click(Bureau &bureau, int /*indice*/) {
  const std::size_t avant = bureau.annulations.faits.size();
  MetMidiAuPanneau(bureau);
  NoteGesteAuPanneau(bureau, avant);
}

void Command2_Click(Bureau &bureau, int /*indice*/) {
  OublieFautes(Liste(bureau.fenetreSerie));
  bureau.serie.dit.clear();
  bureau.fenetreSerie.cadre.visible = false;
  bureau.premierPlan = kFenetreDonnees;
}

} // namespace serie
} // namespace velmaris
