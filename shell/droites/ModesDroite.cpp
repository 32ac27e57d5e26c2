#include "shell/droites/ModesDroite.hpp"

#include "foundations/TexteNombre.hpp"
#include "lines/DroiteMemoire.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/droites/Bouts.hpp"
#include "shell/droites/Droites.hpp"
#include "shell/droites/MemoireDroites.hpp"
#include "shell/droites/Route.hpp"

#include <array>

namespace velmaris {
namespace {

std::size_t Rang(int ligne) { return static_cast<std::size_t>(ligne); }

void Enregistre(Bureau &bureau, int ligne, Demande /*demande*/) {
  EnregistreDroite(bureau, ligne);
  PoseMode(bureau, ModeDroite::Affiche);
  MajListeDroites(bureau);
  MajHeureListes(bureau);
}

/// The line starts a sheet.
void AffichePremiere(Bureau &bureau, int ligne, Demande demande) {
  Donnees &d = bureau.donnees;
  PremiereDroite(bureau, demande);
  MarqueDroite(d, Rang(ligne), kPremiereDroite);
  MajHeureListes(bureau);
  PoseTexte(bureau, d.Combo5, std::to_string(ligne + 1));
  bureau.NomAstre = d.Droite[Rang(ligne)].infobulle;
  PublieLigneImpression(bureau, ligne, ligne);
  RetraceCarte(bureau);
}

/// The line joins the sheet; whether it is there already isn't asked.
void AfficheSuivante(Bureau &bureau, int ligne, Demande demande) {
  Donnees &d = bureau.donnees;
  DroiteSuivante(bureau, demande);
  MarqueDroite(d, Rang(ligne), kDroiteAjoutee);
  MajHeureListes(bureau);
  PublieLigneImpression(bureau, ligne, ligne);
}

void Affiche(Bureau &bureau, int ligne, Demande demande) {
  Donnees &d = bureau.donnees;
  d.Combo6.visible = true;
  d.Combo8.visible = false;
  ChargeDroite(bureau, ligne);
  if (d.Text3.texte.empty() && d.Text4.texte.empty() && d.TDate[0].texte.empty()) {
    bureau.ports.boite(
        {.texte = bureau.messages[11], .titre = d.TexteTitreErreur.legende, .icone = Icone::Information});
  } else if (bureau.feuille.OrigineFeuille == kSansFeuille) {
    AffichePremiere(bureau, ligne, demande);
  } else {
    AfficheSuivante(bureau, ligne, demande);
  }
}

/// Azimuth and intercept become those stored with a line.
void LitAzimutIntercept(Bureau &bureau, int ligne) {
  bureau.visee.Azimut = LitMillieme(LitChampDroite(bureau, "az(", ligne));
  bureau.visee.Intercept = LitMillieme(LitChampDroite(bureau, "in(", ligne));
}

/// A transported line is named as where it was sighted.
NomDroite NomTransportee(const Bureau &bureau, int ligne) {
  return {LitChampDroite(bureau, "Nom(", ligne), LitChampDroite(bureau, "T3(", ligne),
          LitChampDroite(bureau, "T4(", ligne)};
}

/// `TransportEnCours` stays 1 when there is no sheet, no target or no intercept: mile ticks are then left out until a
/// transport runs to its end.
void TransporteDroite(Bureau &bureau, int ligne, Demande /*demande*/) {
  Donnees &d = bureau.donnees;
  bureau.feuille.TransportEnCours = 1;
  if (bureau.feuille.OrigineFeuille.latitude == kSansFeuille.latitude) {
    Command6_Click(bureau, -1);
    return;
  }
  if (d.Combo5.texte.empty()) {
    bureau.ports.boite({.texte = bureau.messages[12]});
    return;
  }
  const int k = Entier16(Val(d.Combo5.texte) - 1);
  const auto degres = [&](const char *champ, const char *minutes) {
    return Val(LitChampDroite(bureau, champ, k)) + Val(LitChampDroite(bureau, minutes, k)) / 60;
  };
  const double longitude = degres("T6(", "T7(");
  const double latitude = degres("T8(", "T9(");
  const bool nord = LitChampDroite(bureau, "Hem(", k) == "Nord";
  const bool est = LitChampDroite(bureau, "Lon(", k) == "Est";
  LitAzimutIntercept(bureau, ligne);
  bool transportee = false;
  TraceNommee(bureau, NomTransportee(bureau, ligne), [&] {
    transportee = TransporteADroite(bureau.feuille, bureau.image1, bureau.transports, bureau.visee,
                                    nord ? latitude : -latitude, est ? -longitude : longitude);
  });
  if (!transportee) {
    return;
  }
  if (NoteTransport(bureau.transports.ListeTransportDroite, ligne)) {
    bureau.transports.CibleTransport = d.Combo5.texte;
  }
  bureau.feuille.TransportEnCours = 0;
}

void TransporteEstime(Bureau &bureau, int ligne, Demande /*demande*/) {
  const Donnees &d = bureau.donnees;
  LitAzimutIntercept(bureau, ligne);
  bool transportee = false;
  TraceNommee(bureau, NomTransportee(bureau, ligne), [&] {
    transportee = TransporteAEstime(bureau.feuille, bureau.image1, bureau.transports, bureau.visee, Val(d.Text15.texte),
                                    Val(d.Text1.texte));
  });
  if (!transportee) {
    return;
  }
  if (NoteTransport(bureau.transports.ListeTransportEstime, ligne)) {
    bureau.transports.CibleTransport = d.Combo5.texte;
  }
}

/// The sheet is left as it is: an erased line stays drawn until the next redraw.
void Efface(Bureau &bureau, int ligne, Demande /*demande*/) {
  Donnees &d = bureau.donnees;
  if (!bureau.sansQuestion && !bureau.ports.boite({.texte = bureau.messages[13],
                                                   .titre = d.TexteAttention.legende,
                                                   .icone = Icone::Question,
                                                   .question = true,
                                                   .nonParDefaut = true})) {
    return;
  }
  EffaceDroite(bureau, ligne);
  const std::size_t i = Rang(ligne);
  d.Droite[i].infobulle = ToucheDroite(ligne);
  d.Ldate[i].legende.clear();
  d.LHeure[i].legende.clear();
  MarqueDroite(d, i, kHorsFeuille);
  PoseMode(bureau, ModeDroite::Affiche);
  MajListeDroites(bureau);
  PoseMode(bureau, ModeDroite::Affiche);
}

void Centre(Bureau &bureau, int ligne, Demande /*demande*/) {
  Donnees &d = bureau.donnees;
  std::array<bool, kNombreDroites> presente{};
  for (std::size_t i = 0; i < presente.size(); ++i) {
    presente[i] = d.LHeure[i].couleur == kDroiteAjoutee || d.LHeure[i].couleur == kPremiereDroite;
  }
  Command6_Click(bureau, -1);
  for (std::size_t i = 0; i < presente.size(); ++i) {
    if (presente[i]) {
      MarqueHeure(d, i, kDroiteAjoutee); // the date keeps its colour
    }
  }
  PoseMode(bureau, ModeDroite::Affiche);
  Droite_Click(bureau, ligne);
  RetraceDroites(bureau);
}

void Retire(Bureau &bureau, int ligne, Demande /*demande*/) {
  MarqueDroite(bureau.donnees, Rang(ligne), kHorsFeuille);
  bureau.impression.Frame4[Rang(ligne)].visible = false;
  RetraceDroites(bureau);
}

struct Operation {
  ModeDroite mode;
  void (*fonction)(Bureau &, int, Demande);
};

/// In the order in which the options are tried.
constexpr std::array<Operation, 7> kOperations = {{{ModeDroite::Enregistre, Enregistre},
                                                   {ModeDroite::Affiche, Affiche},
                                                   {ModeDroite::TransporteDroite, TransporteDroite},
                                                   {ModeDroite::TransporteEstime, TransporteEstime},
                                                   {ModeDroite::Efface, Efface},
                                                   {ModeDroite::Centre, Centre},
                                                   {ModeDroite::Retire, Retire}}};

void Opere(Bureau &bureau, int ligne, Demande demande) {
  for (const Operation &operation : kOperations) {
    if (bureau.donnees.Option1[static_cast<std::size_t>(operation.mode)].choisi) {
      operation.fonction(bureau, ligne, demande);
      return;
    }
  }
}

} // namespace

void PoseMode(Bureau &bureau, ModeDroite mode) {
  PoseOption(bureau, bureau.donnees.Option1[static_cast<std::size_t>(mode)]);
}

void DesarmeMode(Bureau &bureau) {
  const auto arme = [&](ModeDroite mode) { return bureau.donnees.Option1[static_cast<std::size_t>(mode)].choisi; };
  if (arme(ModeDroite::Enregistre) || arme(ModeDroite::Efface)) {
    PoseMode(bureau, ModeDroite::Affiche);
  }
}

void Option1_Click(Bureau &bureau, int indice) {
  bureau.donnees.Combo5.actif = indice == static_cast<int>(ModeDroite::TransporteDroite);
}

void Droite_Click(Bureau &bureau, int ligne) {
  if (bureau.donnees.Frame2.visible) {
    RemplitBoutRoute(bureau, ligne);
  } else {
    Opere(bureau, ligne, Demande::Utilisateur);
  }
}

void RejoueDroite(Bureau &bureau, int ligne) { Opere(bureau, ligne, Demande::Retrace); }

void Command8_Click(Bureau &bureau, int /*indice*/) {
  if (!bureau.ports.boite({.texte = bureau.messages[10],
                           .titre = bureau.donnees.TexteAttention.legende,
                           .icone = Icone::Question,
                           .question = true,
                           .nonParDefaut = true})) {
    return;
  }
  bureau.sansQuestion = true;
  for (int ligne = 0; ligne < kNombreDroites; ++ligne) {
    PoseMode(bureau, ModeDroite::Efface); // each erasure goes back to "Afficher"
    Droite_Click(bureau, ligne);
  }
  PoseMode(bureau, ModeDroite::Enregistre);
  bureau.sansQuestion = false;
}

} // namespace velmaris
