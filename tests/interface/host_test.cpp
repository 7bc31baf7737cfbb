// What a host sees that is linked with the library and includes its public headers. That it sees
// all of it is for the host in docs/hosts.md to show, and for the description in tests/abi.

#include <gtest/gtest.h>

#include "qdf/core/apmqdf.h"
#include "tests/files.h"

namespace {

TEST(Host, GetsNothingForWhatIsNoDocument) {
  const TempFolder folder;
  folder.Write("OutputDrivers/text.qdf", "no XML");
  folder.Write("OutputDrivers/folder.qdf/file", "");
  const WorkingFolder in(folder.Path());
  for (const char* name : {static_cast<const char*>(nullptr), "", "missing.qdf", "text.qdf",
                           "folder.qdf", "text.qdf/x"}) {
    APMQDF other;
    APMQDF* document = &other;
    PMGetQDFInterfaceFromName(name, &document);
    EXPECT_EQ(document, nullptr) << (name == nullptr ? "null" : name);
  }
}

}  // namespace
