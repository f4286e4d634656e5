// SPDX-FileCopyrightText: 2026 The PXUiSchedulerWidgets maintainers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <filesystem>
#include <limits>

#include "BoundedQuery.h"
#include "HostInterfaces.h"

namespace Zentor::Util {
namespace {

namespace fs = std::filesystem;

fs::path NearestExisting(fs::path path)
{
    std::error_code error;
    while (!fs::exists(path, error) && path != path.parent_path()) {
        path = path.parent_path();
    }
    return path;
}

std::int64_t AvailableBytes(const std::string& utf8Path)
{
    std::error_code error;
    const fs::path path = fs::absolute(fs::u8path(utf8Path), error);
    if (error) {
        return -1;
    }
    const fs::space_info space = fs::space(NearestExisting(path), error);
    if (error) {
        return -1;
    }
    constexpr std::uintmax_t most = std::numeric_limits<std::int64_t>::max();
    return static_cast<std::int64_t>(std::min(space.available, most));
}

} // namespace

std::int64_t GetAvailableDiskSpace(const ioPath& path)
{
    const std::string utf8Path = path.ToUtf8();
    if (utf8Path.empty()) {
        return -1;
    }
    // Timeout: a network volume whose server is gone blocks the caller forever.
    static BoundedQuery query(std::chrono::seconds(2));
    return query.Ask(utf8Path, [utf8Path] { return AvailableBytes(utf8Path); });
}

} // namespace Zentor::Util
