#include "shell/Donnees.hpp"

namespace velmaris {

std::span<const std::span<const LigneDonnees>> TableDonnees() {
  static const std::array<std::span<const LigneDonnees>, 4> morceaux = {TableBarre(), TableVisee(), TableDroites(),
                                                                        TableModules()};
  return morceaux;
}

void InitialiseDonnees(Donnees &donnees) {
  PourChaque(donnees, [](const LigneDonnees &ligne, Controle &c) {
    c = Controle{};
    c.nom = ligne.nom;
    c.indice = ligne.indice;
    c.genre = ligne.genre;
    c.place = ligne.place;
    c.legende = ligne.legende;
    c.infobulle = ligne.infobulle;
    c.image = ligne.traits.image;
    c.visible = ligne.traits.visible;
    c.choisi = ligne.traits.choisi;
    c.aVenir = ligne.traits.aVenir;
    c.actif = !ligne.traits.aVenir;
    c.titre = ligne.traits.titre;
    c.gras = ligne.traits.titre;
    c.cadre = ligne.traits.cadre;
    c.groupe = ligne.traits.groupe;
    c.taille = ligne.traits.taille;
    c.cote = ligne.traits.cote;
    c.couleur = ligne.traits.couleur;
  });
  donnees.HScroll1.minimum = 80;
  donnees.HScroll1.maximum = 30000;
  donnees.HScroll1.petitPas = 10;
  donnees.HScroll1.grandPas = 100;
  donnees.HScroll1.valeur = donnees.HScroll1.minimum;
  donnees.Text25.texte = "00";
  donnees.Combo7.liste = {"Venus", "Mars", "Jupiter", "Saturne"};
}

Controle *Cherche(Donnees &donnees, std::string_view nom, int indice) {
  Controle *trouve = nullptr;
  PourChaque(donnees, [&](const LigneDonnees &ligne, Controle &c) {
    if (ligne.nom == nom && ligne.indice == indice) {
      trouve = &c;
    }
  });
  return trouve;
}

} // namespace velmaris
