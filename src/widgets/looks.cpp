#include "widgets/looks.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace monitra::widgets {

namespace {

class ThemeWatch : public QObject {
 public:
  ThemeWatch(QWidget* widget, std::function<void(QPalette& colours)> adjust)
      : QObject(widget), widget_(widget), adjust_(std::move(adjust)) {
    show();
    widget->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* /*widget*/, QEvent* event) override {
    const QEvent::Type type = event->type();
    if (type == QEvent::PaletteChange || type == QEvent::FocusIn || type == QEvent::FocusOut)
      show();
    return false;
  }

 private:
  void show() {
    QPalette colours = widget_->palette();
    adjust_(colours);
    // To set them is a change of the palette too.
    if (colours != widget_->palette()) widget_->setPalette(colours);
  }

  QWidget* widget_;
  std::function<void(QPalette& colours)> adjust_;
};

class BeforeSeen : public QObject {
 public:
  BeforeSeen(QWidget* widget, std::function<void()> take)
      : QObject(widget), take_(std::move(take)) {
    constexpr int behindTheFirstFrame = 50;  // ms
    startTimer(behindTheFirstFrame);
    widget->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* /*widget*/, QEvent* event) override {
    if (event->type() == QEvent::Show) run();
    return false;
  }
  void timerEvent(QTimerEvent* /*event*/) override { run(); }

 private:
  void run() {
    take_();
    delete this;
  }

  std::function<void()> take_;
};

}  // namespace

void beforeSeen(QWidget* widget, std::function<void()> take) {
  new BeforeSeen(widget, std::move(take));
}

QHBoxLayout* flatRow(QWidget* parent) {
  auto* row = new QHBoxLayout(parent);
  row->setContentsMargins(0, 0, 0, 0);
  return row;
}

QLabel* bold(QLabel* label) {
  QFont font = label->font();
  font.setBold(true);
  label->setFont(font);
  return label;
}

QLabel* inFont(QLabel* label, const char* family, double points, bool italic) {
  QFont font(QString::fromLatin1(family));
  font.setPointSizeF(points);
  font.setItalic(italic);
  label->setFont(font);
  return label;
}

void followTheme(QWidget* widget, std::function<void(QPalette& colours)> adjust) {
  new ThemeWatch(widget, std::move(adjust));
}

QColor fitting(QColor onLight, QColor onDark) {
  constexpr int middle = 128;
  const bool dark = QGuiApplication::palette().color(QPalette::Window).lightness() < middle;
  return dark ? onDark : onLight;
}

void setTextColour(QLabel* label, QColor onLight, QColor onDark) {
  followTheme(label, [onLight, onDark](QPalette& colours) {
    colours.setColor(QPalette::WindowText, fitting(onLight, onDark));
  });
}

int numberBoxWidth(const QWidget& widget, int characters) {
  constexpr int frame = 14;
  QFont boldFont = widget.font();
  boldFont.setBold(true);
  return QFontMetrics(boldFont).horizontalAdvance(QLatin1Char('0')) * characters + frame;
}

QLineEdit* asNumberBox(QLineEdit* box, int characters) {
  box->setAlignment(Qt::AlignCenter);
  box->setFixedWidth(numberBoxWidth(*box, characters));
  return box;
}

void drawFocus(QStylePainter& painter, const QWidget& widget, const QRect& where) {
  QStyleOptionFocusRect focus;
  focus.initFrom(&widget);
  focus.rect = where;
  painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

void giveThinFrame(QFrame* widget) {
  widget->setFrameStyle(QFrame::Box | QFrame::Plain);
  followTheme(widget, [widget](QPalette& colours) {
    const auto role = widget->hasFocus() ? QPalette::Highlight : QPalette::Mid;
    colours.setColor(QPalette::WindowText, QGuiApplication::palette().color(role));
  });
}

bool WheelNeedsFocus::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus()) return false;
  event->ignore();
  return true;
}

}  // namespace monitra::widgets
