#include "tests/memory/attempt.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <new>
#include <pugixml.hpp>

namespace {

constexpr long kUnlimited = -1;

struct {
  long allowed = kUnlimited;  // allocations that still succeed
  bool once = false;          // only one fails, and those behind it succeed again
  bool refused = false;
  long live = 0;
} memory;

void* Allocate(std::size_t size, std::size_t alignment) {
  const bool refuse = memory.allowed == 0;
  if (memory.allowed > 0) --memory.allowed;
  if (refuse) {
    memory.refused = true;
    if (memory.once) memory.allowed = kUnlimited;
    return nullptr;
  }
  ++memory.live;
  return std::aligned_alloc(alignment, (size / alignment + 1) * alignment);
}

// As the parser wants it.
void* Allocate(std::size_t size) { return Allocate(size, alignof(std::max_align_t)); }

void Release(void* block) {
  if (block != nullptr) --memory.live;
  std::free(block);
}

void* AllocateOrThrow(std::size_t size, std::size_t alignment = alignof(std::max_align_t)) {
  void* block = Allocate(size, alignment);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}

// Before anything is parsed: what one function allocates the other releases.
const bool kParserUsesThem = [] {
  pugi::set_memory_management_functions(Allocate, Release);
  return true;
}();

}  // namespace

void* operator new(std::size_t size) { return AllocateOrThrow(size); }
void* operator new[](std::size_t size) { return AllocateOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void* operator new(std::size_t size, std::align_val_t alignment) {
  return AllocateOrThrow(size, static_cast<std::size_t>(alignment));
}
void operator delete(void* block) noexcept { Release(block); }
void operator delete[](void* block) noexcept { Release(block); }
void operator delete(void* block, std::size_t) noexcept { Release(block); }
void operator delete[](void* block, std::size_t) noexcept { Release(block); }
void operator delete(void* block, std::align_val_t) noexcept { Release(block); }
void operator delete(void* block, std::size_t, std::align_val_t) noexcept { Release(block); }

void Attempt::Try(const std::function<void()>& work) {
  memory.allowed = allowed;
  memory.once = once;
  memory.refused = false;
  try {
    work();
  } catch (...) {
    thrown = true;
  }
  memory.allowed = kUnlimited;
  refused = memory.refused;
}

void Attempt::Expect(const std::function<int()>& work) {
  int result = 0;
  Try([&] { result = work(); });
  EXPECT_EQ(result == 0, refused);
}

void WithEveryAllocation(const char* what, const std::function<void(Attempt&)>& attempt) {
  for (const bool once : {false, true}) {
    bool enough = false;
    for (long allowed = 0; !enough; ++allowed) {
      Attempt one{allowed, once};
      const long live = memory.live;
      attempt(one);
      ASSERT_FALSE(testing::Test::HasFailure()) << what << ", allocation " << allowed;
      ASSERT_FALSE(one.thrown) << what << " throws at allocation " << allowed;
      ASSERT_EQ(memory.live, live) << what << " leaks at allocation " << allowed;
      enough = !one.refused;
    }
  }
}
