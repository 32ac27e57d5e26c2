#include "shell/carte/Souris.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/carte/Carte.hpp"
#include "shell/droites/Droites.hpp"
#include "shell/droites/FichierVisee.hpp"
#include "shell/ecran/Modules.hpp"
#include "shell/ecran/Statut.hpp"

#include <filesystem>
#include <system_error>

namespace velmaris {
namespace {

constexpr double kHautCoord = 80.0; ///< of the coordinate label above the pointer

bool EnRoute(const SourisCarte &souris) { return souris.DebutX != 0.0F; }

Point Debut(const SourisCarte &souris) { return {souris.DebutX, souris.DebutY}; }
Point Fin(const SourisCarte &souris) { return {souris.FinX, souris.FinY}; }

/// The check marks of the menu; the rescued sight can be opened while there is one.
void MajMarques(Bureau &bureau) {
  Donnees &d = bureau.donnees;
  const auto marque = [](Controle &entree, bool vrai) { entree.valeur = vrai ? 1 : 0; };
  marque(d.PU_Distance, bureau.souris.ModeDistance != 0);
  marque(d.PU_Coord, bureau.souris.AfficheCoord != 0);
  marque(d.PU_DM, d.Frame10.visible);
  marque(d.PU_D, d.Frame7.visible);
  marque(d.PU_S, d.Frame8.visible);
  marque(d.PU_C, d.FOptionCarte.visible);
  marque(d.PU_E, d.Frame4.visible);
  marque(d.PU_Caps, d.Frame2.visible);
  d.PU_CopiePoint.actif = AUneEchelle(bureau.feuille);
  std::error_code refus;
  d.PU_Secours.actif = std::filesystem::exists(FichierSecours(bureau), refus);
  bureau.donnees.PU_Annule.actif = !bureau.annulations.faits.empty();
  bureau.donnees.PU_Retablit.actif = !bureau.annulations.defaits.empty();
}

/// A point of a route: the first one starts it, each further one ends a leg and starts the next.
void PointDeRoute(Bureau &bureau, double x, double y) {
  SourisCarte &souris = bureau.souris;
  if (bureau.feuille.EchelleY == 0.0F) {
    return;
  }
  if (EnRoute(souris)) {
    TraceBranche(souris, bureau.image1);
    souris.DebutX = souris.FinX;
    souris.DebutY = souris.FinY;
    return;
  }
  souris.DebutX = static_cast<float>(x);
  souris.DebutY = static_cast<float>(y);
  TraceCroixBranche(souris, bureau.image1);
}

/// Before a first drawing there is no scale, and no place to tell: the label then keeps its text.
void SuitCoordonnees(Bureau &bureau, Point pointeur) {
  Controle &label = bureau.donnees.LabC;
  const double W = bureau.image1.largeur;
  if (!(W > 0.0)) {
    return;
  }
  label.place.gauche = pointeur.x < W / 2 ? pointeur.x + W / 30 : pointeur.x - W / 30 - label.place.largeur;
  label.place.haut = pointeur.y - kHautCoord;
  Passe([&] { label.legende = TexteCoordonnees(PlaceSousPoint(bureau.feuille, pointeur)); });
}

/// A figure that can't be formed, for want of a scale or past 16 bits, stays as it was.
void MesureBranche(Bureau &bureau, double x, double y) {
  SourisCarte &souris = bureau.souris;
  const float echelle = bureau.feuille.EchelleY;
  souris.FinX = static_cast<float>(x);
  souris.FinY = static_cast<float>(y);
  Passe([&] { souris.DistanceMilles = DistanceBranche(Debut(souris), Fin(souris), echelle); });
  bureau.donnees.Label56.legende = std::to_string(souris.DistanceMilles);
  Passe([&] { souris.CapDegres = CapBranche(Debut(souris), Fin(souris), echelle); });
  bureau.donnees.Label17.legende = std::to_string(souris.CapDegres);
}

bool Mesure(const Bureau &bureau) {
  return bureau.souris.ModeDistance != 0 && bureau.donnees.Frame1.visible && EnRoute(bureau.souris);
}

/// The leg just ended joins the list and the total.
void AjouteBranche(Bureau &bureau) {
  Donnees &d = bureau.donnees;
  d.Label15.legende = TexteGeneral(Val(d.Label15.legende) + Val(d.Label56.legende));
  if (d.Label56.legende.empty()) {
    return;
  }
  d.List1.liste.push_back(Format(bureau.souris.DistanceMilles, " 000") + "  :  " + Format(d.Label15.legende, "000") +
                          "  :  " + Format(bureau.souris.CapDegres, "000") + " °");
  TraceCroixBranche(bureau.souris, bureau.image1);
}

} // namespace

void Image1_MouseDown(Bureau &bureau, BoutonSouris bouton, double x, double y) {
  if (bouton == BoutonSouris::Droit) {
    if (bureau.souris.ModeDistance != 0) {
      PointDeRoute(bureau, x, y);
    } else {
      Avise(bureau, bureau.etat.TexteSansDistance.legende);
    }
    return;
  }
  if (bouton != BoutonSouris::Gauche || bureau.ModuleDeplace != 0) {
    return;
  }
  bureau.souris.ClicX = static_cast<float>(x);
  bureau.souris.ClicY = static_cast<float>(y);
  MajMarques(bureau);
  bureau.menu = &bureau.donnees.PopUp;
  bureau.menuSous = nullptr;
}

void Image1_MouseMove(Bureau &bureau, bool boutonGauche, double x, double y) {
  if (boutonGauche) {
    DeplaceModule(bureau, x, y);
  }
  SuitPosition(bureau, {x, y});
  if (bureau.souris.AfficheCoord != 0) {
    SuitCoordonnees(bureau, {x, y});
  }
  if (Mesure(bureau)) {
    MesureBranche(bureau, x, y);
  }
}

void Image1_MouseUp(Bureau &bureau, BoutonSouris bouton) {
  if (bouton == BoutonSouris::Droit && bureau.souris.ModeDistance != 0) {
    AjouteBranche(bureau);
  }
  bureau.donnees.Label62.visible = false;
}

bool SuitPointeur(const Bureau &bureau) {
  return bureau.ModuleDeplace != 0 || bureau.souris.AfficheCoord != 0 || Mesure(bureau) || AUneEchelle(bureau.feuille);
}

std::optional<Elastique> BrancheEnCours(const Bureau &bureau) {
  if (!Mesure(bureau) || bureau.donnees.Label56.legende.empty()) {
    return std::nullopt;
  }
  return Elastique{Debut(bureau.souris), Fin(bureau.souris)};
}

void Command19_Click(Bureau &bureau, int /*indice*/) {
  Donnees &d = bureau.donnees;
  for (Controle *figure : {&d.Label56, &d.Label15, &d.Label17}) {
    figure->legende.clear();
  }
  d.List1.liste.clear();
  d.List1.rang = -1;
  // Or no second route could be begun.
  bureau.souris.DebutX = 0.0F;
  bureau.souris.DebutY = 0.0F;
  if (d.Check2.valeur == 1) {
    EffaceBranches(bureau.souris, bureau.image1, DessinsCarte(bureau));
    bureau.image1.aires.clear(); // the chart's, which goes with them
  }
  RetraceCarte(bureau);
}

void PU_Distance_Click(Bureau &bureau, int /*indice*/) {
  const bool allume = bureau.souris.ModeDistance == 0;
  PoseDistance(bureau, allume);
  bureau.donnees.Frame1.visible = allume;
}

void PU_Coord_Click(Bureau &bureau, int /*indice*/) {
  const bool allume = bureau.souris.AfficheCoord == 0;
  bureau.souris.AfficheCoord = allume ? -1 : 0;
  bureau.donnees.PU_Coord.valeur = allume ? 1 : 0;
  bureau.donnees.LabC.visible = allume;
}

} // namespace velmaris
