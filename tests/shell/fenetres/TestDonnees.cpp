#include "tests/shell/bureau/OutilsBureau.hpp"

#include <map>
#include <set>

namespace velmaris::essais {
namespace {

TEST_F(Programme, TheTableNamesEachControlOnce) {
  std::set<std::pair<std::string, int>> noms;
  std::set<const Controle *> controles;
  PourChaque(d, [&](const LigneDonnees &ligne, const Controle &c) {
    EXPECT_TRUE(noms.emplace(ligne.nom, ligne.indice).second) << ligne.nom << " " << ligne.indice;
    EXPECT_TRUE(controles.insert(&c).second) << ligne.nom;
    EXPECT_EQ(c.nom, ligne.nom);
    EXPECT_EQ(Cherche(d, ligne.nom, ligne.indice), &c);
  });
  EXPECT_EQ(sizeof(Donnees), controles.size() * sizeof(Controle)) << "a control of the record stands in no table";
  EXPECT_EQ(Cherche(d, "Nulle"), nullptr);
}

TEST_F(Programme, EveryControlLiesWithinItsParentWhichComesFirst) {
  std::map<std::string, Place, std::less<>> parents;
  PourChaque(d, [&](const LigneDonnees &ligne, const Controle &c) {
    if (!ligne.parent.empty() && ligne.parent != "Image1") {
      const auto parent = parents.find(ligne.parent);
      ASSERT_NE(parent, parents.end()) << ligne.nom;
      EXPECT_GE(c.place.gauche, 0) << ligne.nom;
      EXPECT_GE(c.place.haut, 0) << ligne.nom;
      EXPECT_LE(c.place.gauche + c.place.largeur, parent->second.largeur) << ligne.nom;
      EXPECT_LE(c.place.haut + c.place.hauteur, parent->second.hauteur) << ligne.nom;
    }
    parents.emplace(ligne.nom, c.place);
  });
}

TEST_F(Programme, TheToolbarFitsTheNarrowestScreen) {
  PourChaque(d, [&](const LigneDonnees &ligne, const Controle &c) {
    if (ligne.parent == "Frame3") {
      EXPECT_LE(20 + c.place.gauche + c.place.largeur, 15360) << ligne.nom;
    }
  });
}

TEST_F(Programme, TheComplementsHaveTheirButtonsWhereTheScreenHasRoom) {
  Demarre({20148, 12592.5, 1200}); // 1920 by 1200
  EXPECT_TRUE(d.FrameComplements.visible);
  EXPECT_GE(d.FrameComplements.place.gauche, d.Frame3.place.gauche + d.Frame3.place.largeur);
  ClicControle(bureau, d.Complement[1]);
  EXPECT_TRUE(bureau.registre.cadre.visible);
  ClicControle(bureau, d.Complement[3]);
  EXPECT_TRUE(bureau.preparation.cadre.visible);
  ClicControle(bureau, d.Complement[5]);
  EXPECT_TRUE(bureau.fenetreExercice.cadre.visible);
  ClicControle(bureau, d.Complement[2]);
  EXPECT_TRUE(bureau.fenetrePoint.cadre.visible);
  ClicControle(bureau, d.Complement[4]);
  EXPECT_TRUE(bureau.fenetreSerie.cadre.visible);
  ClicControle(bureau, d.Complement[6]);
  EXPECT_TRUE(bureau.fenetrePapier.cadre.visible);
  Demarre({15360, 11520, 768}); // 1024 by 768
  EXPECT_FALSE(d.FrameComplements.visible);
}

TEST_F(Programme, TheComplementsButtonsGoApartWhereTheScreenIsWiderAndStayInTheirFrame) {
  double avant = 0;
  for (const double largeur : {20148.0, 20400.0, 23000.0}) {
    Demarre({largeur, 12592.5, 1080});
    const Place &cadre = d.FrameComplements.place;
    EXPECT_LE(cadre.gauche + cadre.largeur, largeur);
    EXPECT_LE(d.LegendeComplement[6].place.gauche + d.LegendeComplement[6].place.largeur, cadre.largeur);
    const double pas = d.Complement[1].place.gauche - d.Complement[0].place.gauche;
    EXPECT_GT(pas, avant);
    avant = pas;
  }
  EXPECT_EQ(avant, 650);
}

TEST_F(Programme, NoTwoControlsThatShowTogetherOverlap) {
  for (const int pixels : {1080, 600}) {
    Demarre({15360, pixels * 15.0, pixels});
    std::map<std::string, std::vector<const Controle *>, std::less<>> fratries;
    PourChaque(d, [&](const LigneDonnees &ligne, const Controle &c) {
      const bool ailleurs = ligne.parent.empty() || ligne.parent == "Image1";
      if (!ailleurs && c.visible && c.place.largeur > 0) {
        fratries[std::string(ligne.parent)].push_back(&c);
      }
    });
    for (const auto &[parent, enfants] : fratries) {
      for (std::size_t i = 0; i < enfants.size(); ++i) {
        for (std::size_t j = i + 1; j < enfants.size(); ++j) {
          const Place &a = enfants[i]->place;
          const Place &b = enfants[j]->place;
          const bool separes = a.gauche + a.largeur <= b.gauche || b.gauche + b.largeur <= a.gauche ||
                               a.haut + a.hauteur <= b.haut || b.haut + b.hauteur <= a.haut;
          EXPECT_TRUE(separes) << parent << ": " << enfants[i]->nom << " " << enfants[i]->indice << " / "
                               << enfants[j]->nom << " " << enfants[j]->indice << " at " << pixels;
        }
      }
    }
  }
}

TEST_F(Programme, EveryCommandDoesSomething) {
  PourChaque(d, [&](const LigneDonnees &, const Controle &c) {
    if (c.genre == Genre::Bouton || (c.genre == Genre::Entree && c.nom != "PU_Exit")) {
      EXPECT_TRUE(Ecoute(c, Evenement::Clic)) << c.nom << " pretends";
    }
  });
}

TEST_F(Programme, EveryFieldListAndSliderIsNamedForAScreenReader) {
  PourChaque(d, [&](const LigneDonnees &ligne, const Controle &c) {
    const bool saisie = c.genre == Genre::Champ || c.genre == Genre::Curseur || c.genre == Genre::Liste;
    if (saisie) {
      ASSERT_FALSE(ligne.traits.par.empty()) << ligne.nom;
      EXPECT_NE(Cherche(d, ligne.traits.par, ligne.traits.parIndice), nullptr) << ligne.nom;
    }
  });
}

} // namespace
} // namespace velmaris::essais
