#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

#include "platform/message_box.h"

namespace monitra::desktop {

/// Message boxes of the window toolkit. The parent may be set after construction.
class QtMessageBox : public platform::MessageBox {
 public:
  explicit QtMessageBox(QString title) : title_(std::move(title)) {}

  platform::BoxAnswer MsgBox(const std::string& text, int style) override;

  void setParent(QWidget* parent) { parent_ = parent; }

 private:
  QString title_;
  QPointer<QWidget> parent_;
};

}  // namespace monitra::desktop
