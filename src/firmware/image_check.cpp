#include "firmware/image_check.h"

#include <algorithm>
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

constexpr std::size_t mostFaults = 20;  ///< kept, besides the decisive ones

enum RecordType : int { data = 0, endOfFile = 1, segment = 2, linear = 4 };

/// Data bytes of a record of each type; -1: any number.
constexpr std::array<int, 6> typeLengths{-1, 0, 2, 4, 2, 4};

std::string number(std::size_t value) {
  return std::to_string(value);
}

std::string badCharacter(std::string_view line, std::size_t index) {
  std::string reason = number(index + 1) + ". karakter nem hexadecimális számjegy";
  const bool printable = line[index] > ' ' && line[index] <= '~';
  return printable ? reason + ": " + line[index] : reason;
}

/// What is wrong with a line as a record on its own; empty if nothing is.
std::string recordFault(std::string_view line) {
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
  explicit Checker(const FaultSink& sink) : sink_(sink) {}

  void take(std::string_view line) {
    ++line_;
    const bool record = line.starts_with(':');
    if (record) ++report_.records;
    std::string reason = line.empty() ? std::string{} : recordFault(line);
    if (record && reason.empty()) reason = sequenceFault(line);
    const bool decisive = takeFields(line, reason);
    if (!reason.empty()) fault(line_, reason, decisive);
  }

  ImageReport end(Failure failure) {
    if (failure == Failure::LineTooLong) fault(line_ + 1, "túl hosszú sor, ez nem hex fájl", true);
    if (failure != Failure::EndOfFile) {
      report_.failure = failure;
    } else if (report_.records == 0) {
      fault(0, "egyetlen rekord sincs benne, ez nem hex fájl", true);
    } else {
      if (next_ == 0) fault(0, "nincs paraméterblokk (4200 című rekord)", true);
      if (next_ > 0 && next_ < blockRecords) {
        fault(0, "a fájl a paraméterblokk közepén véget ér", true);
      }
      if (!ended_) fault(0, "nincs záró rekord (:00000001FF), a fájl csonka lehet", true);
    }
    report_.blockIsSound = blockIsSound_ && next_ == blockRecords;
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

  /// Looks for the block where its reader does: in the fields of a line. Gives whether there is
  /// something of it; what is wrong with that is the reason if there was none yet.
  bool takeFields(std::string_view line, std::string& reason) {
    bool ofBlock = false;
    for (std::size_t at = 0; at <= line.size();) {
      const std::size_t end = std::min(line.find(',', at), line.size());
      std::string_view field = line.substr(at, end - at);
      field.remove_prefix(std::min(field.find_first_not_of(' '), field.size()));
      ofBlock = takeField(field, reason) || ofBlock;
      at = end + 1;
    }
    return ofBlock;
  }

  bool takeField(std::string_view field, std::string& reason) {
    const bool versions = !versionSeen_ && hasAddress(field, blockAddresses[versionRecord]);
    versionSeen_ = versionSeen_ || versions;
    std::string found;
    if (next_ == 0 ? hasAddress(field, blockAddresses[0]) : next_ < blockRecords) {
      found = blockFault(field);
      ++next_;
    } else if (versions) {
      found = "innen olvassa a program a verziót, pedig ez nem a paraméterblokk rekordja";
    } else {
      return false;
    }
    if (found.empty()) return true;
    blockIsSound_ = false;
    if (reason.empty()) reason = found;
    return true;
  }

  /// What is wrong with a field as the block's next record, its checksum apart.
  std::string blockFault(std::string_view field) {
    if (next_ == 0) report_.blockLine = line_;
    const std::string_view address = blockAddresses[static_cast<std::size_t>(next_)];
    const std::string here = "itt a paraméterblokk " + std::string(address) + " című rekordja ";
    if (!recordBytes(field) || field.size() != blockRecordLength || !field.starts_with(":10")) {
      return here + "kellene, hogy álljon, 16 adatbájttal";
    }
    if (!hasAddress(field, address) || byteAt(field, typePosition) != data) {
      return here + "kellene, hogy álljon";
    }
    const bool elsewhere = next_ == 0 && highAddress_;
    return elsewhere ? here + "áll, de kiterjesztett címmel nem oda esik" : std::string{};
  }

  /// A decisive fault is one of the block or of the file as a whole.
  void fault(long line, const std::string& reason, bool decisive) {
    const ImageFault found{line, reason, decisive};
    ++report_.faultCount;
    if (decisive || report_.faults.size() < mostFaults) report_.faults.push_back(found);
    if (sink_) sink_(found);
  }

  const FaultSink& sink_;
  ImageReport report_;
  long line_ = 0;
  int next_ = 0;  ///< the block's record to come
  bool blockIsSound_ = true;
  bool versionSeen_ = false;
  bool highAddress_ = false;  ///< an extended address above the first 64 KiB is in force
  bool ended_ = false;
};

}  // namespace

ImageReport checkImage(platform::Files& files, const std::string& path, const FaultSink& sink) {
  std::unique_ptr<platform::ByteReader> file;
  Failure failure = files.openForReading(path, file);
  Checker checker(sink);
  if (failure == Failure::None) {
    store::TextReader source(std::move(file), longestImageLine);
    std::string line;
    while ((failure = source.readLine(line)) == Failure::None) checker.take(line);
  }
  return checker.end(failure);
}

}  // namespace monitra::firmware
