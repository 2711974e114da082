#pragma once

#include <iostream>
#include <nlohmann/json.hpp>

namespace monitra::ctl {

using Json = nlohmann::ordered_json;

/// To standard output, with what is no UTF-8 replaced.
inline void writeJson(const Json& json) {
  std::cout << json.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

}  // namespace monitra::ctl
