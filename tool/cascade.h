#pragma once

// The two ways down through a document, level by level, as the library offers them.

#include <span>
#include <string>
#include <vector>

#include "qdf/core/apmqdf.h"
#include "tool/choice.h"
#include "tool/report.h"

// What a level offers behind the ids chosen above it. The rows say the same as the choices, in
// full.
struct Offer {
  std::vector<Choice> choices;
  List rows;
  std::size_t defaultPosition = 0;
};

struct Level {
  const char* option;  // of the command line; null where nothing is left to choose
  const char* key;     // of the choice made, and of the list that is offered
  const char* label;
  const char* listKey;
  const char* listLabel;
  Offer (*offer)(APMQDF& document, const std::vector<int>& chosen);
  std::vector<Choice> (*all)(APMQDF& document);
};

// A label of a level within a sentence: "print mode".
std::string InSentence(const char* label);

// As in: media 3 "Glossy".
std::string Tell(const Level& level, const Choice& choice);

// Ink, media, print mode, resolution, colour mode.
extern const std::span<const Level> kJobLevels;

// Media source, media size and, as the end of it, margins.
extern const std::span<const Level> kMediaSourceLevels;
