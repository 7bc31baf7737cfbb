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

// Most arrays that grow at all end up with several elements: the first steps of growth are left
// out.
template <class Element>
void PushBack(std::vector<Element>& target, Element element) {
  constexpr std::size_t kFirstCapacity = 64 / sizeof(Element);
  if (target.capacity() == 0) target.reserve(kFirstCapacity);
  target.push_back(element);
}

std::size_t NotNegative(int size) { return static_cast<std::size_t>(std::max(size, 0)); }

}  // namespace

int AStringArray::Add(const char* text) {
  texts_.emplace_back(text);
  return GetSize() - 1;
}

int AStringArray::Append(const AStringArray& other) { return AppendAll(texts_, other.texts_); }

int APtrArray::Add(void* pointer) {
  PushBack(pointers_, pointer);
  return GetSize() - 1;
}

void APtrArray::InsertAt(int index, void* pointer, int count) {
  const int place = std::clamp(index, 0, GetSize());
  pointers_.insert(pointers_.begin() + place, NotNegative(count), pointer);
}

void APtrArray::SetSize(int size, int /*growth*/) { pointers_.resize(NotNegative(size)); }

int ADWordArray::Add(std::uint32_t word) {
  PushBack(words_, word);
  return GetSize() - 1;
}

int ADWordArray::Append(const ADWordArray& other) { return AppendAll(words_, other.words_); }

void ADWordArray::SetSize(int size, int /*growth*/) { words_.resize(NotNegative(size)); }
