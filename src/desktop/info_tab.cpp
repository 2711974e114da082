#include "desktop/info_tab.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "desktop/picture_sizes.h"
#include "widgets/looks.h"
#include "widgets/picture.h"

namespace monitra::desktop {

using namespace widgets;

namespace {

QPlainTextEdit* infoText(const WidgetMaker& widgets) {
  auto* const text = widgets.make<QPlainTextEdit>("InfoT");
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
  QPlainTextEdit* const text = infoText(widgets);
  QLabel* const heads[] = {widgets.make<QLabel>({"Label29", 0}),
                           widgets.make<QLabel>({"Label29", 1})};
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(pageMargin, smallGap, pageMargin, pageMargin);
  QHBoxLayout* const row = flatRow();
  row->addWidget(heads[0], 1, Qt::AlignCenter);
  auto* const board = widgets.make<Picture>({"Picture2", 1});
  board->show(QStringLiteral(":/pictures/board.svg"), boardPicture);
  row->addWidget(board);
  row->addWidget(heads[1], 1, Qt::AlignCenter);
  column->addLayout(row);
  column->addWidget(text);
  // This tab asks for less room than the other ones in any case.
  beforeSeen(this, [text, left = heads[0], right = heads[1]] {
    constexpr double headPoints = 18;
    constexpr double textPoints = 8.25;
    for (QLabel* const head : {left, right}) inFont(head, "Times New Roman", headPoints);
    QFont font(QStringLiteral("Arial"));
    font.setPointSizeF(textPoints);
    text->setFont(font);
  });
}

}  // namespace monitra::desktop
