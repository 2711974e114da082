#pragma once

#include <QString>
#include <string_view>

namespace monitra::widgets {

inline QString toQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A box's text, whose lines end with CR LF, for a widget that wants line feeds.
inline QString linesToQt(std::string_view text) {
  return toQt(text).remove(QLatin1Char('\r'));
}

}  // namespace monitra::widgets
