#pragma once

#include <QWidget>

#include "wire/trace.h"

namespace monitra::signals {

/// The machine as a controller leaves it: the windings by their connectors, the load, the axes, the
/// relay, and the way in X and Y.
class MachineView : public QWidget {
 public:
  explicit MachineView(QWidget* parent = nullptr);

  /// Null for none. It must outlive the view or be taken away first.
  void setTrace(const wire::Trace* trace);

  /// The recording has grown.
  void refresh();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintAxis(QPainter& painter, std::size_t axis, const QRect& row) const;
  void paintPath(QPainter& painter, const QRect& where) const;
  QString sumText() const;
  int lineHeight() const { return fontMetrics().height() + 6; }

  const wire::Trace* trace_ = nullptr;
  QString shown_;  ///< what the picture tells, in words
};

/// The connector of a winding line, "L1 (CON17)": of the axes X, Y, Z, and the lines 0 to 3.
QString connectorName(std::size_t axis, int line);

}  // namespace monitra::signals
