#include "tests/files.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

TempFolder::TempFolder(const fs::path& parent) {
  std::string name = (parent / "apmqdf-test-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) ADD_FAILURE() << "no temporary folder";
  path_ = name;
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

std::string TempFolder::Path(std::string_view name) const {
  return name.empty() ? path_.string() : (path_ / name).string();
}

std::string TempFolder::Write(std::string_view name, std::string_view bytes) const {
  const fs::path path = path_ / name;
  fs::create_directories(path.parent_path());
  WriteFile(path.string(), bytes);
  return path.string();
}

WorkingFolder::WorkingFolder(const std::string& folder) : former_(fs::current_path()) {
  fs::current_path(folder);
}

WorkingFolder::~WorkingFolder() {
  std::error_code ignored;
  fs::current_path(former_, ignored);
}

void WriteFile(const std::string& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!file.flush()) ADD_FAILURE() << "can't write " << path;
}

std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) ADD_FAILURE() << "can't read " << path;
  return {std::istreambuf_iterator<char>(file), {}};
}
