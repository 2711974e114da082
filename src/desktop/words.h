#pragma once

#include <QString>
#include <string_view>

class QLabel;
class QWidget;

namespace monitra::desktop {

/// Gives a widget a control's name and tooltip; with an index, "name(index)" and the tooltip that
/// the control array shares.
void describe(QWidget* widget, std::string_view name, int index = -1);

/// Caption of a control in the window description.
QString caption(std::string_view name);

/// A label that shows its fixed caption.
QLabel* wordedLabel(std::string_view name, QWidget* parent = nullptr);

}  // namespace monitra::desktop
