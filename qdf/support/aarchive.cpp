#include "qdf/support/aarchive.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "qdf/support/filebytes.h"
#include "qdf/support/nothrow.h"
#include "qdf/support/savebytes.h"

namespace {

constexpr std::size_t kLengthSize = 4;
constexpr std::size_t kTagSize = 1;
constexpr std::size_t kLongestText = std::numeric_limits<int>::max();  // for an AString

template <class Bits>
Bits FromLittleEndian(std::string_view bytes) {
  Bits bits = 0;
  for (std::size_t i = 0; i < sizeof bits; ++i) {
    bits |= static_cast<Bits>(static_cast<unsigned char>(bytes[i])) << (8 * i);
  }
  return bits;
}

template <class Work>
bool HadMemoryFor(Work work) {
  return OrOnNoMemory(false, [&] {
    work();
    return true;
  });
}

template <class Bits>
std::array<char, sizeof(Bits)> ToLittleEndian(Bits bits) {
  std::array<char, sizeof(Bits)> bytes{};
  for (std::size_t i = 0; i < sizeof bits; ++i) bytes[i] = static_cast<char>(bits >> (8 * i));
  return bytes;
}

}  // namespace

AArchiveException::AArchiveException(int cause, AString fileName)
    : Cause(cause), FileName(std::move(fileName)) {}

AArchiveException::~AArchiveException() = default;

const char* AArchiveException::what() const noexcept { return "the archive is open for reading"; }

// Walks through the bytes of a file. Each open group is a level; the lowest is the file.
class AArchive::Reader {
 public:
  explicit Reader(FileBytes file) : file_(std::move(file)) {
    levels_.push_back({0, file_.size, file_.size, true});
  }

  bool AtEnd() const { return levels_.front().at == levels_.front().end; }
  bool IsDamaged() const { return damaged_; }

  // The next bytes of the present value. Without that many none, and the value is used up.
  std::string_view Take(std::size_t count) {
    Level& level = levels_.back();
    const std::size_t left = level.valueEnd - level.at;
    if (count > left) {
      damaged_ = damaged_ || level.hasValue;
      level.at = level.valueEnd;
      return {};
    }
    level.at += count;
    return file_.Text().substr(level.at - count, count);
  }

  template <class Bits>
  Bits TakeNumber() {
    const std::string_view bytes = Take(sizeof(Bits));
    return bytes.empty() ? 0 : FromLittleEndian<Bits>(bytes);
  }

  std::string_view TakeText() {
    const std::size_t length = TakeNumber<std::uint32_t>();
    return Take(length <= kLongestText ? length : std::string_view::npos);
  }

  void StartGroup() {
    const std::size_t length = TakeNumber<std::uint32_t>();
    Level& outer = levels_.back();
    const std::size_t start = outer.at;
    outer.at += Within(outer.valueEnd - start, length);
    const std::size_t end = outer.at;
    levels_.push_back({start, start, end, false});
  }

  void EndGroup() {
    if (IsInGroup()) levels_.pop_back();
  }

  // Makes what the tag holds the present value. A greater tag stays where it is, for whoever asks
  // for that.
  bool FindTag(unsigned char tag) {
    if (!IsInGroup()) return !AtEnd();
    Level& group = levels_.back();
    group.at = group.valueEnd;
    while (group.at < group.end) {
      const std::string_view rest = file_.Text().substr(group.at, group.end - group.at);
      if (rest.size() < kTagSize + kLengthSize) {
        damaged_ = true;
        group.at = group.end;
        break;
      }
      const auto found = static_cast<unsigned char>(rest.front());
      if (found > tag) break;
      group.at += kTagSize + kLengthSize;
      const auto length = FromLittleEndian<std::uint32_t>(rest.substr(kTagSize));
      group.valueEnd = group.at + Within(group.end - group.at, length);
      group.hasValue = found == tag;
      if (found == tag) return true;
      group.at = group.valueEnd;
    }
    group.valueEnd = group.at;
    group.hasValue = false;
    return false;
  }

 private:
  struct Level {
    std::size_t at;        // the next byte
    std::size_t valueEnd;  // of the present value
    std::size_t end;       // of the group
    bool hasValue;         // false before the first tag and for one that isn't there
  };

  bool IsInGroup() const { return levels_.size() > 1; }

  std::size_t Within(std::size_t room, std::size_t length) {
    damaged_ = damaged_ || length > room;
    return std::min(length, room);
  }

  FileBytes file_;
  std::vector<Level> levels_;
  bool damaged_ = false;
};

// Collects the bytes of a file. Lengths are filled in when what they measure ends.
class AArchive::Writer {
 public:
  void Put(std::string_view bytes) {
    const bool lacksTag = !groups_.empty() && groups_.back().valueLengthAt == kNone;
    failed_ = failed_ || lacksTag;
    Append(bytes);
  }

  template <class Bits>
  void PutNumber(Bits bits) {
    const auto bytes = ToLittleEndian(bits);
    Put({bytes.data(), bytes.size()});
  }

  void PutText(std::string_view text) {
    failed_ = failed_ || text.size() > kLongestText;
    PutNumber(static_cast<std::uint32_t>(text.size()));
    Put(text);
  }

  void StartGroup() {
    const std::size_t lengthAt = file_.size();
    Put({"\0\0\0\0", kLengthSize});
    groups_.push_back({lengthAt, kNone});
  }

  void EndGroup() {
    if (groups_.empty()) return;
    EndValue();
    FillIn(groups_.back().lengthAt);
    groups_.pop_back();
  }

  void StartValue(unsigned char tag) {
    if (groups_.empty()) return;
    EndValue();
    groups_.back().valueLengthAt = file_.size() + kTagSize;
    const char byte = static_cast<char>(tag);
    Append({&byte, kTagSize});
    Append({"\0\0\0\0", kLengthSize});
  }

