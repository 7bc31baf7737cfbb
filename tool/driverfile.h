#pragma once

// Files that a document names. The library looks for them in OutputDrivers under the working
// folder, wherever the document lies.

#include <string>

#include "tool/load.h"

// The path of the file with that name, which is the document's `what`, as in "translation table".
// Throws a Failure when there is no name, or one that would lead out of OutputDrivers: the library
// joins any name to the folder.
std::string DriverFilePath(const Document& document, const AString& name, const char* what);
