// The list of colour modes. Of a colorant only its identity is written, not its screen.

#include "qdf/writer/recordlist.h"

void APMQDF::PMWriteColorModeDef(AXMLTree& tree, const AXMLTreeNode& definition) {
  const auto write = [&](const Element& item, const ColorModeInfo& colorMode) {
    item.AddInt("ID", colorMode.ID);
    item.AddName("InternalName", colorMode.InternalName);
    item.AddName("DisplayName", colorMode.DisplayName);
    item.Add("ColorantList", [&](const Element& colorants) {
      for (int i = 0; i < colorMode.ColorantCount; ++i) {
        colorants.Add("Color", [&](Element& colorant) {
          PMWriteColorant(tree, colorant.node, &colorMode.Colorants[i]);
        });
      }
    });
  };
  WriteRecords<ColorModeInfo>(*this, {tree, definition}, "ColorModeList", "ColorModeDef",
                              &APMQDF::GetFullColorModeInfoList, write);
}

void APMQDF::PMWriteColorant(AXMLTree& tree, AXMLTreeNode& element, ANewColorOpt* colorant) {
  const Element color{tree, element};
  const ColorantInfo& info = colorant->Colorant;
  color.SetInt("IsSpotColor", info.IsSpotColor);
  color.AddName("InternalName", info.InternalName);
  color.AddName("DisplayName", info.DisplayName);
  color.AddInt("ColorDepth", info.ColorDepth);
}
