#include "compare/axis_panel.h"

#include <QLabel>
#include <initializer_list>

#include "widgets/companion.h"
#include "widgets/looks.h"
#include "widgets/text.h"

namespace monitra::compare {

AxisPanel::AxisPanel(int axis, QWidget* parent)
    : QWidget(parent),
      name_(QStringLiteral("XYZ").at(axis)),
      head_(widgets::bold(widgets::makeTellingLabel("Tengely"))),
      speeds_(widgets::makeTellingLabel("Sebességek")),
      curve_(new CurveView) {
  for (QWidget* const part : std::initializer_list<QWidget*>{head_, curve_, speeds_}) {
    part->setParent(this);
  }
  curve_->setAccessibleName(name_ + QStringLiteral(" motor árama az idő függvényében"));
}

QSize AxisPanel::withWords(QSize curve) const {
  constexpr int lines = 3;
  return curve + QSize(0, fontMetrics().height() * lines + 2);
}

QSize AxisPanel::sizeHint() const {
  return withWords(curve_->sizeHint());
}

QSize AxisPanel::minimumSizeHint() const {
  return withWords(curve_->minimumSizeHint());
}

void AxisPanel::resizeEvent(QResizeEvent* /*event*/) {
  const int line = fontMetrics().height();
  head_->setGeometry(0, 0, width(), line);
  curve_->setGeometry(0, line + 1, width(), height() - 3 * line - 2);
  speeds_->setGeometry(0, height() - 2 * line, width(), 2 * line);
}

void AxisPanel::show(const CurveView::Picture& present, const CurveView::Picture& behind,
                     double until, bool wholeSteps, double mmPerStep) {
  curve_->show(present, behind, until);
  if (!present) return;
  const QString words = widgets::toQt(revisions::curveText(*present));
  widgets::tell(
      head_,
      QStringLiteral("%1 – %2, %3 lépés; %4")
          .arg(name_, present->edition.tarso ? QStringLiteral("Tarso") : QStringLiteral("Vilor"),
               wholeSteps ? QStringLiteral("egész") : QStringLiteral("fél"), words));
  curve_->setAccessibleDescription(words);
  widgets::tell(speeds_, widgets::toQt(revisions::speedLines(*present, mmPerStep)));
}

}  // namespace monitra::compare
