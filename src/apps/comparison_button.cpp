#include "apps/comparison_button.h"

namespace monitra::apps {

ComparisonButton::ComparisonButton(shell::Lap& lap) : lap_(lap) {
  for (controls::PushButton* const button : {&lap.MentesJel, &lap.KuldesJel}) {
    button->Click.handle([this] { open(); });
  }
}

ComparisonButton::~ComparisonButton() {
  for (controls::PushButton* const button : {&lap_.MentesJel, &lap_.KuldesJel}) {
    button->Click.handle({});
  }
  delete window_;
}

void ComparisonButton::open() {
  if (window_ == nullptr) {
    shell::Lap& lap = lap_;
    compare::Actions actions{
        [&lap](const std::string& path) { lap.openDropped(path); },
        [&lap](std::size_t column, const auto& fields) { lap.revert(column, fields); },
        [&lap] { lap.undo(); }, [&lap] { lap.redo(); }};
    window_ =
        new compare::ComparisonWindow({lap.revisions, lap.setup, lap.kozos}, std::move(actions));
    window_->setAttribute(Qt::WA_DeleteOnClose);
  }
  window_->show();
  window_->raise();
  window_->activateWindow();
}

}  // namespace monitra::apps
