#include "timing/setup_panel.h"

#include <array>
#include <utility>

#include "timing/numbers.h"

namespace monitra::timing {

SetupPanel::SetupPanel() : Funkcio({funkcioEntries.begin(), funkcioEntries.end()}) {
  constexpr std::array<int, 4> groupDefaults{91, 244, 24, 24};
  for (int i = 0; i < timingFields; ++i) {
    const int value = groupDefaults[static_cast<std::size_t>(i / 3)];
    FolLe[i].Value = value;
    box(i).Text = decimalText(value);
  }
  Label15.Visible = false;
  Verz.Visible = false;
}

const controls::TextBox& SetupPanel::box(int i) const {
  switch (i / 3) {
    case 0:
      return TF[i];
    case 1:
      return T1[i];
    case 2:
      return T2[i];
    default:
      return T3[i];
  }
}

controls::TextBox& SetupPanel::box(int i) {
  return const_cast<controls::TextBox&>(std::as_const(*this).box(i));
}

Setup SetupPanel::spinValues() const {
  Setup setup;
  for (int i = 0; i < timingFields; ++i) {
    setup.timing[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(FolLe[i].Value.get());
  }
  setup.Funkcio = static_cast<std::uint8_t>(Funkcio.ListIndex.get());
  setup.Ut = static_cast<std::uint16_t>(Utfolle.Value.get());
  setup.Tures = static_cast<std::uint8_t>(Turesfolle.Value.get());
  setup.Xegesz = Xegesz.Checked;
  setup.Yegesz = Yegesz.Checked;
  setup.Zegesz = Zegesz.Checked;
  return setup;
}

void SetupPanel::setSpinValues(const Setup& setup) {
  for (int i = 0; i < timingFields; ++i) {
    FolLe[i].Value = setup.timing[static_cast<std::size_t>(i)];
  }
  Funkcio.ListIndex = setup.Funkcio;
  Utfolle.Value = setup.Ut;
  Turesfolle.Value = setup.Tures;
  Xegesz.Checked = setup.Xegesz;
  Yegesz.Checked = setup.Yegesz;
  Zegesz.Checked = setup.Zegesz;
}

}  // namespace monitra::timing
