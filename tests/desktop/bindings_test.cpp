#include "shell/window_controls.h"
#include "shell/window_table.h"
#include "support/window.h"
#include "widgets/spin_arrows.h"
#include "widgets/status_line.h"
#include "widgets/text.h"

namespace monitra::desktop {
namespace {

using namespace widgets;

/// A control and its widget, which must show what the program sets and tell what the user does. A
/// counter takes the place of what the program does at the control's event.
struct Pair {
  QObject* widget;
  int& events;
  std::function<void()> counter = [&count = events] { ++count; };

  template <class Widget>
  Widget& as() const {
    return dynamic_cast<Widget&>(*widget);
  }
  /// The widget's own property follows the control's.
  void shows(auto& property, const auto& value, const char* shown) {
    property = value;
    EXPECT_EQ(widget->property(shown), QVariant(value)) << shown;
  }
  /// And the control's follows the widget's, as a screen reader sets it.
  void mirrors(auto& property, const auto& value, const char* shown, const auto& other) {
    property.handle(counter);
    shows(property, value, shown);
    widget->setProperty(shown, QVariant(other));
    EXPECT_EQ(std::exchange(events, 0), 2);
    EXPECT_EQ(property.get(), other);
    EXPECT_EQ(widget->property(shown), QVariant(other)) << shown;
  }
  void isChecked(auto& control, controls::Property<bool>& value) {
    mirrors(value, true, "checked", false);
    control.Enabled = false;
    widget->setProperty("checked", true);
    EXPECT_FALSE(value || widget->property("checked").toBool()) << "the control decides";
  }

