#include "qdf/control/idlist.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>
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

// The plainest way to the same answers: texts are cut and copied, and ids sought by walks.
std::string PlainlyParsed(std::string text, const std::vector<std::uint32_t>& all) {
  const auto trimmed = [](std::string s) {
    const char* spaces = " \t\r\n\v\f";
    s.erase(0, std::min(s.find_first_not_of(spaces), s.size()));
    s.erase(s.find_last_not_of(spaces) + 1);
    return s;
  };
  const auto holds = [](const std::vector<std::uint32_t>& ids, std::uint32_t id) {
    return std::find(ids.begin(), ids.end(), id) != ids.end();
  };
  const auto cutTo = [&](char mark) {
    const std::size_t at = text.find(mark);
    if (at != std::string::npos) text.erase(0, at + 1);
    return at != std::string::npos;
  };
  std::string upper = trimmed(text);
  for (char& c : upper) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  std::vector<std::uint32_t> out;
  if (upper == "ALL") {
    out = all;
  } else {
    const bool exclusion = cutTo('-');
    cutTo('(');
    text = text.substr(0, text.find(')')) + ",";
    std::vector<std::uint32_t> local;
    while (!text.empty()) {
      const std::string piece = trimmed(text.substr(0, text.find(',')));
      cutTo(',');
      const auto id = static_cast<std::uint32_t>(std::atoi(piece.c_str()));
      if (!piece.empty() && !holds(local, id) && holds(all, id)) local.push_back(id);
    }
    if (!exclusion) out = local;
    for (const std::uint32_t id : exclusion ? all : std::vector<std::uint32_t>{}) {
      if (!holds(local, id)) out.push_back(id);
    }
  }
  return Dump(Array(out));
}

TEST(IDList, ReadsRandomTextsAsThePlainWayDoes) {
  const std::vector<std::uint32_t> ids = {3, 1, 0, 12, 2};
  ADWordArray all = Array(ids);
  const std::vector<std::string> pieces = {"1", "2", "12", "0", "3",  ",",   ",",   ",", "(",
                                           ")", "-", " ",  "x", "\t", "ALL", "all", "+"};
  std::mt19937 random(7);
  for (int round = 0; round < 20'000; ++round) {
    std::string text;
    for (std::size_t i = random() % 10; i > 0; --i) text += pieces[random() % pieces.size()];
    ASSERT_EQ(Parsed(text, all), PlainlyParsed(text, ids)) << '"' << text << '"';
  }
}

}  // namespace
