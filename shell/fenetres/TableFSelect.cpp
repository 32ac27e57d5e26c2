#include "shell/fenetres/Acces.hpp"
#include "shell/fenetres/FSelect.hpp"

namespace velmaris {
namespace {

using Fenetre = FSelect;

// One control a line.
// clang-format off
// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr LigneFSelect kFSelect[] = {
    {SEUL(Label1), Genre::Etiquette, "", {150, 120, 4500, 240}, "&Fichier", "", {.raccourci = true}},
    {SEUL(FName), Genre::Champ, "", {150, 375, 4500, 330}, "", "", {.par = "Label1"}},
    {SEUL(Label2), Genre::Etiquette, "", {150, 825, 4500, 240}, "&Liste", "", {.raccourci = true}},
    {SEUL(File1), Genre::ListeBoite, "", {150, 1080, 4500, 4455}, "", "", {.par = "Label2"}},
    {SEUL(Label3), Genre::Etiquette, "", {4800, 825, 4350, 240}, "&Chemin", "", {.raccourci = true}},
    {SEUL(Dir1), Genre::ListeBoite, "", {4800, 1080, 4350, 4455}, "", "", {.par = "Label3"}},
    {SEUL(Drive1), Genre::Liste, "", {4800, 375, 4350, 330}, "", "", {.par = "TexteVolume"}},
    {SEUL(OK), Genre::Bouton, "", {150, 5715, 1440, 405}, "&Ok", "", {.raccourci = true, .role = Role::Defaut}},
    {SEUL(Quitter), Genre::Bouton, "", {1710, 5715, 1440, 405}, "&Annuler", "", {.raccourci = true, .role = Role::Annule}},
    {SEUL(Command1), Genre::Bouton, "", {7710, 5715, 1440, 405}, "&Supprimer", "", {.raccourci = true}},
    {SEUL(TexteVolume), Genre::Texte, "", {}, "Volume"},
    {SEUL(TexteNom), Genre::Texte, "", {}, "Un nom, un chemin, ou un motif avec * et ?"},
    {SEUL(TexteSansDossier), Genre::Texte, "", {}, "Ce dossier n'existe pas ou ne peut pas être lu :"},
    {SEUL(TexteExiste), Genre::Texte, "", {}, "Ce fichier existe déjà. Le remplacer ?"},
};
// clang-format on

} // namespace

std::span<const LigneFSelect> TableFSelect() { return kFSelect; }

void InitialiseFSelect(FSelect &fenetre) {
  PourChaque(fenetre, [](const LigneFSelect &ligne, Controle &c) { c = ControleNeuf(ligne, kFenetreFSelect); });
  fenetre.FName.texte = fenetre.motif;
}

} // namespace velmaris
