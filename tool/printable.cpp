#include "tool/printable.h"

#include <clocale>
#include <cwchar>

#include "tool/utf8.h"

namespace {

// For as long as it lives, the thread knows UTF-8 and how wide its characters are. Without that
// locale on the machine everything beyond ASCII is shown byte by byte.
class Utf8Locale {
 public:
  Utf8Locale() : former_(uselocale(Shared())) {}
  ~Utf8Locale() { uselocale(former_); }
  Utf8Locale(const Utf8Locale&) = delete;
  Utf8Locale& operator=(const Utf8Locale&) = delete;

 private:
  static locale_t Shared() {
    static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return locale;
  }
  locale_t former_;
};

bool IsPlain(char c) { return c >= ' ' && c <= '~'; }

bool TurnsDirection(wchar_t c) {
  return c == L'\x061C' || c == L'\x200E' || c == L'\x200F' || (c >= L'\x2028' && c <= L'\x202E') ||
         (c >= L'\x2066' && c <= L'\x2069');
}

void AppendEscaped(std::string_view bytes, Printable& out) {
  constexpr const char* kDigits = "0123456789ABCDEF";
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    out.text += {'\\', 'x', kDigits[byte >> 4U], kDigits[byte & 15U]};
    out.columns += 4;
  }
}

// Takes one character off the text.
void AppendCharacter(std::string_view& text, Printable& out) {
  std::mbstate_t state{};
  wchar_t c = 0;
  std::size_t size = std::mbrtowc(&c, text.data(), text.size(), &state);
  const bool valid = size > 0 && size <= text.size();
  if (!valid) size = 1;
  const std::string_view bytes = text.substr(0, size);
  const int columns = valid && !TurnsDirection(c) ? wcwidth(c) : -1;
  if (columns < 0) {
    AppendEscaped(bytes, out);
  } else {
    out.text += bytes;
    out.columns += columns;
  }
  text.remove_prefix(size);
}

}  // namespace

Printable MakePrintable(std::string_view text) {
  Printable out;
  std::size_t plain = 0;
  while (plain < text.size() && IsPlain(text[plain])) ++plain;
  out.text = text.substr(0, plain);
  out.columns = static_cast<int>(plain);
  text.remove_prefix(plain);
  if (text.empty()) return out;
  const Utf8Locale locale;
  while (!text.empty()) AppendCharacter(text, out);
  return out;
}

std::string Quoted(std::string_view text) { return '"' + Shortened(text, 100) + '"'; }
