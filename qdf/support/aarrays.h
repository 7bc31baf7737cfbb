#pragma once

// Growable arrays, indexed from 0: of strings, of untyped pointers and of 32-bit words. An index
// must lie inside the array. `Add` and `Append` answer the index of the first element that they
// added.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "qdf/support/astring.h"
#include "qdf/support/export.h"
#include "qdf/support/smallvector.h"

class APMQDF_EXPORT AStringArray {
 public:
  AStringArray() = default;
  AStringArray(const AStringArray&) = default;
  AStringArray& operator=(const AStringArray&) = default;
  virtual ~AStringArray() = default;

  int Add(const char* text);
  int Append(const AStringArray& other);
  void RemoveAll() { texts_.clear(); }
  int GetSize() const { return static_cast<int>(texts_.size()); }

  AString& operator[](int index) { return ElementAt(index); }
  AString operator[](int index) const { return texts_[static_cast<std::size_t>(index)]; }
  AString& ElementAt(int index) { return texts_[static_cast<std::size_t>(index)]; }
  const AString& ElementAt(int index) const { return texts_[static_cast<std::size_t>(index)]; }

 private:
  std::vector<AString> texts_;
};

// Owns nothing: whoever fills the array frees what it points to, and empties it with SetSize(0,
// -1).
class APMQDF_EXPORT APtrArray {
 public:
  APtrArray() = default;
  APtrArray(const APtrArray&) = default;
  APtrArray& operator=(const APtrArray&) = default;
  virtual ~APtrArray() = default;

  int Add(void* pointer);
  // Puts the pointer `count` times ahead of the element at the index; an index at or beyond the end
  // appends, and a negative one counts as 0.
  void InsertAt(int index, void* pointer, int count);
  int GetSize() const { return static_cast<int>(pointers_.size()); }

  void*& operator[](int index) { return ElementAt(index); }
  void*& ElementAt(int index) { return pointers_[static_cast<std::size_t>(index)]; }
  void* GetAt(int index) const { return pointers_[static_cast<std::size_t>(index)]; }

  // New elements are null. The growth only tunes allocation.
  void SetSize(int size, int growth);

 private:
  SmallVector<void*, 3> pointers_;  // a colour mode node has three leaves
};

// The word is 32 bits wide, also where `unsigned long` is wider. No test for duplicates.
class APMQDF_EXPORT ADWordArray {
 public:
  ADWordArray() = default;
  ADWordArray(const ADWordArray&) = default;
  ADWordArray& operator=(const ADWordArray&) = default;
  virtual ~ADWordArray() = default;

  int Add(std::uint32_t word);
  int Append(const ADWordArray& other);
  void Copy(const ADWordArray& other) { words_ = other.words_; }
  int GetSize() const { return static_cast<int>(words_.size()); }

  std::uint32_t GetAt(int index) const { return words_[static_cast<std::size_t>(index)]; }
  std::uint32_t& operator[](int index) { return words_[static_cast<std::size_t>(index)]; }
  std::uint32_t operator[](int index) const { return GetAt(index); }

  // New elements are 0. The growth only tunes allocation.
  void SetSize(int size, int growth);

  const std::uint32_t* begin() const { return words_.begin(); }
  const std::uint32_t* end() const { return words_.end(); }

 private:
  SmallVector<std::uint32_t, 4> words_;
};
