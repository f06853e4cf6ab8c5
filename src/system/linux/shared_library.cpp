#include "system/shared_library.h"

#include <dlfcn.h>

namespace quillomat {

std::optional<SharedLibrary> SharedLibrary::Load(const char* name) {
  void* const handle = dlopen(name, RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) return std::nullopt;
  return SharedLibrary(handle);
}

SharedLibrary::AnyFunction* SharedLibrary::FindAny(const char* name) const {
  return reinterpret_cast<AnyFunction*>(dlsym(handle_, name));
}

}  // namespace quillomat
