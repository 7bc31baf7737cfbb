#pragma once

// For as long as a CLocale lives, the calling thread formats and scans numbers as the "C" locale
// does.

#include <clocale>

class CLocale {
 public:
  CLocale();
  ~CLocale();
  CLocale(const CLocale&) = delete;
  CLocale& operator=(const CLocale&) = delete;

 private:
  locale_t former_;
};
