#include "qdf/definition/mediasort.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utility>
#include <vector>

#include "qdf/definition/records.h"
#include "qdf/support/text.h"
#include "tests/documents.h"

namespace {

// The exchange sort itself: quadratic, and unstable in its own way.
void ExchangeSort(std::vector<MediaTypeInfo*>& media) {
  for (std::size_t i = 0; i < media.size(); ++i) {
    for (std::size_t j = i + 1; j < media.size(); ++j) {
      if (media[i]->IsCustomizableMedia != 0 || media[j]->IsCustomizableMedia != 0) continue;
      if (FieldText(media[i]->UnlocalizedName) > FieldText(media[j]->UnlocalizedName)) {
        std::swap(media[i], media[j]);
      }
    }
  }
}

std::string SortedIDs(std::vector<MediaTypeInfo>& media, bool plainly) {
  APtrArray list;
  std::vector<MediaTypeInfo*> pointers;
  for (MediaTypeInfo& each : media) {
    list.Add(&each);
    pointers.push_back(&each);
  }
  if (plainly) {
    ExchangeSort(pointers);
  } else {
    SortMedia(list);
    for (int i = 0; i < list.GetSize(); ++i) {
      pointers[static_cast<std::size_t>(i)] = static_cast<MediaTypeInfo*>(list.GetAt(i));
    }
  }
  std::vector<MediaTypeInfo> sorted;
  for (const MediaTypeInfo* each : pointers) sorted.push_back(*each);
  return IDs(sorted);
}

TEST(MediaSort, ComparesBytesAndLeavesCustomizableMediaInPlace) {
  const struct {
    const char* names;  // "*" before a customizable one
    const char* ids;
  } rows[] = {{"b C a", "2,3,1"},
              {"z *m a", "3,2,1"},
              {"b b a", "3,2,1"},
              {"*z *y *x", "1,2,3"},
              {"\xC4 z A", "3,2,1"},
              {"ab a abc", "2,1,3"},
              {"*c b *a a", "1,4,3,2"},
              {"a", "1"},
              {"", ""}};
  for (const auto& row : rows) {
    std::string entries;
    int id = 0;
    for (std::string_view rest = row.names; !rest.empty();) {
      const std::string_view name = rest.substr(0, rest.find(' '));
      rest.remove_prefix(std::min(rest.size(), name.size() + 1));
      const bool custom = name.front() == '*';
      entries += "<m><ID>" + std::to_string(++id) + "</ID><IsCustomizableMedia>" +
                 (custom ? "-1" : "0") + "</IsCustomizableMedia><DisplayName>" +
                 std::string(name.substr(custom ? 1 : 0)) + "</DisplayName></m>";
    }
    const auto document = Load({.MediaList = entries});
    if (document == nullptr) {
      EXPECT_STREQ(row.names, "");
      continue;
    }
    std::vector<MediaTypeInfo> media;
    document->GetFullMediaTypeList(media);
    EXPECT_EQ(IDs(media), row.ids) << row.names;
  }
}

TEST(MediaSort, LeavesEqualNamesAsAnExchangeSortDoes) {
  std::mt19937 random(20240229);
  const auto below = [&](unsigned int limit) { return static_cast<int>(random() % limit); };
  for (int round = 0; round < 3000; ++round) {
    std::vector<MediaTypeInfo> media(static_cast<std::size_t>(below(40)));
    const auto names = static_cast<unsigned int>(1 + below(6));
    int id = 0;
    for (MediaTypeInfo& each : media) {
      each = {};
      each.ID = ++id;
      each.IsCustomizableMedia = below(5) == 0 ? 1 : 0;
      SetField(each.UnlocalizedName, std::string(1, static_cast<char>('\x7D' + below(names))));
      if (below(8) == 0) SetField(each.UnlocalizedName, std::string(256, 'x'));
      each.DisplayName[0] = 'd';
    }
    ASSERT_EQ(SortedIDs(media, false), SortedIDs(media, true)) << "round " << round;
  }
}

}  // namespace
