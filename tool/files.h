#pragma once

// Whole files, and why one can't be read or saved.

#include <string>
#include <string_view>

#include "qdf/core/apmqdf.h"
#include "tool/load.h"

bool Exists(const std::string& path);

// Also through links of either kind. False unless both are there.
bool IsSameFile(const std::string& path, const std::string& other);

// Throws a Failure unless it is a folder that can be searched.
void RequireFolder(const std::string& path);

// The same, and answers the path without links and dots, in which all names of folders stand.
std::string ResolveFolder(const std::string& path);

// Throws a Failure that names the file and says why it can't be read.
std::string ReadWhole(const std::string& path);

// Replaces the file's content, or makes the file. Throws a Failure that names the file and says
// why it can't be saved; it is then as it was.
void SaveWhole(const std::string& path, std::string_view bytes);

// Why a file that couldn't be saved couldn't, in a few words.
std::string WhyNotSaved(const std::string& path);

// A document as the library writes it, and loaded again from that.
struct WrittenForm {
  std::string bytes;
  std::unique_ptr<APMQDF> document;
};

// Touches no file. Throws a Failure that names the file that it is for.
WrittenForm MakeWrittenForm(APMQDF& document, const std::string& path);
