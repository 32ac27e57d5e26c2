#include "shell/droites/Droites.hpp"

#include "foundations/TexteNombre.hpp"
#include "shell/bureau/Avis.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/droites/Bouts.hpp"
#include "shell/droites/ModesDroite.hpp"
#include "shell/visee/Journal.hpp"
#include "shell/visee/ReduitVisee.hpp"
#include "shell/visee/Saisie.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kCran = 1.25; ///< miles shown at one notch of the zoom, over those at the next

/// Whether no height is read: such a sight isn't reduced.
bool SansLecture(const Donnees &d) {
  return Val(d.Text13.texte) == 0 && Val(d.Text12.texte) == 0 && Val(d.Text25.texte) == 0;
}

/// The four lines leave the sheet.
void RetireDroites(Donnees &d) {
  for (std::size_t i = 0; i < d.LHeure.size(); ++i) {
    MarqueDroite(d, i, kHorsFeuille);
  }
}

/// Replays the lines of one state, in their order.
/// @return how many there were
int RetraceEtat(Bureau &bureau, Couleur etat) {
  int nombre = 0;
  for (std::size_t i = 0; i < bureau.donnees.LHeure.size(); ++i) {
    if (bureau.donnees.LHeure[i].couleur == etat) {
      RejoueDroite(bureau, static_cast<int>(i));
      ++nombre;
    }
  }
  return nombre;
}

/// Replays the lines of a list of transports in a mode, in their order.
/// @param liste  a line that finds no sheet empties it, and ends the run
void RetraceTransports(Bureau &bureau, ModeDroite mode, const std::string &liste) {
  if (liste.empty()) {
    return;
  }
  PoseMode(bureau, mode);
  if (mode == ModeDroite::TransporteDroite) {
    PoseTexte(bureau, bureau.donnees.Combo5, bureau.transports.CibleTransport);
  }
  std::size_t rang = 0;
  while (rang < liste.size()) {
    RejoueDroite(bureau, liste[rang++] - '0');
  }
}

} // namespace

void MarqueHeure(Donnees &d, std::size_t ligne, Couleur etat) {
  d.LHeure[ligne].marque = etat == kPremiereDroite ? "●" : etat == kDroiteAjoutee ? "+" : "";
  d.LHeure[ligne].couleur = etat;
}

void MarqueDroite(Donnees &d, std::size_t ligne, Couleur etat) {
  MarqueHeure(d, ligne, etat);
  d.Ldate[ligne].couleur = etat;
}

void OublieFeuille(Bureau &bureau) {
  RetireDroites(bureau.donnees);
  for (Controle &rangee : bureau.impression.Frame4) {
    rangee.visible = false;
  }
  bureau.feuille.OrigineFeuille = kSansFeuille;
  PoseMode(bureau, ModeDroite::Affiche);
  bureau.transports.ListeTransportDroite.clear();
  bureau.transports.ListeTransportEstime.clear();
  bureau.transports.CibleTransport.clear();
}

void MontreTitresFeuille(Bureau &bureau) {
  bureau.donnees.LabLon.legende = bureau.feuille.LabLon;
  bureau.donnees.LabLat.legende = bureau.feuille.LabLat;
}

std::optional<Hauteurs> PremiereDroite(Bureau &bureau, Demande demande) {
  Observation observation = LitPanneau(bureau.donnees);
  NormaliseLecture(observation);
  PrepareVisee(bureau, observation);
  const std::optional<Hauteurs> hauteurs = ReduitVisee(bureau, observation, demande);
  TraceNommee(bureau, NomReduite(bureau, observation, hauteurs.has_value()),
              [&] { TraceDroites(bureau.feuille, bureau.image1, observation, bureau.visee); });
  MontreTitresFeuille(bureau);
  MajHeureListes(bureau);
  return hauteurs;
}

