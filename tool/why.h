#pragma once

// Why a choice gives an answer or none, in words.

#include "tool/explanation.h"

// All of it for programs, and a paragraph for people.
Field TellWhy(const Explanation& explanation);
