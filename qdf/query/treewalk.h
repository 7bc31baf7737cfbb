#pragma once

// How queries find their way through the option trees.

#include <initializer_list>

#include "qdf/core/childindexes.h"
#include "qdf/core/qdfnode.h"

// The first child that holds the id, null when none does.
CQDFNode* FindChildWithID(const CQDFNode& parent, int id);

// The last node of the first path from the root whose nodes hold these ids, one for each level. The
// search is depth-first and goes back: a child that matches but leads nowhere gives way to its next
// sibling. Null when there is no such path. With indexes it needn't walk over long rows of
// children.
const CQDFNode* FindPath(const CQDFNode& root, std::initializer_list<int> ids,
                         const ChildIndexes* indexes = nullptr);

// The ids of all children, each once, in the order of the children.
ADWordArray MergedChildIDs(const CQDFNode& node);
