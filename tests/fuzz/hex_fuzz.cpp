#include <sstream>

#include "fuzz/setup_world.h"

/// The image without the three lines of its block, of which this is the first.
static std::string withoutBlock(const std::string& image, long blockLine) {
  std::istringstream lines(image);
  std::string rest;
  long n = 1;
  for (std::string line; std::getline(lines, line); ++n) {
    if (n < blockLine || n > blockLine + 2) rest += line + "\n";
  }
  return rest;
}

/// Any bytes as a firmware image: read, checked, and if its block is sound copied with another
/// Setup and read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace monitra;
  fuzz::SetupWorld world, reader;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  world.open("a.hex", bytes);
  world.checkSetup();
  const auto report = firmware::checkImage(world.files, world.scratch.path("a.hex"));
  world.setup.setSpinValues({{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 128, 255}, 4, 0xFE0C, 200});
  world.dialog.path = world.scratch.path("b.hex");
  const bool patched = world.lap.saveFirmware() == platform::Failure::None;
  std::string copy = world.scratch.read("b.hex");
  reader.open("b.hex", copy);
  reader.checkSetup();
  world.check(
      !report.blockIsSound || (patched && reader.setup.spinValues() == world.setup.spinValues()),
      "the copy reads back");
  // Where no field begins inside a line, all but the line ends is kept.
  std::erase(copy, '\r');
  const bool plain = bytes.find_first_of("\r, ") == bytes.npos;
  world.check(!plain || !report.blockIsSound ||
                  withoutBlock(copy, report.blockLine) == withoutBlock(bytes, report.blockLine),
              "the rest of the image");
  return 0;
}
