#include "desktop/info_tab.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTimer>
#include <QVBoxLayout>

#include "desktop/picture.h"
#include "desktop/widgets.h"

namespace monitra::desktop {

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

InfoTab::InfoTab(const WidgetMaker& widgets) : text_(infoText(widgets)) {
  for (const int n : {0, 1}) heads_ << widgets.make<QLabel>("Label29", n);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(pageMargin, smallGap, pageMargin, pageMargin);
  QHBoxLayout* const heads = flatRow();
  heads->addWidget(heads_[0], 1, Qt::AlignCenter);
  auto* const board = widgets.make<Picture>("Picture2", 1);
  board->show(QStringLiteral(":/pictures/board.svg"), boardPicture);
  heads->addWidget(board);
  heads->addWidget(heads_[1], 1, Qt::AlignCenter);
  column->addLayout(heads);
  column->addWidget(text_);
  constexpr int behindTheFirstFrame = 50;  // ms
  QTimer::singleShot(behindTheFirstFrame, this, [this] { takeFonts(); });
}

void InfoTab::showEvent(QShowEvent* /*event*/) {
  takeFonts();
}

void InfoTab::takeFonts() {
  constexpr double headPoints = 18;
  constexpr double textPoints = 8.25;
  for (QLabel* const head : heads_) inFont(head, "Times New Roman", headPoints);
  QFont font(QStringLiteral("Arial"));
  font.setPointSizeF(textPoints);
  text_->setFont(font);
}

}  // namespace monitra::desktop
