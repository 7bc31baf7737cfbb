// Custom media files: what is loaded, answered, set and saved.

#include "qdf/localise/custommedia.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <functional>

#include "tests/children.h"
#include "tests/documents.h"
#include "tests/files.h"

namespace {

using Media = CCustomMediaInfoInter;

class CustomMedia : public testing::Test {
 protected:
  CustomMedia() { folder_.Write("OutputDrivers/other.txt", ""); }

  std::string Path() const { return folder_.Path("OutputDrivers/media.txt"); }
  std::unique_ptr<Media> Get(const char* name = "media.txt") const {
    Media* media = nullptr;
    PMGetCCustomMediaInfoInterFromName(name, &media);
    return std::unique_ptr<Media>(media);
  }

 private:
  TempFolder folder_;
  WorkingFolder in_{folder_.Path()};
};

TEST_F(CustomMedia, RewritesItsFile) {
  const std::string longName(1030, 'x');
  const struct {
    const char* what;
    std::string before;
    std::function<void(Media&)> change;
    std::string after;
  } rows[] = {
      {"lines that count",
       " key_Iccprofile = a b \r\nkey_Iccprofile=A B=/\nkey_Iccprofile=\n"
       "key_DisplayName_ForMedia= Plain / A/B=C \n",
       [](Media&) {},
       "key_Iccprofile=a b\nkey_Iccprofile=A "
       "B=/\nkey_Iccprofile=\nkey_DisplayName_ForMedia=Plain/A/B=C\n"},
      {"lines that don't",
       "KEY_ICCPROFILE=c\nkey_Iccprofile\n=x\n\nother=1\nkey_DisplayName_ForMedia=Plain\n"
       "key_Iccprofile_ForMedia= /x\nkey_Iccprofile=one",
       [](Media&) {}, "key_Iccprofile=one\n"},
      {"later lines replace and remove",
       "key_DisplayName_ForMedia=M/a\nkey_Iccprofile_ForMedia=M/p\nkey_Iccprofile_ForMedia=m/q\n"
       "key_DisplayName_ForMedia=M/b\nkey_Iccprofile_ForMedia=M/\n",
       [](Media&) {}, "key_DisplayName_ForMedia=M/b\nkey_Iccprofile_ForMedia=m/q\n"},
      {"the order of the groups, entries set anew and removed", "key_DisplayName_ForMedia=A/a",
       [](Media& media) {
         EXPECT_EQ(media.SetIccprofileForMedia("B", "p"), 1);
         media.SetIccprofileForMedia("A", "p");
         media.SetIccprofileForMedia("C", "p");
         EXPECT_EQ(media.SetIccprofileForMedia("C", ""), 1);
         EXPECT_EQ(media.SetIccprofileForMedia("unknown", ""), 1);
         EXPECT_EQ(media.SetDisplayNameForMedia("A", "b"), 1);
         media.SetDisplayNameForMedia("B", " n ");
         EXPECT_EQ(media.AddIccprofile("q"), 1);
         EXPECT_EQ(media.AddIccprofile("Q"), 1);
       },
       "key_Iccprofile=q\nkey_DisplayName_ForMedia=A/b\nkey_DisplayName_ForMedia=B/ n \n"
       "key_Iccprofile_ForMedia=B/p\nkey_Iccprofile_ForMedia=A/p\n"},
      {"the last entry removed", "key_DisplayName_ForMedia=A/a\n# kept",
       [](Media& media) { media.SetDisplayNameForMedia("A", ""); },
       "key_DisplayName_ForMedia=A/a\n# kept"},
      {"loaded twice", "key_Iccprofile=p\nkey_Iccprofile_ForMedia=A/p\n",
       [](Media& media) { EXPECT_EQ(media.LoadCustomMediaFile(), 1); },
       "key_Iccprofile=p\nkey_Iccprofile=p\nkey_Iccprofile_ForMedia=A/p\n"},
      {"a line that comes in pieces", "key_Iccprofile=" + longName, [](Media&) {},
       "key_Iccprofile=" + longName.substr(0, 1023 - 15) + "\n"},
  };
  for (const auto& row : rows) {
    WriteFile(Path(), row.before);
    row.change(*Get());
    EXPECT_EQ(ReadFile(Path()), row.after) << row.what;
  }
  std::filesystem::remove(Path());
  Get()->SetDisplayNameForMedia("A", "");
  EXPECT_FALSE(std::filesystem::exists(Path())) << "nothing is saved without entries";
  Get()->AddIccprofile("p");
  EXPECT_EQ(ReadFile(Path()), "key_Iccprofile=p\n");
}

TEST_F(CustomMedia, Answers) {
  WriteFile(Path(),
            "key_Iccprofile=One\nkey_Iccprofile=Two\n"
            "key_DisplayName_ForMedia=A/name\nkey_Iccprofile_ForMedia=A/profile\n");
  const auto media = Get();
  AString text("former");
  EXPECT_EQ(media->GetDisplayNameForMedia("A", text), 1);
  EXPECT_EQ(text, "name");
  EXPECT_EQ(media->GetIccprofileForMedia("A", text), 1);
  EXPECT_EQ(text, "profile");
  EXPECT_EQ(media->GetIccprofileForMedia(text, text), 0);
  EXPECT_EQ(text, "");
  AStringArray profiles;
  profiles.Add("former");
  EXPECT_NE(media->GetIccprofileList(profiles), 0);
  EXPECT_EQ(Dump(profiles), "One|Two");
  EXPECT_EQ(media->HasIccprofile("tWO"), 1);
  EXPECT_EQ(media->HasIccprofile("Tw"), 0);
  EXPECT_EQ(Get("other.txt")->GetIccprofileList(profiles), 0);
  for (const char* name : {static_cast<const char*>(nullptr), ""}) {
    Media* slot = media.get();
    PMGetCCustomMediaInfoInterFromName(name, &slot);
    EXPECT_EQ(slot, nullptr);
  }
  AMapStringToPtr map(10);
  map.SetAt("a", new AString("x"));
  map.SetAt("b", new AString("y"));
  media->ClearStringMap(map);
  EXPECT_EQ(map.GetCount(), 0);
}

TEST_F(CustomMedia, TellsWhenTheFileCannotBeReadOrSaved) {
  const auto folder = Get(".");
  EXPECT_EQ(folder->LoadCustomMediaFile(), 1);
  EXPECT_EQ(folder->SaveCustomMediaFile(), 1);
  folder->AddIccprofile("p");
  EXPECT_EQ(folder->SaveCustomMediaFile(), 0);

  WriteFile(Path(), "key_Iccprofile=p\n");
  chmod(Path().c_str(), 0);
  EXPECT_EQ(InChild([&] {
              chmod(".", 0755);
              DropPrivileges();
              return Get()->LoadCustomMediaFile();
            }),
            0);
}

// Counts the calls that come through the table of virtual operations.
class Observed : public Media {
 public:
  using Media::Media;
  int SetDisplayNameForMedia(const AString&, const AString&) override { return calls += 1; }
  int SetIccprofileForMedia(const AString&, const AString&) override { return calls += 10; }
  int HasIccprofile(const AString&) override { return calls += 100; }

  int calls = 0;
};

TEST_F(CustomMedia, CallsItselfThroughTheTable) {
  WriteFile(Path(),
            "key_DisplayName_ForMedia=A/a\nkey_DisplayName_ForMedia=B/b\n"
            "key_Iccprofile_ForMedia=A/p\n");
  AFilePath path(Path().c_str());
  Observed media(path);
  EXPECT_EQ(media.LoadCustomMediaFile(), 1);
  EXPECT_EQ(media.AddIccprofile("p"), 1);
  EXPECT_EQ(media.calls, 112);
  EXPECT_EQ(media.Media::HasIccprofile("p"), 0);
}

}  // namespace
