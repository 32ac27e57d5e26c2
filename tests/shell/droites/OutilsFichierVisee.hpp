#pragma once

#include "tests/shell/ecran/OutilsDialogue.hpp"

#include "foundations/TexteNombre.hpp"
#include "lines/FichierLoP.hpp"
#include "shell/droites/FichierVisee.hpp"

namespace velmaris::essais {

/// The program with a user who saves and loads sights.
class AvecFichiers : public AvecDialogue {
protected:
  /// "Sauve" under a name or a path.
  void Sauve(const std::string &nom) {
    Jouera([this, nom] { Donne(nom); });
    ClicControle(bureau, d.Command3);
  }

  /// "Ouvre" on a name or a path.
  void Ouvre(const std::string &nom) {
    Jouera([this, nom] { Donne(nom); });
    ClicControle(bureau, d.Command4);
  }

  /// "Ouvre" on a file that holds these bytes.
  void OuvreOctets(const std::string &octets) {
    Pose(lieu / "in.LoP", octets);
    Ouvre("in.LoP");
  }

  static std::string Joint(const std::vector<std::string> &lignes, const std::string &fin = "\r\n") {
    std::string texte;
    for (const std::string &ligne : lignes) {
      texte += ligne + fin;
    }
    return texte;
  }

  /// A whole file of the Sun, each field of its own.
  static std::vector<std::string> LignesSoleil() {
    return {"12",  "05", "31", "16",  "03",  "2009", "006", "07",   "048", "09", "2,5",
            "1,5", "22", "33", "Sud", "Est", "44",   " 0 ", "NATU", " 1 ", "0"};
  }

  /// The Sun's file with one line changed.
  void OuvreAvec(std::size_t numero, const std::string &ligne) {
    auto lignes = LignesSoleil();
    lignes.at(numero) = ligne;
    OuvreOctets(Joint(lignes));
  }

  /// A file of that body, its place in the list as a 22nd line.
  void OuvreCorps(const std::string &corps, const std::string &rang) {
    auto lignes = LignesSoleil();
    lignes[17] = corps;
    lignes[19] = " 2 ";
    lignes.push_back(rang);
    OuvreOctets(Joint(lignes));
  }

  /// What the panel holds, as its file would.
  std::string Panneau() const { return EcritLoP(LitPanneau(d)); }

  void Garde(int ligne) {
    ClicOption(bureau, d.Option1[0]);
    ClicControle(bureau, d.Droite[static_cast<std::size_t>(ligne)]);
  }

  void Affiche(int ligne) {
    ClicOption(bureau, d.Option1[2]);
    ClicControle(bureau, d.Droite[static_cast<std::size_t>(ligne)]);
  }

  template <std::size_t N> static int Choisie(const std::array<Controle, N> &options) {
    for (std::size_t i = 0; i < N; ++i) {
      if (options[i].choisi) {
        return static_cast<int>(i);
      }
    }
    return -1;
  }

  /// No line is on the sheet, and there is none.
  void SansFeuille() const {
    EXPECT_EQ(bureau.feuille.OrigineFeuille, kSansFeuille);
    EXPECT_EQ(d.LabLon.legende + d.LabLat.legende, "");
    EXPECT_EQ(bureau.transports.ListeTransportDroite + bureau.transports.ListeTransportEstime +
                  bureau.transports.CibleTransport,
              "");
    EXPECT_TRUE(d.Option1[2].choisi);
    for (std::size_t i = 0; i < 4; ++i) {
      EXPECT_FALSE(bureau.impression.Frame4[i].visible) << i;
    }
    ToutesHorsFeuille();
  }

  /// The labels of the four lines are dark blue.
  void ToutesHorsFeuille() const {
    for (std::size_t i = 0; i < 4; ++i) {
      EXPECT_EQ(d.LHeure[i].couleur, 0x800000U) << i;
      EXPECT_EQ(d.Ldate[i].couleur, 0x800000U) << i;
    }
  }
};

} // namespace velmaris::essais
