#include "shell/ecran/PageImprimee.hpp"

namespace velmaris {

void Command11_Click(Bureau &bureau, int /*indice*/) {
  bureau.impression.cadre.visible = true;
  bureau.premierPlan = kFenetreImpression;
}

void Impression_Activate(Bureau &bureau) {
  Impression &page = bureau.impression;
  page.Frame1.visible = true;
  page.image = bureau.image1;
  ++page.prises;
  page.paysage = true;
}

void Impression_Ferme(Bureau &bureau) {
  if (bureau.impression.cadre.visible) {
    bureau.impression.cadre.visible = false;
    bureau.premierPlan = kFenetreDonnees;
  }
}

namespace impression {

void Command1_Click(Bureau &bureau, int /*indice*/) {
  Impression &page = bureau.impression;
  page.Frame1.visible = false;
  if (!bureau.ports.imprime(page)) {
    bureau.ports.boite({.texte = bureau.messages[24], .icone = Icone::Erreur, .fenetre = kFenetreImpression});
    return; // past the step that shows the button again
  }
  page.Frame1.visible = true;
}

void Image1_Click(Bureau &bureau, int /*indice*/) { Impression_Ferme(bureau); }

} // namespace impression
} // namespace velmaris
