#include "qdf/control/nametable.h"

#include "qdf/support/text.h"
#include "qdf/support/uniqueids.h"

NameTable::NameTable(AStringArray& names, NameCase nameCase) : names_(names), case_(nameCase) {
  for (int i = 0; i < names.GetSize(); ++i) {
    index_.Add(Hash(static_cast<const char*>(names.ElementAt(i))), i);
  }
}

std::uint32_t NameTable::Hash(std::string_view name) const {
  return case_ == NameCase::Exact ? HashText(name) : HashTextNoCase(name);
}

int NameTable::Find(std::string_view name) const {
  return index_.Find(Hash(name), [&](int i) {
    const std::string_view known = static_cast<const char*>(names_.ElementAt(i));
    return case_ == NameCase::Exact ? known == name : EqualNoCase(known, name);
  });
}

int NameTable::Intern(const AString& name) {
  const std::string_view text = static_cast<const char*>(name);
  const int found = Find(text);
  if (found >= 0) return found;
  const int added = names_.Add(name);
  index_.Add(Hash(text), added);
  return added;
}

void InternDefaultString(CQDFNode* node, const AString& text, NameTable& names) {
  node->Default = names.Intern(text);
}

void InternDefaultStringIfGiven(CQDFNode* node, const AString& text, NameTable& names) {
  if (text.GetLength() > 0) InternDefaultString(node, text, names);
}

void InternDefaultStringExact(CQDFNode* node, NameTable& names, AString text) {
  text.TrimLeft();
  text.TrimRight();
  InternDefaultStringIfGiven(node, text, names);
}

void InternDefaultString(CQDFNode* node, AString& text, AStringArray& names) {
  NameTable table(names, NameCase::Ignored);
  InternDefaultString(node, text, table);
}

void InternDefaultStringIfGiven(CQDFNode* node, AString& text, AStringArray& names) {
  NameTable table(names, NameCase::Ignored);
  InternDefaultStringIfGiven(node, text, table);
}

void InternIDString(CQDFNode* node, AString& text, AStringArray& names) {
  NameTable table(names, NameCase::Ignored);
  UniqueIDs(node->IDs).Add(static_cast<std::uint32_t>(table.Intern(text)));
}

int FindExactString(AString& text, AStringArray& names) {
  return NameTable(names, NameCase::Exact).Find(static_cast<const char*>(text));
}

void InternDefaultStringExact(CQDFNode* node, AStringArray& names, AString text) {
  NameTable table(names, NameCase::Exact);
  InternDefaultStringExact(node, table, std::move(text));
}
