#include "shell/visee/PanneauDirect.hpp"

#include "chart/Projection.hpp"
#include "ephemerides/pLANETE.hpp"
#include "foundations/CelHor.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/visee/Saisie.hpp"
#include "sights/DroitePLA.hpp"
#include "sights/DroiteSTAR.hpp"
#include "sky/Cadrans.hpp"

namespace velmaris {
namespace {

/// The present moment, from the clock's texts.
ValeurDate Maintenant(Bureau &bureau) {
  LitHorloge(bureau.horloge);
  const Horloge &h = bureau.horloge;
  return LitDateHeure(h.JourGMT + "/" + h.MoisGMT + "/" + h.AnGMT + " " + h.HeureGMT);
}

/// Estimated position of the panel, 32 bits, degrees, north and west positive.
Origine PositionPanneau(const Observation &observation) {
  Origine place{0.0F, 0.0F};
  Passe([&] { place.latitude = Simple(LatitudeEstimee(observation)); });
  Passe([&] { place.longitude = Simple(LongitudeEstimee(observation)); });
  return place;
}

void Montre(Bureau &bureau, const std::string &titre) {
  TraceCadrans(bureau, bureau.visee.Azimut, bureau.visee.HauteurCalculee);
  bureau.donnees.Label64.legende = titre;
}

} // namespace

void PositionLive(Bureau &bureau) {
  const Donnees &d = bureau.donnees;
  if (!d.Frame8.visible) {
    return;
  }
  if (d.Option7[0].choisi) {
    PosSoleil(bureau, false, false);
  } else if (d.Option7[1].choisi) {
    PosLune(bureau, false, false);
  } else if (d.Option7[2].choisi) {
    PositionPlaneteLive(bureau);
  } else if (d.Option7[3].choisi) {
    PositionEtoileLive(bureau, true);
  }
}

void PosLune(Bureau &bureau, bool versCiel, bool sansDessin) {
  const Origine place = PositionPanneau(LitPanneau(bureau.donnees));
  LitHorloge(bureau.horloge);
  const Horloge &h = bureau.horloge;
  Lune &lune = bureau.lune;
  lune.LuneHeure = Val(h.HeureGMT.substr(0, 2));
  lune.LuneMinute = Val(h.HeureGMT.substr(3, 2));
  lune.LuneSeconde = static_cast<float>(Val(h.HeureGMT.substr(6, 2)));
  lune.LuneJour = Val(h.JourGMT);
  lune.LuneMois = Val(h.MoisGMT);
  lune.LuneAn = Val(h.AnGMT);
  bureau.donnees.Soleil.place.gauche = kHorsDeVue;
  Passe([&] { CalculLune(lune); });
  Passe([&] { TopoLune(lune, lune.LuneAD, lune.LuneDecl, place.latitude, -place.longitude, bureau.messages[33]); });
  if (versCiel) {
    bureau.ciel.Lune.etiquette = TexteGeneral(lune.LuneAzimut) + "X" + TexteGeneral(lune.LuneHauteur);
    bureau.ciel.Label1.legende = TexteGeneral(lune.LuneDecl) + "X" + TexteGeneral(lune.LuneAD);
  }
  if (!sansDessin) {
    TraceCadrans(bureau, lune.LuneAzimut, lune.LuneHauteur);
    bureau.donnees.Label64.legende = bureau.messages[30];
  }
}

void PositionEtoileLive(Bureau &bureau, bool dessin) {
  Donnees &d = bureau.donnees;
  if (d.Combo6.rang < 0) {
    return;
  }
  const Observation o = LitPanneau(d);
  const Origine place = PositionPanneau(o);
  d.Soleil.place.gauche = kHorsDeVue;
  const bool calculee = Passe([&] {
    const ValeurDate date = Maintenant(bureau);
    double AD = 0;
    double Dec = 0;
    PrendHorizon(HorizonEtoile(bureau.etoiles, d.Combo6.rang, {o.jour, o.mois, o.annee}, date, place.latitude,
                               -place.longitude, AD, Dec),
                 bureau.visee);
  });
  if (calculee && dessin) {
    Montre(bureau, d.Combo6.texte);
  }
}

void PositionPlaneteLive(Bureau &bureau) {
  Donnees &d = bureau.donnees;
  if (d.Combo7.rang < 0) {
    return;
  }
  const Observation o = LitPanneau(d);
  const Origine place = PositionPanneau(o);
  d.Soleil.place.gauche = kHorsDeVue;
  const bool calculee = Passe([&] {
    const ValeurDate date = Maintenant(bureau);
    std::string nom = d.Combo7.texte;
    const PlacePlanete planete =
        LitPlacePlanete(PositionPlanete(nom, {o.jour, o.mois, o.annee, o.heure, o.minute, o.seconde}));
    double Dec = planete.Dec;
    double latitude = place.latitude;
    PrendHorizon(CelesteVersHorizon(date, planete.AD, Dec, latitude, -place.longitude), bureau.visee);
  });
  if (calculee) {
    Montre(bureau, d.Combo7.texte);
  }
}

void PosSoleil(Bureau &bureau, bool versCiel, bool sansDessin) {
  const SoleilDirect soleil = CalculeSoleilDirect(LitPanneau(bureau.donnees), bureau.horloge);
  if (versCiel) {
    bureau.ciel.SOL.etiquette = TexteGeneral(soleil.azimut) + "X" + TexteGeneral(soleil.hauteur);
    bureau.ciel.Label1.legende = TexteGeneral(soleil.AD) + "X" + TexteGeneral(soleil.Dec);
  }
  if (sansDessin) {
    return;
  }
  bureau.soleil = soleil.point;
  bureau.donnees.Label64.legende = TextePointSolaire(bureau.soleil);
  PlaceMarqueSoleil(bureau);
  TraceCadrans(bureau, soleil.azimut, soleil.hauteur);
}

void TraceCadrans(Bureau &bureau, double azimut, double hauteur) {
  DessineCadranAzimut(bureau.picAZ, static_cast<float>(azimut));
  DessineCadranHauteur(bureau.picHE, static_cast<float>(hauteur));
  bureau.donnees.Label35.legende = Format(azimut, "###.00") + " °";
  bureau.donnees.Label36.legende = Format(hauteur, "###.00") + " °";
}

void PlaceMarqueSoleil(Bureau &bureau) {
  Controle &marque = bureau.donnees.Soleil;
  marque.place.gauche = kHorsDeVue;
  if (bureau.feuille.EchelleX == 0.0F || bureau.feuille.EchelleY == 0.0F) {
    return; // nothing has been drawn yet
  }
  const Point p = PointDePlace(bureau.feuille, bureau.soleil.LatSoleil, bureau.soleil.LonSoleil);
  if (p.x >= 0 && p.x <= bureau.image1.largeur && p.y >= 0 && p.y <= bureau.image1.hauteur) {
    marque.place.gauche = p.x - marque.place.largeur / 2;
    marque.place.haut = p.y - marque.place.hauteur / 2;
  }
}

} // namespace velmaris
