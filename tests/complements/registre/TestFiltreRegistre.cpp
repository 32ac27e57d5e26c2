#include "OutilsRegistre.hpp"

#include "complements/registre/FiltreRegistre.hpp"

#include <gmock/gmock.h>

/// Which rows of the log are shown.
namespace velmaris::essais {
namespace {

using testing::ElementsAre;

class FiltreDuRegistre : public ::testing::Test {
protected:
  FiltreDuRegistre() {
    std::string venus = LigneMain("22,6,2026", "4,0,0", Suite("venus"));
    venus.replace(venus.find("Soleil,Soleil"), 13, "Planètes,Venus");
    std::string vega = LigneMain("21,7,2025", "23,59,59", Suite("vega"));
    vega.replace(vega.find("Soleil,Soleil"), 13, "Etoiles,Vega");
    Pose(dossier / "journal.csv",
         JournalDe(LigneMain("21,6,2026", "12,0,0", Suite("midi")) + "\n" + venus + "\n" + vega + "\n"));
    registre = LitRegistre(dossier.chemin());
  }

  std::vector<std::string> Montre(const FiltreRegistre &filtre, const Annotations &annotations = {}) {
    std::vector<std::string> identites;
    for (const std::size_t rang : Filtre(*registre, annotations, filtre)) {
      identites.push_back(IdentiteDe(*registre, rang));
    }
    return identites;
  }

  DossierTemporaire dossier;
  std::shared_ptr<const RegistreLu> registre;
};

TEST_F(FiltreDuRegistre, NoLimitShowsAll) { EXPECT_THAT(Montre({}), ElementsAre("venus", "midi", "vega")); }

TEST_F(FiltreDuRegistre, ABodyIsFoundByItsNameOrItsKindInAnyCase) {
  EXPECT_THAT(Montre({.astre = "vEG"}), ElementsAre("vega"));
  EXPECT_THAT(Montre({.astre = "etoile"}), ElementsAre("vega"));
  EXPECT_THAT(Montre({.astre = "soleil"}), ElementsAre("midi"));
  EXPECT_THAT(Montre({.astre = "mars"}), ElementsAre());
}

TEST_F(FiltreDuRegistre, ADayAMonthOrAYearIsTakenAsTyped) {
  for (const char *jour : {"21/6/2026", "21/06/2026", "2026-06-21", "21 6 2026"}) {
    EXPECT_THAT(Montre({.jour = jour}), ElementsAre("midi")) << jour;
  }
  EXPECT_THAT(Montre({.jour = "6/2026"}), ElementsAre("venus", "midi"));
  EXPECT_THAT(Montre({.jour = "2026-06"}), ElementsAre("venus", "midi"));
  EXPECT_THAT(Montre({.jour = "2025"}), ElementsAre("vega"));
  EXPECT_THAT(Montre({.jour = "21"}), ElementsAre("midi", "vega"));
  EXPECT_THAT(Montre({.jour = "21/7"}), ElementsAre("vega"));
  EXPECT_FALSE(LitJourCherche("demain"));
  EXPECT_FALSE(LitJourCherche("1/2/3/4"));
  EXPECT_FALSE(LitJourCherche("99999999999"));
  for (const char *texte : {"13/2026", "0/2026", "31/13/2026", "0/1/2026", "2026-13-01", "15/13"}) {
    EXPECT_FALSE(LitJourCherche(texte)) << texte;
  }
  EXPECT_TRUE(LitJourCherche("  "));
}

TEST_F(FiltreDuRegistre, WordsAreLookedForInTheLineAndInItsNote) {
  EXPECT_THAT(Montre({.texte = "190.6"}), ElementsAre("venus", "midi", "vega"));
  EXPECT_THAT(Montre({.texte = "brumE"}, {{"midi", {false, "horizon dans la Brume"}}}), ElementsAre("midi"));
}

TEST_F(FiltreDuRegistre, AHiddenRowShowsWhenHiddenOnesAreAskedFor) {
  const Annotations masques = {{"midi", {true, ""}}, {"vega", {false, "x"}}};
  EXPECT_THAT(Montre({}, masques), ElementsAre("venus", "vega"));
  EXPECT_THAT(Montre({.masquees = true}, masques), ElementsAre("venus", "midi", "vega"));
}

TEST_F(FiltreDuRegistre, LaterLinesOfTheNotesWinAndBrokenOnesCountForNothing) {
  const std::string utc = "2026-06-21T12:05:30Z";
  const std::string octets = std::string(kTitresMasques) + "\n" + LigneAnnotation(utc, "a", {true, "un, \"deux\""}) +
                             "\r\n" + LigneAnnotation(utc, "b", {true, ""}) + "\n" +
                             LigneAnnotation(utc, "b", {false, "=vu"}) + "\nx,y,z\n" +
                             LigneAnnotation(utc, "a", {false, "autre"}).substr(0, 37);
  const Annotations lues = LitAnnotations(octets);
  EXPECT_EQ(lues, (Annotations{{"a", {true, "un, \"deux\""}}, {"b", {false, "=vu"}}}));
}

TEST_F(FiltreDuRegistre, ANoteIsReadBackWhereverInvisibleMarksStandInIt) {
  const std::string marque = "\xEF\xBB\xBF";
  const std::string utc = "2026-06-21T12:05:30Z";
  const Annotations lues =
      LitAnnotations(LigneAnnotation(utc, std::string(1, '\0') + marque + "a", {true, marque + "vu"}));
  EXPECT_EQ(lues, (Annotations{{"a", {true, "vu"}}}));
  EXPECT_TRUE(LitAnnotations(utc + ",\001" + marque + ",masquee,,.").empty()) << "a name of such marks alone is none";
}

TEST_F(FiltreDuRegistre, RowsAreFoundAgainByTheirIdentities) {
  EXPECT_THAT(RangsDe(*registre, {0, 1, 2}, {"vega", "nulle", "venus"}), ElementsAre(0U, 2U));
  EXPECT_THAT(RangsDe(*registre, {1, 2}, {"venus"}), ElementsAre());
  EXPECT_THAT(RangsDe(*registre, {1, 2}, {"vega"}), ElementsAre(1U));
}

} // namespace
} // namespace velmaris::essais
