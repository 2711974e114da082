#include "widgets/bindings.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTabWidget>
#include <memory>
#include <utility>

#include "widgets/jog_button.h"
#include "widgets/lamp.h"
#include "widgets/led_bar.h"
#include "widgets/spin_arrows.h"
#include "widgets/status_line.h"
#include "widgets/text.h"

namespace monitra::widgets {

namespace {

/// Shows a property now and after each of its changes.
template <class Property, class Show>
void mirror(QObject* viewer, Property& property, Show show) {
  show();
  keep(viewer, property.observe(show));
}

void mirrorEnabled(QWidget* widget, controls::Property<bool>& enabled) {
  mirror(widget, enabled, [widget, &enabled] { widget->setEnabled(enabled); });
}

/// Entries and selection of a list widget of either kind.
template <class List>
void mirrorList(List* widget, controls::PickList& control, void (List::*show)(int)) {
  for (const auto& item : control.Items) widget->addItem(toQt(item));
  mirror(widget, control.ListIndex,
         [widget, &control, show] { (widget->*show)(control.ListIndex); });
  mirrorEnabled(widget, control.Enabled);
}

/// A widget that is checked while the control's value is true. It may be toggled without a click,
/// by a screen reader for one; the control decides what comes of it.
template <class Control>
void bindChecked(QAbstractButton* widget, Control& control, controls::Property<bool>& value) {
  const auto show = [widget, &value] { widget->setChecked(value); };
  mirror(widget, value, show);
  QObject::connect(widget, &QAbstractButton::toggled, widget, [&control, &value, show](bool on) {
    if (on != value) control.click();
    show();
  });
}

/// Shows a colour that the program has set; one of the desktop's own is left to the theme.
void mirrorColour(QWidget* widget, controls::Property<controls::Colour>& colour,
                  QPalette::ColorRole role) {
  const auto isSet = [&colour] { return !controls::colour::ofDesktop(colour); };
  const auto show = [widget, &colour, role, isSet] {
    const auto part = [value = colour.get()](int shift) {
      return static_cast<int>(value >> shift & 0xFF);
    };
    QPalette colours = widget->palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
      colours.setColor(group, role,
                       isSet() ? QColor(part(0), part(8), part(16))
                               : QGuiApplication::palette().color(group, role));
    }
    if (role == QPalette::Window) widget->setAutoFillBackground(isSet());
    widget->setPalette(colours);
  };
  if (isSet()) show();
  keep(widget, colour.observe(show));
}

/// Calls a function each time the watched widget gets the focus.
class FocusWatch : public QObject {
 public:
  FocusWatch(QWidget* watched, std::function<void()> gained)
      : QObject(watched), gained_(std::move(gained)) {
    watched->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::FocusIn) gained_();
    return false;
  }

 private:
  std::function<void()> gained_;
};

/// Tells a control of a press on its widget while that is greyed, which the toolkit keeps to
/// itself.
class GreyedWatch : public QObject {
 public:
  GreyedWatch(QWidget* watched, std::function<void()> pressed)
      : QObject(watched), watched_(watched), pressed_(std::move(pressed)) {
    watched->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() != QEvent::MouseButtonPress || watched_->isEnabled()) return false;
    pressed_();
    return true;
  }

 private:
  const QWidget* watched_;
  std::function<void()> pressed_;
};

}  // namespace

void keep(QObject* owner, controls::Observation observation) {
  // Shared because the toolkit may copy what it calls.
  auto kept = std::make_shared<controls::Observation>(std::move(observation));
  QObject::connect(owner, &QObject::destroyed, owner, [kept] { *kept = {}; });
}

void bind(QWidget* window, controls::Form& form) {
  mirror(window, form.Caption, [window, &form] {
    // Qt would take a single "[*]" in a file's name for its own mark.
    window->setWindowTitle(toQt(form.Caption.get()).replace("[*]", "[*][*]"));
  });
}

void bind(QLabel* widget, controls::Label& control) {
  widget->setTextFormat(Qt::PlainText);
  mirror(widget, control.Caption,
         [widget, &control] { widget->setText(toQt(control.Caption.get())); });
  // A label without a parent yet would be shown as a window of its own.
  if (!control.Visible) widget->hide();
  keep(widget,
       control.Visible.observe([widget, &control] { widget->setVisible(control.Visible); }));
  mirrorColour(widget, control.BackColor, QPalette::Window);
  mirrorEnabled(widget, control.Enabled);
}

void bind(StatusLine* widget, controls::StatusLabel& control) {
  bind(static_cast<QLabel*>(widget), static_cast<controls::Label&>(control));
  mirror(widget, control.Caption, [widget, &control] { widget->setKind(control.kind()); });
}

void bind(QLineEdit* widget, controls::TextBox& control) {
  // A file dropped here is meant for the window.
  widget->setAcceptDrops(false);
  widget->setReadOnly(control.Locked);
  mirror(widget, control.Text, [widget, &control] {
    const QString text = toQt(control.Text.get());
    if (widget->text() != text) widget->setText(text);
  });
  mirrorColour(widget, control.ForeColor, QPalette::Text);
  mirrorEnabled(widget, control.Enabled);
  // Also what isn't typed comes this way, from a screen reader for one; the control decides.
  QObject::connect(widget, &QLineEdit::textChanged, widget, [widget, &control] {
    const std::string text = widget->text().toStdString();
    if (text == control.Text.get()) return;
    control.type(text);
    if (widget->text() != toQt(control.Text.get())) widget->setText(toQt(control.Text.get()));
  });
}

