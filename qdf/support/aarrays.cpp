#include "qdf/support/aarrays.h"

#include <algorithm>

namespace {

std::size_t NotNegative(int size) { return static_cast<std::size_t>(std::max(size, 0)); }

}  // namespace

int AStringArray::Add(const char* text) {
  texts_.emplace_back(text);
  return GetSize() - 1;
}

int AStringArray::Append(const AStringArray& other) {
  const int former = GetSize();
  // The other array may be this one: what is appended isn't appended again.
  const std::size_t count = other.texts_.size();
  texts_.reserve(texts_.size() + count);
  for (std::size_t i = 0; i < count; ++i) texts_.push_back(other.texts_[i]);
  return former;
}

int APtrArray::Add(void* pointer) {
  pointers_.push_back(pointer);
  return GetSize() - 1;
}

void APtrArray::InsertAt(int index, void* pointer, int count) {
  const int place = std::clamp(index, 0, GetSize());
  pointers_.insert(static_cast<std::size_t>(place), NotNegative(count), pointer);
}

void APtrArray::SetSize(int size, int /*growth*/) { pointers_.resize(NotNegative(size)); }

int ADWordArray::Add(std::uint32_t word) {
  words_.push_back(word);
  return GetSize() - 1;
}

int ADWordArray::Append(const ADWordArray& other) {
  const int former = GetSize();
  words_.append(other.words_.begin(), other.words_.size());
  return former;
}

void ADWordArray::SetSize(int size, int /*growth*/) { words_.resize(NotNegative(size)); }
