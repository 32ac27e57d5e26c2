#pragma once

#include <QObject>

#include <functional>
#include <string>

namespace velmaris::qt {

/// Opens a web or mail address, or the path of a file, by the desktop's program for it. Doesn't wait for it.
/// @param parent         object whose life bounds the wait for a refusal
/// @param sansProgramme  called when the desktop has none, as soon as that is known
void OuvreLien(QObject &parent, const std::string &adresse, const std::function<void()> &sansProgramme);

/// Whether the desktop names a program for files of a media type.
bool AUnLecteur(const std::string &type);

} // namespace velmaris::qt
