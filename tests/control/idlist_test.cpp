// Lists of ids in attributes: which ids they name.

#include "qdf/control/idlist.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/documents.h"

namespace {

ADWordArray Array(const std::vector<std::uint32_t>& ids) {
  ADWordArray array;
  for (const std::uint32_t id : ids) array.Add(id);
  return array;
}

std::string Parsed(const std::string& text, ADWordArray& all) {
  ADWordArray ids;
  AString list(text.c_str());
  ParseIDList(list, all, ids);
  EXPECT_EQ(list, text.c_str());
  return Dump(ids);
}

TEST(IDList, NamesIDs) {
  ADWordArray all = Array({1, 2, 3, 4, 5});
  const struct {
    const char* ids;
    const char* texts;  // each between "|"
  } rows[] = {{"1,2,3,4,5", "ALL| all\t|aLl|-|-()|--2|-ALL|ALL-"},
              {"", "| , ,|0|()|(ALL)|)1,2(|((1),2)|4294967297"},
              {"1", "1|1,ALL|(1)(2)|1,x,+1y,01"},
              {"1,2", "1,2|(1,2|1,2)|4(1,2)3|\v1\n,\r\n2\f|1.9,2e5"},
              {"2,3", "2,2,7, 3"},
              {"5,1", "5,1|(5,1)|x(5, 1 )|5,0x2,1"},
              {"3,4,5", "-(1,2)|ALL-(1,2)|9-1,2|- 1 , 2 "},
              {"2,3,4,5", "-1|)-(1|-1,-2"},
              {"1,2,4,5", "1-3|1,2-3"},
              {"1,3,4,5", "(1-2)"}};
  for (const auto& row : rows) {
    for (const std::string& text : Split(row.texts)) EXPECT_EQ(Parsed(text, all), row.ids) << text;
  }
}

TEST(IDList, ComparesAs32Bits) {
  ADWordArray all = Array({0, 0xFFFFFFFFU, 0x7FFFFFFFU, 3});
  EXPECT_EQ(Parsed("ALL", all), "0,-1,2147483647,3");
  EXPECT_EQ(Parsed("x,99999999999,+2147483647", all), "0,2147483647");
  EXPECT_EQ(Parsed("-1", all), "0,-1,2147483647,3") << "a sign is none";
  EXPECT_EQ(Parsed("-(0,2147483647)", all), "-1,3");
  ADWordArray none;
  EXPECT_EQ(Parsed("ALL", none) + Parsed("-(1)", none) + Parsed("1", none), "");
}

}  // namespace
