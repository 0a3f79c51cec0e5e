#pragma once
// The options table: the program's tunable numbers, one a line of the options file.

#include <array>
#include <span>

namespace tolvanis {

inline constexpr int kOptionCount = 196;

class Options {
  public:
    // Option n, 1 to 196.
    float& operator[](int n) { return values_[static_cast<std::size_t>(n)]; }
    float operator[](int n) const { return values_[static_cast<std::size_t>(n)]; }

    // The whole table; position 0 is never used.
    std::span<float> table() { return values_; }
    std::span<const float> table() const { return values_; }

    friend bool operator==(const Options&, const Options&) = default;

  private:
    std::array<float, kOptionCount + 1> values_{};
};

}  // namespace tolvanis
