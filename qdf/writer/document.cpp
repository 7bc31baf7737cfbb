// The frame of a written document.

#include "qdf/core/apmqdf.h"
#include "qdf/support/axmltree.h"
#include "qdf/support/nothrow.h"
#include "qdf/writer/element.h"

namespace {

AString FourNumbers(double first, double second, double third, double fourth) {
  return AString().Format("%f,%f,%f,%f", first, second, third, fourth);
}

}  // namespace

void APMQDF::PMWriteQDF(AFilePath& path) {
  LackedMemory = false;
  OrOnNoMemory(0, [&] {
    AXMLTree tree("QDF_Info");
    Element definition{tree, {}};
    tree.addItem(definition.node, "Definition", "");
    definition.AddText("ProductType", GetProdcutType());
    definition.AddText("TranslationTable", GetTranslationTable());
    definition.AddText("CustomMediaFile", GetCustomMediaFile());
    const auto& limits = MediaSizeLimits;
    definition.AddText("MinAndMaxMediaSize",
                       FourNumbers(limits[0], limits[1], limits[2], limits[3]));
    // Margins are stored turned: the text begins with the third.
    const auto& margins = MinimumMargins;
    definition.AddText("MinMarginSize",
                       FourNumbers(margins[2], margins[3], margins[0], margins[1]));
    PMWriteDefinitionPart(tree, definition.node);
    PMWriteControlPart(tree);
    PMWriteMediaSourceControlPart(tree);
    // An answer that fell short would make a document that lacks what it should hold.
    return LackedMemory ? 0 : tree.saveToFile(path);
  });
}

void APMQDF::PMWriteDefinitionPart(AXMLTree& tree, const AXMLTreeNode& definition) {
  PMWriteMediaSourceDef(tree, definition);
  PMWriteMarginInfoDef(tree, definition);
  PMWriteMediaSizeDef(tree, definition);
  PMWriteInkTypeDef(tree, definition);
  PMWriteMediaTypeDef(tree, definition);
  PMWritePrintModeTypeDef(tree, definition);
  PMWriteResolutionTypeDef(tree, definition);
  PMWriteColorModeDef(tree, definition);
}
