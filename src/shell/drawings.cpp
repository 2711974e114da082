#include "shell/drawings.h"

#include <array>

namespace monitra::shell {

namespace {

constexpr std::array lines{
    DrawnLine{"Line1", 240, 720, 240, 2040},
    DrawnLine{"Line2", 240, 2040, 5520, 2040},
    DrawnLine{"Line3", 360, 1680, 720, 1680},
    DrawnLine{"LineTarso1", 720, 1200, 720, 1680},
    DrawnLine{"LineTarso2", 720, 1200, 1200, 1200},
    DrawnLine{"LineVilor1", 720, 1440, 720, 1680},
    DrawnLine{"LineVilor2", 1200, 1440, 720, 1440},
    DrawnLine{"LineVilor3", 1200, 1200, 1200, 1440},
    DrawnLine{"Line11", 1200, 1200, 1200, 1800, true},
    DrawnLine{"Line4", 2640, 1200, 1200, 1200},
    DrawnLine{"Line5", 2640, 1680, 2640, 1200},
    DrawnLine{"Line6", 3840, 1680, 2640, 1680},
    DrawnLine{"Line7(0)", 3840, 1200, 3840, 1680},
    DrawnLine{"Line8(0)", 4080, 1200, 3840, 1200},
    DrawnLine{"Line9(0)", 4080, 1680, 4080, 1200},
    DrawnLine{"Line10", 5160, 1680, 4080, 1680},
    DrawnLine{"Line7(1)", 5160, 1200, 5160, 1680},
    DrawnLine{"Line8(1)", 5400, 1200, 5160, 1200},
    DrawnLine{"Line9(1)", 5400, 1680, 5400, 1200},
};

constexpr std::array heads{
    DrawnLabel{"Label2", -1, 960, 1800, true}, DrawnLabel{"Label1", -1, 1920, 1800, true},
    DrawnLabel{"Label3", 0, 2880, 1800, true}, DrawnLabel{"Label4", 0, 3840, 1800, true},
    DrawnLabel{"Label4", 1, 5160, 1800},
};

constexpr std::array axes{
    DrawnLine{"Line12", 600, 4560, 600, 2880},
    DrawnLine{"Line14", 600, 4560, 2280, 2880},
    DrawnLine{"Line13", 600, 4560, 6960, 4560},
};

constexpr std::array letters{
    DrawnLabel{"Label16", 0, 680, 2820},
    DrawnLabel{"Label16", 2, 2360, 2820},
    DrawnLabel{"Label16", 1, 6960, 4290},
};

}  // namespace

std::span<const DrawnLine> diagramLines() {
  return lines;
}

std::span<const DrawnLabel> diagramHeads() {
  return heads;
}

std::span<const DrawnLine> axisLines() {
  return axes;
}

std::span<const DrawnLabel> axisLetters() {
  return letters;
}

}  // namespace monitra::shell
