#pragma once

// HP resources that give a document nothing, and why.

#include "qdf/hpimport/discovery.h"
#include "tool/report.h"

// Adds a table of what the search passed over, and then of the resources without which a derived
// document could do the same things: they have no display name, no known quality or no known ink
// layout, and no other resource makes up for it. People see no table when there are none.
void AddResourcesWithoutEffect(const APtrArray& resources,
                               const std::vector<PassedOver>& passedOver, Object& report);
