#include "support/window.h"

#include "shell/port_texts.h"
#include "widgets/status_line.h"

namespace monitra::desktop {
namespace {

using namespace support;
using namespace widgets;

bool near(int one, int other) {
  return std::abs(one - other) <= 2;
}

struct TheWindow : Window {
  QRect place(const QString& name) {
    const QWidget& of = *widget(name);
    return {of.mapTo(window.get(), QPoint(0, 0)), of.size()};
  }
  void checkLine(const std::string& kind, const QString& before, const QString& behind) {
    const QRect one = place(before), next = place(behind);
    const QPoint middle = one.center();
    const bool inLine = near(one.left(), next.left()) || near(one.right(), next.right()) ||
                        near(middle.x(), next.center().x());
    const bool above = next.left() < middle.x() && middle.x() < next.right();
    EXPECT_TRUE(kind == "row" ? one.right() < next.left() && near(middle.y(), next.center().y())
                              : one.bottom() < next.top() && (kind == "above" ? above : inLine))
        << kind << ": " << qPrintable(before + ' ' + behind);
  }
  void checkPlaces() const;
  void giveLongestTexts();
};

TEST_F(TheWindow, WhatBelongsTogetherStandsInLine) {
  lap.setup.FolLe[0].pressUp();
  for (const char* const kind : {"row", "column", "above"}) {
    for (const QStringList& line : lines(kind)) {
      showTab(line[0].toInt());
      for (int n = 2; n < line.size(); ++n) checkLine(kind, line[n - 1], line[n]);
    }
  }
  for (const QStringList& line : lines("jog")) {
    const QPoint at = place(line[0]).topLeft() - place("Label16(0)").topLeft();
    EXPECT_LE((at - QPoint(line[1].toInt(), line[2].toInt())).manhattanLength(), 2)
        << qPrintable(line[0]);
  }
}

/// By how many pixels the text of a widget doesn't fit, if it doesn't.
int cutOff(const QWidget* widget) {
  const auto* const status = dynamic_cast<const StatusLine*>(widget);
  if (status != nullptr || widget->inherits("QLineEdit")) {
    constexpr int frame = 6;
    const int taken = status != nullptr ? status->signWidth() : frame;
    const QString text = widget->property("text").toString();
    return widget->fontMetrics().horizontalAdvance(text) + taken - widget->width();
  }
  const auto* const label = qobject_cast<const QLabel*>(widget);
  if (label != nullptr && label->wordWrap()) {
    return label->heightForWidth(label->width()) - label->height();
  }
  const bool hasText = label != nullptr || widget->inherits("QAbstractButton") ||
                       widget->inherits("QGroupBox") || widget->inherits("QComboBox");
  const QSize least = widget->minimumSizeHint();
  return hasText ? std::max(least.width() - widget->width(), least.height() - widget->height()) : 0;
}

/// Everything that shows has its place for itself, and its text is all there.
void TheWindow::checkPlaces() const {
  for (const QWidget* const widget : window->findChildren<const QWidget*>()) {
    const QString name = widget->objectName();
    if (!widget->isVisible() || name.isEmpty() || name.startsWith("qt_")) continue;
    EXPECT_LE(cutOff(widget), 0) << qPrintable(name);
    EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry())) << qPrintable(name);
    for (const QObject* const child : widget->parentWidget()->children()) {
      const auto* const other = qobject_cast<const QWidget*>(child);
      if (other == nullptr || other == widget || !other->isVisible()) continue;
      if (other->inherits("QGroupBox") != widget->inherits("QGroupBox")) continue;
      EXPECT_FALSE(other->geometry().intersects(widget->geometry())) << qPrintable(name);
    }
  }
}

void TheWindow::giveLongestTexts() {
  lap.setup.Csucsf[0].Caption = "30303.0 S/s";
  lap.setup.Xttarto.Caption = "15151.5 Hz (99.6%)";
  lap.setup.Vegallas.Caption = "Végállások állapota: Záró";
  lap.setup.Uthossz.Caption = "19660";
  lap.load.Taptext.Text = " 166.6%";
  lap.Esemeny.show(controls::Status::Done,
                   "Kiküldve 1488.8 ms alatt, két él közt legfeljebb 100.0 ms szünettel. A vonal "
                   "egyirányú, nyugta nem jön.");
  const platform::PortState busy{.kind = platform::PortState::Kind::Busy,
                                 .address = 0xD010,
                                 .node = "/dev/parport0",
                                 .holder = "Monitra Setup (1234567)"};
  lap.PortAllapot.show(shell::portStatus(busy), shell::portText(busy, "&H3BC"));
}

