#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

#include "platform/file_dialog.h"

class QFileDialog;

namespace monitra::desktop {

/// The toolkit's file dialog. It starts in the folder of the last choice, and asks nothing about
/// the chosen name but which it is. The parent may be set after construction.
class QtFileDialog : public platform::FileDialog {
 public:
  QtFileDialog();

  void setParent(QWidget* parent) { parent_ = parent; }

 private:
  platform::Failure askOpen() override;
  platform::Failure askSave() override;
  platform::Failure show(QFileDialog& dialog);

  QPointer<QWidget> parent_;
  QString folder_;
};

/// "Text (*.a)|*.a|All (*.*)|*.*" as the toolkit's list of name filters.
QStringList nameFilters(const std::string& filter);

}  // namespace monitra::desktop
