#include "shell/visee/Saisie.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/visee/Astres.hpp"
#include "sights/JugementVisee.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

/// The limits of a field of the sight.
Bornes BornesDe(const Bureau &bureau, const Controle &champ) {
  return BornesDuChamp(static_cast<std::size_t>(champ.parIndice),
                       bureau.donnees.Option5[0].choisi ? Horizon::Naturel : Horizon::Artificiel);
}

/// Leaves a field that holds a text: a value outside its limits empties it, else the text takes its form.
/// @return whether the value was accepted
bool QuitteAvec(Bureau &bureau, Controle &champ, const std::string &texte, std::string_view masque, char signeDecimal) {
  const auto [minimum, maximum] = BornesDe(bureau, champ);
  const double valeur = Val(texte);
  const bool accepte = valeur >= minimum && valeur <= maximum;
  PoseTexte(bureau, champ, accepte ? Format(texte, masque, signeDecimal) : std::string());
  return accepte;
}

/// Leaves a field of whole numbers; a comma counts as the point, so that the field shows what is used.
bool Quitte(Bureau &bureau, Controle &champ, std::string_view masque) {
  return QuitteAvec(bureau, champ, AvecPoint(champ.texte), masque, '.');
}

/// Leaves a field that holds a decimal comma.
void QuitteVirgule(Bureau &bureau, Controle &champ) {
  std::string texte = champ.texte;
  std::replace(texte.begin(), texte.end(), '.', ',');
  QuitteAvec(bureau, champ, texte, "#0.0", ',');
}

int Choisie(const auto &options) {
  const auto trouve = std::find_if(options.begin(), options.end(), [](const Controle &o) { return o.choisi; });
  return static_cast<int>(trouve - options.begin());
}

/// A first letter in capitals, the accented ones of Latin-1 included.
std::string PremiereMajuscule(std::string texte) {
  if (texte.empty()) {
    return texte;
  }
  const auto premier = static_cast<unsigned char>(texte[0]);
  if (premier >= 'a' && premier <= 'z') {
    texte[0] = static_cast<char>(premier - 0x20);
  } else if (premier == 0xC3 && texte.size() > 1 && static_cast<unsigned char>(texte[1]) >= 0xA0) {
    texte[1] = static_cast<char>(static_cast<unsigned char>(texte[1]) - 0x20);
  }
  return texte;
}

/// Whole minutes of an angle in its fields.
void PoseAngleEntier(Bureau &bureau, Controle &degres, Controle &minutes, double angle) {
  constexpr int kMinutes = 60;
  const auto entier = static_cast<int>(std::lround(std::fabs(angle) * kMinutes));
  const int entiers = entier / kMinutes;
  PoseTexte(bureau, degres, Format(entiers, "00"));
  PoseTexte(bureau, minutes, Format(entier % kMinutes, "00"));
}

} // namespace

Observation LitPanneau(const Donnees &d) {
  Observation o;
  o.jour = d.TDate[0].texte;
  o.mois = d.TDate[1].texte;
  o.annee = d.TDate[2].texte;
  o.heure = d.Text3.texte;
  o.minute = d.Text4.texte;
  o.seconde = d.Text5.texte;
  o.longitudeDegres = d.Text6.texte;
  o.longitudeMinutes = d.Text7.texte;
  o.latitudeDegres = d.Text8.texte;
  o.latitudeMinutes = d.Text9.texte;
  o.hauteurOeil = d.Text10.texte;
  o.collimation = d.Text11.texte;
  o.lectureMinutes = d.Text12.texte;
  o.lectureDegres = d.Text13.texte;
  o.lectureFraction = d.Text25.texte;
  o.couleurFraction = d.Text25.couleur;
  o.sud = d.OptN[1].choisi;
  o.est = d.OptE[0].choisi;
  o.fraction = d.Option4[0].choisi ? Fraction::Secondes : Fraction::Centiemes;
  o.bord = static_cast<Bord>(Choisie(d.Option6));
  o.horizon = static_cast<Horizon>(Choisie(d.Option5));
  o.corps = static_cast<Corps>(Choisie(d.Option7));
  o.planete = d.Combo7.rang;
  o.etoile = d.Combo6.rang;
  return o;
}

