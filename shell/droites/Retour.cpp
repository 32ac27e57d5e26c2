#include "shell/droites/Retour.hpp"

#include "foundations/Erreur.hpp"
#include "shell/bureau/Avis.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/bureau/Valeurs.hpp"
#include "shell/droites/Droites.hpp"
#include "shell/droites/MemoireDroites.hpp"
#include "shell/droites/ModesDroite.hpp"
#include "shell/visee/Annulation.hpp"
#include "shell/visee/EtatPanneau.hpp"
#include "shell/visee/ReduitVisee.hpp"

#include <set>
#include <utility>

namespace velmaris {
namespace {

/// A step back: from what a gesture had left to what was before it, in a program that is now in a third state.
struct Chemin {
  const EtatRevocable &de, &vers, &present;
};

/// Labels of a line whose keys were put back: what the store doesn't name is as it was before anything was stored.
void RemetLegendes(Donnees &d, int ligne) {
  const auto i = static_cast<std::size_t>(ligne);
  d.Droite.at(i).infobulle = ToucheDroite(ligne);
  d.Ldate[i].legende.clear();
  d.LHeure[i].legende.clear();
}

/// The stored lines that the gesture had changed, in one transaction. An absent key reads as an empty one, and stays
/// absent.
void RemetEnregistrees(Bureau &bureau, const Chemin &c) {
  bool change = false;
  const auto ecrit = [&](std::size_t i) {
    const std::vector<CleValeur> &avant = c.vers.enregistrees.at(i);
    const std::vector<CleValeur> &present = c.present.enregistrees.at(i);
    for (std::size_t k = 0; k < avant.size(); ++k) {
      if (!avant[k].valeur.empty() || !present[k].valeur.empty()) {
        bureau.valeurs->SaveSetting(kApplication, kSection, avant[k].cle, avant[k].valeur);
      }
    }
    RemetLegendes(bureau.donnees, static_cast<int>(i));
    change = true;
  };
  bureau.valeurs->Ensemble([&] {
    for (std::size_t i = 0; i < c.vers.enregistrees.size(); ++i) {
      if (c.de.enregistrees.at(i) != c.vers.enregistrees.at(i)) {
        ecrit(i);
      }
    }
  });
  if (change) {
    SignaleMagasin(bureau);
    MajListeDroites(bureau);
  }
}

void RemetRangee(Impression &page, std::size_t r, const RangeeImprimee &rangee) {
  page.Frame4.at(r).visible = rangee.visible;
  page.Frame4[r].legende = rangee.textes[0];
  page.Label32[r].legende = rangee.textes[1];
  page.Label33[r].legende = rangee.textes[2];
  page.Label34[r].legende = rangee.textes[3];
  page.Label35[r].legende = rangee.textes[4];
  page.Label36[r].legende = rangee.textes[5];
}

/// The sheet with its picture. Where zoom or grid were turned since, it is drawn by those of now, as they draw it.
void RemetTrace(Bureau &bureau, const EtatTrace &trace) {
  const std::int16_t zoom = bureau.feuille.Zoom;
  const std::int16_t grille = bureau.feuille.Grille;
  const bool autreVue = zoom != trace.feuille.Zoom || grille != trace.feuille.Grille;
  Efface(bureau.image1);
  bureau.image1.traces = trace.traces;
  bureau.image1.etiquettes = trace.etiquettes;
  bureau.image1.plumeLevee = true;
  bureau.feuille = trace.feuille;
  bureau.feuille.Zoom = zoom;
  bureau.feuille.Grille = grille;
  for (std::size_t i = 0; i < trace.droites.size(); ++i) {
    MarqueDroite(bureau.donnees, i, trace.droites[i]);
  }
  if (autreVue && trace.feuille.OrigineFeuille != kSansFeuille) {
    RetraceDroites(bureau);
  }
  for (std::size_t i = 0; i < trace.rangees.size(); ++i) {
    RemetRangee(bureau.impression, i, trace.rangees[i]);
  }
  MontreTitresFeuille(bureau);
  if (trace.carte) {
    Declenche(bureau, bureau.donnees.Command17, Evenement::Clic);
  }
}

/// The controls that the gesture had changed as they were before it, all others as they are. Options that exclude each
/// other go together.
std::vector<EtatControle> ControlesVoulus(Donnees &d, const Chemin &c) {
  std::vector<EtatControle> voulus = c.present.controles;
  std::set<int> groupes;
  for (std::size_t i = 0; i < voulus.size(); ++i) {
    if (c.de.controles[i] != c.vers.controles[i]) {
      voulus[i] = c.vers.controles[i];
      groupes.insert(Cherche(d, voulus[i].nom, voulus[i].indice)->groupe);
    }
  }
  groupes.erase(0);
  for (std::size_t i = 0; i < voulus.size(); ++i) {
    if (groupes.contains(Cherche(d, voulus[i].nom, voulus[i].indice)->groupe)) {
      voulus[i] = c.vers.controles[i];
    }
  }
  return voulus;
}

/// Whether the modes of the four lines differ between two states of the controls.
bool AutreMode(const std::vector<EtatControle> &a, const std::vector<EtatControle> &b) {
  return !std::equal(a.begin(), a.end(), b.begin(), b.end(),
                     [](const EtatControle &x, const EtatControle &y) { return x.nom != "Option1" || x == y; });
}

template <class Etat> const Etat &Voulu(const Chemin &c, Etat EtatRevocable::*partie) {
  return c.de.*partie == c.vers.*partie ? c.present.*partie : c.vers.*partie;
}

void Remonte(Bureau &bureau, const Chemin &c) {
  Donnees &d = bureau.donnees;
  RemetEnregistrees(bureau, c);
  bureau.transports = Voulu(c, &EtatRevocable::transports);
  if (c.de.trace != c.vers.trace) {
    RemetTrace(bureau, c.vers.trace);
  }
  const std::vector<EtatControle> voulus = ControlesVoulus(d, c);
  const bool modeRevenu = AutreMode(voulus, c.present.controles);
  RemetControles(bureau, voulus);
  if (modeRevenu) {
    DesarmeMode(bureau);
  }
  RemetResultat(bureau, Voulu(c, &EtatRevocable::resultat));
  const auto &estimee = Voulu(c, &EtatRevocable::estimee);
  d.LabLatEst.legende = estimee[0];
  d.LabLonEst.legende = estimee[1];
  d.Option1[4].actif = !estimee[0].empty();
}

/// Takes the latest step of a list back, and enters it in the other one.
void Revient(Bureau &bureau, std::deque<PasRevocable> &liste, std::deque<PasRevocable> &autre, const Controle &dit,
             const Controle &rien) {
  if (liste.empty()) {
    Avise(bureau, rien.legende);
    return;
  }
  PasRevocable pas = std::move(liste.back());
  liste.pop_back();
  EtatRevocable present = PriseEtat(bureau);
  Remonte(bureau, {pas.apres, pas.avant, present});
  autre.push_back({pas.nom, std::move(present), PriseEtat(bureau)});
  Avise(bureau, dit.legende + pas.nom);
}

} // namespace

void PU_Annule_Click(Bureau &bureau, int /*indice*/) {
  Annulations &a = bureau.annulations;
  Revient(bureau, a.faits, a.defaits, bureau.etat.TexteAnnule, bureau.etat.TexteRienAnnuler);
}

void PU_Retablit_Click(Bureau &bureau, int /*indice*/) {
  Annulations &a = bureau.annulations;
  Revient(bureau, a.defaits, a.faits, bureau.etat.TexteRetabli, bureau.etat.TexteRienRetablir);
}

} // namespace velmaris
