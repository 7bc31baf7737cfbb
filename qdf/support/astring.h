#pragma once

// AString holds one text of 8-bit characters. Bytes pass through it unchanged; case means ASCII
// case.

#include <string>

#include "qdf/support/export.h"

class APMQDF_EXPORT AString {
 public:
  AString() = default;
  AString(const char* text);  // a null pointer counts as an empty text

  AString& operator=(const char* text);

  // The text, ended by a NUL; never a null pointer. Valid until the string changes or goes.
  operator const char*() const { return text_.c_str(); }

  int GetLength() const { return static_cast<int>(text_.size()); }

  // 0 when the texts are equal; otherwise the sign tells which stands first by byte value.
  int Compare(const char* other) const;
  int CompareNoCase(const char* other) const;

  // The index of the first occurrence, -1 when there is none.
  int Find(char wanted) const;
  int Find(const char* wanted) const;

  // The first or last `count` characters: all of them when there are fewer, none below 1.
  AString Left(int count) const;
  AString Right(int count) const;

  // The index must lie inside the text.
  char GetAt(int index) const { return text_[static_cast<std::size_t>(index)]; }
  char operator[](int index) const { return GetAt(index); }
  void SetAt(int index, char value) { text_[static_cast<std::size_t>(index)] = value; }

  // A writable buffer of at least `capacity` characters and a NUL. It lives as long as the string
  // is neither changed nor destroyed, and counts as the string's text up to that capacity.
  char* GetBuffer(int capacity);

  void MakeUpper();
  // White space is blanks, tabs and line ends of every kind.
  void TrimLeft();
  void TrimRight();
  void Empty() { text_.clear(); }

  // The text becomes what printf would print. The decimal sign is a point whatever the host's
  // locale; a format that can't be expanded gives an empty text.
  [[gnu::format(printf, 2, 3)]] AString& Format(const char* format, ...);

  AString& operator+=(const AString& other);
  AString& operator+=(const char* other);
  AString& operator+=(char other);

  // Equality of the texts, with case. Without it the conversion above would compare addresses.
  friend bool operator==(const AString& a, const AString& b) { return a.text_ == b.text_; }
  friend bool operator!=(const AString& a, const AString& b) { return a.text_ != b.text_; }
  friend bool operator==(const AString& a, const char* b) { return a.Compare(b) == 0; }
  friend bool operator!=(const AString& a, const char* b) { return a.Compare(b) != 0; }

 private:
  std::string text_;
};

APMQDF_EXPORT AString operator+(const AString& a, const AString& b);
APMQDF_EXPORT AString operator+(const AString& a, const char* b);
