#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace monitra::controls {

/// Who observes something holds one of these for as long as it wants to be told: the end of it, or
/// its replacement by another, is the end of the observing. It may outlive what is observed.
class [[nodiscard]] Observation {
 public:
  Observation() = default;  ///< of nothing
  Observation(Observation&&) = default;
  Observation& operator=(Observation&&) = default;
  ~Observation() = default;

 private:
  friend class Views;
  explicit Observation(std::shared_ptr<const std::function<void()>> view)
      : view_(std::move(view)) {}

  std::shared_ptr<const std::function<void()>> view_;
};

/// The views of something that can change. While they are told, views may come, of which the first
/// call is at the next change, and go: who has gone is not called any more.
class Views {
 public:
  Views() = default;
  Views(const Views&) = delete;
  Views& operator=(const Views&) = delete;
  ~Views() = default;

  /// Calls the view at every change until the observation ends.
  Observation add(std::function<void()> view) {
    if (telling_ == 0) std::erase_if(views_, [](const auto& each) { return each.expired(); });
    auto owned = std::make_shared<const std::function<void()>>(std::move(view));
    views_.push_back(owned);
    return Observation(std::move(owned));
  }

  /// Calls each, in the order in which they came; from inside such a call too.
  void tell() {
    ++telling_;
    const std::size_t count = views_.size();
    for (std::size_t i = 0; i < count; ++i) {
      // Held for the length of the call, in which the view may end itself.
      if (const auto view = views_[i].lock()) (*view)();
    }
    --telling_;
  }

 private:
  std::vector<std::weak_ptr<const std::function<void()>>> views_;
  int telling_ = 0;  ///< so many calls of tell() haven't returned; the places of the views stay
};

}  // namespace monitra::controls
