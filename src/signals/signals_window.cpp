#include "signals/signals_window.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "signals/machine_view.h"
#include "signals/signal_view.h"
#include "widgets/companion.h"
#include "widgets/looks.h"
#include "widgets/text.h"

namespace monitra::signals {

using widgets::addButton;
using widgets::makeTellingLabel;
using widgets::tell;
using wire::Time;

namespace {

constexpr int everyColumn = -1;

/// A table of whole rows, of which one column or each gets the room that is left, and whose rows
/// tell where they are asked for.
QTableView* makeRows(QAbstractItemModel* model, const char* name, int stretched,
                     std::function<void(int)> place) {
  QTableView* const table = widgets::makeTable(model, name);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->verticalHeader()->hide();
  QHeaderView& header = *table->horizontalHeader();
  header.setSectionResizeMode(stretched < 0 ? QHeaderView::Stretch : QHeaderView::Interactive);
  if (stretched >= 0) header.setSectionResizeMode(stretched, QHeaderView::Stretch);
  QObject::connect(table->selectionModel(), &QItemSelectionModel::currentRowChanged, table,
                   [place = std::move(place)](const QModelIndex& now) {
                     if (now.isValid()) place(now.row());
                   });
  return table;
}

}  // namespace

SignalsWindow::SignalsWindow(Live live, QWidget* parent)
    : QMainWindow(parent),
      live_(std::move(live)),
      heading_(widgets::bold(makeTellingLabel("Forrás"))),
      secondHeading_(widgets::bold(makeTellingLabel("Második felvétel"))),
      pointed_(makeTellingLabel("A mutató alatt")),
      cursors_(makeTellingLabel("A két jelölő közt")),
      sums_(makeTellingLabel("Összesen")),
      details_(makeTellingLabel("Az üzenet", true)),
      view_(new SignalView),
      secondView_(new SignalView),
      table_(makeRows(&messages_, "Üzenetek", MessageModel::Meaning,
                      [this](int row) { placeMessage(row); })),
      pairTable_(makeRows(&pairs_, "Összevetés", everyColumn, [this](int row) { placePair(row); })),
      machine_(new MachineView) {
  setWindowTitle(QStringLiteral("Jelek"));
  auto* const content = new QWidget;
  auto* const rows = new QVBoxLayout(content);
  rows->setContentsMargins(widgets::pageMargin, widgets::pageMargin, widgets::pageMargin,
                           widgets::pageMargin);
  rows->setSpacing(widgets::smallGap);
  rows->addLayout(makeButtons());
  auto* const parts = new QSplitter(Qt::Vertical);
  parts->setChildrenCollapsible(false);
  parts->addWidget(makeViews());
  parts->addWidget(makeMessages());
  parts->setStretchFactor(0, 2);
  parts->setStretchFactor(1, 1);
  rows->addWidget(parts, 1);
  setCentralWidget(content);
  for (SignalView* const view : {view_, secondView_}) tellFiguresOf(view);
  view_->moved = [this] { follow_->setChecked(!recording_.trace && view_->follows()); };
  secondView_->setAccessibleName(QStringLiteral("A második felvétel jelei"));
  endComparison();
  showLive();
  constexpr QSize usual(1120, 780);
  resize(usual);
}

QHBoxLayout* SignalsWindow::makeButtons() {
  QHBoxLayout* const row = widgets::flatRow();
  follow_ = addButton(row, "É&lő", "Ami most megy ki, a végét követve", [this] {
    recording_.trace && follow_->isChecked() ? showLive() : view_->setFollows(follow_->isChecked());
  });
  follow_->setCheckable(true);
  addButton(row, "&Megnyitás…", "Egy VCD-felvétel", [this] { showRecording(openRecording(this)); });
  addButton(row, "Menté&s…", "VCD-felvételként", [this] { save(); });
  compare_ = addButton(row, "Össze&vetés…", "Egy második felvétel az első alá", [this] {
    second_.trace ? endComparison() : compareWith(openRecording(this));
  });
  compare_->setCheckable(true);
  addButton(row, "&Egész", "A teljes felvétel", [this] { view_->fit(); });
  constexpr double step = 2;
  addButton(row, "+", "Közelebb", [this] {
    view_->zoom(step);
  })->setAccessibleName(QStringLiteral("Közelebb"));
  addButton(row, "−", "Távolabb", [this] {
    view_->zoom(1 / step);
  })->setAccessibleName(QStringLiteral("Távolabb"));
  addButton(row, "Elő&ző üzenet", "A képen láthatótól balra", [this] { goToMessage(-1); });
  addButton(row, "&Következő üzenet", "A képen láthatótól jobbra", [this] { goToMessage(1); });
  auto* const head = new QLabel(QStringLiteral("&Ugrás (s):"));
  jumpTo_ = new QLineEdit;
  jumpTo_->setAccessibleName(QStringLiteral("Ugrás erre a másodpercre"));
  jumpTo_->setMaximumWidth(widgets::numberBoxWidth(*jumpTo_, 10));
  head->setBuddy(jumpTo_);
  connect(jumpTo_, &QLineEdit::returnPressed, this, [this] { jump(); });
  row->addWidget(head);
  row->addWidget(jumpTo_);
  row->addStretch();
  return row;
}

QWidget* SignalsWindow::makeViews() {
  auto* const part = new QWidget;
  auto* const rows = new QVBoxLayout(part);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(2);
  rows->addWidget(heading_);
  rows->addWidget(view_, 1);
  rows->addWidget(secondHeading_);
  rows->addWidget(secondView_, 1);
  rows->addWidget(pointed_);
  rows->addWidget(cursors_);
  return part;
}

QWidget* SignalsWindow::makeMessages() {
  auto* const left = new QWidget;
  auto* const rows = new QVBoxLayout(left);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(2);
  rows->addWidget(sums_);
  rows->addWidget(table_, 1);
  rows->addWidget(pairTable_, 1);
  rows->addWidget(details_);
  auto* const part = new QSplitter;
  part->setChildrenCollapsible(false);
  part->addWidget(left);
  part->addWidget(machine_);
  part->setStretchFactor(0, 1);
  return part;
}

void SignalsWindow::tellFiguresOf(SignalView* view) {
  view->pointed = [this, view] {
    if (view->row() < 0) return;  // it has no recording
    tell(pointed_, view->pointedText());
    tell(cursors_, view->cursorText());
  };
}

void SignalsWindow::setTrace(const wire::Trace* trace) {
  trace_ = trace;
  details_->clear();
  messages_.setTrace(trace);
  pairs_.setTraces(second_.trace ? trace : nullptr, second_.trace.get());
  machine_->setTrace(trace);
  view_->setTrace(trace);
  tellSource();
  tellSums();
}

void SignalsWindow::showLive() {
  view_->setFollows(true);
  setTrace(&live_.trace());
  recording_ = {};
  tellSource();
  refresh();
}

void SignalsWindow::showRecording(Recording recording) {
  if (!recording.trace) return;
  view_->setFollows(false);
  setTrace(recording.trace.get());
  recording_ = std::move(recording);
  follow_->setChecked(false);
  tellSource();
}

void SignalsWindow::compareWith(Recording recording) {
  if (recording.trace) {
    secondView_->setFollows(false);
    secondView_->setTrace(recording.trace.get());
    second_ = std::move(recording);
    pairs_.setTraces(trace_, second_.trace.get());
    secondHeading_->setText(
        QStringLiteral("Második felvétel: %1 %2").arg(second_.name, second_.fault));
  }
  const bool compares = second_.trace != nullptr;
  compare_->setChecked(compares);
  for (QWidget* const widget :
       {static_cast<QWidget*>(secondHeading_), static_cast<QWidget*>(secondView_),
        static_cast<QWidget*>(pairTable_)}) {
    widget->setVisible(compares);
  }
  table_->setVisible(!compares);
  tellSums();
}

void SignalsWindow::endComparison() {
  pairs_.setTraces(nullptr, nullptr);
  secondView_->setTrace(nullptr);
  second_ = {};
  compareWith({});
}

void SignalsWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  constexpr int interval = 100;  // ms; the pulses of the same thread have most of it
  if (timer_ == 0) timer_ = startTimer(interval);
}

