#include "calcul/dit/Lune.hpp"

#include "calcul/outils/Json.hpp"
#include "ephemerides/ModulePosLune.hpp"
#include "foundations/Erreur.hpp"

namespace velmaris {
namespace {

Lune LuneDeDemande(const DemandeLune &demande) {
  Lune lune;
  lune.LuneAn = demande.an;
  lune.LuneMois = demande.mois;
  lune.LuneJour = demande.jour;
  lune.LuneHeure = demande.heure;
  lune.LuneMinute = demande.minute;
  lune.LuneSeconde = Simple(demande.seconde);
  return lune;
}

void AjouteLune(std::string &sortie, const Lune &lune, double ad, double decl) {
  AjouteMembre(sortie, "jd", lune.LuneJD);
  AjouteMembre(sortie, "longitude", lune.LuneLongitude);
  AjouteMembre(sortie, "latitude", lune.LuneLatitude);
  AjouteMembre(sortie, "distance", lune.LuneDistance);
  AjouteMembre(sortie, "parallaxe", lune.LuneParallaxe);
  AjouteMembre(sortie, "ad", ad);
  AjouteMembre(sortie, "decl", decl);
  AjouteMembre(sortie, "obliquite", lune.LuneObliquite);
  AjouteMembre(sortie, "long_soleil", lune.LuneLongSoleil);
  AjouteMembre(sortie, "phase", lune.LunePhase);
  AjouteMembre(sortie, "ad_topo", lune.LuneAD);
  AjouteMembre(sortie, "decl_topo", lune.LuneDecl);
  AjouteMembre(sortie, "demi_diametre", lune.LuneDemiDiametre);
  AjouteMembre(sortie, "azimut", lune.LuneAzimut);
  AjouteMembre(sortie, "hauteur", lune.LuneHauteur);
  AjouteMembre(sortie, "texte_ad", lune.LuneTexteAD);
  AjouteMembre(sortie, "texte_decl", lune.LuneTexteDecl);
}

} // namespace

bool EcritLune(const DemandeLune &demande, std::string_view labelAD, std::string &sortie) {
  return EcritObjet(sortie, [&] {
    Lune lune = LuneDeDemande(demande);
    CalculLune(lune);
    const double ad = lune.LuneAD;
    const double decl = lune.LuneDecl;
    TopoLune(lune, lune.LuneAD, lune.LuneDecl, Simple(demande.latitude), Simple(demande.lonEst), labelAD);
    AjouteLune(sortie, lune, ad, decl);
  });
}

} // namespace velmaris
