#pragma once

#include "complements/registre/Annotations.hpp"
#include "complements/registre/RegistreLu.hpp"
#include "shell/bureau/Bureau.hpp"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace velmaris {

/// The rows of the log's last watch that aren't hidden: each comes at most an hour and a half before the next one. A
/// sight that was reduced more than once counts as it was entered last.
/// @return their places in the log
std::vector<std::size_t> DernierQuart(const RegistreLu &registre, const Annotations &annotations);

/// Lists the sights of the log's last watch and the stored lines, all ticked, in place of those listed; the log shows
/// them as ticked too.
void ReprendVisees(Bureau &bureau);

/// Lists the stored lines that aren't listed as sights of the log.
/// @param cochees  whether they count at once
void ReprendDroites(Bureau &bureau, bool cochees);

/// Whether the list is another than that of the log's last watch and the stored lines, all ticked: its user has worked
/// on it.
bool ListeFaiteMain(Bureau &bureau);

/// A sight of the list as its user has left it.
struct ViseeTenue {
  std::string identite;
  bool cochee = true;
  std::optional<double> ecartType; ///< assumed error, minutes of arc, where one has been set
  bool operator==(const ViseeTenue &) const = default;
};

/// The list as it is, and a list again as it was; a sight that log and store no longer have stays out.
/// @{
std::vector<ViseeTenue> ViseesTenues(const PointOuvert &point);
void RemetVisees(Bureau &bureau, const std::vector<ViseeTenue> &visees);
/// @}

/// Brings the list in line with the rows that are ticked in the log: more of them come, others go; stored lines stay.
/// @return whether it has changed
bool SuitRegistre(Bureau &bureau);

/// Works a sight of the list out for fixes, by the settings of the check and, where it counts, the watch's rows.
void PrepareVisee(const Bureau &bureau, ViseeDuPoint &visee);

/// Works all of them out anew, in the order of time.
void PrepareVisees(Bureau &bureau);

/// Puts the list in the order of time; sights without one come last.
void OrdonneVisees(PointOuvert &point);

/// The first leg, from "Estime" where course and speed are filled: from its first hour on the day of the first sight.
/// Without them there is none.
std::vector<Jambe> JambesDEstime(const Bureau &bureau);

} // namespace velmaris
