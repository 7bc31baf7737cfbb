#pragma once

// Lists of distinct names, and how the nodes of the control tree come to refer to them by index. A
// name is written as at its first appearance. Profiles and printer specific texts are matched
// ignoring case, dithers with case.

#include <string_view>

#include "qdf/core/qdfnode.h"
#include "qdf/support/aarrays.h"
#include "qdf/support/hashindex.h"

enum class NameCase { Exact, Ignored };

// Finds names in a list without walking it. While it is in use nobody else changes the list.
class NameTable {
 public:
  NameTable(AStringArray& names, NameCase nameCase);

  // The index of the first equal name, -1 when there is none.
  int Find(std::string_view name) const;
  // The same, but a name that isn't there is appended.
  int Intern(std::string_view name);

 private:
  std::uint32_t Hash(std::string_view name) const;

  AStringArray& names_;
  NameCase case_;
  HashIndex index_;
};

// Interns the text ignoring case; its index becomes the node's Default.
void InternDefaultString(CQDFNode* node, AString& text, AStringArray& names);

// The same, but an empty text changes nothing.
void InternDefaultStringIfGiven(CQDFNode* node, AString& text, AStringArray& names);

// Interns the text ignoring case, an empty one too; its index enters the node's IDs once.
void InternIDString(CQDFNode* node, AString& text, AStringArray& names);

// The index of the text, compared with case, or -1.
int FindExactString(AString& text, AStringArray& names);

// Trims the text and, unless it is then empty, interns it with case; its index becomes the node's
// Default.
void InternDefaultStringExact(CQDFNode* node, AStringArray& names, AString text);

// The same with a table that the caller keeps; its case decides.
void InternDefaultString(CQDFNode* node, std::string_view text, NameTable& names);
void InternDefaultStringIfGiven(CQDFNode* node, std::string_view text, NameTable& names);
void InternDefaultStringExact(CQDFNode* node, NameTable& names, std::string_view text);
