#pragma once
// What the fuzzing harnesses share. A harness fails by crashing: the sanitizers find what goes beyond its
// bounds, Require what breaks a promise.

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace tolvanis {

inline void Require(bool promise, std::string_view what) {
    if (promise) return;
    std::cerr << "broken promise: " << what << "\n";
    std::abort();
}

// The input as a file that lies on no disk.
class MemoryFile {
  public:
    explicit MemoryFile(std::string_view content) : descriptor_(::memfd_create("fuzz", 0)) {
        const ssize_t written = ::write(descriptor_, content.data(), content.size());
        Require(written == static_cast<ssize_t>(content.size()), "the input fits into memory");
    }
    ~MemoryFile() { ::close(descriptor_); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    Path path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

  private:
    int descriptor_;
};

// Defined by each harness.
void Fuzz(std::string_view input);

}  // namespace tolvanis

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tolvanis::Fuzz({reinterpret_cast<const char*>(data), size});
    return 0;
}
