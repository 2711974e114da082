#include "shell/drawings.h"

#include <array>

namespace monitra::shell {

namespace {

constexpr std::array lines{
    DrawnLine{240, 720, 240, 2040},
    DrawnLine{240, 2040, 5520, 2040},
    DrawnLine{360, 1680, 720, 1680},
    DrawnLine{720, 1200, 720, 1680, false, &timing::SetupPanel::LineTarso1},
    DrawnLine{720, 1200, 1200, 1200, false, &timing::SetupPanel::LineTarso2},
    DrawnLine{720, 1440, 720, 1680, false, &timing::SetupPanel::LineVilor1},
    DrawnLine{1200, 1440, 720, 1440, false, &timing::SetupPanel::LineVilor2},
    DrawnLine{1200, 1200, 1200, 1440, false, &timing::SetupPanel::LineVilor3},
    DrawnLine{1200, 1200, 1200, 1800, true},
    DrawnLine{2640, 1200, 1200, 1200},
    DrawnLine{2640, 1680, 2640, 1200},
    DrawnLine{3840, 1680, 2640, 1680},
    DrawnLine{3840, 1200, 3840, 1680},
    DrawnLine{4080, 1200, 3840, 1200},
    DrawnLine{4080, 1680, 4080, 1200},
    DrawnLine{5160, 1680, 4080, 1680},
    DrawnLine{5160, 1200, 5160, 1680},
    DrawnLine{5400, 1200, 5160, 1200},
    DrawnLine{5400, 1680, 5400, 1200},
};

constexpr std::array heads{
    DrawnLabel{"Label2", 960, 1800, true},       DrawnLabel{"Label1", 1920, 1800, true},
    DrawnLabel{{"Label3", 0}, 2880, 1800, true}, DrawnLabel{{"Label4", 0}, 3840, 1800, true},
    DrawnLabel{{"Label4", 1}, 5160, 1800},
};

constexpr std::array axes{
    DrawnLine{600, 4560, 600, 2880},
    DrawnLine{600, 4560, 2280, 2880},
    DrawnLine{600, 4560, 6960, 4560},
};

constexpr std::array letters{
    DrawnLabel{{"Label16", 0}, 680, 2820},
    DrawnLabel{{"Label16", 2}, 2360, 2820},
    DrawnLabel{{"Label16", 1}, 6960, 4290},
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
