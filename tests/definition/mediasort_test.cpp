#include "qdf/definition/mediasort.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "qdf/definition/records.h"
#include "qdf/support/text.h"
#include "tests/documents.h"

namespace {

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

}  // namespace
