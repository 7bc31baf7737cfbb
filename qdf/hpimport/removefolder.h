#pragma once

// Deletes a folder with all that it holds. A link to a folder is left alone, with what is behind
// it. What can't be deleted stays, with the folders around it.
void RemoveFolderTree(const char* folder);
