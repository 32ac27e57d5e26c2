#pragma once

#include "shell/Donnees.hpp"

namespace velmaris {

/// A control of its own.
template <auto Membre> Controle &Seul(Donnees &donnees) { return donnees.*Membre; }

/// A control of a group.
template <auto Membre, std::size_t Indice> Controle &Rang(Donnees &donnees) { return (donnees.*Membre)[Indice]; }

} // namespace velmaris

// The name in the table and the member are one word, so that they can't drift apart.
#define SEUL(membre) #membre, -1, &Seul < &Donnees::membre> // NOLINT(cppcoreguidelines-macro-usage)
#define RANG(membre, indice)                                                                                           \
#membre, indice, &Rang < &Donnees::membre, (indice)> // NOLINT(cppcoreguidelines-macro-usage)
