#include "desktop/info_tab.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "desktop/picture.h"
#include "desktop/widgets.h"

namespace monitra::desktop {

namespace {

QPlainTextEdit* infoText(const WidgetMaker& widgets) {
  constexpr double points = 8.25;
  auto* const text = widgets.make<QPlainTextEdit>("InfoT");
  QFont font(QStringLiteral("Arial"));
  font.setPointSizeF(points);
  text->setFont(font);
  giveThinFrame(text);
  text->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  text->setTabChangesFocus(true);
  followTheme(text, [](QPalette& colours) {
    const QPalette theme = QGuiApplication::palette();
    colours.setColor(QPalette::Base, theme.color(QPalette::ToolTipBase));
    colours.setColor(QPalette::Text, theme.color(QPalette::ToolTipText));
  });
  return text;
}

}  // namespace

InfoTab::InfoTab(const WidgetMaker& widgets) {
  constexpr double headPoints = 18;
  const auto head = [&widgets](int index) {
    return inFont(widgets.make<QLabel>("Label29", index), "Times New Roman", headPoints);
  };
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(pageMargin, smallGap, pageMargin, pageMargin);
  QHBoxLayout* const heads = flatRow();
  heads->addWidget(head(0), 1, Qt::AlignCenter);
  auto* const board = widgets.make<Picture>("Picture2", 1);
  board->show(QStringLiteral(":/pictures/board.svg"), boardPicture);
  heads->addWidget(board);
  heads->addWidget(head(1), 1, Qt::AlignCenter);
  column->addLayout(heads);
  column->addWidget(infoText(widgets));
}

}  // namespace monitra::desktop