void SignalsWindow::hideEvent(QHideEvent* event) {
  QMainWindow::hideEvent(event);
  if (timer_ != 0) killTimer(std::exchange(timer_, 0));
}

void SignalsWindow::timerEvent(QTimerEvent* /*event*/) {
  if (!recording_.trace) refresh();
}

void SignalsWindow::refresh() {
  live_.pass();
  const wire::Trace* const live = &live_.trace();
  if (live != trace_) return setTrace(live);
  view_->refresh();
  messages_.refresh();
  pairs_.refresh();
  machine_->refresh();
  tellSource();
  tellSums();
}

void SignalsWindow::tellSource() {
  tell(heading_, recording_.trace
                     ? QStringLiteral("Felvétel: %1 %2").arg(recording_.name, recording_.fault)
                     : live_.source());
}

void SignalsWindow::tellSums() {
  if (trace_ == nullptr) return;
  QString text = QStringLiteral("%1 üzenet, %2 fázis 1 ms-nál rövidebb; %3 váltás %4 MB-ban")
                     .arg(messages_.rowCount())
                     .arg(trace_->decoder().shortPhases().size())
                     .arg(trace_->history().end() - trace_->history().first())
                     .arg(static_cast<double>(trace_->history().bytes()) / 1e6, 0, 'f', 1);
  if (second_.trace) text = QStringLiteral("%1 eltérés; ").arg(pairs_.differences()) + text;
  tell(sums_, text);
}

