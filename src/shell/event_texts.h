#pragma once

#include <cstdint>
#include <string>

#include "controls/controls.h"
#include "firmware/firmware_files.h"
#include "firmware/image_check.h"
#include "link/serial_line.h"
#include "platform/failure.h"
#include "store/preferences.h"
#include "store/setup_files.h"

namespace monitra::shell {

/// What the status line says of an opened or saved file where no box has told it all; empty if
/// there is nothing to say. The copy is where the save has left what the file held before, if
/// it has.
std::string openingText(const store::OpenResult& result);
std::string savingText(platform::Failure failure, const std::string& path,
                       const std::string& copy = {});

/// The same of a firmware file that was read: what is wrong with it, or which version it is.
std::string firmwareText(const firmware::ReadResult& result, const firmware::ImageReport& report,
                         const std::string& name, const std::string& version);

controls::Status firmwareStatus(const firmware::ReadResult& result,
                                const firmware::ImageReport& report);

/// One fault of an image, with the file and the line.
std::string faultText(const firmware::ImageFault& fault, const std::string& name);

/// So many values of a file were outside their range.
std::string adjustedText(int values);

/// A press on the greyed button of the upload, or on a greyed jog arrow: why it is greyed.
std::string uploadRefusedText();
std::string jogRefusedText();

/// An upload has gone out, and was kept among the former ones or not, or only in part because its
/// port went away, or not at all without one.
std::string sentText(const link::LineTiming& timing, bool kept);
std::string cutShortText();
std::string nothingSentText();

/// The bits have gone out on a port with these registers, whose pins now have these levels: those
/// of the data register in the lower byte, those of the control register in the upper one. Or only
/// one of the two registers could be written.
std::string bitsSentText(std::int32_t data, std::int32_t control, std::uint16_t levels,
                         bool spindleRuns);
std::string halfSentText();

/// The pulse generator runs with this interval in milliseconds; 0: it never ticks.
std::string generatorText(int interval);

/// The load test needs a permit to go on: the first one, or where that is given the second.
std::string missingPermitText(bool firstGiven);

/// To be shown at the start where the stored preferences can't be relied on; empty where they can.
std::string preferencesText(store::Preferences::Standing standing);

}  // namespace monitra::shell
