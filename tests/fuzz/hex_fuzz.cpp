#include <sstream>

#include "fuzz/setup_world.h"

/// The fields of an image's lines, without the blanks ahead of them and without the block.
static std::vector<std::string> rest(std::string bytes) {
  for (std::size_t at = 0; (at = bytes.find("\r\n", at)) != bytes.npos;) bytes.erase(at, 1);
  std::ranges::replace(bytes, '\r', '\n');
  std::ranges::replace(bytes, ',', '\n');
  std::istringstream lines(bytes);
  std::vector<std::string> fields;
  int block = 0;  // the records of it that have gone by
  for (std::string line; std::getline(lines, line);) {
    line.erase(0, line.find_first_not_of(' '));
    const bool begins = line.size() > 6 && line.compare(3, 4, "4200") == 0;
    block == 3 || (block == 0 && !begins) ? fields.push_back(line) : void(++block);
  }
  return fields;
}

/// Any bytes as a firmware image: read, checked, copied with another Setup, and read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace monitra;
  const timing::Setup other{{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 128, 255}, 4, 0xFE0C, 200};
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  fuzz::SetupWorld world, reader;
  world.open("a.hex", bytes);
  world.checkSetup();
  const firmware::ImageReport report =
      firmware::checkImage(world.files, world.scratch.path("a.hex"));
  world.setup.setSpinValues(other);
  world.dialog.path = world.scratch.path("b.hex");
  const bool whole = world.lap.saveFirmware() == platform::Failure::None;
  world.check(whole || !report.blockIsSound, "a sound block is patched");
  const std::string copy = world.scratch.read("b.hex");
  std::vector<std::string> source = rest(bytes), kept = rest(copy);
  world.check(kept.size() <= source.size() && (!whole || kept.size() == source.size()), "length");
  source.resize(kept.size());
  world.check(kept == source && world.scratch.read("a.hex") == bytes, "the rest of the image");
  reader.open("b.hex", copy);
  reader.checkSetup();
  world.check(!report.blockIsSound || reader.setup.spinValues() == other, "the copy reads back");
  return 0;
}