void DroiteSuivante(Bureau &bureau, Demande demande) {
  Observation observation = LitPanneau(bureau.donnees);
  PrepareVisee(bureau, observation);
  const std::optional<Hauteurs> hauteurs = ReduitVisee(bureau, observation, demande);
  // A planet or a star gives its name also where a reading of 0 has left the reduction undone.
  const Donnees &d = bureau.donnees;
  if (observation.corps == Corps::Planetes) {
    bureau.NomAstre = d.Combo7.rang < 0 ? std::string() : d.Combo7.liste.at(static_cast<std::size_t>(d.Combo7.rang));
  } else if (observation.corps == Corps::Etoiles) {
    bureau.NomAstre = d.Combo6.texte;
  }
  TraceNommee(bureau, NomReduite(bureau, observation, hauteurs.has_value()),
              [&] { AjouDroites(bureau.feuille, bureau.image1, observation, bureau.visee); });
}

void Command2_Click(Bureau &bureau, int /*indice*/) {
  if (const std::optional<Hauteurs> hauteurs = PremiereDroite(bureau)) {
    Journalise(bureau, *hauteurs);
  } else if (SansLecture(bureau.donnees)) {
    Avise(bureau, bureau.etat.TexteSansLecture.legende);
  }
  RetraceCarte(bureau);
  RetireDroites(bureau.donnees);
}

void RetraceDroites(Bureau &bureau) {
  bureau.feuille.OrigineFeuille = kSansFeuille;
  PoseMode(bureau, ModeDroite::Affiche);
  const int premieres = RetraceEtat(bureau, kPremiereDroite);
  const int ajoutees = RetraceEtat(bureau, kDroiteAjoutee);
  if (premieres + ajoutees == 0) {
    PremiereDroite(bureau, Demande::Retrace);
  }
  RetraceTransports(bureau, ModeDroite::TransporteDroite, bureau.transports.ListeTransportDroite);
  RetraceTransports(bureau, ModeDroite::TransporteEstime, bureau.transports.ListeTransportEstime);
}

void RetraceCarte(Bureau &bureau) {
  if (bureau.donnees.Check2.valeur == 1) {
    Declenche(bureau, bureau.donnees.Command17, Evenement::Clic);
  }
}

void MajHeureListes(Bureau &bureau) {
  PoseTexte(bureau, bureau.donnees.Combo1, Format(bureau.donnees.Text3.texte, "00"));
  PoseTexte(bureau, bureau.donnees.Combo2, Format(bureau.donnees.Text4.texte, "00"));
}

void Command6_Click(Bureau &bureau, int /*indice*/) {
  Efface(bureau.image1);
  bureau.feuille.LabLon.clear();
  bureau.feuille.LabLat.clear();
  MontreTitresFeuille(bureau);
  OublieFeuille(bureau);
}

void PoseGrille(Bureau &bureau, bool tracee) {
  bureau.feuille.Grille = tracee ? 0 : 1;
  bureau.donnees.Command12.visible = tracee;
  bureau.donnees.Command14.visible = !tracee;
}

void Grille_Click(Bureau &bureau, int /*indice*/) {
  Donnees &d = bureau.donnees;
  const bool sansGrille = bureau.feuille.Grille == 0;
  PoseGrille(bureau, !sansGrille);
  bureau.focus = sansGrille ? &d.Command14 : &d.Command12;
  RetraceDroites(bureau);
  RetraceCarte(bureau);
}

void SuitCurseurZoom(Bureau &bureau) {
  bureau.feuille.Zoom = Entier16(bureau.donnees.HScroll1.valeur / 10.0);
  bureau.donnees.Label32.legende = "Zoom : " + std::to_string(bureau.feuille.Zoom);
}

void HScroll1_Change(Bureau &bureau, int /*indice*/) {
  SuitCurseurZoom(bureau);
  RetraceDroites(bureau);
  RetraceCarte(bureau);
}

void ZoomeCrans(Bureau &bureau, int crans) {
  Controle &zoom = bureau.donnees.HScroll1;
  const double valeur = zoom.valeur * std::pow(kCran, -crans);
  BougeCurseur(bureau, zoom, static_cast<int>(std::lround(std::clamp<double>(valeur, zoom.minimum, zoom.maximum))));
}

} // namespace velmaris
