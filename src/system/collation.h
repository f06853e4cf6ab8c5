// The order of words in the user's language, as the locale has it: each word has a key of bytes,
// and words are in order when their keys are. The program's own locale is never changed. Another
// order may take its place.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace quillomat {

class Collation {
 public:
  /// The user's.
  Collation();
  Collation(const Collation&) = delete;
  Collation& operator=(const Collation&) = delete;
  Collation(Collation&&) noexcept;
  Collation& operator=(Collation&&) noexcept;
  virtual ~Collation();

  /// Whether there is an order: a plain locale has none but that of the code points.
  [[nodiscard]] virtual bool IsKnown() const;

  /// Appends the key of a word in UTF-8; the word itself where no order is known or the system
  /// fails. Several threads may call it at the same time.
  virtual void AppendKey(std::string& keys, std::string_view word) const;

 private:
  struct Order;
  std::unique_ptr<Order> order_;
};

}  // namespace quillomat
