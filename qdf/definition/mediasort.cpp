#include "qdf/definition/mediasort.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

#include "qdf/definition/records.h"
#include "qdf/support/text.h"

// The exchange sort takes quadratic time, so its result is worked out without it. Among media of
// one name it moves only the first of those that still stand before a smaller name: each smaller
// name, when its turn comes, takes that first one behind all others of its name met so far. So
// while the list is walked once, the media of a name form a queue: a medium of the name joins its
// end, and a smaller name sends the head of the queue to its end.

namespace {

std::string_view SortKey(const MediaTypeInfo* media) { return FieldText(media->UnlocalizedName); }

// Counts, for ranks that come in one by one, how many smaller ones came before.
class SmallerCounter {
 public:
  explicit SmallerCounter(std::size_t ranks) : sums_(ranks + 1) {}

  std::size_t Smaller(std::size_t rank) const {
    std::size_t count = 0;
    for (std::size_t i = rank; i > 0; i &= i - 1) count += sums_[i];
    return count;
  }
  void Add(std::size_t rank) {
    for (std::size_t i = rank + 1; i < sums_.size(); i += i & (~i + 1)) ++sums_[i];
  }

 private:
  std::vector<std::size_t> sums_;  // a binary indexed tree
};

// The media of one name, in a ring that begins at its head.
class Queue {
 public:
  void Rotate(std::size_t smaller) {
    if (!ring_.empty()) head_ = (head_ + (smaller - smallerSeen_)) % ring_.size();
    smallerSeen_ = smaller;
  }
  // Moves what is behind the head, but as one block of pointers: only a list far longer than any
  // printer's would show it.
  void Join(MediaTypeInfo* media) {
    ring_.insert(ring_.begin() + static_cast<std::ptrdiff_t>(head_), media);
    ++head_;
  }
  template <class Out>
  Out Emit(Out out) const {
    const auto head = ring_.begin() + static_cast<std::ptrdiff_t>(head_ % ring_.size());
    return std::copy(ring_.begin(), head, std::copy(head, ring_.end(), out));
  }

 private:
  std::vector<MediaTypeInfo*> ring_;
  std::size_t head_ = 0;
  std::size_t smallerSeen_ = 0;  // smaller names met so far
};

std::vector<MediaTypeInfo*> ExchangeSorted(const std::vector<MediaTypeInfo*>& media) {
  std::vector<std::string_view> names(media.size());
  std::transform(media.begin(), media.end(), names.begin(), SortKey);
  std::sort(names.begin(), names.end());
  const auto firstOfName = [&](std::string_view name) {
    return static_cast<std::size_t>(std::lower_bound(names.begin(), names.end(), name) -
                                    names.begin());
  };

  // A name's rank is the position at which its media begin in the sorted list, so it is also the
  // number of smaller names in the whole list.
  std::vector<Queue> queues(media.size());
  SmallerCounter counter(media.size());
  for (MediaTypeInfo* each : media) {
    const std::size_t rank = firstOfName(SortKey(each));
    queues[rank].Rotate(counter.Smaller(rank));
    queues[rank].Join(each);
    counter.Add(rank);
  }
  std::vector<MediaTypeInfo*> sorted(media.size());
  auto out = sorted.begin();
  while (out != sorted.end()) {
    const auto rank = static_cast<std::size_t>(out - sorted.begin());
    queues[rank].Rotate(rank);
    out = queues[rank].Emit(out);
  }
  return sorted;
}

}  // namespace

void SortMedia(APtrArray& mediaList) {
  std::vector<MediaTypeInfo*> ordinary;
  std::vector<int> positions;
  for (int i = 0; i < mediaList.GetSize(); ++i) {
    auto* media = static_cast<MediaTypeInfo*>(mediaList.GetAt(i));
    if (media->IsCustomizableMedia != 0) continue;
    ordinary.push_back(media);
    positions.push_back(i);
  }
  const std::vector<MediaTypeInfo*> sorted = ExchangeSorted(ordinary);
  for (std::size_t i = 0; i < sorted.size(); ++i) mediaList[positions[i]] = sorted[i];
}