void PoseChamps(Bureau &bureau, const Observation &o) {
  Donnees &d = bureau.donnees;
  const auto pose = [&](Controle &champ, const std::string &texte) { PoseTexte(bureau, champ, texte); };
  pose(d.Text3, o.heure);
  pose(d.Text4, o.minute);
  pose(d.Text5, o.seconde);
  pose(d.TDate[0], o.jour);
  pose(d.TDate[1], o.mois);
  pose(d.TDate[2], o.annee);
  pose(d.Text6, o.longitudeDegres);
  pose(d.Text7, o.longitudeMinutes);
  pose(d.Text8, o.latitudeDegres);
  pose(d.Text9, o.latitudeMinutes);
  pose(d.Text10, o.hauteurOeil);
  pose(d.Text11, o.collimation);
  pose(d.Text12, o.lectureMinutes);
  pose(d.Text13, o.lectureDegres);
  pose(d.Text25, o.lectureFraction);
  PoseOption(bureau, d.OptN[o.sud ? 1 : 0]);
  PoseOption(bureau, d.OptE[o.est ? 0 : 1]);
}

void PoseListeDuCorps(Bureau &bureau, int corps, int rang) {
  if (corps == static_cast<int>(Corps::Etoiles)) {
    PoseRang(bureau, bureau.donnees.Combo6, rang, kNombreEtoiles);
  } else if (corps == static_cast<int>(Corps::Planetes)) {
    PoseRang(bureau, bureau.donnees.Combo7, rang, kNombrePlanetes);
  }
}

bool PoseAstre(Bureau &bureau, const Astre &astre) {
  const bool etoile = astre.genre == GenreAstre::Etoile;
  if (astre.genre == GenreAstre::Belier || (etoile && (astre.rang < 1 || astre.rang > kNombreEtoiles))) {
    return false;
  }
  const Corps corps = etoile                              ? Corps::Etoiles
                      : astre.genre == GenreAstre::Soleil ? Corps::Soleil
                      : astre.genre == GenreAstre::Lune   ? Corps::Lune
                                                          : Corps::Planetes;
  const int place = etoile ? astre.rang - 1 : static_cast<int>(astre.genre) - static_cast<int>(GenreAstre::Venus);
  PoseOption(bureau, bureau.donnees.Option7.at(static_cast<std::size_t>(corps)));
  SelAstre(bureau, static_cast<int>(corps));
  PoseListeDuCorps(bureau, static_cast<int>(corps), place);
  return true;
}

void PoseLatitudeEstimee(Bureau &bureau, double degres) {
  Donnees &d = bureau.donnees;
  PoseOption(bureau, d.OptN[degres >= 0 ? 0 : 1]);
  PoseAngleEntier(bureau, d.Text8, d.Text9, degres);
}

void PoseLongitudeEstimee(Bureau &bureau, double degres) {
  Donnees &d = bureau.donnees;
  PoseOption(bureau, d.OptE[degres >= 0 ? 0 : 1]);
  PoseAngleEntier(bureau, d.Text6, d.Text7, degres);
}

void PoseReduction(Bureau &bureau, const Observation &observation) {
  Donnees &d = bureau.donnees;
  PoseTexte(bureau, d.Text10, observation.hauteurOeil);
  PoseTexte(bureau, d.Text11, observation.collimation);
  PoseTexte(bureau, d.Text12, observation.lectureMinutes);
  PoseTexte(bureau, d.Text13, observation.lectureDegres);
  PoseTexte(bureau, d.Text25, observation.lectureFraction);
  d.Text25.couleur = observation.couleurFraction;
}