  void operator()(auto /*what only shows its words, or is drawn*/) const {}
  void operator()(controls::ToggleButton* button) { isChecked(*button, button->Value); }
  void operator()(controls::CheckBox* box) {
    shows(box->Caption, "felirat", "text");
    isChecked(*box, box->Checked);
  }
  void operator()(controls::Label* label) {
    shows(label->Caption, "<b>&c", "text");
    EXPECT_TRUE(as<QLabel>().accessibleName().endsWith("<b>&c"));
    EXPECT_EQ(as<QLabel>().textFormat(), Qt::PlainText);
    label->Visible = !label->Visible;
    EXPECT_EQ(as<QLabel>().isHidden(), !label->Visible);
    for (const bool isSet : {true, false}) {
      label->BackColor = isSet ? controls::colour::red : controls::colour::buttonFace;
      const QColor own = QApplication::palette().color(QPalette::Window);
      EXPECT_EQ(as<QLabel>().palette().color(QPalette::Window), isSet ? QColor(255, 0, 0) : own);
      EXPECT_EQ(as<QLabel>().autoFillBackground(), isSet);
    }
  }
  void operator()(controls::StatusLabel* status) {
    (*this)(static_cast<controls::Label*>(status));
    auto& line = as<StatusLine>();
    QHelpEvent hovered(QEvent::ToolTip, {}, {});
    QApplication::sendEvent(&line, &hovered);
    EXPECT_EQ(line.toolTip(), Qt::convertFromPlainText(line.text()));
    const QPalette light = QApplication::palette();
    for (const QPalette& theme : {QPalette(QColor(0x35, 0x35, 0x35)), light}) {
      QApplication::setPalette(theme);
      QList<QColor> inks;
      QList<QImage> signs;
      for (int kind = 0; kind < 4; ++kind) {
        status->show(controls::Status(kind), "||||");
        const int apart = line.ink().lightness() - theme.window().color().lightness();
        EXPECT_TRUE(kind == 0 || std::abs(apart) > 100) << kind;
        const QPixmap ahead = line.grab({0, 0, line.fontMetrics().ascent(), -1});
        const QImage shape = ahead.toImage().createHeuristicMask();
        EXPECT_FALSE(inks.contains(line.ink()) || signs.contains(shape)) << "not by colour alone";
        inks << line.ink();
        signs << shape;
      }
    }
  }
  void operator()(controls::TextBox* box) {
    auto* const line = dynamic_cast<QLineEdit*>(widget);
    if (line == nullptr) return shows(box->Text, "12", "plainText");
    box->ForeColor = controls::colour::yellow;
    EXPECT_EQ(line->palette().color(QPalette::Text), QColor(255, 255, 0));
    EXPECT_FALSE(line->acceptDrops());
    EXPECT_EQ(line->alignment() & Qt::AlignHCenter, Qt::AlignHCenter);
    if (!box->Locked) mirrors(box->Text, "12", "text", "34");
    QTest::keyClicks(line, "56");
    EXPECT_EQ(events, box->Locked ? 0 : 2);
    shows(box->Text, "12", "text");
    if (box->Locked) line->setText("34");
    EXPECT_EQ(line->text(), "12");
  }
  /// A screen reader steps it, which raises the control's events and shows.
  void operator()(controls::SpinButton* spin) const {
    QAccessibleInterface& access = *QAccessible::queryAccessibleInterface(widget);
    spin->Value = 100;
    access.actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    EXPECT_EQ(access.valueInterface()->currentValue(), 101);
    for (int n = 0; n < 2; ++n) Q_EMIT as<SpinArrows>().downPressed();
    EXPECT_EQ(access.valueInterface()->currentValue(), 99);
  }
  void operator()(controls::PushButton* button) {
    // Disabled for the length of its press, it has the focus again.
    button->Click.handle([&] {
      button->Enabled = false;
      button->Enabled = ++events == 1;
    });
    as<QWidget>().setFocus();
    as<QPushButton>().click();
    EXPECT_TRUE(as<QWidget>().hasFocus());
    button->Refused.handle([&] { ++events; });
    QTest::mouseClick(&as<QWidget>(), Qt::LeftButton);
    button->Enabled = false;
    QTest::mouseClick(&as<QWidget>(), Qt::LeftButton);
    EXPECT_EQ(events, 3) << "a greyed one tells of its press";
    button->Refused.handle({});
    button->Click.handle({});
  }
  void operator()(controls::OptionButton* option) {
    for (auto* const other : option->others) other->Click.handle({});
    option->others[0]->Value = true;
    option->Click.handle(counter);
    widget->setProperty("checked", true);
    EXPECT_TRUE(option->Value && events == 1);
    option->others[0]->Value = true;
    EXPECT_EQ(widget->property("checked"), false);
    shows(option->Value, true, "checked");
  }
  void operator()(controls::PickList* list) {
    if (auto* const box = dynamic_cast<QComboBox*>(widget)) {
      shows(list->ListIndex, 1, "currentIndex");
      QTest::keyClick(box, Qt::Key_End);
      EXPECT_EQ(list->ListIndex, box->count() - 1);
      return;
    }
    mirrors(list->ListIndex, 1, "currentRow", 2);
    auto& rows = as<QListWidget>();
    rows.item(0)->setSelected(true);  // beside the other one, as a screen reader does
    EXPECT_EQ(list->ListIndex, 0);
    rows.item(0)->setSelected(false);  // as a click with the control key does
    EXPECT_EQ(rows.selectedItems(), QList<QListWidgetItem*>{rows.item(0)});
  }
  /// Lights from the foot up, green, yellow and red.
  void operator()(controls::LedMeter* meter) const {
    as<QWidget>().setFixedSize(20, 246);
    for (const auto& [level, shines] :
         {std::pair(0, "------"), {8, "g-----"}, {50, "gg----"}, {75, "ggyy--"}, {100, "ggyyrr"}}) {
      meter->Level = level;
      auto* const access = QAccessible::queryAccessibleInterface(widget);
      EXPECT_EQ(access->valueInterface()->currentValue(), level);
      const QImage image = as<QWidget>().grab().toImage();
      std::string seen;
      for (const int percent : {2, 48, 52, 73, 77, 98}) {
        const QColor colour = image.pixelColor(10, 242 - percent * 240 / 100);
        seen += "-gry"[(colour.green() > 128 ? 1 : 0) + (colour.red() > 128 ? 2 : 0)];
      }
      EXPECT_EQ(seen, shines) << level;
    }
  }
  void operator()(controls::ProgressBar* bar) { shows(bar->Value, 62.0, "value"); }
  void operator()(controls::TabStrip* tabs) {
    mirrors(tabs->Tab, 2, "currentIndex", 1);
    QTabBar& row = *as<QTabWidget>().tabBar();
    tabs->GotFocus.handle(counter);
    row.clearFocus();
    QTest::mouseClick(&row, Qt::LeftButton, {}, row.tabRect(tabs->Tab).center());
    EXPECT_EQ(std::exchange(events, 0), 1) << "at a click on the tab on top too";
    row.clearFocus();
    widget->setProperty("currentIndex", 3);
    EXPECT_TRUE(events > 0 && row.hasFocus()) << "however the tab is changed";
    tabs->GotFocus.handle({});
  }
  void operator()(controls::MenuEntry* entry) {
    auto& action = as<QAction>();
    entry->Click.handle(counter);
    for (const bool checked : {false, true}) {
      entry->Checked = checked;
      EXPECT_EQ(action.isChecked(), checked && action.isCheckable());
    }
    action.trigger();
    EXPECT_EQ(action.isChecked(), action.isCheckable()) << "the program decides";
    EXPECT_EQ(events, 1);
  }
};

struct Bindings : testing::Test, support::Program {
  MainWindow window{lap};
  QStringList spoken;
  int events = 0;

