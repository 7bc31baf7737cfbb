#pragma once

// Which entry of a list a person means by an id or a name.

#include <optional>
#include <string>
#include <vector>

#include "tool/failure.h"

struct Choice {
  int id = 0;
  std::string displayName;
  std::optional<std::string> internalName;  // resolutions have none
};

// The entry that `given` means: by its id, else by one of its names, else by one of its names
// ignoring case. Where several bear the name, those that are offered come before those that the
// document merely holds. Throws a Failure that lists the choices when none or several are left;
// `what` begins its line.
const Choice& FindChoice(const std::string& what, const std::string& given,
                         const std::vector<Choice>& all, const std::vector<Choice>& offered);

// As in: 3 "Glossy".
std::string NameChoice(const Choice& choice);
