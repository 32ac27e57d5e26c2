#include "Attend.hpp"
#include "shell/Reprise.hpp"

using namespace velmaris;

/// A session that can be read is the same when it has been written and read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille) {
  if (const std::optional<Session> session = LitSession(Octets(octets, taille))) {
    const std::optional<Session> relue = LitSession(TexteSession(*session));
    Attend(relue.has_value(), "a session that was written can be read");
    Attend(*relue == *session, "and is the same");
  }
  return 0;
}