void TDate_Quitte(Bureau &bureau, int indice) {
  Controle &champ = bureau.donnees.TDate.at(static_cast<std::size_t>(indice));
  const auto [minimum, maximum] = BornesDe(bureau, champ);
  std::string texte;
  const double valeur = Val(champ.texte);
  if (valeur >= minimum && valeur <= maximum) {
    const bool annee = indice == 2;
    texte = Format(annee && valeur < 100 ? valeur + 2000.0 : valeur, annee ? "0000" : "00");
  }
  PoseTexte(bureau, champ, texte);
}

void Text3_Quitte(Bureau &bureau, int /*indice*/) {
  if (QuitteMinutes(bureau, bureau.donnees.Text3)) {
    ConseilBordLune(bureau);
  }
}

bool QuitteMinutes(Bureau &bureau, Controle &champ) { return Quitte(bureau, champ, "00"); }

void QuitteDegres(Bureau &bureau, Controle &champ) { Quitte(bureau, champ, "#00"); }

void Text10_Quitte(Bureau &bureau, int /*indice*/) { QuitteVirgule(bureau, bureau.donnees.Text10); }

void Text11_Quitte(Bureau &bureau, int /*indice*/) { QuitteVirgule(bureau, bureau.donnees.Text11); }

void Text13_Quitte(Bureau &bureau, int /*indice*/) { Quitte(bureau, bureau.donnees.Text13, "00"); }

void TDate_Change(Bureau &bureau, int /*indice*/) {
  Donnees &d = bureau.donnees;
  d.Label1.legende = d.Label1.texte;
  Passe([&] {
    const ValeurDate date = LitDate(d.TDate[0].texte + "/" + d.TDate[1].texte + "/" + d.TDate[2].texte);
    d.Label1.legende = PremiereMajuscule(bureau.ports.nomJour(date)) + " :";
    ConseilBordLune(bureau);
  });
}

void Text25_Change(Bureau &bureau, int /*indice*/) {
  std::string &texte = bureau.donnees.Text25.texte;
  texte = Gauche(texte, 2);
}

void Option4_Click(Bureau &bureau, int indice) {
  Donnees &d = bureau.donnees;
  const bool secondes = indice == 0;
  d.Label9.visible = secondes;
  d.Label68.legende = secondes ? "''" : "'";
  d.Label69.visible = !d.Label9.visible;
  EcritReglage(bureau, "Prec", std::to_string(indice));
}

void Option5_Relache(Bureau &bureau, int /*indice*/) {
  Donnees &d = bureau.donnees;
  const bool artificiel = d.Option5[1].choisi;
  PoseOption(bureau, d.Option6[artificiel ? 2 : 1]);
  PermetBords(d, !artificiel);
  for (Controle *champ : {&d.Text12, &d.Text13, &d.Text25}) {
    champ->couleur = artificiel ? kRouge : kNoir;
  }
}

void PoseHeureGMT(Bureau &bureau) {
  const Horloge &h = bureau.horloge;
  Donnees &d = bureau.donnees;
  PoseTexte(bureau, d.Text3, Format(h.HeureGMT.substr(0, 2), "00"));
  PoseTexte(bureau, d.Text4, Format(h.HeureGMT.substr(3, 2), "00"));
  PoseTexte(bureau, d.Text5, Format(h.HeureGMT.substr(6, 2), "00"));
  PoseTexte(bureau, d.TDate[0], h.JourGMT);
  PoseTexte(bureau, d.TDate[1], h.MoisGMT);
  PoseTexte(bureau, d.TDate[2], h.AnGMT);
}

void Command1_Click(Bureau &bureau, int /*indice*/) {
  LitHorloge(bureau.horloge);
  PoseHeureGMT(bureau);
  bureau.focus = &bureau.donnees.Text13;
}

} // namespace velmaris
