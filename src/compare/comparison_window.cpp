#include "compare/comparison_window.h"

#include <QCheckBox>
#include <QDropEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QTableView>
#include <QUrl>
#include <QVBoxLayout>
#include <utility>

#include "compare/axis_panel.h"
#include "store/file_kind.h"
#include "timing/numbers.h"
#include "widgets/bindings.h"
#include "widgets/companion.h"
#include "widgets/looks.h"
#include "widgets/text.h"

namespace monitra::compare {

using revisions::Comparison;
using revisions::FieldIndex;
using widgets::addButton;
using widgets::tell;
using widgets::toQt;

namespace {

/// The files that can be put beside the Setup.
QStringList setupFiles(const QMimeData& data) {
  QStringList paths;
  for (const QUrl& url : data.urls()) {
    const QString path = url.toLocalFile();
    if (store::fileKind(path.toStdString()) != store::FileKind::None) paths << path;
  }
  return paths;
}

}  // namespace

ComparisonWindow::ComparisonWindow(const Shown& shown, Actions actions, QWidget* parent)
    : QMainWindow(parent),
      shown_(shown),
      actions_(std::move(actions)),
      model_(shown.revisions.comparison),
      pages_(new QTabWidget),
      details_(widgets::makeTellingLabel("A kijelölt érték", true)),
      history_(
          new HistoryPage(shown.revisions.history, actions_.open, [this](const std::string& path) {
            pages_->setCurrentIndex(0);
            add({toQt(path)});
          })) {
  setWindowTitle(QStringLiteral("Összevetés"));
  setAcceptDrops(true);
  model_.refresh();
  pages_->addTab(makeComparison(), QStringLiteral("&Mi változott?"));
  pages_->addTab(history_, QStringLiteral("&Előzmények"));
  connect(pages_, &QTabWidget::currentChanged, this, [this](int page) {
    if (pages_->widget(page) == history_) history_->refresh();
  });
  setCentralWidget(pages_);
  connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z), this), &QShortcut::activated, this,
          actions_.undo);
  connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), this),
          &QShortcut::activated, this, actions_.redo);
  followSetup();
  constexpr QSize usual(1120, 700);
  resize(usual);
}

void ComparisonWindow::followSetup() {
  changed_.setSingleShot(true);
  connect(&changed_, &QTimer::timeout, this, [this] { refresh(); });
  const auto later = [this] {
    if (isVisible()) changed_.start(0);
  };
  widgets::keep(this, shown_.revisions.marks.observe(later));
  widgets::keep(this, shown_.panel.Cim.Caption.observe(later));
}

QWidget* ComparisonWindow::makeComparison() {
  table_ = widgets::makeTable(&model_, "A Setup mezői");
  table_->horizontalHeader()->setDefaultSectionSize(table_->fontMetrics().height() * 7);
  connect(&model_, &ComparisonModel::modelReset, this, [this] { hideEqualRows(); });
  connect(table_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this] { tellCell(); });
  auto* const left = new QWidget;
  auto* const rows = new QVBoxLayout(left);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(widgets::smallGap);
  rows->addLayout(makeFileButtons());
  rows->addWidget(table_, 1);
  rows->addLayout(makeWaysBack());
  rows->addWidget(details_);
  auto* const parts = new QSplitter;
  parts->setChildrenCollapsible(false);
  parts->setContentsMargins(widgets::pageMargin, widgets::pageMargin, widgets::pageMargin,
                            widgets::pageMargin);
  parts->addWidget(left);
  parts->addWidget(makeCurves());
  parts->setStretchFactor(0, 1);
  parts->setStretchFactor(1, 1);
  return parts;
}

QLayout* ComparisonWindow::makeFileButtons() {
  QHBoxLayout* const row = widgets::flatRow();
  addButton(row, "&Fájl mellé…", "Egy .pwm vagy .hex oszlopként; ide húzni is lehet", [this] {
    add(QFileDialog::getOpenFileNames(
        this, QStringLiteral("Fájl mellé"), {},
        QStringLiteral("Setup és firmware (*.pwm *.hex);;Minden fájl (*)")));
  });
  addButton(row, "E&lvétel", "A kijelölt fájl oszlopa elmegy", [this] {
    if (chosenColumn() < Comparison::firstFile) {
      return tell(details_, QStringLiteral("Jelölje ki egy fájl oszlopát!"));
    }
    shown_.revisions.comparison.remove(chosenColumn());
    refresh();
  });
  addButton(row, "Megn&yitás az ablakban", "A kijelölt oszlop fájlja lesz a főablak Setupja",
            [this] {
              const std::string path = shown_.revisions.comparison.columns()[chosenColumn()].path;
              if (!path.empty()) return actions_.open(path);
              tell(details_, QStringLiteral("Jelölje ki egy fájl oszlopát!"));
            });
  onlyDifferences_ = new QCheckBox(QStringLiteral("&Csak az eltérések"));
  connect(onlyDifferences_, &QCheckBox::toggled, this, [this] { hideEqualRows(); });
  row->addWidget(onlyDifferences_);
  row->addStretch();
  return row;
}

QLayout* ComparisonWindow::makeWaysBack() {
  QHBoxLayout* const row = widgets::flatRow();
  row->addWidget(new QLabel(QStringLiteral("Vissza a kijelölt oszlopra:")));
  constexpr const char* tip = "A főablak Setupjában; az első oszlopból a mentettre";
  addButton(row, "A mező &vissza", tip, [this] { revert(chosenField()); });
  addButton(row, "A &tengely vissza", tip, [this] { revert(chosenAxis()); });
  addButton(row, "Min&d vissza", tip, [this] { revert(revisions::allFields()); });
  row->addStretch();
  return row;
}

