#pragma once

// What was derived, as short texts to compare with a literal.

#include <string>
#include <vector>

#include "qdf/core/documentmembers.h"
#include "tests/documents.h"

// The records as one text, ";" between them.
template <class Record, class Text>
std::string DumpEach(const APtrArray& list, Text text) {
  std::vector<std::string> texts;
  for (const Record& record : Records<Record>(list)) texts.push_back(text(record));
  return Join(texts, ";");
}

// "3=Glossy/Gloss*": id, internal and unlocalised name, "*" when it is customisable.
inline std::string DumpMedia(const APtrArray& list) {
  return DumpEach<MediaTypeInfo>(list, [](const MediaTypeInfo& media) {
    EXPECT_EQ(Str(media.DisplayName), Str(media.UnlocalizedName));
    return Join({std::to_string(media.ID), "=", Str(media.InternalName), "/",
                 Str(media.UnlocalizedName), media.IsCustomizableMedia != 0 ? "*" : ""},
                "");
  });
}

// "1=best/Best"
inline std::string DumpPrintModes(const APtrArray& list) {
  return DumpEach<PrintModeInfo>(list, [](const PrintModeInfo& printMode) {
    EXPECT_EQ(Str(printMode.DisplayName), Str(printMode.UnlocalizedName));
    return Join({std::to_string(printMode.ID), "=", Str(printMode.InternalName), "/",
                 Str(printMode.DisplayName)},
                "");
  });
}

// "1=600/600x300"
inline std::string DumpResolutions(const APtrArray& list) {
  return DumpEach<ResolutionInfo>(list, [](const ResolutionInfo& resolution) {
    AString text;
    text.Format("%d=%s/%gx%g", resolution.ID, Str(resolution.DisplayName).c_str(),
                resolution.XResolution, resolution.YResolution);
    return std::string(text);
  });
}

// "1=CMYK/No(Cyan 2,Magenta 2,Yellow 2,Black 1)"
inline std::string DumpColorModes(const APtrArray& list) {
  return DumpEach<ColorModeInfo>(list, [](const ColorModeInfo& mode) {
    std::vector<std::string> colorants;
    for (int i = 0; i < mode.ColorantCount; ++i) {
      const ColorantInfo& colorant = mode.Colorants[i].Colorant;
      EXPECT_EQ(Str(colorant.InternalName), Str(colorant.DisplayName));
      EXPECT_EQ(colorant.IsSpotColor, 0);
      colorants.push_back(
          Join({Str(colorant.InternalName), std::to_string(colorant.ColorDepth)}, " "));
    }
    return Join({std::to_string(mode.ID), "=", Str(mode.InternalName), "/", Str(mode.DisplayName),
                 "(", Join(colorants, ","), ")"},
                "");
  });
}

// All that a derivation fills. The tree is followed by the names that it refers to.
struct Derived {
  explicit Derived(const DocumentMembers& document)
      : media(DumpMedia(document.MediaList)),
        printModes(DumpPrintModes(document.PrintModeList)),
        resolutions(DumpResolutions(document.ResolutionList)),
        colorModes(DumpColorModes(document.ColorModeList)),
        tree(Join({Dump(document.ControlTreeRoot), Dump(document.OEMInfoList),
                   Dump(document.ICCProfileList), Dump(document.DitherNameList)},
                  " ")) {}

  std::string media;
  std::string printModes;
  std::string resolutions;
  std::string colorModes;
  std::string tree;
};
