#pragma once

#include <QList>
#include <QWidget>

#include "desktop/widget_maker.h"

class QLabel;
class QPlainTextEdit;

namespace monitra::desktop {

/// The tab "Infó". It takes its fonts behind the window's first frame, or when it is shown: they
/// take a good part of a start to load, and it asks for less room than the other tabs in any case.
class InfoTab : public QWidget {
 public:
  explicit InfoTab(const WidgetMaker& widgets);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void takeFonts();

  QList<QLabel*> heads_;
  QPlainTextEdit* text_;
};

}  // namespace monitra::desktop
