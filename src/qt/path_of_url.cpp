#include "qt/path_of_url.h"

#include "system/typed_path.h"

namespace quillomat {

std::string PathOfUrl(const QUrl& url) {
  const QByteArray address = url.toEncoded(QUrl::RemoveQuery | QUrl::RemoveFragment);
  return PathOfAddress(address.toStdString()).value_or("");
}

}  // namespace quillomat
