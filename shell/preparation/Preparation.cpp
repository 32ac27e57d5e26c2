#include "shell/preparation/Preparation.hpp"

#include "foundations/TexteNombre.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/complements/Mots.hpp"
#include "shell/complements/Saisies.hpp"
#include "shell/preparation/CalculPlan.hpp"
#include "shell/preparation/DessinPlan.hpp"
#include "shell/preparation/EvenementsPlan.hpp"
#include "shell/preparation/LecturePlan.hpp"
#include "shell/preparation/MotsPlan.hpp"
#include "shell/preparation/PagePlan.hpp"
#include "shell/preparation/TableauxPlan.hpp"
#include "shell/visee/Annulation.hpp"
#include "shell/visee/Saisie.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string>
#include <utility>

namespace velmaris {
namespace {

std::array<Controle *, kPagesPlan> Pages(Preparation &f) {
  return {&f.PageCiel, &f.PageJour, &f.PageJeux, &f.PageCompas, &f.PageInconnu};
}

std::array<std::string, 4> Cardinaux(const Preparation &f) {
  std::array<std::string, 4> lettres;
  std::transform(f.MotCardinal.begin(), f.MotCardinal.end(), lettres.begin(),
                 [](const Controle &mot) { return mot.legende; });
  return lettres;
}

/// Where a body stands in the sky that is looked at.
std::optional<std::size_t> RangChoisi(const PlanOuvert &p) {
  return p.choisi && p.ciel ? PlaceDansLeCiel(*p.ciel, *p.choisi) : std::nullopt;
}

CarteDuPlan CarteVoulue(const Bureau &bureau) {
  const Preparation &f = bureau.preparation;
  const PlanOuvert &p = bureau.plan;
  const auto &jambes = p.demande.navire.route.jambes;
  CarteDuPlan carte;
  carte.astres = p.montres;
  carte.choisi = RangChoisi(p);
  carte.haut = f.Check1.valeur == 1 && !jambes.empty() ? jambes.front().cap : 0;
  carte.cardinaux = Cardinaux(f);
  carte.largeur = [&bureau](const std::string &mots, const Police &police) {
    return bureau.ports.largeurTexte(mots, police.taille, police.gras);
  };
  carte.nom = [&bureau](const Astre &astre) { return NomDAstre(bureau, astre); };
  return carte;
}

/// A surface as large as the control that shows it.
/// @return whether it was another size
bool Etend(Surface &surface, const Controle &c) {
  const bool autre = surface.largeur != c.place.largeur || surface.hauteur != c.place.hauteur;
  surface.largeur = c.place.largeur;
  surface.hauteur = c.place.hauteur;
  return autre;
}

void Esquisse(Bureau &bureau) {
  Preparation &f = bureau.preparation;
  const PlanOuvert &p = bureau.plan;
  std::vector<const JeuAstres *> jeux;
  for (const auto &memeNombre : p.jeux) {
    for (const JeuAstres &jeu : memeNombre) {
      jeux.push_back(&jeu);
    }
  }
  const int rang = std::max(0, f.Jeux.tableau.courante);
  std::vector<DirectionEsquissee> directions;
  if (static_cast<std::size_t>(rang) < jeux.size()) {
    for (const std::size_t astre : jeux[static_cast<std::size_t>(rang)]->astres) {
      const AstreDuPlan &vu = p.vue.astres.at(astre);
      directions.push_back({vu.azimut, NomDAstre(bureau, vu.astre)});
    }
  }
  DessineEsquisse(f.dessinEsquisse, directions, CarteVoulue(bureau));
}

/// The row of the chosen body is the current one.
void SuitChoisi(Bureau &bureau) {
  const PlanOuvert &p = bureau.plan;
  const auto rang = RangChoisi(p);
  const auto ligne = rang ? std::find(p.montres.begin(), p.montres.end(), *rang) : p.montres.end();
  Tableau &t = bureau.preparation.Astres.tableau;
  if (ligne != p.montres.end()) {
    t.courante = static_cast<int>(ligne - p.montres.begin());
    t.choisies = {static_cast<std::size_t>(t.courante)};
  }
}

void MontreLignes(Bureau &bureau) {
  Preparation &f = bureau.preparation;
  const PlanOuvert &p = bureau.plan;
  f.Label2.legende = MotsFuseau(f, *p.journee);
  f.Label3.legende = MotsInstant(f, p);
  f.Label4.legende = MotsLune(f, p);
  f.Label5.legende = MotsPrises(f, *p.journee);
  const bool jeu = !p.jeux.front().empty();
  f.Label7.legende = jeu ? MotsInstant(f, p) : f.TexteSansJeu.legende;
  f.Label11.legende = p.amplitudes.amplitudes.empty() ? f.TexteSansAmplitude.legende : "";
  const bool donnee = !SansBlancs(f.Text5[0].texte).empty() || !SansBlancs(f.Text5[1].texte).empty();
  const bool refusee = !f.Text5[0].alerte.empty() || !f.Text5[1].alerte.empty();
  f.Label13.legende = !donnee               ? f.TexteDonnez.legende
                      : !p.inconnus.empty() ? MotsInstant(f, p)
                      : refusee             ? PremiereFaute({&f.Text5[0], &f.Text5[1]})
                                            : f.TexteSansInconnu.legende;
  for (std::size_t i = 0; i < f.Mieux.size(); ++i) {
    f.Mieux.at(i).visible = i < p.meilleurs.size();
    f.Mieux.at(i).legende = i < p.meilleurs.size() ? MotsMeilleur(f, p.meilleurs[i]) : "";
  }
}

void MontrePlan(Bureau &bureau) {
  Preparation &f = bureau.preparation;
  MontreLignes(bureau);
  PoseTableauxPlan(bureau);
  SuitChoisi(bureau);
  DessineCarte(f.dessinCarte, bureau.plan.vue, CarteVoulue(bureau));
  Esquisse(bureau);
}

void Montre(Bureau &bureau) {
  Preparation &f = bureau.preparation;
  const PlanOuvert &p = bureau.plan;
  f.cadre.titre = bureau.donnees.PU_Preparation.legende;
  f.Onglets1.liste.clear();
  for (const Controle &mot : f.MotOnglet) {
    f.Onglets1.liste.push_back(mot.legende);
  }
  f.Onglets1.rang = std::max(0, f.Onglets1.rang);
  for (std::size_t i = 0; i < kPagesPlan; ++i) {
    Pages(f).at(i)->visible = std::cmp_equal(i, f.Onglets1.rang);
  }
  if (p.refus) {
    f.LabAvis[0].legende =
        f.TexteSansJour.legende + bureau.fiche.MotRefus.at(static_cast<std::size_t>(*p.refus)).legende;
  } else {
    const std::string faute = PremiereFaute(Liste(f));
    f.LabAvis[0].legende = p.enCalcul ? f.TexteCalcul.legende : faute.empty() ? p.dit : faute;
  }
  if (p.journee && !p.enCalcul) {
    MontrePlan(bureau);
  }
}

/// Puts a body into the panel, as one gesture.
void MetAuPanneau(Bureau &bureau, std::size_t rang) {
  const Preparation &f = bureau.preparation;
  const AstreDuPlan &vu = bureau.plan.vue.astres.at(rang);
  const Astre astre = vu.astre;
  if (astre.genre == GenreAstre::Etoile && astre.rang > kNombreEtoiles) {
    DitPlan(bureau, f.MotRaison.at(static_cast<std::size_t>(RaisonPale::LigneLoin)).legende);
    return;
  }
  const std::string nom = NomDAstre(bureau, astre);
  RetientGeste(bureau, f.TexteGeste.legende + ", " + nom, [&] { PoseAstre(bureau, astre); });
  const std::string lecture = vu.prereglage ? "   " + TexteAngleSigne(*vu.prereglage) : "";
  DitPlan(bureau, nom + lecture + "   " + TexteDirection(vu.azimut));
}

constexpr std::string_view kCle = "Plan";

/// The fields that a plan is kept by.
std::array<Controle *, 8> ChampsGardes(Preparation &f) {
  return {&f.Text1[0], &f.Text1[1], &f.Text1[2], &f.Text1[3], &f.Text2[0], &f.Text2[1], &f.Text2[2], &f.Text2[3]};
}

void GardePlan(Bureau &bureau) {
  std::string texte;
  for (const Controle *champ : ChampsGardes(bureau.preparation)) {
    texte += champ->texte + "\n";
  }
  EcritReglage(bureau, kCle, texte);
}

/// The kept plan in the fields, while its day isn't over.
bool ReprendPlan(Bureau &bureau) {
  Preparation &f = bureau.preparation;
  std::string texte = LitReglage(bureau, kCle);
  for (Controle *champ : ChampsGardes(f)) {
    const std::size_t fin = texte.find('\n');
    if (fin == std::string::npos) {
      return false;
    }
    champ->texte = texte.substr(0, fin);
    texte.erase(0, fin + 1);
  }
  const auto jour = LitMomentTape(f.Text1[0].texte, "23:59");
  const TempsSysteme t = bureau.horloge.source();
  return jour && SecondesEntre(UTCDe({t.annee, t.mois, t.jour}), *jour) > 0;
}

} // namespace

void OuvrePreparation_Click(Bureau &bureau, int /*indice*/) {
  Preparation &f = bureau.preparation;
  if (f.Text1[0].texte.empty() && !ReprendPlan(bureau)) {
    ReprendPanneau(bureau);
  }
  f.cadre.visible = true;
  bureau.premierPlan = kFenetrePreparation;
  bureau.focus = &f.Astres;
  DemandePlanDuJour(bureau);
}

void AccordePreparation(Bureau &bureau) {
  Preparation &f = bureau.preparation;
  if (!f.cadre.visible) {
    return;
  }
  const bool etendue = Etend(f.dessinCarte, f.Carte);
  const bool esquisse = Etend(f.dessinEsquisse, f.Esquisse);
  const bool langue = std::exchange(bureau.plan.langue, bureau.FichierLangue) != bureau.FichierLangue;
  if (langue) { // what was said is said anew where it still holds
    OublieFautes(Liste(f));
    DemandePlanDuJour(bureau);
  }
  if (std::exchange(bureau.plan.aMontrer, false) || langue || etendue || esquisse) {
    Montre(bureau);
  }
}

namespace preparation {

void Champ_Change(Bureau &bureau, int /*indice*/) { DemandePlanDuJour(bureau); }

void Command1_Click(Bureau &bureau, int indice) {
  indice == 0 ? ReprendPanneau(bureau) : ReprendPresent(bureau);
  DemandePlanDuJour(bureau);
}

void Onglets1_Click(Bureau &bureau, int /*indice*/) {
  OublieFautes(Liste(bureau.preparation));
  DemandePlanDuJour(bureau);
}

void HScroll1_Change(Bureau &bureau, int /*indice*/) {
  Preparation &f = bureau.preparation;
  if (bureau.plan.journee) {
    const int avant =
        static_cast<int>(std::lround(SecondesEntre(bureau.plan.journee->debut, bureau.plan.instant) / 60));
    f.HScroll1.valeur = Accroche(MinutesDesEvenements(*bureau.plan.journee), avant, f.HScroll1.valeur);
  }
  RegardeInstant(bureau);
}

void Pas_Click(Bureau &bureau, int indice) {
  constexpr std::array<int, 6> kPas = {0, -10, -1, 1, 10, 0};
  Controle &curseur = bureau.preparation.HScroll1;
  if (!bureau.plan.journee) {
    return;
  }
  int minute = curseur.valeur + kPas.at(static_cast<std::size_t>(indice));
  const std::vector<int> minutes = MinutesDesEvenements(*bureau.plan.journee);
  if (indice == 0) {
    const auto avant = std::lower_bound(minutes.begin(), minutes.end(), curseur.valeur);
    minute = avant == minutes.begin() ? curseur.minimum : *(avant - 1);
  } else if (indice == 5) {
    const auto apres = std::upper_bound(minutes.begin(), minutes.end(), curseur.valeur);
    minute = apres == minutes.end() ? curseur.maximum : *apres;
  }
  curseur.valeur = std::clamp(minute, curseur.minimum, curseur.maximum);
  RegardeInstant(bureau);
}

void Mieux_Click(Bureau &bureau, int indice) {
  const PlanOuvert &p = bureau.plan;
  if (p.journee && static_cast<std::size_t>(indice) < p.meilleurs.size()) {
    const double minutes = SecondesEntre(p.journee->debut, p.meilleurs[static_cast<std::size_t>(indice)].utc) / 60;
    Controle &curseur = bureau.preparation.HScroll1;
    curseur.valeur = std::clamp(static_cast<int>(std::lround(minutes)), curseur.minimum, curseur.maximum);
    bureau.preparation.Jeux.tableau.courante = kSansLigne;
    RegardeInstant(bureau);
  }
}

void Case_Click(Bureau &bureau, int /*indice*/) { RegardeInstant(bureau); }

void Carte_Presse(Bureau &bureau, int /*indice*/) {
  Preparation &f = bureau.preparation;
  PlanOuvert &p = bureau.plan;
  if (!p.ciel) {
    return;
  }
  if (const auto rang = AstreSous(f.dessinCarte, p.vue, CarteVoulue(bureau), f.Carte.pointe)) {
    p.choisi = p.vue.astres.at(*rang).astre;
    p.aMontrer = true;
  }
}

void Astres_Click(Bureau &bureau, int /*indice*/) {
  PlanOuvert &p = bureau.plan;
  const int ligne = bureau.preparation.Astres.tableau.courante;
  if (ligne >= 0 && static_cast<std::size_t>(ligne) < p.montres.size()) {
    p.choisi = p.vue.astres.at(p.montres[static_cast<std::size_t>(ligne)]).astre;
    p.aMontrer = true;
  }
}

void Prend_Click(Bureau &bureau, int /*indice*/) {
  if (const auto rang = RangChoisi(bureau.plan)) {
    MetAuPanneau(bureau, *rang);
  } else {
    DitPlan(bureau, bureau.preparation.TexteSansChoix.legende);
  }
}

void Inconnus_Valide(Bureau &bureau, int /*indice*/) {
  const PlanOuvert &p = bureau.plan;
  const int ligne = bureau.preparation.Inconnus.tableau.courante;
  if (ligne >= 0 && static_cast<std::size_t>(ligne) < p.inconnus.size()) {
    MetAuPanneau(bureau, p.inconnus[static_cast<std::size_t>(ligne)].rang);
  }
}

void Jeux_Click(Bureau &bureau, int /*indice*/) { bureau.plan.aMontrer = true; }

void Compas_Change(Bureau &bureau, int /*indice*/) { CalculeCompas(bureau); }

void Inconnu_Change(Bureau &bureau, int /*indice*/) { CalculeInconnu(bureau); }

void Command2_Click(Bureau &bureau, int indice) {
  if (indice == 1) {
    OublieFautes(Liste(bureau.preparation));
    bureau.plan.dit.clear();
    bureau.preparation.cadre.visible = false;
    bureau.premierPlan = kFenetreDonnees;
  } else if (bureau.plan.journee) {
    GardePlan(bureau);
    EmportePlan(bureau, CarteVoulue(bureau));
  }
}

} // namespace preparation
} // namespace velmaris
