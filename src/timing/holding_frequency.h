#pragma once

#include <functional>

#include "timing/kozos.h"
#include "timing/setup_panel.h"
#include "timing/timing_fields.h"

namespace monitra::timing {

/// Keeps the holding frequency of an axis while its duty moves: a press on an arrow of T2 or T3
/// moves the other one of the axis the opposite way. A field at its limit stays, with a beep.
/// Binds its handlers to the panel; all arguments must outlive it.
class HoldingFrequency {
 public:
  HoldingFrequency(const Kozos& kozos, SetupPanel& panel, TimingFields& fields,
                   std::function<void()> Beep);

  /// The press that lowers, or raises, the timing field Index; runs before the field moves.
  void FolLe_SpinDown(int Index);
  void FolLe_SpinUp(int Index);

  void MBTallando_Click();
  void MBTValtozo_Click();

 private:
  bool couples(int Index) const;
  /// What the partner is to be where the moved field goes one way and the partner step the other.
  double partnerNumber(int Index, int step) const;
  /// The partner's text first, then its value; where that takes its limit the text shows it.
  void setPartner(int partner, double number);

  const Kozos& kozos_;
  SetupPanel& panel_;
  TimingFields& fields_;
  std::function<void()> Beep_;
};

}  // namespace monitra::timing
