#include "desktop/setup_actions.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QShortcut>
#include <QVariant>
#include <functional>
#include <utility>

#include "desktop/widget_maker.h"
#include "widgets/bindings.h"

namespace monitra::desktop {

namespace {

constexpr const char* axisProperty = "axis";
constexpr int axes = 3;

const QKeySequence& undoKeys() {
  static const QKeySequence keys(Qt::CTRL | Qt::Key_Z);
  return keys;
}

const QKeySequence& redoKeys() {
  static const QKeySequence keys(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
  return keys;
}

}  // namespace

SetupActions::SetupActions(QWidget* window, shell::Lap& lap)
    : QObject(window), window_(window), lap_(lap) {
  for (int i = 0; i < timing::timingFields; ++i) {
    constexpr const char* groups[] = {"TF", "T1", "T2", "T3"};
    serve(desktop::objectName(groups[i / axes], i), i % axes);
    serve(desktop::objectName("FolLe", i), i % axes);
  }
  for (int axis = 0; axis < axes; ++axis) {
    constexpr const char* wholeSteps[] = {"Xegesz", "Yegesz", "Zegesz"};
    serve(desktop::objectName("Label6", axis), axis);
    serve(desktop::objectName(wholeSteps[axis], -1), axis);
  }
  for (const char* const name : {"Funkcio", "Ut", "Utfolle", "Spm", "Tures", "Turesfolle"}) {
    serve(desktop::objectName(name, -1), std::nullopt);
  }
  connect(new QShortcut(undoKeys(), window), &QShortcut::activated, this, [this] { lap_.undo(); });
  connect(new QShortcut(redoKeys(), window), &QShortcut::activated, this, [this] { lap_.redo(); });
  endStepBy(settle_, &revisions::Undo::settle);
  endStepBy(close_, &revisions::Undo::close);
  widgets::keep(this, lap.revisions.marks.observe([this] {
    constexpr std::chrono::milliseconds rest{700};
    settle_.start(0);
    close_.start(rest);
  }));
}

/// Not while a box is up: the user's event that has brought it hasn't run to its end.
void SetupActions::endStepBy(QTimer& timer, void (revisions::Undo::*act)()) {
  timer.setSingleShot(true);
  connect(&timer, &QTimer::timeout, this, [this, &timer, act] {
    constexpr std::chrono::milliseconds again{100};
    if (QApplication::activeModalWidget() != nullptr) return timer.start(again);
    (lap_.revisions.undo.*act)();
  });
}

void SetupActions::serve(const QString& name, std::optional<int> axis) {
  auto* const widget = window_->findChild<QWidget*>(name);
  if (axis) widget->setProperty(axisProperty, *axis);
  widget->installEventFilter(this);
}

bool SetupActions::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ContextMenu) {
    openMenu(static_cast<QWidget*>(watched), static_cast<QContextMenuEvent*>(event)->globalPos());
    return true;
  }
  if (event->type() != QEvent::ShortcutOverride) return false;
  // A typed box would keep these keys for its own text.
  const QKeySequence keys(static_cast<QKeyEvent*>(event)->keyCombination());
  event->ignore();
  return keys == undoKeys() || keys == redoKeys();
}

void SetupActions::openMenu(QWidget* field, const QPoint& where) {
  auto* const box = qobject_cast<QLineEdit*>(field);
  QMenu* const menu = box != nullptr ? box->createStandardContextMenu() : new QMenu(field);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  // The toolkit's menu of a typed box begins with an undo and a redo of its own.
  for (int own = 0; own < 2 && box != nullptr && !box->isReadOnly(); ++own) {
    menu->removeAction(menu->actions().constFirst());
  }
  revisions::Undo& undo = lap_.revisions.undo;
  undo.close();
  QAction* const first = menu->actions().value(0);
  const auto add = [&](const char* text, const QKeySequence& keys, bool can,
                       std::function<void()> act) {
    auto* const action = new QAction(QString::fromUtf8(text), menu);
    action->setShortcut(keys);
    action->setEnabled(can);
    connect(action, &QAction::triggered, this, std::move(act));
    menu->insertAction(first, action);
  };
  add("&Visszavonás", undoKeys(), undo.canUndo(), [this] { lap_.undo(); });
  add("&Mégis", redoKeys(), undo.canRedo(), [this] { lap_.redo(); });
  if (first != nullptr && !first->isSeparator()) menu->insertSeparator(first);
  const QVariant axis = field->property(axisProperty);
  if (axis.isValid()) addAxis(menu, axis.toInt());
  menu->popup(where);
}

void SetupActions::addAxis(QMenu* menu, int axis) {
  menu->addSeparator();
  connect(menu->addAction(QStringLiteral("Másolás a &többi tengelyre")), &QAction::triggered, this,
          [this, axis] { lap_.copyAxis(axis); });
  QAction* const back = menu->addAction(QStringLiteral("Vissza a me&ntettre"));
  back->setEnabled(lap_.revisions.marks.savedFields().has_value());
  connect(back, &QAction::triggered, this, [this, axis] {
    lap_.revert(revisions::Comparison::saved, revisions::fieldsOfAxis(axis));
  });
}

}  // namespace monitra::desktop
