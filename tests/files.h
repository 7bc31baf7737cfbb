#pragma once

// Files that exist for the length of a test.

#include <filesystem>
#include <string>
#include <string_view>

// An empty folder of its own, removed with all that is in it.
class TempFolder {
 public:
  explicit TempFolder(const std::filesystem::path& parent = std::filesystem::temp_directory_path());
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  // The path of the folder, or of what bears that name in it.
  std::string Path(std::string_view name = {}) const;

  // Writes a file under the folder, makes the folders above it and answers its path.
  std::string Write(std::string_view name, std::string_view bytes) const;

 private:
  std::filesystem::path path_;
};

// For as long as it lives, the process works in that folder.
class WorkingFolder {
 public:
  explicit WorkingFolder(const std::string& folder);
  ~WorkingFolder();
  WorkingFolder(const WorkingFolder&) = delete;
  WorkingFolder& operator=(const WorkingFolder&) = delete;

 private:
  std::filesystem::path former_;
};

void WriteFile(const std::string& path, std::string_view bytes);

// All bytes of a file; a test failure, and an empty text, when it can't be read.
std::string ReadFile(const std::string& path);
