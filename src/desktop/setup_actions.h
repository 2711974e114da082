#pragma once

#include <QObject>
#include <QTimer>
#include <optional>

#include "shell/lap.h"

class QMenu;
class QPoint;
class QWidget;

namespace monitra::desktop {

/// What can be done with the Setup at each of its fields: undo and redo, by keys and by the context
/// menu, and there what concerns the field's axis. Also tells the model where a step of the user
/// ends: with the event, and for good once the hands have rested.
class SetupActions : public QObject {
 public:
  /// For the window with all its widgets in it; the Lap must outlive it.
  SetupActions(QWidget* window, shell::Lap& lap);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void serve(const QString& name, std::optional<int> axis);
  void openMenu(QWidget* field, const QPoint& where);
  void addAxis(QMenu* menu, int axis);
  void endStepBy(QTimer& timer, void (revisions::Undo::*act)());

  QWidget* window_;
  shell::Lap& lap_;
  QTimer settle_;
  QTimer close_;
};

}  // namespace monitra::desktop
