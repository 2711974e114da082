#include "desktop/qt_message_box.h"

#include <QEventLoop>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "desktop/text.h"

namespace monitra::desktop {

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
    QPushButton* const no = box.addButton(QStringLiteral("&Nem"), QMessageBox::NoRole);
    box.setDefaultButton(yes);
    box.setEscapeButton(no);
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
