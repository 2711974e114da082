#include "desktop/widget_maker.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <variant>

#include "shell/window_controls.h"
#include "widgets/bindings.h"
#include "widgets/boxed_label.h"
#include "widgets/jog_button.h"
#include "widgets/lamp.h"
#include "widgets/led_bar.h"
#include "widgets/narrow_button.h"
#include "widgets/picture.h"
#include "widgets/spin_arrows.h"
#include "widgets/status_line.h"
#include "widgets/text.h"

namespace monitra::desktop {

using namespace widgets;

namespace {

using shell::ControlDescription;
using shell::Kind;
using shell::State;

/// A label that takes no more height than its text, so that what belongs together stays together.
QLabel* plainLabel() {
  auto* const label = new QLabel;
  label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  return label;
}

/// Of a kind that only shows; else null.
QWidget* newDisplay(Kind kind) {
  switch (kind) {
    case Kind::Label:
      return plainLabel();
    case Kind::BoxedLabel:
      return new BoxedLabel;
    case Kind::StatusLine:
      return new StatusLine;
    case Kind::Picture:
      return new Picture;
    case Kind::Frame:
      return new QGroupBox;
    case Kind::ProgressBar:
      return new QProgressBar;
    case Kind::LedMeter:
      return new LedBar;
    case Kind::Lamp:
      return new Lamp;
    default:
      return nullptr;
  }
}

QWidget* newWidget(Kind kind) {
  if (QWidget* const display = newDisplay(kind)) return display;
  switch (kind) {
    case Kind::Instrument:
    case Kind::TextBox:
      return new QLineEdit;
    case Kind::TextArea:
      return new QPlainTextEdit;
    case Kind::SpinButton:
      return new SpinArrows;
    case Kind::CheckBox:
      return new QCheckBox;
    case Kind::NarrowButton:
      return new NarrowButton;
    case Kind::PushButton:
    case Kind::ToggleButton:
      return new QPushButton;
    case Kind::HoldButton:
      return new JogButton;
    case Kind::OptionButton:
      return new QRadioButton;
    case Kind::DropDownList:
      return new QComboBox;
    case Kind::ListBox:
      return new QListWidget;
    case Kind::TabStrip:
      return new QTabWidget;
    default:
      Q_UNREACHABLE();
  }
}

/// Binds the widget to its control, as the one of the given types that it is.
struct Binder {
  QWidget* widget;

  void operator()(std::monostate /*none*/) const {}
  void operator()(controls::Label* control) const { bindAs<QLabel>(*control); }
  void operator()(controls::StatusLabel* control) const { bindAs<StatusLine>(*control); }
  void operator()(controls::TextBox* control) const { bindAs<QLineEdit, QPlainTextEdit>(*control); }
  void operator()(controls::SpinButton* control) const { bindAs<SpinArrows>(*control); }
  void operator()(controls::CheckBox* control) const { bindAs<QCheckBox>(*control); }
  void operator()(controls::PushButton* control) const { bindAs<QPushButton>(*control); }
  void operator()(controls::ToggleButton* control) const { bindAs<QPushButton>(*control); }
  void operator()(controls::HoldButton* control) const { bindAs<JogButton>(*control); }
  void operator()(controls::OptionButton* control) const { bindAs<QRadioButton>(*control); }
  void operator()(controls::PickList* control) const { bindAs<QComboBox, QListWidget>(*control); }
  void operator()(controls::ProgressBar* control) const { bindAs<QProgressBar>(*control); }
  void operator()(controls::LedMeter* control) const { bindAs<LedBar>(*control); }
  void operator()(controls::Lamp* control) const { bindAs<Lamp>(*control); }
  void operator()(controls::Frame* control) const { bindAs<QGroupBox>(*control); }
  void operator()(controls::TabStrip* control) const { bindAs<QTabWidget>(*control); }
  void operator()(controls::MenuEntry* /*in a menu*/) const {}

