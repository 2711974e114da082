#include "link/pin_names.h"

#include <cstddef>

namespace monitra::link {

namespace {

std::array<std::string, 8> bareNames(char reg) {
  std::array<std::string, 8> names;
  for (std::size_t bit = 0; bit < names.size(); ++bit) names[bit] = reg + std::to_string(bit);
  return names;
}

}  // namespace

std::array<std::string, 8> dataPinNames(const PinMap& pins) {
  std::array<std::string, 8> names = bareNames('D');
  names[pins.XStepBit] += "_XStep";
  names[pins.XDirBit] += "_XDir";
  names[pins.YStepBit] += "_YStep";
  names[pins.YDirBit] += "_YDir";
  names[pins.ZStepBit] += "_ZStep";
  names[pins.ZDirBit] += "_ZDir";
  names[pins.SorosAdatBit] += "_SorosAdat";
  names[pins.SorosOrajelBit] += "_SorosOrajel";
  return names;
}

std::array<std::string, 8> controlPinNames(const PinMap& pins) {
  std::array<std::string, 8> names = bareNames('C');
  names[pins.SpindleBit] += "_Spindle";
  return names;
}

}  // namespace monitra::link
