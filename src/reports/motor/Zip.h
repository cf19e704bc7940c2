#pragma once

#include <QByteArray>

#include <map>
#include <optional>

namespace pastorix {

// The members of a ZIP file, unpacked, by name; nothing when the file is damaged: cut off, or a member that does not come out as long and
// with the check sum that the directory says. For files of ours: neither more than one disk nor more than 4 GB.
std::optional<std::map<QByteArray, QByteArray>> PartesDelZip(const QByteArray& zip);

} // namespace pastorix
