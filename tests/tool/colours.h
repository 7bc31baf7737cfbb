#pragma once

// Archives of colour options.

#include <functional>
#include <string>

#include "qdf/definition/colorarchive.h"
#include "qdf/support/text.h"

// Two records, Cyan and Gold, after `change` has had each with its number.
inline void WriteColours(
    const std::string& path, const std::function<void(int number, ANewColorOpt& option)>& change =
                                 [](int, ANewColorOpt&) {}) {
  AArchive archive(AFilePath(path.c_str()), AArchive::Direction::Writing);
  const char* const names[] = {"Cyan", "Gold"};
  for (int i = 0; i < 2; ++i) {
    ANewColorOpt option;
    SetField(option.Colorant.DisplayName, names[i]);
    SetField(option.Colorant.InternalName, std::string(names[i]).substr(0, 1));
    option.Colorant.IsSpotColor = i;
    change(i + 1, option);
    archive << option;
  }
  archive.Close();
}
