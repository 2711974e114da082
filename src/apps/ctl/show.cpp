#include "apps/ctl/commands.h"
#include "apps/ctl/session.h"
#include "apps/ctl/state.h"
#include "host/pacer.h"
#include "ports/register_memory.h"

namespace monitra::ctl {

ExitCode show(const ShowOptions& options) {
  ports::RegisterMemory nowhere;
  host::Pacer pacer;
  Session session({}, nowhere, pacer,
                  [](const std::string&, int) { return platform::BoxAnswer::Ok; });
  const ExitCode code = session.openSetup(options.file);
  printState(session, options.json);
  return code;
}

}  // namespace monitra::ctl
