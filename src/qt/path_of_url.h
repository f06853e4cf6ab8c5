// The address of a file as a path.
#pragma once

#include <QUrl>
#include <string>

namespace quillomat {

/// The bytes of the path, which the toolkit would make text of; "" where the address is not that of
/// a file or a folder which this machine can name.
[[nodiscard]] std::string PathOfUrl(const QUrl& url);

}  // namespace quillomat