 private:
  template <class... Widgets, class Control>
  void bindAs(Control& control) const {
    [[maybe_unused]] const bool bound = (tryAs<Widgets>(control) || ...);
    Q_ASSERT_X(bound, "bind", qPrintable(widget->objectName()));
  }
  template <class Widget, class Control>
  bool tryAs(Control& control) const {
    auto* const fitting = dynamic_cast<Widget*>(widget);
    if (fitting != nullptr) bind(fitting, control);
    return fitting != nullptr;
  }
};

void giveCaption(QWidget* widget, const ControlDescription& entry) {
  if (entry.caption.empty()) return;
  if (auto* const label = qobject_cast<QLabel*>(widget)) {
    // Until it is joined to its buddy a label shows its text as it stands.
    label->setText(toQt(entry.caption));
  } else if (auto* const button = qobject_cast<QAbstractButton*>(widget)) {
    button->setText(withMnemonic(entry.caption, entry.mnemonic));
  } else if (auto* const frame = qobject_cast<QGroupBox*>(widget)) {
    frame->setTitle(withMnemonic(entry.caption, entry.mnemonic));
  }
}

/// The label that a control is, or null.
controls::Label* labelOf(const shell::AnyControl& control) {
  if (auto* const* const status = std::get_if<controls::StatusLabel*>(&control)) return *status;
  auto* const* const label = std::get_if<controls::Label*>(&control);
  return label != nullptr ? *label : nullptr;
}

/// A label that shows a value is called by its name and by what it shows, a status by its kind too.
void nameForScreenReader(QWidget* widget, const ControlDescription& entry, int index,
                         const shell::AnyControl& control) {
  widget->setAccessibleDescription(toQt(entry.hint.empty() ? entry.tooltip : entry.hint));
  const QString name = toQt(shell::spokenName(entry, index)).trimmed();
  controls::Label* const shown = labelOf(control);
  if (shown == nullptr) {
    widget->setAccessibleName(name);
    return;
  }
  auto* const* const status = std::get_if<controls::StatusLabel*>(&control);
  const auto rename = [widget, name, shown, status = status != nullptr ? *status : nullptr,
                       headed = !entry.spoken.empty()] {
    const QString text = toQt(shown->Caption.get()).trimmed();
    QString head = headed ? name + QStringLiteral(": ") : QString();
    if (status != nullptr) head += toQt(shell::spokenStatus(status->kind()));
    widget->setAccessibleName(text.isEmpty() ? name : head + text);
  };
  rename();
  keep(widget, shown->Caption.observe(rename));
}

/// A lamp is called by its words and by how it is.
void nameLamp(QWidget* widget, controls::Lamp& lamp) {
  const auto rename = [widget, name = widget->accessibleName(), &lamp] {
    widget->setAccessibleName(name +
                              (lamp.On ? QStringLiteral(": ég") : QStringLiteral(": nem ég")));
  };
  rename();
  keep(widget, lamp.On.observe(rename));
}

}  // namespace

QWidget* WidgetMaker::make(shell::ControlName name) const {
  const ControlDescription& entry = name.entry();
  const int index = name.index();
  QWidget* const widget = newWidget(entry.kind);
  widget->setObjectName(objectName(entry.name, index));
  widget->setToolTip(toQt(entry.tooltip));
  if (entry.state == State::Disabled) widget->setEnabled(false);
  if (entry.state == State::Hidden) widget->hide();
  const shell::AnyControl control = shell::controlOf(lap_, entry.name, index);
  if (auto* const label = qobject_cast<QLabel*>(widget)) label->setTextFormat(Qt::PlainText);
  std::visit(Binder{widget}, control);
  if (labelOf(control) == nullptr) giveCaption(widget, entry);
  nameForScreenReader(widget, entry, index, control);
  if (auto* const* const lamp = std::get_if<controls::Lamp*>(&control)) nameLamp(widget, **lamp);
  return widget;
}

QString withMnemonic(std::string_view caption, char mnemonic) {
  QString text = toQt(caption);
  text.replace(QLatin1Char('&'), QLatin1String("&&"));
  if (mnemonic != 0) text.insert(text.indexOf(QLatin1Char(mnemonic)), QLatin1Char('&'));
  return text;
}

QString objectName(std::string_view name, int index) {
  return index < 0 ? toQt(name) : QStringLiteral("%1(%2)").arg(toQt(name)).arg(index);
}

void joinBuddies(const QWidget& window) {
  for (const ControlDescription& entry : shell::windowControls()) {
    if (entry.buddy.empty()) continue;
    auto* const label = window.findChild<QLabel*>(toQt(entry.name));
    if (label == nullptr) continue;
    label->setBuddy(window.findChild<QWidget*>(toQt(entry.buddy)));
    label->setText(withMnemonic(entry.caption, entry.mnemonic));
  }
}

}  // namespace monitra::desktop
