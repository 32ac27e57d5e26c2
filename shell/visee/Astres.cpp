#include "shell/visee/Astres.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/complements/LignesLoin.hpp"
#include "shell/visee/PanneauDirect.hpp"
#include "shell/visee/Saisie.hpp"
#include "sights/ConseilLune.hpp"
#include "sights/Reduction.hpp"

#include <algorithm>
#include <utility>

namespace velmaris {
namespace {

void EffaceAccent(Donnees &d) {
  for (Controle &bord : d.Option6) {
    bord.accent = false;
  }
}

void MontreEtoiles(Bureau &bureau) {
  Donnees &d = bureau.donnees;
  d.Check3.visible = true;
  PoseValeur(bureau, d.Check3, 1);
  MajListeVisibles(bureau);
  d.Combo8.visible = true;
}

/// The letter and the constellation of the chosen star.
void MontreBayer(Bureau &bureau) {
  Donnees &d = bureau.donnees;
  const int rang = d.Combo6.rang;
  if (rang >= 0) {
    const std::string_view bayer = bureau.etoiles.EtoileBayer.at(static_cast<std::size_t>(rang) + 1);
    d.Bayer1.legende = bayer.substr(0, 1);
    d.Bayer2.legende = SansBlancs(bayer.substr(1));
  }
}

/// The short list shows the chosen star too, also when it isn't one of its own.
void SuitEtoileChoisie(Donnees &d) {
  const auto ligne = std::find(d.Combo8.liste.begin(), d.Combo8.liste.end(), d.Combo6.texte);
  d.Combo8.rang = ligne == d.Combo8.liste.end() ? -1 : static_cast<int>(ligne - d.Combo8.liste.begin());
  d.Combo8.texte = d.Combo6.texte;
}

} // namespace

void PermetBords(Donnees &d, bool permis) {
  d.Option6[0].actif = permis;
  d.Option6[1].actif = permis;
}

void SelAstre(Bureau &bureau, int indice) {
  Donnees &d = bureau.donnees;
  EffaceAccent(d);
  PermetBords(d, true);
  for (Controle *c : {&d.Check3, &d.Combo6, &d.Combo7, &d.Combo8}) {
    c->visible = false;
  }
  d.Bayer1.legende.clear();
  d.Bayer2.legende.clear();
  for (std::size_t i = 0; i < d.ImAstre.size(); ++i) {
    d.ImAstre[i].visible = std::cmp_equal(i, indice);
  }
  switch (static_cast<Corps>(indice)) {
  case Corps::Soleil:
    PoseOption(bureau, d.Option6[1]);
    break;
  case Corps::Lune:
    ConseilBordLune(bureau);
    break;
  case Corps::Planetes:
    d.Combo7.visible = true;
    PoseOption(bureau, d.Option6[2]);
    PermetBords(d, false);
    break;
  case Corps::Etoiles:
    PoseOption(bureau, d.Option6[2]);
    PermetBords(d, false);
    MontreEtoiles(bureau);
    break;
  case Corps::Aucun:
  default:
    break;
  }
}

void Check3_Click(Bureau &bureau, int /*indice*/) {
  Donnees &d = bureau.donnees;
  if (d.Check3.valeur == 1) {
    MajListeVisibles(bureau);
  }
  d.Combo8.visible = d.Check3.valeur == 1;
  d.Combo6.visible = !d.Combo8.visible;
}

void Combo6_Click(Bureau &bureau, int /*indice*/) {
  SuitEtoileChoisie(bureau.donnees);
  MontreBayer(bureau);
  AviseLigneLoin(bureau, static_cast<std::size_t>(bureau.donnees.Combo6.rang) + 1);
  if (bureau.donnees.Frame8.visible) {
    PositionEtoileLive(bureau, true);
  }
}

void Combo8_Click(Bureau &bureau, int /*indice*/) {
  Donnees &d = bureau.donnees;
  const auto nom = std::find(d.Combo6.liste.begin(), d.Combo6.liste.end(), d.Combo8.texte);
  if (nom != d.Combo6.liste.end()) {
    PoseRang(bureau, d.Combo6, static_cast<int>(nom - d.Combo6.liste.begin()), kNombreEtoiles);
  }
}

void Combo7_Click(Bureau &bureau, int /*indice*/) { PositionPlaneteLive(bureau); }

void ConseilBordLune(Bureau &bureau) {
  Donnees &d = bureau.donnees;
  if (!d.Option7[1].choisi) {
    return;
  }
  EffaceAccent(d);
  const Bord eclaire = BordEclaire(LitPanneau(d), bureau.visee, bureau.lune, bureau.messages);
  d.Option6[static_cast<std::size_t>(eclaire)].accent = true;
}

void MajListeVisibles(Bureau &bureau) {
  Controle &liste = bureau.donnees.Combo8;
  liste.liste.clear();
  const Observation o = LitPanneau(bureau.donnees);
  Passe([&] { LitEstime(o, bureau.visee); });
  Passe([&] {
    liste.liste = ListeVisibles(bureau.etoiles, {o.jour, o.mois, o.annee}, DateDeVisee(o), bureau.visee.LatEstimee,
                                bureau.visee.LonEstimee);
  });
  SuitEtoileChoisie(bureau.donnees);
  MarqueListes(bureau);
}

} // namespace velmaris
