#include "store/failure_texts.h"

#include "timing/numbers.h"

namespace monitra::store {

using platform::Failure;

std::string failureMeaning(Failure failure) {
  const std::string code = " (kód:" + timing::numberText(static_cast<int>(failure)) + ").";
  switch (failure) {
    case Failure::NotANumber:
      return "szám helyén más áll" + code;
    case Failure::LineTooLong:
      return "túl hosszú sor van benne" + code;
    case Failure::FileNotFound:
      return "nincs ilyen fájl" + code;
    case Failure::FileExists:
      return "már van ilyen fájl" + code;
    case Failure::DiskFull:
      return "a lemez megtelt" + code;
    case Failure::EndOfFile:
      return "a fájl idő előtt véget ér" + code;
    case Failure::PathFileAccess:
      return "nincs hozzá jog, vagy nem közönséges fájl" + code;
    case Failure::PathNotFound:
      return "nincs ilyen mappa" + code;
    default:
      return "az eszköz hibát jelzett" + code;
  }
}

std::string unreadableText(Failure failure, const std::string& name) {
  switch (failure) {
    case Failure::FileNotFound:
    case Failure::PathNotFound:
      return name + ": nincs ilyen fájl.";
    case Failure::PathFileAccess:
      return name + ": nem olvasható, mert mappa, vagy nincs hozzá jog.";
    default:
      return name + ": nem olvasható be: " + failureMeaning(failure);
  }
}

}  // namespace monitra::store
