// Two flags of the windows that handlers look at before they act.
#pragma once

namespace quillomat {

struct WindowFlags {
  /// False while the controls are filled from outside: their handlers do nothing then.
  bool blnStartUpCompleted = false;
  /// The panel does not ask whether the text may be read anew.
  bool blnInhibitPrompt = false;
};

}  // namespace quillomat
