#include "desktop/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <chrono>
#include <span>

#include "desktop/footer.h"
#include "desktop/info_tab.h"
#include "desktop/link_tab.h"
#include "desktop/screen_fit.h"
#include "desktop/setup_actions.h"
#include "desktop/setup_tab.h"
#include "desktop/test_tab.h"
#include "desktop/widget_maker.h"
#include "shell/window_controls.h"
#include "shell/window_table.h"
#include "store/file_kind.h"
#include "widgets/bindings.h"
#include "widgets/cursor_rest.h"
#include "widgets/text.h"

namespace monitra::desktop {

using namespace widgets;

namespace {

/// An action for a menu entry, shown and bound as its control in the model is.
void addEntry(QMenu* menu, const shell::MenuDescription& entry, shell::Lap& lap) {
  QAction* const action = menu->addAction(toQt(entry.caption));
  action->setObjectName(toQt(entry.name));
  const shell::AnyControl control = shell::controlOf(lap, entry.name);
  controls::MenuEntry& bound = *std::get<controls::MenuEntry*>(control);
  entry.mark == shell::MenuDescription::Mark::None ? bind(action, bound)
                                                   : bindChecked(action, bound);
  // A submenu that can't be opened has no entry that could be reached past it.
  if (!menu->isEnabled()) action->setEnabled(false);
}

/// The path of a dragged file that the program opens; empty if it isn't exactly one. The file is
/// only looked at, so whoever drags it must be content with a copy.
std::string droppedFile(const QDropEvent& event) {
  const QList<QUrl> urls = event.mimeData()->urls();
  if (urls.size() != 1 || !event.possibleActions().testFlag(Qt::CopyAction)) return {};
  std::string path = urls.constFirst().toLocalFile().toStdString();
  if (store::fileKind(path) == store::FileKind::None) path.clear();
  return path;
}

}  // namespace

MainWindow::MainWindow(shell::Lap& lap) : lap_(lap) {
  bind(this, lap_.form);
  setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                 Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                 Qt::WindowCloseButtonHint);
  setAcceptDrops(true);
  addMenus();

  auto* content = new QWidget;
  auto* rows = new QVBoxLayout(content);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(2);
  QTabWidget* const tabs = addTabs();
  rows->addWidget(tabs, 1);
  rows->addWidget(new Footer(widgets_));
  const double pixelsPerTwip = logicalDpiX() / 1440.0;
  content->setMinimumSize(qRound(shell::clientWidth * pixelsPerTwip),
                          qRound(shell::clientHeight * pixelsPerTwip));
  setCentralWidget(content);
  joinBuddies(*this);
  new SetupActions(this, lap);
  fit_ = new ScreenFit(this, tabs);
  lookAfterPort();
  new CursorRest(this);
}

/// A port can go away while nobody uses it.
void MainWindow::lookAfterPort() {
  constexpr std::chrono::seconds interval{1};
  auto* const watch = new QTimer(this);
  connect(watch, &QTimer::timeout, this, [this] {
    lap_.showPort();
    lap_.passTime();
  });
  watch->start(interval);
}

void MainWindow::addMenus() {
  const std::span<const shell::MenuDescription> tree = shell::menuTree();
  QMenu* open[4] = {};
  for (std::size_t i = 0; i < tree.size(); ++i) {
    const shell::MenuDescription& entry = tree[i];
    QMenu* const parent = open[entry.level - 1];
    const bool submenu = i + 1 < tree.size() && tree[i + 1].level > entry.level;
    if (entry.caption == "-") {
      parent->addSeparator()->setObjectName(toQt(entry.name));
    } else if (!submenu) {
      addEntry(parent, entry, lap_);
    } else {
      QMenu* const menu = new QMenu(toQt(entry.caption), this);
      menu->setObjectName(toQt(entry.name));
      menu->setEnabled(entry.enabled);
      parent != nullptr ? parent->addMenu(menu) : menuBar()->addMenu(menu);
      menu->menuAction()->setEnabled(entry.enabled);
      open[entry.level] = menu;
    }
  }
}

QTabWidget* MainWindow::addTabs() {
  auto* const tabs = widgets_.make<QTabWidget>("SSTab1");
  QWidget* const pages[] = {new SetupTab(widgets_), new TestTab(widgets_), new LinkTab(widgets_),
                            new InfoTab(widgets_)};
  const QSignalBlocker whileFilling(tabs);
  int at = 0;
  for (const shell::TabDescription& tab : shell::tabs()) {
    tabs->addTab(pages[at++], withMnemonic(tab.caption, tab.mnemonic));
  }
  tabs->setCurrentIndex(lap_.SSTab1.Tab);
  return tabs;
}

void MainWindow::showCentred() {
  fit_->showCentred();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  lap_.Form_Unload();
  event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (QApplication::activeModalWidget() != nullptr || droppedFile(*event).empty()) return;
  event->setDropAction(Qt::CopyAction);
  event->accept();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const std::string path = droppedFile(*event);
  if (path.empty()) return;
  event->setDropAction(Qt::CopyAction);
  event->accept();
  // Whoever dragged the file waits for the end of this event, which a box must not hold up.
  const auto open = [this, path] {
    if (QApplication::activeModalWidget() == nullptr) lap_.openDropped(path);
  };
  QMetaObject::invokeMethod(this, open, Qt::QueuedConnection);
}

}  // namespace monitra::desktop
