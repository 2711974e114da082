#include "signals/signal_view.h"

#include <QPainter>
#include <QScrollBar>
#include <QStylePainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "widgets/looks.h"
#include "widgets/text.h"
#include "wire/figures.h"
#include "wire/message_text.h"

namespace monitra::signals {

using widgets::toQt;
using wire::Time;

namespace {

constexpr int leastRow = 18;
constexpr int mostRow = 34;
constexpr int lanes = 3;
constexpr int barSteps = 1 << 20;

}  // namespace

SignalView::SignalView(QWidget* parent)
    : QWidget(parent), bar_(new QScrollBar(Qt::Horizontal, this)) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAccessibleName(QStringLiteral("Jelek"));
  bar_->setFocusPolicy(Qt::NoFocus);
  bar_->setAccessibleName(QStringLiteral("Idő"));
  connect(bar_, &QScrollBar::valueChanged, this, [this](int value) {
    if (arranging_ || trace_ == nullptr) return;
    const auto room = static_cast<double>((trace_->end() - trace_->start()).count());
    lookBack();
    showPart(trace_->start() + Time(std::llround(room * value / barSteps)), scale_.span());
  });
}

void SignalView::setTrace(const wire::Trace* trace) {
  trace_ = trace;
  cursors_ = {};
  chosen_ = 0;
  readRows();
  arrange();
  follows_ ? refresh() : fit();
  if (pointed) pointed();
}

/// The serial line's rows come first.
void SignalView::readRows() {
  rows_.clear();
  if (trace_ == nullptr) return;
  const wire::Layout& layout = trace_->layout();
  names_ = layout.names;
  const auto add = [&](int wire) {
    const std::string& name = names_[static_cast<std::size_t>(wire)];
    if (!name.empty())
      rows_.push_back({wire, toQt(name).replace(QLatin1Char('_'), QStringLiteral(" · "))});
  };
  add(layout.lines.data);
  add(layout.lines.clock);
  for (int wire = 0; wire < wire::maxWires; ++wire) {
    if (wire != layout.lines.data && wire != layout.lines.clock) add(wire);
  }
}

QSize SignalView::sizeHint() const {
  return {900, minimumSizeHint().height() + 60};
}

QSize SignalView::minimumSizeHint() const {
  constexpr int leastWidth = 400;
  constexpr int usualRows = 12;
  const int rows = std::max(usualRows, static_cast<int>(rows_.size()));
  const int words = fontMetrics().height();
  return {leastWidth,
          rows * std::max(leastRow, words) + (lanes + 1) * (words + 4) + bar_->sizeHint().height()};
}

void SignalView::arrange() {
  const int words = fontMetrics().height();
  int names = 0;
  for (const Row& row : rows_) names = std::max(names, fontMetrics().horizontalAdvance(row.name));
  names = std::min(names + 8, width() / 3);
  const int bar = bar_->sizeHint().height();
  layout_.lane = words + 4;
  const int top = layout_.lane;
  const int count = std::max(1, static_cast<int>(rows_.size()));
  const int room = height() - bar - top - lanes * layout_.lane - 2;
  layout_.height = std::clamp(room / count, leastRow, std::max(mostRow, words));
  const int plot = std::max(width() - names - 2, 1);
  layout_.ruler = {names, 1, plot, layout_.lane};
  layout_.decoded = {names, top, plot, lanes * layout_.lane};
  layout_.levels = {names, top + lanes * layout_.lane, plot, count * layout_.height};
  layout_.names = {1, top, names - 1, layout_.decoded.height() + layout_.levels.height()};
  bar_->setGeometry(names, height() - bar - 1, plot, bar);
  scale_.setWidth(plot);
}

void SignalView::refresh() {
  if (trace_ != nullptr && trace_->layout().names != names_) {
    readRows();
    chosen_ = std::min(chosen_, rows_.empty() ? 0 : rows_.size() - 1);
    arrange();
  }
  if (trace_ != nullptr && follows_) {
    showPart(trace_->end() - scale_.span() * 49 / 50, scale_.span());
  } else {
    shown();
  }
}

void SignalView::setFollows(bool follows) {
  if (follows_ == follows) return;
  follows_ = follows;
  refresh();
}

void SignalView::lookBack() {
  follows_ = false;
}

void SignalView::fit() {
  if (trace_ == nullptr) return;
  lookBack();
  const Time all = std::max(trace_->end() - trace_->start(), Time(std::chrono::milliseconds(1)));
  showPart(trace_->start() - all / 50, all * 26 / 25);
}

void SignalView::zoom(double factor) {
  zoomAt(factor, scale_.width() * (follows_ ? 0.98 : 0.5));
}

void SignalView::zoomAt(double factor, double x) {
  if (trace_ == nullptr) return;
  const bool atEnd = follows_ && scale_.at(x) >= trace_->end() - scale_.span() / 10;
  if (!atEnd) lookBack();
  scale_.zoom(factor, x, trace_->start(), trace_->end());
  refresh();
}

