// Room for millions of items that are about to be written, perhaps by several threads: to set them
// first would take about as long, and one thread would have to do it.
#pragma once

#include <cstddef>
#include <memory_resource>
#include <span>
#include <type_traits>

namespace quillomat {

template <typename Item>
class UnsetItems {
  static_assert(std::is_trivially_copyable_v<Item> && std::is_trivially_destructible_v<Item>);

 public:
  explicit UnsetItems(std::size_t size)
      : memory_(*std::pmr::get_default_resource()),
        items_(static_cast<Item*>(memory_.allocate(size * sizeof(Item), alignof(Item))), size) {}
  UnsetItems(const UnsetItems&) = delete;
  UnsetItems& operator=(const UnsetItems&) = delete;
  UnsetItems(UnsetItems&&) = delete;
  UnsetItems& operator=(UnsetItems&&) = delete;
  ~UnsetItems() { memory_.deallocate(items_.data(), items_.size_bytes(), alignof(Item)); }

  /// An item is to be written before it is read.
  [[nodiscard]] std::span<Item> All() { return items_; }

 private:
  std::pmr::memory_resource& memory_;
  std::span<Item> items_;
};

}  // namespace quillomat
