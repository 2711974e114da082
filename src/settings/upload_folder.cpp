#include "settings/upload_folder.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>
#include <system_error>
#include <utility>

#include "settings/small_file.h"
#include "settings/user_folder.h"

namespace monitra::settings {

namespace {

using Json = nlohmann::ordered_json;
namespace fs = std::filesystem;

constexpr std::string_view pattern = "dddd-dd-dd_dd-dd-dd";
constexpr std::string_view extension = ".pwm";

/// Whether a file of the folder is one of ours, a second one of the same moment too.
bool isUpload(std::string_view name) {
  if (name.size() < pattern.size() + extension.size() || !name.ends_with(extension)) return false;
  return std::equal(pattern.begin(), pattern.end(), name.begin(), [](char wanted, char c) {
    return wanted == 'd' ? c >= '0' && c <= '9' : c == wanted;
  });
}

std::string momentName(std::time_t moment) {
  std::tm parts{};
  ::localtime_r(&moment, &parts);
  std::array<char, 64> text{};
  return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d_%H-%M-%S", &parts)};
}

/// "2026-11-24_07-05-32.pwm" as "2026-11-24 07:05:32".
std::string whenText(std::string_view name) {
  std::string text(name.substr(0, pattern.size()));
  const auto time = text.begin() + static_cast<std::ptrdiff_t>(text.find('_'));
  *time = ' ';
  std::replace(time, text.end(), '-', ':');
  return text;
}

struct Listed {
  std::string file;
  std::string port;
  std::string board;
};

std::string listPath(const std::string& folder) {
  return folder + "/lista.json";
}

std::string textOf(const Json& entry, const char* key) {
  const auto value = entry.find(key);
  return value != entry.end() && value->is_string() ? value->get<std::string>() : std::string();
}

/// The uploads that are there, the oldest first; those that the list doesn't know ahead of it.
std::vector<Listed> present(const std::string& folder) {
  std::set<std::string> files;
  std::error_code error;
  for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    if (isUpload(at->path().filename().native())) files.insert(at->path().filename());
  }
  std::string content;
  readSmallFile(listPath(folder), content);
  const Json list = Json::parse(content, nullptr, false);
  std::vector<Listed> known;
  if (list.is_array()) {
    for (const Json& entry : list) {
      if (!entry.is_object() || files.erase(textOf(entry, "file")) == 0) continue;
      known.push_back({textOf(entry, "file"), textOf(entry, "port"), textOf(entry, "board")});
    }
  }
  std::vector<Listed> all;
  all.reserve(files.size() + known.size());
  for (const std::string& file : files) all.push_back({file, {}, {}});
  all.insert(all.end(), known.begin(), known.end());
  return all;
}

bool writeList(const std::string& folder, const std::vector<Listed>& uploads) {
  Json list = Json::array();
  for (const Listed& upload : uploads) {
    list.push_back({{"file", upload.file}, {"port", upload.port}, {"board", upload.board}});
  }
  return replaceFile(listPath(folder),
                     list.dump(1, ' ', false, Json::error_handler_t::replace) + "\n");
}

}  // namespace

UploadFolder::UploadFolder(std::string folder, Clock clock)
    : folder_(std::move(folder)), clock_(std::move(clock)) {}

bool UploadFolder::keep(std::string_view content, const std::string& port,
                        const std::string& board) {
  if (folder_.empty()) return false;
  std::error_code error;
  fs::create_directories(folder_, error);
  const FolderLock lock(folder_);
  std::vector<Listed> uploads = present(folder_);
  const std::string moment = momentName(clock_());
  std::string name = moment + std::string(extension);
  for (int n = 2; fs::exists(folder_ + "/" + name, error); ++n) {
    name = moment + "_" + std::to_string(n) + std::string(extension);
  }
  if (!replaceFile(folder_ + "/" + name, content)) return false;
  uploads.push_back({name, port, board});
  while (uploads.size() > most) {
    fs::remove(folder_ + "/" + uploads.front().file, error);
    uploads.erase(uploads.begin());
  }
  return writeList(folder_, uploads);
}

std::vector<platform::KeptUpload> UploadFolder::list() {
  std::vector<platform::KeptUpload> kept;
  if (folder_.empty()) return kept;
  for (const Listed& upload : present(folder_)) {
    kept.push_back({folder_ + "/" + upload.file, whenText(upload.file), upload.port, upload.board});
  }
  return kept;
}

std::string uploadFolder(const std::string& application) {
  const std::string data = userFolder("XDG_DATA_HOME", ".local/share");
  return data.empty() ? data : data + "/" + application + "/feltoltesek";
}

}  // namespace monitra::settings
