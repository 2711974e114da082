#pragma once

#include <QIcon>
#include <QString>

namespace monitra::widgets {

/// An icon drawn from an SVG file, which is read once it is to be seen; sharp at every scale, and
/// without the toolkit's plugins for images, which take a good part of a start to load.
QIcon svgIcon(const QString& file);

}  // namespace monitra::widgets
