#pragma once

// The one place that writes to the standard streams, and reads an answer from there.

#include <new>
#include <string>
#include <string_view>

#include "tool/command.h"
#include "tool/failure.h"

// To standard output, whole. A reader that has gone away has got what it wanted: that is no
// failure. Anything else that keeps the text from being written throws one.
void Print(std::string_view text);

void PrintAnswer(const Answer& answer, bool asJson);

// To standard error, as a line that begins with the program's name.
void Complain(std::string_view line);
void Complain(const Failure& failure);

// Whether a person sees what is printed and can answer.
bool IsAtTerminal();

// Asks at the terminal. Only "y" and "yes", in any case, mean yes.
bool Confirm(std::string_view question);

// That memory or something of its kind ran out. Needs no memory.
void ComplainOfLack(const std::bad_alloc& lack);
