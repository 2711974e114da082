#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

#include "platform/remedy_box.h"

namespace monitra::desktop {

/// Remedies in a small dialog of the window toolkit. The parent may be set after construction.
class QtRemedyBox : public platform::RemedyBox {
 public:
  explicit QtRemedyBox(QString title) : title_(std::move(title)) {}

  bool show(const platform::Remedy& remedy) override;

  void setParent(QWidget* parent) { parent_ = parent; }

 private:
  QString title_;
  QPointer<QWidget> parent_;
};

}  // namespace monitra::desktop
