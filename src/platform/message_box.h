#pragma once

#include <string>

namespace monitra::platform {

/// A style is a sum of one button set and at most one icon.
namespace box_style {
inline constexpr int okOnly = 0;
inline constexpr int yesNo = 4;
inline constexpr int critical = 16;
inline constexpr int question = 32;
inline constexpr int exclamation = 48;
inline constexpr int information = 64;

inline constexpr int icon(int style) {
  return style & 0x70;
}
inline constexpr bool asksYesNo(int style) {
  return (style & 0x0F) == yesNo;
}
}  // namespace box_style

enum class BoxAnswer : int { Ok = 1, Yes = 6, No = 7 };

class MessageBox {
 public:
  virtual ~MessageBox() = default;

  /// Shows a text, its lines separated by CR LF, under the program's title, and waits for the
  /// answer. The first button is the default one. A question has no answer beside Yes and No: the
  /// escape key and the box's close button do nothing to it, while they dismiss a box with OK.
  virtual BoxAnswer MsgBox(const std::string& text, int style) = 0;
};

}  // namespace monitra::platform
