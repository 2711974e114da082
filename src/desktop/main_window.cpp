#include "desktop/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QLayout>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QTabWidget>
#include <QVBoxLayout>

#include "desktop/bindings.h"
#include "desktop/footer.h"
#include "desktop/info_tab.h"
#include "desktop/link_tab.h"
#include "desktop/setup_tab.h"
#include "desktop/test_tab.h"
#include "desktop/text.h"
#include "desktop/words.h"
#include "shell/file_kind.h"
#include "shell/window_description.h"

namespace monitra::desktop {

namespace {

QMenu* addMenu(QMenu* parent, QMenuBar* bar, std::string_view name) {
  QMenu* const menu =
      parent != nullptr ? parent->addMenu(caption(name)) : bar->addMenu(caption(name));
  menu->setObjectName(toQt(name));
  return menu;
}

QAction* addEntry(QMenu* menu, std::string_view name) {
  QAction* const action = menu->addAction(caption(name));
  action->setObjectName(toQt(name));
  return action;
}

/// The path of a dragged file that the program opens; empty if it isn't exactly one. The file is
/// only looked at, so whoever drags it must be content with a copy.
std::string droppedFile(const QDropEvent& event) {
  const QList<QUrl> urls = event.mimeData()->urls();
  if (urls.size() != 1 || !event.possibleActions().testFlag(Qt::CopyAction)) return {};
  std::string path = urls.constFirst().toLocalFile().toStdString();
  if (shell::fileKind(path) == shell::FileKind::None) path.clear();
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
  rows->setSpacing(4);
  rows->addWidget(addTabs(), 1);
  rows->addWidget(new Footer(lap_.PortAllapot, lap_.Esemeny));
  const double pixelsPerTwip = logicalDpiX() / 1440.0;
  content->setMinimumSize(qRound(shell::clientWidth * pixelsPerTwip),
                          qRound(shell::clientHeight * pixelsPerTwip));
  setCentralWidget(content);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}

void MainWindow::addMenus() {
  QMenu* const file = addMenu(nullptr, menuBar(), "MF");
  bind(addEntry(file, "MFSetNyit"), lap_.MFSetNyit);
  bind(addEntry(file, "MFSetMent"), lap_.MFSetMent);
  file->addSeparator();
  bind(addEntry(file, "MFkilepes"), lap_.MFkilepes);

  QMenu* const settings = addMenu(nullptr, menuBar(), "MB");
  QMenu* const holding = addMenu(settings, nullptr, "MBT");
  bindChecked(addEntry(holding, "MBTallando"), lap_.setup.MBTallando);
  bindChecked(addEntry(holding, "MBTValtozo"), lap_.setup.MBTValtozo);
  QMenu* const boards = addMenu(settings, nullptr, "Mkom");
  bindChecked(addEntry(boards, "Mpcb32"), lap_.port.Mpcb32);
  bindChecked(addEntry(boards, "Mpcb40"), lap_.port.Mpcb40);
}

QTabWidget* MainWindow::addTabs() {
  auto* tabs = new QTabWidget;
  tabs->setObjectName(QStringLiteral("SSTab1"));
  const auto captions = shell::tabCaptions();
  QWidget* const pages[] = {new SetupTab(lap_.setup), new TestTab(lap_.jog, lap_.bits, lap_.port),
                            new LinkTab(lap_.phases, lap_.load), new InfoTab(lap_.InfoT)};
  for (std::size_t i = 0; i < captions.size(); ++i) tabs->addTab(pages[i], toQt(captions[i]));
  bind(tabs, lap_.SSTab1);
  return tabs;
}

void MainWindow::showCentred() {
  adjustSize();
  const QRect free = screen()->availableGeometry();
  move(free.center() - rect().center());
  show();
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
