#include "desktop/jog_area.h"

#include "desktop/jog_button.h"
#include "desktop/words.h"

namespace monitra::desktop {

namespace {

/// The tab's space that the sketch and the buttons take, in twips.
constexpr QRect area{540, 2760, 6600, 1860};
constexpr int side = 510;

/// Middle of a button in the same twips.
struct Place {
  const char* name;
  int x, y;
  Qt::ArrowType arrow;
};

constexpr Place places[] = {
    {"Mozg(0)", 3600, 3135, Qt::UpArrow},   {"Mozg(1)", 3600, 4215, Qt::DownArrow},
    {"Mozg(2)", 3060, 3675, Qt::LeftArrow}, {"Mozg(3)", 4140, 3675, Qt::RightArrow},
    {"Mozg(4)", 5580, 3405, Qt::UpArrow},   {"Mozg(5)", 5580, 3945, Qt::DownArrow},
};

}  // namespace

JogArea::JogArea(bench::JogPanel& panel, double scale, QWidget* parent)
    : LineDrawing(
          {area, shell::axisLines(), shell::axisLetters()}, scale,
          [](std::string_view) { return nullptr; }, parent) {
  int i = 0;
  for (const Place& at : places) {
    auto* const button = new JogButton(at.arrow, qRound(side * scale), panel.Mozg[i++]);
    button->setParent(this);
    describe(button, at.name);
    button->move(place(at.x - side / 2, at.y - side / 2));
  }
}

}  // namespace monitra::desktop