  /// Its words and its state ahead of the start-up.
  void checkDescribed(const shell::ControlDescription& entry, const QString& name) {
    const auto found = window.findChildren<QWidget*>(name);
    ASSERT_EQ(found.size(), 1);
    QWidget* const shown = found.front();
    QString caption = shown->property(shown->inherits("QGroupBox") ? "title" : "text").toString();
    if (!entry.caption.empty()) {
      EXPECT_EQ(caption.remove(QRegularExpression("&(?=\\w)")).toStdString(), entry.caption);
    }
    EXPECT_EQ(shown->toolTip().toStdString(), entry.tooltip);
    EXPECT_EQ(shown->isEnabled(), entry.state != shell::State::Disabled);
    EXPECT_EQ(shown->isVisibleTo(shown->parentWidget()), entry.state != shell::State::Hidden);
    EXPECT_EQ(shown->property("checked").toBool(), entry.state == shell::State::Selected);
    const auto* const access = QAccessible::queryAccessibleInterface(shown);
    const QString called = access->text(QAccessible::Name);
    EXPECT_FALSE(called.isEmpty());
    EXPECT_EQ(access->role() == QAccessible::Graphic, entry.kind == shell::Kind::Picture);
    if (shown->focusPolicy() == Qt::NoFocus || entry.kind == shell::Kind::TabStrip) return;
    EXPECT_FALSE(spoken.contains(called)) << "what can be operated has a name of its own";
    spoken << called;
    EXPECT_FALSE(access->text(QAccessible::Description).isEmpty());
  }

  void check(const QString& name, const shell::AnyControl& control) {
    events = 0;
    auto* const shown = window.findChild<QObject*>(name);
    const auto exercise = [&](auto known) {
      if constexpr (requires { known->Enabled; }) {
        for (const bool enabled : {false, true}) {
          known->Enabled = enabled;
          EXPECT_EQ(shown->property("enabled"), enabled);
        }
      }
      Pair{shown, events}(known);
    };
    std::visit(exercise, control);
  }

  /// Its words, its mark and the menu that it opens from.
  void checkEntry(const shell::MenuDescription& entry, const QString& menu) {
    const auto* const named = window.findChild<QObject*>(toQt(entry.name));
    const auto* const submenu = qobject_cast<const QMenu*>(named);
    const auto* const action =
        submenu ? submenu->menuAction() : qobject_cast<const QAction*>(named);
    EXPECT_EQ(action->isSeparator() ? "-" : action->text().toStdString(), entry.caption);
    EXPECT_EQ(action->isCheckable() + action->isChecked(), static_cast<int>(entry.mark));
    EXPECT_EQ(action->isEnabled(), !entry.name.starts_with("MBK"));
    EXPECT_EQ(action->associatedObjects().front()->objectName(), menu);
  }
};

TEST_F(Bindings, EveryControlIsAsDescribedShowsItsModelAndTellsItWhatTheUserDoes) {
  for (int n = 0; n < 9; ++n) lap.port.Bitcim[n].Caption = std::to_string(n);
  MainWindow(lap).show();  // what it observed changes below, and it has gone
  window.show();
  for (const bool started : {false, true}) {
    if (started) lap.Form_Load();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    for (const shell::ControlDescription& entry : shell::windowControls()) {
      for (int n = 0; n < std::max(entry.elements.count, 1); ++n) {
        const int index = entry.elements.first + n;
        const QString name = objectName(entry.name, index);
        SCOPED_TRACE(name.toStdString());
        started ? check(name, shell::controlOf(lap, entry.name, index))
                : checkDescribed(entry, name);
      }
    }
    QStringList opened(5, window.menuBar()->objectName());
    for (const shell::MenuDescription& entry : shell::menuTree()) {
      SCOPED_TRACE(std::string(entry.name));
      opened[entry.level] = toQt(entry.name);
      started ? check(opened[entry.level], shell::controlOf(lap, entry.name))
              : checkEntry(entry, opened[entry.level - 1]);
    }
  }
}

}  // namespace
}  // namespace monitra::desktop
