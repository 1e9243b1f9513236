#pragma once

#include <string>
#include <vector>

namespace orvex {

// The folder of the library or program that holds the code at `address`, without a "/" at its end;
// empty when nothing does.
std::string folderOfCode(const void* address);

// Folders in which the resource libraries of a module are looked for, in order, with the folder of
// the user's language before each.
std::vector<std::string> resourceFolders(const std::string& moduleFolder);

// The first file of that bare name in the folders; empty when there is none. A name with a folder
// in it isn't looked for.
std::string findInFolders(const std::vector<std::string>& folders, const std::string& name);

} // namespace orvex
