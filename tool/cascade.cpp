#include "tool/cascade.h"

#include "qdf/support/text.h"
#include "tool/records.h"

namespace {

template <class Record>
Choice MakeChoice(const Record& record) {
  Choice choice{record.ID, std::string(FieldText(record.DisplayName)), {}};
  if constexpr (requires { record.InternalName; }) {
    choice.internalName = std::string(FieldText(record.InternalName));
  }
  return choice;
}

template <class Record>
Object MakeShortRow(const Record& record) {
  return MakeRow(record);
}

// People get the names of the colorants alone here.
Object MakeShortRow(const ColorModeInfo& colorMode) {
  Object row = MakeRow(colorMode);
  row.fields.back().label = nullptr;
  std::string names;
  for (int i = 0; i < colorMode.ColorantCount; ++i) {
    if (i > 0) names += ", ";
    names += FieldText(colorMode.Colorants[i].Colorant.DisplayName);
  }
  row.Add({nullptr, "Colorants", names});
  return row;
}

// The offer that a query makes; it gets the vector to fill and the default position to set.
template <class Record, class Query>
Offer Ask(Query query) {
  std::vector<Record> records;
  int defaultPosition = 0;
  query(records, defaultPosition);
  Offer offer;
  offer.defaultPosition = static_cast<std::size_t>(defaultPosition);
  for (const Record& record : records) {
    Object row = MakeShortRow(record);
    row.Add({"default", "Default", offer.rows.size() == offer.defaultPosition});
    offer.rows.emplace_back(std::move(row));
    offer.choices.push_back(MakeChoice(record));
  }
  return offer;
}

template <auto Query>
struct All;

template <class Record, int (APMQDF::*Query)(std::vector<Record>&)>
struct All<Query> {
  static std::vector<Choice> Make(APMQDF& document) {
    std::vector<Choice> choices;
    for (const Record& record : AllRecords(document, Query)) choices.push_back(MakeChoice(record));
    return choices;
  }
};

using IDs = std::vector<int>;

Offer OfferInks(APMQDF& document, const IDs& /*chosen*/) {
  return Ask<InkTypeInfo>([&](auto& inks, int& at) { document.GetInkTypeList(inks, at); });
}

Offer OfferMedia(APMQDF& document, const IDs& id) {
  return Ask<MediaTypeInfo>(
      [&](auto& media, int& at) { document.GetMediaTypeList(id[0], media, at); });
}

Offer OfferPrintModes(APMQDF& document, const IDs& id) {
  return Ask<PrintModeInfo>(
      [&](auto& printModes, int& at) { document.GetPrintModeList(id[0], id[1], printModes, at); });
}

Offer OfferResolutions(APMQDF& document, const IDs& id) {
  return Ask<ResolutionInfo>([&](auto& resolutions, int& at) {
    document.GetResolutionList(id[0], id[1], id[2], resolutions, at);
  });
}

Offer OfferColorModes(APMQDF& document, const IDs& id) {
  return Ask<ColorModeInfo>([&](auto& colorModes, int& at) {
    document.GetColorModeList(id[0], id[1], id[2], id[3], colorModes, at);
  });
}

Offer OfferMediaSources(APMQDF& document, const IDs& /*chosen*/) {
  return Ask<MediaSourceInfo>(
      [&](auto& sources, int& at) { document.GetMediaSourceList(sources, at); });
}

Offer OfferMediaSizes(APMQDF& document, const IDs& id) {
  return Ask<MediaSizeInfo>(
      [&](auto& sizes, int& at) { document.GetMediaSizeList(id[0], sizes, at); });
}

Offer OfferMargins(APMQDF& document, const IDs& id) {
  return Ask<MarginInfo>(
      [&](auto& margins, int& at) { document.GetMarginInfoList(id[0], id[1], margins, at); });
}

constexpr Level kJob[] = {
    {"--ink", "ink", "Ink", "inks", "Inks", OfferInks, All<&APMQDF::GetFullInkTypeList>::Make},
    {"--media", "media", "Media", "media", "Media", OfferMedia,
     All<&APMQDF::GetFullMediaTypeList>::Make},
    {"--print-mode", "printMode", "Print mode", "printModes", "Print modes", OfferPrintModes,
     All<&APMQDF::GetFullPrintModeList>::Make},
    {"--resolution", "resolution", "Resolution", "resolutions", "Resolutions", OfferResolutions,
     All<&APMQDF::GetFullResolutionList>::Make},
    {"--color-mode", "colorMode", "Colour mode", "colorModes", "Colour modes", OfferColorModes,
     All<&APMQDF::GetFullColorModeInfoList>::Make},
};

constexpr Level kMediaSource[] = {
    {"--source", "mediaSource", "Media source", "mediaSources", "Media sources", OfferMediaSources,
     All<&APMQDF::GetFullMediaSourceInfoList>::Make},
    {"--size", "mediaSize", "Media size", "mediaSizes", "Media sizes", OfferMediaSizes,
     All<&APMQDF::GetFullMediaSizeInfoList>::Make},
    {nullptr, "margin", "Margins", "margins", "Margins", OfferMargins,
     All<&APMQDF::GetFullMarginInfoList>::Make},
};

}  // namespace

const std::span<const Level> kJobLevels = kJob;
const std::span<const Level> kMediaSourceLevels = kMediaSource;

std::string InSentence(const char* label) {
  std::string text = label;
  text[0] = static_cast<char>(text[0] | ('a' ^ 'A'));
  return text;
}

std::string Tell(const Level& level, const Choice& choice) {
  return InSentence(level.label) + ' ' + NameChoice(choice);
}
