#pragma once

#include <QProxyStyle>

namespace monitra::widgets {

/// The toolkit's neutral style with a mark of the keyboard's focus that can be seen in every theme
/// and on every ground. The edges of tabs and groups, and the mark of a menu bar that is too
/// narrow, are its own: drawn at any scale, and without images, which take a good part of a start
/// to load.
class WindowStyle : public QProxyStyle {
 public:
  WindowStyle();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                     const QWidget* widget) const override;
};

}  // namespace monitra::widgets
