#pragma once

#include <array>
#include <cstdint>

#include "controls/controls.h"
#include "link/serial_line.h"
#include "platform/message_box.h"
#include "timing/setup_panel.h"

namespace monitra::link {

inline constexpr std::uint8_t SetupIndit = 85;
inline constexpr std::uint8_t SetupZaro = 255;

using SetupMessage = std::array<std::uint8_t, 20>;

/// Register writes of one upload.
inline constexpr long uploadWrites = 480;

/// The message that carries a Setup into the controller, in sending order.
SetupMessage setupMessage(const timing::Setup& setup);

/// The button that sends the Setup. Binds its handler to the panel; all arguments must outlive it.
class Upload {
 public:
  Upload(timing::SetupPanel& panel, SerialLine& line, platform::MessageBox& box);

  /// Asks, and on Yes sends the whole message in one blocking run.
  void Letolt_Click();

  controls::Event begun;    ///< the question is about to come up
  controls::Event sending;  ///< it was answered by Yes, the first byte is about to go out
  controls::Event sent;     ///< the last byte is out, the final words have not come up yet

  /// Of the last message sent.
  const LineTiming& timing() const { return timing_; }

 private:
  void send(const SetupMessage& message);

  timing::SetupPanel& panel_;
  SerialLine& line_;
  platform::MessageBox& box_;
  LineTiming timing_;
};

}  // namespace monitra::link
