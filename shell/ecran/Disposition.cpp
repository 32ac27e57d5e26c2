#include "shell/ecran/Disposition.hpp"

namespace velmaris {
namespace {

constexpr double kLigneFigures = 225; ///< height of the scale bar's figures

void Dimensionne(Surface &surface, const Place &place) {
  surface.largeur = place.largeur;
  surface.hauteur = place.hauteur;
}

void Deplace(Controle &controle, double gauche, double haut) {
  controle.place.gauche = gauche;
  controle.place.haut = haut;
}

constexpr double kBordTitre = 60; ///< right of the caption of latitude

/// The status line, in the strip under the surface.
void DisposeEtat(Etat &etat, const Place &surface, double largeur) {
  const double haut = surface.haut + surface.hauteur + kBordTitre;
  Deplace(etat.Dit, kBordTitre, haut);
  Deplace(etat.Position, largeur - etat.Position.place.largeur - 3 * kBordTitre, haut);
  etat.Dit.place.largeur = etat.Position.place.gauche - 2 * kBordTitre;
}

/// A result as one small line.
void Rapetisse(Controle &resultat, double haut) {
  resultat.place = {480, haut, 1350, 300};
  resultat.taille = 10;
}

/// The complements' buttons, as far apart as the window has room, so that no caption touches the next.
void DisposeComplements(Donnees &d, double largeurFenetre) {
  constexpr double kPas = 590;
  constexpr double kPasLarge = 650;
  constexpr double kBords = 90; ///< of the frame around them
  constexpr double kLargeurBouton = 560;
  constexpr double kGauche = 45;
  const auto nombre = static_cast<double>(d.Complement.size());
  Place &cadre = d.FrameComplements.place;
  d.FrameComplements.visible = cadre.gauche + nombre * kPas + kBords <= largeurFenetre;
  const double pas = std::clamp((largeurFenetre - cadre.gauche - kBords) / nombre, kPas, kPasLarge);
  cadre.largeur = nombre * pas + kBords;
  d.LabComplements.place.largeur = cadre.largeur - 2 * d.LabComplements.place.gauche;
  for (std::size_t i = 0; i < d.Complement.size(); ++i) {
    const double gauche = kGauche + static_cast<double>(i) * pas;
    d.LegendeComplement.at(i).place.gauche = gauche;
    d.LegendeComplement.at(i).place.largeur = pas;
    d.Complement.at(i).place.gauche = gauche + (pas - kLargeurBouton) / 2;
  }
}

} // namespace

void DisposeFenetre(Bureau &bureau, const Ecran &ecran) {
  Donnees &d = bureau.donnees;
  bureau.hauteurFenetre = ecran.hauteur - 200;
  bureau.largeurFenetre = ecran.largeur;
  d.Image1.place = {50, bureau.hauteurFenetre / 10.88, ecran.largeur / 1.01, ecran.hauteur / 1.15 - 150};

  DisposeComplements(d, bureau.largeurFenetre);

  Dimensionne(bureau.image1, d.Image1.place);
  Dimensionne(bureau.picAZ, d.PicAZ.place);
  Dimensionne(bureau.picHE, d.PicHE.place);
  const Place &surface = d.Image1.place;
  // At the right edge: the left one lies under the sight's module.
  Deplace(d.LabLat, surface.largeur - d.LabLat.place.largeur - kBordTitre,
          (surface.hauteur - d.LabLat.place.hauteur) / 2);
  // Under the figures of the scale bar, or beside them where a low surface has no room under them.
  const double pied = surface.hauteur - d.LabLon.place.hauteur;
  const bool place = surface.hauteur / 1.08 + surface.largeur / 60 + kLigneFigures <= pied;
  const double marge = surface.largeur - d.LabLon.place.largeur;
  Deplace(d.LabLon, place ? marge / 2 : marge, pied);
  DisposeEtat(bureau.etat, surface, ecran.largeur);
  bureau.feuille.CentreX = static_cast<float>(surface.largeur / 2);
  bureau.feuille.CentreY = static_cast<float>(surface.hauteur / 2);
}

void DispositionCompacte(Donnees &d) {
  d.Command1.image.clear();
  d.Command2.image.clear();
  d.Command2.place = {90, 6600, 1740, 360};
  d.Command26.place = {1890, 7000, 1050, 290};
  d.Command1.place = {1890, 6600, 1050, 360};
  d.Frame17.place.haut = 4050;
  d.Frame17.place.hauteur = 1750;
  d.Option6[2].place.hauteur = 280;
  d.Frame6.place.haut = 5800;
  d.Label18.visible = false;
  d.Label20.visible = false;
  d.Label72.visible = true;
  d.Label72.legende = "In\nAz";
  Rapetisse(d.Affichage_Intercept, 7000);
  Rapetisse(d.Affichage_Azimuth, 7300);
  d.LabControle[0].place = {1890, 7305, 1080, 190};
  d.LabControle[1].place = {1890, 7495, 1080, 190};
  d.LabControle[0].taille = 8;
  d.LabControle[1].taille = 8;
  d.Frame7.place.hauteur = 7700;
  for (Controle *champ : {&d.TDate[0], &d.TDate[1], &d.TDate[2], &d.Text3, &d.Text4, &d.Text5}) {
    champ->taille = 8;
    champ->gras = false;
  }
}

} // namespace velmaris