QWidget* ComparisonWindow::makeCurves() {
  auto* const part = new QWidget;
  auto* const rows = new QVBoxLayout(part);
  rows->setContentsMargins(widgets::pageMargin, 0, 0, 0);
  rows->setSpacing(widgets::pageMargin);
  for (int axis = 0; axis < static_cast<int>(axes_.size()); ++axis) {
    axes_[static_cast<std::size_t>(axis)] = new AxisPanel(axis);
    rows->addWidget(axes_[static_cast<std::size_t>(axis)], 1);
  }
  auto* const legend = widgets::makeTellingLabel("Jelmagyarázat", true);
  legend->setText(
      QStringLiteral("Fent az áram egy lépés után, szürkén a mentett Setupé. Lent a sebesség: "
                     "zöldben két lépés közt "
                     "letelik a T1, sárgában már nem, pirosban a TF sem (túlhajtás)."));
  rows->addWidget(legend);
  part->setMinimumWidth(part->fontMetrics().height() * 30);
  return part;
}

void ComparisonWindow::refresh() {
  changed_.stop();
  if (model_.refresh()) hideEqualRows();
  refreshCurves();
  if (pages_->currentWidget() == history_) history_->follow();
}

void ComparisonWindow::refreshCurves() {
  const auto& columns = shown_.revisions.comparison.columns();
  const timing::Edition edition{shown_.panel.MBKTarso.Checked, shown_.kozos.Alapido};
  const double mmPerStep = timing::Ertek(shown_.panel.Spm.Text.get());
  const std::array<bool, 3> wholeSteps{shown_.panel.Xegesz.Checked.get(),
                                       shown_.panel.Yegesz.Checked.get(),
                                       shown_.panel.Zegesz.Checked.get()};
  std::array<CurveView::Picture, 3> now;
  std::array<CurveView::Picture, 3> saved;
  double until = 0;
  for (std::size_t axis = 0; axis < axes_.size(); ++axis) {
    now[axis] =
        revisions::pictureOf(columns[Comparison::now].fields, static_cast<int>(axis), edition);
    saved[axis] = revisions::pictureOf(columns[Comparison::saved].fields, static_cast<int>(axis));
    for (const CurveView::Picture& picture : {now[axis], saved[axis]}) {
      if (picture) until = std::max(until, timing::curveLength(picture->times, picture->edition));
    }
  }
  until = CurveView::roundUp(until);
  for (std::size_t axis = 0; axis < axes_.size(); ++axis) {
    axes_[axis]->show(now[axis], saved[axis], until, wholeSteps[axis], mmPerStep);
  }
}

void ComparisonWindow::hideEqualRows() {
  for (FieldIndex field = 0; field < revisions::fieldCount; ++field) {
    table_->setRowHidden(static_cast<int>(field), onlyDifferences_->isChecked() &&
                                                      !shown_.revisions.comparison.differs(field));
  }
}

void ComparisonWindow::add(const QStringList& paths) {
  QStringList told;
  for (const QString& path : paths) {
    std::string fault;
    shown_.revisions.comparison.add(path.toStdString(), fault);
    if (!fault.empty()) told << toQt(fault);
  }
  refresh();
  if (!paths.isEmpty()) tell(details_, told.join(QLatin1Char(' ')));
}

void ComparisonWindow::revert(const std::vector<FieldIndex>& fields) {
  if (fields.empty()) return tell(details_, QStringLiteral("Jelöljön ki egy mezőt!"));
  actions_.revert(chosenColumn(), fields);
  refresh();
}

std::size_t ComparisonWindow::chosenColumn() const {
  const int column = table_->currentIndex().column();
  return column <= 0 ? Comparison::saved : static_cast<std::size_t>(column);
}

std::vector<FieldIndex> ComparisonWindow::chosenField() const {
  const int row = table_->currentIndex().row();
  if (row < 0) return {};
  return {static_cast<FieldIndex>(row)};
}

std::vector<FieldIndex> ComparisonWindow::chosenAxis() const {
  const std::vector<FieldIndex> field = chosenField();
  if (field.empty()) return {};
  const std::optional<int> axis = revisions::axisOf(field.front());
  return axis ? revisions::fieldsOfAxis(*axis) : std::vector<FieldIndex>();
}

void ComparisonWindow::tellCell() {
  const std::vector<FieldIndex> field = chosenField();
  if (field.empty()) return;
  const auto& columns = shown_.revisions.comparison.columns();
  const auto& column = columns[chosenColumn()];
  tell(details_, QStringLiteral("%1: most %2; %3: %4")
                     .arg(toQt(revisions::fieldLabel(field.front())),
                          toQt(shownText(columns[Comparison::now].fields, field.front())),
                          toQt(column.name), toQt(shownText(column.fields, field.front()))));
}

void ComparisonWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  refresh();
}

void ComparisonWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (setupFiles(*event->mimeData()).isEmpty() ||
      !event->possibleActions().testFlag(Qt::CopyAction)) {
    return;
  }
  event->setDropAction(Qt::CopyAction);
  event->accept();
}

void ComparisonWindow::dropEvent(QDropEvent* event) {
  event->setDropAction(Qt::CopyAction);
  event->accept();
  pages_->setCurrentIndex(0);
  add(setupFiles(*event->mimeData()));
}

}  // namespace monitra::compare
