#include "desktop/qt_message_box.h"

#include <QEventLoop>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "widgets/text.h"

namespace monitra::desktop {

using namespace widgets;

namespace {

using platform::BoxAnswer;
namespace box_style = platform::box_style;

QMessageBox::Icon iconOf(int style) {
  switch (box_style::icon(style)) {
    case box_style::critical:
      return QMessageBox::Critical;
    case box_style::question:
      return QMessageBox::Question;
    case box_style::exclamation:
      return QMessageBox::Warning;
    case box_style::information:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

/// Keeps a box up while it is told to close without an answer.
class NoWayOut : public QObject {
 public:
  explicit NoWayOut(QMessageBox* box) { box->installEventFilter(this); }

 protected:
  bool eventFilter(QObject* /*box*/, QEvent* event) override {
    const bool closes = event->type() == QEvent::Close;
    if (closes) event->ignore();
    return closes || (event->type() == QEvent::KeyPress &&
                      static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel));
  }
};

/// What follows a box may block the thread. So the window gets time to repaint where the box
/// stood, while the user's clicks and keys wait.
void repaintWindow() {
  constexpr int milliseconds = 60;
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace

BoxAnswer QtMessageBox::MsgBox(const std::string& text, int style) {
  const bool yesNo = box_style::asksYesNo(style);
  QMessageBox box(parent_);
  box.setWindowTitle(title_);
  box.setTextFormat(Qt::PlainText);
  box.setText(linesToQt(text));
  box.setIcon(iconOf(style));
  if (yesNo) {
    QPushButton* const yes = box.addButton(QStringLiteral("&Igen"), QMessageBox::YesRole);
    box.addButton(QStringLiteral("&Nem"), QMessageBox::NoRole);
    box.setDefaultButton(yes);
    box.setWindowFlag(Qt::WindowCloseButtonHint, false);
    const NoWayOut onlyItsButtons(&box);
    box.exec();
    repaintWindow();
    return box.clickedButton() == yes ? BoxAnswer::Yes : BoxAnswer::No;
  }
  box.setStandardButtons(QMessageBox::Ok);
  box.button(QMessageBox::Ok)->setIcon({});
  box.exec();
  repaintWindow();
  return BoxAnswer::Ok;
}

}  // namespace monitra::desktop
