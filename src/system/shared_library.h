// A library of the system's that is loaded when it is needed first, so that no start pays for one
// that most runs do without.
#pragma once

#include <optional>

namespace quillomat {

class SharedLibrary {
 public:
  /// Nothing if the system has no library of that name, which is a file's without a folder. It
  /// stays loaded until the program ends. May be called by any thread.
  [[nodiscard]] static std::optional<SharedLibrary> Load(const char* name);

  /// Makes `function` the library's of that name; false if it has none. That it is of the type is
  /// the caller's affair.
  template <typename Function>
  [[nodiscard]] bool Find(const char* name, Function*& function) const {
    function = reinterpret_cast<Function*>(FindAny(name));
    return function != nullptr;
  }

 private:
  using AnyFunction = void();

  explicit SharedLibrary(void* handle) : handle_(handle) {}

  [[nodiscard]] AnyFunction* FindAny(const char* name) const;

  void* handle_;
};

}  // namespace quillomat
