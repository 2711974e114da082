// How long the view of ten minutes' worth of the generator takes to paint, at every zoom: median,
// 99 % quantile and longest in milliseconds. With a folder it writes some pictures there instead,
// with one more word in dark colours.

#include <QApplication>
#include <QImage>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include "link/upload.h"
#include "signals/signal_view.h"
#include "timing/setup.h"
#include "widgets/window_style.h"

namespace {

using namespace monitra;
using std::chrono::microseconds;
using wire::Time;

constexpr link::PinMap pins = link::pcb4xPins;

/// Puts levels on a trace, some time after the ones before.
struct Sender {
  void set(int levels, Time after) {
    time += after;
    trace.take(time, static_cast<wire::Levels>(levels), 0x0FFF);
  }
  void step() {
    const int direction = link::mask(pins.YDirBit);
    set(direction, microseconds(970));
    set(direction | link::mask(pins.YStepBit), microseconds(10));
    set(direction, microseconds(10));
    set(0, microseconds(10));
  }
  void byte(int value, Time phase) {
    for (int n = 0; n < 8; ++n) {
      const int data = (value >> n & 1) << pins.SorosAdatBit;
      set(data, phase);
      set(data | link::mask(pins.SorosOrajelBit), phase);
      set(data, phase);
    }
  }

  wire::Trace trace{wire::boardLayout(link::Pcb::V4x)};
  Time time{std::chrono::hours(5)};
};

void fill(Sender& sender, int steps) {
  sender.set(0x200, microseconds(0));
  for (int n = 0; n < steps; ++n) {
    sender.step();
    if (n % 60000 != 59999) continue;
    sender.time += std::chrono::milliseconds(300);
    for (const std::uint8_t value : link::setupMessage(timing::Setup{})) {
      sender.byte(value, microseconds(n % 7 == 3 && value == 0 ? 990 : 1010));
    }
    sender.time += std::chrono::milliseconds(300);
  }
}

double milliseconds(signals::SignalView& view, QImage& image) {
  const auto start = std::chrono::steady_clock::now();
  view.render(&image);
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

void measure(signals::SignalView& view, const wire::Trace& trace) {
  QImage image(view.size(), QImage::Format_RGB32);
  std::vector<double> all;
  for (int place = 0; place < 8; ++place) {
    view.fit();
    all.push_back(milliseconds(view, image));
    view.goTo(trace.start() + (trace.end() - trace.start()) * place / 7);
    for (int zoom = 0; zoom < 60; ++zoom) {
      view.zoom(1.3);
      all.push_back(milliseconds(view, image));
    }
  }
  std::ranges::sort(all);
  std::printf("%.2f %.2f %.2f\n", all[all.size() / 2], all[all.size() * 99 / 100], all.back());
}

void draw(signals::SignalView& view, const wire::Trace& trace, const QString& folder) {
  const auto save = [&](const char* name) {
    view.grab().save(folder + QLatin1Char('/') + QLatin1String(name) + QStringLiteral(".png"));
  };
  view.fit();
  save("whole");
  const wire::Message& message = trace.decoder().messages().at(3);
  view.showSpan(message.start, message.end);
  view.setCursor(0, message.start);
  view.setCursor(1, message.end);
  save("message");
  std::printf("%s\n%s\n", qPrintable(view.pointedText()), qPrintable(view.cursorText()));
  view.goTo(message.start + (message.end - message.start) / 5);
  view.zoom(5);
  save("bytes");
  view.goTo(trace.start() + std::chrono::milliseconds(500));
  view.zoom(10);
  save("steps");
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setStyle(new widgets::WindowStyle);
  Sender sender;
  constexpr int stepsOfTenMinutes = 600'000;
  fill(sender, stepsOfTenMinutes);
  signals::SignalView view;
  if (argc > 2) {
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(0x2B, 0x2B, 0x2B));
    dark.setColor(QPalette::WindowText, QColor(0xEE, 0xEE, 0xEE));
    dark.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x1E));
    dark.setColor(QPalette::AlternateBase, QColor(0x2F, 0x2F, 0x2F));
    dark.setColor(QPalette::Text, QColor(0xEE, 0xEE, 0xEE));
    QApplication::setPalette(dark);
  }
  view.setTrace(&sender.trace);
  view.resize(1000, 500);
  view.show();
  if (argc > 1) {
    draw(view, sender.trace, QString::fromLocal8Bit(argv[1]));
  } else {
    measure(view, sender.trace);
  }
}
