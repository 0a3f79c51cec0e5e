#pragma once
// A value or the message that says why there is none.

#include <optional>
#include <string>
#include <utility>

namespace tolvanis {

struct Fault {
    std::string message;  // a sentence a user can act on
};

// One or the other. `return other.fault();` hands the fault of another result on.
template <typename T, typename F = Fault>
class [[nodiscard]] Result {
  public:
    Result(T value) : value_(std::move(value)) {}
    Result(F fault) : fault_(std::move(fault)) {}

    explicit operator bool() const { return value_.has_value(); }
    const T& operator*() const { return *value_; }
    T& operator*() { return *value_; }
    const T* operator->() const { return &*value_; }
    T* operator->() { return &*value_; }
    const std::string& message() const { return fault_.message; }
    const F& fault() const { return fault_; }

  private:
    std::optional<T> value_;
    F fault_;
};

template <>
class [[nodiscard]] Result<void> {
  public:
    Result() = default;
    Result(Fault fault) : fault_(std::move(fault)), good_(false) {}

    explicit operator bool() const { return good_; }
    const std::string& message() const { return fault_.message; }
    const Fault& fault() const { return fault_; }

  private:
    Fault fault_;
    bool good_ = true;
};

}  // namespace tolvanis
