#include "firmware/image_check.h"

#include <array>
#include <memory>
#include <string_view>

#include "firmware/parameter_block.h"
#include "store/text_reader.h"

namespace monitra::firmware {

using platform::Failure;

namespace {

constexpr int countPosition = 2;
constexpr int typePosition = 8;
constexpr std::size_t dataPosition = 10;
constexpr std::size_t addressDigits = 4;
constexpr std::size_t blockRecordLength = 43;
constexpr std::size_t overheadBytes = 5;  ///< of a record: count, address, type, checksum

enum RecordType : int { data = 0, endOfFile = 1, segment = 2, linear = 4 };

/// Data bytes of a record of each type; -1: any number.
constexpr std::array<int, 6> typeLengths{-1, 0, 2, 4, 2, 4};

std::string number(std::size_t value) {
  return std::to_string(value);
}

std::string badCharacter(std::string_view line, std::size_t index) {
  std::string reason = "a(z) " + number(index + 1) + ". karakter nem hexadecimális számjegy";
  const bool printable = line[index] > ' ' && line[index] <= '~';
  return printable ? reason + ": " + line[index] : reason;
}

/// What is wrong with a line as a record on its own; empty if nothing is.
std::string recordFault(std::string_view line) {
  if (line.empty()) return "üres sor a paraméterblokkban";
  if (line.front() != ':') return "nem kettősponttal kezdődik, ezért nem rekord";
  for (std::size_t i = 1; i < line.size(); ++i) {
    if (hexDigit(line[i]) < 0) return badCharacter(line, i);
  }
  const std::size_t digits = line.size() - 1;
  if (digits % 2 != 0 || digits / 2 < overheadBytes) return "csonka rekord";
  const std::size_t promised = byteAt(line, countPosition);
  const std::size_t present = digits / 2 - overheadBytes;
  if (promised != present) {
    return "a rekord hossza hibás: " + number(promised) + " adatbájt helyett " + number(present) +
           " van benne";
  }
  const std::string_view stored = line.substr(line.size() - 2);
  const std::uint8_t right = checksum(line.substr(1, digits - 2));
  if (byteAt(stored, 1) != right) {
    return "az ellenőrző összeg hibás: " + std::string(stored) + " helyett " + KetHex(right) +
           " a jó";
  }
  const std::size_t type = byteAt(line, typePosition);
  if (type >= typeLengths.size())
    return "ismeretlen rekordtípus: " + KetHex(static_cast<int>(type));
  if (typeLengths[type] >= 0 && present != static_cast<std::size_t>(typeLengths[type])) {
    return "az ilyen típusú rekordban nem lehet " + number(present) + " adatbájt";
  }
  return {};
}

class Checker {
 public:
  void take(std::string_view line) {
    ++line_;
    const bool ofBlock =
        blockRecord_ == 0 ? hasAddress(line, blockAddresses[0]) : blockRecord_ < blockRecords;
    if (line.empty() && !ofBlock) return;
    if (!line.empty()) ++report_.records;
    std::string reason = recordFault(line);
    if (reason.empty()) reason = sequenceFault(line);
    if (ofBlock) takeOfBlock(line, reason);
    if (!reason.empty()) fault(line_, reason, ofBlock);
  }

  ImageReport end(Failure failure) {
    if (failure == Failure::LineTooLong) fault(line_ + 1, "túl hosszú sor, ez nem hex fájl", true);
    if (failure != Failure::EndOfFile) {
      report_.failure = failure;
      return report_;
    }
    if (!ended_) fault(0, "nincs záró rekord (:00000001FF): csonka, vagy nem hex fájl", true);
    if (blockRecord_ == 0) {
      fault(0, "nincs paraméterblokk (4200 című rekord), ez nem a vezérlő firmware-e", true);
    } else if (blockRecord_ < blockRecords) {
      fault(0, "a fájl a paraméterblokk közepén véget ér", true);
    }
    report_.blockIsWhole = blockRecord_ == blockRecords && blockIsWhole_;
    return report_;
  }

 private:
  /// What is wrong with a sound record in its place; keeps what later ones depend on.
  std::string sequenceFault(std::string_view line) {
    if (ended_) return "rekord a záró rekord után";
    const int type = byteAt(line, typePosition);
    ended_ = type == endOfFile;
    if (type == segment || type == linear) {
      highAddress_ = line.substr(dataPosition - 1, addressDigits) != "0000";
    }
    return {};
  }

  void takeOfBlock(std::string_view line, std::string& reason) {
    const std::string_view address = blockAddresses[static_cast<std::size_t>(blockRecord_)];
    if (blockRecord_++ == 0) report_.blockLine = line_;
    const bool sixteen = line.size() == blockRecordLength && line.substr(1, 2) == "10";
    if (!sixteen || !recordBytes(line)) blockIsWhole_ = false;
    if (!reason.empty()) return;
    const std::string here = "itt a paraméterblokk " + std::string(address) + " című rekordja";
    if (!hasAddress(line, address)) {
      reason = here + " kellene, hogy álljon";
    } else if (!sixteen) {
      reason = here + " áll, abban 16 adatbájtnak kell lennie";
    } else if (byteAt(line, typePosition) != data) {
      reason = here + " áll, de nem adatrekord";
    } else if (highAddress_ && report_.blockLine == line_) {
      reason = here + " áll, de kiterjesztett címmel nem oda esik";
    }
  }

  /// A decisive fault is one of the block or of the file as a whole.
  void fault(long line, const std::string& reason, bool decisive) {
    ++report_.faultCount;
    if (decisive || report_.faults.size() < ImageReport::mostFaults) {
      report_.faults.push_back({line, reason, decisive});
    }
  }

  ImageReport report_;
  long line_ = 0;
  int blockRecord_ = 0;  ///< the block's record to come
  bool blockIsWhole_ = true;
  bool highAddress_ = false;  ///< an extended address above the first 64 KiB is in force
  bool ended_ = false;
};

}  // namespace

ImageReport checkImage(platform::Files& files, const std::string& path) {
  std::unique_ptr<platform::ByteReader> file;
  Failure failure = files.openForReading(path, file);
  Checker checker;
  if (failure == Failure::None) {
    store::TextReader source(std::move(file));
    std::string line;
    while ((failure = source.readLine(line)) == Failure::None) checker.take(line);
  }
  return checker.end(failure);
}

}  // namespace monitra::firmware
