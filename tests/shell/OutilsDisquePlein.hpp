#pragma once

#include "shell/visee/Journal.hpp"
#include "tests/shell/droites/OutilsFichierVisee.hpp"

#include <algorithm>
#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

namespace velmaris::essais {

namespace fs = std::filesystem;

/// The user's data folder on a small disk of its own, that can be filled.
class DisquePlein : public AvecFichiers {
protected:
  void SetUp() override {
    if (::geteuid() != 0) {
      GTEST_SKIP() << "a small disk can only be mounted by the administrator";
    }
    fs::create_directories(disque);
    // In a mount namespace of this process alone: nobody else sees the disk, and it goes with the process.
    if (::unshare(CLONE_NEWNS) != 0 || ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        ::mount("velmaris", disque.c_str(), "tmpfs", 0, "size=512k") != 0) {
      GTEST_SKIP() << "no small disk can be mounted here";
    }
    monte = true;
    Recommence();
  }

  void TearDown() override {
    autre.reset();
    bureau.valeurs.reset();
    if (monte) {
      ::umount2(disque.c_str(), MNT_DETACH);
    }
  }

  /// The store of the program at hand is opened anew on the small disk.
  void Recommence() {
    bureau.dossiers.utilisateur = disque;
    bureau.valeurs = std::make_unique<Valeurs>(disque / "valeurs.sqlite");
    bureau.magasinSignale = EtatMagasin::Sain;
    bureau.journalSignale = false;
    boites.clear();
  }

  /// Fills the disk but for some blocks.
  void Remplit(int blocsLibres = 0) {
    const int bourre = ::open((disque / "bourre").c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    constexpr std::size_t kBloc = 4096;
    const std::string bloc(kBloc, 'x');
    while (::write(bourre, bloc.data(), bloc.size()) == static_cast<ssize_t>(kBloc)) {
    }
    const off_t taille = ::lseek(bourre, 0, SEEK_END);
    ASSERT_EQ(::ftruncate(bourre, std::max<off_t>(0, taille - blocsLibres * static_cast<off_t>(kBloc))), 0);
    ::close(bourre);
  }
  void Libere() { fs::remove(disque / "bourre"); }

  /// Takes the disk back to its first state.
  void Nettoie() {
    bureau.valeurs.reset();
    for (const auto &entree : fs::directory_iterator(disque)) {
      fs::remove_all(entree.path());
    }
    Recommence();
  }

  /// A second program that starts on the same folder; what it has to tell is in `boites`.
  Bureau &Redemarre() {
    boites.clear();
    autre = std::make_unique<Bureau>();
    Branche(*autre);
    autre->dossiers = bureau.dossiers;
    Donnees_Charge(*autre, {});
    autre->donnees.Check2.valeur = 0;
    return *autre;
  }

  /// What a program shows of a stored line: all the fields, as its file would have them.
  static std::string DroiteDe(Bureau &programme, int ligne) {
    ClicOption(programme, programme.donnees.Option1[2]);
    ClicControle(programme, programme.donnees.Droite[static_cast<std::size_t>(ligne)]);
    return EcritLoP(LitPanneau(programme.donnees));
  }

  /// Two sights that differ in every text that is typed.
  void TapePremiere() {
    TapeVisee();
    Tape(d.Text11, "-1.5");
  }
  void TapeSeconde() {
    Tape(d.TDate[0], "22");
    Tape(d.TDate[1], "7");
    Tape(d.TDate[2], "2025");
    Tape(d.Text3, "14");
    Tape(d.Text4, "6");
    Tape(d.Text5, "31");
    Tape(d.Text8, "46");
    Tape(d.Text9, "31");
    Tape(d.Text6, "6");
    Tape(d.Text7, "11");
    Tape(d.Text13, "55");
    Tape(d.Text12, "35");
    Tape(d.Text25, "39");
    Tape(d.Text11, "-2.5");
    Tape(d.Text10, "3.5");
  }

  std::size_t BoitesQuiDisent(const std::string &texte) const {
    return static_cast<std::size_t>(std::count_if(
        boites.begin(), boites.end(), [&](const Boite &b) { return b.texte.find(texte) != std::string::npos; }));
  }

  /// Nothing half written lies about.
  void SansReste(const fs::path &dossierLu) const {
    for (const auto &entree : fs::directory_iterator(dossierLu)) {
      const std::string nom = entree.path().filename().string();
      EXPECT_TRUE(nom == "bourre" || nom == "journal.csv" || nom == "valeurs.sqlite" || nom.ends_with(".txt") ||
                  nom.ends_with(".LoP"))
          << nom;
    }
  }

  fs::path disque = dossier / "disque";
  std::unique_ptr<Bureau> autre;
  bool monte = false;
};

} // namespace velmaris::essais
