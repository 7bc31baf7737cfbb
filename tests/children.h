#pragma once

// Child processes for what must not befall the tests themselves: limits, lost rights, a full disk.

#include <functional>

// Runs the work in a child and answers what it answered, 128 and more when a signal ended it.
int InChild(const std::function<int()>& work);

// The rest is called in a child only.

// From then on the process is nobody, in case it was root.
void DropPrivileges();

// Files beyond that size can't be written; to try it raises a signal that ends the process.
void LimitFileSizes(unsigned long bytes);

constexpr unsigned long kSmallDisk = 64UL * 1024;

// Puts an empty disk of that size on the folder, seen by this process alone. False when the machine
// doesn't allow it.
bool MountSmallDisk(const char* folder);