void SignalView::goTo(Time time) {
  lookBack();
  showPart(time - scale_.span() / 2, scale_.span());
}

void SignalView::showSpan(Time from, Time to) {
  lookBack();
  const Time margin = std::max((to - from) / 10, Time(std::chrono::milliseconds(1)));
  showPart(from - margin, to - from + 2 * margin);
}

void SignalView::showPart(Time from, Time span) {
  if (trace_ != nullptr) scale_.show(from, span, trace_->start(), trace_->end());
  shown();
}

/// The bar stands where the scale does.
void SignalView::shown() {
  if (trace_ != nullptr) {
    const auto all = std::max(1.0, static_cast<double>((trace_->end() - trace_->start()).count()));
    const double share = std::min(1.0, static_cast<double>(scale_.span().count()) / all);
    const double from = static_cast<double>((scale_.from() - trace_->start()).count()) / all;
    arranging_ = true;
    bar_->setRange(0, static_cast<int>((1 - share) * barSteps));
    bar_->setPageStep(std::max(1, static_cast<int>(share * barSteps)));
    bar_->setSingleStep(std::max(1, bar_->pageStep() / 10));
    bar_->setValue(static_cast<int>(std::clamp(from, 0.0, 1.0) * barSteps));
    arranging_ = false;
  }
  update();
  if (moved) moved();
  if (pointed) pointed();
}

void SignalView::scrollBy(double pixels) {
  if (trace_ == nullptr) return;
  lookBack();
  showPart(scale_.at(pixels), scale_.span());
}

void SignalView::setCursor(int which, std::optional<Time> time) {
  cursors_[at(which)] = time;
  update();
  if (pointed) pointed();
}

int SignalView::row() const {
  return rows_.empty() ? -1 : rows_[chosen_].wire;
}

void SignalView::choose(std::size_t number) {
  chosen_ = number;
  update();
  if (pointed) pointed();
}

std::optional<std::size_t> SignalView::rowAt(QPoint where) const {
  if (where.y() < layout_.levels.top() || rows_.empty()) return {};
  const auto number = static_cast<std::size_t>((where.y() - layout_.levels.top()) / layout_.height);
  if (number >= rows_.size()) return {};
  return number;
}

Time SignalView::timeAt(QPoint where) const {
  return scale_.at(where.x() - layout_.levels.left());
}

std::size_t SignalView::figuresRow() const {
  const std::optional<std::size_t> under = pointer_ ? rowAt(*pointer_) : std::nullopt;
  return under.value_or(chosen_);
}

QString SignalView::pointedText() const {
  if (trace_ == nullptr || rows_.empty() || trace_->history().empty()) return {};
  const Time time = pointer_ ? timeAt(*pointer_) : middle();
  const Row& row = rows_[figuresRow()];
  QString text =
      QStringLiteral("%1 s-nál %2: ").arg(seconds(time - trace_->start()), 0, 'f', 6).arg(row.name);
  const std::optional<wire::Width> width = wire::widthAt(trace_->history(), row.wire, time);
  if (!width) return text + QStringLiteral("nincs él mindkét oldalon");
  text += toQt(wire::timeText(width->width())) +
          (width->level ? QStringLiteral(" magas") : QStringLiteral(" alacsony"));
  if (!width->period) return text;
  text += QStringLiteral(", periódus ") + toQt(wire::timeText(*width->period));
  if (const auto hertz = width->hertz()) text += QStringLiteral(", %1 Hz").arg(*hertz, 0, 'g', 5);
  return text;
}

QString SignalView::cursorText() const {
  if (trace_ == nullptr || rows_.empty() || !cursors_[0] || !cursors_[1]) return {};
  const auto [from, to] = std::minmax(*cursors_[0], *cursors_[1]);
  QString text = QStringLiteral("A–B: ") + toQt(wire::timeText(to - from));
  const wire::Widths widths = wire::widthsBetween(trace_->history(), row(), from, to);
  if (widths.count == 0) return text;
  return text + QStringLiteral("; %1 szélessége legalább %2, átlag %3, legfeljebb %4 (%5 db)")
                    .arg(rows_[chosen_].name, toQt(wire::timeText(widths.least)),
                         toQt(wire::timeText(widths.mean)), toQt(wire::timeText(widths.greatest)))
                    .arg(widths.count);
}

void SignalView::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  if (trace_ == nullptr || trace_->history().empty()) {
    painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("Még nem ment ki semmi."));
  } else {
    SignalPainter picture(painter, *trace_, scale_, layout_, rows_, palette());
    picture.paint(chosen_);
    for (int which = 0; which < 2; ++which) {
      if (const auto time = cursor(which)) {
        picture.paintCursor(*time, which == 0 ? QStringLiteral("A") : QStringLiteral("B"));
      }
    }
  }
  if (hasFocus()) widgets::drawFocus(painter, *this, rect());
}

void SignalView::resizeEvent(QResizeEvent* /*event*/) {
  arrange();
  refresh();
}

void SignalView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::FontChange) return;
  arrange();
  updateGeometry();
}

}  // namespace monitra::signals
