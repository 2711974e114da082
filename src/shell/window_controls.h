#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "controls/controls.h"
#include "shell/lap.h"
#include "shell/window_description.h"

namespace monitra::shell {

/// A control of the model; none for one of the window description that only shows its words.
using AnyControl =
    std::variant<std::monostate, controls::Label*, controls::StatusLabel*, controls::TextBox*,
                 controls::SpinButton*, controls::CheckBox*, controls::PushButton*,
                 controls::HoldButton*, controls::ToggleButton*, controls::OptionButton*,
                 controls::PickList*, controls::ProgressBar*, controls::LedMeter*, controls::Frame*,
                 controls::MenuEntry*, controls::TabStrip*>;

/// The control of this name, or element of a control array, in the panels of the Lap, which must
/// outlive it.
AnyControl controlOf(Lap& lap, std::string_view name, int index = -1);

/// What a screen reader calls an element of the entry, without the text that a label shows.
std::string spokenName(const ControlDescription& control, int index);

/// What a screen reader says ahead of a status; nothing ahead of plain information.
std::string_view spokenStatus(controls::Status kind);

/// Gives the labels and check boxes of the panels their captions of the window description.
void giveCaptions(Lap& lap);

}  // namespace monitra::shell