void SignalsWindow::save() {
  if (const QString name = saveRecording(this, *trace_); !name.isEmpty()) {
    tell(details_, QStringLiteral("Mentve: ") + name);
  }
}

void SignalsWindow::jump() {
  bool isNumber = false;
  const double seconds =
      jumpTo_->text().replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&isNumber);
  constexpr double most = 1e9;
  if (!isNumber || seconds < 0 || seconds > most) {
    return tell(details_, QStringLiteral("Írjon be másodpercet, például 12.5!"));
  }
  view_->goTo(trace_->start() + Time(static_cast<Time::rep>(seconds * 1e9)));
}

void SignalsWindow::goToMessage(int way) {
  const auto& messages = trace_->decoder().messages();
  const auto centre = [](const wire::Message& message) {
    return message.start + (message.end - message.start) / 2;
  };
  const Time now = view_->middle();
  // A message that is in the middle already, but for what the screen rounds off.
  const Time near = view_->scale().span() / 100;
  int row = -1;
  if (way > 0) {
    const auto next = std::ranges::upper_bound(messages, now + near, {}, centre);
    if (next != messages.end()) row = static_cast<int>(next - messages.begin());
  } else {
    row = static_cast<int>(std::ranges::lower_bound(messages, now - near, {}, centre) -
                           messages.begin()) -
          1;
  }
  if (row < 0) return tell(details_, QStringLiteral("Arra nincs több üzenet."));
  messages_.refresh();
  table_->selectRow(row);
  placeMessage(row);
}

void SignalsWindow::placeMessage(int row) {
  const wire::Message& message = messages_.message(row);
  tell(details_, messages_.details(row));
  view_->showSpan(message.start, message.end);
}

void SignalsWindow::placePair(int row) {
  const wire::Message* const first = pairs_.first(row);
  const wire::Message* const second = pairs_.second(row);
  if (first != nullptr) view_->showSpan(first->start, first->end);
  if (second != nullptr) secondView_->showSpan(second->start, second->end);
  tell(details_,
       pairs_.data(pairs_.index(row, ComparisonModel::Difference), Qt::DisplayRole).toString());
}

}  // namespace monitra::signals
