#pragma once

namespace monitra::widgets {

/// Tells a screen reader what the program's own kinds of widgets are: pictures, jog buttons, which
/// it can press for a moment, spin arrows, which it can step, and the bar of lights. Once for each
/// process, ahead of the first window.
void installAccessibility();

}  // namespace monitra::widgets
