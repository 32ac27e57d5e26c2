#include "shell/fenetres/Acces.hpp"
#include "shell/fenetres/Apropos.hpp"

namespace velmaris {
namespace {

using Fenetre = Apropos;

// One control a line.
// clang-format off
// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr LigneApropos kApropos[] = {
    {RANG(Image1, 0), Genre::Image, "", {300, 300, 1440, 1440}, "", "", {.image = "velmaris-jour", .par = "Label1"}},
    {RANG(Image1, 1), Genre::Image, "", {300, 300, 1440, 1440}, "", "", {.visible = false, .image = "velmaris-nuit", .par = "Label1"}},
    {SEUL(Label1), Genre::Etiquette, "", {2040, 300, 4110, 570}, "Velmaris", "", {.titre = true, .taille = 22}},
    {RANG(Label2, 0), Genre::Etiquette, "", {2040, 930, 4110, 255}, "Navigation astronomique à la mer", "", {.taille = 10}},
    {RANG(Label2, 3), Genre::Etiquette, "", {2040, 1245, 4110, 255}},
    {RANG(Label2, 1), Genre::Etiquette, "", {300, 1980, 5850, 255}, "Auteurs : l'équipe de Velmaris"},
    {RANG(Label2, 2), Genre::Etiquette, "", {300, 2280, 5850, 255}, "Logiciel libre, licence GPL version 3 ou ultérieure"},
    {SEUL(Label5), Genre::Etiquette, "", {300, 2760, 2700, 285}, "Site de VELMARIS", "", {.renvoi = true, .couleur = kLien}},
    {SEUL(Label3), Genre::Etiquette, "", {300, 3075, 2700, 285}, "Ecrire aux auteurs", "", {.renvoi = true, .couleur = kLien}},
    {SEUL(Label4), Genre::Etiquette, "", {300, 3390, 2700, 285}, "Données et théories", "", {.renvoi = true, .couleur = kLien}},
    {SEUL(Command1), Genre::Bouton, "", {4650, 3885, 1500, 405}, "Fermer", "", {.role = Role::Annule, .image = "ferme"}},
};
// clang-format on

} // namespace

std::span<const LigneApropos> TableApropos() { return kApropos; }

void InitialiseApropos(Apropos &fenetre) {
  PourChaque(fenetre, [](const LigneApropos &ligne, Controle &c) { c = ControleNeuf(ligne, kFenetreApropos); });
  fenetre.momentImage = 0.0;
}

} // namespace velmaris
