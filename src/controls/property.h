#pragma once

#include <algorithm>
#include <functional>
#include <utility>

#include "controls/observation.h"

namespace monitra::controls {

/// One value of a control. Assigning a value that differs from the present one stores it, then
/// tells the views, then raises the control's event, all before the assignment returns; assigning
/// the present value does nothing. A handler may assign again, nested, to the same property.
template <class T>
class Property {
 public:
  using Listener = std::function<void()>;

  explicit Property(T initial = T{}) : value_(std::move(initial)) {}
  Property(const Property&) = delete;
  ~Property() = default;

  Property& operator=(const T& value) {
    assign(value);
    return *this;
  }
  Property& operator=(const Property& other) {
    assign(other.value_);
    return *this;
  }

  const T& get() const { return value_; }
  operator const T&() const { return value_; }

  /// Sets the program's own event, the only one that may change values. There is one slot.
  void handle(Listener event) { event_ = std::move(event); }

  /// Adds a view that mirrors the value, until the observation ends. It must not change any
  /// property; the property must not end while it tells its views.
  Observation observe(Listener view) { return views_.add(std::move(view)); }

 private:
  void assign(const T& value) {
    if (value == value_) return;
    value_ = value;
    views_.tell();
    if (event_) event_();
  }

  T value_;
  Listener event_;
  Views views_;
};

/// A whole number that keeps to its limits: an assignment outside them takes the nearest one.
class BoundedProperty : private Property<int> {
 public:
  /// The initial value is cut to the limits; max is not below min.
  BoundedProperty(int min, int max, int initial)
      : Property<int>(std::clamp(initial, min, max)), min_(min), max_(max) {}

  BoundedProperty& operator=(int value) {
    Property<int>::operator=(std::clamp(value, min_, max_));
    return *this;
  }
  BoundedProperty& operator=(const BoundedProperty& other) { return *this = other.get(); }

  int min() const { return min_; }
  int max() const { return max_; }

  using Property<int>::get;
  using Property<int>::operator const int&;
  using Property<int>::handle;
  using Property<int>::observe;

 private:
  const int min_;
  const int max_;
};

}  // namespace monitra::controls
