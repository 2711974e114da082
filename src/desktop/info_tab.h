#pragma once

#include <QWidget>

#include "controls/controls.h"

namespace monitra::desktop {

/// The tab "Infó". The text's control must live as long as the widget.
class InfoTab : public QWidget {
 public:
  explicit InfoTab(controls::TextBox& InfoT, QWidget* parent = nullptr);
};

}  // namespace monitra::desktop
