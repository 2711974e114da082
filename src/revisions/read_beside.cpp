#include "revisions/read_beside.h"

#include "firmware/firmware_files.h"
#include "store/file_kind.h"
#include "store/setup_files.h"
#include "timing/editions.h"
#include "timing/tuning_fields.h"

namespace monitra::revisions {

namespace {

/// How a reading has ended, its result tells.
class SilentBox : public platform::MessageBox {
 public:
  platform::BoxAnswer MsgBox(const std::string& /*text*/, int /*style*/) override {
    return platform::BoxAnswer::Ok;
  }
};

/// A Setup with its rules, in the second edition as at the start of the program.
struct SideDesk {
  explicit SideDesk(const FileSource& source)
      : outside{dialog, source.files, source.codePage, box, program} {
    kozos.VerFo.assign(1, '5');
    editions.MBKTarso_Click();
  }

  platform::NoDialog dialog;
  SilentBox box;
  platform::ProgramIdentity program{};
  store::FileOutside outside;
  controls::Form form;
  timing::Kozos kozos;
  timing::SetupPanel panel;
  timing::TimingFields timingFields{kozos, panel};
  timing::Editions editions{kozos, panel, timingFields, box};
  timing::TuningFields tuningFields{panel};
};

ReadFile readImage(SideDesk& desk) {
  firmware::FirmwareFiles files(desk.outside, desk.kozos, desk.panel, desk.timingFields,
                                desk.editions, desk.form);
  ReadFile read;
  read.failure = files.FirmwareNyit().failure;
  if (read.failure != platform::Failure::None) return read;
  const Fields all = fieldsOf(desk.panel, desk.kozos);
  for (FieldIndex field = 0; field < fieldOf(store::verzRecord); ++field) {
    read.fields.numbers[field] = all.numbers[field];
  }
  for (FieldIndex field = fieldOf(store::verFoRecord); field <= fieldOf(store::verRevRecord);
       ++field) {
    read.fields.texts[field] = all.texts[field];
  }
  return read;
}

ReadFile readSetup(SideDesk& desk) {
  store::SetupFiles files(desk.outside, desk.kozos, desk.panel, desk.editions, desk.form);
  const store::OpenResult opened = files.MFSetNyit_Click();
  const Fields all = fieldsOf(desk.panel, desk.kozos);
  ReadFile read;
  read.failure = opened.failure;
  for (FieldIndex field = 0; field < opened.records.size(); ++field) {
    read.fields.texts[field] = opened.records[field];
    read.fields.numbers[field] = all.numbers[field];
  }
  return read;
}

}  // namespace

ReadFile readBeside(const FileSource& source, const std::string& path) {
  SideDesk desk(source);
  const platform::GivenName name(desk.dialog, path);
  return store::fileKind(path) == store::FileKind::Firmware ? readImage(desk) : readSetup(desk);
}

}  // namespace monitra::revisions
