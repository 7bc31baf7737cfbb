#pragma once

// The arithmetic of all hashes. It is keyed: whoever writes a document can't know beforehand which
// ids and texts will meet in one slot, so none can be made to slow its reader down. The key is the
// address at which the library was loaded. Only speed depends on it, never a result.

#include <cstdint>

namespace hashmix {

extern const char kAnchor;

inline std::uint64_t Key() {
  constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15U;
  const std::uint64_t key = reinterpret_cast<std::uintptr_t>(&kAnchor) * kOdd;
  return key ^ key >> 32U;
}

}  // namespace hashmix

// Every bit of the answer depends on every bit of the value and of the key.
inline std::uint64_t MixHash(std::uint64_t value) {
  __extension__ using Wide = unsigned __int128;
  const std::uint64_t key = hashmix::Key();
  const Wide product = Wide{value ^ key} * (key | 1U);
  return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64U);
}

inline std::uint32_t HashAddress(const void* address) {
  return static_cast<std::uint32_t>(MixHash(reinterpret_cast<std::uintptr_t>(address)));
}
