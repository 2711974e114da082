#pragma once

#include <QSize>

namespace monitra::desktop {

inline constexpr QSize motorPicture{60, 56};
inline constexpr QSize boardPicture{104, 60};

}  // namespace monitra::desktop
