#include "shell/visee/EtatPanneau.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/visee/Astres.hpp"
#include "shell/visee/Saisie.hpp"

#include <algorithm>
#include <string_view>
#include <utility>

namespace velmaris {
namespace {

std::string Booleen(bool vrai) { return vrai ? "1" : "0"; }

/// The part of a text up to a blank, and what follows it.
std::pair<std::string_view, std::string_view> Coupe(std::string_view texte) {
  const std::size_t blanc = texte.find(' ');
  return blanc == std::string_view::npos ? std::pair(texte, std::string_view())
                                         : std::pair(texte.substr(0, blanc), texte.substr(blanc + 1));
}

int Entier(std::string_view texte) {
  int entier = 0;
  Passe([&] { entier = Entier16(Val(texte)); });
  return entier;
}

void PoseLigne(Controle &liste, std::string_view valeur) {
  const auto [rang, texte] = Coupe(valeur);
  liste.rang = std::clamp(Entier(rang), -1, static_cast<int>(liste.liste.size()) - 1);
  liste.texte = texte;
}

void PoseCadre(Controle &cadre, std::string_view valeur) {
  const auto [visible, place] = Coupe(valeur);
  const auto [gauche, haut] = Coupe(place);
  cadre.visible = visible == "1";
  cadre.place.gauche = Val(gauche);
  cadre.place.haut = Val(haut);
}

/// Gives a control a value, and nothing runs.
void PoseValeurTenue(Controle &c, const std::string &valeur) {
  switch (c.genre) {
  case Genre::Champ:
    c.texte = c.lectureSeule ? c.texte : valeur;
    break;
  case Genre::Option:
    c.choisi = valeur == "1";
    break;
  case Genre::Case:
    c.valeur = std::clamp(Entier(valeur), 0, 2);
    break;
  case Genre::Curseur:
    c.valeur = std::clamp(static_cast<int>(Val(valeur)), c.minimum, c.maximum);
    break;
  case Genre::Liste:
    PoseLigne(c, valeur);
    break;
  case Genre::Cadre:
    if (c.titre) {
      PoseCadre(c, valeur);
    }
    break;
  default:
    break;
  }
}

} // namespace

std::optional<std::string> ValeurTenue(const Controle &c) {
  switch (c.genre) {
  case Genre::Champ:
    return c.lectureSeule ? std::nullopt : std::optional(c.texte);
  case Genre::Option:
    return Booleen(c.choisi);
  case Genre::Case:
  case Genre::Curseur:
    return std::to_string(c.valeur);
  case Genre::Liste:
    return std::to_string(c.rang) + " " + c.texte;
  case Genre::Cadre:
    return c.titre ? std::optional(Booleen(c.visible) + " " + TexteGeneral(c.place.gauche) + " " +
                                   TexteGeneral(c.place.haut))
                   : std::nullopt;
  default:
    return std::nullopt;
  }
}

void VerseVisee(Bureau &bureau, const Observation &o, int visibles) {
  Donnees &d = bureau.donnees;
  const int corps = static_cast<int>(o.corps);
  PoseChoix(bureau, d.Option5, static_cast<int>(o.horizon));
  Option5_Relache(bureau, -1);
  PoseChoix(bureau, d.Option7, corps);
  SelAstre(bureau, corps);
  PoseChoix(bureau, d.Option6, static_cast<int>(o.bord));
  Passe([&] { PoseListeDuCorps(bureau, corps, o.corps == Corps::Etoiles ? o.etoile : o.planete); });
  PoseChoix(bureau, d.Option4, static_cast<int>(o.fraction));
  PoseChamps(bureau, o);
  if (o.corps == Corps::Etoiles) {
    d.Check3.valeur = visibles;
    Check3_Click(bureau, -1); // the stars that are visible by the fields as they are now
  }
}

bool EstSuiveur(const Donnees &donnees, const Controle &controle) { return &controle == &donnees.Combo8; }

std::vector<EtatControle> PriseControles(Donnees &donnees) {
  std::vector<EtatControle> etats;
  PourChaque(donnees, [&](const LigneDonnees &, const Controle &c) {
    if (std::optional<std::string> valeur = EstSuiveur(donnees, c) ? std::nullopt : ValeurTenue(c)) {
      etats.push_back({c.nom, c.indice, std::move(*valeur)});
    }
  });
  return etats;
}

void RemetControles(Bureau &bureau, const std::vector<EtatControle> &controles) {
  Donnees &d = bureau.donnees;
  Donnees voulues = d;
  for (const EtatControle &e : controles) {
    if (Controle *c = Cherche(voulues, e.nom, e.indice)) {
      PoseValeurTenue(*c, e.valeur);
    }
  }
  const Observation visee = LitPanneau(voulues);
  if (visee != LitPanneau(d) || voulues.Check3.valeur != d.Check3.valeur) {
    VerseVisee(bureau, visee, voulues.Check3.valeur);
  }
  for (const EtatControle &e : controles) {
    if (Controle *c = Cherche(d, e.nom, e.indice); c != nullptr && !EstSuiveur(d, *c)) {
      PoseValeurTenue(*c, e.valeur);
    }
  }
  d.Combo5.actif = d.Option1[1].choisi;
}

} // namespace velmaris
