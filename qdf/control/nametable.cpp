#include "qdf/control/nametable.h"

#include <algorithm>

#include "qdf/support/text.h"
#include "qdf/support/uniqueids.h"

NameTable::NameTable(AStringArray& names, NameCase nameCase) : names_(names), case_(nameCase) {
  for (int i = 0; i < names.GetSize(); ++i) {
    index_.Add(Hash(View(names.ElementAt(i))), i);
  }
}

std::uint32_t NameTable::Hash(std::string_view name) const {
  return case_ == NameCase::Exact ? HashText(name) : HashTextNoCase(name);
}

int NameTable::Find(std::string_view name) const {
  return index_.Find(Hash(name), [&](int i) {
    const std::string_view known = View(names_.ElementAt(i));
    return case_ == NameCase::Exact ? known == name : EqualNoCase(known, name);
  });
}

int NameTable::Intern(std::string_view name) {
  const int found = Find(name);
  if (found >= 0) return found;
  const int added = names_.Add("");
  std::copy(name.begin(), name.end(),
            names_.ElementAt(added).GetBuffer(static_cast<int>(name.size())));
  index_.Add(Hash(name), added);
  return added;
}

void InternDefaultString(CQDFNode* node, std::string_view text, NameTable& names) {
  node->Default = names.Intern(text);
}

void InternDefaultStringIfGiven(CQDFNode* node, std::string_view text, NameTable& names) {
  if (!text.empty()) InternDefaultString(node, text, names);
}

void InternDefaultStringExact(CQDFNode* node, NameTable& names, std::string_view text) {
  InternDefaultStringIfGiven(node, Trimmed(text), names);
}

void InternDefaultString(CQDFNode* node, AString& text, AStringArray& names) {
  NameTable table(names, NameCase::Ignored);
  InternDefaultString(node, View(text), table);
}

void InternDefaultStringIfGiven(CQDFNode* node, AString& text, AStringArray& names) {
  NameTable table(names, NameCase::Ignored);
  InternDefaultStringIfGiven(node, View(text), table);
}

void InternIDString(CQDFNode* node, AString& text, AStringArray& names) {
  NameTable table(names, NameCase::Ignored);
  UniqueIDs(node->IDs).Add(static_cast<std::uint32_t>(table.Intern(View(text))));
}

int FindExactString(AString& text, AStringArray& names) {
  return NameTable(names, NameCase::Exact).Find(View(text));
}

void InternDefaultStringExact(CQDFNode* node, AStringArray& names, AString text) {
  NameTable table(names, NameCase::Exact);
  InternDefaultStringExact(node, table, View(text));
}
