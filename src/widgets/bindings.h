#pragma once

#include "controls/controls.h"
#include "controls/observation.h"

class QAction;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QObject;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QWidget;

namespace monitra::widgets {

class JogButton;
class Lamp;
class LedBar;
class SpinArrows;
class StatusLine;

/// Keeps an observation for as long as the object lives, to which its view refers.
void keep(QObject* owner, controls::Observation observation);

/// Each binds a widget to a control: the widget shows the control's present state at once and
/// follows every change, and what the user does goes to the control's method. The widget may
/// end at any time, the control must live as long as the widget.

void bind(QWidget* window, controls::Form& form);
void bind(QLabel* widget, controls::Label& control);
void bind(StatusLine* widget, controls::StatusLabel& control);
void bind(QLineEdit* widget, controls::TextBox& control);
void bind(QPlainTextEdit* widget, controls::TextBox& control);
void bind(SpinArrows* widget, controls::SpinButton& control);
void bind(QCheckBox* widget, controls::CheckBox& control);
void bind(QGroupBox* widget, controls::Frame& control);
void bind(QPushButton* widget, controls::PushButton& control);
void bind(QPushButton* widget, controls::ToggleButton& control);
void bind(QRadioButton* widget, controls::OptionButton& control);
void bind(JogButton* widget, controls::HoldButton& control);
void bind(QComboBox* widget, controls::PickList& control);
void bind(QListWidget* widget, controls::PickList& control);
void bind(Lamp* widget, controls::Lamp& control);
void bind(LedBar* widget, controls::LedMeter& control);
void bind(QProgressBar* widget, controls::ProgressBar& control);
void bind(QTabWidget* widget, controls::TabStrip& control);
void bind(QAction* action, controls::MenuEntry& control);

/// The action shows a check mark where the entry has one.
void bindChecked(QAction* action, controls::MenuEntry& control);

}  // namespace monitra::widgets
