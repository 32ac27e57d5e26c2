#include "shell/exercice/EvenementsExercice.hpp"

#include "complements/exercice/ViseesTypees.hpp"
#include "shell/bureau/Avis.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/complements/ExerciceEnCours.hpp"
#include "shell/complements/Mots.hpp"
#include "shell/complements/RangeesTexte.hpp"
#include "shell/complements/Saisies.hpp"
#include "shell/exercice/LectureExercice.hpp"
#include "shell/exercice/MotsExercice.hpp"
#include "shell/visee/Annulation.hpp"
#include "shell/visee/EtatPanneau.hpp"
#include "shell/visee/Saisie.hpp"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace velmaris {
namespace {

/// The row that the keyboard is at.
std::optional<std::size_t> ViseeChoisie(const Bureau &bureau) {
  const int ligne = bureau.fenetreExercice.Visees.tableau.courante;
  const auto &enCours = bureau.exercice.enCours;
  return enCours && ligne >= 0 && static_cast<std::size_t>(ligne) < enCours->exercice.visees.size()
             ? std::optional(static_cast<std::size_t>(ligne))
             : std::nullopt;
}

/// The lists in the language of the window; what is chosen in them stays.
void PoseListes(FenetreExercice &f) {
  const auto pose = [](Controle &liste, std::vector<std::string> lignes) {
    liste.liste = std::move(lignes);
    liste.texte = liste.rang < 0 ? "" : liste.liste.at(static_cast<std::size_t>(liste.rang));
  };
  std::vector<std::string> sujets;
  sujets.reserve(f.MotSujet.size());
  for (const Controle &mot : f.MotSujet) {
    sujets.push_back(mot.legende);
  }
  f.Combo1.rang = NiveauDesChamps(f);
  pose(f.Combo1, MotsNiveaux(f));
  pose(f.Combo2, std::move(sujets));
}

RangeeTexte Rangee(const Bureau &bureau, std::size_t rang) {
  const FenetreExercice &f = bureau.fenetreExercice;
  const ViseeExercice &v = bureau.exercice.enCours->exercice.visees.at(rang);
  const InstantUTC utc = UTCDe(v.utc);
  const bool bord = v.astre.genre <= GenreAstre::Lune;
  RangeeTexte r;
  r.textes = {NomDAstre(bureau, v.astre),
              TexteDate(utc),
              TexteHeureUtc(utc),
              TexteAngleSigne(v.lecture),
              bord ? f.MotBord.at(static_cast<std::size_t>(v.contact)).legende : "",
              TexteDirection(v.azimut),
              TexteLieu(v.estime),
              MotsVisee(bureau, rang)};
  return r;
}

/// The sights as rows; the first is the current one when they are new.
void PoseVisees(Bureau &bureau) {
  constexpr std::array<double, 8> kLargeurs = {1650, 1200, 1050, 1200, 900, 900, 2700, 3900};
  FenetreExercice &f = bureau.fenetreExercice;
  const auto &enCours = bureau.exercice.enCours;
  std::vector<Colonne> colonnes;
  for (std::size_t i = 0; i < kLargeurs.size(); ++i) {
    const bool nombre = i == 3 || i == 5;
    colonnes.push_back({f.MotColonne.at(i).legende, kLargeurs.at(i), nombre ? Cote::Droite : Cote::Gauche});
  }
  std::vector<RangeeTexte> rangees;
  for (std::size_t i = 0; enCours && i < enCours->exercice.visees.size(); ++i) {
    rangees.push_back(Rangee(bureau, i));
  }
  Tableau &t = f.Visees.tableau;
  PoseRangees(t, std::move(colonnes), std::move(rangees));
  if (t.courante == kSansLigne && t.lignes > 0) {
    t.courante = 0;
    t.choisies = {0};
  }
}

/// Puts lines of words into captions; those that are left over are empty.
template <std::size_t N> void PoseMots(std::array<Controle, N> &captions, const std::vector<std::string> &lignes) {
  for (std::size_t i = 0; i < N; ++i) {
    captions.at(i).legende = i < lignes.size() ? lignes[i] : "";
  }
}

/// Why there is no practice, or the first field that can't be used.
std::string MotsFaute(Bureau &bureau) {
  FenetreExercice &f = bureau.fenetreExercice;
  const auto &enCours = bureau.exercice.enCours;
  if (std::string faute = PremiereFaute(Liste(f)); !faute.empty()) {
    return faute;
  }
  if (enCours && enCours->exercice.refus) {
    return bureau.fiche.MotRefus.at(static_cast<std::size_t>(*enCours->exercice.refus)).legende;
  }
  return enCours && enCours->exercice.visees.empty() ? f.TexteImpossible.legende : "";
}

void Montre(Bureau &bureau) {
  FenetreExercice &f = bureau.fenetreExercice;
  const auto &enCours = bureau.exercice.enCours;
  const bool offre = enCours && !enCours->exercice.visees.empty();
  f.cadre.titre = bureau.donnees.PU_Exercice.legende;
  PoseListes(f);
  PoseVisees(bureau);
  const auto choisie = ViseeChoisie(bureau);
  f.Label3.legende = offre ? f.TexteHorsRegistre.legende : "";
  PoseMots(f.Donne, offre ? MotsDuBord(bureau, enCours->exercice) : std::vector<std::string>());
  PoseMots(f.Detail, choisie ? MotsDetail(bureau, *choisie) : std::vector<std::string>());
  PoseMots(f.Resultat, MotsVerite(bureau));
  f.LabAvis.legende = MotsFaute(bureau);
}

/// Marks the fields that can't be used, and no others.
void JugeChamps(FenetreExercice &f) {
  LitDemandeExercice(f);
  LitPointExercice(f);
}

/// Empties what belongs to the practice before.
void OublieReponse(FenetreExercice &f) {
  for (Controle &champ : f.Text3) {
    champ.texte.clear();
    champ.alerte.clear();
  }
  f.Visees.tableau = {};
}

} // namespace

