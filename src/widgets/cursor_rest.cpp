#include "widgets/cursor_rest.h"

#include <QApplication>
#include <QEvent>
#include <chrono>

namespace monitra::widgets {

CursorRest::CursorRest(QObject* parent)
    : QObject(parent), period_(QApplication::cursorFlashTime()) {
  constexpr std::chrono::seconds patience{10};
  idle_.setSingleShot(true);
  idle_.setInterval(patience);
  connect(&idle_, &QTimer::timeout, this, [] { QApplication::setCursorFlashTime(0); });
  idle_.start();
  qApp->installEventFilter(this);
}

bool CursorRest::eventFilter(QObject* /*watched*/, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type == QEvent::KeyPress || type == QEvent::MouseButtonPress || type == QEvent::FocusIn) {
    if (QApplication::cursorFlashTime() != period_) QApplication::setCursorFlashTime(period_);
    idle_.start();
  }
  return false;
}

}  // namespace monitra::widgets
