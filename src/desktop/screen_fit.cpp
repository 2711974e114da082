#include "desktop/screen_fit.h"

#include <QApplication>
#include <QEvent>
#include <QGridLayout>
#include <QMainWindow>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>
#include <QTabWidget>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace monitra::desktop {

namespace {

/// The window's frame; what is usual as long as the window manager hasn't given it one.
QMargins frameOf(const QWidget& window) {
  constexpr QMargins usual{2, 28, 2, 2};
  const QWindow* const handle = window.windowHandle();
  const bool known = handle != nullptr && handle->isExposed();
  return known ? handle->frameMargins() : usual;
}

bool holds(QSize room, QSize content) {
  return content.boundedTo(room) == content;
}

/// Lays everything out from the inside out; what isn't shown yet doesn't do so by itself.
void settle(QWidget* window) {
  QList<QWidget*> inside = window->findChildren<QWidget*>();
  std::ranges::reverse(inside);
  for (QWidget* const widget : std::as_const(inside)) {
    if (widget->layout() != nullptr) widget->layout()->activate();
    widget->updateGeometry();
  }
  window->layout()->activate();
}

/// A page that scrolls where it finds too little room, and follows the keyboard's focus.
QScrollArea* scrolling(QWidget* page) {
  auto* const area = new QScrollArea;
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setWidget(page);
  for (QWidget* const ground : {page, area->viewport()}) ground->setAutoFillBackground(false);
  QObject::connect(qApp, &QApplication::focusChanged, area, [area](QWidget*, QWidget* now) {
    if (now != nullptr && area->isAncestorOf(now)) area->ensureWidgetVisible(now);
  });
  return area;
}

}  // namespace

ScreenFit::ScreenFit(QMainWindow* window, QTabWidget* pages)
    : QObject(window), window_(window), pages_(pages) {
  window_->layout()->setSizeConstraint(QLayout::SetFixedSize);
  window_->installEventFilter(this);
}

/// Where the window without its frame may lie.
QRect ScreenFit::room() const {
  return window_->screen()->availableGeometry().marginsRemoved(frameOf(*window_));
}

void ScreenFit::showCentred() {
  fit();
  window_->adjustSize();
  const QRect free = window_->screen()->availableGeometry();
  const QSize whole = window_->size().grownBy(frameOf(*window_));
  const QPoint middle = free.center() - window_->rect().center();
  const QPoint most = free.bottomRight() - QRect(QPoint(), whole).bottomRight();
  window_->move(std::clamp(middle.x(), free.left(), qMax(free.left(), most.x())),
                std::clamp(middle.y(), free.top(), qMax(free.top(), most.y())));
  window_->show();
}

/// The frame is known once the window is shown; the user may take it to another screen.
bool ScreenFit::eventFilter(QObject* /*window*/, QEvent* event) {
  const QEvent::Type type = event->type();
  const bool mayMatter =
      type == QEvent::Move || type == QEvent::Resize || type == QEvent::LayoutRequest;
  if (mayMatter && window_->isVisible() && !holds(room().size(), window_->size())) {
    QMetaObject::invokeMethod(
        this, [this] { fit(); }, Qt::QueuedConnection);
  }
  return false;
}

void ScreenFit::fit() {
  const QRect free = room();
  if (holds(free.size(), window_->sizeHint()) && wanted_.isEmpty()) return;
  if (!dense_) makeDense();
  if (!holds(free.size(), window_->sizeHint()) && wanted_.isEmpty()) letPagesScroll();
  if (!wanted_.isEmpty()) window_->setFixedSize(wanted_.boundedTo(free.size()));
  if (!window_->isVisible()) return;
  QRect place(window_->geometry().topLeft(), window_->size());
  place.moveBottomRight({qMin(place.right(), free.right()), qMin(place.bottom(), free.bottom())});
  window_->setGeometry(place);
}

void ScreenFit::makeDense() {
  constexpr int gap = 2;
  dense_ = true;
  for (QLayout* const layout : window_->findChildren<QLayout*>()) {
    const QMargins margins = layout->contentsMargins();
    layout->setContentsMargins(margins / 3);
    auto* const grid = qobject_cast<QGridLayout*>(layout);
    if (grid == nullptr) {
      layout->setSpacing(qMin(layout->spacing(), gap));
      continue;
    }
    grid->setVerticalSpacing(qMin(grid->verticalSpacing(), gap));
    for (int row = 1; row < grid->rowCount(); ++row) grid->setRowMinimumHeight(row, 0);
  }
  settle(window_);
}

void ScreenFit::letPagesScroll() {
  const int bar = pages_->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  wanted_ = window_->sizeHint() + QSize(bar, bar);
  const QSignalBlocker whileMoving(pages_);
  const int top = pages_->currentIndex();
  for (int n = 0; n < pages_->count(); ++n) {
    const QString caption = pages_->tabText(n);
    QWidget* const page = pages_->widget(n);
    pages_->removeTab(n);
    pages_->insertTab(n, scrolling(page), caption);
  }
  pages_->setCurrentIndex(top);
  window_->centralWidget()->setMinimumSize(0, 0);
  window_->layout()->setSizeConstraint(QLayout::SetNoConstraint);
}

}  // namespace monitra::desktop
