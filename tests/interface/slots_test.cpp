// The order of the virtual operations, which hosts are compiled against.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include "qdf/core/apmqdf.h"
#include "qdf/localise/custommedia.h"

namespace {

// Names a private member: access isn't tested in an explicit instantiation.
template <class Tag, auto Member>
struct Reveal {
  friend auto PrivateMember(Tag) { return Member; }
};
struct Parse {};
struct Find {};
auto PrivateMember(Parse);
auto PrivateMember(Find);
template struct Reveal<Parse, &APMQDF::ParseFromXMLTree>;
template struct Reveal<Find, &APMQDF::FindColorModeNode>;

// The first word of a pointer to a virtual member is one more than its offset in the table.
template <class Member>
std::size_t Slot(Member member) {
  std::size_t word = 0;
  std::memcpy(&word, &member, sizeof word);
  return (word - 1) / sizeof(void*);
}

// The destructor stands first and takes two slots, the second for `delete`.
TEST(VirtualOperations, EachStandsInItsSlot) {
  ASSERT_EQ(sizeof(&APMQDF::LoadQDFFile), 2 * sizeof(void*)) << "another C++ ABI";
  const std::vector<std::size_t> slots = {
      Slot(PrivateMember(Parse{})),
      Slot(PrivateMember(Find{})),
      Slot(&APMQDF::LoadQDFFile),
      Slot(&APMQDF::GetInkTypeList),
      Slot(&APMQDF::GetMediaTypeList),
      Slot(&APMQDF::GetPrintModeList),
      Slot(&APMQDF::GetResolutionList),
      Slot(&APMQDF::GetColorModeList),
      Slot(&APMQDF::GetProfileList),
      Slot(&APMQDF::GetDitherList),
      Slot(&APMQDF::GetOEMInfo),
      Slot(&APMQDF::GetResolutionIDFromDisplayID),
      Slot(&APMQDF::GetFullInkTypeList),
      Slot(&APMQDF::GetFullMediaTypeList),
      Slot(&APMQDF::GetFullPrintModeList),
      Slot(&APMQDF::GetFullResolutionList),
      Slot(&APMQDF::GetFullColorModeInfoList),
      Slot(&APMQDF::GetFullMediaSourceInfoList),
      Slot(&APMQDF::GetRipResolutionForDither),
      Slot(&APMQDF::GetProdcutType),
      Slot(&APMQDF::GetTranslationTable),
      Slot(&APMQDF::GetCustomMediaFile),
      Slot(&APMQDF::LoadHPResourceInfo),
      Slot(&APMQDF::GetFullMarginInfoList),
      Slot(&APMQDF::GetFullMediaSizeInfoList),
      Slot(&APMQDF::GetMediaSourceList),
      Slot(&APMQDF::GetMediaSizeList),
      Slot(&APMQDF::GetMarginInfoList),
      Slot(&APMQDF::GetMediaSizeLimits),
      Slot(&APMQDF::GetMinimumMargin),
      Slot(&APMQDF::InitiateAPMQDF),
      Slot(&APMQDF::GetMediaSourceTreeRoot),
  };
  for (std::size_t i = 0; i < slots.size(); ++i) EXPECT_EQ(slots[i], i + 2) << "row " << i;
  using Media = CCustomMediaInfoInter;
  const std::vector<std::size_t> mediaSlots = {
      Slot(&Media::GetDisplayNameForMedia), Slot(&Media::GetIccprofileForMedia),
      Slot(&Media::GetIccprofileList),      Slot(&Media::SetDisplayNameForMedia),
      Slot(&Media::SetIccprofileForMedia),  Slot(&Media::AddIccprofile),
      Slot(&Media::HasIccprofile),          Slot(&Media::LoadCustomMediaFile),
      Slot(&Media::SaveCustomMediaFile),    Slot(&Media::ClearStringMap)};
  for (std::size_t i = 0; i < mediaSlots.size(); ++i) EXPECT_EQ(mediaSlots[i], i + 2) << i;
}

}  // namespace
