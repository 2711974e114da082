#include "apps/ctl/commands.h"
#include "apps/ctl/session.h"
#include "apps/ctl/state.h"

namespace monitra::ctl {

ExitCode show(const ShowOptions& options) {
  PortlessSession portless([](const std::string&, int) { return platform::BoxAnswer::Ok; });
  const ExitCode code = portless.session.openSetup(options.file);
  if (!options.spm.empty()) portless.session.lap.setup.Spm.type(options.spm);
  printState(portless.session, options.json, {}, !options.spm.empty());
  return code;
}

}  // namespace monitra::ctl
