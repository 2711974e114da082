#pragma once

#include <QObject>
#include <QTimer>

namespace monitra::widgets {

/// Lets the text cursor stand still, and show, once nobody has used keys or mouse for ten seconds:
/// its blinking is most of what an idle window does. One object for each process.
class CursorRest : public QObject {
 public:
  explicit CursorRest(QObject* parent);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  int period_;  ///< of the desktop's blinking, in ms
  QTimer idle_;
};

}  // namespace monitra::widgets
