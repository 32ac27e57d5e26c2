#include "shell/fenetres/Donnees.hpp"

namespace velmaris {

std::span<const std::span<const LigneDonnees>> TableDonnees() {
  static const std::array<std::span<const LigneDonnees>, 6> morceaux = {TableNoms(),    TableBarre(),   TableVisee(),
                                                                        TableDroites(), TableModules(), TableMenu()};
  return morceaux;
}

void InitialiseDonnees(Donnees &donnees) {
  PourChaque(donnees, [](const LigneDonnees &ligne, Controle &c) {
    c = ControleNeuf(ligne, kFenetreDonnees);
    if (c.genre == Genre::Champ) {
      c.cote = Cote::Droite; // figures
    }
  });
  donnees.HScroll1.minimum = 80;
  donnees.HScroll1.maximum = 30000;
  donnees.HScroll1.petitPas = 10;
  donnees.HScroll1.grandPas = 100;
  donnees.HScroll1.valeur = donnees.HScroll1.minimum;
  donnees.Label1.texte = donnees.Label1.legende;
  donnees.Combo5.actif = false;
  donnees.Option1[4].actif = false; // until dead reckoning has worked out a point
  donnees.Text25.texte = "00";
  donnees.Combo7.liste = {"Venus", "Mars", "Jupiter", "Saturne"};
}

Controle *Cherche(Donnees &donnees, std::string_view nom, int indice) { return Cherche(Liste(donnees), nom, indice); }

} // namespace velmaris
