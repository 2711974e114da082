#include "desktop/info_tab.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>

#include "desktop/widgets.h"

namespace monitra::desktop {

InfoTab::InfoTab(controls::TextBox& InfoT, QWidget* parent) : QWidget(parent) {
  constexpr double headPoints = 18;
  auto* column = new QVBoxLayout(this);
  auto* heads = flatRow();
  heads->addStretch();
  for (const char* const name : {"Label29(0)", "Label29(1)"}) {
    QLabel* const head = wordedLabel(name);
    QFont font(QStringLiteral("Times New Roman"));
    font.setPointSizeF(headPoints);
    head->setFont(font);
    heads->addWidget(head);
    heads->addStretch();
  }
  column->addLayout(heads);

  auto* text = bound<QPlainTextEdit>("InfoT", InfoT);
  text->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  QPalette colours = text->palette();
  colours.setColor(QPalette::Base, colours.color(QPalette::ToolTipBase));
  colours.setColor(QPalette::Text, colours.color(QPalette::ToolTipText));
  text->setPalette(colours);
  column->addWidget(text);
}

}  // namespace monitra::desktop
