#include "qdf/hpimport/sweep.h"

#include "qdf/hpimport/removefolder.h"
#include "qdf/hpimport/sweepverdict.h"
#include "qdf/support/nothrow.h"

void PMCheckHPXMLVersion(AFilePath& folder) {
  OrOnNoMemory(0, [&] {
    // One by one, so that a folder that can't be examined for lack of means spares only itself.
    for (const MediaFolder& media : FindMediaFolders(folder)) {
      if (CheckHPFolder(media.path, 1) != 0) RemoveFolderTree(media.path);
    }
    return 1;
  });
}
