// Notes on lists of words that do not do what whoever names them would expect.
#pragma once

#include <iosfwd>
#include <string_view>

#include "app/messages.h"
#include "engine/word_list.h"

namespace quillomat {

/// Tells `err` of count-only words that are none, and of words that stand in both kinds of list.
/// `countOnlySource`: the file or the option that names count-only words; "" where nothing does.
void TellListsWithoutEffect(std::string_view countOnlySource, const WordLists& lists,
                            const Messages& messages, std::ostream& err);

}  // namespace quillomat
