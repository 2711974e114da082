#pragma once

#include "host/windows1250.h"
#include "shell/lap.h"
#include "support/faulty_files.h"
#include "support/journal.h"
#include "support/scratch.h"

namespace monitra::support {

/// The whole program without its window, in a folder of its own, with everything outside it but
/// the files faked. "end" in the journal is the end of the process.
struct Program {
  Journal journal;
  Scratch scratch;
  JournalPort registers{journal};
  JournalStates ports{journal, registers};
  JournalBoxes box{journal};
  JournalRemedies remedies{journal};
  JournalDialog dialog{journal};
  JournalSettings settings{journal};
  FaultyFiles files;
  host::Windows1250 codePage;
  ScratchArchive archive{scratch};
  platform::ProgramIdentity identity{"Monitra Setup", scratch.path(), "Monitra Setup", 2, 2, 0};
  std::function<void()> beep = [this] { journal.emplace_back("beep"); };
  std::function<void()> end = [this] { journal.emplace_back("end"); };
  shell::Outside outside{registers, ports,    registers, box,      remedies, dialog, files,
                         codePage,  settings, archive,   identity, beep,     end};
  shell::Lap lap{outside};
};

}  // namespace monitra::support
