#include "shell/droites/MemoireDroites.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"
#include "lines/DroiteMemoire.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/bureau/Valeurs.hpp"
#include "shell/visee/Astres.hpp"
#include "shell/visee/Saisie.hpp"

namespace velmaris {
namespace {

void Garde(Bureau &bureau, const std::vector<CleValeur> &cles) {
  bureau.valeurs->Ensemble([&] {
    for (const CleValeur &c : cles) {
      bureau.valeurs->SaveSetting(kApplication, kSection, c.cle, c.valeur);
    }
  });
  SignaleMagasin(bureau);
}

/// A stored line as it is read: its choices by number, also those that don't exist.
struct DroiteLue {
  int corps = 0;
  int rang = 0; ///< of the star or the planet
  int bord = 1;
  int horizon = 0;
  int fraction = 1;
  Observation textes; ///< texts and sides
};

/// Reads a whole line at one moment of the store.
DroiteLue LitDroite(Bureau &bureau, int ligne) {
  DroiteLue lue;
  lue.textes = LitPanneau(bureau.donnees);
  const auto nombre = [&](const char *champ, int absent) {
    const std::string texte = LitChampDroite(bureau, champ, ligne);
    return texte.empty() ? absent : NombreRegle(texte);
  };
  bureau.valeurs->EnsembleLu([&] {
    lue.corps = nombre("AS(", 0);
    lue.bord = nombre("Bord(", 1);
    lue.horizon = nombre("Hor(", 0);
    lue.rang = nombre(lue.corps == static_cast<int>(Corps::Etoiles) ? "Combo6(" : "Combo7(", 0);
    lue.fraction = nombre("O4(", 1);
    LitTextesEnregistres(
        ligne, [&](const std::string &cle) { return LitReglage(bureau, cle); }, lue.textes);
  });
  return lue;
}

} // namespace

std::string LitChampDroite(const Bureau &bureau, std::string_view champ, int ligne) {
  return LitReglage(bureau, CleDroite(champ, ligne));
}

void EnregistreDroite(Bureau &bureau, int ligne) {
  Garde(bureau, ClesEnregistrees(ligne, LitPanneau(bureau.donnees), bureau.NomAstre, bureau.visee));
}

void EffaceDroite(Bureau &bureau, int ligne) { Garde(bureau, ClesEffacees(ligne)); }

void ChargeDroite(Bureau &bureau, int ligne) {
  Donnees &d = bureau.donnees;
  const DroiteLue lue = LitDroite(bureau, ligne);
  PoseChoix(bureau, d.Option5, lue.horizon);
  Option5_Relache(bureau, -1);
  PoseChoix(bureau, d.Option7, lue.corps);
  SelAstre(bureau, lue.corps);
  PoseChoix(bureau, d.Option6, lue.bord);
  PoseListeDuCorps(bureau, lue.corps, lue.rang);
  PoseChoix(bureau, d.Option4, lue.fraction);
  PoseChamps(bureau, lue.textes);
}

std::optional<Observation> ObservationGardee(Bureau &bureau, int ligne) {
  if (LitChampDroite(bureau, "AS(", ligne).empty()) {
    return std::nullopt;
  }
  const DroiteLue lue = LitDroite(bureau, ligne);
  const auto choix = [](int numero, int aucun) { return numero >= 0 && numero < aucun ? numero : aucun; };
  Observation o = lue.textes;
  o.corps = static_cast<Corps>(choix(lue.corps, static_cast<int>(Corps::Aucun)));
  o.planete = o.corps == Corps::Planetes && lue.rang < kNombrePlanetes ? lue.rang : -1;
  o.etoile = o.corps == Corps::Etoiles && lue.rang < kNombreEtoiles ? lue.rang : -1;
  o.bord = static_cast<Bord>(choix(lue.bord, static_cast<int>(Bord::Aucun)));
  o.horizon = static_cast<Horizon>(choix(lue.horizon, static_cast<int>(Horizon::Aucun)));
  o.fraction = lue.fraction == 0 ? Fraction::Secondes : Fraction::Centiemes;
  return o;
}

void MajListeDroites(Bureau &bureau) {
  Donnees &d = bureau.donnees;
  bureau.valeurs->EnsembleLu([&] {
    for (std::size_t i = 0; i < d.Droite.size(); ++i) {
      const auto lit = [&](const char *champ) { return LitChampDroite(bureau, champ, static_cast<int>(i)); };
      if (const std::string jour = lit("Td0("); !jour.empty()) {
        d.Ldate[i].legende = jour + " / " + lit("Td1(") + " / " + lit("Td2(");
      }
      if (const std::string heure = lit("T3("); !heure.empty()) {
        d.LHeure[i].legende = heure + ":" + lit("T4(") + ":" + lit("T5(");
      }
      if (const std::string nom = lit("Nom("); !nom.empty()) {
        d.Droite[i].infobulle = nom;
      }
    }
  });
}

void PublieLigneImpression(Bureau &bureau, int rangee, int ligne) {
  const Donnees &d = bureau.donnees;
  const auto r = static_cast<std::size_t>(rangee);
  Impression &page = bureau.impression;
  page.Frame4.at(r).visible = true;
  page.Frame4[r].legende = "    " + std::to_string(ligne + 1) + "°  Droite :";
  page.Label32[r].legende = d.Text3.texte + " : " + d.Text4.texte + " : " + d.Text5.texte;
  page.Label33[r].legende = d.Text8.texte + "° " + d.Text9.texte + "'" + (d.OptN[0].choisi ? " N" : " S");
  page.Label34[r].legende = d.Text6.texte + "° " + d.Text7.texte + "'" + (d.OptE[0].choisi ? " E" : " W");
  page.Label35[r].legende = Format(bureau.visee.Azimut, "#.##");
  page.Label36[r].legende = Format(bureau.visee.Intercept, "#.##");
}

} // namespace velmaris
