#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <typeinfo>

#include "desktop/boxed_label.h"
#include "desktop/jog_button.h"
#include "desktop/led_bar.h"
#include "desktop/main_window.h"
#include "desktop/picture.h"
#include "desktop/spin_arrows.h"
#include "desktop/status_line.h"
#include "desktop/text.h"
#include "desktop/widget_maker.h"
#include "shell/window_description.h"
#include "support/program.h"

namespace monitra::desktop {
namespace {

using shell::ControlDescription;
using shell::Kind;
using shell::State;

/// What a widget shows in the place of its caption, without the mark of its mnemonic.
std::string shownCaption(const QWidget* widget) {
  QString text;
  if (const auto* const label = qobject_cast<const QLabel*>(widget)) {
    text = label->text();
    if (label->buddy() == nullptr) return text.toStdString();
  } else if (const auto* const button = qobject_cast<const QAbstractButton*>(widget)) {
    text = button->text();
  } else if (const auto* const frame = qobject_cast<const QGroupBox*>(widget)) {
    text = frame->title();
  } else if (const auto* const box = qobject_cast<const QLineEdit*>(widget)) {
    return box->text().toStdString();
  }
  return text.replace("&&", "\1").remove('&').replace('\1', '&').toStdString();
}

/// The kinds as the toolkit's types; those of one type differ in what the user can do.
bool isOfKind(const QWidget& widget, Kind kind) {
  const auto* const box = qobject_cast<const QLineEdit*>(&widget);
  const auto* const button = qobject_cast<const QPushButton*>(&widget);
  if (box != nullptr) return kind == (box->isReadOnly() ? Kind::Instrument : Kind::TextBox);
  if (button != nullptr) {
    return kind == (button->isCheckable() ? Kind::ToggleButton : Kind::PushButton);
  }
  const std::map<Kind, const std::type_info*> types{{Kind::Label, &typeid(QLabel)},
                                                    {Kind::BoxedLabel, &typeid(BoxedLabel)},
                                                    {Kind::StatusLine, &typeid(StatusLine)},
                                                    {Kind::Picture, &typeid(Picture)},
                                                    {Kind::Frame, &typeid(QGroupBox)},
                                                    {Kind::TextArea, &typeid(QPlainTextEdit)},
                                                    {Kind::SpinButton, &typeid(SpinArrows)},
                                                    {Kind::CheckBox, &typeid(QCheckBox)},
                                                    {Kind::HoldButton, &typeid(JogButton)},
                                                    {Kind::OptionButton, &typeid(QRadioButton)},
                                                    {Kind::DropDownList, &typeid(QComboBox)},
                                                    {Kind::ListBox, &typeid(QListWidget)},
                                                    {Kind::ProgressBar, &typeid(QProgressBar)},
                                                    {Kind::LedMeter, &typeid(LedBar)},
                                                    {Kind::TabStrip, &typeid(QTabWidget)}};
  return *types.at(kind) == typeid(widget);
}

/// Whether the user can do something with it; what only stands there may speak for itself.
bool isOperated(Kind kind) {
  return kind != Kind::Label && kind != Kind::BoxedLabel && kind != Kind::Frame &&
         kind != Kind::Picture && kind != Kind::TabStrip;
}

/// The window ahead of the start-up, as it is described.
struct DesignedWindow : testing::Test, support::Program {
  DesignedWindow() { window.showCentred(); }
  MainWindow window{lap};
};

TEST_F(DesignedWindow, HasEveryDescribedControlOnceAndNoOther) {
  std::set<QString> described;
  for (const ControlDescription& entry : shell::windowControls()) {
    for (int n = 0; n < std::max(entry.elements.count, 1); ++n) {
      const int index = entry.elements.first + n;
      const QString name = objectName(entry.name, index);
      SCOPED_TRACE(name.toStdString());
      EXPECT_TRUE(described.insert(name).second);
      const auto found = window.findChildren<QWidget*>(name);
      ASSERT_EQ(found.size(), 1);
      QWidget* const widget = found.front();
      EXPECT_TRUE(isOfKind(*widget, entry.kind));
      if (!entry.caption.empty()) {
        EXPECT_EQ(shownCaption(widget), entry.caption);
      }
      EXPECT_EQ(widget->toolTip().toStdString(), entry.tooltip);
      EXPECT_EQ(widget->isEnabled(), entry.state != State::Disabled);
      EXPECT_EQ(widget->isVisibleTo(widget->parentWidget()), entry.state != State::Hidden);
      if (const auto* const button = qobject_cast<QAbstractButton*>(widget)) {
        EXPECT_EQ(button->isChecked(), entry.state == State::Selected);
      }
    }
  }
  for (const QWidget* const widget : window.findChildren<QWidget*>()) {
    const QString name = widget->objectName();
    const bool ofTheToolkit = name.isEmpty() || name.startsWith("qt_") || name.startsWith("Scroll");
    if (qobject_cast<const QMenu*>(widget) != nullptr || ofTheToolkit) continue;
    EXPECT_EQ(described.count(name), 1U) << name.toStdString();
  }
}

TEST_F(DesignedWindow, TellsAScreenReaderWhatEachControlIsCalled) {
  lap.Form_Load();
  lap.PortAllapot.Caption = "Nincs port.";
  std::map<std::string, std::string> names;
  for (const ControlDescription& entry : shell::windowControls()) {
    for (int n = 0; n < std::max(entry.elements.count, 1); ++n) {
      const int index = entry.elements.first + n;
      auto* const widget = window.findChild<QWidget*>(objectName(entry.name, index));
      const QAccessibleInterface* const access = QAccessible::queryAccessibleInterface(widget);
      const std::string name = access->text(QAccessible::Name).toStdString();
      SCOPED_TRACE(widget->objectName().toStdString() + " " + name);
      EXPECT_FALSE(name.empty());
      if (!isOperated(entry.kind)) continue;
      EXPECT_FALSE(access->text(QAccessible::Description).isEmpty());
      EXPECT_TRUE(names.emplace(name, widget->objectName().toStdString()).second) << names[name];
    }
  }
  EXPECT_EQ(names["TF X"] + " " + names["T3 Z nyilai"] + " " + names["Z motor, léptetés"],
            "TF(0) FolLe(11) Leptet(2)");
  EXPECT_EQ(names["A port állapota: Nincs port."], "PortAllapot");
}

/// The tree as it can be walked, a line for each entry: level, name, caption, and in brackets what
/// is off or checked.
void describeMenu(const QList<QAction*>& actions, int level, std::vector<std::string>& lines) {
  for (const QAction* const action : actions) {
    const QObject* const named =
        action->menu() != nullptr ? static_cast<const QObject*>(action->menu()) : action;
    std::string line = std::to_string(level) + " " + named->objectName().toStdString() + " ";
    line += action->isSeparator() ? "-" : action->text().toStdString();
    if (!action->isEnabled()) line += " [off]";
    if (action->isCheckable()) line += action->isChecked() ? " [x]" : " [ ]";
    EXPECT_TRUE(action->shortcut().isEmpty());
    lines.push_back(line);
    if (action->menu() != nullptr) describeMenu(action->menu()->actions(), level + 1, lines);
  }
}

TEST_F(DesignedWindow, HasTheMenuTree) {
  std::vector<std::string> lines;
  describeMenu(window.menuBar()->actions(), 1, lines);
  EXPECT_EQ(
      lines,
      (std::vector<std::string>{
          "1 MF Fájl", "2 MFSetNyit Setup Megnyitás", "2 MFSetMent Setup Mentés", "2 MFv -",
          "2 MFkilepes Kilépés", "1 MB Beállítás", "2 MBKat Firmware Kategória [off]",
          "3 MBKVilor Vilor [off] [x]", "3 MBKTarso Tarso [off] [ ]", "2 MBT Tartóági frekvencia",
          "3 MBTallando Állandó [x]", "3 MBTValtozo Változó [ ]", "2 Mkom Kommunikáció módja",
          "3 Mpcb32 PCB V3.2 [ ]", "3 Mpcb40 PCB V4.x [x]", "1 Msug Súgó", "2 Nev Névjegy"}));
  lap.Form_Load();
  lines.clear();
  describeMenu(window.menuBar()->actions(), 1, lines);
  EXPECT_EQ(lines[7], "3 MBKVilor Vilor [off] [ ]");
  EXPECT_EQ(lines[8], "3 MBKTarso Tarso [off] [x]");
  window.findChild<QAction*>("MBKVilor")->trigger();
  EXPECT_TRUE(lap.setup.MBKTarso.Checked) << "can't be reached, by code of the toolkit neither";
}

}  // namespace
}  // namespace monitra::desktop
