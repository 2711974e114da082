#include "store/window_title.h"

#include "timing/numbers.h"

namespace monitra::store {

std::string windowTitle(const platform::ProgramIdentity& program, const std::string& file,
                        int blanks) {
  using timing::Levag;
  std::string title = "Vilor CNC Monitra V" + Levag(program.Major, 2) + "." +
                      Levag(program.Minor, 2) + "." + Levag(program.Revision, 2);
  if (!file.empty()) title += std::string(static_cast<std::size_t>(blanks), ' ') + "(" + file + ")";
  return title;
}

}  // namespace monitra::store
