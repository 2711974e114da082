#include "compare/axis_panel.h"

#include <QLabel>
#include <QVBoxLayout>

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
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(1);
  rows->addWidget(head_);
  rows->addWidget(curve_, 1);
  rows->addWidget(speeds_);
  curve_->setAccessibleName(name_ + QStringLiteral(" motor árama az idő függvényében"));
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
