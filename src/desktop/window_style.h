#pragma once

#include <QProxyStyle>

namespace monitra::desktop {

/// The toolkit's neutral style with a mark of the keyboard's focus that can be seen in every theme
/// and on every ground.
class WindowStyle : public QProxyStyle {
 public:
  WindowStyle();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace monitra::desktop
