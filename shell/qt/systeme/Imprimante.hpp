#pragma once

#include "complements/papier/Feuillet.hpp"
#include "shell/fenetres/Impression.hpp"

#include <QPageLayout>

#include <filesystem>
#include <optional>

class QPagedPaintDevice;
class QPrinter;
class QWidget;

namespace velmaris::qt {

/// Lets the user choose a printer or a PDF file, and prints the page there.
/// @param parent  window that the dialog lies over
/// @param registre  folder in which an unfinished file is noted
/// @return false when it failed; true also when the user gave up
bool Imprime(const Impression &page, QWidget *parent, const std::filesystem::path &registre);

/// Writes the page as a PDF file of one landscape sheet; an old file of that name is replaced once it is whole.
/// @param feuille   size and margins of the sheet
/// @param registre  folder in which the unfinished file is noted; empty for none
/// @return false when it can't be written
bool EcritPdf(const Impression &page, const std::filesystem::path &fichier, QPageLayout feuille,
              const std::filesystem::path &registre = {});

/// Lets the user choose a printer or a PDF file, and prints pages there.
/// @param parent, registre  as for `Imprime`
/// @return how many were printed, 0 when the user gave up; nothing when it failed
std::optional<std::size_t> ImprimeFeuillets(const std::vector<Feuillet> &feuillets, QWidget *parent,
                                            const std::filesystem::path &registre);

/// The pages that a print dialog has left of some.
std::vector<Feuillet> FeuilletsChoisis(const std::vector<Feuillet> &feuillets, const QPrinter &imprimante);

/// Paints the page on the sheet of a printer, at its full size and in the middle; smaller when the sheet is too small.
/// @return false when the printer fails
bool PeintFeuille(const Impression &page, QPagedPaintDevice &imprimante);

} // namespace velmaris::qt
