// The check of the user's comment markers before a count that is to use them.
#pragma once

#include "app/messages.h"
#include "ui/params_form.h"

namespace quillomat {

/// Tells the user about the first fault; true when there is none.
[[nodiscard]] bool CheckCommentMarkers(ParamsForm& frmParams, const Messages& messages);

}  // namespace quillomat
