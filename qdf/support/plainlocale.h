#pragma once

// The "C" locale, in which numbers are formatted and scanned whatever the host's is.

#include <clocale>

// Never freed; asking for it allocates nothing.
locale_t PlainLocale();

// For as long as a CLocale lives, the calling thread formats and scans numbers in the "C" locale.
class CLocale {
 public:
  CLocale();
  ~CLocale();
  CLocale(const CLocale&) = delete;
  CLocale& operator=(const CLocale&) = delete;

 private:
  locale_t former_;
};
