#include "shell/carte/Objets.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/bureau/Langage.hpp"
#include "shell/carte/FichierObjets.hpp"

#include <cmath>
#include <optional>
#include <utility>

namespace velmaris {
namespace {

constexpr std::int16_t kVrai = -1;
constexpr std::int16_t kFaux = 0;
constexpr std::int16_t kMinutes = 60;    ///< `Precision` of "Degrés Minutes"
constexpr std::int16_t kCentiemes = 100; ///< `Precision` of "Degrés Centièmes"
constexpr int kHorsTable = 9;
constexpr int kType = 13;
constexpr std::size_t kTitre = 25; ///< message: title of the window

/// What a field holds as a number.
double LitChamp(const Controle &champ) { return LitNombre(AvecPoint(champ.texte)); }

/// Degrees under the mask, a point, and hundredths worked out from what is typed after them.
std::string TextePosition(char signe, const Controle &degres, const Controle &parties, std::int16_t precision) {
  return signe + Format(AvecPoint(degres.texte), "00") + "." + Format(LitChamp(parties) / (precision / 100.0), "00");
}

/// A name in one line: a line break would break the file.
std::string EnUneLigne(std::string_view nom) {
  std::string ligne;
  for (std::size_t i = 0; i < nom.size(); ++i) {
    const bool paire = nom[i] == '\r' && i + 1 < nom.size() && nom[i + 1] == '\n';
    if (!paire) {
      ligne += nom[i] == '\r' || nom[i] == '\n' ? ' ' : nom[i];
    }
  }
  return ligne;
}

/// Tells why an entry can't be taken, and leads to the field.
void Refuse(Bureau &bureau, int numero, const Controle &champ) {
  bureau.focus = &champ;
  bureau.ports.boite({.texte = MotsErreur(bureau.donnees, numero), .icone = Icone::Attention});
}

/// Takes what a field holds, or tells why it can't be taken.
template <class Lecture> bool Accepte(Bureau &bureau, const Controle &champ, Lecture &&lecture) {
  try {
    lecture();
    return true;
  } catch (const Erreur &erreur) {
    Refuse(bureau, erreur.numero, champ);
    return false;
  }
}

/// The entry that the fields make. One that couldn't be read back from its line is told, and nothing changes.
std::optional<Objet> ConstruitObjet(Bureau &bureau) {
  const Utilisateur &u = bureau.utilisateur;
  for (const Controle *champ : {&u.Text8, &u.Text9, &u.Text6, &u.Text7}) {
    if (!Accepte(bureau, *champ, [&] { LitChamp(*champ); })) {
      return std::nullopt;
    }
  }
  Objet objet;
  ConstruitPosition(u, objet);
  objet.Nom = EnUneLigne(u.Text4.texte);
  const auto relit = [&] {
    LitNombre(objet.Longitude);
    if (!SeRelit(objet)) {
      throw Erreur(kType);
    }
  };
  const bool pris = Accepte(bureau, u.Text3, [&] { objet.Rayon = Entier16(Val(AvecPoint(u.Text3.texte))); }) &&
                    Accepte(bureau, u.Text8, [&] { LitNombre(objet.Latitude); }) && Accepte(bureau, u.Text6, relit);
  return pris ? std::optional(objet) : std::nullopt;
}

/// The number of the entry selected, none while there is none.
std::optional<std::size_t> Selection(const Utilisateur &u) {
  const auto n = static_cast<std::size_t>(Val(u.etiquetteCommand3));
  return !u.etiquetteCommand3.empty() && n < CompteObjets(u) ? std::optional(n) : std::nullopt;
}

/// One of the two positions of an entry in its fields.
void MontrePosition(Bureau &bureau, const std::string &position, Controle &texte, Controle &degres, Controle &parties) {
  const double valeur = Val(position);
  PoseTexte(bureau, texte, position);
  PoseTexte(bureau, degres, Format(std::fabs(Fix(valeur)), "00"));
  PoseTexte(bureau, parties, Format(std::fabs(valeur - Fix(valeur)) * bureau.utilisateur.Precision, "00"));
}

/// Writes the file.
/// @return what to tell when that fails, empty when it is done
std::string EcritOuDit(Bureau &bureau) {
  const Utilisateur &u = bureau.utilisateur;
  return Passe([&] { EcritFichier(bureau); })
             ? std::string()
             : u.TexteNonEcrit.legende + "\n" + (bureau.dossiers.utilisateur / kFichierObjets).string();
}

void Charge(Bureau &bureau) {
  Utilisateur &u = bureau.utilisateur;
  InitialiseUtilisateur(u);
  ChargeLangue(bureau, kFenetreUtilisateur);
  u.cadre.titre = bureau.messages[kTitre];
  PoseOption(bureau, u.Option1[0]);
  LitFichier(bureau);
}

void Decharge(Bureau &bureau) {
  Utilisateur &u = bureau.utilisateur;
  u.tables = {};
  u.octetsLus.reset();
  u.List1.liste.clear();
  u.etiquetteCommand1 = "0";
  u.etiquetteCommand3.clear();
  u.Modifie = kFaux;
  u.cadre.visible = false;
  bureau.horlogeArretee = false;
  bureau.premierPlan = kFenetreDonnees;
}

} // namespace

void Command18_Click(Bureau &bureau, int /*indice*/) {
  Utilisateur &u = bureau.utilisateur;
  if (!u.cadre.visible) {
    Charge(bureau);
    u.cadre.visible = true;
    bureau.focus = &u.Text4;
  }
  bureau.premierPlan = kFenetreUtilisateur;
}

void QuitteObjets(Bureau &bureau) {
  const Utilisateur &u = bureau.utilisateur;
  if (!u.cadre.visible) {
    return;
  }
  if (const std::string echec = u.Modifie != kFaux ? EcritOuDit(bureau) : std::string(); !echec.empty()) {
    bureau.ports.boite({.texte = echec, .icone = Icone::Erreur});
  }
  Decharge(bureau);
}

void ConstruitPosition(const Utilisateur &fenetre, Objet &objet) {
  const Utilisateur &u = fenetre;
  objet.Latitude = TextePosition(u.OptN[0].choisi ? '+' : '-', u.Text8, u.Text9, u.Precision);
  objet.Longitude = TextePosition(u.OptE[0].choisi ? '-' : '+', u.Text6, u.Text7, u.Precision);
}

namespace objets {

void Command1_Click(Bureau &bureau, int /*indice*/) {
  Utilisateur &u = bureau.utilisateur;
  const std::size_t n = CompteObjets(u);
  if (n + 1 >= kEntreesObjets) {
    Refuse(bureau, kHorsTable, u.Command1);
    return;
  }
  if (std::optional<Objet> objet = ConstruitObjet(bureau)) {
    u.List1.liste.push_back(objet->Nom);
    u.tables[n] = std::move(*objet);
    u.etiquetteCommand1 = std::to_string(n + 1);
    u.Modifie = kVrai;
    bureau.focus = &u.Text4;
  }
}

void Command3_Click(Bureau &bureau, int /*indice*/) {
  Utilisateur &u = bureau.utilisateur;
  const std::optional<std::size_t> n = Selection(u);
  if (!n) {
    return;
  }
  if (std::optional<Objet> objet = ConstruitObjet(bureau)) {
    u.List1.liste[*n] = objet->Nom;
    u.tables[*n] = std::move(*objet);
    u.Modifie = kVrai;
  }
}

void Command4_Click(Bureau &bureau, int /*indice*/) {
  Utilisateur &u = bureau.utilisateur;
  const std::optional<std::size_t> n = Selection(u);
  if (!n) {
    return;
  }
  const Objet garde = std::exchange(u.tables[*n], {"", "", 0, "PlusRien"});
  if (const std::string echec = EcritOuDit(bureau); !echec.empty()) {
    u.tables[*n] = garde;
    bureau.ports.boite({.texte = echec + "\n\n" + u.TexteRienPerdu.legende, .icone = Icone::Erreur});
    return;
  }
  LitFichier(bureau);
  u.Command3.actif = false;
  u.Modifie = kVrai;
}

void Command2_Click(Bureau &bureau, int /*indice*/) {
  const Utilisateur &u = bureau.utilisateur;
  if (u.Modifie != kFaux) {
    const std::string echec = EcritOuDit(bureau);
    if (!echec.empty() && !bureau.ports.boite({.texte = echec + "\n\n" + u.TexteFermer.legende,
                                               .icone = Icone::Erreur,
                                               .question = true,
                                               .nonParDefaut = true})) {
      return;
    }
  }
  Decharge(bureau);
}

void List1_Click(Bureau &bureau, int /*indice*/) {
  Utilisateur &u = bureau.utilisateur;
  if (u.List1.rang < 0 || static_cast<std::size_t>(u.List1.rang) >= CompteObjets(u)) {
    return;
  }
  const Objet objet = u.tables[static_cast<std::size_t>(u.List1.rang)];
  MontrePosition(bureau, objet.Latitude, u.Text1, u.Text8, u.Text9);
  PoseOption(bureau, u.OptN[Val(objet.Latitude) > 0 ? 0 : 1]);
  MontrePosition(bureau, objet.Longitude, u.Text2, u.Text6, u.Text7);
  PoseOption(bureau, u.OptE[Val(objet.Longitude) > 0 ? 1 : 0]);
  PoseTexte(bureau, u.Text3, std::to_string(objet.Rayon));
  PoseTexte(bureau, u.Text4, objet.Nom);
  u.etiquetteCommand3 = std::to_string(u.List1.rang);
  u.Command3.actif = false;
}

void Champ_Change(Bureau &bureau, int /*indice*/) {
  Utilisateur &u = bureau.utilisateur;
  u.Command3.actif = u.Command3.actif || u.List1.rang >= 0;
}

void Option1_Click(Bureau &bureau, int indice) {
  Utilisateur &u = bureau.utilisateur;
  const bool centiemes = indice == 1;
  u.Precision = centiemes ? kCentiemes : kMinutes;
  for (Controle *entre : {&u.Label23, &u.Label25}) {
    entre->legende = centiemes ? "." : "°";
  }
  for (Controle *apres : {&u.Label11, &u.Label19}) {
    apres->legende = centiemes ? "°" : "'";
  }
}

} // namespace objets
} // namespace velmaris
