#pragma once

#include <QMainWindow>
#include <QString>
#include <functional>

#include "signals/comparison_model.h"
#include "signals/message_model.h"
#include "signals/recording_files.h"

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;

namespace monitra::signals {

class MachineView;
class SignalView;

/// What the window shows while no recording is open. What it refers to must outlive the window.
struct Live {
  /// What goes out on the selected port.
  std::function<const wire::Trace&()> trace;
  /// Brings it up to now.
  std::function<void()> pass;
  /// Which port it is and who listens, for the window's heading.
  std::function<QString()> source;
};

/// The window "Jelek": what went out, as levels over time, as messages and as the machine that a
/// controller makes of them; live, or a recording, or two of them side by side. It only looks on.
class SignalsWindow : public QMainWindow {
 public:
  explicit SignalsWindow(Live live, QWidget* parent = nullptr);

  /// Shows a recording, or puts it below the shown one and compares; one without a trace is none.
  void showRecording(Recording recording);
  void compareWith(Recording recording);

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  QHBoxLayout* makeButtons();
  QWidget* makeViews();
  QWidget* makeMessages();
  void tellFiguresOf(SignalView* view);
  void showLive();
  void endComparison();
  void setTrace(const wire::Trace* trace);
  void refresh();
  void tellSource();
  void tellSums();
  void save();
  void jump();
  void goToMessage(int way);
  void placeMessage(int row);
  void placePair(int row);

  Live live_;
  Recording recording_;  ///< none: it is live
  Recording second_;     ///< none: nothing is compared
  const wire::Trace* trace_ = nullptr;
  MessageModel messages_;
  ComparisonModel pairs_;
  QPushButton* follow_ = nullptr;
  QPushButton* compare_ = nullptr;
  QLineEdit* jumpTo_ = nullptr;
  QLabel* heading_;
  QLabel* secondHeading_;
  QLabel* pointed_;
  QLabel* cursors_;
  QLabel* sums_;
  QLabel* details_;  ///< of the chosen message, or what came of a button
  SignalView* view_;
  SignalView* secondView_;
  QTableView* table_;
  QTableView* pairTable_;
  MachineView* machine_;
  int timer_ = 0;
};

}  // namespace monitra::signals
