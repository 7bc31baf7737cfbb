#include "tests/documents.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "tests/files.h"

namespace {

using Text = std::string_view;

std::string Element(Text name, Text content, Text attributes = {}) {
  std::string element("<");
  element.append(name).append(attributes).append(">").append(content);
  return element.append("</").append(name).append(">");
}

// Cuts the text at the first mark; the mark and what follows it is the second piece.
std::pair<Text, Text> Cut(Text text, char mark) {
  const std::size_t at = text.find(mark);
  if (at == Text::npos) return {text, {}};
  return {text.substr(0, at), text.substr(at + 1)};
}

template <class Make>
std::string ForEachEntry(Text text, Make make) {
  std::string entries;
  while (!text.empty()) {
    const auto [entry, rest] = Cut(text, ';');
    const auto [id, names] = Cut(entry, '=');
    entries += Element("Entry", Element("ID", id) + make(names)) + "\n";
    text = rest;
  }
  return entries;
}

struct ShortNode {
  std::string ids, defaultID;
  std::vector<ShortNode> children{};
};

// Takes one node off the front of the text.
ShortNode TakeNode(Text& text) {
  const auto takeTo = [&](Text stops) {
    const Text piece = text.substr(0, text.find_first_of(stops));
    text.remove_prefix(piece.size());
    return std::string(piece);
  };
  const auto skip = [&](char wanted) {
    const bool found = !text.empty() && text.front() == wanted;
    if (found) text.remove_prefix(1);
    return found;
  };
  ShortNode node{takeTo(">[;]"), ""};
  if (skip('>')) node.defaultID = takeTo("[;]");
  if (!skip('[')) return node;
  do node.children.push_back(TakeNode(text));
  while (skip(';'));
  skip(']');
  return node;
}

// An attribute, but none for an empty value.
std::string Attribute(Text name, Text value) {
  if (value.empty()) return "";
  return std::string(" ").append(name).append("=\"").append(value) + "\"";
}

// Each with its attribute for the default below it.
constexpr std::pair<Text, Text> kControlLevels[] = {
    {"Control_Definition", "DefaultInk"}, {"Ink", "DefaultMedia"},
    {"Media", "DefaultPrintMode"},        {"PrintMode", "DefaultResolution"},
    {"Resolution", "DefaultColorMode"},   {"ColorMode", "Default"}};

std::string ControlElement(const ShortNode& node, std::size_t level, Text leaves) {
  const auto& [name, defaultAttribute] = kControlLevels[level];
  std::string children(level + 1 == std::size(kControlLevels) ? leaves : "");
  for (const ShortNode& child : node.children) children += ControlElement(child, level + 1, leaves);
  return Element(name, children,
                 Attribute("ID", node.ids) + Attribute(defaultAttribute, node.defaultID));
}

std::string SizeElement(const ShortNode& size) {
  const ShortNode margin = size.children.empty() ? ShortNode{} : size.children.front();
  return Element("MediaSize", "",
                 Attribute("ID", size.ids) + Attribute("MarginIDList", margin.ids) +
                     Attribute("DefaultMarginID", margin.defaultID));
}

}  // namespace

std::string Entries(std::string_view text, std::string_view more) {
  return ForEachEntry(text, [&](Text names) {
    const auto [displayName, internalName] = Cut(names, '/');
    return Element("DisplayName", displayName) + Element("InternalName", internalName) +
           std::string(more);
  });
}

std::string Resolutions(std::string_view text) {
  return ForEachEntry(
      text, [](Text value) { return Element("DisplayName", value) + Element("Value", value); });
}

std::string ColorModes(std::string_view text) {
  return Entries(text,
                 "<ColorantList><Color><InternalName>Black</InternalName></Color>"
                 "</ColorantList>");
}

std::string Control(std::string_view tree, std::string_view leaves, std::string_view more) {
  const std::string control = ControlElement(TakeNode(tree), 0, leaves);
  return more.empty()
             ? control
             : Replaced(control, "<ColorMode", Join({"<ColorMode", std::string(more)}, " "));
}

std::string SourceControl(std::string_view tree) {
  const ShortNode root = TakeNode(tree);
  std::string sources;
  for (const ShortNode& source : root.children) {
    std::string sizes;
    for (const ShortNode& size : source.children) sizes += SizeElement(size);
    sources +=
        Element("MediaSource", sizes,
                Attribute("ID", source.ids) + Attribute("DefaultMediaSizeID", source.defaultID));
  }
  return Element("MediaSource_Control", sources, Attribute("DefaultMediaSourceID", root.defaultID));
}

std::string DocumentText::Text() const {
  std::string definition;
  for (const auto& [name, entries] :
       {std::pair("InkList", &InkList), std::pair("MediaList", &MediaList),
        std::pair("PrintModeList", &PrintModeList), std::pair("ResolutionList", &ResolutionList),
        std::pair("ColorModeList", &ColorModeList)}) {
    definition += Element(name, *entries) + "\n";
  }
  for (const auto& [name, entries] :
       {std::pair("MediaSourceList", &MediaSourceList), std::pair("MediaSizeList", &MediaSizeList),
        std::pair("MarginInfoList", &MarginInfoList)}) {
    if (!entries->empty()) definition += Element(name, *entries);
  }
  return Element("QDF_Info",
                 Element("Definition", definition + Definition) + Control + SourceControl);
}

std::unique_ptr<APMQDF> LoadFile(const std::string& path) {
  AFilePath file(path.c_str());
  APMQDF* document = nullptr;
  PMGetQDFInterface(file, &document);
  return std::unique_ptr<APMQDF>(document);
}

std::unique_ptr<APMQDF> LoadText(std::string_view text) {
  const TempFolder folder;
  return LoadFile(folder.Write("document.qdf", text));
}

std::unique_ptr<APMQDF> Load(const DocumentText& document) { return LoadText(document.Text()); }

std::string Join(const std::vector<std::string>& texts, std::string_view between) {
  std::string joined;
  for (const std::string& text : texts) {
    if (&text != &texts.front()) joined += between;
    joined += text;
  }
  return joined;
}

std::string Replaced(std::string text, std::string_view from, std::string_view to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != Text::npos; at += to.size()) {
    text.replace(at, from.size(), to);
  }
  return text;
}

std::vector<std::string> Split(std::string_view text) {
  std::vector<std::string> pieces;
  std::size_t bar = 0;
  do {
    bar = text.find('|');
    pieces.emplace_back(text.substr(0, bar));
    text.remove_prefix(std::min(pieces.back().size() + 1, text.size()));
  } while (bar != Text::npos);
  return pieces;
}

std::string Dump(const CQDFNode& node) {
  std::string text = Dump(node.IDs);
  if (node.Default != 0) text.append(">").append(std::to_string(node.Default));
  std::vector<std::string> children;
  for (int i = 0; i < node.Children.GetSize(); ++i) children.push_back(Dump(*ChildAt(node, i)));
  if (!children.empty()) text.append("[").append(Join(children, ";")).append("]");
  return text;
}

std::string Dump(const ADWordArray& ids) {
  std::vector<std::string> texts;
  for (const std::uint32_t id : ids) texts.push_back(std::to_string(static_cast<int>(id)));
  return Join(texts, ",");
}

std::string Dump(const AStringArray& texts) {
  std::vector<AString> copies;
  for (int i = 0; i < texts.GetSize(); ++i) copies.push_back(texts[i]);
  return Dump(copies);
}

std::string Dump(const std::vector<AString>& texts) {
  return Join({texts.begin(), texts.end()}, "|");
}
