#include "fuzz/setup_world.h"

/// Any bytes as a Setup file; the second time it is opened in the edition that it has brought.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  monitra::fuzz::SetupWorld world;
  for (int n = 0; n < 2; ++n) {
    world.open("a.pwm", {reinterpret_cast<const char*>(data), size});
    world.checkSetup();
  }
  world.save();
  world.checkSetup();
  return 0;
}
