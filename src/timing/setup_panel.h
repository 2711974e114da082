#pragma once

#include "controls/controls.h"
#include "controls/indexed_array.h"
#include "timing/setup.h"

namespace monitra::timing {

/// The controls that hold and show the Setup, with the values and states of the window description;
/// its captions they get from there.
/// A field's spin value and text are separate data; each reader takes the one that it names.
struct SetupPanel {
  template <int First>
  using Boxes = controls::IndexedArray<controls::TextBox, First, 3>;
  using Labels = controls::IndexedArray<controls::Label, 0, 3>;

  SetupPanel();

  /// The text box of the timing field i, 0 to 11.
  controls::TextBox& box(int i);
  const controls::TextBox& box(int i) const;

  /// The Setup as the spin values, the list and the check boxes hold it.
  Setup spinValues() const;

  /// Puts a Setup into the same controls, in their order; the events of each follow.
  void setSpinValues(const Setup& setup);

  struct TimingSpin : controls::SpinButton {
    TimingSpin() : SpinButton(1, 255, 1) {}
  };
  struct TimingBox : controls::TextBox {
    TimingBox() : TextBox({}, true) {}
  };

  controls::IndexedArray<TimingSpin, 0, timingFields> FolLe;
  controls::IndexedArray<TimingBox, 0, 3> TF;
  controls::IndexedArray<TimingBox, 3, 3> T1;
  controls::IndexedArray<TimingBox, 6, 3> T2;
  controls::IndexedArray<TimingBox, 9, 3> T3;

  controls::Label Xttarto;
  controls::Label Yttarto;
  controls::Label Zttarto;
  Labels Csucsf;
  Labels Nhatar;

  controls::PickList Funkcio;
  controls::TextBox Ut{"1000"};
  controls::SpinButton Utfolle{1, 65535, 1000};
  controls::TextBox Spm{"0.0125"};
  controls::Label Uthossz;
  controls::TextBox Tures{"1"};
  controls::SpinButton Turesfolle{0, 255, 1};
  controls::CheckBox Xegesz;
  controls::CheckBox Yegesz;
  controls::CheckBox Zegesz;

  controls::Label Label15;
  controls::Label Verz;
  controls::Label Vegallas;

  /// The edition in force is the checked one of these two entries.
  controls::MenuEntry MBKVilor{true};
  controls::MenuEntry MBKTarso;
  /// The checked one tells whether the holding frequency stays while the duty moves.
  controls::MenuEntry MBTallando{true};
  controls::MenuEntry MBTValtozo;
  controls::Label Cim;
  controls::Label lepes;
  controls::Line LineVilor1;
  controls::Line LineVilor2;
  controls::Line LineVilor3;
  controls::Line LineTarso1{false};
  controls::Line LineTarso2{false};

  controls::PushButton Letolt{false};
  controls::ProgressBar Bar;
};

}  // namespace monitra::timing
