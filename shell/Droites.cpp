#include "shell/Droites.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/Evenements.hpp"
#include "shell/Saisie.hpp"
#include "sights/DroiteSOL.hpp"

namespace velmaris {
namespace {

constexpr Couleur kHorsFeuille = 0x800000; ///< a line that is not on the sheet
constexpr std::size_t kAfficher = 2;       ///< the mode that puts a stored line on the sheet

/// The four lines leave the sheet.
void RetireDroites(Donnees &d) {
  for (std::size_t i = 0; i < d.LHeure.size(); ++i) {
    d.LHeure[i].couleur = kHorsFeuille;
    d.Ldate[i].couleur = kHorsFeuille;
  }
}

/// Puts on the screen what the reduction and the sheet have composed.
void MontreResultat(Bureau &bureau) {
  Donnees &d = bureau.donnees;
  const AffichageDroite &a = bureau.affichage;
  d.Affichage_Intercept.legende = a.intercept;
  d.Affichage_Azimuth.legende = a.azimut;
  d.Label14.infobulle = a.infobulle;
  for (std::size_t i = 0; i < a.details.size(); ++i) {
    d.Label70[i].legende = a.details[i];
  }
}

void MontreTitresFeuille(Bureau &bureau) {
  bureau.donnees.LabLon.legende = bureau.feuille.LabLon;
  bureau.donnees.LabLat.legende = bureau.feuille.LabLat;
}

} // namespace

void PremiereDroite(Bureau &bureau) {
  Observation observation = LitPanneau(bureau.donnees);
  NormaliseLecture(observation);
  bureau.visee.HeureDecimale = HeureDesChamps(observation);
  Passe([&] { LitEstime(observation, bureau.visee); });
  if (observation.corps == Corps::Soleil) {
    const ReductionSoleil r = Calcul_DroiteSOL(observation, bureau.visee, bureau.affichage, bureau.messages);
    if (r.faite) {
      bureau.NomAstre = bureau.donnees.Option7[0].legende;
      MontreResultat(bureau);
    }
  }
  PoseReduction(bureau, observation);
  TraceDroites(bureau.feuille, bureau.image1, observation, bureau.visee);
  MontreTitresFeuille(bureau);
  MajHeureListes(bureau);
}

void Command2_Click(Bureau &bureau, int /*indice*/) {
  PremiereDroite(bureau);
  RetireDroites(bureau.donnees);
}

void RetraceDroites(Bureau &bureau) {
  bureau.feuille.OrigineFeuille = kSansFeuille;
  PoseOption(bureau, bureau.donnees.Option1[kAfficher]);
  PremiereDroite(bureau);
}

void MajHeureListes(Bureau &bureau) {
  PoseTexte(bureau, bureau.donnees.Combo1, Format(bureau.donnees.Text3.texte, "00"));
  PoseTexte(bureau, bureau.donnees.Combo2, Format(bureau.donnees.Text4.texte, "00"));
}

void MajListeDroites(Bureau &bureau) {
  Donnees &d = bureau.donnees;
  for (std::size_t i = 0; i < d.Droite.size(); ++i) {
    const auto lit = [&](const char *cle) { return LitReglage(bureau, cle + std::to_string(i) + ")"); };
    if (const std::string jour = lit("Td0("); !jour.empty()) {
      d.Ldate[i].legende = jour + " / " + lit("Td1(") + " / " + lit("Td2(");
    }
    if (const std::string heure = lit("T3("); !heure.empty()) {
      d.LHeure[i].legende = heure + ":" + lit("T4(") + ":" + lit("T5(");
    }
    if (const std::string nom = lit("Nom("); !nom.empty()) {
      d.Droite[i].infobulle = nom;
    }
  }
}

void Command6_Click(Bureau &bureau, int /*indice*/) {
  Efface(bureau.image1);
  bureau.feuille.LabLon.clear();
  bureau.feuille.LabLat.clear();
  MontreTitresFeuille(bureau);
  RetireDroites(bureau.donnees);
  bureau.feuille.OrigineFeuille = kSansFeuille;
  PoseOption(bureau, bureau.donnees.Option1[kAfficher]);
}

void Grille_Click(Bureau &bureau, int /*indice*/) {
  Donnees &d = bureau.donnees;
  const bool sansGrille = bureau.feuille.Grille == 0;
  bureau.feuille.Grille = sansGrille ? 1 : 0;
  d.Command12.visible = !sansGrille;
  d.Command14.visible = sansGrille;
  bureau.focus = sansGrille ? &d.Command14 : &d.Command12;
  RetraceDroites(bureau);
}

void HScroll1_Change(Bureau &bureau, int /*indice*/) {
  bureau.feuille.Zoom = Entier16(bureau.donnees.HScroll1.valeur / 10.0);
  bureau.donnees.Label32.legende = "Zoom : " + std::to_string(bureau.feuille.Zoom);
  RetraceDroites(bureau);
}

} // namespace velmaris
