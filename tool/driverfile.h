#pragma once

// Files that a document names. The library looks for them in OutputDrivers under the working
// folder, wherever the document lies.

#include <string>

#include "tool/load.h"

// The path of the file with that name, which is the document's `what`, as in "translation table".
// Throws a Failure when there is no name, or one that would lead out of OutputDrivers: the library
// joins any name to the folder.
std::string DriverFilePath(const Document& document, const AString& name, const char* what);

// Throws a Failure when the path leads to the file in OutputDrivers that has that name as the
// document's `what`: something else is about to be written there.
void RefuseDriverFile(const std::string& path, const AString& name, const char* what);
