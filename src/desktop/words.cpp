#include "desktop/words.h"

#include <QLabel>

#include "desktop/text.h"
#include "shell/window_description.h"

namespace monitra::desktop {

void describe(QWidget* widget, std::string_view name, int index) {
  const shell::ControlWords& words = shell::controlWords(name);
  widget->setObjectName(index < 0 ? toQt(name)
                                  : QStringLiteral("%1(%2)").arg(toQt(name)).arg(index));
  widget->setToolTip(toQt(words.tooltip));
}

QString caption(std::string_view name) {
  return toQt(shell::controlWords(name).caption);
}

QLabel* wordedLabel(std::string_view name, QWidget* parent) {
  auto* label = new QLabel(caption(name), parent);
  label->setTextFormat(Qt::PlainText);
  describe(label, name);
  return label;
}

}  // namespace monitra::desktop
