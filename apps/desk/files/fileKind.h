#pragma once

#include <QString>

namespace orvex {

// What a name stands for that isn't a regular file, in words: "a folder". Empty for a file, and
// where nothing can be found out.
QString otherThanFile(const QString& path);

} // namespace orvex
