#pragma once

#include <QString>
#include <QWidget>
#include <string_view>

#include "shell/lap.h"
#include "shell/window_description.h"

namespace monitra::desktop {

/// Makes the widgets of the window description: each of the kind, with the words and in the state
/// that its entry tells, named for a screen reader, and bound to its control in the model. How
/// they look beyond that and where they stand is up to whoever asks for them.
class WidgetMaker {
 public:
  /// The Lap must outlive the widgets.
  explicit WidgetMaker(shell::Lap& lap) : lap_(lap) {}

  /// The widget of a control, or of an element of a control array, to be made once.
  template <class Widget = QWidget>
  Widget* make(std::string_view name, int index = -1) const {
    auto* const widget = dynamic_cast<Widget*>(makeWidget(name, index));
    Q_ASSERT_X(widget != nullptr, "make", name.data());
    return widget;
  }

  shell::Lap& lap() const { return lap_; }

 private:
  QWidget* makeWidget(std::string_view name, int index) const;

  shell::Lap& lap_;
};

/// A caption for a widget that marks the letter of its mnemonic by an ampersand; 0: it has none.
QString withMnemonic(std::string_view caption, char mnemonic);

/// "name" or "name(index)", which is what the widget of a control is called.
QString objectName(std::string_view name, int index);

/// Joins the labels that are there to the widgets that they head, for the keyboard and for a screen
/// reader.
void joinBuddies(const QWidget& window);

}  // namespace monitra::desktop