void OuvreExercice_Click(Bureau &bureau, int /*indice*/) {
  FenetreExercice &f = bureau.fenetreExercice;
  if (f.Text1.texte.empty()) {
    const auto garde = LitExerciceGarde(bureau);
    PoseDemande(f, garde.value_or(DemandeExercice{NiveauDe(0).graine, NiveauDe(0).conditions}));
    if (garde && !bureau.exercice.enCours) {
      RouvreExercice(bureau);
    }
  }
  JugeChamps(f);
  f.cadre.visible = true;
  bureau.premierPlan = kFenetreExercice;
  bureau.focus = bureau.exercice.enCours ? &f.Visees : &f.Combo1;
  bureau.exercice.aMontrer = true;
}

void AccordeExercice(Bureau &bureau) {
  if (!bureau.fenetreExercice.cadre.visible) {
    return;
  }
  ExerciceOuvert &e = bureau.exercice;
  const bool langue = std::exchange(e.langue, bureau.FichierLangue) != bureau.FichierLangue;
  if (langue) {
    JugeChamps(bureau.fenetreExercice);
  }
  if (std::exchange(e.aMontrer, false) || langue) {
    Montre(bureau);
  }
}

namespace exercice {

void Combo1_Click(Bureau &bureau, int /*indice*/) {
  FenetreExercice &f = bureau.fenetreExercice;
  if (f.Combo1.rang >= 0) {
    const NiveauExercice &niveau = NiveauDe(static_cast<std::size_t>(f.Combo1.rang));
    PoseDemande(f, {niveau.graine, niveau.conditions});
    Champ_Change(bureau, -1);
  }
}

void Champ_Change(Bureau &bureau, int /*indice*/) {
  LitDemandeExercice(bureau.fenetreExercice);
  bureau.exercice.aMontrer = true;
}

void Command1_Click(Bureau &bureau, int indice) {
  FenetreExercice &f = bureau.fenetreExercice;
  if (indice == 1) {
    constexpr int kGraines = 1000000;
    constexpr int kPas = 1009; // the clock of a hurried hand gives neighbours, the seeds needn't be
    const TempsSysteme t = bureau.horloge.source();
    const int heure = (t.heure * 60 + t.minute) * 60 + t.seconde;
    const int avant = static_cast<int>(LitDemandeExercice(f).value_or(DemandeExercice()).graine);
    f.Text1.texte = std::to_string((avant + heure * kPas + t.millisecondes + 1) % kGraines);
    Champ_Change(bureau, -1);
  } else if (const auto demande = LitDemandeExercice(f)) {
    OublieReponse(f);
    CommenceExercice(bureau, *demande);
    bureau.focus = &f.Visees;
  }
  bureau.exercice.aMontrer = true;
}

void Visees_Click(Bureau &bureau, int /*indice*/) { bureau.exercice.aMontrer = true; }

void Prend_Click(Bureau &bureau, int /*indice*/) {
  const FenetreExercice &f = bureau.fenetreExercice;
  const auto choisie = ViseeChoisie(bureau);
  if (!choisie) {
    Avise(bureau, (bureau.exercice.enCours ? f.TexteSansChoix : f.TexteSansExercice).legende);
    return;
  }
  const Exercice &e = bureau.exercice.enCours->exercice;
  const ViseeExercice &visee = e.visees.at(*choisie);
  const std::string nom = f.TexteGeste.legende + ", " + NomDAstre(bureau, visee.astre);
  RetientGeste(bureau, nom, [&] {
    const Donnees &d = bureau.donnees;
    VerseVisee(bureau, SaisieDe(e, visee, LitPanneau(d).fraction), d.Check3.valeur);
  });
  Avise(bureau, nom + "   " + f.TexteHorsRegistre.legende);
}

void Point_Change(Bureau &bureau, int /*indice*/) {
  LitPointExercice(bureau.fenetreExercice);
  GardeNotesExercice(bureau);
  bureau.exercice.aMontrer = true;
}

void Corrige_Click(Bureau &bureau, int /*indice*/) {
  FenetreExercice &f = bureau.fenetreExercice;
  const auto &enCours = bureau.exercice.enCours;
  if (!enCours || enCours->exercice.visees.empty()) {
    Avise(bureau, f.TexteSansExercice.legende);
    return;
  }
  const auto point = LitPointExercice(f);
  if (const std::string faute = PremiereFaute({&f.Text3[0], &f.Text3[1]}); !faute.empty()) {
    Avise(bureau, faute); // a slip in the fix asks for no truth
    ViseFaute(bureau.focus, {&f.Text3[0], &f.Text3[1]});
    return;
  }
  const bool connue = bureau.exercice.correction.has_value();
  if (point || connue ||
      bureau.ports.boite(
          {.texte = f.TexteSansPoint.legende, .question = true, .nonParDefaut = true, .fenetre = kFenetreExercice})) {
    JugeExercice(bureau, point);
    GardeNotesExercice(bureau);
  }
}

void Ferme_Click(Bureau &bureau, int /*indice*/) {
  OublieFautes(Liste(bureau.fenetreExercice));
  bureau.fenetreExercice.cadre.visible = false;
  bureau.premierPlan = kFenetreDonnees;
}

} // namespace exercice
} // namespace velmaris
