#include "signals/signal_painter.h"

#include <QPalette>
#include <algorithm>
#include <cmath>

#include "widgets/text.h"
#include "wire/message_text.h"

namespace monitra::signals {

using widgets::toQt;
using wire::Message;
using wire::Time;

namespace {

constexpr int air = 3;

QColor groundOf(const Message& message, bool dark) {
  switch (message.kind) {
    case Message::Kind::Setup:
      return dark ? QColor(0x1F, 0x5F, 0x3A) : QColor(0xBF, 0xE8, 0xCB);
    case Message::Kind::Frame:
      return dark ? QColor(0x1F, 0x4F, 0x7A) : QColor(0xC2, 0xDD, 0xF5);
    default:
      return dark ? QColor(0x8A, 0x1C, 0x1C) : QColor(0xFF, 0xC9, 0xC4);
  }
}

QColor fault(bool dark) {
  return dark ? QColor(0xFF, 0x5A, 0x4D) : QColor(0xD0, 0x00, 0x10);
}

}  // namespace

Time rulerStep(const TimeScale& scale, int leastWidth) {
  const double least = static_cast<double>(scale.span().count()) * leastWidth / scale.width();
  const double decade = std::pow(10.0, std::floor(std::log10(std::max(least, 1.0))));
  for (const double step : {1.0, 2.0, 5.0}) {
    if (decade * step >= least) return Time(std::llround(decade * step));
  }
  return Time(std::llround(decade * 10));
}

QString rulerText(Time time, Time step) {
  const int digits =
      std::clamp(static_cast<int>(-std::floor(std::log10(seconds(step)) + 1e-9)), 0, 9);
  return QString::number(seconds(time), 'f', digits) + QStringLiteral(" s");
}

SignalPainter::SignalPainter(QPainter& painter, const wire::Trace& trace, const TimeScale& scale,
                             const Layout& layout, const std::vector<Row>& rows,
                             const QPalette& palette)
    : painter_(painter),
      trace_(trace),
      scale_(scale),
      layout_(layout),
      rows_(rows),
      palette_(palette),
      dark_(palette.color(QPalette::Base).lightness() < 128) {}

void SignalPainter::paint(std::size_t chosenRow) {
  painter_.fillRect(layout_.levels.united(layout_.decoded), palette_.color(QPalette::Base));
  findColumns();
  paintNames(chosenRow);
  paintRuler();
  painter_.save();
  painter_.setClipRect(layout_.levels.united(layout_.decoded));
  if (!rows_.empty()) {
    painter_.fillRect(layout_.row(chosenRow), palette_.color(QPalette::AlternateBase));
  }
  for (std::size_t number = 0; number < rows_.size(); ++number) paintRow(number);
  paintShortPhases();
  paintMessages();
  painter_.restore();
}

int SignalPainter::left(Time time) const {
  // A level that never gets known is behind every time.
  const Time near = std::clamp(time, scale_.from() - scale_.span(), scale_.to() + scale_.span());
  const double x = std::clamp(scale_.x(near), -10.0, scale_.width() + 10.0);
  return layout_.levels.left() + static_cast<int>(std::floor(x));
}

/// The history is asked once for all rows.
void SignalPainter::findColumns() {
  const wire::History& history = trace_.history();
  const int width = scale_.width();
  moved_.assign(static_cast<std::size_t>(width), 0);
  levels_.assign(static_cast<std::size_t>(width), 0);
  const auto column = [&](Time time) {
    return std::clamp(static_cast<int>(std::floor(std::clamp(scale_.x(time), -1.0, width + 1.0))),
                      0, width);
  };
  firstColumn_ = column(trace_.start());
  endColumn_ = scale_.to() <= trace_.end() ? width : std::min(column(trace_.end()) + 1, width);
  if (scale_.to() < trace_.start() || scale_.from() > trace_.end()) endColumn_ = firstColumn_;
  wire::History::Index index = history.firstAfter(scale_.from() - Time(1));
  for (int x = 0; x < endColumn_; ++x) {
    const Time border = scale_.at(x + 1);
    wire::History::Index next = index;
    if (next < history.end() && history.time(next) < border)
      next = history.firstAfter(border - Time(1));
    const auto at = static_cast<std::size_t>(x);
    if (next > index) moved_[at] = history.toggled(index, next);
    if (next > history.first()) levels_[at] = history.levels(next - 1);
    index = next;
  }
}

void SignalPainter::paintRuler() {
  const QFontMetrics metrics = painter_.fontMetrics();
  const Time step =
      rulerStep(scale_, metrics.horizontalAdvance(QStringLiteral("000.000000 s")) + 16);
  const Time origin = trace_.start();
  painter_.save();
  painter_.setClipRect(layout_.ruler.united(layout_.levels).united(layout_.decoded));
  const QColor text = palette_.color(QPalette::WindowText);
  QColor grid = palette_.color(QPalette::Mid);
  grid.setAlpha(90);
  Time time = (scale_.from() - origin) / step * step;
  for (; time + origin <= scale_.to(); time += step) {
    const int x = left(time + origin);
    painter_.setPen(grid);
    painter_.drawLine(x, layout_.decoded.top(), x, layout_.levels.bottom());
    painter_.setPen(text);
    painter_.drawLine(x, layout_.ruler.bottom() - 4, x, layout_.ruler.bottom());
    if (x < layout_.ruler.left()) continue;
    painter_.drawText(x + air, layout_.ruler.top() + metrics.ascent() + 1, rulerText(time, step));
  }
  painter_.restore();
}

void SignalPainter::paintNames(std::size_t chosenRow) {
  const QFontMetrics metrics = painter_.fontMetrics();
  const auto write = [&](const QRect& where, const QString& name, bool chosen) {
    if (chosen) painter_.fillRect(where, palette_.color(QPalette::Highlight));
    painter_.setPen(palette_.color(chosen ? QPalette::HighlightedText : QPalette::WindowText));
    const QRect inside = where.adjusted(air, 0, -air, 0);
    painter_.drawText(inside, Qt::AlignVCenter | Qt::AlignLeft,
                      metrics.elidedText(name, Qt::ElideRight, inside.width()));
  };
  const char* const lanes[] = {"Üzenet", "Bájt", "Bit"};
  for (int n = 0; n < 3; ++n) {
    write({layout_.names.left(), layout_.decoded.top() + n * layout_.lane, layout_.names.width(),
           layout_.lane},
          QString::fromUtf8(lanes[n]), false);
  }
  for (std::size_t number = 0; number < rows_.size(); ++number) {
    const QRect row = layout_.row(number);
    write({layout_.names.left(), row.top(), layout_.names.width(), row.height()},
          rows_[number].name, number == chosenRow);
  }
}

void SignalPainter::paintRow(std::size_t number) {
  const QRect row = layout_.row(number);
  const wire::Levels mask = wire::wireMask(rows_[number].wire);
  const int high = row.top() + air;
  const int low = row.bottom() - air;
  const int known = std::clamp(left(trace_.knownSince(rows_[number].wire)) - row.left(),
                               firstColumn_, std::max(firstColumn_, endColumn_));
  paintUnknown({row.left() + firstColumn_, row.top(), known - firstColumn_, row.height()});
  QList<QLine> lines;
  int from = known;
  const auto level = [&](int x) {
    return (levels_[static_cast<std::size_t>(x)] & mask) != 0 ? high : low;
  };
  const auto closeRun = [&](int to) {
    if (to > from) lines.append({row.left() + from, level(to - 1), row.left() + to, level(to - 1)});
  };
  for (int x = known; x < endColumn_; ++x) {
    if ((moved_[static_cast<std::size_t>(x)] & mask) == 0) continue;
    closeRun(x);
    lines.append({row.left() + x, high, row.left() + x, low});
    from = x;
  }
  closeRun(endColumn_);
  painter_.setPen(palette_.color(QPalette::Text));
  painter_.drawLines(lines);
}

void SignalPainter::paintUnknown(const QRect& where) {
  if (where.width() <= 0) return;
  painter_.fillRect(where.adjusted(0, air, 0, -air),
                    QBrush(palette_.color(QPalette::Mid), Qt::BDiagPattern));
}

/// Of the serial line's rows, which are the first two.
void SignalPainter::paintShortPhases() {
  constexpr int leastWidth = 2;
  const auto& phases = trace_.decoder().shortPhases();
  const QRect rows = layout_.row(0).united(layout_.row(1));
  QColor red = fault(dark_);
  constexpr int translucent = 170;
  red.setAlpha(translucent);
  const auto endsAfter = [](Time time, const wire::Phase& phase) { return time < phase.end; };
  auto phase = std::upper_bound(phases.begin(), phases.end(), scale_.from(), endsAfter);
  while (phase != phases.end() && phase->start < scale_.to()) {
    const int from = left(phase->start);
    const int width = std::max(left(phase->end) - from, leastWidth);
    painter_.fillRect(QRect(from, rows.top(), width, rows.height()), red);
    const Time painted = scale_.at(from - rows.left() + width);
    phase = std::upper_bound(phase + 1, phases.end(), painted, endsAfter);
  }
}

void SignalPainter::paintMessages() {
  const auto& messages = trace_.decoder().messages();
  const auto endsAfter = [](Time time, const Message& message) { return time < message.end; };
  auto message = std::upper_bound(messages.begin(), messages.end(), scale_.from(), endsAfter);
  while (message != messages.end() && message->start < scale_.to()) {
    const int from = left(message->start);
    const int to = std::max(left(message->end), from + 2);
    paintMessage(*message, from, to);
    const Time painted = scale_.at(to - layout_.levels.left());
    ++message;
    if (to - from <= 2) message = std::upper_bound(message, messages.end(), painted, endsAfter);
  }
}

QRect SignalPainter::lane(int number, int from, int to) const {
  return {from, layout_.decoded.top() + number * layout_.lane, std::max(to - from, 1),
          layout_.lane - 1};
}

void SignalPainter::paintMessage(const Message& message, int from, int to) {
  constexpr int leastByte = 12;
  constexpr int leastText = 30;
  const int begin = std::max(from, layout_.levels.left());
  const int end = std::min(to, layout_.levels.right() + 1);
  const bool words = end - begin >= leastText;
  paintBox(lane(0, begin, end), groundOf(message, dark_),
           words ? toQt(wire::kindText(message.kind) + ": " + wire::meaning(message)) : QString());
  const double width = scale_.x(message.end) - scale_.x(message.start);
  const auto bytes = static_cast<double>(message.bytes.size());
  if (width / bytes >= leastByte && message.start >= trace_.start()) paintBytes(message);
}

void SignalPainter::paintBytes(const Message& message) {
  constexpr std::size_t bitsOfByte = 8;
  const std::vector<wire::Bit> bits = wire::bitsOf(trace_.history(), message);
  for (std::size_t n = 0; n < message.bytes.size() && (n + 1) * bitsOfByte <= bits.size(); ++n) {
    const Time start = bits[n * bitsOfByte].start;
    const Time end = bits[n * bitsOfByte + bitsOfByte - 1].end;
    if (end < scale_.from() || start > scale_.to()) continue;
    const QRect box = lane(1, std::max(left(start), layout_.levels.left()),
                           std::min(left(end), layout_.levels.right() + 1));
    const QString value = QString::number(message.bytes[n]);
    const std::string name = wire::byteName(message, n);
    const QString named = name.empty() ? value : toQt(name) + QStringLiteral(" = ") + value;
    const bool fits = painter_.fontMetrics().horizontalAdvance(named) + 2 * air <= box.width();
    paintBox(box, groundOf(message, dark_), fits ? named : value);
  }
  paintBits(bits);
}

void SignalPainter::paintBits(const std::vector<wire::Bit>& bits) {
  const int leastBit = painter_.fontMetrics().horizontalAdvance(QLatin1Char('0')) + 2;
  painter_.setPen(palette_.color(QPalette::Text));
  for (const wire::Bit& bit : bits) {
    if (bit.end < scale_.from() || bit.start > scale_.to()) continue;
    const QRect box = lane(2, left(bit.start), left(bit.end));
    if (box.width() < leastBit) continue;
    painter_.drawText(box, Qt::AlignCenter, bit.level ? QStringLiteral("1") : QStringLiteral("0"));
    painter_.drawLine(box.left(), box.top() + air, box.left(), box.bottom() - air);
  }
}

void SignalPainter::paintBox(const QRect& box, const QColor& ground, const QString& text) {
  painter_.fillRect(box.adjusted(0, 1, box.width() > 4 ? -1 : 0, 0), ground);
  if (text.isEmpty()) return;
  const int room = box.width() - 2 * air;
  painter_.setPen(palette_.color(QPalette::Text));
  painter_.drawText(box.adjusted(air, 0, -air, 0), Qt::AlignVCenter | Qt::AlignLeft,
                    painter_.fontMetrics().elidedText(text, Qt::ElideRight, room));
}

void SignalPainter::paintCursor(Time time, const QString& letter) {
  if (time < scale_.from() || time > scale_.to()) return;
  const QColor colour = letter == QLatin1String("A")
                            ? (dark_ ? QColor(0x6C, 0xB8, 0xFF) : QColor(0x00, 0x55, 0xB0))
                            : (dark_ ? QColor(0xFF, 0xB7, 0x4D) : QColor(0x8A, 0x4B, 0x00));
  const int x = left(time);
  painter_.setPen(colour);
  painter_.drawLine(x, layout_.ruler.bottom() - 4, x, layout_.levels.bottom());
  const int width = painter_.fontMetrics().horizontalAdvance(letter) + 2 * air;
  const QRect flag(x, layout_.ruler.top(), width, layout_.ruler.height() - 2);
  painter_.fillRect(flag, colour);
  painter_.setPen(palette_.color(QPalette::Base));
  painter_.drawText(flag, Qt::AlignCenter, letter);
}

}  // namespace monitra::signals
