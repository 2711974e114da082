#pragma once

#include <QPainter>
#include <QRect>
#include <QString>
#include <vector>

#include "signals/time_scale.h"
#include "wire/bits.h"
#include "wire/trace.h"

namespace monitra::signals {

/// A wire that is shown.
struct Row {
  int wire;
  QString name;
};

/// Where the parts of the picture stand.
struct Layout {
  QRect names;     ///< of the rows
  QRect ruler;     ///< of the time
  QRect decoded;   ///< messages, bytes and bits, one above the other
  QRect levels;    ///< the rows
  int lane = 1;    ///< height of a line of what is decoded
  int height = 1;  ///< of a row

  QRect row(std::size_t number) const {
    return {levels.left(), levels.top() + static_cast<int>(number) * height, levels.width(),
            height};
  }
};

/// Draws a part of a recording. Its work depends on the picture's size and not on how many changes
/// there are in it.
class SignalPainter {
 public:
  /// All must outlive it.
  SignalPainter(QPainter& painter, const wire::Trace& trace, const TimeScale& scale,
                const Layout& layout, const std::vector<Row>& rows, const QPalette& palette);

  void paint(std::size_t chosenRow);
  /// A cursor and its letter.
  void paintCursor(wire::Time time, const QString& letter);

 private:
  void findColumns();
  void paintRuler();
  void paintNames(std::size_t chosenRow);
  void paintRow(std::size_t number);
  void paintUnknown(const QRect& where);
  void paintShortPhases();
  void paintMessages();
  void paintMessage(const wire::Message& message, int left, int right);
  void paintBytes(const wire::Message& message);
  void paintBits(const std::vector<wire::Bit>& bits);
  void paintBox(const QRect& box, const QColor& ground, const QString& text);
  QRect lane(int number, int left, int right) const;
  int left(wire::Time time) const;

  QPainter& painter_;
  const wire::Trace& trace_;
  const TimeScale& scale_;
  const Layout& layout_;
  const std::vector<Row>& rows_;
  const QPalette& palette_;
  bool dark_;
  /// Of each column of pixels: what moves in it, and the levels behind it.
  std::vector<wire::Levels> moved_;
  std::vector<wire::Levels> levels_;
  int firstColumn_ = 0;  ///< with something recorded
  int endColumn_ = 0;    ///< behind the last
};

/// The times of the ruler: so far apart, in nanoseconds, that their words fit.
wire::Time rulerStep(const TimeScale& scale, int leastWidth);

/// A moment on the ruler, in seconds with as many digits as the step needs.
QString rulerText(wire::Time time, wire::Time step);

}  // namespace monitra::signals