TEST_F(TheWindow, CutsNothingOffAndKeepsItsSizeAndPlaceAlsoWithLargerFonts) {
  const QFont font = QApplication::font();
  std::vector<std::unique_ptr<MainWindow>> windows;  // a view must live as long as its control
  for (const double factor : {1.0, 1.2, 1.6, 2.5}) {
    SCOPED_TRACE(factor);
    QFont larger = font;
    larger.setPointSizeF(font.pointSizeF() * factor);
    QApplication::setFont(larger);
    windows.push_back(std::exchange(window, std::make_unique<MainWindow>(lap)));
    window->showCentred();
    QApplication::processEvents();
    const QSize first = window->size();
    const QRect screen = window->screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(window->frameGeometry()));
    EXPECT_LE((window->frameGeometry().center() - screen.center()).manhattanLength(), 20);
    EXPECT_EQ(window->minimumSize(), window->maximumSize());
    EXPECT_EQ(find<QTabWidget>("SSTab1")->currentIndex(), lap.SSTab1.Tab);
    giveLongestTexts();
    if (factor > 1.2) lap.Esemeny.clear(), lap.PortAllapot.clear();
    for (const int tab : {3, 2, 1, 0, 1}) {
      showTab(tab);
      EXPECT_EQ(window->size(), first) << "of one tab as of another";
      checkPlaces();
    }
    const auto* const list = find<QListWidget>("LPT");
    EXPECT_EQ(list->verticalScrollBar()->maximum() + list->horizontalScrollBar()->maximum(), 0);
  }
  QApplication::setFont(font);
}

/// Font and colour of a widget's text, each where it isn't the desktop's own.
QString look(const QWidget& widget) {
  const QFont font = widget.font(), own = QApplication::font();
  QString text;
  if (font.family() != own.family()) text += " " + font.family();
  if (font.pointSizeF() != own.pointSizeF()) text += " " + QString::number(font.pointSizeF());
  if (font.bold()) text += " bold";
  if (font.italic()) text += " italic";
  const bool isBox = widget.inherits("QLineEdit") || widget.inherits("QPlainTextEdit");
  const bool isButton = widget.inherits("QPushButton");
  const auto role = isBox ? QPalette::Text : isButton ? QPalette::ButtonText : QPalette::WindowText;
  const QColor colour = widget.palette().color(QPalette::Active, role);
  if (colour != QApplication::palette().color(role)) text += " " + colour.name();
  return text.trimmed();
}

TEST_F(TheWindow, TextsHaveTheirFontsAndColoursInEveryTheme) {
  const QPalette light = QApplication::palette();
  QPalette dark(QColor(0x30, 0x30, 0x30));
  dark.setColor(QPalette::ToolTipBase, QColor(0x10, 0x20, 0x30));
  dark.setColor(QPalette::ToolTipText, QColor(0xE0, 0xF0, 0xFF));
  lap.setup.FolLe[0].pressUp();
  const QSize before = window->size();
  for (const int tab : {2, 3}) showTab(tab);
  QApplication::processEvents();
  EXPECT_EQ(window->size(), before) << "fonts that come late move nothing";
  for (const char* const theme : {"light", "dark", "light"}) {
    SCOPED_TRACE(theme);
    QApplication::setPalette(theme == std::string("dark") ? dark : light);
    QApplication::processEvents();
    for (const QStringList& line : lines("look") + lines(theme)) {
      EXPECT_EQ(look(*widget(line[0])), line.mid(1).join(' ')) << qPrintable(line[0]);
    }
    EXPECT_EQ(widget("InfoT")->palette().color(QPalette::Base),
              QApplication::palette().color(QPalette::ToolTipBase));
  }
}

TEST_F(TheWindow, GroundsPicturesAndLinesAreDrawn) {
  for (const QStringList& line : lines("ground")) {
    showTab(line[0].toInt());
    const QImage image = window->grab(place(line[1])).toImage();
    EXPECT_EQ(image.pixelColor(image.width() - 4, 4), QColor(line[2])) << qPrintable(line[1]);
  }
  const QStringList drawn = lines("drawn").front();
  for (const QString& name : drawn) {
    const QImage image = widget(name)->grab().toImage();
    QImage blank = image;
    blank.fill(image.pixel(image.width() / 2, 4));
    EXPECT_TRUE(image != blank) << qPrintable(name);
  }
}

TEST_F(TheWindow, KeysReachEverythingAndSendNothing) {
  for (const QStringList& line : lines("keys")) {
    SCOPED_TRACE(line.join(' ').toStdString());
    showTab(line[0].toInt());
    if (line[1] == "Mozg(0)") lap.jog.Impulzus.click();
    if (line[1] == "L(2)") lap.phases.L[2].click();
    journal.clear();
    widget(line[1])->setFocus();
    for (const QString& step : line.mid(2)) {
      const QStringList press = step.contains('>') ? step.split('>') : QStringList{"Tab", step};
      const QKeyCombination key = QKeySequence(press[0])[0];
      QTest::keyClick(QApplication::focusWidget(), key.key(), key.keyboardModifiers());
      const QWidget& focused = *QApplication::focusWidget();
      EXPECT_EQ(focused.objectName(), press[1]);
      EXPECT_TRUE(lap.jog.Impulzus.Value || same(journal, {})) << qPrintable(step);
      const bool framed = focused.inherits("QAbstractScrollArea");
      EXPECT_TRUE(!framed || focused.palette().windowText() == focused.palette().highlight());
    }
  }
  showTab(0);
  QTest::keyClick(window.get(), Qt::Key_F, Qt::AltModifier);
  EXPECT_TRUE(find<QPushButton>("Letolt")->isDown()) << "pressed for a moment first";
}

}  // namespace
}  // namespace monitra::desktop
