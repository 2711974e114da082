#include "apps/ctl/commands.h"
#include "apps/ctl/session.h"
#include "apps/ctl/state.h"

namespace monitra::ctl {

ExitCode show(const ShowOptions& options) {
  PortlessSession portless([](const std::string&, int) { return platform::BoxAnswer::Ok; });
  const ExitCode code = portless.session.openSetup(options.file);
  printState(portless.session, options.json);
  return code;
}

}  // namespace monitra::ctl
