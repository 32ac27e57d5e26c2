#include "shell/registre/LectureRegistre.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/registre/LecteurRegistre.hpp"

#include <algorithm>
#include <chrono>
#include <string_view>
#include <system_error>
#include <utility>

namespace velmaris {
namespace {

constexpr const char *kMasques = "masques.csv";
constexpr const char *kMontre = "montre.csv";
constexpr std::size_t kChoixGardes = 1000; ///< chosen rows that are looked for again

/// What a reading takes along: copies, and what nobody changes.
struct Commande {
  std::filesystem::path dossier;
  std::shared_ptr<const RegistreLu> avant;
  std::vector<std::string> masquesEnAttente, relevesEnAttente;
  FiltreRegistre filtre;
  std::shared_ptr<std::atomic<std::uint64_t>> demande;
  std::uint64_t numero = 0;
};

/// What it brings.
struct Lecture {
  std::shared_ptr<const RegistreLu> lu;
  std::shared_ptr<const Annotations> annotations;
  std::vector<ReleveMontre> montre;
  std::shared_ptr<const std::vector<std::size_t>> montrees;
};

/// A file's octets, with the lines that wait to be appended to it.
std::string Octets(const std::filesystem::path &chemin, const std::vector<std::string> &enAttente) {
  std::string octets;
  Passe([&] { octets = LitFichier(chemin); });
  for (const std::string &ligne : enAttente) {
    octets += "\n" + ligne;
  }
  return octets;
}

Lecture Lit(const Commande &c) {
  Lecture l;
  l.lu = LitRegistre(c.dossier, c.avant);
  l.annotations = std::make_shared<const Annotations>(LitAnnotations(Octets(c.dossier / kMasques, c.masquesEnAttente)));
  l.montre = LitMontre(Octets(c.dossier / kMontre, c.relevesEnAttente));
  l.montrees = std::make_shared<const std::vector<std::size_t>>(Filtre(*l.lu, *l.annotations, c.filtre));
  return l;
}

/// The kind of body that words begin the name of, in the language of the moment.
std::optional<Corps> CorpsNomme(const Donnees &d, const std::string &mots) {
  constexpr std::size_t kAssez = 3;
  const std::string debut = EnCapitales(mots);
  for (std::size_t i = 0; i < d.Option7.size() && debut.size() >= kAssez; ++i) {
    if (EnCapitales(SansBlancs(d.Option7.at(i).legende)).starts_with(debut)) {
      return static_cast<Corps>(i);
    }
  }
  return std::nullopt;
}

FiltreRegistre FiltreVoulu(const Bureau &bureau) {
  const Registre &f = bureau.registre;
  return {f.Text1[0].texte, f.Text1[1].texte, CorpsNomme(bureau.donnees, f.Text1[1].texte), f.Text1[2].texte,
          f.Check1.valeur == 1};
}

std::vector<std::string> IdentitesChoisies(const Bureau &bureau) {
  const RegistreOuvert &r = bureau.registreOuvert;
  const Tableau &t = bureau.registre.Table1.tableau;
  std::vector<std::string> identites;
  for (const std::size_t ligne : t.choisies) {
    identites.push_back(IdentiteDe(*r.lu, RangMontre(r, ligne)));
    if (identites.size() == kChoixGardes) {
      break;
    }
  }
  return identites;
}

/// Shows what a reading has brought. The first one puts the keyboard at the newest row.
void Prend(Bureau &bureau, Lecture lecture, std::uint64_t numero) {
  RegistreOuvert &r = bureau.registreOuvert;
  Tableau &t = bureau.registre.Table1.tableau;
  const std::vector<std::string> choisies = IdentitesChoisies(bureau);
  const std::string courante =
      t.courante == kSansLigne ? "" : IdentiteDe(*r.lu, RangMontre(r, static_cast<std::size_t>(t.courante)));
  const int premiere = t.premiere;
  const bool neuf = r.lu == nullptr;
  r.rendue = numero;
  r.versionMontre += lecture.montre != r.montre ? 1 : 0;
  r.lu = std::move(lecture.lu);
  r.annotations = std::move(lecture.annotations);
  r.montre = std::move(lecture.montre);
  r.montrees = std::move(lecture.montrees);
  PoseLignes(t, r.montrees->size(), LecteurDuRegistre(bureau));
  t.choisies = RangsDe(*r.lu, *r.montrees, choisies);
  const std::vector<std::size_t> ici =
      courante.empty() ? std::vector<std::size_t>() : RangsDe(*r.lu, *r.montrees, {courante});
  t.courante = ici.empty() ? kSansLigne : static_cast<int>(ici.front());
  if (neuf && !r.montrees->empty()) {
    t.courante = 0;
  }
  t.premiere = t.courante == kSansLigne ? 0 : premiere;
}

/// Appends what waits.
/// @return false when the file can't be written: that is told once, and nothing waits any more
bool Inscrit(Bureau &bureau, const char *nom, std::string_view titres, LignesEnAttente &attente, Patience &patience) {
  const std::filesystem::path chemin = bureau.dossiers.utilisateur / nom;
  std::error_code refus;
  std::filesystem::create_directories(chemin.parent_path(), refus);
  bool libre = false;
  if (!Passe([&] { libre = AjouteLignes(chemin, titres, attente.lignes, patience); })) {
    attente.lignes.clear();
    if (!std::exchange(attente.refusDit, true)) {
      bureau.ports.boite(
          {.texte = bureau.registre.TexteMuet.legende + "\n" + chemin.string(), .icone = Icone::Attention});
    }
    return false;
  }
  if (libre) {
    attente.lignes.clear();
    attente.patience.Refait();
    attente.refusDit = false;
  }
  return true;
}

/// A reading that takes the place of all that were asked for before.
Commande CommandeNeuve(const Bureau &bureau) {
  const RegistreOuvert &r = bureau.registreOuvert;
  const std::uint64_t numero = ++*r.demande;
  return {
      bureau.dossiers.utilisateur, r.lu, r.masques.lignes, r.releves.lignes, FiltreVoulu(bureau), r.demande, numero};
}

} // namespace

void DemandeRegistre(Bureau &bureau) {
  bureau.ports.travaille([commande = CommandeNeuve(bureau), &bureau]() -> std::function<void()> {
    if (*commande.demande != commande.numero) {
      return [] {};
    }
    return [lecture = Lit(commande), numero = commande.numero, &bureau] {
      if (*bureau.registreOuvert.demande == numero) {
        Prend(bureau, lecture, numero);
      }
    };
  });
}

void LitRegistreAussitot(Bureau &bureau) {
  const Commande commande = CommandeNeuve(bureau);
  Prend(bureau, Lit(commande), commande.numero);
}

void BatRegistre(Bureau &bureau) {
  RegistreOuvert &r = bureau.registreOuvert;
  Patience aucune(std::chrono::nanoseconds::zero());
  if (!r.masques.lignes.empty()) {
    Inscrit(bureau, kMasques, kTitresMasques, r.masques, aucune);
  }
  if (!r.releves.lignes.empty()) {
    Inscrit(bureau, kMontre, kTitresMontre, r.releves, aucune);
  }
  const bool seul = r.lu != nullptr && r.rendue == *r.demande; // no reading is under way
  if (bureau.registre.cadre.visible && seul && !EstAJour(bureau.dossiers.utilisateur, *r.lu)) {
    DemandeRegistre(bureau);
  }
}

void Annote(Bureau &bureau, const std::vector<std::string> &identites, const std::function<void(Annotation &)> &dit) {
  RegistreOuvert &r = bureau.registreOuvert;
  const std::string utc = InstantPresent(bureau);
  Annotations neuves = *r.annotations;
  const std::size_t avant = r.masques.lignes.size();
  for (const std::string &identite : identites) {
    Annotation annotation = AnnotationDe(r, identite);
    dit(annotation);
    if (annotation != AnnotationDe(r, identite)) {
      r.masques.lignes.push_back(LigneAnnotation(utc, identite, annotation));
      neuves[identite] = std::move(annotation);
    }
  }
  if (r.masques.lignes.size() == avant) {
    return;
  }
  if (Inscrit(bureau, kMasques, kTitresMasques, r.masques, r.masques.patience)) {
    r.annotations = std::make_shared<const Annotations>(std::move(neuves));
    ++bureau.registre.Table1.tableau.version;
  }
  DemandeRegistre(bureau);
}

void AjouteReleve(Bureau &bureau, const ReleveMontre &releve) {
  RegistreOuvert &r = bureau.registreOuvert;
  r.releves.lignes.push_back(LigneMontre(releve));
  Inscrit(bureau, kMontre, kTitresMontre, r.releves, r.releves.patience);
  DemandeRegistre(bureau);
}

std::string InstantPresent(const Bureau &bureau) {
  const auto moment = std::chrono::floor<std::chrono::seconds>(MomentDe(bureau.horloge.source()));
  return EcritInstant(moment.time_since_epoch().count());
}

} // namespace velmaris
