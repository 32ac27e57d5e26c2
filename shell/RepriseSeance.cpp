#include "shell/RepriseSeance.hpp"

#include "foundations/Erreur.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/bureau/Sauvegarde.hpp"
#include "shell/carte/FichierObjets.hpp"
#include "shell/carte/Objets.hpp"
#include "shell/droites/Bouts.hpp"
#include "shell/droites/Droites.hpp"
#include "shell/droites/ModesDroite.hpp"
#include "shell/ecran/Modules.hpp"
#include "shell/point/Point.hpp"
#include "shell/visee/EtatPanneau.hpp"
#include "shell/visee/ReduitVisee.hpp"
#include "shell/visee/Saisie.hpp"

#include <algorithm>
#include <optional>
#include <utility>

namespace velmaris {
namespace {

/// What lies beside the sheet's drawing: the states of the lines, the lists of transports, dead reckoning.
void RemetListes(Bureau &bureau, const EtatFeuille &f) {
  Donnees &d = bureau.donnees;
  Transports &t = bureau.transports;
  for (std::size_t i = 0; i < f.droites.size(); ++i) {
    MarqueDroite(d, i, f.droites[i]);
  }
  t.ListeTransportDroite = f.transportsDroite;
  t.CibleTransport = f.cible;
  t.ListeTransportEstime = f.transportsEstime;
  t.LatEstimeTransport = f.estime.latitude;
  t.LonEstimeTransport = f.estime.longitude;
  d.LabLatEst.legende = f.estimeDite[0];
  d.LabLonEst.legende = f.estimeDite[1];
  d.Option1[4].actif = !f.estimeDite[0].empty();
}

/// The sheet with its stored lines as a zoom draws it, or with the sight that was reduced last.
void RetraceFeuille(Bureau &bureau, const Session &session) {
  const EtatFeuille &f = session.feuille;
  if (f.origine == kSansFeuille) {
    return;
  }
  const bool avecDroites = std::any_of(f.droites.begin(), f.droites.end(), [](Couleur c) { return c != kHorsFeuille; });
  if (avecDroites) {
    RetraceDroites(bureau);
  } else {
    RemetResultat(bureau, session.resultat);
    const Observation visee = session.resultat.reduite.value_or(LitPanneau(bureau.donnees));
    TraceNommee(bureau, NomReduite(bureau, visee, session.resultat.reduite.has_value()),
                [&] { TraceDroites(bureau.feuille, bureau.image1, visee, bureau.visee); });
    MontreTitresFeuille(bureau);
  }
  if (bureau.feuille.OrigineFeuille != f.origine) { // centred by hand: the chart lay there alone
    bureau.feuille.OrigineFeuille = f.origine;
    Efface(bureau.image1);
  }
}

void RemetListeObjets(Bureau &bureau, const std::string &objets) {
  Declenche(bureau, bureau.donnees.Command18, Evenement::Clic);
  if (TexteObjets(bureau.utilisateur) != objets) {
    RemetObjets(bureau.utilisateur, objets);
  }
}

} // namespace

void ReprendSession(Bureau &bureau, const Session &session) {
  RemetControles(bureau, session.controles);
  SuitCurseurZoom(bureau);
  PoseGrille(bureau, session.feuille.grille);
  AccordeModules(bureau);
  RemetListes(bureau, session.feuille);
  RetraceFeuille(bureau, session);
  if (session.feuille.carte) {
    Declenche(bureau, bureau.donnees.Command17, Evenement::Clic);
  }
  RemetControles(bureau, session.controles); // a redraw leaves the last line in the panel
  DesarmeMode(bureau);
  AccordeModules(bureau);
  RemetResultat(bureau, session.resultat);
  if (session.objets) {
    RemetListeObjets(bureau, *session.objets);
  }
  if (!session.point.empty()) {
    RemetVisees(bureau, session.point);
    PreparePoint(bureau); // so that the fix lies on the sheet again
  }
}

void ProposeReprise(Bureau &bureau, bool sansQuestion) {
  const std::optional<Session> session = LitSession(bureau.sessionLaissee);
  if (!session) {
    return;
  }
  const Donnees &d = bureau.donnees;
  const bool reprise = sansQuestion || bureau.ports.boite({.texte = d.TexteReprise.legende,
                                                           .titre = d.TexteTitreReprise.legende,
                                                           .icone = Icone::Question,
                                                           .question = true});
  if (bureau.termine) {
    return;
  }
  bureau.sessionLaissee.clear();
  if (reprise) {
    bureau.sessionDepart.clear();
    Passe([&] { ReprendSession(bureau, *session); });
  } else {
    bureau.reprise->Retire();
  }
}

} // namespace velmaris
