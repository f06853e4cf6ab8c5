// Counts that are kept where they are made, and brought to the store of words when somebody looks.
#pragma once

#include <utility>

namespace quillomat {

class CountKeeper {
 public:
  CountKeeper() = default;
  CountKeeper(const CountKeeper&) = delete;
  CountKeeper& operator=(const CountKeeper&) = delete;
  CountKeeper(CountKeeper&&) = delete;
  CountKeeper& operator=(CountKeeper&&) = delete;
  virtual ~CountKeeper() = default;

  /// Adds what is kept to the store, and begins anew at 0. Does not fail.
  virtual void BringCounts() noexcept = 0;
};

/// Who keeps counts of a store, if anybody does. When a store is moved, its first member asks for
/// them before the others go.
class CountKeeperLink {
 public:
  CountKeeperLink() = default;
  CountKeeperLink(const CountKeeperLink&) = delete;
  CountKeeperLink& operator=(const CountKeeperLink&) = delete;
  CountKeeperLink(CountKeeperLink&& other) noexcept { other.BringCounts(); }
  CountKeeperLink& operator=(CountKeeperLink&& other) noexcept {
    other.BringCounts();
    keeper_ = nullptr;
    return *this;
  }
  ~CountKeeperLink() = default;

  /// There is one keeper at a time.
  void Set(CountKeeper& keeper) {
    if (keeper_ == &keeper) return;
    BringCounts();
    keeper_ = &keeper;
  }
  [[nodiscard]] bool Is(const CountKeeper& keeper) const { return keeper_ == &keeper; }
  void BringCounts() {
    if (CountKeeper* const keeper = std::exchange(keeper_, nullptr)) keeper->BringCounts();
  }
  /// What is kept is worth nothing any more.
  void Drop() { keeper_ = nullptr; }

 private:
  CountKeeper* keeper_ = nullptr;
};

}  // namespace quillomat
