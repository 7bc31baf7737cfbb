#include "qdf/support/aarrays.h"

#include <algorithm>

namespace {

// Answers the former size. `other` may be the target itself, so its elements are counted first.
template <class Element>
int AppendAll(std::vector<Element>& target, const std::vector<Element>& other) {
  const std::size_t former = target.size();
  const std::size_t added = other.size();
  target.reserve(former + added);
  for (std::size_t i = 0; i < added; ++i) target.push_back(other[i]);
  return static_cast<int>(former);
}

std::size_t NotNegative(int size) { return static_cast<std::size_t>(std::max(size, 0)); }

}  // namespace

AStringArray::~AStringArray() = default;

int AStringArray::Add(const char* text) {
  texts_.emplace_back(text);
  return GetSize() - 1;
}

int AStringArray::Append(const AStringArray& other) { return AppendAll(texts_, other.texts_); }

APtrArray::~APtrArray() = default;

int APtrArray::Add(void* pointer) {
  pointers_.push_back(pointer);
  return GetSize() - 1;
}

void APtrArray::InsertAt(int index, void* pointer, int count) {
  const int place = std::clamp(index, 0, GetSize());
  pointers_.insert(pointers_.begin() + place, NotNegative(count), pointer);
}

void APtrArray::SetSize(int size, int /*growth*/) { pointers_.resize(NotNegative(size)); }

ADWordArray::~ADWordArray() = default;

int ADWordArray::Add(std::uint32_t word) {
  words_.push_back(word);
  return GetSize() - 1;
}

int ADWordArray::Append(const ADWordArray& other) { return AppendAll(words_, other.words_); }

void ADWordArray::SetSize(int size, int /*growth*/) { words_.resize(NotNegative(size)); }
