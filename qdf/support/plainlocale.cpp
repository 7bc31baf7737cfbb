#include "qdf/support/plainlocale.h"

// The C library keeps its "C" locale as a static: it is only looked up here.
locale_t PlainLocale() {
  static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
  return plain;
}

CLocale::CLocale() : former_(uselocale(PlainLocale())) {}

CLocale::~CLocale() { uselocale(former_); }
