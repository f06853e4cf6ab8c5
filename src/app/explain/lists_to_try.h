// The lists that a count would go by, for "Try it": what the boxes of typed words say by now, and
// the words of files as the present choice of letters, accents and encoding makes them. Those in
// force may be of another choice until the next count, which reads the files anew; here they are
// read on the side, and neither the words counted nor the user hears of it.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include "app/count/content_mark.h"
#include "app/count/in_force.h"
#include "app/count/list_form.h"
#include "engine/word_list.h"
#include "ui/params_form.h"

namespace quillomat {

class ListsToTry {
 public:
  /// Both must outlive it.
  ListsToTry(ParamsForm& frmParams, const InForce& inForce)
      : frmParams_(frmParams), inForce_(inForce) {}

  /// Good until the next call. Lists are made anew only where the choices, the file, or what is
  /// typed, have changed; where a file would take long to be read, or cannot be, its words are
  /// those in force.
  [[nodiscard]] const WordLists& Lists();

  /// The lists in force have changed.
  void Forget() { madeOf_ = {}; }

 private:
  /// What the two lists of a kind were made of.
  struct MadeOf {
    ListForm form;
    std::optional<ContentMark> contents;
    std::string typed;
  };

  [[nodiscard]] std::optional<ContentMark> ContentsOfFile(std::size_t kind) const;
  [[nodiscard]] WordList OfFile(std::size_t kind, const std::optional<ContentMark>& contents) const;
  [[nodiscard]] WordList Typed(std::size_t kind) const;

  ParamsForm& frmParams_;
  const InForce& inForce_;
  std::array<std::optional<MadeOf>, 2> madeOf_;
  WordLists lists_;
};

}  // namespace quillomat
