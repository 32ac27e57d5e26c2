#pragma once

#include "shell/fenetres/Controles.hpp"

#include <cstddef>

/// How a table finds its controls in the window's record. A file with a table says first whose it is:
/// `using Fenetre = Donnees;`.
namespace velmaris {

/// A control of its own.
template <class F, auto Membre> Controle &Seul(F &fenetre) { return fenetre.*Membre; }

/// A control of a group.
template <class F, auto Membre, std::size_t Indice> Controle &Rang(F &fenetre) { return (fenetre.*Membre)[Indice]; }

} // namespace velmaris

// The name in the table and the member are one word, so that they can't drift apart.
#define SEUL(membre) #membre, -1, &Seul < Fenetre, &Fenetre::membre> // NOLINT(cppcoreguidelines-macro-usage)
#define RANG(membre, indice)                                                                                           \
#membre, indice, &Rang < Fenetre, &Fenetre::membre, (indice)> // NOLINT(cppcoreguidelines-macro-usage)
