// Both cascades: what may follow the ids chosen so far.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/documents.h"

namespace {

// The answer to the ids, as "10,12@1": the records' ids and the default position; "@0" for none.
template <class Record, class Ask, class... ID>
std::string Answer(APMQDF& document, Ask ask, const ID&... ids) {
  int position = 99;
  const std::string records = IDs(Asked<Record>(document, ask, position, ids...));
  return records + "@" + std::to_string(position);
}

using D = APMQDF;

// What may follow 0 to 4 ids of the control tree.
std::string Next(APMQDF& document, const std::vector<int>& ids) {
  const std::size_t level = ids.size();
  if (level == 0) return Answer<InkTypeInfo>(document, &D::GetInkTypeList);
  if (level == 1) return Answer<MediaTypeInfo>(document, &D::GetMediaTypeList, ids[0]);
  if (level == 2) return Answer<PrintModeInfo>(document, &D::GetPrintModeList, ids[0], ids[1]);
  if (level == 3) {
    return Answer<ResolutionInfo>(document, &D::GetResolutionList, ids[0], ids[1], ids[2]);
  }
  return Answer<ColorModeInfo>(document, &D::GetColorModeList, ids[0], ids[1], ids[2], ids[3]);
}

// And of the media source tree.
std::string NextSource(APMQDF& document, const std::vector<int>& ids) {
  if (ids.empty()) return Answer<MediaSourceInfo>(document, &D::GetMediaSourceList);
  if (ids.size() == 1) return Answer<MediaSizeInfo>(document, &D::GetMediaSizeList, ids[0]);
  return Answer<MarginInfo>(document, &D::GetMarginInfoList, ids[0], ids[1]);
}

struct Row {
  const char* tree;
  std::vector<std::pair<std::vector<int>, const char*>> answers;
};

TEST(Narrowing, FollowsTheControlTree) {
  const Row rows[] = {
      {">2[1>11[10,11];2>12[12,10>20[20];10,13>21[21]]]",
       {{{}, "1,2,3@1"},
        {{1}, "10,11@1"},
        {{2}, "10,12,13@1"},
        {{3}, "@0"},
        {{2, 10}, "20@0"},
        {{2, 13}, "21@0"},
        {{1, 10}, "@0"},
        {{1, 12}, "@0"}}},
      // One ink in several nodes: the first answers, but a path that ends is left again.
      {"[1,2>10[11];2>13[12>21[20,21>3[3>2[1];1,2>2[2,1]]];13[20]];2[11[21[3[1]]];13[21]]]",
       {{{2}, "11@0"},
        {{2, 12}, "20,21@1"},
        {{2, 11}, "@0"},
        {{2, 13}, "20@0"},
        {{2, 12, 21}, "3,1,2@0"},
        {{2, 11, 21}, "3@0"},
        {{2, 12, 20, 2}, "1,2@1"},
        {{2, 12, 20, 3}, "1@0"},
        {{2, 11, 21, 3}, "1@0"}}},
      // Defaults that aren't on offer, and ids that are none.
      {">9[1>13[10,11]]", {{{}, "1,2,3@0"}, {{1}, "10,11@0"}, {{0}, "@0"}, {{-1}, "@0"}}},
      {"", {{{}, "1,2,3@0"}, {{1}, "@0"}, {{1, 10, 20, 3}, "@0"}}}};
  for (const auto& row : rows) {
    const auto document = Load({.InkList = Entries("1;2;3"),
                                .MediaList = Entries("10;11;12;13"),
                                .PrintModeList = Entries("20;21"),
                                .ResolutionList = Resolutions("3=600;1=300;2=150"),
                                .ColorModeList = ColorModes("1;2"),
                                .Control = Control(row.tree)});
    for (const auto& [ids, answer] : row.answers) {
      EXPECT_EQ(Next(*document, ids), answer) << row.tree << " level " << ids.size();
    }
  }
}

TEST(Narrowing, FollowsTheSourceTreeWithoutGoingBack) {
  const Row rows[] = {{">2[1,2>30[30,31[40,41>41];32]]",
                       {{{}, "1,2@1"},
                        {{2}, "32,31,30@2"},
                        {{3}, "@0"},
                        {{1, 31}, "40,41@1"},
                        {{1, 32}, "@0"},
                        {{1, 33}, "@0"}}},
                      {">9[2[30[40];30,31[41]];3,2>32[31[40]];1]",
                       {{{}, "1,2,3@0"},
                        {{2}, "31,30@0"},
                        {{2, 30}, "40@0"},
                        {{2, 31}, "41@0"},
                        {{3, 31}, "40@0"},
                        {{2, 32}, "@0"},
                        {{1}, "@0"}}},
                      {"[2;2[30[40]];1[31;31[41]]]",
                       {{{2}, "@0"}, {{2, 30}, "@0"}, {{1}, "31@0"}, {{1, 31}, "@0"}}},
                      {"", {{{}, "@0"}, {{1}, "@0"}, {{1, 30}, "@0"}}}};
  for (const auto& row : rows) {
    const auto document = Load({.MediaSourceList = Entries("1;2;3"),
                                .MediaSizeList = Entries("32;31;30"),
                                .MarginInfoList = Entries("40;41"),
                                .SourceControl = SourceControl(row.tree)});
    for (const auto& [ids, answer] : row.answers) {
      EXPECT_EQ(NextSource(*document, ids), answer) << row.tree;
    }
  }
}

// What a vector holds stays, counts for the result and, but for inks, for the default position.
TEST(Narrowing, AppendsToWhatTheVectorHolds) {
  const auto document = Load({.InkList = Entries("1;2"),
                              .MediaList = Entries("10;11"),
                              .Control = Control(">2[1>11[10,11]]")});
  std::vector<InkTypeInfo> inks(1);
  std::vector<MediaTypeInfo> media;
  std::vector<MediaSourceInfo> sources(1);
  std::vector<MarginInfo> margins(1);
  int at[5] = {99, 99, 99, 99, 99};
  EXPECT_EQ(document->GetInkTypeList(inks, at[0]), 1);
  EXPECT_EQ(document->GetFullInkTypeList(inks), 1);
  EXPECT_EQ(IDs(inks), "0,1,2,1,2");
  EXPECT_EQ(document->GetMediaTypeList(1, media, at[1]), 1);
  EXPECT_EQ(document->GetMediaTypeList(1, media, at[2]), 1);
  EXPECT_EQ(document->GetMediaTypeList(2, media, at[3]), 0) << "no path";
  EXPECT_EQ(IDs(media), "10,11,10,11");
  EXPECT_EQ(document->GetMediaSourceList(sources, at[4]), 1) << "an empty tree is a path";
  EXPECT_EQ(document->GetFullMediaSourceInfoList(sources), 1);
  EXPECT_EQ(document->GetMarginInfoList(1, 1, margins, at[4]), 0);
  EXPECT_EQ(IDs(sources) + IDs(margins), "00");
  EXPECT_EQ(std::vector<int>(at, at + 5), (std::vector<int>{1, 1, 3, 0, 0}));
}

}  // namespace
