#include "foundations/TexteNombre.hpp"
#include "shell/complements/Mots.hpp"
#include "shell/complements/Saisies.hpp"
#include "shell/serie/AstresListe.hpp"
#include "shell/serie/CalculSerie.hpp"
#include "shell/serie/GestesSerie.hpp"
#include "shell/serie/LectureChamps.hpp"
#include "shell/serie/PriseSerie.hpp"
#include "shell/serie/Serie.hpp"

#include <array>

namespace velmaris {
namespace {

/// The limb that a distance is measured to as a rule: the Sun's near one, else the centre.
void PoseBordAstreUsuel(FenetreSerie &f, const Astre &astre) {
  const bool soleil = astre.genre == GenreAstre::Soleil;
  PoseChoisi(f.Combo5, static_cast<std::size_t>(soleil ? BordDistance::Proche : BordDistance::Centre));
  PoseChoisi(f.Combo7, static_cast<std::size_t>(soleil ? Contact::Inferieur : Contact::Centre));
}

/// The distance in the fields: as one more, or in the chosen row's place.
void AjouteTapee(Bureau &bureau, bool remplace) {
  FenetreSerie &f = bureau.fenetreSerie;
  SerieOuverte &p = bureau.serie;
  const std::optional<BaseLectures> base = LitBase(bureau);
  const std::optional<DistanceListee> distance = LitDistanceTapee(bureau, base ? base->heureLieu : PresentUTC(bureau));
  p.aMontrer = true;
  if (!distance) {
    ViseFaute(bureau.focus, {&f.Text5[0], &f.Text5[1], &f.Text5[2], &f.Text5[3]});
    return;
  }
  if (remplace && p.choisieLune < p.distances.size()) {
    p.distances.erase(p.distances.begin() + static_cast<std::ptrdiff_t>(p.choisieLune));
  }
  if (p.distances.size() >= kDistancesMax) {
    DitSerie(bureau, f.MotAvisLune.at(static_cast<std::size_t>(AvisLunaire::Trop)).legende);
    return;
  }
  p.distances.push_back(*distance);
  p.choisieLune = p.distances.size() - 1;
  OrdonneDistances(p.distances, p.choisieLune);
  for (Controle &champ : f.Text5) {
    champ.texte.clear();
  }
  bureau.focus = &f.Text5[0];
  RefaitSerie(bureau);
}

/// The distance of the table's current row.
/// @return nothing for none
DistanceListee *Courante(Bureau &bureau) {
  SerieOuverte &p = bureau.serie;
  const int ligne = bureau.fenetreSerie.Distances.tableau.courante;
  if (ligne < 0 || static_cast<std::size_t>(ligne) >= p.distances.size()) {
    return nullptr;
  }
  p.choisieLune = static_cast<std::size_t>(ligne);
  return &p.distances[p.choisieLune];
}

} // namespace

namespace serie {

void Distances_Click(Bureau &bureau, int /*indice*/) {
  if (const DistanceListee *distance = Courante(bureau)) {
    MontreDistance(bureau, *distance);
    bureau.serie.aMontrer = true;
  }
}

void Distances_Coche(Bureau &bureau, int /*indice*/) {
  if (DistanceListee *distance = Courante(bureau)) {
    RetientGesteSerie(bureau, bureau.fenetreSerie.TexteEcartee.legende + ", " + TexteHeureUtc(distance->mesure.montre),
                      [&] {
                        distance->mesure.ecartee = !distance->mesure.ecartee;
                        RefaitSerie(bureau);
                      });
  }
}

void Candidats_Valide(Bureau &bureau, int /*indice*/) {
  FenetreSerie &f = bureau.fenetreSerie;
  const int ligne = f.Candidats.tableau.courante;
  if (ligne >= 0 && static_cast<std::size_t>(ligne) < bureau.serie.candidats.size()) {
    const CandidatLunaire &c = bureau.serie.candidats[static_cast<std::size_t>(ligne)];
    PoseChoisi(f.Combo3, PlaceDansLaListe(c.astre, false));
    PoseBordAstreUsuel(f, c.astre);
    PoseChoisi(f.Combo4, static_cast<std::size_t>(c.bordLune));
    PoseChoisi(f.Combo5, static_cast<std::size_t>(c.bordAstre));
    bureau.focus = &f.Text5[0];
  }
}

void Combo3_Click(Bureau &bureau, int /*indice*/) {
  FenetreSerie &f = bureau.fenetreSerie;
  PoseBordAstreUsuel(f, AstreDeLaListe(f.Combo3, false));
}

void Text5_Valide(Bureau &bureau, int indice) {
  FenetreSerie &f = bureau.fenetreSerie;
  if (indice != 0) {
    Command4_Click(bureau, 0);
    return;
  }
  MarqueChamp(f.Text5[0], LitHeureProche(f.Text5[0].texte, PresentUTC(bureau)).has_value(), f.TexteHors.legende);
  if (!ViseFaute(bureau.focus, {&f.Text5[0]})) {
    f.Text5[1].toutSelectionne = true;
    bureau.focus = &f.Text5[1];
  }
  bureau.serie.aMontrer = true;
}

void Command4_Click(Bureau &bureau, int indice) {
  RetientGesteSerie(bureau, bureau.fenetreSerie.Command4.at(static_cast<std::size_t>(indice)).legende, [&] {
    SerieOuverte &p = bureau.serie;
    if (indice < 2) {
      AjouteTapee(bureau, indice == 1);
    } else if (p.choisieLune < p.distances.size()) {
      p.distances.erase(p.distances.begin() + static_cast<std::ptrdiff_t>(p.choisieLune));
      p.choisieLune = p.distances.size();
      RefaitSerie(bureau);
    }
  });
}

void PrendLune_Click(Bureau &bureau, int /*indice*/) { GardeALaMontre(bureau); }

} // namespace serie
} // namespace velmaris
