// The operations that stand in the table of virtual operations but aren't built yet: they fail.

#include "qdf/core/apmqdf.h"

int APMQDF::LoadHPResourceInfo(APtrArray&, APtrArray&, APtrArray&) { return 0; }

int APMQDF::InitiateAPMQDF(const AString&, const AString&, const AString&, double, double, double,
                           double, double, double, double, double, APtrArray&, APtrArray&,
                           APtrArray&, CQDFNode*) {
  return 0;
}
