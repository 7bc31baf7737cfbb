#include "qdf/support/astring.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <string_view>

#include "qdf/support/plainlocale.h"
#include "qdf/support/text.h"

AString::AString(const char* text) : text_(OrEmpty(text)) {}

AString& AString::operator=(const char* text) {
  text_ = OrEmpty(text);
  return *this;
}

int AString::Compare(const char* other) const { return std::strcmp(text_.c_str(), OrEmpty(other)); }

int AString::CompareNoCase(const char* other) const {
  const char* a = text_.c_str();
  const char* b = OrEmpty(other);
  while (*a != '\0' && UpperChar(*a) == UpperChar(*b)) {
    ++a;
    ++b;
  }
  return static_cast<unsigned char>(UpperChar(*a)) - static_cast<unsigned char>(UpperChar(*b));
}

int AString::Find(char wanted) const {
  const std::size_t at = text_.find(wanted);
  return at == std::string::npos ? -1 : static_cast<int>(at);
}

int AString::Find(const char* wanted) const {
  const std::size_t at = text_.find(OrEmpty(wanted));
  return at == std::string::npos ? -1 : static_cast<int>(at);
}

AString AString::Left(int count) const {
  AString left;
  if (count > 0) left.text_.assign(text_, 0, static_cast<std::size_t>(count));
  return left;
}

AString AString::Right(int count) const {
  const auto wanted = static_cast<std::size_t>(std::max(count, 0));
  AString right;
  right.text_.assign(text_, text_.size() - std::min(wanted, text_.size()));
  return right;
}

char* AString::GetBuffer(int capacity) {
  if (capacity > GetLength()) text_.resize(static_cast<std::size_t>(capacity));
  return text_.data();
}

void AString::MakeUpper() { std::transform(text_.begin(), text_.end(), text_.begin(), UpperChar); }

void AString::TrimLeft() {
  text_.erase(text_.begin(), std::find_if_not(text_.begin(), text_.end(), IsSpace));
}

void AString::TrimRight() {
  text_.erase(std::find_if_not(text_.rbegin(), text_.rend(), IsSpace).base(), text_.end());
}

AString& AString::Format(const char* format, ...) {
  const CLocale plain;
  std::va_list arguments;
  va_start(arguments, format);
  std::va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(nullptr, 0, format, arguments);
  va_end(arguments);
  // A fresh text: an argument may point into the present one.
  std::string expanded(static_cast<std::size_t>(std::max(length, 0)), '\0');
  if (length > 0) std::vsnprintf(expanded.data(), expanded.size() + 1, format, again);
  va_end(again);
  text_ = std::move(expanded);
  return *this;
}

AString& AString::operator+=(const AString& other) {
  text_ += other.text_;
  return *this;
}

AString& AString::operator+=(const char* other) {
  text_ += OrEmpty(other);
  return *this;
}

AString& AString::operator+=(char other) {
  text_ += other;
  return *this;
}

AString operator+(const AString& a, const AString& b) {
  AString joined(a);
  joined += b;
  return joined;
}

AString operator+(const AString& a, const char* b) {
  AString joined(a);
  joined += b;
  return joined;
}