  bool Save(const char* path) {
    while (!groups_.empty()) EndGroup();
    return !failed_ && SaveFileBytes(path, file_) != 0;
  }

 private:
  static constexpr std::size_t kNone = 0;  // no length of a value stands at the file's start

  struct Group {
    std::size_t lengthAt;
    std::size_t valueLengthAt;
  };

  void Append(std::string_view bytes) {
    if (!failed_) file_.append(bytes);
  }

  void EndValue() {
    if (groups_.back().valueLengthAt != kNone) FillIn(groups_.back().valueLengthAt);
  }

  void FillIn(std::size_t lengthAt) {
    if (failed_) return;
    const std::size_t length = file_.size() - lengthAt - kLengthSize;
    failed_ = length > std::numeric_limits<std::uint32_t>::max();
    const auto bytes = ToLittleEndian(static_cast<std::uint32_t>(length));
    std::copy(bytes.begin(), bytes.end(), file_.begin() + static_cast<std::ptrdiff_t>(lengthAt));
  }

  std::string file_;
  std::vector<Group> groups_;
  bool failed_ = false;
};

AArchive::AArchive(const AFilePath& path, Direction direction) : direction_(direction) {
  HadMemoryFor([&] {
    path_ = path;
    if (direction == Direction::Writing) {
      writer_ = std::make_unique<Writer>();
      return;
    }
    FileBytes file;
    if (ReadFileBytes(path, file) == nullptr) reader_ = std::make_unique<Reader>(std::move(file));
  });
}

AArchive::~AArchive() = default;

int AArchive::IsOpen() const { return reader_ != nullptr || writer_ != nullptr ? 1 : 0; }

int AArchive::Close() {
  const bool done = writer_ != nullptr ? writer_->Save(path_) : reader_ != nullptr;
  writer_.reset();
  reader_.reset();
  return done ? 1 : 0;
}

int AArchive::AtEnd() const { return reader_ == nullptr || reader_->AtEnd() ? 1 : 0; }

int AArchive::IsDamaged() const { return reader_ != nullptr && reader_->IsDamaged() ? 1 : 0; }

void AArchive::RequireWriting() const {
  if (IsWriting() != 0) return;
  throw AArchiveException(AArchiveException::kReadOnly,
                          OrOnNoMemory(AString(), [&] { return path_.GetFullPath(); }));
}

// An archive that can't go on for want of memory is closed, and what was written with it.
template <class Stream, class Work>
void AArchive::With(std::unique_ptr<Stream>& stream, Work work) {
  if (stream != nullptr && !HadMemoryFor([&] { work(*stream); })) stream.reset();
}

AArchive& AArchive::TagStart() {
  With(writer_, [](Writer& writer) { writer.StartGroup(); });
  With(reader_, [](Reader& reader) { reader.StartGroup(); });
  return *this;
}

AArchive& AArchive::TagEnd() {
  if (writer_ != nullptr) writer_->EndGroup();
  if (reader_ != nullptr) reader_->EndGroup();
  return *this;
}

AArchive& AArchive::Tag(unsigned char tag) {
  With(writer_, [&](Writer& writer) { writer.StartValue(tag); });
  GetTag(tag);
  return *this;
}

int AArchive::GetTag(unsigned char tag) {
  return reader_ != nullptr && reader_->FindTag(tag) ? 1 : 0;
}

template <class Bits>
Bits AArchive::Take() {
  return reader_ != nullptr ? reader_->TakeNumber<Bits>() : 0;
}

template <class Bits>
AArchive& AArchive::Put(Bits bits) {
  RequireWriting();
  With(writer_, [&](Writer& writer) { writer.PutNumber(bits); });
  return *this;
}

AArchive& AArchive::operator>>(int& value) {
  value = static_cast<int>(Take<std::uint32_t>());
  return *this;
}

AArchive& AArchive::operator>>(unsigned int& value) {
  value = Take<std::uint32_t>();
  return *this;
}

AArchive& AArchive::operator>>(unsigned long& value) {
  value = Take<std::uint32_t>();
  return *this;
}

AArchive& AArchive::operator>>(float& value) {
  value = std::bit_cast<float>(Take<std::uint32_t>());
  return *this;
}

AArchive& AArchive::operator>>(double& value) {
  value = std::bit_cast<double>(Take<std::uint64_t>());
  return *this;
}

AArchive& AArchive::operator<<(int value) { return Put(static_cast<std::uint32_t>(value)); }

AArchive& AArchive::operator<<(unsigned int value) { return Put(std::uint32_t{value}); }

AArchive& AArchive::operator<<(unsigned long value) {
  return Put(static_cast<std::uint32_t>(value));
}

AArchive& AArchive::operator<<(float value) { return Put(std::bit_cast<std::uint32_t>(value)); }

AArchive& AArchive::operator<<(double value) { return Put(std::bit_cast<std::uint64_t>(value)); }

AArchive& AArchive::ReadText(AString& text) {
  text.Empty();
  With(reader_, [&](Reader& reader) {
    const std::string_view bytes = reader.TakeText();
    std::copy(bytes.begin(), bytes.end(), text.GetBuffer(static_cast<int>(bytes.size())));
  });
  return *this;
}

AArchive& AArchive::WriteText(const char* text, std::size_t length) {
  RequireWriting();
  With(writer_, [&](Writer& writer) { writer.PutText({text, length}); });
  return *this;
}

AArchive& operator>>(AArchive& archive, AString& text) { return archive.ReadText(text); }

AArchive& operator<<(AArchive& archive, const AString& text) {
  return archive.WriteText(text, static_cast<std::size_t>(text.GetLength()));
}
