#include "shell/bureau/Bureau.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/bureau/Sauvegarde.hpp"
#include "shell/bureau/Valeurs.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace velmaris {

Bureau::Bureau() {
  InitialiseDonnees(donnees);
  InitialiseFSelect(fselect);
  InitialiseImpression(impression);
  InitialiseUtilisateur(utilisateur);
  InitialiseCiel(ciel);
  InitialiseApropos(apropos);
  InitialiseEtat(etat);
  InitialiseFiche(fiche);
  InitialiseRegistre(registre);
  InitialiseFenetrePoint(fenetrePoint);
  InitialisePreparation(preparation);
  InitialiseFenetreSerie(fenetreSerie);
  InitialiseFenetreExercice(fenetreExercice);
  InitialiseFenetrePapier(fenetrePapier);
  InitialiseMotsPapier(motsPapier);
  InitialiseTermesAlmanach(termesAlmanach);
}

Bureau::~Bureau() = default;

ListeControles ControlesDe(Bureau &bureau, std::string_view fenetre) {
  if (fenetre == kFenetreDonnees) {
    return Liste(bureau.donnees);
  }
  if (fenetre == kFenetreFSelect) {
    return Liste(bureau.fselect);
  }
  if (fenetre == kFenetreUtilisateur) {
    return Liste(bureau.utilisateur);
  }
  if (fenetre == kFenetreCiel) {
    return Liste(bureau.ciel);
  }
  if (fenetre == kFenetreApropos) {
    return Liste(bureau.apropos);
  }
  if (fenetre == kFenetreEtat) {
    return Liste(bureau.etat);
  }
  if (fenetre == kFenetreFiche) {
    return Liste(bureau.fiche);
  }
  if (fenetre == kFenetreRegistre) {
    return Liste(bureau.registre);
  }
  if (fenetre == kFenetrePoint) {
    return Liste(bureau.fenetrePoint);
  }
  if (fenetre == kFenetrePreparation) {
    return Liste(bureau.preparation);
  }
  if (fenetre == kFenetreSerie) {
    return Liste(bureau.fenetreSerie);
  }
  if (fenetre == kFenetreExercice) {
    return Liste(bureau.fenetreExercice);
  }
  if (fenetre == kFenetrePapier) {
    return Liste(bureau.fenetrePapier);
  }
  if (fenetre == kFenetreMotsPapier) {
    return Liste(bureau.motsPapier);
  }
  if (fenetre == kFenetreTermes) {
    return Liste(bureau.termesAlmanach);
  }
  return fenetre == kFenetreImpression ? Liste(bureau.impression) : ListeControles();
}

std::vector<CadreFenetre *> FenetresLibres(Bureau &bureau) {
  return {&bureau.utilisateur.cadre,  &bureau.ciel.cadre,         &bureau.impression.cadre,
          &bureau.fiche.cadre,        &bureau.registre.cadre,     &bureau.fenetrePoint.cadre,
          &bureau.preparation.cadre,  &bureau.fenetreSerie.cadre, &bureau.fenetreExercice.cadre,
          &bureau.fenetrePapier.cadre};
}

Surface *SurfaceDe(Bureau &bureau, const Controle &controle) {
  const std::array<std::pair<const Controle *, Surface *>, 11> surfaces = {
      {{&bureau.donnees.Image1, &bureau.image1},
       {&bureau.donnees.PicAZ, &bureau.picAZ},
       {&bureau.donnees.PicHE, &bureau.picHE},
       {&bureau.ciel.Picture1, &bureau.ciel.picture1},
       {&bureau.ciel.PicAZ, &bureau.ciel.picAZ},
       {&bureau.ciel.PicHE, &bureau.ciel.picHE},
       {&bureau.impression.Image1, &bureau.impression.image},
       {&bureau.preparation.Carte, &bureau.preparation.dessinCarte},
       {&bureau.preparation.Esquisse, &bureau.preparation.dessinEsquisse},
       {&bureau.fenetreSerie.Dessin, &bureau.fenetreSerie.dessin},
       {&bureau.fenetreSerie.DessinMidi, &bureau.fenetreSerie.dessinMidi}}};
  for (const auto &[porte, surface] : surfaces) {
    if (porte == &controle) {
      return surface;
    }
  }
  return nullptr;
}

std::vector<Tranche> DessinsCarte(const Bureau &bureau) {
  const CarteOuverte &carte = bureau.carte;
  return carte.effacements == bureau.image1.effacements ? carte.dessins : std::vector<Tranche>();
}

std::string MotsErreur(const Donnees &donnees, int numero) {
  std::string mots = donnees.TexteErreur.legende + " " + std::to_string(numero);
  const auto *const nommee = std::find(kErreursNommees.begin(), kErreursNommees.end(), numero);
  if (nommee != kErreursNommees.end()) {
    mots += "\n" + donnees.TexteSens[static_cast<std::size_t>(nommee - kErreursNommees.begin())].legende;
  }
  return mots;
}

int NombreRegle(const std::string &texte) {
  int nombre = 0;
  Passe([&] { nombre = Entier16(Val(texte)); });
  return nombre;
}

std::string LitReglage(const Bureau &bureau, std::string_view cle, std::string_view defaut) {
  return bureau.valeurs->GetSetting(kApplication, kSection, cle, defaut);
}

void EcritReglage(Bureau &bureau, std::string_view cle, std::string_view valeur) {
  // Showing a line chooses its kind of fraction, which keeps it: a redraw would wait for the disk at each line.
  const std::string absente = std::string(valeur) + "?";
  if (LitReglage(bureau, cle, absente) == valeur) {
    return;
  }
  bureau.valeurs->SaveSetting(kApplication, kSection, cle, valeur);
  SignaleMagasin(bureau);
}

void SignaleMagasin(Bureau &bureau) {
  const Donnees &d = bureau.donnees;
  const auto dit = [&](const Controle &texte) {
    bureau.ports.boite(
        {.texte = texte.legende + "\n" + bureau.valeurs->fichierEnCause().string(), .icone = Icone::Attention});
  };
  if (bureau.valeurs->enAttente() && !bureau.attenteSignalee) {
    bureau.attenteSignalee = true;
    dit(d.TexteMagasinRetenu);
  }
  const EtatMagasin etat = bureau.valeurs->etat();
  if (etat == EtatMagasin::Sain || etat == bureau.magasinSignale) {
    return;
  }
  bureau.magasinSignale = etat;
  dit(etat == EtatMagasin::Abime ? d.TexteMagasinAbime : d.TexteMagasinMuet);
}

} // namespace velmaris