void bind(QPlainTextEdit* widget, controls::TextBox& control) {
  widget->setReadOnly(true);
  mirror(widget, control.Text,
         [widget, &control] { widget->setPlainText(linesToQt(control.Text.get())); });
  mirrorEnabled(widget, control.Enabled);
}

void bind(SpinArrows* widget, controls::SpinButton& control) {
  widget->setRange(control.Value.min(), control.Value.max());
  mirror(widget, control.Value, [widget, &control] { widget->setValue(control.Value); });
  mirrorEnabled(widget, control.Enabled);
  QObject::connect(widget, &SpinArrows::upPressed, widget, [&control] { control.pressUp(); });
  QObject::connect(widget, &SpinArrows::downPressed, widget, [&control] { control.pressDown(); });
}

void bind(QCheckBox* widget, controls::CheckBox& control) {
  mirror(widget, control.Caption,
         [widget, &control] { widget->setText(toQt(control.Caption.get())); });
  bindChecked(widget, control, control.Checked);
  mirrorEnabled(widget, control.Enabled);
}

void bind(QGroupBox* widget, controls::Frame& control) {
  mirrorEnabled(widget, control.Enabled);
}

void bind(QPushButton* widget, controls::PushButton& control) {
  mirrorEnabled(widget, control.Enabled);
  new GreyedWatch(widget, [&control] { control.click(); });
  QObject::connect(widget, &QPushButton::clicked, widget, [widget, &control] {
    const bool focused = widget->hasFocus();
    control.click();
    // A button that was disabled for the length of its press has lost the focus to its neighbour,
    // which the next press of the space bar must not hit.
    if (focused && widget->isEnabled()) widget->setFocus();
  });
}

void bind(QPushButton* widget, controls::ToggleButton& control) {
  widget->setCheckable(true);
  bindChecked(widget, control, control.Value);
  mirrorEnabled(widget, control.Enabled);
}

void bind(QRadioButton* widget, controls::OptionButton& control) {
  mirror(widget, control.Value, [widget, &control] { widget->setChecked(control.Value); });
  mirrorEnabled(widget, control.Enabled);
  // The toolkit unchecks the one selected before by itself; the control follows on its own.
  QObject::connect(widget, &QRadioButton::toggled, widget, [&control](bool checked) {
    if (checked) control.click();
  });
}

void bind(JogButton* widget, controls::HoldButton& control) {
  widget->serve(control);
  mirrorEnabled(widget, control.Enabled);
  new GreyedWatch(widget, [&control] { control.press(); });
}

void bind(Lamp* widget, controls::Lamp& control) {
  mirror(widget, control.On, [widget, &control] { widget->setOn(control.On); });
}

void bind(LedBar* widget, controls::LedMeter& control) {
  widget->follow(control);
}

void bind(QComboBox* widget, controls::PickList& control) {
  mirrorList(widget, control, &QComboBox::setCurrentIndex);
  QObject::connect(widget, &QComboBox::activated, widget,
                   [&control](int index) { control.select(index); });
}

void bind(QListWidget* widget, controls::PickList& control) {
  mirrorList<QListWidget>(widget, control, &QListWidget::setCurrentRow);
  // A click with the control key leaves nothing selected, a screen reader more than one.
  QObject::connect(widget, &QListWidget::itemSelectionChanged, widget, [widget, &control] {
    for (const QModelIndex& selected : widget->selectionModel()->selectedIndexes()) {
      if (selected.row() != control.ListIndex) control.select(selected.row());
    }
    const QSignalBlocker shown(widget);
    widget->setCurrentRow(control.ListIndex, QItemSelectionModel::ClearAndSelect);
  });
}

void bind(QProgressBar* widget, controls::ProgressBar& control) {
  widget->setRange(0, 100);
  // setValue paints at once, also while the thread is blocked and no paint event can come.
  mirror(widget, control.Value,
         [widget, &control] { widget->setValue(static_cast<int>(control.Value)); });
}

void bind(QTabWidget* widget, controls::TabStrip& control) {
  mirror(widget, control.Tab, [widget, &control] { widget->setCurrentIndex(control.Tab); });
  widget->tabBar()->setFocusPolicy(Qt::StrongFocus);
  new FocusWatch(widget->tabBar(), [&control] { control.GotFocus.raise(); });
  QObject::connect(widget, &QTabWidget::currentChanged, widget, [widget, &control](int index) {
    // However the user has changed the tab, the row of tabs gets the focus first; it counts also
    // while the window is inactive and the focus itself comes later.
    widget->tabBar()->setFocus();
    control.GotFocus.raise();
    control.Tab = index;
  });
}

void bind(QAction* action, controls::MenuEntry& control) {
  mirror(action, control.Enabled, [action, &control] { action->setEnabled(control.Enabled); });
  QObject::connect(action, &QAction::triggered, action, [&control] { control.click(); });
}

void bindChecked(QAction* action, controls::MenuEntry& control) {
  action->setCheckable(true);
  const auto show = [action, &control] { action->setChecked(control.Checked); };
  mirror(action, control.Checked, show);
  bind(action, control);
  // A click on the checked entry unchecks the action by itself.
  QObject::connect(action, &QAction::triggered, action, show);
}

}  // namespace monitra::widgets
